#include <geometry/nurb_curve.h>

#include <cmath>
#include <limits>
#include <utility>
#include <vector>

#include "support.h"

namespace {

using namespace geometry_test;

using Knots = std::vector<double>;
using Points = std::vector<KdGePoint3d>;

constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// y = x (1 - x), as a curve of degree 2.
std::unique_ptr<KdGeNurbCurve3d> parabola()
{
    return KdGeNurbCurve3d::create(2, Knots{0, 0, 0, 1, 1, 1},
                                   Points{{0, 0, 7}, {0.5, 0.5, 7}, {1, 0, 7}});
}

/// Radius 2 about the origin, as four rational quarters.
std::unique_ptr<KdGeNurbCurve3d> circle()
{
    const double w = std::sqrt(0.5);
    return KdGeNurbCurve3d::create(2, Knots{0, 0, 0, 1, 1, 2, 2, 3, 3, 4, 4, 4},
                                   Points{{2, 0, 0},
                                          {2, 2, 0},
                                          {0, 2, 0},
                                          {-2, 2, 0},
                                          {-2, 0, 0},
                                          {-2, -2, 0},
                                          {0, -2, 0},
                                          {2, -2, 0},
                                          {2, 0, 0}},
                                   Knots{1, w, 1, w, 1, w, 1, w, 1});
}

TEST(Spline, RunsOverItsKnots)
{
    const auto curve = parabola();
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->interval().lower, 0.0);
    EXPECT_EQ(curve->interval().upper, 1.0);
    EXPECT_THAT(curve->evalPoint(0.25), IsNear(KdGePoint3d{0.25, 0.1875, 7}));
    EXPECT_THAT(startOf(*curve), IsNear(KdGePoint3d{0, 0, 7}));
    EXPECT_THAT(endOf(*curve), IsNear(KdGePoint3d{1, 0, 7}));
}

TEST(Spline, HasTheLengthOfAParabola)
{
    // The integral of sqrt(1 + (1 - 2x)²), by hand: (sqrt 2 + asinh 1) / 2.
    const double expected = (std::sqrt(2.0) + std::asinh(1.0)) / 2;
    const auto curve = parabola();
    ASSERT_TRUE(curve);
    EXPECT_NEAR(wholeLength(*curve), expected, 1e-14);
    EXPECT_NEAR(curve->length(0.5, 0, kTolerance), expected / 2, 1e-14);
    EXPECT_NEAR(curve->length(-3, 4, kTolerance), expected, 1e-14);
}

TEST(Spline, HasTheAreaAndTheBoxOfAParabola)
{
    const auto curve = parabola();
    ASSERT_TRUE(curve);
    EXPECT_THAT(curve->areaVector(), IsNear(KdGeVector3d{0, 0, -1.0 / 6}));
    EXPECT_THAT(extentsOf(*curve).minPoint, IsNear(KdGePoint3d{0, 0, 7}));
    EXPECT_THAT(extentsOf(*curve).maxPoint, IsNear(KdGePoint3d{1, 0.25, 7}));
}

TEST(RationalSpline, MeasuresLikeTheCircleThatItIs)
{
    const auto curve = circle();
    ASSERT_TRUE(curve);
    EXPECT_NEAR(wholeLength(*curve), 4 * kPi, 1e-12);
    EXPECT_THAT(curve->areaVector(), IsNear(KdGeVector3d{0, 0, 4 * kPi}));
    EXPECT_THAT(curve->evalPoint(1.5), IsNear(KdGePoint3d{-std::sqrt(2.0), std::sqrt(2.0), 0}));
    EXPECT_THAT(extentsOf(*curve).minPoint, IsNear(KdGePoint3d{-2, -2, 0}));
    EXPECT_THAT(extentsOf(*curve).maxPoint, IsNear(KdGePoint3d{2, 2, 0}));
}

TEST(Spline, MayRunBackAndForthOnALine)
{
    // x' = 6 - 30t + 30t² vanishes twice, where the curve turns round.
    const auto curve = KdGeNurbCurve3d::create(3, Knots{0, 0, 0, 0, 1, 1, 1, 1},
                                               Points{{0, 0, 0}, {2, 0, 0}, {-1, 0, 0}, {1, 0, 0}});
    const double turn = 0.5 - std::sqrt(0.05);
    const double reach = turn * (6 + turn * (10 * turn - 15));
    ASSERT_TRUE(curve);
    EXPECT_NEAR(wholeLength(*curve), 4 * reach - 1, 1e-11);
}

TEST(Spline, MayHaveEndsThatItsControlPointsDoNotReach)
{
    // A uniform curve of degree 1 less: with knots 0..4 only the middle is run through.
    const auto curve = KdGeNurbCurve3d::create(1, Knots{0, 1, 2, 3}, Points{{0, 0, 0}, {4, 0, 0}});
    ASSERT_TRUE(curve);
    EXPECT_EQ(curve->interval().lower, 1.0);
    EXPECT_EQ(curve->interval().upper, 2.0);
    EXPECT_THAT(endOf(*curve), IsNear(KdGePoint3d{4, 0, 0}));
}

TEST(PartOfASpline, IsTheCurveBetweenTwoParameters)
{
    const auto part = parabola()->part(0.25, 0.75);
    ASSERT_TRUE(part);
    EXPECT_EQ(part->interval().lower, 0.25);
    EXPECT_EQ(part->interval().upper, 0.75);
    EXPECT_THAT(startOf(*part), IsNear(KdGePoint3d{0.25, 0.1875, 7}));
    EXPECT_THAT(part->evalPoint(0.5), IsNear(KdGePoint3d{0.5, 0.25, 7}));
    EXPECT_THAT(endOf(*part), IsNear(KdGePoint3d{0.75, 0.1875, 7}));
}

TEST(PartOfASpline, RunsBackFromAHigherParameter)
{
    const auto part = parabola()->part(1, 0.5);
    ASSERT_TRUE(part);
    EXPECT_THAT(startOf(*part), IsNear(KdGePoint3d{1, 0, 7}));
    EXPECT_THAT(endOf(*part), IsNear(KdGePoint3d{0.5, 0.25, 7}));
}

TEST(PartOfASpline, EndsWhereTheSplineDoes)
{
    const auto part = parabola()->part(-5, 5);
    ASSERT_TRUE(part);
    EXPECT_NEAR(wholeLength(*part), wholeLength(*parabola()), 1e-14);
}

TEST(PartOfASpline, IsNoneWithoutLength)
{
    EXPECT_FALSE(parabola()->part(0.5, 0.5));
    EXPECT_FALSE(parabola()->part(2, 3));
}

TEST(Spline, MayShrinkToAPoint)
{
    const auto curve = KdGeNurbCurve3d::create(1, Knots{0, 0, 1, 1}, Points{{1, 2, 3}, {1, 2, 3}});
    ASSERT_TRUE(curve);
    EXPECT_EQ(wholeLength(*curve), 0.0);
    EXPECT_THAT(extentsOf(*curve).minPoint, IsNear(KdGePoint3d{1, 2, 3}));
}

struct BadSpline
{
    const char* name;
    int degree;
    Knots knots;
    Knots weights;
    double firstX = 0.0;
};

class DamagedSpline : public testing::TestWithParam<BadSpline>
{
};

TEST_P(DamagedSpline, IsRefused)
{
    const BadSpline& row = GetParam();
    const Points points{{row.firstX, 0, 0}, {1, 1, 0}, {2, 0, 0}};
    EXPECT_FALSE(KdGeNurbCurve3d::create(row.degree, row.knots, points, row.weights));
}

INSTANTIATE_TEST_SUITE_P(
    Lists, DamagedSpline,
    testing::Values(BadSpline{"degreeZero", 0, {0, 1, 2, 3}, {}},
                    BadSpline{"degreeAboveAll", 26, Knots(30, 0.0), {}},
                    BadSpline{"tooFewPoints", 3, {0, 0, 0, 0, 1, 1, 1}, {}},
                    BadSpline{"tooFewKnots", 2, {0, 0, 0, 1, 1}, {}},
                    BadSpline{"noKnots", 2, {}, {}},
                    BadSpline{"fallingKnots", 2, {0, 0, 0, 1, 0.5, 1}, {}},
                    BadSpline{"equalKnots", 2, {1, 1, 1, 1, 1, 1}, {}},
                    BadSpline{"knotTooOften", 1, {0, 0.5, 0.5, 0.5, 1}, {}},
                    BadSpline{"noNumberAsKnot", 2, {0, 0, 0, 1, 1, kNotANumber}, {}},
                    BadSpline{"noNumberAsPoint", 2, {0, 0, 0, 1, 1, 1}, {}, kNotANumber},
                    BadSpline{"weightZero", 2, {0, 0, 0, 1, 1, 1}, {1, 0, 1}},
                    BadSpline{"weightMissing", 2, {0, 0, 0, 1, 1, 1}, {1, 1}}),
    [](const auto& row) { return row.param.name; });

std::unique_ptr<KdGeNurbCurve3d> curveThrough(const KdGeFitData& data)
{
    const KdGeFitCurve fit = kdgeInterpolate(data);
    return KdGeNurbCurve3d::create(3, fit.knots, fit.controlPoints);
}

TEST(FitCurve, RunsThroughItsPoints)
{
    const Points points{{0, 0, 0}, {3, 4, 0}, {6, 0, 5}, {7, 1, 1}};
    const auto curve = curveThrough({points, {}, {}});
    ASSERT_TRUE(curve);
    double way = 0.0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        way += i > 0 ? points[i].distanceTo(points[i - 1]) : 0.0;
        EXPECT_THAT(curve->evalPoint(way), IsNear(points[i])) << i;
    }
}

TEST(FitCurve, IsTheNaturalSplineUnlessTangentsAreGiven)
{
    // y over x = 0, 1, 2 with the values 0, 1, 0: y = 1.5 x - 0.5 x³ up to the middle.
    const Points points{{0, 0, 0}, {std::sqrt(0.5), std::sqrt(0.5), 0}, {std::sqrt(2.0), 0, 0}};
    const auto curve = curveThrough({points, {}, {}});
    ASSERT_TRUE(curve);
    const KdGePoint3d middle = curve->evalPoint(0.5);
    EXPECT_NEAR(middle.y, std::sqrt(0.5) * (1.5 * 0.5 - 0.5 * 0.125), kNear);
}

TEST(FitCurve, LeavesAlongItsTangents)
{
    const Points points{{0, 0, 0}, {4, 0, 0}};
    const auto curve = curveThrough({points, {0, 9, 0}, {0, -2, 0}});
    ASSERT_TRUE(curve);
    // The cubic with both slopes 1: y = x (1 - x / 4)... at unit speed, 4 long.
    EXPECT_NEAR(curve->evalPoint(2).y, 1.0, kNear);
    EXPECT_NEAR(curve->evalPoint(2).x, 2.0, kNear);
}

TEST(FitCurve, HasTheControlPointsThatAnIndependentLibraryFinds)
{
    const Points points{{0, 0, 0}, {3, 4, 0}, {6, 0, 5}, {7, 1, 1}};
    const Points expected{{0, 0, 0},
                          {0, 1.6666666666666667, 0},
                          {4.0596563714719345, 6.970310600056484, -2.2606676376004153},
                          {6.685813255658629, -2.0912420211399096, 9.436052800706818},
                          {5.585786437626905, 1, 1},
                          {7, 1, 1}};
    const KdGeFitCurve curve = kdgeInterpolate({points, {0, 1, 0}, {1, 0, 0}});
    ASSERT_EQ(curve.controlPoints.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_THAT(curve.controlPoints[i], IsNear(expected[i])) << i;
}

TEST(FitCurve, ClosesSmoothly)
{
    Points points;
    for (int i = 0; i < 12; ++i)
        points.push_back({std::cos(i * kPi / 6), std::sin(i * kPi / 6), 0});
    const auto curve = curveThrough({points, {}, {}, true});
    ASSERT_TRUE(curve);
    EXPECT_THAT(startOf(*curve), IsNear(endOf(*curve)));
    // By symmetry, each twelfth is alike; without care for the seam the first would differ.
    const double upper = curve->interval().upper;
    const double first = curve->length(0, upper / 12, kTolerance);
    EXPECT_NEAR(curve->length(upper / 2, upper * 7 / 12, kTolerance), first, 1e-12);
    EXPECT_NEAR(curve->length(upper * 11 / 12, upper, kTolerance), first, 1e-12);
    EXPECT_NEAR(wholeLength(*curve), 2 * kPi, 1e-3);
}

TEST(FitCurve, PassesOverPointsThatRepeatTheOneBefore)
{
    const Points points{{0, 0, 0}, {0, 0, 0}, {1, 1, 0}, {1, 1, 0}, {2, 0, 0}};
    const Points plain{{0, 0, 0}, {1, 1, 0}, {2, 0, 0}};
    EXPECT_EQ(kdgeInterpolate({points, {}, {}}).controlPoints,
              kdgeInterpolate({plain, {}, {}}).controlPoints);
}

/// The point of a piece at a part of its parameters.
KdGePoint3d pointOf(const KdGeCubic3d& piece, double t)
{
    const double s = 1.0 - t;
    KdGeVector3d sum = piece[0].asVector() * (s * s * s);
    sum = sum + piece[1].asVector() * (3.0 * s * s * t);
    sum = sum + piece[2].asVector() * (3.0 * s * t * t);
    sum = sum + piece[3].asVector() * (t * t * t);
    return KdGePoint3d() + sum;
}

TEST(CubicPieces, AreTheCurveItselfUpToDegreeThree)
{
    const Points points{{0, 0, 0}, {1, 5, 2}, {4, 6, 1}, {7, -2, 0}, {9, 1, 3}};
    for (const auto& [degree, knots] :
         {std::pair{1, std::vector<double>{0, 0, 1, 2, 3, 3.5, 3.5}},
          std::pair{2, std::vector<double>{0, 0, 0, 1, 1.5, 4, 4, 4}},
          std::pair{3, std::vector<double>{-1, 0, 0.5, 1, 2, 3, 4, 5, 6}}}) {
        const auto curve = KdGeNurbCurve3d::create(degree, knots, points);
        ASSERT_TRUE(curve);
        const std::vector<KdGeCubic3d> pieces = curve->cubicPieces();
        std::size_t piece = 0;
        const KdGeInterval whole = curve->interval();
        for (std::size_t i = 0; i + 1 < knots.size(); ++i) {
            if (knots[i] < whole.lower || knots[i + 1] > whole.upper || knots[i] == knots[i + 1])
                continue;
            ASSERT_LT(piece, pieces.size());
            for (const double t : {0.0, 0.3, 0.8, 1.0})
                EXPECT_THAT(pointOf(pieces[piece], t),
                            IsNear(curve->evalPoint(knots[i] + t * (knots[i + 1] - knots[i]))));
            ++piece;
        }
        EXPECT_EQ(piece, pieces.size());
    }
}

TEST(CubicPieces, FollowRationalAndHigherCurvesClosely)
{
    const double half = std::sqrt(0.5);
    const Points quarter{{1, 0, 0}, {1, 1, 0}, {0, 1, 0}};
    const std::vector<double> knots{0, 0, 0, 1, 1, 1};
    const std::vector<double> weights{1, half, 1};
    const auto curve = KdGeNurbCurve3d::create(2, knots, quarter, weights);
    ASSERT_TRUE(curve);
    const std::vector<KdGeCubic3d> pieces = curve->cubicPieces();
    EXPECT_LE(pieces.size(), 64U);
    for (const KdGeCubic3d& piece : pieces) {
        for (int i = 0; i <= 10; ++i)
            EXPECT_NEAR(pointOf(piece, i / 10.0).asVector().length(), 1.0, 1.5e-7);
    }
    EXPECT_EQ(pieces.front()[0], (KdGePoint3d{1, 0, 0}));
    EXPECT_THAT(pieces.back()[3], IsNear(KdGePoint3d{0, 1, 0}));
}

TEST(FitCurve, NeedsTwoPoints)
{
    const Points same{{1, 1, 1}, {1, 1, 1}};
    EXPECT_TRUE(kdgeInterpolate({same, {}, {}}).controlPoints.empty());
    EXPECT_TRUE(kdgeInterpolate({{}, {}, {}}).knots.empty());
}

} // namespace
