// Linetypes of polylines with widths.
#include <cmath>
#include <numbers>

#include <entities/polyline.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;

class WideScenes : public SceneTest
{
  protected:
    template <class Fill>
    KdDbPolyline* addPolyline(std::vector<double> dashes, Fill fill)
    {
        auto* record = drawing.addRecord<KdDbLinetypeTable>(L"DASHES");
        change(record, [&](LinetypeMembers& members) { members.dashes = dashes; });
        return add<KdDbPolyline>([&](PolylineMembers& members) {
            members.linetype = record->objectId();
            members.constantWidth = 2.0;
            fill(members);
        });
    }
    /// The fills of a polyline, or else the lines of its only path.
    static std::vector<SceneShape> fillsOf(const Scene& scene, const KdDbEntity* entity)
    {
        std::vector<SceneShape> fills;
        for (const SceneShape& shape : shapesOf(scene, entity)) {
            if (shape.kind == Kind::Fill)
                fills.push_back(shape);
        }
        return fills;
    }
};

TEST_F(WideScenes, DashesAreFilled)
{
    const auto* polyline = addPolyline({3.0, -1.0}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}};
    });
    const auto scene = build();
    const auto fills = fillsOf(*scene, polyline);
    ASSERT_THAT(fills, SizeIs(3));
    EXPECT_THAT(fills[0].box, IsBox(0, -1, 3, 1));
    EXPECT_THAT(fills[1].box, IsBox(4, -1, 7, 1));
    EXPECT_THAT(fills[2].box, IsBox(8, -1, 10, 1));
    const auto middle = shapesOf(*scene, polyline)[0];
    EXPECT_EQ(stepsOf(*scene, middle), "MLMLML"); // nothing is seen in the gaps
    EXPECT_EQ(lookOf(*scene, middle).linetype, -1);
}

TEST_F(WideScenes, DashesAreScaledByTheEntity)
{
    const auto* polyline = addPolyline({3.0, -1.0}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}};
        members.seldom.edit().linetypeScale = 2.0;
    });
    const auto scene = build();
    const auto fills = fillsOf(*scene, polyline);
    ASSERT_THAT(fills, SizeIs(2));
    EXPECT_THAT(fills[0].box, IsBox(0, -1, 6, 1));
    EXPECT_THAT(fills[1].box, IsBox(8, -1, 10, 1));
}

TEST_F(WideScenes, DashesBeginAtEachSegmentUnlessTheyRunOn)
{
    const auto twoSides = [](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}, {10, 10}};
    };
    const auto* apart = addPolyline({8.0, -4.0}, twoSides);
    const auto* running = addPolyline({8.0, -4.0}, [&](PolylineMembers& members) {
        twoSides(members);
        members.plinegen = true;
    });
    const auto scene = build();
    auto fills = fillsOf(*scene, apart);
    ASSERT_THAT(fills, SizeIs(2));
    EXPECT_THAT(fills[0].box, IsBox(0, -1, 8, 1));
    EXPECT_THAT(fills[1].box, IsBox(9, -1, 11, 8)); // with its half of the mitred corner
    fills = fillsOf(*scene, running);
    ASSERT_THAT(fills, SizeIs(2));
    EXPECT_THAT(fills[1].box, IsBox(9, 2, 11, 10)); // the gap runs around the corner
}

TEST_F(WideScenes, DashesAcrossACornerAreMitred)
{
    const auto* polyline = addPolyline({12.0, -2.0}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}, {10, 10}};
        members.plinegen = true;
    });
    const auto scene = build();
    const auto fills = fillsOf(*scene, polyline);
    ASSERT_THAT(fills, SizeIs(3));
    EXPECT_THAT(pointsOf(*scene, fills[0]),
                ElementsAre(IsPoint(0, 1), IsPoint(9, 1), IsPoint(11, -1), IsPoint(0, -1)));
    EXPECT_THAT(pointsOf(*scene, fills[1]),
                ElementsAre(IsPoint(9, 1), IsPoint(9, 2), IsPoint(11, 2), IsPoint(11, -1)));
    EXPECT_THAT(fills[2].box, IsBox(9, 4, 11, 10));
}

TEST_F(WideScenes, DashesOfNarrowingSegmentsNarrow)
{
    const auto* polyline = addPolyline({5.0, -3.0}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {10, 0}};
        members.widths = {{4.0, 0.0}};
    });
    const auto scene = build();
    const auto fills = fillsOf(*scene, polyline);
    ASSERT_THAT(fills, SizeIs(2));
    EXPECT_THAT(pointsOf(*scene, fills[0]),
                ElementsAre(IsPoint(0, 2), IsPoint(5, 1), IsPoint(5, -1), IsPoint(0, -2)));
    EXPECT_THAT(fills[1].box, IsBox(8, -0.4, 10, 0.4));
}

TEST_F(WideScenes, DashesOfArcsAreMeasuredAlongTheArc)
{
    constexpr double kQuarter = 10.0 * std::numbers::pi / 2.0;
    const auto* polyline = addPolyline({kQuarter, -kQuarter}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {20, 0}};
        members.bulges = {1.0}; // half a circle about (10, 0), below
    });
    const auto scene = build();
    const auto fills = fillsOf(*scene, polyline);
    ASSERT_THAT(fills, SizeIs(1));
    EXPECT_NEAR(fills[0].box.left, -1.0, 1e-5);
    EXPECT_NEAR(fills[0].box.bottom, -11.0, 1e-5);
    EXPECT_NEAR(fills[0].box.right, 10.0, 1e-5);
    EXPECT_NEAR(fills[0].box.top, 0.0, 1e-5);
    EXPECT_TRUE(holds(*scene, fills[0], {10 - 7.2, -7.2}));
    EXPECT_FALSE(holds(*scene, fills[0], {10 - 5.0, -5.0}));
}

TEST_F(WideScenes, DotsAreLinesAcross)
{
    const auto* polyline = addPolyline({0.0, -5.0}, [](PolylineMembers& members) {
        members.points = {{0, 0}, {8, 0}};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, polyline);
    ASSERT_THAT(shapes, SizeIs(3));
    EXPECT_THAT(shapes[1].box, IsBox(0, -1, 0, 1));
    EXPECT_THAT(shapes[2].box, IsBox(5, -1, 5, 1));
    EXPECT_EQ(shapes[2].kind, Kind::Stroke);
}

TEST_F(WideScenes, PatternsThatLeadNowhereAreFilledThrough)
{
    const std::vector<std::vector<double>> patterns{
        {0.0, 0.0}, {1e-9, -1e-9}, {NAN, -1.0}, {1e300, -1e300}};
    for (const auto& dashes : patterns) {
        const auto* polyline = addPolyline(dashes, [](PolylineMembers& members) {
            members.points = {{0, 0}, {1000, 0}};
        });
        const auto scene = build();
        ASSERT_THAT(fillsOf(*scene, polyline), SizeIs(1)) << dashes[0];
        EXPECT_THAT(itemOf(*scene, polyline)->box, IsBox(0, -1, 1000, 1));
    }
}

} // namespace
