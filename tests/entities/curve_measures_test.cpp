// Points, lengths, areas, boxes and grips of the curves.
#include <array>
#include <cmath>
#include <list>
#include <numbers>
#include <vector>

#include <entities/circle.h>
#include <entities/ellipse.h>
#include <entities/line.h>
#include <entities/point.h>
#include <entities/polyline.h>
#include <entities/ray.h>
#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include "support.h"

namespace {

using namespace entity_test;

constexpr double kPi = std::numbers::pi;

KdGePoint3d pointAt(const KdDbCurve& curve, double parameter)
{
    KdGePoint3d point;
    EXPECT_EQ(curve.getPointAtParam(parameter, point), eOk);
    return point;
}

double lengthTo(const KdDbCurve& curve, double parameter)
{
    double distance = -1.0;
    EXPECT_EQ(curve.getDistAtParam(parameter, distance), eOk);
    return distance;
}

double wholeLength(const KdDbCurve& curve)
{
    double end = -1.0;
    EXPECT_EQ(curve.getEndParam(end), eOk);
    return lengthTo(curve, end);
}

double areaOf(const KdDbCurve& curve)
{
    double area = -1.0;
    EXPECT_EQ(KdDbCurveArea(&curve).getArea(area), eOk);
    return area;
}

void expectBox(const KdDbEntity& entity, const KdGePoint3d& low, const KdGePoint3d& high)
{
    KdGeExtents3d extents;
    EXPECT_EQ(entity.getGeomExtents(extents), eOk);
    EXPECT_THAT(extents.minPoint, IsNear(low));
    EXPECT_THAT(extents.maxPoint, IsNear(high));
}

void expectGrips(const KdDbEntity& entity, const std::vector<KdGePoint3d>& expected)
{
    KdArray<KdGePoint3d> points;
    EXPECT_EQ(entity.getGripPoints(points), eOk);
    ASSERT_EQ(points.length(), static_cast<int>(expected.size()));
    for (int i = 0; i < points.length(); ++i)
        EXPECT_THAT(points[i], IsNear(expected[static_cast<std::size_t>(i)])) << i;
}

TEST(LineMeasures, FollowFromItsEnds)
{
    KdDbLine line;
    line.edit().start = {1, 1, 1};
    line.edit().end = {3, 4, 7};
    EXPECT_THAT(pointAt(line, 3.5), IsNear(KdGePoint3d{2, 2.5, 4}));
    EXPECT_EQ(wholeLength(line), 7.0);
    expectBox(line, {1, 1, 1}, {3, 4, 7});
    expectGrips(line, {{1, 1, 1}, {3, 4, 7}, {2, 2.5, 4}});
    EXPECT_TRUE(line.isPlanar());
}

TEST(LineMeasures, TakeTheThicknessIntoTheBox)
{
    KdDbLine line;
    line.edit().end = {3, 4, 0};
    line.edit().extrusion = {{0, 0, -1}, 5};
    expectBox(line, {0, 0, -5}, {3, 4, 0});
}

TEST(CurveMeasures, RefuseAParameterOutsideOfTheCurve)
{
    KdDbLine line;
    line.edit().end = {3, 4, 0};
    KdGePoint3d point{7, 7, 7};
    double distance = 7.0;
    for (const double outside : {-0.001, 5.001}) {
        EXPECT_EQ(line.getPointAtParam(outside, point), eInvalidInput);
        EXPECT_EQ(line.getDistAtParam(outside, distance), eInvalidInput);
    }
    EXPECT_EQ(point, (KdGePoint3d{7, 7, 7}));
    EXPECT_EQ(distance, 7.0);
    EXPECT_EQ(line.getPointAtParam(5 + 1e-12, point), eOk); // rounding is no matter
}

TEST(RayMeasures, KnowNoEndAndNoBox)
{
    KdDbRay ray;
    ray.edit().basePoint = {1, 2, 3};
    ray.edit().direction = {0, 5, 0};
    EXPECT_THAT(pointAt(ray, 4), IsNear(KdGePoint3d{1, 6, 3}));
    EXPECT_EQ(lengthTo(ray, 4), 4.0);
    KdGeExtents3d extents;
    double area = 7.0;
    EXPECT_EQ(ray.getGeomExtents(extents), eNotApplicable);
    EXPECT_TRUE(extents.isEmpty());
    EXPECT_EQ(ray.getArea(area), eNotApplicable);
    EXPECT_EQ(area, 7.0);
    expectGrips(ray, {{1, 2, 3}, {1, 3, 3}});
}

TEST(RayMeasures, OfAConstructionLineKnowPointsBothWaysButNoDistance)
{
    KdDbXline line;
    line.edit().direction = {2, 0, 0};
    EXPECT_THAT(pointAt(line, -4), IsNear(KdGePoint3d{-4, 0, 0}));
    double distance = 7.0;
    EXPECT_EQ(line.getDistAtParam(1, distance), eNotApplicable);
    EXPECT_EQ(distance, 7.0);
    KdGeExtents3d extents;
    EXPECT_EQ(line.getGeomExtents(extents), eNotApplicable);
    expectGrips(line, {{0, 0, 0}, {-1, 0, 0}, {1, 0, 0}});
}

TEST(CircleMeasures, FollowFromItsRadius)
{
    KdDbCircle circle;
    circle.edit().center = {1, 2, 3};
    circle.edit().radius = 2;
    circle.edit().extrusion.setThickness(4);
    EXPECT_THAT(pointAt(circle, kPi / 2), IsNear(KdGePoint3d{1, 4, 3}));
    EXPECT_DOUBLE_EQ(wholeLength(circle), 4 * kPi);
    EXPECT_DOUBLE_EQ(areaOf(circle), 4 * kPi);
    expectBox(circle, {-1, 0, 3}, {3, 4, 7});
    expectGrips(circle, {{1, 2, 3}, {3, 2, 3}, {1, 4, 3}, {-1, 2, 3}, {1, 0, 3}});
    EXPECT_TRUE(circle.isPlanar());
}

TEST(ArcMeasures, FollowFromItsAngles)
{
    KdDbArc arc;
    arc.edit().radius = 2;
    arc.edit().startAngle = 3 * kPi / 2;
    arc.edit().endAngle = kPi / 2;
    EXPECT_THAT(pointAt(arc, 2 * kPi), IsNear(KdGePoint3d{2, 0, 0}));
    EXPECT_DOUBLE_EQ(wholeLength(arc), 2 * kPi);
    EXPECT_DOUBLE_EQ(lengthTo(arc, 2 * kPi), kPi);
    expectBox(arc, {0, -2, 0}, {2, 2, 0});
    expectGrips(arc, {{0, 0, 0}, {0, -2, 0}, {0, 2, 0}, {2, 0, 0}});
}

TEST(EllipseMeasures, FollowFromItsAxes)
{
    KdDbEllipse ellipse;
    ellipse.edit().majorAxis = {2, 0, 0};
    ellipse.edit().radiusRatio = 0.5;
    EXPECT_THAT(pointAt(ellipse, kPi / 2), IsNear(KdGePoint3d{0, 1, 0}));
    EXPECT_NEAR(wholeLength(ellipse), 9.688448220547675, 1e-13); // 8 E(3/4), from tables
    EXPECT_DOUBLE_EQ(areaOf(ellipse), 2 * kPi);
    expectBox(ellipse, {-2, -1, 0}, {2, 1, 0});
    expectGrips(ellipse, {{0, 0, 0}, {2, 0, 0}, {0, 1, 0}, {-2, 0, 0}, {0, -1, 0}});
    ellipse.edit().endParam = kPi;
    EXPECT_NEAR(wholeLength(ellipse), 9.688448220547675 / 2, 1e-13);
    expectBox(ellipse, {-2, 0, 0}, {2, 1, 0});
    expectGrips(ellipse, {{0, 0, 0}, {2, 0, 0}, {-2, 0, 0}, {0, 1, 0}});
}

TEST(EllipseMeasures, TurnDirectionsIntoParameters)
{
    KdDbEllipse ellipse;
    ellipse.edit().radiusRatio = 0.5;
    // tan(angle) is half of tan(parameter)
    EXPECT_NEAR(ellipse.paramAtAngle(0.46364760900080615), kPi / 4, 1e-14);
    EXPECT_NEAR(ellipse.paramAtAngle(0.46364760900080615 + 2 * kPi), 9 * kPi / 4, 1e-14);
    for (const double angle : {0.0, kPi / 2, kPi, 3 * kPi / 2, 2 * kPi})
        EXPECT_NEAR(ellipse.paramAtAngle(angle), angle, 1e-14);
    ellipse.edit().radiusRatio = 0.0;
    EXPECT_EQ(ellipse.paramAtAngle(0.7), 0.7);
}

TEST(PointMeasures, AreThePointItself)
{
    KdDbPoint point;
    point.edit().position = {1, 2, 3};
    point.edit().extrusion.setThickness(2);
    expectBox(point, {1, 2, 3}, {1, 2, 5});
    expectGrips(point, {{1, 2, 3}});
}

/// From (0,0) a line to (4,0), half a circle outwards to (4,2), a line to (0,2), and a line back if
/// it is closed.
class PolylineMeasures : public testing::Test
{
  protected:
    PolylineMeasures()
    {
        polyline.reset(4);
        const std::array<KdGePoint2d, 4> points{{{0, 0}, {4, 0}, {4, 2}, {0, 2}}};
        for (unsigned int i = 0; i < points.size(); ++i)
            polyline.setPointAt(i, points[i]);
        polyline.setBulgeAt(1, 1.0);
    }

    KdDbPolyline polyline;
};

TEST_F(PolylineMeasures, CountSegmentsByTheParameter)
{
    double parameter = -1.0;
    EXPECT_EQ(polyline.getStartParam(parameter), eOk);
    EXPECT_EQ(parameter, 0.0);
    EXPECT_EQ(polyline.getEndParam(parameter), eOk);
    EXPECT_EQ(parameter, 3.0);
    EXPECT_THAT(pointAt(polyline, 0.25), IsNear(KdGePoint3d{1, 0, 0}));
    EXPECT_THAT(pointAt(polyline, 1.5), IsNear(KdGePoint3d{5, 1, 0}));
    EXPECT_THAT(pointAt(polyline, 3), IsNear(KdGePoint3d{0, 2, 0}));
}

TEST_F(PolylineMeasures, AddUpLinesAndArcs)
{
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 8 + kPi);
    EXPECT_DOUBLE_EQ(lengthTo(polyline, 1.5), 4 + kPi / 2);
    polyline.setClosed(true);
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 10 + kPi);
}

TEST_F(PolylineMeasures, EncloseTheSameAreaOpenOrClosed)
{
    EXPECT_DOUBLE_EQ(areaOf(polyline), 8 + kPi / 2);
    polyline.setClosed(true);
    EXPECT_DOUBLE_EQ(areaOf(polyline), 8 + kPi / 2);
    polyline.setBulgeAt(1, -1.0); // the half circle cuts in
    EXPECT_DOUBLE_EQ(areaOf(polyline), 8 - kPi / 2);
}

TEST_F(PolylineMeasures, EndAtTheStartOnceClosed)
{
    KdGePoint3d end;
    EXPECT_EQ(polyline.getEndPoint(end), eOk);
    EXPECT_EQ(end, (KdGePoint3d{0, 2, 0}));
    polyline.setClosed(true);
    EXPECT_EQ(polyline.getEndPoint(end), eOk);
    EXPECT_EQ(end, (KdGePoint3d{0, 0, 0}));
}

TEST_F(PolylineMeasures, BoxTheArcAndTheThickness)
{
    polyline.setElevation(3);
    polyline.setThickness(-1);
    expectBox(polyline, {0, 0, 2}, {5, 2, 3});
    polyline.setNormal({0, 0, -2}); // x and z change sides
    expectBox(polyline, {-5, 0, -3}, {0, 2, -2});
    EXPECT_DOUBLE_EQ(areaOf(polyline), 8 + kPi / 2);
}

TEST_F(PolylineMeasures, AreTakenHoldOfAtTheVertices)
{
    polyline.setElevation(3);
    expectGrips(polyline, {{0, 0, 3}, {4, 0, 3}, {4, 2, 3}, {0, 2, 3}});
}

TEST_F(PolylineMeasures, TakeABulgeBetweenEqualVerticesForNothing)
{
    polyline.setPointAt(2, {4, 0});
    EXPECT_DOUBLE_EQ(lengthTo(polyline, 2), 4.0);
    expectBox(polyline, {0, 0, 0}, {4, 2, 0});
}

TEST_F(PolylineMeasures, KeepAVeryFlatArcNearItsChord)
{
    polyline.setBulgeAt(1, 1e-12);
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 10.0);
    EXPECT_THAT(pointAt(polyline, 1.5), IsNear(KdGePoint3d{4, 1, 0}));
}

TEST(PolylineWithoutVertices, HasNoMeasures)
{
    const KdDbPolyline polyline;
    double number = 7.0;
    KdGeExtents3d extents;
    EXPECT_EQ(polyline.getEndParam(number), eNotApplicable);
    EXPECT_EQ(polyline.getArea(number), eNotApplicable);
    EXPECT_EQ(polyline.getGeomExtents(extents), eNotApplicable);
    EXPECT_EQ(number, 7.0);
}

TEST(PolylineOfOneVertex, HasNoLength)
{
    KdDbPolyline polyline;
    polyline.reset(1);
    polyline.setPointAt(0, {2, 3});
    for (const bool closed : {false, true}) {
        polyline.setClosed(closed);
        EXPECT_EQ(wholeLength(polyline), 0.0);
        EXPECT_EQ(areaOf(polyline), 0.0);
        expectBox(polyline, {2, 3, 0}, {2, 3, 0});
    }
}

TEST(CurveArea, OfNoCurveIsNotKnown)
{
    double area = 7.0;
    EXPECT_EQ(KdDbCurveArea(nullptr).getArea(area), eNotApplicable);
    EXPECT_EQ(area, 7.0);
}

/// Gives a polyline vertices that live as long as the test.
template <class Polyline, class Vertex>
class VertexPolyline : public testing::Test
{
  protected:
    VertexMembers& add(const KdGePoint3d& position, KdDb::VertexType type = KdDb::kPlainVertex)
    {
        Vertex& vertex = m_vertices.emplace_back();
        polyline.appendPart(vertex.objectId());
        vertex.edit().position = position;
        vertex.edit().type = type;
        return vertex.edit();
    }
    Vertex& last() { return m_vertices.back(); }

    Polyline polyline;

  private:
    std::list<Vertex> m_vertices;
};

using Polyline2dMeasures = VertexPolyline<KdDb2dPolyline, KdDb2dVertex>;

TEST_F(Polyline2dMeasures, FollowFromVerticesAndBulges)
{
    add({0, 0, 9}); // the height of the vertices does not count
    add({4, 0, 9});
    last().edit().bulge = -1.0;
    add({4, -2, 9});
    polyline.edit().elevation = 1;
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 4 + kPi);
    EXPECT_DOUBLE_EQ(areaOf(polyline), 4 + kPi / 2);
    EXPECT_THAT(pointAt(polyline, 1.5), IsNear(KdGePoint3d{5, -1, 1}));
    expectBox(polyline, {0, -2, 1}, {5, 0, 1});
    polyline.edit().closed = true;
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 4 + kPi + std::sqrt(20.0));
}

TEST_F(Polyline2dMeasures, RunThroughTheDrawnVerticesOfASpline)
{
    polyline.edit().type = KdDb::kCubic2dPolyline;
    add({0, 0, 0}, KdDb::kSplineFitVertex);
    add({50, 50, 0}, KdDb::kControlVertex);
    add({3, 4, 0}, KdDb::kSplineFitVertex);
    EXPECT_EQ(wholeLength(polyline), 5.0);
    expectBox(polyline, {0, 0, 0}, {3, 4, 0});
    expectGrips(polyline, {{0, 0, 0}, {50, 50, 0}, {3, 4, 0}});
}

TEST_F(Polyline2dMeasures, RunThroughGivenAndComputedVerticesOfACurveFit)
{
    polyline.edit().type = KdDb::kCurveFit2dPolyline;
    add({0, 0, 0});
    last().edit().bulge = 1.0;
    add({2, 0, 0}, KdDb::kCurveFitVertex);
    last().edit().bulge = -1.0;
    add({4, 0, 0});
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 2 * kPi);
}

TEST_F(Polyline2dMeasures, NeedAVertex)
{
    double number = 7.0;
    EXPECT_EQ(polyline.getEndParam(number), eNotApplicable);
    EXPECT_EQ(number, 7.0);
}

using Polyline3dMeasures = VertexPolyline<KdDb3dPolyline, KdDb3dPolylineVertex>;

TEST_F(Polyline3dMeasures, RunStraightFromVertexToVertex)
{
    add({0, 0, 0});
    add({2, 3, 6});
    add({2, 3, 10});
    EXPECT_EQ(wholeLength(polyline), 11.0);
    EXPECT_EQ(pointAt(polyline, 1.5), (KdGePoint3d{2, 3, 8}));
    expectBox(polyline, {0, 0, 0}, {2, 3, 10});
    expectGrips(polyline, {{0, 0, 0}, {2, 3, 6}, {2, 3, 10}});
    polyline.edit().closed = true;
    double end = 0.0;
    EXPECT_EQ(polyline.getEndParam(end), eOk);
    EXPECT_EQ(end, 3.0);
    EXPECT_DOUBLE_EQ(wholeLength(polyline), 11 + std::sqrt(113.0));
}

TEST_F(Polyline3dMeasures, PassOverTheControlPointsOfASpline)
{
    add({9, 9, 9}, KdDb::kControlVertex);
    add({0, 0, 0}, KdDb::kSplineFitVertex);
    add({0, 0, 4}, KdDb::kSplineFitVertex);
    EXPECT_EQ(wholeLength(polyline), 4.0);
}

TEST_F(Polyline3dMeasures, KnowAnAreaInOnePlaneOnly)
{
    add({0, 0, 0});
    add({3, 0, 3});
    add({3, 4, 3});
    add({0, 4, 0});
    EXPECT_TRUE(polyline.isPlanar());
    EXPECT_DOUBLE_EQ(areaOf(polyline), 4 * std::sqrt(18.0));
    add({1, 1, 8});
    EXPECT_FALSE(polyline.isPlanar());
    double area = 7.0;
    EXPECT_EQ(polyline.getArea(area), eNotApplicable);
    EXPECT_EQ(area, 7.0);
}

} // namespace
