#include <numbers>
#include <random>

#include <kwdraw/scene/clip_area.h>
#include <kwdraw/scene/convex_parts.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Part = ClipArea::Part;

const std::vector<QPointF> kSquare{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
/// Two boxes side by side, with a slot between them.
const std::vector<QPointF> kFork{{0, 0}, {10, 0}, {10, 10}, {6, 10},
                                 {6, 3}, {4, 3},  {4, 10},  {0, 10}};

double areaOf(const std::vector<QPointF>& corners)
{
    double twice = 0.0;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF a = corners[i];
        const QPointF b = corners[(i + 1) % corners.size()];
        twice += a.x() * b.y() - a.y() * b.x();
    }
    return twice / 2.0;
}

double areaOf(const std::vector<std::vector<QPointF>>& parts)
{
    double sum = 0.0;
    for (const auto& part : parts)
        sum += areaOf(part);
    return sum;
}

TEST(ConvexParts, OfPolygonsWithoutDentsAreThemselvesCounterClockwise)
{
    const auto parts = convexPartsOf({{0, 0}, {0, 4}, {3, 0}});
    ASSERT_THAT(parts, SizeIs(1));
    EXPECT_EQ(areaOf(parts), 6.0);
}

TEST(ConvexParts, TogetherCoverPolygonsWithDents)
{
    const auto parts = convexPartsOf(kFork);
    ASSERT_THAT(parts, SizeIs(3)); // below the slot, and on both sides of it
    for (const auto& part : parts)
        EXPECT_GT(areaOf(part), 0.0);
    EXPECT_EQ(areaOf(parts), 100.0 - 2.0 * 7.0);
}

TEST(ConvexParts, OfAStarLeaveOutItsTwiceEnclosedCore)
{
    std::vector<QPointF> star;
    for (int i = 0; i < 5; ++i) {
        const double angle = i * 4.0 * std::numbers::pi / 5.0;
        star.emplace_back(std::sin(angle), std::cos(angle));
    }
    EXPECT_GT(convexPartsOf(star).size(), 1U);
}

TEST(ClipAreas, KnowWhatIsInside)
{
    const ClipArea area(kFork);
    EXPECT_TRUE(area.holds({2, 5}));
    EXPECT_TRUE(area.holds({4, 5})); // on the edge
    EXPECT_FALSE(area.holds({5, 5}));
    EXPECT_FALSE(area.holds({-1, 5}));
}

TEST(ClipAreas, TellWhatPartOfABoxTheyShow)
{
    const ClipArea area(kFork);
    EXPECT_EQ(area.visiblePart({1, 1, 3, 9}), Part::All);
    EXPECT_EQ(area.visiblePart({4.5, 5, 5.5, 6}), Part::None);
    EXPECT_EQ(area.visiblePart({20, 0, 30, 10}), Part::None);
    EXPECT_EQ(area.visiblePart({3, 5, 5, 6}), Part::Some);
    EXPECT_EQ(area.visiblePart({-5, -5, 20, 20}), Part::Some);
}

TEST(ClipAreas, KeepDotsAndLinesOnTheirEdge)
{
    const ClipArea area(kSquare);
    PlanePath path;
    path.moveTo({0, 2});
    path.lineTo({0, 8});
    path.moveTo({5, 5});
    path.lineTo({5, 5});
    path.moveTo({15, 5});
    path.lineTo({15, 5});
    EXPECT_THAT(area.cutLine(path).points,
                ElementsAre(IsPoint(0, 2), IsPoint(0, 8), IsPoint(5, 5), IsPoint(5, 5)));
}

TEST(ClipAreas, CutCurvesWhereTheyComeAndGoSeveralTimes)
{
    // Rises to 0.75 * 14 = 10.5 in the middle, over the edge at 10.
    PlanePath path;
    path.add({{QPointF(2, 0), {2, 14}, {8, 14}, {8, 0}}, false});
    const PlanePath seen = ClipArea(kSquare).cutLine(path);
    ASSERT_THAT(seen.points, SizeIs(8)); // two pieces
    // 42 t (1 - t) = 10: t = 0.5 -+ sqrt(0.25 - 10 / 42)
    const double t = 0.5 - std::sqrt(0.25 - 10.0 / 42.0);
    const double x = 2.0 + 6.0 * t * t * (3.0 - 2.0 * t);
    EXPECT_THAT(seen.points[3], IsPoint(x, 10));
    EXPECT_THAT(seen.points[4], IsPoint(10 - x, 10));
}

TEST(ClipAreas, FillsOfManyLoopsKeepTheirHoles)
{
    PlanePath path;
    for (const auto& [low, high] : {std::pair(-5.0, 8.0), std::pair(2.0, 6.0)}) {
        path.moveTo({low, low});
        path.lineTo({high, low});
        path.lineTo({high, high});
        path.lineTo({low, high}); // and back to the start, without saying so
    }
    const PlanePath seen = ClipArea(kSquare).cutFill(path);
    EXPECT_EQ(seen.steps.size(), seen.points.size() + 2); // both are closed
    EXPECT_THAT(seen.points,                              // and end where they begin
                ElementsAre(IsPoint(8, 0), IsPoint(8, 8), IsPoint(0, 8), IsPoint(0, 0),
                            IsPoint(8, 0), IsPoint(2, 2), IsPoint(6, 2), IsPoint(6, 6),
                            IsPoint(2, 6), IsPoint(2, 2)));
}

TEST(ClipAreas, ShowOfALineWhatOfItsPointsIsInside)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> place(-3.0, 13.0);
    const auto point = [&] { return QPointF(place(random), place(random)); };
    for (int i = 0; i < 200; ++i) {
        std::vector<QPointF> corners;
        for (int k = 0; k < 3 + i % 9; ++k)
            corners.push_back(point());
        const ClipArea area(corners);
        const PlanePiece piece{{point(), point(), point(), point()}, false};
        PlanePath path;
        path.add(piece);
        const PlanePath seen = area.cutLine(path);
        const auto isSeen = [&](QPointF wanted) {
            bool found = false;
            walkPieces(
                seen, false, [] {},
                [&](const PlanePiece& part) {
                    for (int k = 0; k <= 400; ++k) {
                        const QPointF apart = pointOn(part.cubic, k / 400.0) - wanted;
                        found = found || std::hypot(apart.x(), apart.y()) < 0.1;
                    }
                });
            return found;
        };
        for (int k = 1; k < 10; ++k) {
            const QPointF at = pointOn(piece.cubic, k / 10.0);
            if (area.holds(at)) {
                EXPECT_TRUE(isSeen(at)) << i;
            }
        }
        walkPieces(
            seen, false, [] {},
            [&](const PlanePiece& part) {
                EXPECT_TRUE(area.holds(pointOn(part.cubic, 0.5))) << i;
            });
    }
}

} // namespace
