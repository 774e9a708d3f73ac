#include <string>

#include <blocks/block_element_providers.h>
#include <values/value_lists.h>

using namespace block_elements;

namespace {

using Constraint = KdDbBlockConstraintParameter;
using Provider = KdDbBlockConstraintTagEntity_Extension;

bool isConstraint(const KdDbEntity* entity)
{
    return entity && (entity->isKindOf(KdDbBlockConstraintParameterEntity::desc()) ||
                      entity->isKindOf(KdDbBlockConstraintTagEntity::desc()));
}

/// What `Read` says of the constraint that a parameter, or a tag, of one kind shows; the neutral
/// value for an entity of another kind.
template <class Parameter, class ParameterEntity, class TagEntity, auto Read>
auto constraintValue(const KdDbEntity* entity)
{
    using Value = std::decay_t<decltype(std::invoke(Read, std::declval<const Parameter&>()))>;
    if (!entity ||
        !(entity->isKindOf(ParameterEntity::desc()) || entity->isKindOf(TagEntity::desc())))
        return Value();
    return readElement<Parameter>(
        *entity, [](const Parameter& parameter) -> Value { return std::invoke(Read, parameter); });
}

KdString nameOfConstraint(const Constraint& constraint)
{
    return constraint.label().name;
}

KdString descriptionOf(const Constraint& constraint)
{
    return constraint.label().description;
}

KdString valueSetOf(const Constraint& constraint)
{
    return valueSetName(constraint.valueSet());
}

KdGePoint2d textPositionOf(const Constraint& constraint)
{
    const KdGePoint3d point = constraint.textPosition();
    return {point.x, point.y};
}

KdGePoint2d basePositionOf(const Constraint& constraint)
{
    const KdGePoint3d point = constraint.basePoint();
    return {point.x, point.y};
}

template <auto Read>
auto ofAny(const KdDbEntity* entity)
{
    return constraintValue<Constraint, KdDbBlockConstraintParameterEntity,
                           KdDbBlockConstraintTagEntity, Read>(entity);
}

template <auto Read>
auto ofLinear(const KdDbEntity* entity)
{
    return constraintValue<KdDbBlockLinearConstraintParameter,
                           KdDbBlockLinearConstraintParameterEntity,
                           KdDbBlockLinearConstraintTagEntity, Read>(entity);
}

template <auto Read>
auto ofAngular(const KdDbEntity* entity)
{
    return constraintValue<KdDbBlockAngularConstraintParameter,
                           KdDbBlockAngularConstraintParameterEntity,
                           KdDbBlockAngularConstraintTagEntity, Read>(entity);
}

// Answers to keys: the head has its kind already.

/// Stores what one of the virtual operations gives.
template <auto Operation>
void stored(Provider& provider, const PropertyRequest& request)
{
    const auto value = (provider.*Operation)(&request.entity);
    store(request.head, value);
}

template <double KdGePoint2d::*Coordinate>
void baseCoordinate(Provider& provider, const PropertyRequest& request)
{
    request.head.setDouble(provider.getBasePosition(&request.entity).*Coordinate);
}

template <auto Getter>
void fromElement(Provider&, const PropertyRequest& request)
{
    store(request.head, ofAny<Getter>(&request.entity));
}

void valueSetWithChoices(Provider& provider, const PropertyRequest& request)
{
    request.head.setString(provider.getValSetType(&request.entity));
    valueSetNames(request);
}

bool isRadial(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDbBlockRadialConstraintTagEntity::desc()) ||
           entity.isKindOf(KdDbBlockRadialConstraintParameterEntity::desc());
}

void gripCount(Provider&, const PropertyRequest& request)
{
    request.head.setString(
        std::to_wstring(ofAny<&Constraint::numberOfGrips>(&request.entity)).c_str());
    if (!request.withChoices)
        return;
    ResBuf* tail = &request.head;
    for (const wchar_t* count : {L"0", L"1"})
        tail = PropListUtil::addElementToArray(tail, count);
    if (!isRadial(request.entity))
        PropListUtil::addElementToArray(tail, L"2");
}

/// Bits of the kinds that have a key.
enum Kinds : unsigned
{
    kRoundOnes = 1u << Provider::kRound,
    kLinearOnes = 1u << Provider::kLinear,
    kAngularOnes = 1u << Provider::kAngular,
    kAllKinds = kRoundOnes | kLinearOnes | kAngularOnes,
};

struct ConstraintRow
{
    ResourceText key;
    bool readOnly;
    ValueKind kind;
    unsigned kinds;
    void (*answer)(Provider&, const PropertyRequest&);

    bool isOf(int kindOfProvider) const { return (kinds & 1u << kindOfProvider) != 0; }
};

// clang-format off
constexpr ConstraintRow kRows[] = {
    // key: id, default text             read-only kind              kinds                      answer
    {{78305, L"Constraint:Name"},          false, ResBuf::kString,  kAllKinds,                 stored<&Provider::getDistName>},
    {{78306, L"Constraint:Expression"},    false, ResBuf::kString,  kAllKinds,                 fromElement<&Constraint::expression>},
    {{78307, L"Constraint:Value"},         true,  ResBuf::kReal,    kAllKinds,                 fromElement<&Constraint::value>},
    {{78308, L"Constraint:Description"},   false, ResBuf::kString,  kAllKinds,                 stored<&Provider::getDistDesc>},
    {{78312, L"Geometry:Dim line offset"}, false, ResBuf::kReal,    kLinearOnes,               stored<&Provider::getDimlineOffset>},
    {{78167, L"Geometry:Base point X"},    true,  ResBuf::kReal,    kAngularOnes,              baseCoordinate<&KdGePoint2d::x>},
    {{78168, L"Geometry:Base point Y"},    true,  ResBuf::kReal,    kAngularOnes,              baseCoordinate<&KdGePoint2d::y>},
    {{78311, L"Geometry:Text position"},   false, ResBuf::kPoint2d, kAllKinds,                 stored<&Provider::getTextPosition>},
    {{78101, L"\tValue Set:Ang type"},     false, ResBuf::kString,  kAngularOnes,              valueSetWithChoices},
    {{78086, L"\tValue Set:Dist type"},    false, ResBuf::kString,  kRoundOnes | kLinearOnes,  valueSetWithChoices},
    {{78072, L"\tMisc:Show properties"},   false, ResBuf::kBool,    kAllKinds,                 fromElement<&Constraint::showProperties>}, // lower case, as intended
    {{78074, L"\tMisc:Number of grips"},   false, ResBuf::kString,  kAllKinds,                 gripCount},
};
// clang-format on

} // namespace

int KdDbBlockConstraintTagEntity_Extension::PropertyCount(const KdDbEntity* entity,
                                                          KdArray<KdString>& names,
                                                          KdArray<bool>& flags)
{
    const int status = KdDbEntityPE::PropertyCount(entity, names, flags);
    for (const ConstraintRow& row : kRows) {
        if (row.isOf(m_kind)) {
            names.append(row.key.text());
            flags.append(row.readOnly);
        }
    }
    return status;
}

int KdDbBlockConstraintTagEntity_Extension::PropertyValueGet(const KdDbEntity* entity,
                                                             KdString name, ResBuf*& result,
                                                             bool asDisplayText, bool withChoices)
{
    if (!isConstraint(entity))
        return 0;
    for (const ConstraintRow& row : kRows) {
        if (row.isOf(m_kind) && row.key.matches(name)) {
            result->setRestype(row.kind);
            row.answer(*this, {*entity, *result, asDisplayText, withChoices});
            return 1;
        }
    }
    return KdDbBlock2PtParameterEntity_Extension::PropertyValueGet(entity, name, result,
                                                                   asDisplayText, withChoices);
}

KdString KdDbBlockConstraintTagEntity_Extension::getDistName(const KdDbEntity* entity)
{
    return ofAny<nameOfConstraint>(entity);
}

KdString KdDbBlockConstraintTagEntity_Extension::getDistDesc(const KdDbEntity* entity)
{
    return ofAny<descriptionOf>(entity);
}

KdString KdDbBlockConstraintTagEntity_Extension::getValSetType(const KdDbEntity* entity)
{
    return ofAny<valueSetOf>(entity);
}

KdGePoint2d KdDbBlockConstraintTagEntity_Extension::getTextPosition(const KdDbEntity* entity)
{
    return ofAny<textPositionOf>(entity);
}

KdGePoint2d KdDbBlockConstraintTagEntity_Extension::getBasePosition(const KdDbEntity* entity)
{
    return ofAny<basePositionOf>(entity);
}

double KdDbBlockConstraintTagEntity_Extension::getDimlineOffset(const KdDbEntity*)
{
    return 0.0;
}

KdString KdDbBlockLinearConstraintTagEntity_Extension::getDistName(const KdDbEntity* entity)
{
    return ofLinear<nameOfConstraint>(entity);
}

KdString KdDbBlockLinearConstraintTagEntity_Extension::getDistDesc(const KdDbEntity* entity)
{
    return ofLinear<descriptionOf>(entity);
}

KdString KdDbBlockLinearConstraintTagEntity_Extension::getValSetType(const KdDbEntity* entity)
{
    return ofLinear<valueSetOf>(entity);
}

double KdDbBlockLinearConstraintTagEntity_Extension::getDimlineOffset(const KdDbEntity* entity)
{
    return ofLinear<&Constraint::dimensionLineOffset>(entity);
}

KdString KdDbBlockAngularConstraintTagEntity_Extension::getDistName(const KdDbEntity* entity)
{
    return ofAngular<nameOfConstraint>(entity);
}

KdString KdDbBlockAngularConstraintTagEntity_Extension::getDistDesc(const KdDbEntity* entity)
{
    return ofAngular<descriptionOf>(entity);
}

KdString KdDbBlockAngularConstraintTagEntity_Extension::getValSetType(const KdDbEntity* entity)
{
    return ofAngular<valueSetOf>(entity);
}

KdGePoint2d KdDbBlockAngularConstraintTagEntity_Extension::getTextPosition(const KdDbEntity* entity)
{
    return ofAngular<textPositionOf>(entity);
}

KdGePoint2d KdDbBlockAngularConstraintTagEntity_Extension::getBasePosition(const KdDbEntity* entity)
{
    return ofAngular<basePositionOf>(entity);
}

template <class Parameter, class ParameterEntity, class TagEntity>
KdString RoundConstraintProvider<Parameter, ParameterEntity, TagEntity>::getDistName(
    const KdDbEntity* entity)
{
    return constraintValue<Parameter, ParameterEntity, TagEntity, nameOfConstraint>(entity);
}

template <class Parameter, class ParameterEntity, class TagEntity>
KdString RoundConstraintProvider<Parameter, ParameterEntity, TagEntity>::getDistDesc(
    const KdDbEntity* entity)
{
    return constraintValue<Parameter, ParameterEntity, TagEntity, descriptionOf>(entity);
}

template <class Parameter, class ParameterEntity, class TagEntity>
KdString RoundConstraintProvider<Parameter, ParameterEntity, TagEntity>::getValSetType(
    const KdDbEntity* entity)
{
    return constraintValue<Parameter, ParameterEntity, TagEntity, valueSetOf>(entity);
}

template <class Parameter, class ParameterEntity, class TagEntity>
KdGePoint2d RoundConstraintProvider<Parameter, ParameterEntity, TagEntity>::getTextPosition(
    const KdDbEntity* entity)
{
    return constraintValue<Parameter, ParameterEntity, TagEntity, textPositionOf>(entity);
}

template class RoundConstraintProvider<KdDbBlockDiametricConstraintParameter,
                                       KdDbBlockDiametricConstraintParameterEntity,
                                       KdDbBlockDiametricConstraintTagEntity>;
template class RoundConstraintProvider<KdDbBlockRadialConstraintParameter,
                                       KdDbBlockRadialConstraintParameterEntity,
                                       KdDbBlockRadialConstraintTagEntity>;
