#include "support.h"

#include <array>

#include <entities/polyline.h>

namespace {

using namespace entity_test;

PolylineMembers& addVertices(KdDbPolyline& polyline, int count)
{
    for (int i = 0; i < count; ++i)
        polyline.edit().addVertex({10.0 * i, 5.0});
    return polyline.edit();
}

double bulgeAt(const KdDbPolyline& polyline, unsigned int index)
{
    double bulge = -99.0;
    EXPECT_EQ(polyline.getBulgeAt(index, bulge), eOk);
    return bulge;
}

PolylineMembers::Widths widthsAt(const KdDbPolyline& polyline, unsigned int index)
{
    PolylineMembers::Widths widths{-99.0, -99.0};
    EXPECT_EQ(polyline.getWidthsAt(index, widths.start, widths.end), eOk);
    return widths;
}

using PolylineFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, PolylineFrame, frames(), frameName());

TEST_P(PolylineFrame, PlacesItsVerticesInTheWorldAtTheElevation)
{
    KdDbPolyline polyline;
    polyline.edit().addVertex({kPointInFrame.x, kPointInFrame.y});
    polyline.edit().elevation = kPointInFrame.z;
    polyline.edit().extrusion.setDirection(GetParam().direction);
    KdGePoint3d point;
    ASSERT_EQ(polyline.getPointAt(0, point), eOk);
    EXPECT_THAT(point, IsNear(GetParam().world));
}

TEST_P(PolylineFrame, GivesItsFlatVerticesAsTheyAreStored)
{
    KdDbPolyline polyline;
    polyline.edit().addVertex({2.0, 3.0});
    polyline.edit().extrusion.setDirection(GetParam().direction);
    KdGePoint2d point;
    ASSERT_EQ(polyline.getPointAt(0, point), eOk);
    EXPECT_EQ(point, (KdGePoint2d{2.0, 3.0}));
}

TEST(Polyline, CountsItsVertices)
{
    KdDbPolyline polyline;
    EXPECT_EQ(polyline.numVerts(), 0u);
    addVertices(polyline, 3);
    EXPECT_EQ(polyline.numVerts(), 3u);
}

TEST(Polyline, RefusesAVertexItLacksAndLeavesTheOutputsAlone)
{
    KdDbPolyline polyline;
    addVertices(polyline, 2);
    KdGePoint2d flat{7, 7};
    KdGePoint3d point{7, 7, 7};
    double bulge = 7;
    double start = 7;
    double end = 7;
    EXPECT_EQ(polyline.getPointAt(2, flat), eOutOfRange);
    EXPECT_EQ(polyline.getPointAt(2, point), eOutOfRange);
    EXPECT_EQ(polyline.getBulgeAt(2, bulge), eOutOfRange);
    EXPECT_EQ(polyline.getWidthsAt(2, start, end), eOutOfRange);
    EXPECT_EQ(flat, (KdGePoint2d{7, 7}));
    EXPECT_EQ(point, (KdGePoint3d{7, 7, 7}));
    EXPECT_THAT((std::array{bulge, start, end}), testing::Each(7.0));
}

TEST(Polyline, IsStraightWhereNoBulgeWasGiven)
{
    KdDbPolyline polyline;
    addVertices(polyline, 2).setLastBulge(0.5);
    addVertices(polyline, 1);
    EXPECT_EQ(bulgeAt(polyline, 0), 0.0);
    EXPECT_EQ(bulgeAt(polyline, 1), 0.5);
    EXPECT_EQ(bulgeAt(polyline, 2), 0.0);
}

TEST(Polyline, KeepsNoListForBulgesAndWidthsThatFollowTheRule)
{
    KdDbPolyline polyline;
    for (int i = 0; i < 4; ++i) {
        PolylineMembers& members = addVertices(polyline, 1);
        members.setLastStartWidth(0.0);
        members.setLastEndWidth(0.0);
        members.setLastBulge(0.0);
    }
    EXPECT_TRUE(polyline.edit().bulges.empty());
    EXPECT_TRUE(polyline.edit().widths.empty());
}

TEST(Polyline, CanTakeABulgeAndAWidthBack)
{
    KdDbPolyline polyline;
    PolylineMembers& members = addVertices(polyline, 1);
    members.setLastBulge(1.0);
    members.setLastBulge(0.0);
    members.setLastStartWidth(1.0);
    members.setLastStartWidth(0.0);
    EXPECT_EQ(bulgeAt(polyline, 0), 0.0);
    EXPECT_EQ(widthsAt(polyline, 0), (PolylineMembers::Widths{0.0, 0.0}));
}

TEST(Polyline, IgnoresBulgesAndWidthsBeforeItsFirstVertex)
{
    KdDbPolyline polyline;
    polyline.edit().setLastBulge(1.0);
    polyline.edit().setLastStartWidth(1.0);
    polyline.edit().setLastEndWidth(1.0);
    EXPECT_TRUE(polyline.edit().bulges.empty());
    EXPECT_TRUE(polyline.edit().widths.empty());
}

TEST(Polyline, HasItsConstantWidthAtEachVertex)
{
    KdDbPolyline polyline;
    addVertices(polyline, 2).constantWidth = 1.5;
    EXPECT_EQ(widthsAt(polyline, 1), (PolylineMembers::Widths{1.5, 1.5}));
    double width = 0.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eOk);
    EXPECT_EQ(width, 1.5);
}

TEST(Polyline, WithoutVerticesStillHasItsConstantWidth)
{
    KdDbPolyline polyline;
    polyline.edit().constantWidth = 1.5;
    double width = 0.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eOk);
    EXPECT_EQ(width, 1.5);
}

TEST(Polyline, FindsTheWidthThatAllVerticesGive)
{
    KdDbPolyline polyline;
    for (int i = 0; i < 3; ++i) {
        PolylineMembers& members = addVertices(polyline, 1);
        members.setLastStartWidth(2.0);
        members.setLastEndWidth(2.0);
    }
    double width = 0.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eOk);
    EXPECT_EQ(width, 2.0);
}

TEST(Polyline, HasNoConstantWidthOnceASegmentTapers)
{
    KdDbPolyline polyline;
    addVertices(polyline, 2).setLastEndWidth(3.0);
    double width = 7.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eInvalidInput);
    EXPECT_EQ(width, 7.0);
    EXPECT_EQ(widthsAt(polyline, 0), (PolylineMembers::Widths{0.0, 0.0}));
    EXPECT_EQ(widthsAt(polyline, 1), (PolylineMembers::Widths{0.0, 3.0}));
}

TEST(Polyline, HasNoConstantWidthIfALaterVertexFallsBackToAnotherRule)
{
    KdDbPolyline polyline;
    PolylineMembers& members = addVertices(polyline, 1);
    members.setLastStartWidth(2.0);
    members.setLastEndWidth(2.0);
    addVertices(polyline, 1);
    double width = 7.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eInvalidInput);
    EXPECT_EQ(width, 7.0);
}

TEST(Polyline, KeepsItsFlagsAndLengths)
{
    KdDbPolyline polyline;
    EXPECT_FALSE(polyline.isClosed());
    EXPECT_FALSE(polyline.hasPlinegen());
    PolylineMembers& members = polyline.edit();
    members.closed = true;
    members.plinegen = true;
    members.elevation = 4.0;
    members.extrusion = {{0, 0, -2}, 0.5};
    EXPECT_TRUE(polyline.isClosed());
    EXPECT_TRUE(polyline.hasPlinegen());
    EXPECT_EQ(polyline.elevation(), 4.0);
    EXPECT_EQ(polyline.thickness(), 0.5);
    EXPECT_THAT(polyline.normal(), IsNear(KdGeVector3d{0, 0, -1}));
}

TEST(Polyline, CanBeRefilled)
{
    KdDbPolyline polyline;
    addVertices(polyline, 5).setLastBulge(1.0);
    polyline.setConstantWidth(2.0);
    polyline.reset(2);
    EXPECT_EQ(polyline.numVerts(), 2u);
    EXPECT_EQ(bulgeAt(polyline, 1), 0.0);
    EXPECT_EQ(widthsAt(polyline, 1), (PolylineMembers::Widths{0.0, 0.0}));
    EXPECT_EQ(polyline.setPointAt(1, {3, 4}), eOk);
    EXPECT_EQ(polyline.setBulgeAt(0, 0.5), eOk);
    EXPECT_EQ(polyline.setWidthsAt(1, 1.0, 2.0), eOk);
    KdGePoint2d point;
    EXPECT_EQ(polyline.getPointAt(1, point), eOk);
    EXPECT_EQ(point, (KdGePoint2d{3, 4}));
    EXPECT_EQ(bulgeAt(polyline, 0), 0.5);
    EXPECT_EQ(bulgeAt(polyline, 1), 0.0);
    EXPECT_EQ(widthsAt(polyline, 0), (PolylineMembers::Widths{0.0, 0.0}));
    EXPECT_EQ(widthsAt(polyline, 1), (PolylineMembers::Widths{1.0, 2.0}));
}

TEST(Polyline, RefusesToChangeAVertexItLacks)
{
    KdDbPolyline polyline;
    EXPECT_EQ(polyline.setPointAt(0, {3, 4}), eOutOfRange);
    EXPECT_EQ(polyline.setBulgeAt(0, 1.0), eOutOfRange);
    EXPECT_EQ(polyline.setWidthsAt(0, 1.0, 1.0), eOutOfRange);
    EXPECT_EQ(polyline.numVerts(), 0u);
}

TEST(Polyline, TakesOneWidthForAllSegments)
{
    KdDbPolyline polyline;
    addVertices(polyline, 3).setLastEndWidth(5.0);
    polyline.setConstantWidth(2.0);
    double width = 0.0;
    EXPECT_EQ(polyline.getConstantWidth(width), eOk);
    EXPECT_EQ(width, 2.0);
    polyline.setClosed(true);
    polyline.setPlinegen(true);
    EXPECT_TRUE(polyline.isClosed());
    EXPECT_TRUE(polyline.hasPlinegen());
}

} // namespace
