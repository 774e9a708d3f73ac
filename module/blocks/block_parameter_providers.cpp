#include <blocks/block_element_providers.h>

using namespace block_elements;

namespace {

using Alignment = KdDbBlockAlignmentParameter;
using Flip = KdDbBlockFlipParameter;
using Linear = KdDbBlockLinearParameter;
using Lookup = KdDbBlockLookupParameter;
using Point = KdDbBlockPointParameter;
using Polar = KdDbBlockPolarParameter;
using Rotation = KdDbBlockRotationParameter;
using Visibility = KdDbBlockVisibilityParameter;
using XY = KdDbBlockXYParameter;

constexpr ResourceText kAlignmentTypes[] = {{78121, L"tangnet"}, {78122, L"perpendicular"}};
constexpr ResourceText kBasePositions[] = {{78091, L"Startpoint"}, {78092, L"Midpoint"}};

/// Makes a constant table a run.
template <const auto& Rows>
std::span<const PropertyRow> run()
{
    return Rows;
}

// clang-format off
constexpr PropertyRow kPointLabels[] = {
    {{78076, L"\tProperty Labels:Positions name"},         editable, ResBuf::kString,  labelName<&Point::label>},
    {{78077, L"\tProperty Labels:Positions description"},  editable, ResBuf::kString,  labelDescription<&Point::label>},
};
constexpr PropertyRow kPointLabelPoint[] = {
    {{78078, L"\tGeometry:\t\t\t\tLabel"},                 editable, ResBuf::kPoint2d, flatPoint<&Point::labelPoint>},
};

constexpr PropertyRow kLookupLabels[] = {
    {{78130, L"\tProperty Labels:Lookup name"},            editable, ResBuf::kString,  labelName<&Lookup::label>},
    {{78131, L"\tProperty Labels:Lookup description"},     editable, ResBuf::kString,  labelDescription<&Lookup::label>},
};
constexpr PropertyRow kLookupAction[] = {
    {{78132, L"\tMisc:Lookup action"},                     derived,  ResBuf::kString,  element<&Lookup::actionName>},
};

constexpr PropertyRow kVisibilityLabels[] = {
    {{78128, L"\tProperty Labels:Visibility name"},        editable, ResBuf::kString,  labelName<&Visibility::label>},
    {{78129, L"\tProperty Labels:Visibility description"}, editable, ResBuf::kString,  labelDescription<&Visibility::label>},
};

constexpr PropertyRow kAlignmentRows[] = {
    {{78119, L"\tGeometry:Alignment angle"},               editable, ResBuf::kReal,    element<&Alignment::angle>},
    {{78120, L"\tMisc:Alignment type"},                    editable, ResBuf::kString,  nameOf<&Alignment::isPerpendicular, kAlignmentTypes>, namesOf<kAlignmentTypes>},
};

constexpr PropertyRow kFlipLabels[] = {
    {{78123, L"\tProperty Labels:Flip name"},              editable, ResBuf::kString,  labelName<&Flip::label>},
    {{78124, L"\tProperty Labels:Flip description"},       editable, ResBuf::kString,  labelDescription<&Flip::label>},
    {{78125, L"\tProperty Labels:Base state name"},        editable, ResBuf::kString,  element<&Flip::baseStateName>},
    {{78126, L"\tProperty Labels:Fliped state name"},      editable, ResBuf::kString,  element<&Flip::flippedStateName>}, // spelled as intended
};
constexpr PropertyRow kFlipGeometry[] = {
    {{78078, L"\tGeometry:\t\t\t\tLabel"},                 editable, ResBuf::kPoint2d, flatPoint<&Flip::labelPoint>},
    {{78127, L"\tGeometry:Angle"},                         editable, ResBuf::kReal,    element<&Flip::angle>},
};

constexpr PropertyRow kLinearLabels[] = {
    {{78081, L"\tProperty Labels:Distance name"},          editable, ResBuf::kString,  labelName<&Linear::label>},
    {{78082, L"\tProperty Labels:Distance description"},   editable, ResBuf::kString,  labelDescription<&Linear::label>},
};
constexpr PropertyRow kLinearRows[] = {
    {{78083, L"\tGeometry:Label offset"},                  editable, ResBuf::kReal,    element<&Linear::labelOffset>},
    {{78084, L"\tGeometry:Distance"},                      editable, ResBuf::kReal,    element<&Linear::distance>},
    {{78085, L"\tGeometry:Angle"},                         derived,  ResBuf::kReal,    element<&Linear::angle>},
    {{78086, L"\tValue Set:Dist type"},                    editable, ResBuf::kString,  valueSet<&Linear::valueSet>, valueSetNames},
    {{78087, L"\tMisc:Base position"},                     editable, ResBuf::kString,  nameOf<&Linear::basePosition, kBasePositions>, namesOf<kBasePositions>},
};

constexpr PropertyRow kPolarLabels[] = {
    {{78093, L"\tProperty Labels:Distance name"},          editable, ResBuf::kString,  labelName<&Polar::distanceLabel>},
    {{78094, L"\tProperty Labels:Angle name"},             editable, ResBuf::kString,  labelName<&Polar::angleLabel>},
    {{78095, L"\tProperty Labels:Distance description"},   editable, ResBuf::kString,  labelDescription<&Polar::distanceLabel>},
    {{78096, L"\tProperty Labels:Angle description"},      editable, ResBuf::kString,  labelDescription<&Polar::angleLabel>},
};
constexpr PropertyRow kPolarRows[] = {
    {{78097, L"\tGeometry:Label offset"},                  editable, ResBuf::kReal,    element<&Polar::labelOffset>},
    {{78098, L"\tGeometry:Distance"},                      editable, ResBuf::kReal,    element<&Polar::distance>},
    {{78099, L"\tGeometry:Angle"},                         editable, ResBuf::kReal,    element<&Polar::angle>},
    {{78100, L"\tValue Set:Dist type"},                    editable, ResBuf::kString,  valueSet<&Polar::distanceSet>, valueSetNames},
    {{78101, L"\tValue Set:Ang type"},                     editable, ResBuf::kString,  valueSet<&Polar::angleSet>,    valueSetNames},
};

constexpr PropertyRow kRotationLabels[] = {
    {{78112, L"\tProperty Labels:Angle name"},             editable, ResBuf::kString,  labelName<&Rotation::label>},
    {{78113, L"\tProperty Labels:Angle description"},      editable, ResBuf::kString,  labelDescription<&Rotation::label>},
};
constexpr PropertyRow kRotationRows[] = {
    {{78114, L"\tGeometry:Radius"},                        editable, ResBuf::kReal,    element<&Rotation::distance>},
    {{78115, L"\tGeometry:Label offset"},                  editable, ResBuf::kReal,    element<&Rotation::labelOffset>},
    {{78116, L"\tGeometry:Base angle"},                    editable, ResBuf::kReal,    element<&Rotation::baseAngle>},
    {{78117, L"\tGeometry:Angle"},                         editable, ResBuf::kReal,    element<&Rotation::rotation>},
    {{78118, L"\tValue Set:Ang type"},                     editable, ResBuf::kString,  valueSet<&Rotation::valueSet>, valueSetNames},
};

constexpr PropertyRow kXYLabels[] = {
    {{78102, L"\tProperty Labels:Hor distance name"},        editable, ResBuf::kString, labelName<&XY::horizontalLabel>},
    {{78103, L"\tProperty Labels:Ver distance name"},        editable, ResBuf::kString, labelName<&XY::verticalLabel>},
    {{78104, L"\tProperty Labels:Hor distance desciption"},  editable, ResBuf::kString, labelDescription<&XY::horizontalLabel>}, // spelled as intended
    {{78105, L"\tProperty Labels:Ver distance description"}, editable, ResBuf::kString, labelDescription<&XY::verticalLabel>},
};
constexpr PropertyRow kXYRows[] = {
    {{78106, L"\tGeometry:Hor label offset"},              editable, ResBuf::kReal,    element<&XY::horizontalLabelOffset>},
    {{78107, L"\tGeometry:Ver label offset"},              editable, ResBuf::kReal,    element<&XY::verticalLabelOffset>},
    {{78108, L"\tGeometry:Hor distance"},                  editable, ResBuf::kReal,    element<&XY::horizontalDistance>},
    {{78109, L"\tGeometry:Ver distance"},                  editable, ResBuf::kReal,    element<&XY::verticalDistance>},
    {{78110, L"\tValue Set:Hor type"},                     editable, ResBuf::kString,  valueSet<&XY::horizontalSet>, valueSetNames},
    {{78111, L"\tValue Set:Ver type"},                     editable, ResBuf::kString,  valueSet<&XY::verticalSet>,   valueSetNames},
};

// What each class lists, in its order.
constexpr RowRun kElement[] = {typeRows};
constexpr RowRun kParameter[] = {typeRows, parameterRows};
constexpr RowRun kOnePoint[] = {typeRows, baseRows, parameterRows};
constexpr RowRun kTwoPoint[] = {typeRows, twoPointRows, parameterRows};
constexpr RowRun kBasepoint[] = {baseRows};
constexpr RowRun kPoint[] = {run<kPointLabels>, typeRows, baseRows, run<kPointLabelPoint>, parameterRows};
constexpr RowRun kLookup[] = {run<kLookupLabels>, typeRows, baseRows, parameterRows, run<kLookupAction>};
constexpr RowRun kVisibility[] = {run<kVisibilityLabels>, typeRows, baseRows, parameterRows};
constexpr RowRun kAlignment[] = {typeRows, baseRows, run<kAlignmentRows>};
constexpr RowRun kFlip[] = {run<kFlipLabels>, typeRows, baseRows, endRows, run<kFlipGeometry>, parameterRows};
constexpr RowRun kLinear[] = {run<kLinearLabels>, typeRows, twoPointRows, run<kLinearRows>, parameterRows};
constexpr RowRun kPolar[] = {run<kPolarLabels>, typeRows, twoPointRows, run<kPolarRows>, parameterRows};
constexpr RowRun kRotation[] = {run<kRotationLabels>, typeRows, baseRows, run<kRotationRows>, parameterRows};
constexpr RowRun kXY[] = {run<kXYLabels>, typeRows, baseRows, endRows, run<kXYRows>, parameterRows};
// clang-format on

} // namespace

#define KW_LISTED(Provider, runs)                                                                  \
    std::span<const RowRun> Provider::listed()                                                     \
    {                                                                                              \
        return runs;                                                                               \
    }
KW_LISTED(KdDbBlockElementEntity_Extension, kElement)
KW_LISTED(KdDbBlockParameterEntity_Extension, kParameter)
KW_LISTED(KdDbBlock1PtParameterEntity_Extension, kOnePoint)
KW_LISTED(KdDbBlock2PtParameterEntity_Extension, kTwoPoint)
KW_LISTED(KdDbBlockBasepointParameterEntity_Extension, kBasepoint)
KW_LISTED(KdDbBlockPointParameterEntity_Extension, kPoint)
KW_LISTED(KdDbBlockLookupParameterEntity_Extension, kLookup)
KW_LISTED(KdDbBlockVisibilityParameterEntity_Extension, kVisibility)
KW_LISTED(KdDbBlockAlignmentParameterEntity_Extension, kAlignment)
KW_LISTED(KdDbBlockFlipParameterEntity_Extension, kFlip)
KW_LISTED(KdDbBlockLinearParameterEntity_Extension, kLinear)
KW_LISTED(KdDbBlockPolarParameterEntity_Extension, kPolar)
KW_LISTED(KdDbBlockRotationParameterEntity_Extension, kRotation)
KW_LISTED(KdDbBlockXYParameterEntity_Extension, kXY)
