#include <blocks/block_element_providers.h>

using namespace block_elements;

namespace {

using Array = KdDbBlockArrayAction;
using Based = KdDbBlockActionWithBasePt;
using Moving = KdDbBlockMovingAction;

KdString actionType(const KdDbBlockAction& action)
{
    return action.typeName();
}

constexpr ResourceText kBaseTypes[] = {{78146, L"Dependent"}, {78147, L"Independent"}};

bool isIndependent(const Based& action)
{
    return !action.isDependent();
}

/// All points of the frame, as one chain.
bool framePoints(const PropertyRequest& request, ValueKind kind)
{
    request.head.setRestype(kind);
    ResBuf* record = nullptr;
    for (const KdGePoint2d& point : elementValue<&Moving::frame>(request.entity)) {
        record = record ? record->setNext(ResBuf::newRb(kind)) : &request.head;
        record->setPoint2d(point);
    }
    return true;
}

/// A constraint that drives an array decides the distances.
bool followsConstraint(const KdDbEntity* entity)
{
    if (!entity || !entity->isKindOf(KdDbBlockArrayActionEntity::desc()))
        return false;
    const auto& shown = static_cast<const KdDbBlockArrayActionEntity&>(*entity);
    const OpenForRead<KdDbBlockAction> action(shown.blockElementId());
    return action && action->follows(KdDbBlockConstraintParameter::desc());
}

// clang-format off
constexpr PropertyRow kPositionRows[] = {
    {{78139, L"\tGeometry:Position"},              editable, ResBuf::kPoint2d, flatPoint<&KdDbBlockAction::position>},
};
constexpr PropertyRow kNameRows[] = {
    {{78140, L"\tMisc:Action name"},               editable, ResBuf::kString,  element<&KdDbBlockAction::elementName>},
    {{78141, L"\tMisc:Action type"},               derived,  ResBuf::kString,  element<actionType>},
};
constexpr PropertyRow kBasePointRows[] = {
    {{78144, L"\tOverrides:Base type"},            editable, ResBuf::kString,  nameOf<isIndependent, kBaseTypes>, namesOf<kBaseTypes>},
    {{78145, L"\tOverrides:Base offset"},          editable, ResBuf::kPoint2d, flatPoint<&Based::baseOffset>},
};
constexpr PropertyRow kStretchRows[] = {
    {{78148, L"\tStretch frame:\t\t\t\tVertex"},   editable, ResBuf::kPoint2d, framePoints},
    {{78142, L"\tOverrides:Distance multiplier"},  editable, ResBuf::kReal,    element<&Moving::distanceMultiplier>},
    {{78143, L"\tOverrides:Angle offset"},         editable, ResBuf::kReal,    element<&Moving::angleOffset>},
};
constexpr PropertyRow kArrayRows[] = {
    {{78149, L"\tRows And Columns:Row offset"},    followsConstraint, ResBuf::kReal, element<&Array::rowOffset>},
    {{78150, L"\tRows And Columns:Column offset"}, followsConstraint, ResBuf::kReal, element<&Array::columnOffset>},
};
// clang-format on

} // namespace

int KdDbBlockActionEntity_Extension::PropertyCount(const KdDbEntity* entity,
                                                   KdArray<KdString>& names, KdArray<bool>& flags)
{
    const int status = KdDbEntityPE::PropertyCount(entity, names, flags);
    listRows(kPositionRows, entity, names, flags);
    PropertyCounEx(entity, names, flags);
    listRows(kNameRows, entity, names, flags);
    return status;
}

void KdDbBlockActionEntity_Extension::PropertyCounEx(const KdDbEntity*, KdArray<KdString>&,
                                                     KdArray<bool>&)
{
}

int KdDbBlockActionEntity_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name,
                                                      ResBuf*& result, bool asDisplayText,
                                                      bool withChoices)
{
    if (!entity || !entity->isKindOf(KdDbBlockActionEntity::desc()))
        return 0;
    for (const std::span<const PropertyRow> rows :
         {std::span<const PropertyRow>(kPositionRows), std::span<const PropertyRow>(kNameRows)}) {
        if (const PropertyRow* row = findRow(rows, name))
            return answerRow(*row, {*entity, *result, asDisplayText, withChoices});
    }
    return KdDbBlockElementEntity_Extension::PropertyValueGet(entity, name, result, asDisplayText,
                                                              withChoices);
}

std::span<const PropertyRow> KdDbBlockActionEntityWithBasePt_Extension::rows()
{
    return kBasePointRows;
}

std::span<const PropertyRow> KdDbBlockMoveActionEntity_Extension::rows()
{
    return std::span(kStretchRows).last(2); // a movement without a frame
}

std::span<const PropertyRow> KdDbBlockStretchActionEntity_Extension::rows()
{
    return kStretchRows;
}

std::span<const PropertyRow> KdDbBlockPolarStretchActionEntity_Extension::rows()
{
    return kStretchRows;
}

std::span<const PropertyRow> KdDbBlockArrayActionEntity_Extension::rows()
{
    return kArrayRows;
}
