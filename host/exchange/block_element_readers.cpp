// What dynamic blocks are made of. All kinds share the parts of their ancestors, which come first
// in a record; the names of the kinds' own parts differ between writers and are not looked at.
#include <entities/block_reference.h>
#include <entities/dyn_block_actions.h>
#include <entities/dyn_block_parameters.h>

#include "member_readers.h"

namespace dxf {
namespace {

// Parts of ancestors: each is true if the group was of its part or of one above.

bool takeElement(RecordReader& reader, BlockElementMembers& element)
{
    if (reader.isIn("AcDbEvalExpr")) {
        if (reader.code() == 90)
            element.nodeId = reader.integer();
        return true;
    }
    if (!reader.isIn("AcDbBlockElement"))
        return false;
    if (reader.code() == 300)
        element.name = reader.text();
    return true;
}

bool takeGrip(RecordReader& reader, BlockGripMembers& grip)
{
    if (takeElement(reader, grip))
        return true;
    if (!reader.isIn("AcDbBlockGrip"))
        return false;
    if (reader.code() == 1010)
        grip.location = reader.point();
    else if (reader.code() == 280)
        grip.cycling = reader.flag();
    return true;
}

bool takeParameter(RecordReader& reader, BlockParameterMembers& parameter)
{
    if (takeElement(reader, parameter))
        return true;
    if (!reader.isIn("AcDbBlockParameter"))
        return false;
    if (reader.code() == 280)
        parameter.showProperties = reader.flag();
    else if (reader.code() == 281)
        parameter.chainActions = reader.flag();
    return true;
}

bool take1Pt(RecordReader& reader, Block1PtParameterMembers& parameter)
{
    if (takeParameter(reader, parameter))
        return true;
    if (!reader.isIn("AcDbBlock1PtParameter"))
        return false;
    if (reader.code() == 1010)
        parameter.point = reader.point();
    else if (reader.code() == 93)
        parameter.gripNodes[0] = reader.integer();
    return true;
}

/// Which place of the parameter a grip moves does not matter here, so the free ones are filled.
void addGrip(std::array<int, 4>& nodes, int node)
{
    for (int& place : nodes) {
        if (place == 0) {
            place = node;
            return;
        }
    }
}

bool take2Pt(RecordReader& reader, Block2PtParameterMembers& parameter)
{
    if (takeParameter(reader, parameter))
        return true;
    if (!reader.isIn("AcDbBlock2PtParameter"))
        return false;
    switch (reader.code()) {
    case 91:
        addGrip(parameter.gripNodes, reader.integer());
        break;
    case 177:
        parameter.basePosition = reader.integer();
        break;
    case 1010:
        parameter.start = reader.point();
        break;
    case 1011:
        parameter.end = reader.point();
        break;
    default:
        break;
    }
    return true;
}

bool takeAction(RecordReader& reader, BlockActionMembers& action)
{
    if (takeElement(reader, action))
        return true;
    if (!reader.isIn("AcDbBlockAction"))
        return false;
    if (reader.code() == 330)
        action.selection.push_back(reader.reference());
    else if (reader.code() == 1010)
        action.position = reader.point();
    return true;
}

/// The numbers of the parameters that an action follows stand from 92 on, as far as each kind goes.
bool takeDriver(RecordReader& reader, BlockActionMembers& action, int lastCode)
{
    const bool isDriver = reader.code() >= 92 && reader.code() <= lastCode;
    if (isDriver)
        action.drivers.push_back(reader.integer());
    return isDriver;
}

bool takeWithBasePt(RecordReader& reader, BlockActionWithBasePtMembers& action)
{
    if (takeAction(reader, action))
        return true;
    if (!reader.isIn("AcDbBlockActionWithBasePt"))
        return false;
    if (reader.code() == 1011)
        action.baseOffset = reader.point();
    else if (reader.code() == 280)
        action.dependent = reader.flag();
    else
        takeDriver(reader, action, 93);
    return true;
}

// Parts of their own.

bool takeLabel(RecordReader& reader, int nameCode, int descriptionCode, BlockParameterLabel& label)
{
    if (reader.code() == nameCode)
        label.name = reader.text();
    else if (reader.code() == descriptionCode)
        label.description = reader.text();
    else
        return false;
    return true;
}

bool takeReal(RecordReader& reader, int code, double& value)
{
    if (reader.code() != code)
        return false;
    value = reader.real();
    return true;
}

/// Where a set of values stands: its text, its flags, and the first of its numbers, which are
/// minimum, maximum, increment and then those of its list.
struct SetCodes
{
    int description;
    int flags;
    int numbers;
};

bool takeSet(RecordReader& reader, const SetCodes& codes, KdDbBlockParamValueSet& set)
{
    if (reader.code() == codes.description)
        set.description = reader.text();
    else if (reader.code() == codes.flags)
        set.flags = reader.integer();
    else if (reader.code() == codes.numbers + 3)
        set.values.push_back(reader.real());
    else
        return takeReal(reader, codes.numbers, set.minimum) ||
               takeReal(reader, codes.numbers + 1, set.maximum) ||
               takeReal(reader, codes.numbers + 2, set.increment);
    return true;
}

constexpr SetCodes kOnlySet{307, 96, 141};

template <class Members>
void takeNothing(RecordReader&, Members&)
{
}

void takePoint(RecordReader& reader, BlockPointParameterMembers& parameter)
{
    if (reader.code() == 1011)
        parameter.labelPoint = reader.point();
    else
        takeLabel(reader, 303, 304, parameter.label);
}

void takeLookup(RecordReader& reader, BlockLookupParameterMembers& parameter)
{
    if (reader.code() == 94)
        parameter.actionNode = reader.integer();
    else
        takeLabel(reader, 303, 304, parameter.label);
}

void takeVisibility(RecordReader& reader, BlockVisibilityParameterMembers& parameter)
{
    if (reader.code() == 303)
        parameter.states.push_back(reader.text());
    else
        takeLabel(reader, 301, 302, parameter.label);
}

void takeAlignment(RecordReader& reader, BlockAlignmentParameterMembers& parameter)
{
    if (reader.code() == 280)
        parameter.perpendicular = reader.flag();
}

void takeFlip(RecordReader& reader, BlockFlipParameterMembers& parameter)
{
    switch (reader.code()) {
    case 307:
        parameter.baseStateName = reader.text();
        break;
    case 308:
        parameter.flippedStateName = reader.text();
        break;
    case 1012:
        parameter.labelPoint = reader.point();
        break;
    default:
        takeLabel(reader, 305, 306, parameter.label);
    }
}

void takeLinear(RecordReader& reader, BlockLinearParameterMembers& parameter)
{
    takeLabel(reader, 305, 306, parameter.label) || takeReal(reader, 140, parameter.labelOffset) ||
        takeSet(reader, kOnlySet, parameter.valueSet);
}

void takePolar(RecordReader& reader, BlockPolarParameterMembers& parameter)
{
    takeLabel(reader, 305, 306, parameter.distanceLabel) ||
        takeLabel(reader, 307, 308, parameter.angleLabel) ||
        takeReal(reader, 140, parameter.labelOffset) ||
        takeSet(reader, {309, 96, 141}, parameter.distanceSet) ||
        takeSet(reader, {410, 97, 145}, parameter.angleSet);
}

void takeXY(RecordReader& reader, BlockXYParameterMembers& parameter)
{
    takeLabel(reader, 305, 307, parameter.verticalLabel) ||
        takeLabel(reader, 306, 308, parameter.horizontalLabel) ||
        takeReal(reader, 141, parameter.verticalLabelOffset) ||
        takeReal(reader, 140, parameter.horizontalLabelOffset) ||
        takeSet(reader, {309, 97, 146}, parameter.verticalSet) ||
        takeSet(reader, {410, 96, 142}, parameter.horizontalSet);
}

void takeRotation(RecordReader& reader, BlockRotationParameterMembers& parameter)
{
    if (reader.code() == 1011)
        parameter.baseAnglePoint = reader.point();
    else
        takeLabel(reader, 305, 306, parameter.label) ||
            takeReal(reader, 140, parameter.labelOffset) ||
            takeSet(reader, kOnlySet, parameter.valueSet);
}

void takeConstraint(RecordReader& reader, BlockConstraintParameterMembers& parameter)
{
    takeLabel(reader, 305, 306, parameter.label) || takeReal(reader, 140, parameter.value) ||
        takeSet(reader, {307, 96, 128}, parameter.valueSet);
}

void takeMove(RecordReader& reader, BlockMovingActionMembers& action)
{
    takeReal(reader, 140, action.distanceMultiplier) || takeReal(reader, 141, action.angleOffset) ||
        takeDriver(reader, action, 93);
}

void takeStretch(RecordReader& reader, BlockMovingActionMembers& action)
{
    if (reader.code() == 1011)
        action.frame.push_back(reader.point2d());
    else
        takeMove(reader, action);
}

void takePolarStretch(RecordReader& reader, BlockMovingActionMembers& action)
{
    if (reader.code() == 1011)
        action.frame.push_back(reader.point2d());
    else
        takeReal(reader, 141, action.distanceMultiplier) ||
            takeReal(reader, 140, action.angleOffset) || takeDriver(reader, action, 97);
}

void takeArray(RecordReader& reader, BlockArrayActionMembers& action)
{
    takeReal(reader, 140, action.rowOffset) || takeReal(reader, 141, action.columnOffset) ||
        takeDriver(reader, action, 95);
}

void takeFlipAction(RecordReader& reader, BlockActionMembers& action)
{
    takeDriver(reader, action, 95);
}

/// A column begins with the number of its parameter.
void takeLookupAction(RecordReader& reader, BlockLookupActionMembers& action)
{
    switch (reader.code()) {
    case 94:
        action.columns.push_back({reader.integer(), {}});
        action.drivers.push_back(action.columns.back().parameterNode);
        break;
    case 302:
        action.cells.push_back(reader.text());
        break;
    case 305:
        if (!action.columns.empty())
            action.columns.back().noMatch = reader.text();
        break;
    default:
        break;
    }
}

/// A row for a kind with the parts of its ancestors and of its own.
template <class Element, class Members, auto TakeShared, auto TakeOwn>
constexpr MemberReaderRow element()
{
    return {Element::desc, [](RecordReader& reader, ObjectMembers& members) {
                auto& own = static_cast<Members&>(members);
                while (reader.next()) {
                    if (!TakeShared(reader, own))
                        TakeOwn(reader, own);
                }
            }};
}

// Objects around the elements.

void readGraph(RecordReader& reader, EvalGraphMembers& graph)
{
    while (reader.next()) {
        if (reader.code() != 360)
            continue;
        const KdDbObjectId element = reader.reference();
        if (element.isKindOf(KdDbBlockElement::desc()))
            graph.elements.push_back(element);
    }
}

void readRepresentation(RecordReader& reader, BlockRepresentationMembers& representation)
{
    while (reader.next()) {
        if (reader.code() == 340)
            representation.block = reader.reference();
    }
}

// clang-format off
constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbEvalGraph, EvalGraphMembers, readGraph>(),
    memberReader<KdDbBlockRepresentationData, BlockRepresentationMembers, readRepresentation>(),

    element<KdDbBlockGrip, BlockGripMembers, takeGrip, takeNothing<BlockGripMembers>>(),

    element<KdDbBlockBasepointParameter, Block1PtParameterMembers, take1Pt, takeNothing<Block1PtParameterMembers>>(),
    element<KdDbBlockPointParameter, BlockPointParameterMembers, take1Pt, takePoint>(),
    element<KdDbBlockLookupParameter, BlockLookupParameterMembers, take1Pt, takeLookup>(),
    element<KdDbBlockVisibilityParameter, BlockVisibilityParameterMembers, take1Pt, takeVisibility>(),
    element<KdDbBlockAlignmentParameter, BlockAlignmentParameterMembers, take2Pt, takeAlignment>(),
    element<KdDbBlockFlipParameter, BlockFlipParameterMembers, take2Pt, takeFlip>(),
    element<KdDbBlockLinearParameter, BlockLinearParameterMembers, take2Pt, takeLinear>(),
    element<KdDbBlockPolarParameter, BlockPolarParameterMembers, take2Pt, takePolar>(),
    element<KdDbBlockXYParameter, BlockXYParameterMembers, take2Pt, takeXY>(),
    element<KdDbBlockRotationParameter, BlockRotationParameterMembers, take2Pt, takeRotation>(),
    element<KdDbBlockConstraintParameter, BlockConstraintParameterMembers, take2Pt, takeConstraint>(),

    element<KdDbBlockActionWithBasePt, BlockActionWithBasePtMembers, takeWithBasePt, takeNothing<BlockActionWithBasePtMembers>>(),
    element<KdDbBlockMoveAction, BlockMovingActionMembers, takeAction, takeMove>(),
    element<KdDbBlockStretchAction, BlockMovingActionMembers, takeAction, takeStretch>(),
    element<KdDbBlockPolarStretchAction, BlockMovingActionMembers, takeAction, takePolarStretch>(),
    element<KdDbBlockArrayAction, BlockArrayActionMembers, takeAction, takeArray>(),
    element<KdDbBlockFlipAction, BlockActionMembers, takeAction, takeFlipAction>(),
    element<KdDbBlockLookupAction, BlockLookupActionMembers, takeAction, takeLookupAction>(),
};
// clang-format on

} // namespace

std::span<const MemberReaderRow> blockElementReaders()
{
    return kRows;
}

} // namespace dxf
