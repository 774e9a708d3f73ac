#include <cmath>
#include <numbers>

#include <entities/hatch.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;
constexpr double kPi = std::numbers::pi;

HatchLoop square(double size)
{
    HatchLoop loop;
    loop.type = HatchLoop::kPolyline;
    loop.vertices = {{{-size, -size}}, {{size, -size}}, {{size, size}}, {{-size, size}}};
    return loop;
}

class HatchScenes : public SceneTest
{
  protected:
    /// A solid hatch with three squares in each other.
    KdDbHatch* islands(HatchContent::Style style)
    {
        return add<KdDbHatch>([style](HatchMembers& hatch) {
            hatch.solid = true;
            hatch.style = style;
            hatch.loops = {square(10), square(6), square(2)};
        });
    }
    /// Whether a point is covered by any of a hatch's shapes.
    static bool covers(const Scene& scene, const KdDbHatch* hatch, QPointF point)
    {
        for (const SceneShape& shape : shapesOf(scene, hatch)) {
            if (holds(scene, shape, point))
                return true;
        }
        return false;
    }
    KdDbHatch* pattern(double spacing)
    {
        return add<KdDbHatch>([spacing](HatchMembers& hatch) {
            hatch.loops = {square(10)};
            hatch.patternLines = {{0.0, {0.0, 0.5 * spacing}, {0.0, spacing}, {}}};
        });
    }
};

TEST_F(HatchScenes, SolidOnesLeaveTheirIslandsByTheirStyle)
{
    const auto* normal = islands(HatchContent::Style::Normal);
    const auto* outer = islands(HatchContent::Style::Outer);
    const auto* ignoring = islands(HatchContent::Style::Ignore);
    const auto scene = build();
    const struct
    {
        const KdDbHatch* hatch;
        bool ring, gap, core;
    } rows[] = {
        {normal, true, false, true}, {outer, true, false, false}, {ignoring, true, true, true}};
    for (const auto& row : rows) {
        EXPECT_EQ(covers(*scene, row.hatch, {8, 0}), row.ring);
        EXPECT_EQ(covers(*scene, row.hatch, {4, 0}), row.gap);
        EXPECT_EQ(covers(*scene, row.hatch, {0, 0}), row.core);
        EXPECT_THAT(itemOf(*scene, row.hatch)->box, IsBox(-10, -10, 10, 10));
    }
}

TEST_F(HatchScenes, EdgesOfAllKindsMakeOneLoop)
{
    // A half circle, a straight edge that the drawing has turned round, and a spline.
    const auto* hatch = add<KdDbHatch>([](HatchMembers& members) {
        members.solid = true;
        HatchLoop& loop = members.loops.emplace_back();
        loop.edges.emplace_back(HatchArcEdge{{0, 0}, {5, 0}, 1.0, 0.0, kPi});
        loop.edges.emplace_back(HatchLineEdge{{-5, -5}, {-5, 0}});
        loop.edges.emplace_back(
            HatchSplineEdge{1, {0, 0, 1, 2, 2}, {{-5, -5}, {0, -9}, {5, 0}}, {}, {}});
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, hatch);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "MCCCCCCLCCZ");
    EXPECT_THAT(shapes[0].box, IsBox(-5, -9, 5, 5));
    EXPECT_TRUE(holds(*scene, shapes[0], {0, 4.9}));
    EXPECT_TRUE(holds(*scene, shapes[0], {-4.9, -4}));
    EXPECT_FALSE(holds(*scene, shapes[0], {4, -3}));
}

TEST_F(HatchScenes, FirstEdgesMayRunBackwards)
{
    const auto* hatch = add<KdDbHatch>([](HatchMembers& members) {
        members.solid = true;
        HatchLoop& loop = members.loops.emplace_back();
        loop.edges.emplace_back(HatchArcEdge{{0, 0}, {1, 0}, 1.0, kPi, 0.0}); // clockwise
        loop.edges.emplace_back(HatchLineEdge{{-1, 0}, {-1, -1}});
        loop.edges.emplace_back(HatchLineEdge{{1, -1}, {-1, -1}});
        loop.edges.emplace_back(HatchLineEdge{{1, -1}, {1, 0}});
    });
    const auto scene = build();
    const auto shape = shapesOf(*scene, hatch).at(0);
    EXPECT_EQ(stepsOf(*scene, shape), "MCCCCCCLLLZ");
    EXPECT_THAT(pointsOf(*scene, shape)[0], IsPoint(1, 0));
}

TEST_F(HatchScenes, LoopsWithBulgesAndElevationAreTilted)
{
    const auto* hatch = add<KdDbHatch>([](HatchMembers& members) {
        members.solid = true;
        members.elevation = 3;
        members.extrusion.setDirection({0, 0, -1});
        HatchLoop loop;
        loop.type = HatchLoop::kPolyline;
        loop.vertices = {{{0, 0}, 1.0}, {{2, 0}, 1.0}}; // a circle
        members.loops = {loop};
    });
    EXPECT_THAT(itemOf(*build(), hatch)->box, IsBox(-2, -1, 0, 1));
}

TEST_F(HatchScenes, PatternsAreLinesInsideTheBoundary)
{
    const auto* hatch = pattern(4.0);
    const auto scene = build();
    const auto shapes = shapesOf(*scene, hatch);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(shapes[0].kind, Kind::Stroke);
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "MLMLMLMLML"); // at -10, -6, -2, 2, 6; 10 only touches
    for (const QPointF& point : pointsOf(*scene, shapes[0]))
        EXPECT_NEAR(std::abs(point.x()), 10.0, kNear);
}

TEST_F(HatchScenes, TooDensePatternsBecomeATranslucentFill)
{
    const auto* hatch = pattern(1e-6);
    const auto scene = build();
    const auto shapes = shapesOf(*scene, hatch);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(shapes[0].kind, Kind::Fill);
    EXPECT_EQ(qAlpha(lookOf(*scene, shapes[0]).color), 255 / 3);
}

TEST_F(HatchScenes, WithoutLoopsOrFillingThereIsNothing)
{
    add<KdDbHatch>([](HatchMembers& members) { members.solid = true; });
    EXPECT_THAT(build()->shapes, IsEmpty());
    setHeader(L"FILLMODE", std::int32_t{0});
    islands(HatchContent::Style::Normal);
    EXPECT_THAT(build()->shapes, IsEmpty());
}

TEST_F(HatchScenes, PolygonsShowTheirEdgesOverTheirFill)
{
    const auto* polygon = add<KdDbMPolygon>([](HatchMembers& members) {
        members.solid = true;
        members.loops = {square(3)};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, polygon);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_EQ(shapes[0].kind, Kind::Fill);
    EXPECT_EQ(shapes[1].kind, Kind::Stroke);
}

} // namespace
