#include <numbers>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;

namespace {

constexpr const wchar_t* kType = L"\tProperty Labels:Parameter type";
constexpr const wchar_t* kShow = L"\tMisc:Show properties";
constexpr const wchar_t* kChain = L"\tMisc:Chain Actions";
constexpr const wchar_t* kGrips = L"\tMisc:Number of grips";
constexpr const wchar_t* kBase = L"\tGeometry:\t\t\t\tBase";
constexpr const wchar_t* kStart = L"\tGeometry:\t\t\t\tStart";
constexpr const wchar_t* kEnd = L"\tGeometry:\t\t\t\tEnd";
constexpr const wchar_t* kLabel = L"\tGeometry:\t\t\t\tLabel";

const std::vector<std::string> kNone;
const std::vector<std::string> kSets{"5005 None", "5005 Increment", "5005 List"};
const std::vector<std::string> kOneGrip{"5005 0", "5005 1"};
const std::vector<std::string> kTwoGrips{"5005 0", "5005 1", "5005 2"};
const std::vector<std::string> kFourGrips{"5005 0", "5005 1", "5005 2", "5005 4"};

/// A graph, a parameter in it, and the entity that shows the parameter.
class BlockParameters : public BlocksTest
{
  protected:
    template <class Entity, class Element, class Fill>
    Entity* show(Fill fill)
    {
        Element* element = addElement<Element>(graph, [&](auto& members) {
            members.nodeId = 1;
            members.showProperties = false;
            members.chainActions = true;
            members.gripNodes = {0, 5, 0, 6};
            fill(members);
        });
        auto* entity = add<Entity>();
        change(entity, [&](auto& members) { members.element = element->objectId(); });
        return entity;
    }

    /// The rows that all parameters answer.
    static std::vector<Answered> shared(const char* type, const std::vector<std::string>& grips)
    {
        return {{kType, std::string("5005 ") + type},
                {kShow, "290 false"},
                {kChain, "290 true"},
                {kGrips, "5005 2", kNone, grips}};
    }

    KdDbEvalGraph* graph = makeDynamic(addBlock(L"DOOR"));
};

void onePoint(Block1PtParameterMembers& members)
{
    members.point = {3, 4, 5};
}

/// From (1,2) to (4,6): 5 long.
void twoPoints(Block2PtParameterMembers& members)
{
    members.start = {1, 2, 9};
    members.end = {4, 6, 9};
}

TEST_F(BlockParameters, OfABasePointListNothingElse)
{
    auto* entity = show<KdDbBlockBasepointParameterEntity, KdDbBlockBasepointParameter>(onePoint);
    KdDbBlockBasepointParameterEntity_Extension provider;
    expectListed(provider, entity, {{kBase}});
    expectAnswers(provider, entity, {{kBase, "5002 3,4"}});
    expectAnswers(provider, entity, shared("Base Point", kFourGrips));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfAPointTellItsLabel)
{
    auto* entity = show<KdDbBlockPointParameterEntity, KdDbBlockPointParameter>([](auto& members) {
        onePoint(members);
        members.label = {L"Knob", L"Where it turns"};
        members.labelPoint = {6, 7, 8};
    });
    KdDbBlockPointParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Positions name"},
                  {L"\tProperty Labels:Positions description"},
                  {kType, true},
                  {kBase},
                  {kLabel},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Positions name", "5005 Knob"},
                   {L"\tProperty Labels:Positions description", "5005 Where it turns"},
                   {kBase, "5002 3,4"},
                   {kLabel, "5002 6,7"}});
    expectAnswers(provider, entity, shared("Point", kOneGrip));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfALookupTellTheirAction)
{
    addElement<KdDbBlockLookupAction>(graph, [](auto& members) {
        members.nodeId = 9;
        members.name = L"Sizes";
    });
    auto* entity =
        show<KdDbBlockLookupParameterEntity, KdDbBlockLookupParameter>([](auto& members) {
            onePoint(members);
            members.label = {L"Size", L"By table"};
            members.actionNode = 9;
        });
    KdDbBlockLookupParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Lookup name"},
                  {L"\tProperty Labels:Lookup description"},
                  {kType, true},
                  {kBase},
                  {kShow},
                  {kChain},
                  {kGrips},
                  {L"\tMisc:Lookup action", true}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Lookup name", "5005 Size"},
                   {L"\tProperty Labels:Lookup description", "5005 By table"},
                   {kBase, "5002 3,4"},
                   {L"\tMisc:Lookup action", "5005 Sizes"}});
    expectAnswers(provider, entity, shared("Lookup", kOneGrip));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfVisibilityTellTheirLabel)
{
    auto* entity =
        show<KdDbBlockVisibilityParameterEntity, KdDbBlockVisibilityParameter>([](auto& members) {
            onePoint(members);
            members.label = {L"View", L"What shows"};
        });
    KdDbBlockVisibilityParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Visibility name"},
                  {L"\tProperty Labels:Visibility description"},
                  {kType, true},
                  {kBase},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Visibility name", "5005 View"},
                   {L"\tProperty Labels:Visibility description", "5005 What shows"},
                   {kBase, "5002 3,4"}});
    expectAnswers(provider, entity, shared("Visibility", kOneGrip));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfAnAlignmentListNoFlags)
{
    auto* entity =
        show<KdDbBlockAlignmentParameterEntity, KdDbBlockAlignmentParameter>([](auto& members) {
            twoPoints(members);
            members.perpendicular = true;
        });
    KdDbBlockAlignmentParameterEntity_Extension provider;
    expectListed(
        provider, entity,
        {{kType, true}, {kBase}, {L"\tGeometry:Alignment angle"}, {L"\tMisc:Alignment type"}});
    const std::vector<std::string> types{"5005 tangnet", "5005 perpendicular"};
    expectAnswers(provider, entity,
                  {{kBase, "5002 1,2"},
                   {kStart, "5002 1,2"},
                   {L"\tGeometry:Alignment angle", "5001 0.927295"},
                   {L"\tMisc:Alignment type", "5005 perpendicular", kNone, types}});
    expectAnswers(provider, entity, shared("Alignment", kOneGrip));
    auto* tangent =
        show<KdDbBlockAlignmentParameterEntity, KdDbBlockAlignmentParameter>([](auto&) {});
    expectAnswers(provider, tangent, {{L"\tMisc:Alignment type", "5005 tangnet", kNone, types}});
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfAFlipTellTheirStates)
{
    auto* entity = show<KdDbBlockFlipParameterEntity, KdDbBlockFlipParameter>([](auto& members) {
        twoPoints(members);
        members.label = {L"Side", L"Left or right"};
        members.baseStateName = L"Left";
        members.flippedStateName = L"Right";
        members.labelPoint = {6, 7, 8};
    });
    KdDbBlockFlipParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Flip name"},
                  {L"\tProperty Labels:Flip description"},
                  {L"\tProperty Labels:Base state name"},
                  {L"\tProperty Labels:Fliped state name"},
                  {kType, true},
                  {kBase},
                  {kEnd},
                  {kLabel},
                  {L"\tGeometry:Angle"},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Flip name", "5005 Side"},
                   {L"\tProperty Labels:Flip description", "5005 Left or right"},
                   {L"\tProperty Labels:Base state name", "5005 Left"},
                   {L"\tProperty Labels:Fliped state name", "5005 Right"},
                   {kBase, "5002 1,2"},
                   {kEnd, "5002 4,6"},
                   {kLabel, "5002 6,7"},
                   {L"\tGeometry:Angle", "5001 0.927295"}});
    expectAnswers(provider, entity, shared("Flip", kOneGrip));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfADistanceTellTheirValues)
{
    auto* entity =
        show<KdDbBlockLinearParameterEntity, KdDbBlockLinearParameter>([](auto& members) {
            twoPoints(members);
            members.label = {L"Width", L"Clear"};
            members.labelOffset = -6.5;
            members.valueSet.flags = KdDbBlockParamValueSet::kIncrement;
            members.basePosition = 1;
        });
    KdDbBlockLinearParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Distance name"},
                  {L"\tProperty Labels:Distance description"},
                  {kType, true},
                  {kStart},
                  {kEnd},
                  {L"\tGeometry:Label offset"},
                  {L"\tGeometry:Distance"},
                  {L"\tGeometry:Angle", true},
                  {L"\tValue Set:Dist type"},
                  {L"\tMisc:Base position"},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(
        provider, entity,
        {{L"\tProperty Labels:Distance name", "5005 Width"},
         {L"\tProperty Labels:Distance description", "5005 Clear"},
         {kStart, "5002 1,2"},
         {kEnd, "5002 4,6"},
         {L"\tGeometry:Label offset", "5001 -6.5"},
         {L"\tGeometry:Distance", "5001 5"},
         {L"\tGeometry:Angle", "5001 0.927295"},
         {L"\tValue Set:Dist type", "5005 Increment", kNone, kSets},
         {L"\tMisc:Base position", "5005 Midpoint", kNone, {"5005 Startpoint", "5005 Midpoint"}}});
    expectAnswers(provider, entity, shared("Linear", kTwoGrips));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfADistanceAndAnAngleTellBoth)
{
    auto* entity = show<KdDbBlockPolarParameterEntity, KdDbBlockPolarParameter>([](auto& members) {
        twoPoints(members);
        members.distanceLabel = {L"Reach", L"How far"};
        members.angleLabel = {L"Direction", L"Where to"};
        members.labelOffset = 2.5;
        members.distanceSet.flags = KdDbBlockParamValueSet::kValueList;
    });
    KdDbBlockPolarParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Distance name"},
                  {L"\tProperty Labels:Angle name"},
                  {L"\tProperty Labels:Distance description"},
                  {L"\tProperty Labels:Angle description"},
                  {kType, true},
                  {kStart},
                  {kEnd},
                  {L"\tGeometry:Label offset"},
                  {L"\tGeometry:Distance"},
                  {L"\tGeometry:Angle"},
                  {L"\tValue Set:Dist type"},
                  {L"\tValue Set:Ang type"},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Distance name", "5005 Reach"},
                   {L"\tProperty Labels:Angle name", "5005 Direction"},
                   {L"\tProperty Labels:Distance description", "5005 How far"},
                   {L"\tProperty Labels:Angle description", "5005 Where to"},
                   {kStart, "5002 1,2"},
                   {kEnd, "5002 4,6"},
                   {L"\tGeometry:Label offset", "5001 2.5"},
                   {L"\tGeometry:Distance", "5001 5"},
                   {L"\tGeometry:Angle", "5001 0.927295"},
                   {L"\tValue Set:Dist type", "5005 List", kNone, kSets},
                   {L"\tValue Set:Ang type", "5005 None", kNone, kSets}});
    expectAnswers(provider, entity, shared("Polar", kTwoGrips));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfARotationMeasureFromTheirBaseAngle)
{
    auto* entity =
        show<KdDbBlockRotationParameterEntity, KdDbBlockRotationParameter>([](auto& members) {
            members.end = {0, 5, 0};
            members.baseAnglePoint = {-2, 0, 0};
            members.label = {L"Swing", L"Opening"};
            members.labelOffset = 1.5;
            members.valueSet.flags =
                KdDbBlockParamValueSet::kIncrement | KdDbBlockParamValueSet::kValueList;
        });
    KdDbBlockRotationParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Angle name"},
                  {L"\tProperty Labels:Angle description"},
                  {kType, true},
                  {kBase},
                  {L"\tGeometry:Radius"},
                  {L"\tGeometry:Label offset"},
                  {L"\tGeometry:Base angle"},
                  {L"\tGeometry:Angle"},
                  {L"\tValue Set:Ang type"},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Angle name", "5005 Swing"},
                   {L"\tProperty Labels:Angle description", "5005 Opening"},
                   {kBase, "5002 0,0"},
                   {L"\tGeometry:Radius", "5001 5"},
                   {L"\tGeometry:Label offset", "5001 1.5"},
                   {L"\tGeometry:Base angle", "5001 3.14159"},
                   {L"\tGeometry:Angle", "5001 4.71239"},
                   {L"\tValue Set:Ang type", "5005 List", kNone, kSets}}); // with an increment, too
    expectAnswers(provider, entity, shared("Rotation", kOneGrip));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfBothDirectionsTellEach)
{
    auto* entity = show<KdDbBlockXYParameterEntity, KdDbBlockXYParameter>([](auto& members) {
        members.start = {4, 6, 0};
        members.end = {1, 2, 0};
        members.horizontalLabel = {L"Across", L"Left to right"};
        members.verticalLabel = {L"Up", L"From the floor"};
        members.horizontalLabelOffset = 1.5;
        members.verticalLabelOffset = 2.5;
        members.horizontalSet.flags = KdDbBlockParamValueSet::kIncrement;
        members.verticalSet.flags = KdDbBlockParamValueSet::kValueList;
    });
    KdDbBlockXYParameterEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tProperty Labels:Hor distance name"},
                  {L"\tProperty Labels:Ver distance name"},
                  {L"\tProperty Labels:Hor distance desciption"},
                  {L"\tProperty Labels:Ver distance description"},
                  {kType, true},
                  {kBase},
                  {kEnd},
                  {L"\tGeometry:Hor label offset"},
                  {L"\tGeometry:Ver label offset"},
                  {L"\tGeometry:Hor distance"},
                  {L"\tGeometry:Ver distance"},
                  {L"\tValue Set:Hor type"},
                  {L"\tValue Set:Ver type"},
                  {kShow},
                  {kChain},
                  {kGrips}});
    expectAnswers(provider, entity,
                  {{L"\tProperty Labels:Hor distance name", "5005 Across"},
                   {L"\tProperty Labels:Ver distance name", "5005 Up"},
                   {L"\tProperty Labels:Hor distance desciption", "5005 Left to right"},
                   {L"\tProperty Labels:Ver distance description", "5005 From the floor"},
                   {kBase, "5002 4,6"},
                   {kEnd, "5002 1,2"},
                   {L"\tGeometry:Hor label offset", "5001 1.5"},
                   {L"\tGeometry:Ver label offset", "5001 2.5"},
                   {L"\tGeometry:Hor distance", "5001 3"},
                   {L"\tGeometry:Ver distance", "5001 4"},
                   {L"\tValue Set:Hor type", "5005 Increment", kNone, kSets},
                   {L"\tValue Set:Ver type", "5005 List", kNone, kSets}});
    expectAnswers(provider, entity, shared("XY", kFourGrips));
    expectRefusals(provider, entity);
}

TEST_F(BlockParameters, OfTheBaseClassesListWhatTheirKindsShare)
{
    auto* point = show<KdDbBlockPointParameterEntity, KdDbBlockPointParameter>(onePoint);
    auto* linear = show<KdDbBlockLinearParameterEntity, KdDbBlockLinearParameter>(twoPoints);
    KdDbBlockElementEntity_Extension element;
    expectListed(element, point, {{kType, true}});
    expectAnswers(element, point, {{kType, "5005 Point"}});
    KdDbBlockParameterEntity_Extension parameter;
    expectListed(parameter, point, {{kType, true}, {kShow}, {kChain}, {kGrips}});
    expectAnswers(parameter, point, shared("Point", kOneGrip));
    KdDbBlock1PtParameterEntity_Extension onePt;
    expectListed(onePt, point, {{kType, true}, {kBase}, {kShow}, {kChain}, {kGrips}});
    expectAnswers(onePt, point, {{kBase, "5002 3,4"}});
    EXPECT_EQ(ask(onePt, linear, kType).status, 0);
    KdDbBlock2PtParameterEntity_Extension twoPt;
    expectListed(twoPt, linear, {{kType, true}, {kStart}, {kEnd}, {kShow}, {kChain}, {kGrips}});
    expectAnswers(twoPt, linear, {{kStart, "5002 1,2"}, {kEnd, "5002 4,6"}});
    for (KdDbEntityPE* provider :
         std::initializer_list<KdDbEntityPE*>{&element, &parameter, &onePt})
        expectRefusals(*provider, point);
    expectRefusals(twoPt, linear);
}

TEST_F(BlockParameters, WithoutAnElementReadAsOneWithNothingSet)
{
    KdDbBlockLinearParameterEntity lost;
    KdDbBlockLinearParameterEntity_Extension provider;
    expectAnswers(provider, &lost,
                  {{L"\tProperty Labels:Distance name", "5005 "},
                   {L"\tGeometry:Distance", "5001 0"},
                   {kShow, "290 true"}});
}

} // namespace
