#include <span>

#include <entities/center_object.h>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;
using testing::ElementsAre;

namespace {

using Wrapper = KdDbSmartCenterObjectWrapper;

class CenterObject : public BlocksTest
{
  protected:
    CenterObject()
    {
        change(reference, [](auto& members) { members.rotation = 0.25; });
    }

    void makeMark(std::vector<KdDbObjectId> sources = {})
    {
        body = follow<KdDbCenterMarkActionBody>(
            reference,
            [](CenterMarkMembers& mark) {
                mark.crossHairLength = L"0.1x";
                mark.crossHairGap = L"0.05x";
                mark.horizontal = {1, 2};
                mark.vertical = {3, 4};
                mark.extensionLinesVisible = true;
                mark.rotation = 0.75;
            },
            sources);
    }
    void makeLine(std::optional<CenterLineSegment> segment,
                  const std::vector<KdDbObjectId>& sources = {})
    {
        body = follow<KdDbCenterLineActionBody>(
            reference,
            [&](CenterLineMembers& line) {
                line.segment = segment;
                line.startOvershoot = 1.5;
                line.endOvershoot = 2.5;
            },
            sources);
    }
    void erase(KdDbObject* object)
    {
        KdDbObject* opened = nullptr;
        ASSERT_EQ(kddbOpenKdDbObject(opened, object->objectId(), KdDb::kForWrite, false), eOk);
        opened->erase();
        opened->close();
    }
    std::string only(const wchar_t* key)
    {
        const Answer answer = ask(provider, reference, key);
        EXPECT_EQ(answer.status, 1);
        EXPECT_EQ(answer.chain.size(), 1u);
        return answer.chain.front();
    }

    KdDbBlockTableRecord* block = addBlock(L"*U1");
    KdDbBlockReference* reference = addReference(block);
    KdDbObject* body = nullptr;
    KdDbBlockReference_Extension provider;
};

TEST_F(CenterObject, ThatIsAMarkListsItsCross)
{
    makeMark();
    expectListed(provider, reference,
                 {{L"General:Associative"},
                  {L"Geometry:Cross Size"},
                  {L"Geometry:Cross Gap"},
                  {L"Geometry:Horizontal Start Extension"},
                  {L"Geometry:Horizontal End Extension"},
                  {L"Geometry:Vertical Start Extension"},
                  {L"Geometry:Vertical End Extension"},
                  {L"Geometry:Extension Lines Visibility"},
                  {L"Misc:Rotation"}});
}

TEST_F(CenterObject, ThatIsALineListsItsEnds)
{
    makeLine(CenterLineSegment{});
    expectListed(provider, reference,
                 {{L"General:Associative"},
                  {L"Geometry:Start Point"},
                  {L"Geometry:End Point"},
                  {L"Geometry:Start Extension"},
                  {L"Geometry:End Extension"}});
}

TEST_F(CenterObject, ThatIsAMarkAnswersWithTheVerticalEndsCrossed)
{
    makeMark({add<KdDbCircle>()->objectId()});
    expectAnswers(provider, reference,
                  {{L"General:Associative", "290 true"},
                   {L"Geometry:Cross Size", "5005 0.1x"},
                   {L"Geometry:Cross Gap", "5005 0.05x"},
                   {L"Geometry:Horizontal Start Extension", "5001 1"},
                   {L"Geometry:Horizontal End Extension", "5001 2"},
                   {L"Geometry:Vertical Start Extension", "5001 4"},
                   {L"Geometry:Vertical End Extension", "5001 3"},
                   {L"Geometry:Extension Lines Visibility", "290 true"},
                   {L"Misc:Rotation", "5004 0.75"}});
}

TEST_F(CenterObject, ThatIsALineAnswersWithoutItsOvershoots)
{
    makeLine(CenterLineSegment{{1, 2, 3}, {4, 5, 6}}, {add<KdDbLine>()->objectId()});
    expectAnswers(provider, reference,
                  {{L"General:Associative", "290 true"},
                   {L"Geometry:Start Point", "5009 1,2,3"},
                   {L"Geometry:End Point", "5009 4,5,6"},
                   {L"Geometry:Start Extension", "5001 1.5"},
                   {L"Geometry:End Extension", "5001 2.5"}});
}

TEST_F(CenterObject, ThatIsALineTakesTheLineOfItsBlockIfNothingElseSays)
{
    auto* drawn = new KdDbLine;
    drawn->edit().start = {0, 0, 0};
    drawn->edit().end = {10, 0, 0};
    KdDbBlockTableRecord* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, block->objectId(), KdDb::kForWrite), eOk);
    opened->appendEntity(drawn);
    opened->close();
    change(reference, [](auto& members) {
        members.rotation = 0.0;
        members.position = {100, 50, 0};
    });
    makeLine(std::nullopt);
    EXPECT_EQ(only(L"Geometry:Start Point"), "5009 101.5,50,0");
    EXPECT_EQ(only(L"Geometry:End Point"), "5009 107.5,50,0");
}

TEST_F(CenterObject, IsRotatedLikeItsReferenceIfNothingElseSays)
{
    follow<KdDbCenterMarkActionBody>(reference, [](auto&) {});
    EXPECT_EQ(only(L"Misc:Rotation"), "5004 0.25");
}

TEST_F(CenterObject, FollowsNothingOnceItsSourcesAreGone)
{
    auto* circle = add<KdDbCircle>();
    auto* other = add<KdDbCircle>();
    makeMark({circle->objectId(), other->objectId()});
    EXPECT_EQ(only(L"General:Associative"), "290 true");
    erase(other);
    EXPECT_EQ(only(L"General:Associative"), "290 false"); // a mark needs them all
}

TEST_F(CenterObject, ThatIsALineFollowsWhatIsLeft)
{
    auto* first = add<KdDbLine>();
    auto* second = add<KdDbLine>();
    makeLine(CenterLineSegment{}, {first->objectId(), second->objectId()});
    erase(first);
    EXPECT_EQ(only(L"General:Associative"), "290 true");
    erase(second);
    EXPECT_EQ(only(L"General:Associative"), "290 false");
}

TEST_F(CenterObject, OfTheOtherKindReadsAsNothing)
{
    makeLine(CenterLineSegment{{1, 2, 3}, {4, 5, 6}});
    expectAnswers(provider, reference,
                  {{L"Geometry:Cross Size", "5005 "},
                   {L"Geometry:Horizontal Start Extension", "5001 0"},
                   {L"Geometry:Extension Lines Visibility", "290 false"}});
    reference = addReference(addBlock(L"*U2"));
    makeMark();
    expectAnswers(provider, reference,
                  {{L"Geometry:Start Point", "5009 0,0,0"}, {L"Geometry:End Extension", "5001 0"}});
}

TEST_F(CenterObject, IsNoneWithoutAnAction)
{
    EXPECT_EQ(Wrapper::getCenterType(reference->objectId()), Wrapper::kNone);
    EXPECT_EQ(Wrapper::getCenterType({}), Wrapper::kNone);
    EXPECT_EQ(Wrapper::getCenterType(block->objectId()), Wrapper::kNone);
    expectAnswers(provider, reference,
                  {{L"General:Associative", "290 false"},
                   {L"Geometry:Cross Gap", "5005 "},
                   {L"Geometry:Start Point", "5009 0,0,0"},
                   {L"Misc:Rotation", "5004 0.25"}});
}

TEST_F(CenterObject, ThatLostItsActionIsAReferenceThatKeepsItsOwnRotationToItself)
{
    makeMark();
    erase(body);
    EXPECT_EQ(Wrapper::getCenterType(reference->objectId()),
              Wrapper::kCenterMark | Wrapper::kDetached);
    EXPECT_EQ(list(provider, reference).keys.at(8), L"Geometry:Position");
    EXPECT_EQ(only(L"Misc:Rotation"), "5004 0");
}

TEST_F(CenterObject, IsFoundBehindACopyThatIsInNoDrawing)
{
    makeMark();
    KdDbBlockReference copy;
    const std::span<const KdDbObjectId> reactors = reference->reactors();
    copy.edit().links.edit().reactors.assign(reactors.begin(), reactors.end());
    EXPECT_EQ(KdSmartCenterDbxUtils::getSmartCenterObjIdFromObj(&copy), reference->objectId());
    EXPECT_EQ(ask(provider, &copy, L"Geometry:Cross Size").chain.front(), "5005 0.1x");
    EXPECT_TRUE(KdSmartCenterDbxUtils::getSmartCenterObjIdFromObj(nullptr).isNull());
}

} // namespace
