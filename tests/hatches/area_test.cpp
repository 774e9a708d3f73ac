#include <cmath>

#include <gtest/gtest.h>

#include "support.h"

namespace {

using namespace hatch_test;
using Style = HatchContent::Style;

struct ShapeRow
{
    const char* name;
    HatchLoop loop;
    double area;
};

class HatchShapes : public testing::TestWithParam<ShapeRow>
{
};

TEST_P(HatchShapes, HaveTheAreaOfTheirBoundary)
{
    const double area = GetParam().area;
    EXPECT_NEAR(areaOf(*hatchOf({GetParam().loop})), area, 1e-12 * area);
}

TEST_P(HatchShapes, KeepTheirAreaFarFromZero)
{
    constexpr double kFar = 1e7;
    HatchLoop loop = GetParam().loop;
    for (HatchVertex& vertex : loop.vertices)
        vertex.point = {vertex.point.x + kFar, vertex.point.y - kFar};
    for (HatchEdge& edge : loop.edges) {
        const auto move = [](KdGePoint2d& point) { point = {point.x + kFar, point.y - kFar}; };
        if (auto* line = std::get_if<HatchLineEdge>(&edge)) {
            move(line->start);
            move(line->end);
        } else {
            move(std::get<HatchArcEdge>(edge).center);
        }
    }
    EXPECT_NEAR(areaOf(*hatchOf({loop})), GetParam().area, 1e-7 * GetParam().area);
}

const HatchLineEdge kBase{{0, 0}, {4, 0}};

const ShapeRow kShapes[] = {
    {"square", rectangle(0, 0, 3, 3), 9},
    {"clockwiseSquare", backwards(rectangle(0, 0, 3, 3)), 9},
    {"triangle", polyline({{{0, 0}}, {{4, 0}}, {{0, 3}}}), 6},
    {"firstCornerTwice", polyline({{{0, 0}}, {{4, 0}}, {{0, 3}}, {{0, 0}}}), 6},
    {"halfCircle", polyline({{{-2, 0}}, {{2, 0}, 1.0}}), 2 * kPi},
    {"halfCircleCutOut",
     polyline({{{-3, -3}}, {{3, -3}}, {{3, 0}}, {{2, 0}, 1.0}, {{-2, 0}}, {{-3, 0}}}),
     18 + 2 * kPi},
    {"bayOfAHalfCircle",
     polyline({{{-3, -3}}, {{3, -3}}, {{3, 0}}, {{2, 0}, -1.0}, {{-2, 0}}, {{-3, 0}}}),
     18 - 2 * kPi},
    // a segment of angle a on radius r: r r (a - sin a) / 2; here a quarter circle over chord 2
    {"quarterArc", polyline({{{0, 0}, std::tan(kPi / 8)}, {{2, 0}}}), kPi / 2 - 1},
    {"threeQuarterArc", polyline({{{0, 0}, std::tan(3 * kPi / 8)}, {{2, 0}}}), 3 * kPi / 2 + 1},
    // 2/3 of chord and height, which is half the chord times the bulge
    {"hardlyAnArc", polyline({{{0, 0}, 1e-8}, {{2, 0}}}), 2.0 / 3 * 2 * 1e-8},
    {"circleOfTwoArcs", circle(5, 5, 2), 4 * kPi},
    {"wholeCircle", ellipse({1, 2}, {0, 3}, 1.0), 9 * kPi},
    {"wholeEllipse", ellipse({1, 2}, {3, 4}, 0.4), 10 * kPi},
    {"halfEllipse",
     edges({HatchArcEdge{{0, 0}, {4, 0}, 0.5, 0.0, kPi}, HatchLineEdge{{-4, 0}, {4, 0}}}), 4 * kPi},
    // quarter of the ellipse less its triangle
    {"segmentOfAnEllipse",
     edges({HatchArcEdge{{0, 0}, {4, 0}, 0.5, 0.0, kPi / 2}, HatchLineEdge{{0, 2}, {4, 0}}}),
     2 * kPi - 4},
    {"clockwiseHalfCircle", edges({kBase, HatchArcEdge{{2, 0}, {2, 0}, 1.0, 0.0, -kPi}}), 2 * kPi},
    {"edgesThatRunBackwards",
     edges({kBase, HatchLineEdge{{0, 3}, {4, 3}}, HatchLineEdge{{0, 3}, {0, 0}}}), 12},
    {"firstEdgeBackwards",
     edges({HatchLineEdge{{4, 0}, {0, 0}}, HatchLineEdge{{4, 0}, {4, 3}},
            HatchLineEdge{{4, 3}, {0, 3}}}),
     12},
    {"arcThatRunsBackwards", edges({kBase, HatchArcEdge{{2, 0}, {2, 0}, 1.0, kPi, 0.0}}), 2 * kPi},
    {"edgesWithoutSize",
     edges({kBase, HatchLineEdge{{4, 0}, {4, 0}}, HatchLineEdge{{4, 0}, {0, 3}}}), 6},
};
INSTANTIATE_TEST_SUITE_P(Rows, HatchShapes, testing::ValuesIn(kShapes),
                         [](const auto& row) { return std::string(row.param.name); });

HatchLoop splineOverItsChord(HatchSplineEdge spline)
{
    const std::vector<KdGePoint2d>& points =
        spline.controlPoints.empty() ? spline.fitPoints : spline.controlPoints;
    const HatchLineEdge chord{points.back(), points.front()};
    return edges({std::move(spline), chord});
}

struct SplineRow
{
    const char* name;
    HatchSplineEdge spline;
    double area;
    double highest;
};

class HatchSplines : public testing::TestWithParam<SplineRow>
{
};

TEST_P(HatchSplines, HaveTheAreaAndTheReachOfTheirCurve)
{
    const auto hatch = hatchOf({splineOverItsChord(GetParam().spline)});
    EXPECT_NEAR(areaOf(*hatch), GetParam().area, 1e-9);
    KdGeExtents3d box;
    ASSERT_EQ(hatch->getGeomExtents(box), eOk);
    EXPECT_NEAR(box.maxPoint.y, GetParam().highest, 1e-9);
}

const SplineRow kSplines[] = {
    // y = x (2 - x), of which 2/3 of base and height lie below
    {"parabola", {2, {0, 0, 0, 1, 1, 1}, {{0, 0}, {1, 2}, {2, 0}}, {}, {}}, 4.0 / 3, 1},
    {"circleOfWeights",
     {2,
      {0, 0, 0, 1, 1, 2, 2, 2},
      {{3, 0}, {3, 3}, {0, 3}, {-3, 3}, {-3, 0}},
      {1, std::sqrt(0.5), 1, std::sqrt(0.5), 1},
      {}},
     4.5 * kPi,
     3},
    {"throughPoints", {3, {}, {}, {}, {{0, 0}, {1, 1}, {2, 0}}}, 1.25, 1},
    {"tooFewKnots", {3, {0, 1}, {{0, 0}, {2, 2}, {4, 0}}, {}, {}}, 4, 2},
    {"absurdDegree", {1000000, {0, 1}, {{0, 0}, {2, 2}, {4, 0}}, {}, {}}, 4, 2},
};
INSTANTIATE_TEST_SUITE_P(Rows, HatchSplines, testing::ValuesIn(kSplines),
                         [](const auto& row) { return std::string(row.param.name); });

struct NestingRow
{
    const char* name;
    std::vector<HatchLoop> loops;
    double normal;
    double outer;
    double ignore;
};

class NestedLoops : public testing::TestWithParam<NestingRow>
{
  protected:
    static double area(Style style)
    {
        const auto hatch = hatchOf({}, style);
        hatch->edit().loops = GetParam().loops;
        return areaOf(*hatch);
    }
};

TEST_P(NestedLoops, AreFilledByTheStyle)
{
    EXPECT_NEAR(area(Style::Normal), GetParam().normal, 1e-9);
    EXPECT_NEAR(area(Style::Outer), GetParam().outer, 1e-9);
    EXPECT_NEAR(area(Style::Ignore), GetParam().ignore, 1e-9);
}

const HatchLoop kBig = rectangle(0, 0, 10, 10);
const HatchLoop kHole = rectangle(2, 2, 8, 8);
const HatchLoop kIsland = rectangle(3, 3, 7, 7);
const HatchLoop kPond = rectangle(4, 4, 6, 6);
const HatchLoop kBox = rectangle(4, 4, 6, 6, HatchLoop::kTextBox);

const NestingRow kNestings[] = {
    {"oneInAnother", {kBig, kHole}, 64, 64, 100},
    {"innerFirst", {kHole, kBig}, 64, 64, 100},
    {"bothWaysRound", {backwards(kBig), kHole}, 64, 64, 100},
    {"threeDeep", {kBig, kHole, kIsland}, 80, 64, 100},
    {"fourDeepUnordered", {kPond, kBig, kIsland, kHole}, 76, 64, 100},
    {"sideBySide", {kBig, rectangle(20, 0, 25, 5)}, 125, 125, 125},
    {"twoHoles", {kBig, rectangle(1, 1, 3, 3), rectangle(5, 5, 9, 9)}, 80, 80, 100},
    {"holeThatTouchesTheEdge", {kBig, rectangle(0, 2, 4, 6)}, 84, 84, 100},
    {"holeThatSharesThreeSides", {kBig, rectangle(0, 0, 10, 6)}, 40, 40, 100},
    {"neighboursThatShareASide", {kBig, rectangle(10, 2, 12, 8)}, 112, 112, 112},
    {"nestedInTheSecond", {rectangle(20, 0, 25, 5), kBig, kHole}, 89, 89, 125},
    {"theSameTwice", {kBig, kBig}, 0, 0, 100},
    {"circleInACorner", {kBig, circle(3, 3, 2)}, 100 - 4 * kPi, 100 - 4 * kPi, 100},
    // its box lies inside that of the crescent, the circle itself does not
    {"besideABay",
     {polyline({{{-2, 0}, 1.0}, {{2, 0}, -0.5}}), circle(0, 0.2, 0.1)},
     2 * kPi - (6.25 * (4 * std::atan(0.5)) / 2 - 6.25 * std::sin(4 * std::atan(0.5)) / 2) +
         0.01 * kPi,
     2 * kPi - (6.25 * (4 * std::atan(0.5)) / 2 - 6.25 * std::sin(4 * std::atan(0.5)) / 2) +
         0.01 * kPi,
     2 * kPi - (6.25 * (4 * std::atan(0.5)) / 2 - 6.25 * std::sin(4 * std::atan(0.5)) / 2) +
         0.01 * kPi},
    {"textIsSpared", {kBig, kBox}, 96, 96, 100},
    {"textInAnIslandIsSpared", {kBig, kHole, kIsland, kBox}, 76, 64, 100},
    {"textInAHoleIsNotFilled", {kBig, kHole, kBox}, 64, 64, 100},
    {"loopInATextBox", {kBig, kBox, rectangle(4.5, 4.5, 5, 5)}, 96, 96, 100},
};
INSTANTIATE_TEST_SUITE_P(Rows, NestedLoops, testing::ValuesIn(kNestings),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HatchArea, IsNotToBeHadWithoutLoops)
{
    EXPECT_EQ(areaOf(KdDbHatch()), -1.0);
    EXPECT_EQ(areaOf(*hatchOf({HatchLoop()})), -1.0);
}

TEST(HatchArea, OfManyIslandsIsFoundInTime)
{
    const auto hatch = hatchOf({rectangle(-1, -1, 401, 21)});
    for (int x = 0; x < 200; ++x) {
        for (int y = 0; y < 10; ++y)
            hatch->edit().loops.push_back(rectangle(2 * x, 2 * y, 2 * x + 1, 2 * y + 1));
    }
    EXPECT_NEAR(areaOf(*hatch), 402 * 22 - 2000, 1e-8);
}

TEST(HatchExtents, HoldTheBulgesOfTheBoundary)
{
    KdGeExtents3d box;
    const auto hatch = hatchOf({circle(5, 1, 2), ellipse({0, 10}, {3, 3}, 0.5)});
    hatch->edit().elevation = 7;
    ASSERT_EQ(hatch->getGeomExtents(box), eOk);
    // the reach of an ellipse along an axis is the root of the squares of both half axes' parts
    const double reach = std::sqrt(9 + 2.25);
    EXPECT_NEAR(box.minPoint.x, -reach, 1e-12);
    EXPECT_NEAR(box.minPoint.y, -1, 1e-12);
    EXPECT_NEAR(box.maxPoint.x, 7, 1e-12);
    EXPECT_NEAR(box.maxPoint.y, 10 + reach, 1e-12);
    EXPECT_EQ(box.minPoint.z, 7);
    EXPECT_EQ(box.maxPoint.z, 7);
}

TEST(HatchExtents, AreThoseInTheWorld)
{
    // the x axis of this frame is the world's Y, its y axis is the world's Z
    KdGeExtents3d box;
    const auto hatch = hatchOf({rectangle(1, 2, 3, 5)});
    hatch->edit().extrusion.setDirection({2, 0, 0});
    hatch->edit().elevation = -4;
    ASSERT_EQ(hatch->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{-4, 1, 2}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{-4, 3, 5}));
    EXPECT_EQ(hatch->normal(), KdGeVector3d::kXAxis);
    EXPECT_TRUE(hatch->isPlanar());
}

TEST(HatchExtents, AreNotToBeHadWithoutLoops)
{
    KdGeExtents3d box;
    EXPECT_EQ(KdDbHatch().getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
}

} // namespace
