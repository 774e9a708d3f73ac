#include <providers/curve_geometry.h>

#include <cmath>
#include <memory>

#include <entities/all.h>
#include <geometry/linear_curves.h>

#include "made_curves.h"
#include "support.h"

using namespace provider_test;

namespace {

std::unique_ptr<KdGeCurve3d> curveOf(const KdDbEntity& entity, bool unbounded = false)
{
    return std::unique_ptr<KdGeCurve3d>(asIcGeCurve(&entity, unbounded, false));
}

template <class Curve>
const Curve* as(const std::unique_ptr<KdGeCurve3d>& curve)
{
    return dynamic_cast<const Curve*>(curve.get());
}

TEST(CurveOfALine, IsASegmentOrALine)
{
    KdDbLine line;
    line.edit().start = {1, 2, 3};
    line.edit().end = {4, 6, 3};
    const auto bounded = curveOf(line);
    ASSERT_TRUE(as<KdGeLineSeg3d>(bounded));
    expectNear(startOf(*bounded), {1, 2, 3});
    expectNear(endOf(*bounded), {4, 6, 3});
    const auto unbounded = curveOf(line, true);
    ASSERT_TRUE(as<KdGeLine3d>(unbounded));
    expectNear(unbounded->evalPoint(-5), {-2, -2, 3});
}

TEST(CurveOfACircle, IsTheCircleEitherWay)
{
    KdDbCircle circle;
    circle.edit().center = {1, 2, 3};
    circle.edit().radius = 2;
    for (const bool unbounded : {false, true}) {
        const auto curve = curveOf(circle, unbounded);
        const auto* round = as<KdGeCircArc3d>(curve);
        ASSERT_TRUE(round);
        EXPECT_EQ(round->center(), (KdGePoint3d{1, 2, 3}));
        EXPECT_EQ(round->radius(), 2.0);
        EXPECT_DOUBLE_EQ(round->interval().length(), 2 * kPi);
    }
}

struct ArcRow
{
    const char* name;
    KdGeVector3d direction;
    double start;
    double end;
};

class CurveOfAnArc : public testing::TestWithParam<ArcRow>
{
  protected:
    CurveOfAnArc()
    {
        arc.edit().center = {1, 2, 3};
        arc.edit().radius = 2;
        arc.edit().startAngle = GetParam().start;
        arc.edit().endAngle = GetParam().end;
        arc.edit().extrusion.setDirection(GetParam().direction);
    }
    KdGePoint3d pointOfArc(double parameter) const
    {
        KdGePoint3d point;
        EXPECT_EQ(arc.getPointAtParam(parameter, point), eOk);
        return point;
    }

    KdDbArc arc;
};

TEST_P(CurveOfAnArc, HasThePointsOfTheArcAtItsParameters)
{
    const auto curve = curveOf(arc);
    ASSERT_TRUE(as<KdGeCircArc3d>(curve));
    double start = 0.0;
    double end = 0.0;
    arc.getStartParam(start);
    arc.getEndParam(end);
    EXPECT_DOUBLE_EQ(curve->interval().lower, start);
    EXPECT_DOUBLE_EQ(curve->interval().upper, end);
    for (const double part : {0.0, 0.3, 1.0})
        expectNear(curve->evalPoint(std::lerp(start, end, part)),
                   pointOfArc(std::lerp(start, end, part)));
}

TEST_P(CurveOfAnArc, IsTheWholeCircleIfUnbounded)
{
    const auto curve = curveOf(arc, true);
    ASSERT_TRUE(as<KdGeCircArc3d>(curve));
    EXPECT_DOUBLE_EQ(curve->interval().length(), 2 * kPi);
}

TEST_P(CurveOfAnArc, HasAReferenceByTheArbitraryAxisRule)
{
    const std::unique_ptr<KdGeCircArc3d> curve(circArc3d(arc));
    EXPECT_EQ(curve->radius(), 2.0);
    expectNear(KdGePoint3d::kOrigin + curve->normal(), KdGePoint3d::kOrigin + arc.normal());
    expectNear(startOf(*curve), pointOfArc(GetParam().start));
}

INSTANTIATE_TEST_SUITE_P(Directions, CurveOfAnArc,
                         testing::Values(ArcRow{"upward", {0, 0, 1}, 0.5, 2.0},
                                         ArcRow{"downward", {0, 0, -1}, 0.5, 2.0},
                                         ArcRow{"tilted", {3, 0, 4}, 0.5, 2.0},
                                         ArcRow{"lying", {0, 1, 0}, 0.5, 2.0},
                                         ArcRow{"nearZ", {0.01, 0.01, 0.9999}, 0.5, 2.0},
                                         ArcRow{"throughTheXAxis", {0, 0, 1}, 5.0, 1.0}),
                         [](const auto& row) { return row.param.name; });

TEST(CircArc, CountsANormalWithinOneSixtyFourthAsNearZ)
{
    KdDbArc arc;
    arc.edit().radius = 1;
    arc.edit().extrusion.setDirection({0.01, 0.01, 0.9999});
    const KdGeVector3d n = arc.normal();
    const KdGeVector3d expected = KdGeVector3d{n.z, 0, -n.x}.normal();
    const std::unique_ptr<KdGeCircArc3d> near(circArc3d(arc));
    expectNear(KdGePoint3d::kOrigin + near->refVec(), KdGePoint3d::kOrigin + expected);
    arc.edit().extrusion.setDirection({0.02, 0, 1});
    const std::unique_ptr<KdGeCircArc3d> far(circArc3d(arc));
    expectNear(KdGePoint3d::kOrigin + far->refVec(), {0, 1, 0});
}

class CurveOfAnEllipse : public testing::Test
{
  protected:
    CurveOfAnEllipse()
    {
        ellipse.edit().center = {1, 2, 3};
        ellipse.edit().majorAxis = {0, 4, 0};
    }
    void expectSamePoints(bool unbounded)
    {
        const auto curve = curveOf(ellipse, unbounded);
        ASSERT_TRUE(as<KdGeEllipArc3d>(curve));
        KdGePoint3d point;
        ASSERT_EQ(ellipse.getStartPoint(point), eOk);
        expectNear(startOf(*curve), point);
        ASSERT_EQ(ellipse.getEndPoint(point), eOk);
        expectNear(endOf(*curve), point);
    }

    KdDbEllipse ellipse;
};

TEST_F(CurveOfAnEllipse, RunsFromEndToEnd)
{
    for (const double ratio : {0.5, -0.5, 1.0}) {
        ellipse.edit().radiusRatio = ratio;
        ellipse.edit().startParam = 0.5;
        ellipse.edit().endParam = 4.0;
        expectSamePoints(false);
        EXPECT_NEAR(curveOf(ellipse)->interval().length(), 3.5, kNear);
        ellipse.edit().startParam = 6.0;
        ellipse.edit().endParam = 1.0;
        expectSamePoints(false);
    }
}

TEST_F(CurveOfAnEllipse, IsWholeIfTheEllipseIsOrIfUnbounded)
{
    for (const double ratio : {0.5, -0.5}) {
        ellipse.edit().radiusRatio = ratio;
        ellipse.edit().startParam = 0.0;
        ellipse.edit().endParam = 2 * kPi;
        expectSamePoints(false);
        EXPECT_NEAR(curveOf(ellipse)->interval().length(), 2 * kPi, kNear);
        ellipse.edit().endParam = 1.0;
        EXPECT_NEAR(curveOf(ellipse, true)->interval().length(), 2 * kPi, kNear);
    }
}

TEST(CurveOfARay, BeginsAtItsPointUnlessUnbounded)
{
    KdDbRay ray;
    ray.edit().basePoint = {1, 2, 3};
    ray.edit().direction = {0, 5, 0};
    const auto bounded = curveOf(ray);
    ASSERT_TRUE(as<KdGeRay3d>(bounded));
    expectNear(startOf(*bounded), {1, 2, 3});
    const auto unbounded = curveOf(ray, true);
    ASSERT_TRUE(as<KdGeLine3d>(unbounded));
    EXPECT_FALSE(as<KdGeRay3d>(unbounded));
    expectNear(unbounded->evalPoint(-2), {1, 0, 3});
}

TEST(CurveOfAConstructionLine, IsALineEitherWay)
{
    KdDbXline line;
    line.edit().direction = {0, 0, 2};
    for (const bool unbounded : {false, true}) {
        const auto curve = curveOf(line, unbounded);
        ASSERT_TRUE(as<KdGeLine3d>(curve));
        EXPECT_FALSE(curve->interval().isBounded());
        expectNear(curve->evalPoint(-2), {0, 0, -2});
    }
}

TEST(CurveOfAPolyline, IsMadeOfItsSegments)
{
    KdDbPolyline polyline;
    polyline.reset(2);
    polyline.setPointAt(1, {3, 4});
    const auto curve = curveOf(polyline);
    ASSERT_TRUE(as<KdGeCompositeCurve3d>(curve));
    EXPECT_EQ(curve->length(0, 1, 1e-10), 5.0);
}

using CurveOfVertices = CurveTest;

TEST_F(CurveOfVertices, OfA2dPolylineRunsThroughItsSegments)
{
    auto* polyline = add<KdDb2dPolyline>();
    add2dVertex(polyline, {0, 0, 0});
    auto* second = add2dVertex(polyline, {3, 4, 0});
    change(second, [](Vertex2dMembers& members) { members.bulge = 1; });
    add2dVertex(polyline, {5, 4, 0});
    change(polyline, [](Polyline2dMembers& members) { members.elevation = 2; });
    const auto curve = curveOf(*polyline);
    ASSERT_TRUE(as<KdGeCompositeCurve3d>(curve));
    EXPECT_NEAR(curve->length(0, 2, 1e-10), 5 + kPi, kNear);
    expectNear(endOf(*curve), {5, 4, 2});
}

TEST_F(CurveOfVertices, Of2dPolylinesNeedsTwoVertices)
{
    auto* polyline = add<KdDb2dPolyline>();
    add2dVertex(polyline, {0, 0, 0});
    EXPECT_EQ(curveOf(*polyline), nullptr);
}

TEST_F(CurveOfVertices, OfA3dPolylineRunsThroughPlainAndSplineVertices)
{
    auto* polyline = add<KdDb3dPolyline>();
    addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 0});
    addVertex<KdDb3dPolylineVertex>(polyline, {9, 9, 9}, KdDb::kControlVertex);
    addVertex<KdDb3dPolylineVertex>(polyline, {8, 8, 8}, KdDb::kCurveFitVertex);
    addVertex<KdDb3dPolylineVertex>(polyline, {2, 3, 6}, KdDb::kSplineFitVertex);
    const auto curve = curveOf(*polyline);
    ASSERT_TRUE(as<KdGePolyline3d>(curve));
    EXPECT_THAT(as<KdGePolyline3d>(curve)->points(),
                testing::ElementsAre(KdGePoint3d{0, 0, 0}, KdGePoint3d{2, 3, 6}));
}

TEST_F(CurveOfVertices, OfAClosed3dPolylineReturnsUnlessItIsBackAlready)
{
    auto* polyline = add<KdDb3dPolyline>();
    change(polyline, [](Polyline3dMembers& members) { members.closed = true; });
    addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 0});
    addVertex<KdDb3dPolylineVertex>(polyline, {2, 3, 6});
    EXPECT_EQ(as<KdGePolyline3d>(curveOf(*polyline))->points().size(), 3u);
    addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 0});
    EXPECT_EQ(as<KdGePolyline3d>(curveOf(*polyline))->points().size(), 3u);
}

TEST_F(CurveOfVertices, Of3dPolylinesNeedsAVertex)
{
    EXPECT_EQ(curveOf(*add<KdDb3dPolyline>()), nullptr);
}

/// Gives points as the entity of another kind would.
template <class Host>
class Stub : public Host
{
  public:
    std::vector<KdGePoint3d> given;
    KdErrorStatus status = eOk;

    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override
    {
        return give(points);
    }
    KdErrorStatus getOutline(KdArray<KdGePoint3d>& points) const override { return give(points); }
    KdErrorStatus getBoundingPoints(KdArray<KdGePoint3d>& points) const override
    {
        return give(points);
    }

  private:
    KdErrorStatus give(KdArray<KdGePoint3d>& points) const
    {
        for (const KdGePoint3d& point : given)
            points.append(point);
        return status;
    }
};

const std::vector<KdGePoint3d> kCorners{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}};

/// The x coordinates of the curve's points, which tell their order.
template <class Host>
std::vector<double> orderOf(const std::vector<KdGePoint3d>& given)
{
    Stub<Host> entity;
    entity.given = given;
    const auto curve = curveOf(entity);
    std::vector<double> order;
    if (as<KdGePolyline3d>(curve)) {
        for (const KdGePoint3d& point : as<KdGePolyline3d>(curve)->points())
            order.push_back(point.x);
    }
    return order;
}

using Order = std::vector<double>;

TEST(CurveOfCorners, OfALeaderIsAnOpenChain)
{
    EXPECT_EQ(orderOf<KdDbLeader>(kCorners), (Order{0, 1, 2, 3}));
}

TEST(CurveOfCorners, OfAnImageIsTheRingOfItsOutline)
{
    EXPECT_EQ(orderOf<KdDbRasterImage>(kCorners), (Order{0, 1, 2, 3, 0}));
    EXPECT_EQ(orderOf<KdDbWipeout>(kCorners), (Order{0, 1, 2, 3, 0}));
}

TEST(CurveOfCorners, OfSolidsUndoesTheBowTie)
{
    EXPECT_EQ(orderOf<KdDbSolid>(kCorners), (Order{0, 1, 3, 2, 0}));
    EXPECT_EQ(orderOf<KdDbTrace>(kCorners), (Order{0, 1, 3, 2, 0}));
    EXPECT_EQ(orderOf<KdDbFace>(kCorners), (Order{0, 1, 2, 3, 0}));
}

TEST(CurveOfCorners, OfTextFramesGoesRoundTwoRows)
{
    EXPECT_EQ(orderOf<KdDbMText>(kCorners), (Order{0, 1, 3, 2, 0}));
    EXPECT_EQ(orderOf<KdDbFcf>(kCorners), (Order{0, 1, 3, 2, 0}));
    EXPECT_EQ(orderOf<KdDbFcf>({{0, 0, 0}}), Order());
}

TEST(CurveOfCorners, IsNullIfTheEntityGivesNone)
{
    EXPECT_EQ(orderOf<KdDbLeader>({}), Order());
    Stub<KdDbSolid> solid;
    solid.given = kCorners;
    solid.status = eNotApplicable;
    EXPECT_EQ(curveOf(solid), nullptr);
}

template <class Dimension>
class CurveOfADimension : public testing::Test
{
};
using LinearDimensions = testing::Types<KdDbAlignedDimension, KdDbRotatedDimension>;
TYPED_TEST_SUITE(CurveOfADimension, LinearDimensions);

TYPED_TEST(CurveOfADimension, RunsBetweenThePointsThatItMeasures)
{
    TypeParam dimension;
    dimension.edit().xLine1Point = {1, 2, 3};
    dimension.edit().xLine2Point = {4, 6, 3};
    const auto bounded = curveOf(dimension);
    ASSERT_TRUE(as<KdGeLineSeg3d>(bounded));
    expectNear(startOf(*bounded), {1, 2, 3});
    expectNear(endOf(*bounded), {4, 6, 3});
    const auto unbounded = curveOf(dimension, true);
    ASSERT_TRUE(as<KdGeLine3d>(unbounded));
    expectNear(unbounded->evalPoint(-5), {-2, -2, 3});
}

TEST(CurveOfAText, IsTheRectangleOfItsExtents)
{
    class Boxed : public KdDbText
    {
        KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override
        {
            extents = {{1, 2, 5}, {4, 3, 6}};
            return eOk;
        }
    };
    const Boxed text;
    const auto curve = curveOf(text);
    ASSERT_TRUE(as<KdGePolyline3d>(curve));
    EXPECT_THAT(as<KdGePolyline3d>(curve)->points(),
                testing::ElementsAre(KdGePoint3d{1, 2, 5}, KdGePoint3d{4, 2, 5},
                                     KdGePoint3d{4, 3, 5}, KdGePoint3d{1, 3, 5},
                                     KdGePoint3d{1, 2, 5}));
}

TEST(CurveOfAnEntity, IsNullForOthers)
{
    EXPECT_EQ(asIcGeCurve(nullptr, false, false), nullptr);
    EXPECT_EQ(curveOf(KdDbSpline()), nullptr);
    EXPECT_EQ(curveOf(KdDbHelix()), nullptr);
    EXPECT_EQ(curveOf(KdDbHatch()), nullptr);
    EXPECT_EQ(curveOf(KdDbPoint()), nullptr);
}

TEST(CurveOfAnEntity, IsNullForADerivedClassIfTheExactOneIsAskedFor)
{
    Stub<KdDbAttribute> attribute;
    const KdDbLine line;
    EXPECT_EQ(asIcGeCurve(&attribute, false, true), nullptr);
    EXPECT_NE(std::unique_ptr<KdGeCurve3d>(asIcGeCurve(&line, false, true)), nullptr);
    Stub<KdDbWipeout> wipeout;
    wipeout.given = kCorners;
    EXPECT_NE(std::unique_ptr<KdGeCurve3d>(asIcGeCurve(&wipeout, false, true)), nullptr);
}

} // namespace
