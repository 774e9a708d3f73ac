#include <geometry/arcs.h>

#include <cmath>

#include "support.h"

namespace {

using namespace geometry_test;

TEST(Turn, PutsAnEndBehindItsStart)
{
    EXPECT_EQ(KdGe::endOfTurn(1, 2), 2.0);
    EXPECT_DOUBLE_EQ(KdGe::endOfTurn(3 * kPi / 2, kPi / 2), 5 * kPi / 2);
    EXPECT_EQ(KdGe::endOfTurn(0, 2 * kPi), 2 * kPi);
    EXPECT_DOUBLE_EQ(KdGe::endOfTurn(0, 9 * kPi / 2), kPi / 2);
}

struct BulgeRow
{
    const char* name;
    double bulge;
    KdGePoint2d center;
    double radius;
    double angle;
    KdGePoint2d middle;
};

/// From (0, 0) to (2, 0).
class ArcOfBulge : public testing::TestWithParam<BulgeRow>
{
};

TEST_P(ArcOfBulge, HasItsCenterAndRunsThroughItsMiddle)
{
    const BulgeRow& row = GetParam();
    const KdGeCircArc2d arc({0, 0}, {2, 0}, row.bulge, false);
    EXPECT_NEAR(arc.center().x, row.center.x, kNear);
    EXPECT_NEAR(arc.center().y, row.center.y, kNear);
    EXPECT_NEAR(arc.radius(), row.radius, kNear);
    EXPECT_NEAR(arc.endAng() - arc.startAng(), row.angle, kNear);
    EXPECT_EQ(arc.isClockWise(), row.bulge < 0);
    EXPECT_NEAR(arc.length(), row.radius * row.angle, kNear);
    const KdGePoint2d middle = arc.evalPoint(row.angle / 2);
    EXPECT_NEAR(middle.x, row.middle.x, kNear);
    EXPECT_NEAR(middle.y, row.middle.y, kNear);
    EXPECT_NEAR(arc.evalPoint(0).distanceTo({0, 0}), 0, kNear);
    EXPECT_NEAR(arc.evalPoint(arc.endAng()).distanceTo({2, 0}), 0, kNear);
}

const double kQuarter = std::sqrt(2.0) - 1; // tan(22.5 degrees)

INSTANTIATE_TEST_SUITE_P(
    Bulges, ArcOfBulge,
    testing::Values(
        BulgeRow{"halfCircle", 1, {1, 0}, 1, kPi, {1, -1}},
        BulgeRow{"halfCircleClockwise", -1, {1, 0}, 1, kPi, {1, 1}},
        BulgeRow{"quarter", kQuarter, {1, 1}, std::sqrt(2.0), kPi / 2, {1, 1 - std::sqrt(2.0)}},
        BulgeRow{"threeQuartersClockwise",
                 -1 / kQuarter,
                 {1, 1},
                 std::sqrt(2.0),
                 3 * kPi / 2,
                 {1, 1 + std::sqrt(2.0)}}),
    [](const auto& row) { return row.param.name; });

TEST(ArcOfSagitta, StandsAsHighOverItsChord)
{
    const KdGeCircArc2d arc({0, 0}, {4, 0}, 1, true);
    EXPECT_NEAR(arc.radius(), 2.5, kNear); // (2² + 1²) / (2 · 1)
    EXPECT_NEAR(arc.evalPoint(arc.endAng() / 2).y, -1, kNear);
}

TEST(CircularArc, IsAWholeCircleUnlessAnglesAreGiven)
{
    const KdGeCircArc3d circle({1, 2, 3}, {0, 0, 5}, 2);
    EXPECT_THAT(startOf(circle), IsNear(KdGePoint3d{3, 2, 3}));
    EXPECT_THAT(circle.evalPoint(kPi / 2), IsNear(KdGePoint3d{1, 4, 3}));
    EXPECT_DOUBLE_EQ(wholeLength(circle), 4 * kPi);
    EXPECT_DOUBLE_EQ(circle.areaVector().z, 4 * kPi);
    EXPECT_THAT(extentsOf(circle).minPoint, IsNear(KdGePoint3d{-1, 0, 3}));
    EXPECT_THAT(extentsOf(circle).maxPoint, IsNear(KdGePoint3d{3, 4, 3}));
}

TEST(CircularArc, RunsFromAngleToAngleAboutItsNormal)
{
    const KdGeCircArc3d arc({0, 0, 0}, {0, 0, -1}, {0, 7, 0}, 2, 3 * kPi / 2, kPi / 2);
    EXPECT_EQ(arc.radius(), 2.0);
    EXPECT_EQ(arc.refVec(), KdGeVector3d::kYAxis);
    EXPECT_EQ(arc.startAng(), 3 * kPi / 2);
    EXPECT_DOUBLE_EQ(arc.endAng(), 5 * kPi / 2);
    // Clockwise as seen from above: at a right angle from Y lies X.
    EXPECT_THAT(startOf(arc), IsNear(KdGePoint3d{-2, 0, 0}));
    EXPECT_THAT(endOf(arc), IsNear(KdGePoint3d{2, 0, 0}));
    EXPECT_DOUBLE_EQ(wholeLength(arc), 2 * kPi);
    EXPECT_THAT(arc.areaVector(), IsNear(KdGeVector3d{0, 0, -2 * kPi}));
    EXPECT_THAT(extentsOf(arc).minPoint, IsNear(KdGePoint3d{-2, 0, 0}));
    EXPECT_THAT(extentsOf(arc).maxPoint, IsNear(KdGePoint3d{2, 2, 0}));
}

TEST(CircularArc, RunsBackAfterReversal)
{
    KdGeCircArc3d arc({1, 0, 0}, {0, 0, 1}, {1, 0, 0}, 2, 0.5, 2.0);
    const KdGePoint3d start = startOf(arc);
    const KdGePoint3d end = endOf(arc);
    const KdGePoint3d middle = arc.evalPoint(1.25);
    arc.reverseParam();
    EXPECT_EQ(arc.normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_THAT(startOf(arc), IsNear(end));
    EXPECT_THAT(endOf(arc), IsNear(start));
    EXPECT_THAT(arc.evalPoint(-1.25), IsNear(middle));
    EXPECT_DOUBLE_EQ(wholeLength(arc), 3.0);
}

TEST(CircularArc, HasATightBoxInATiltedPlane)
{
    // About (1, 1, 1): along each axis the circle reaches sqrt(1 - 1/3).
    const KdGeExtents3d extents = extentsOf(KdGeCircArc3d({0, 0, 0}, {1, 1, 1}, 3));
    const double reach = std::sqrt(6.0);
    EXPECT_THAT(extents.minPoint, IsNear(KdGePoint3d{-reach, -reach, -reach}));
    EXPECT_THAT(extents.maxPoint, IsNear(KdGePoint3d{reach, reach, reach}));
}

TEST(EllipticalArc, RunsThroughItsAxes)
{
    const KdGeEllipArc3d ellipse({1, 2, 3}, {0, 1, 0}, {-1, 0, 0}, 4, 2);
    EXPECT_EQ(ellipse.majorRadius(), 4.0);
    EXPECT_EQ(ellipse.minorRadius(), 2.0);
    EXPECT_THAT(startOf(ellipse), IsNear(KdGePoint3d{1, 6, 3}));
    EXPECT_THAT(ellipse.evalPoint(kPi / 2), IsNear(KdGePoint3d{-1, 2, 3}));
    EXPECT_THAT(extentsOf(ellipse).minPoint, IsNear(KdGePoint3d{-1, -2, 3}));
    EXPECT_THAT(extentsOf(ellipse).maxPoint, IsNear(KdGePoint3d{3, 6, 3}));
    EXPECT_DOUBLE_EQ(ellipse.areaVector().z, 8 * kPi);
}

TEST(EllipticalArc, HasALength)
{
    // 8 E(3/4), the complete integral from tables.
    EXPECT_NEAR(wholeLength(KdGeEllipArc3d({}, {1, 0, 0}, {0, 1, 0}, 2, 1)), 9.688448220547675,
                1e-13);
    const KdGeEllipArc3d quarter({}, {1, 0, 0}, {0, 1, 0}, 2, 1, kPi / 2, kPi);
    EXPECT_NEAR(wholeLength(quarter), 9.688448220547675 / 4, 1e-13);
    EXPECT_NEAR(quarter.length(kPi, 0, kTolerance), 9.688448220547675 / 4, 1e-13);
}

TEST(EllipticalArc, HasTheLengthOfALineThereAndBackOnceItIsFlat)
{
    EXPECT_NEAR(wholeLength(KdGeEllipArc3d({}, {1, 0, 0}, {0, 1, 0}, 3, 0)), 12.0, 1e-11);
}

} // namespace
