#include <numbers>

#include <entities/circle.h>
#include <entities/line.h>
#include <entities/ray.h>
#include <entities/spline.h>

#include "support.h"

namespace {

using namespace entity_test;

constexpr double kPi = std::numbers::pi;

KdGePoint3d startOf(const KdDbCurve& curve)
{
    KdGePoint3d point;
    EXPECT_EQ(curve.getStartPoint(point), eOk);
    return point;
}

KdGePoint3d endOf(const KdDbCurve& curve)
{
    KdGePoint3d point;
    EXPECT_EQ(curve.getEndPoint(point), eOk);
    return point;
}

double startParamOf(const KdDbCurve& curve)
{
    double parameter = -1.0;
    EXPECT_EQ(curve.getStartParam(parameter), eOk);
    return parameter;
}

double endParamOf(const KdDbCurve& curve)
{
    double parameter = -1.0;
    EXPECT_EQ(curve.getEndParam(parameter), eOk);
    return parameter;
}

double areaOf(const KdDbCurve& curve)
{
    double area = -1.0;
    EXPECT_EQ(curve.getArea(area), eOk);
    return area;
}

TEST(CurveOperations, OfAKindWithoutThemLeaveTheOutputAlone)
{
    const KdDbSpline spline;
    double number = 7.0;
    KdGePoint3d point{1, 2, 3};
    EXPECT_EQ(spline.getStartParam(number), eNotApplicable);
    EXPECT_EQ(spline.getEndParam(number), eNotApplicable);
    EXPECT_EQ(spline.getArea(number), eNotApplicable);
    EXPECT_EQ(spline.getStartPoint(point), eNotApplicable);
    EXPECT_EQ(spline.getEndPoint(point), eNotApplicable);
    EXPECT_EQ(number, 7.0);
    EXPECT_EQ(point, (KdGePoint3d{1, 2, 3}));
}

TEST(LineOperations, MeasureTheDistanceFromTheStart)
{
    KdDbLine line;
    line.edit().start = {1, 1, 1};
    line.edit().end = {3, 4, 7};
    EXPECT_EQ(startParamOf(line), 0.0);
    EXPECT_EQ(endParamOf(line), 7.0);
    EXPECT_EQ(startOf(line), (KdGePoint3d{1, 1, 1}));
    EXPECT_EQ(endOf(line), (KdGePoint3d{3, 4, 7}));
}

TEST(LineOperations, KnowNoArea)
{
    double area = 7.0;
    EXPECT_EQ(KdDbLine().getArea(area), eNotApplicable);
    EXPECT_EQ(area, 7.0);
}

TEST(CircleOperations, GoOnceRound)
{
    KdDbCircle circle;
    circle.edit().center = {1, 2, 3};
    circle.edit().radius = 2;
    EXPECT_EQ(startParamOf(circle), 0.0);
    EXPECT_EQ(endParamOf(circle), 2 * kPi);
    EXPECT_EQ(startOf(circle), (KdGePoint3d{3, 2, 3}));
    EXPECT_EQ(endOf(circle), (KdGePoint3d{3, 2, 3}));
    EXPECT_DOUBLE_EQ(areaOf(circle), 4 * kPi);
}

/// Radius 2 about the origin.
class ArcOperations : public testing::Test
{
  protected:
    void turn(double start, double end)
    {
        arc.edit().radius = 2;
        arc.edit().startAngle = start;
        arc.edit().endAngle = end;
    }

    KdDbArc arc;
};

TEST_F(ArcOperations, GoFromTheStartAngleToTheEndAngle)
{
    turn(kPi / 2, kPi);
    EXPECT_EQ(startParamOf(arc), kPi / 2);
    EXPECT_EQ(endParamOf(arc), kPi);
    EXPECT_THAT(startOf(arc), IsNear(KdGePoint3d{0, 2, 0}));
    EXPECT_THAT(endOf(arc), IsNear(KdGePoint3d{-2, 0, 0}));
}

TEST_F(ArcOperations, EndInTheNextTurnIfTheEndAngleIsTheSmallerOne)
{
    turn(3 * kPi / 2, kPi / 2);
    EXPECT_EQ(startParamOf(arc), 3 * kPi / 2);
    EXPECT_DOUBLE_EQ(endParamOf(arc), 5 * kPi / 2);
}

TEST_F(ArcOperations, KeepAWholeTurnAndDropMore)
{
    turn(0, 2 * kPi);
    EXPECT_EQ(endParamOf(arc), 2 * kPi);
    turn(0, 9 * kPi / 2);
    EXPECT_DOUBLE_EQ(endParamOf(arc), kPi / 2);
    turn(1, 1);
    EXPECT_EQ(endParamOf(arc), 1.0);
}

TEST_F(ArcOperations, KeepAWholeTurnWhoseAnglesAreRounded)
{
    const double degree = kPi / 180;
    for (int start = 0; start < 360; ++start) {
        turn(start * degree, (start + 360) * degree);
        EXPECT_NEAR(endParamOf(arc) - startParamOf(arc), 2 * kPi, 1e-12) << start;
    }
}

TEST_F(ArcOperations, MeasureTheAreaDownToTheChord)
{
    turn(0, kPi);
    EXPECT_DOUBLE_EQ(areaOf(arc), 2 * kPi);
    turn(kPi / 2, kPi);
    EXPECT_DOUBLE_EQ(areaOf(arc), kPi - 2); // a quarter less the triangle
    turn(kPi, kPi / 2);
    EXPECT_DOUBLE_EQ(areaOf(arc), 3 * kPi + 2); // three quarters and the triangle
}

using ArcInFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, ArcInFrame, frames(), frameName());

TEST_P(ArcInFrame, HasItsEndsInTheWorld)
{
    KdDbArc arc;
    arc.edit().center = {1, 3, 5}; // the start lies at (2, 3, 5)
    arc.edit().radius = 1;
    arc.edit().endAngle = kPi;
    arc.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(startOf(arc), IsNear(GetParam().world));
    const KdGePoint3d center = arc.center();
    EXPECT_THAT(endOf(arc), IsNear(center + (center - GetParam().world)));
}

TEST(RayOperations, KnowAStartOnly)
{
    KdDbRay ray;
    ray.edit().basePoint = {1, 2, 3};
    EXPECT_EQ(startParamOf(ray), 0.0);
    EXPECT_EQ(startOf(ray), (KdGePoint3d{1, 2, 3}));
    double number = 7.0;
    KdGePoint3d point;
    EXPECT_EQ(ray.getEndParam(number), eNotApplicable);
    EXPECT_EQ(ray.getEndPoint(point), eNotApplicable);
}

TEST(RayOperations, KnowNoEndsOfAConstructionLine)
{
    const KdDbXline line;
    double number = 7.0;
    KdGePoint3d point;
    EXPECT_EQ(line.getStartParam(number), eNotApplicable);
    EXPECT_EQ(line.getStartPoint(point), eNotApplicable);
    EXPECT_EQ(line.getEndPoint(point), eNotApplicable);
}

template <class Host>
class RayLike : public testing::Test
{
};
using RayKinds = testing::Types<KdDbRay, KdDbXline>;
TYPED_TEST_SUITE(RayLike, RayKinds);

TYPED_TEST(RayLike, HasADirectionOfLengthOne)
{
    TypeParam ray;
    EXPECT_EQ(ray.basePoint(), KdGePoint3d::kOrigin);
    EXPECT_EQ(ray.unitDir(), KdGeVector3d::kXAxis);
    ray.edit().direction = {0, 3, -4};
    EXPECT_THAT(ray.unitDir(), IsNear(KdGeVector3d{0, 0.6, -0.8}));
}

} // namespace
