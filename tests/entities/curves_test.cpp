#include "support.h"

#include <entities/circle.h>
#include <entities/line.h>
#include <entities/point.h>
#include <entities/ray.h>

namespace {

using namespace entity_test;

using CurveFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, CurveFrame, frames(), frameName());

TEST_P(CurveFrame, PlacesTheCenterOfACircleInTheWorld)
{
    KdDbCircle circle;
    circle.edit().center = kPointInFrame;
    circle.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(circle.center(), IsNear(GetParam().world));
    EXPECT_THAT(circle.normal(), IsNear(GetParam().normal));
}

TEST_P(CurveFrame, PlacesTheCenterOfAnArcInTheWorld)
{
    KdDbArc arc;
    arc.edit().center = kPointInFrame;
    arc.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(arc.center(), IsNear(GetParam().world));
    EXPECT_THAT(arc.normal(), IsNear(GetParam().normal));
}

TEST_P(CurveFrame, LeavesTheEndsOfALineAlone)
{
    KdDbLine line;
    line.edit().start = kPointInFrame;
    line.edit().end = {-1, -2, -3};
    line.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_EQ(line.startPoint(), kPointInFrame);
    EXPECT_EQ(line.endPoint(), (KdGePoint3d{-1, -2, -3}));
    EXPECT_THAT(line.normal(), IsNear(GetParam().normal));
}

TEST_P(CurveFrame, LeavesThePositionOfAPointAlone)
{
    KdDbPoint point;
    point.edit().position = kPointInFrame;
    point.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_EQ(point.position(), kPointInFrame);
    EXPECT_THAT(point.normal(), IsNear(GetParam().normal));
}

TEST(Line, BeginsEmptyAtTheOrigin)
{
    const KdDbLine line;
    EXPECT_EQ(line.startPoint(), KdGePoint3d());
    EXPECT_EQ(line.endPoint(), KdGePoint3d());
    EXPECT_EQ(line.thickness(), 0.0);
    EXPECT_EQ(line.normal(), (KdGeVector3d{0, 0, 1}));
}

TEST(Line, KeepsItsThickness)
{
    KdDbLine line;
    line.edit().extrusion.setThickness(-2.5);
    EXPECT_EQ(line.thickness(), -2.5);
}

TEST(Circle, KeepsRadiusAndThickness)
{
    KdDbCircle circle;
    circle.edit().radius = 7.5;
    circle.edit().extrusion.setThickness(2.0);
    EXPECT_EQ(circle.radius(), 7.5);
    EXPECT_EQ(circle.thickness(), 2.0);
}

TEST(Arc, KeepsItsAnglesAsTheDrawingHasThem)
{
    KdDbArc arc;
    arc.edit().radius = 2.0;
    arc.edit().startAngle = 5.0;
    arc.edit().endAngle = 1.0;
    EXPECT_EQ(arc.radius(), 2.0);
    EXPECT_EQ(arc.startAngle(), 5.0);
    EXPECT_EQ(arc.endAngle(), 1.0);
}

TEST(Arc, KeepsItsThickness)
{
    KdDbArc arc;
    arc.edit().extrusion.setThickness(3.0);
    EXPECT_EQ(arc.thickness(), 3.0);
}

TEST(Point, KeepsThicknessAndTurnOfItsMark)
{
    KdDbPoint point;
    point.edit().extrusion.setThickness(1.5);
    point.edit().ecsRotation = 0.25;
    EXPECT_EQ(point.thickness(), 1.5);
    EXPECT_EQ(point.ecsRotation(), 0.25);
}

TEST(Curve, IsClosedForACircleAndOpenForLinesArcsAndRays)
{
    EXPECT_TRUE(KdDbCircle().isClosed());
    EXPECT_FALSE(KdDbLine().isClosed());
    EXPECT_FALSE(KdDbArc().isClosed());
    EXPECT_FALSE(KdDbRay().isClosed());
}

} // namespace
