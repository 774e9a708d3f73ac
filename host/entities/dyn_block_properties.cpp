#include "dyn_block_properties.h"

#include <algorithm>
#include <cmath>

namespace {

using Property = KdDbDynBlockReferenceProperty;

constexpr short kTextCode = 1;
constexpr short kPointCode = 10;
constexpr short kRealCode = 40;
constexpr short kShortCode = 70;

/// Appends properties of one parameter.
class Appender
{
  public:
    Appender(const KdDbBlockParameter& parameter, KdDbDynBlockReferencePropertyArray& properties)
        : m_parameter(parameter), m_properties(properties)
    {
    }

    void distance(const BlockParameterLabel& label, double value)
    {
        append(label, KdDbEvalVariant(value, kRealCode), Property::kDistance);
    }
    void angle(const BlockParameterLabel& label, double value)
    {
        append(label, KdDbEvalVariant(value, kRealCode), Property::kAngle);
    }
    void append(const BlockParameterLabel& label, const KdDbEvalVariant& value,
                Property::UnitsType unitsType)
    {
        m_properties.append(Property(label, value, unitsType, m_parameter.objectId(),
                                     m_parameter.showProperties()));
    }

  private:
    const KdDbBlockParameter& m_parameter;
    KdDbDynBlockReferencePropertyArray& m_properties;
};

KdGePoint3d pointAt(const DynBlockState& state, std::size_t index, const KdGePoint3d& initial)
{
    return index < state.points.size() ? state.points[index] : initial;
}

/// The span of a parameter with two points as the reference has it.
KdGeVector3d spanOf(const KdDbBlock2PtParameter& parameter, const DynBlockState& state)
{
    return pointAt(state, 1, parameter.endPoint()) - pointAt(state, 0, parameter.basePoint());
}

double angleOf(const KdGeVector3d& from, const KdGeVector3d& to)
{
    return from.angleTo(to, KdGeVector3d::kZAxis);
}

void appendPoint(const KdDbBlockPointParameter& parameter, const DynBlockState& state,
                 Appender& appender)
{
    const KdGePoint3d point = pointAt(state, 0, parameter.basePoint());
    const BlockParameterLabel& label = parameter.label();
    appender.distance({label.name + L" X", label.description}, point.x);
    appender.distance({label.name + L" Y", label.description}, point.y);
}

void appendLinear(const KdDbBlockLinearParameter& parameter, const DynBlockState& state,
                  Appender& appender)
{
    appender.distance(parameter.label(), spanOf(parameter, state).length());
}

void appendPolar(const KdDbBlockPolarParameter& parameter, const DynBlockState& state,
                 Appender& appender)
{
    constexpr std::size_t kBaseAnglePoint = 3;
    const KdGeVector3d span = spanOf(parameter, state);
    const bool hasBase = state.points.size() > kBaseAnglePoint;
    const KdGeVector3d base =
        hasBase ? state.points[kBaseAnglePoint] - state.points[0] : KdGeVector3d::kXAxis;
    appender.distance(parameter.distanceLabel(), span.length());
    appender.angle(parameter.angleLabel(), angleOf(base, span));
}

void appendXY(const KdDbBlockXYParameter& parameter, const DynBlockState& state, Appender& appender)
{
    const KdGeVector3d span = spanOf(parameter, state);
    appender.distance(parameter.horizontalLabel(), std::abs(span.x));
    appender.distance(parameter.verticalLabel(), std::abs(span.y));
}

void appendRotation(const KdDbBlockRotationParameter& parameter, const DynBlockState& state,
                    Appender& appender)
{
    constexpr std::size_t kBaseAnglePoint = 3;
    const KdGeVector3d base = pointAt(state, kBaseAnglePoint, parameter.baseAnglePoint()) -
                              pointAt(state, 0, parameter.basePoint());
    appender.angle(parameter.label(), angleOf(base, spanOf(parameter, state)));
}

void appendFlip(const KdDbBlockFlipParameter& parameter, const DynBlockState& state,
                Appender& appender)
{
    appender.append(parameter.label(), KdDbEvalVariant(state.number.value_or(0), kShortCode),
                    Property::kNoUnits);
}

void appendVisibility(const KdDbBlockVisibilityParameter& parameter, const DynBlockState& state,
                      Appender& appender)
{
    const auto& states = parameter.states();
    const KdString initial = states.empty() ? KdString() : states.front();
    appender.append(parameter.label(), KdDbEvalVariant(state.text.value_or(initial), kTextCode),
                    Property::kNoUnits);
}

void appendLookup(const KdDbBlockLookupParameter& parameter, const DynBlockState& state,
                  Appender& appender)
{
    appender.append(parameter.label(), KdDbEvalVariant(state.text.value_or(KdString()), kTextCode),
                    Property::kNoUnits);
}

void appendUser(const KdDbBlockUserParameter& parameter, const DynBlockState&, Appender& appender)
{
    appender.append(parameter.label(), parameter.value(),
                    static_cast<Property::UnitsType>(parameter.unit()));
}

void appendConstraint(const KdDbBlockConstraintParameter& parameter, const DynBlockState&,
                      Appender& appender)
{
    const bool isAngle = parameter.isKindOf(KdDbBlockAngularConstraintParameter::desc());
    (appender.*(isAngle ? &Appender::angle : &Appender::distance))(parameter.label(),
                                                                   parameter.value());
}

struct KindRow
{
    KdRxClass* (*rxClass)();
    void (*append)(const KdDbBlockParameter&, const DynBlockState&, Appender&);
};

template <class Parameter, void (*Append)(const Parameter&, const DynBlockState&, Appender&)>
constexpr KindRow kind()
{
    return {Parameter::desc, [](const KdDbBlockParameter& parameter, const DynBlockState& state,
                                Appender& appender) {
                Append(static_cast<const Parameter&>(parameter), state, appender);
            }};
}

// Alignments and base points change nothing that could be read as a value.
constexpr KindRow kKinds[] = {
    kind<KdDbBlockPointParameter, appendPoint>(),
    kind<KdDbBlockLinearParameter, appendLinear>(),
    kind<KdDbBlockPolarParameter, appendPolar>(),
    kind<KdDbBlockXYParameter, appendXY>(),
    kind<KdDbBlockRotationParameter, appendRotation>(),
    kind<KdDbBlockFlipParameter, appendFlip>(),
    kind<KdDbBlockVisibilityParameter, appendVisibility>(),
    kind<KdDbBlockLookupParameter, appendLookup>(),
    kind<KdDbBlockUserParameter, appendUser>(),
    kind<KdDbBlockConstraintParameter, appendConstraint>(),
};

} // namespace

DynBlockState DynBlockState::of(const KdDbXrecord& record)
{
    constexpr int kHeadNumbers = 2; // a version and a class, the same in every record
    DynBlockState state;
    int numbers = 0;
    for (const resbuf* group = record.groups(); group; group = group->rbnext) {
        const double* point = group->resval.rpoint;
        if (group->restype == kPointCode && state.points.size() < 4)
            state.points.push_back({point[0], point[1], point[2]});
        else if (group->restype == kTextCode && !state.text)
            state.text = KdString(group->resval.rstring);
        else if (group->restype == kShortCode && ++numbers == kHeadNumbers + 1)
            state.number = group->resval.rint;
    }
    return state;
}

void appendDynBlockProperties(const KdDbBlockParameter& parameter, const DynBlockState& state,
                              KdDbDynBlockReferencePropertyArray& properties)
{
    const auto* const row = std::ranges::find_if(
        kKinds, [&](const KindRow& each) { return parameter.isKindOf(each.rxClass()); });
    if (row == std::end(kKinds))
        return;
    Appender appender(parameter, properties);
    row->append(parameter, state, appender);
}
