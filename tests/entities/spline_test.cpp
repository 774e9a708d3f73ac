#include <entities/spline.h>

#include <cmath>
#include <numbers>

#include "support.h"

namespace {

using namespace entity_test;
using testing::ElementsAre;

/// y = x (1 - x) at the height 7, as a curve of degree 2.
class Spline : public testing::Test
{
  protected:
    Spline()
    {
        SplineMembers& members = spline.edit();
        members.degree = 2;
        members.knots = {0, 0, 0, 1, 1, 1};
        members.controlPoints = {{0, 0, 7}, {0.5, 0.5, 7}, {1, 0, 7}};
    }
    double area() const
    {
        double value = -1.0;
        EXPECT_EQ(KdDbCurveArea(&spline).getArea(value), eOk);
        return value;
    }

    KdDbSpline spline;
};

TEST_F(Spline, TellsItsControlPoints)
{
    EXPECT_EQ(spline.degree(), 2);
    EXPECT_EQ(spline.numControlPoints(), 3);
    KdGePoint3d point;
    EXPECT_EQ(spline.getControlPointAt(1, point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{0.5, 0.5, 7}));
    for (const int outside : {-1, 3})
        EXPECT_EQ(spline.getControlPointAt(outside, point), eOutOfRange);
    EXPECT_EQ(point, (KdGePoint3d{0.5, 0.5, 7}));
}

TEST_F(Spline, HasWeightsOnlyIfItIsRational)
{
    EXPECT_TRUE(spline.getNurbsData().weights.empty());
    EXPECT_FALSE(spline.getNurbsData().rational);
    EXPECT_EQ(spline.weightAt(1), 1.0);
    spline.edit().weights = {1, 3, 1};
    EXPECT_TRUE(spline.getNurbsData().rational);
    EXPECT_THAT(spline.getNurbsData().weights, ElementsAre(1, 3, 1));
    EXPECT_EQ(spline.weightAt(1), 3.0);
    EXPECT_EQ(spline.weightAt(-1), 1.0);
    EXPECT_EQ(spline.weightAt(3), 1.0);
}

TEST_F(Spline, ShowsWhatDefinesItsCurve)
{
    spline.edit().periodic = true;
    const KdDbNurbsData data = spline.getNurbsData();
    EXPECT_EQ(data.degree, 2);
    EXPECT_THAT(data.knots, ElementsAre(0, 0, 0, 1, 1, 1));
    EXPECT_EQ(data.controlPoints.size(), 3u);
    EXPECT_TRUE(data.periodic);
    EXPECT_FALSE(data.closed);
    EXPECT_EQ(data.knotTolerance, 1e-7);
}

TEST_F(Spline, TellsItsFitData)
{
    EXPECT_EQ(spline.numFitPoints(), 0);
    KdGePoint3d point{7, 7, 7};
    KdGeVector3d start{7, 7, 7};
    KdGeVector3d end{7, 7, 7};
    EXPECT_EQ(spline.getFitPointAt(0, point), eOutOfRange);
    EXPECT_EQ(spline.getFitTangents(start, end), eNotApplicable);
    EXPECT_EQ(point, (KdGePoint3d{7, 7, 7}));
    EXPECT_EQ(start, (KdGeVector3d{7, 7, 7}));
    spline.edit().fitPoints = {{1, 2, 3}};
    spline.edit().startTangent = {0, 1, 0};
    spline.edit().fitTolerance = 0.25;
    EXPECT_EQ(spline.numFitPoints(), 1);
    EXPECT_EQ(spline.getFitPointAt(0, point), eOk);
    EXPECT_EQ(point, (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(spline.getFitTangents(start, end), eOk);
    EXPECT_EQ(start, (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(end, KdGeVector3d());
    EXPECT_EQ(spline.fitTolerance(), 0.25);
}

TEST_F(Spline, MeasuresItsCurve)
{
    double number = -1.0;
    KdGePoint3d point;
    EXPECT_EQ(spline.getStartParam(number), eOk);
    EXPECT_EQ(number, 0.0);
    EXPECT_EQ(spline.getEndParam(number), eOk);
    EXPECT_EQ(number, 1.0);
    EXPECT_EQ(spline.getEndPoint(point), eOk);
    EXPECT_THAT(point, IsNear(KdGePoint3d{1, 0, 7}));
    EXPECT_EQ(spline.getPointAtParam(0.25, point), eOk);
    EXPECT_THAT(point, IsNear(KdGePoint3d{0.25, 0.1875, 7}));
    EXPECT_EQ(spline.getDistAtParam(1, number), eOk);
    EXPECT_NEAR(number, (std::sqrt(2.0) + std::asinh(1.0)) / 2, 1e-14); // by hand
    EXPECT_NEAR(area(), 1.0 / 6, 1e-15);
    KdGeExtents3d extents;
    EXPECT_EQ(spline.getGeomExtents(extents), eOk);
    EXPECT_THAT(extents.maxPoint, IsNear(KdGePoint3d{1, 0.25, 7}));
}

TEST_F(Spline, IsPlanarByItsFlagOrByItsPoints)
{
    EXPECT_TRUE(spline.isPlanar());
    SplineMembers& members = spline.edit();
    members.degree = 3;
    members.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    members.controlPoints = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, 1, 1}};
    EXPECT_FALSE(spline.isPlanar());
    double value = 7.0;
    EXPECT_EQ(spline.getArea(value), eNotApplicable);
    EXPECT_EQ(value, 7.0);
    members.planar = true;
    EXPECT_TRUE(spline.isPlanar());
}

TEST_F(Spline, IsClosedIfTheDrawingSaysSo)
{
    EXPECT_FALSE(spline.isClosed());
    spline.edit().closed = true;
    EXPECT_TRUE(spline.isClosed());
    spline.edit().closed = false;
    spline.edit().periodic = true;
    EXPECT_TRUE(spline.isClosed());
}

TEST_F(Spline, HasNoMeasuresIfItsListsDoNotFit)
{
    spline.edit().knots.pop_back();
    double number = 7.0;
    KdGeExtents3d extents;
    EXPECT_EQ(spline.getEndParam(number), eNotApplicable);
    EXPECT_EQ(spline.getArea(number), eNotApplicable);
    EXPECT_EQ(spline.getGeomExtents(extents), eNotApplicable);
    EXPECT_EQ(number, 7.0);
}

TEST_F(Spline, IsTakenHoldOfAtItsFitPointsOrElseAtItsControlPoints)
{
    KdArray<KdGePoint3d> points;
    EXPECT_EQ(spline.getGripPoints(points), eOk);
    EXPECT_EQ(points.length(), 3);
    points.removeAll();
    spline.edit().fitPoints = {{1, 2, 3}};
    EXPECT_EQ(spline.getGripPoints(points), eOk);
    ASSERT_EQ(points.length(), 1);
    EXPECT_EQ(points[0], (KdGePoint3d{1, 2, 3}));
}

TEST(SplineFitData, GiveACurveWhereThereIsNone)
{
    KdDbSpline spline;
    SplineMembers& members = spline.edit();
    members.degree = 5;
    members.fitPoints = {{0, 0, 0}, {3, 4, 0}, {6, 0, 0}};
    members.fitCurve();
    EXPECT_EQ(spline.degree(), 3);
    EXPECT_EQ(spline.numControlPoints(), 5);
    KdGePoint3d point;
    EXPECT_EQ(spline.getPointAtParam(5, point), eOk);
    EXPECT_THAT(point, IsNear(KdGePoint3d{3, 4, 0}));
}

TEST(SplineFitData, LeaveAGivenCurveAlone)
{
    SplineMembers members;
    members.controlPoints = {{1, 1, 1}};
    members.fitPoints = {{0, 0, 0}, {3, 4, 0}};
    members.fitCurve();
    EXPECT_EQ(members.controlPoints.size(), 1u);
    EXPECT_TRUE(members.knots.empty());
}

TEST(SplineFitData, GiveNoCurveIfTheyAreTooFew)
{
    SplineMembers members;
    members.fitPoints = {{0, 0, 0}};
    members.fitCurve();
    EXPECT_TRUE(members.controlPoints.empty());
    EXPECT_EQ(members.degree, 3);
}

TEST(Helix, TellsItsMeasures)
{
    KdDbHelix helix;
    HelixMembers& members = helix.edit();
    members.axisPoint = {1, 2, 3};
    members.startPoint = {1, 5, 3};
    members.axis = {0, 0, 4};
    members.topRadius = 1;
    members.turns = 2.5;
    members.turnHeight = 4;
    members.constraint = KdDb::kHelixTurns;
    members.rightHanded = false;
    EXPECT_EQ(helix.position(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(helix.axisVector(), KdGeVector3d::kZAxis);
    EXPECT_EQ(helix.baseRadius(), 3.0);
    EXPECT_EQ(helix.topRadius(), 1.0);
    EXPECT_EQ(helix.turns(), 2.5);
    EXPECT_EQ(helix.turnHeight(), 4.0);
    EXPECT_EQ(helix.height(), 10.0);
    EXPECT_DOUBLE_EQ(helix.turnSlope(), 1 / std::numbers::pi);
    EXPECT_EQ(helix.constrain(), 2);
    EXPECT_FALSE(helix.twist());
}

TEST(Helix, HasNoSlopeWithoutARadius)
{
    const KdDbHelix helix;
    EXPECT_EQ(helix.turnSlope(), 0.0);
    EXPECT_TRUE(helix.twist());
}

} // namespace
