#include "support.h"

using namespace blocks_test;
using namespace provider_test;

namespace {

constexpr const wchar_t* kPosition = L"\tGeometry:Position";
constexpr const wchar_t* kName = L"\tMisc:Action name";
constexpr const wchar_t* kType = L"\tMisc:Action type";
constexpr const wchar_t* kMultiplier = L"\tOverrides:Distance multiplier";
constexpr const wchar_t* kAngle = L"\tOverrides:Angle offset";
constexpr const wchar_t* kFrame = L"\tStretch frame:\t\t\t\tVertex";
constexpr const wchar_t* kBaseType = L"\tOverrides:Base type";
constexpr const wchar_t* kBaseOffset = L"\tOverrides:Base offset";
constexpr const wchar_t* kRow = L"\tRows And Columns:Row offset";
constexpr const wchar_t* kColumn = L"\tRows And Columns:Column offset";

class BlockActions : public BlocksTest
{
  protected:
    template <class Entity, class Element, class Fill>
    Entity* show(Fill fill)
    {
        Element* element = addElement<Element>(graph, [&](auto& members) {
            members.nodeId = 1;
            members.name = L"First";
            fill(members);
        });
        auto* entity = add<Entity>();
        change(entity, [&](auto& members) { members.element = element->objectId(); });
        return entity;
    }

    template <class Entity, class Element, class Fill>
    Entity* showAction(Fill fill)
    {
        return show<Entity, Element>([&](auto& members) {
            members.position = {1, 2, 3};
            fill(members);
        });
    }

    static std::vector<Answered> shared(const char* type)
    {
        return {
            {kPosition, "5002 1,2"}, {kName, "5005 First"}, {kType, std::string("5005 ") + type}};
    }

    KdDbEvalGraph* graph = makeDynamic(addBlock(L"DOOR"));
};

constexpr auto kNothing = [](auto&) {};

TEST_F(BlockActions, ThatFlipOrLookUpListWhatAllDo)
{
    auto* flip = showAction<KdDbBlockFlipActionEntity, KdDbBlockFlipAction>(kNothing);
    KdDbBlockFlipActionEntity_Extension flips;
    expectListed(flips, flip, {{kPosition}, {kName}, {kType, true}});
    expectAnswers(flips, flip, shared("Flip"));
    expectRefusals(flips, flip);
    auto* lookup = showAction<KdDbBlockLookupActionEntity, KdDbBlockLookupAction>(kNothing);
    KdDbBlockLookupActionEntity_Extension lookups;
    expectListed(lookups, lookup, {{kPosition}, {kName}, {kType, true}});
    expectAnswers(lookups, lookup, shared("Lookup"));
    expectRefusals(lookups, lookup);
    KdDbBlockActionEntity_Extension all;
    expectListed(all, flip, {{kPosition}, {kName}, {kType, true}});
    expectAnswers(all, lookup, shared("Lookup"));
    expectRefusals(all, flip);
    EXPECT_EQ(ask(flips, lookup, kName).status, 0);
}

TEST_F(BlockActions, ThatMoveTellTheirOverrides)
{
    auto* entity = showAction<KdDbBlockMoveActionEntity, KdDbBlockMoveAction>([](auto& members) {
        members.distanceMultiplier = 2.5;
        members.angleOffset = 0.5;
    });
    KdDbBlockMoveActionEntity_Extension provider;
    expectListed(provider, entity, {{kPosition}, {kMultiplier}, {kAngle}, {kName}, {kType, true}});
    expectAnswers(provider, entity, {{kMultiplier, "5001 2.5"}, {kAngle, "5001 0.5"}});
    expectAnswers(provider, entity, shared("Move"));
    EXPECT_EQ(ask(provider, entity, kFrame).status, 0);
    expectRefusals(provider, entity);
}

const auto kStretch = [](auto& members) {
    members.frame = {{1, 2}, {3, 4}, {5, 6}};
    members.distanceMultiplier = 0.5;
    members.angleOffset = -0.5;
};

TEST_F(BlockActions, ThatStretchTellAllPointsOfTheirFrame)
{
    const std::vector<Listed> listed = {{kPosition}, {kFrame}, {kMultiplier},
                                        {kAngle},    {kName},  {kType, true}};
    const std::vector<Answered> answers = {{kFrame, "5002 1,2", {"5002 3,4", "5002 5,6"}},
                                           {kMultiplier, "5001 0.5"},
                                           {kAngle, "5001 -0.5"}};
    auto* stretch = showAction<KdDbBlockStretchActionEntity, KdDbBlockStretchAction>(kStretch);
    KdDbBlockStretchActionEntity_Extension stretches;
    expectListed(stretches, stretch, listed);
    expectAnswers(stretches, stretch, answers);
    expectAnswers(stretches, stretch, shared("Stretch"));
    expectRefusals(stretches, stretch);
    auto* polar =
        showAction<KdDbBlockPolarStretchActionEntity, KdDbBlockPolarStretchAction>(kStretch);
    KdDbBlockPolarStretchActionEntity_Extension polars;
    expectListed(polars, polar, listed);
    expectAnswers(polars, polar, answers);
    expectAnswers(polars, polar, shared("Polar Stretch"));
    expectRefusals(polars, polar);
}

TEST_F(BlockActions, WithoutAFrameHaveNoPoint)
{
    auto* stretch = showAction<KdDbBlockStretchActionEntity, KdDbBlockStretchAction>(kNothing);
    KdDbBlockStretchActionEntity_Extension provider;
    expectAnswers(provider, stretch, {{kFrame, "5002 0,0"}, {kMultiplier, "5001 1"}});
}

TEST_F(BlockActions, WithABasePointTellWhetherItDepends)
{
    const std::vector<std::string> types{"5005 Dependent", "5005 Independent"};
    const std::vector<Listed> listed = {
        {kPosition}, {kBaseType}, {kBaseOffset}, {kName}, {kType, true}};
    auto* scale = showAction<KdDbBlockScaleActionEntity, KdDbBlockScaleAction>([](auto& members) {
        members.baseOffset = {4, 5, 6};
    });
    KdDbBlockScaleActionEntity_Extension scales;
    expectListed(scales, scale, listed);
    expectAnswers(scales, scale,
                  {{kBaseType, "5005 Dependent", {}, types}, {kBaseOffset, "5002 4,5"}});
    expectAnswers(scales, scale, shared("Scale"));
    expectRefusals(scales, scale);
    auto* rotate = showAction<KdDbBlockRotateActionEntity, KdDbBlockRotateAction>(
        [](auto& members) { members.dependent = false; });
    KdDbBlockRotateActionEntity_Extension rotates;
    expectListed(rotates, rotate, listed);
    expectAnswers(rotates, rotate, {{kBaseType, "5005 Independent", {}, types}});
    expectAnswers(rotates, rotate, shared("Rotate"));
    expectRefusals(rotates, rotate);
    KdDbBlockActionEntityWithBasePt_Extension based;
    expectListed(based, rotate, listed);
    expectAnswers(based, scale, {{kBaseOffset, "5002 4,5"}});
    expectRefusals(based, rotate);
}

TEST_F(BlockActions, ThatRepeatTellTheirOffsets)
{
    auto* entity = showAction<KdDbBlockArrayActionEntity, KdDbBlockArrayAction>([](auto& members) {
        members.rowOffset = 7.5;
        members.columnOffset = 8.5;
        members.drivers = {2};
    });
    KdDbBlockArrayActionEntity_Extension provider;
    const auto listed = [](bool readOnly) {
        return std::vector<Listed>{
            {kPosition}, {kRow, readOnly}, {kColumn, readOnly}, {kName}, {kType, true}};
    };
    expectListed(provider, entity, listed(false));
    expectAnswers(provider, entity, {{kRow, "5001 7.5"}, {kColumn, "5001 8.5"}});
    expectAnswers(provider, entity, shared("Array"));
    expectListed(provider, nullptr, listed(false));
    addElement<KdDbBlockHorizontalConstraintParameter>(graph,
                                                       [](auto& members) { members.nodeId = 2; });
    expectListed(provider, entity, listed(true)); // a constraint decides the distances
    expectRefusals(provider, entity);
}

TEST_F(BlockActions, ThatFollowADistanceKeepTheirOffsetsFree)
{
    auto* entity = showAction<KdDbBlockArrayActionEntity, KdDbBlockArrayAction>(
        [](auto& members) { members.drivers = {2}; });
    addElement<KdDbBlockLinearParameter>(graph, [](auto& members) { members.nodeId = 2; });
    KdDbBlockArrayActionEntity_Extension provider;
    const Listing listing = list(provider, entity);
    EXPECT_FALSE(listing.flags.at(9));
    EXPECT_FALSE(listing.flags.at(10));
}

TEST_F(BlockActions, AreFollowedByGripsThatKnowTheirParameter)
{
    addElement<KdDbBlockLinearParameter>(graph, [](auto& members) {
        members.nodeId = 2;
        members.start = {1, 1, 0};
        members.gripNodes = {0, 1, 0, 0};
    });
    auto* entity = show<KdDbBlockLinearGripEntity, KdDbBlockLinearGrip>([](auto& members) {
        members.location = {5, 7, 9};
        members.cycling = true;
    });
    KdDbBlockGripEntity_Extension provider;
    expectListed(provider, entity,
                 {{L"\tGeometry:Base"},
                  {L"\tMisc:Grip type", true},
                  {L"\tMisc:Parameter type", true},
                  {L"\tMisc:Cycling"},
                  {L"\tGeometry:Base point offset X"},
                  {L"\tGeometry:Base point offset Y"}});
    expectAnswers(provider, entity,
                  {{L"\tGeometry:Base", "5002 5,7"},
                   {L"\tMisc:Grip type", "5005 Linear"},
                   {L"\tMisc:Parameter type", "5005 Linear"},
                   {L"\tMisc:Cycling", "290 true"},
                   {L"\tGeometry:Base point offset X", "5001 4"},
                   {L"\tGeometry:Base point offset Y", "5001 6"},
                   {L"\tProperty Labels:Parameter type", "5005 Linear"}});
    expectRefusals(provider, entity);
}

TEST_F(BlockActions, MayHaveGripsOfNoParameter)
{
    auto* entity = show<KdDbBlockFlipGripEntity, KdDbBlockFlipGrip>([](auto& members) {
        members.location = {5, 7, 9};
    });
    KdDbBlockGripEntity_Extension provider;
    expectAnswers(provider, entity,
                  {{L"\tMisc:Grip type", "5005 Flip"},
                   {L"\tMisc:Parameter type", "5005 "},
                   {L"\tGeometry:Base point offset X", "5001 0"}});
}

} // namespace
