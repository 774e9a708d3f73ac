#include "support.h"

#include <entities/leader.h>
#include <entities/mleader.h>

namespace {

using namespace entity_test;
using testing::ElementsAre;

class Leader : public testing::Test
{
  protected:
    Leader() { leader.edit().vertices = {{1, 2, 3}, {4, -5, 3}, {0, 7, 3}}; }

    KdDbLeader leader;
};

TEST_F(Leader, RunsThroughItsVertices)
{
    EXPECT_EQ(leader.numVertices(), 3);
    EXPECT_EQ(leader.vertexAt(1), (KdGePoint3d{4, -5, 3}));
    KdGePoint3d point;
    EXPECT_EQ(leader.getStartPoint(point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(leader.getEndPoint(point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{0, 7, 3}));
    EXPECT_FALSE(leader.isClosed());
    KdArray<KdGePoint3d> grips;
    EXPECT_EQ(leader.getGripPoints(grips), eOk);
    ASSERT_EQ(grips.length(), 3);
    EXPECT_EQ(grips[2], (KdGePoint3d{0, 7, 3}));
    KdGeExtents3d box;
    EXPECT_EQ(leader.getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{0, -5, 3}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{4, 7, 3}));
}

TEST_F(Leader, HasNoEndsWithoutVertices)
{
    leader.edit().vertices.clear();
    KdGePoint3d point{9, 9, 9};
    KdGeExtents3d box;
    EXPECT_EQ(leader.getStartPoint(point), eNotApplicable);
    EXPECT_EQ(leader.getEndPoint(point), eNotApplicable);
    EXPECT_EQ(point, (KdGePoint3d{9, 9, 9}));
    EXPECT_EQ(leader.getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
}

TEST_F(Leader, TakesItsVariablesFromItselfBeforeTheInitialOnes)
{
    EXPECT_EQ(leader.dimasz(), 0.18);
    leader.edit().dimension.overrides.set(KdDbDimVar::dimasz, 6.0);
    EXPECT_EQ(leader.dimasz(), 6.0);
    EXPECT_EQ(leader.dimscale(), 1.0);
    EXPECT_EQ(leader.normal(), KdGeVector3d::kZAxis);
    leader.edit().normal = {0, 3, 0};
    EXPECT_EQ(leader.normal(), KdGeVector3d::kYAxis);
}

TEST(MLeader, HandsItsTextOutAsAnObjectOfItsOwn)
{
    KdDbMLeader leader;
    EXPECT_FALSE(leader.mtext());
    leader.edit().text = std::make_unique<MTextData>();
    leader.edit().text->contents = L"see there";
    leader.edit().text->textHeight = 4.0;
    const auto text = leader.mtext();
    ASSERT_TRUE(text);
    KdString contents;
    text->contents(contents);
    EXPECT_EQ(contents, L"see there");
    EXPECT_EQ(text->textHeight(), 4.0);
    EXPECT_NE(leader.mtext().get(), text.get());
}

TEST(MLeader, TellsItsSidesApart)
{
    KdDbMLeader leader;
    leader.edit().leftAttachment = 1;
    leader.edit().rightAttachment = 2;
    leader.edit().topAttachment = 9;
    leader.edit().bottomAttachment = 10;
    EXPECT_EQ(leader.textAttachmentType(KdDb::kLeftLeader), 1);
    EXPECT_EQ(leader.textAttachmentType(KdDb::kRightLeader), 2);
    EXPECT_EQ(leader.textAttachmentType(KdDb::kTopLeader), 9);
    EXPECT_EQ(leader.textAttachmentType(KdDb::kBottomLeader), 10);
}

TEST(MLeader, IsAnnotativeByItsOwnFlag)
{
    KdDbMLeader leader;
    EXPECT_FALSE(leader.isAnnotative());
    leader.edit().annotative = true;
    EXPECT_TRUE(leader.isAnnotative());
}

TEST(MLeader, ReachesAroundItsLinesAndItsText)
{
    KdDbMLeader leader;
    KdGeExtents3d box;
    EXPECT_EQ(leader.getGeomExtents(box), eNotApplicable);
    leader.edit().branches.push_back({0, {5, 5, 0}, {1, 0, 0}, 2.0, {{0, {{-1, 2, 0}}}}});
    ASSERT_EQ(leader.getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{-1, 2, 0}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{5, 5, 0}));
    leader.edit().text = std::make_unique<MTextData>();
    leader.edit().text->contents = L"HELLO"; // 14 wide
    leader.edit().text->textHeight = 3.0;
    leader.edit().text->location = {7, 6, 0};
    ASSERT_EQ(leader.getGeomExtents(box), eOk);
    EXPECT_THAT(box.maxPoint, IsNear(KdGePoint3d{21, 6, 0}));
}

} // namespace
