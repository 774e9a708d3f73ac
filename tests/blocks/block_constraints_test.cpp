#include "support.h"

using namespace blocks_test;
using namespace provider_test;

namespace {

// The texts of the library; the defaults, which differ from them, are tested below.
constexpr const wchar_t* kName = L"Constrain:Name";
constexpr const wchar_t* kExpression = L"Constrain:Expression";
constexpr const wchar_t* kValue = L"Constrain:Value";
constexpr const wchar_t* kDescription = L"Constrain:Description";
constexpr const wchar_t* kOffset = L"Geometry:Dim line offset";
constexpr const wchar_t* kBaseX = L"Geometry:Base X";
constexpr const wchar_t* kBaseY = L"Geometry:Base Y";
constexpr const wchar_t* kText = L"Geometry:Text position";
constexpr const wchar_t* kDistances = L"\tValue Set:Dist type";
constexpr const wchar_t* kAngles = L"\tValue Set:Ang type";
constexpr const wchar_t* kShow = L"\tMisc:Show properties";
constexpr const wchar_t* kGrips = L"\tMisc:Number of grips";

const std::vector<std::string> kSets{"5005 None", "5005 Increment", "5005 List"};

class BlockConstraints : public BlocksTest
{
  protected:
    template <class Entity, class Element>
    Entity* show()
    {
        auto* element = addElement<Element>(graph, [](BlockConstraintParameterMembers& members) {
            members.label = {L"d1", L"Clear width"};
            members.expression = L"2 * d2";
            members.value = 12.5;
            members.valueSet.flags = KdDbBlockParamValueSet::kValueList;
            members.textPosition = {1, 2, 3};
            members.dimensionLineOffset = 4.5;
            members.start = {6, 7, 8};
            members.showProperties = false;
            members.gripNodes = {3, 0, 0, 0};
        });
        auto* entity = add<Entity>();
        change(entity, [&](auto& members) { members.element = element->objectId(); });
        return entity;
    }

    static std::vector<Answered> shared(const std::vector<std::string>& grips)
    {
        return {{kName, "5005 d1"},
                {kExpression, "5005 2 * d2"},
                {kValue, "5001 12.5"},
                {kDescription, "5005 Clear width"},
                {kText, "5002 1,2"},
                {kShow, "290 false"},
                {kGrips, "5005 1", {}, grips},
                {L"\tGeometry:\t\t\t\tStart", "5002 6,7"}};
    }

    /// The same for the parameter and the tag of a kind.
    template <class Provider, class Element, class ParameterEntity, class TagEntity>
    void expectBoth(const std::vector<Listed>& listed, const std::vector<Answered>& own,
                    const std::vector<std::string>& grips)
    {
        Provider provider;
        const KdDbEntity* const entities[] = {show<ParameterEntity, Element>(),
                                              show<TagEntity, Element>()};
        for (const KdDbEntity* entity : entities) {
            expectListed(provider, entity, listed);
            expectAnswers(provider, entity, shared(grips));
            expectAnswers(provider, entity, own);
            expectRefusals(provider, entity);
        }
    }

    KdDbEvalGraph* graph = makeDynamic(addBlock(L"DOOR"));
    const std::vector<std::string> upToTwo{"5005 0", "5005 1", "5005 2"};
    const std::vector<std::string> upToOne{"5005 0", "5005 1"};
};

TEST_F(BlockConstraints, AnswerToTheOperationsOfTheBaseClassWhateverTheirKind)
{
    KdDbBlockConstraintTagEntity_Extension provider(0);
    const KdDbEntity* const entities[] = {
        show<KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintParameter>(),
        show<KdDbBlockAngularConstraintParameterEntity, KdDbBlockAngularConstraintParameter>(),
        show<KdDbBlockRadialConstraintTagEntity, KdDbBlockRadialConstraintParameter>()};
    for (const KdDbEntity* entity : entities) {
        EXPECT_EQ(provider.getDistName(entity), L"d1");
        EXPECT_EQ(provider.getDistDesc(entity), L"Clear width");
        EXPECT_EQ(provider.getValSetType(entity), L"List");
        EXPECT_EQ(provider.getTextPosition(entity), (KdGePoint2d{1, 2}));
        EXPECT_EQ(provider.getBasePosition(entity), (KdGePoint2d{6, 7}));
        EXPECT_EQ(provider.getDimlineOffset(entity), 0.0);
    }
    EXPECT_EQ(provider.getDistName(nullptr), L"");
    EXPECT_EQ(provider.getBasePosition(nullptr), (KdGePoint2d{0, 0}));
}

TEST_F(BlockConstraints, OfADistanceTellTheirDimensionLine)
{
    expectBoth<KdDbBlockLinearConstraintTagEntity_Extension, KdDbBlockLinearConstraintParameter,
               KdDbBlockLinearConstraintParameterEntity, KdDbBlockLinearConstraintTagEntity>(
        {{kName},
         {kExpression},
         {kValue, true},
         {kDescription},
         {kOffset},
         {kText},
         {kDistances},
         {kShow},
         {kGrips}},
        {{kOffset, "5001 4.5"}, {kDistances, "5005 List", {}, kSets}}, upToTwo);
}

TEST_F(BlockConstraints, OfAnAngleTellTheirBase)
{
    expectBoth<KdDbBlockAngularConstraintTagEntity_Extension, KdDbBlockAngularConstraintParameter,
               KdDbBlockAngularConstraintParameterEntity, KdDbBlockAngularConstraintTagEntity>(
        {{kName},
         {kExpression},
         {kValue, true},
         {kDescription},
         {kBaseX, true},
         {kBaseY, true},
         {kText},
         {kAngles},
         {kShow},
         {kGrips}},
        {{kBaseX, "5001 6"}, {kBaseY, "5001 7"}, {kAngles, "5005 List", {}, kSets}}, upToTwo);
}

TEST_F(BlockConstraints, OfADiameterTellNoneOfThese)
{
    expectBoth<KdDbBlockDiametricConstraintTagEntity_Extension,
               KdDbBlockDiametricConstraintParameter, KdDbBlockDiametricConstraintParameterEntity,
               KdDbBlockDiametricConstraintTagEntity>({{kName},
                                                       {kExpression},
                                                       {kValue, true},
                                                       {kDescription},
                                                       {kText},
                                                       {kDistances},
                                                       {kShow},
                                                       {kGrips}},
                                                      {{kDistances, "5005 List", {}, kSets}},
                                                      upToTwo);
}

TEST_F(BlockConstraints, OfARadiusHaveOneGripAtMost)
{
    expectBoth<KdDbBlockRadialConstraintTagEntity_Extension, KdDbBlockRadialConstraintParameter,
               KdDbBlockRadialConstraintParameterEntity, KdDbBlockRadialConstraintTagEntity>(
        {{kName},
         {kExpression},
         {kValue, true},
         {kDescription},
         {kText},
         {kDistances},
         {kShow},
         {kGrips}},
        {{kDistances, "5005 List", {}, kSets}}, upToOne);
}

TEST_F(BlockConstraints, AnswerOnlyTheKeysOfTheirKind)
{
    KdDbBlockLinearConstraintTagEntity_Extension linear;
    const auto* entity =
        show<KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintParameter>();
    EXPECT_EQ(ask(linear, entity, kBaseX).status, 0);
    EXPECT_EQ(ask(linear, entity, kAngles).status, 0);
    KdDbBlockRadialConstraintTagEntity_Extension radial;
    EXPECT_EQ(ask(radial, entity, kOffset).status, 0);
}

TEST_F(BlockConstraints, KnowNothingOfConstraintsOfOtherKinds)
{
    KdDbBlockAngularConstraintTagEntity_Extension angular;
    const auto* entity =
        show<KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintParameter>();
    expectAnswers(
        angular, entity,
        {{kName, "5005 "}, {kText, "5002 0,0"}, {kBaseX, "5001 0"}, {kAngles, "5005 ", {}, kSets}});
}

TEST_F(BlockConstraints, OfTheBaseClassHaveNoDimensionLine)
{
    KdDbBlockConstraintTagEntity_Extension base(1);
    const auto* entity =
        show<KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintParameter>();
    expectAnswers(base, entity, {{kName, "5005 d1"}, {kOffset, "5001 0"}});
    EXPECT_EQ(base.kind(), 1);
}

/// Without a library the default texts stand in, and each missing text is complained about.
TEST_F(BlockConstraints, AnswerBothSpellingsOfTheirFlags)
{
    RestorePreviousResource();
    KdDbBlockLinearConstraintTagEntity_Extension provider;
    const auto* entity =
        show<KdDbBlockLinearConstraintTagEntity, KdDbBlockLinearConstraintParameter>();
    const Listing listing = list(provider, entity);
    EXPECT_EQ(std::vector(listing.keys.begin() + 8, listing.keys.end()),
              (std::vector<std::wstring>{L"Constraint:Name", L"Constraint:Expression",
                                         L"Constraint:Value", L"Constraint:Description", kOffset,
                                         kText, kDistances, kShow, kGrips}));
    for (const wchar_t* key : {L"\tMisc:Show properties", L"\tMisc:Show Properties"})
        EXPECT_EQ(ask(provider, entity, key).chain.front(), "290 false");
    for (const wchar_t* key : {L"\tMisc:Number of grips", L"\tMisc:Number of Grips"})
        EXPECT_EQ(ask(provider, entity, key).chain.front(), "5005 1");
    EXPECT_EQ(list(*std::make_unique<KdDbBlockAngularConstraintTagEntity_Extension>(), entity)
                  .keys.at(12),
              L"Geometry:Base point X");
    messages.shown.clear();
    EXPECT_TRUE(SetCurrentResourceName(L"KwQselectUtilRes.dll"));
}

} // namespace
