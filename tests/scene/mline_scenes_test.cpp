#include <cmath>
#include <numbers>

#include <entities/mline.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Flag = KdDbMlineStyle::Flag;
constexpr std::uint32_t kRed = 0xC3000001;
constexpr std::uint32_t kGreen = 0xC3000003;

/// The lines of the style are drawn from the right to the left of the path.
class MlineScenes : public SceneTest
{
  protected:
    KdDbMlineStyle* addStyle(int flags, std::vector<double> offsets = {1.0, -1.0})
    {
        auto* style = new KdDbMlineStyle;
        MlineStyleMembers& members = style->edit();
        members.offsets = std::move(offsets);
        members.flags = flags;
        members.fillColor = kGreen;
        drawing.addObject(style, {});
        return style;
    }
    template <class Fill>
    KdDbMline* addMline(const KdDbMlineStyle* style, Fill fill)
    {
        return add<KdDbMline>([&](MlineMembers& line) {
            line.style = style->objectId();
            line.vertices = {{0, 0, 0}, {10, 0, 0}};
            line.justification = KdDbMline::kZero;
            fill(line);
        });
    }
    KdDbMline* addMline(const KdDbMlineStyle* style)
    {
        return addMline(style, [](MlineMembers&) {});
    }
};

TEST_F(MlineScenes, ShowTheirElementsAndCaps)
{
    auto* style = addStyle(Flag::kEndSquareCap, {0.5, -0.5});
    change(style, [](MlineStyleMembers& members) { members.colors = {kRed, 0xC0000000}; });
    const auto* mline = addMline(style, [](MlineMembers& line) {
        line.scale = 2.0;
        line.vertices = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, mline);
    ASSERT_THAT(shapes, SizeIs(4));
    EXPECT_THAT(pointsOf(*scene, shapes[0]),
                ElementsAre(IsPoint(0, -1), IsPoint(11, -1), IsPoint(11, 10)));
    EXPECT_TRUE(lookOf(*scene, shapes[0]).isForeground);
    EXPECT_THAT(pointsOf(*scene, shapes[1]),
                ElementsAre(IsPoint(0, 1), IsPoint(9, 1), IsPoint(9, 10)));
    EXPECT_EQ(lookOf(*scene, shapes[1]).color, 0xFFFF0000);
    // Each half of the cap goes with its line.
    EXPECT_THAT(pointsOf(*scene, shapes[2]), ElementsAre(IsPoint(11, 10), IsPoint(10, 10)));
    EXPECT_TRUE(lookOf(*scene, shapes[2]).isForeground);
    EXPECT_THAT(pointsOf(*scene, shapes[3]), ElementsAre(IsPoint(9, 10), IsPoint(10, 10)));
    EXPECT_EQ(lookOf(*scene, shapes[3]).color, 0xFFFF0000);
}

TEST_F(MlineScenes, RoundCapsBulgeOutwards)
{
    const auto* start = addMline(addStyle(Flag::kStartRoundCap));
    const auto* end = addMline(addStyle(Flag::kEndRoundCap));
    const auto* flat = addMline(addStyle(Flag::kEndRoundCap),
                                [](MlineMembers& line) { line.withoutEndCaps = true; });
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, start)->box, IsBox(-1, -1, 10, 1));
    EXPECT_THAT(itemOf(*scene, end)->box, IsBox(0, -1, 11, 1));
    EXPECT_THAT(itemOf(*scene, flat)->box, IsBox(0, -1, 10, 1));
}

TEST_F(MlineScenes, InnerArcsConnectPairsOfInnerLines)
{
    const auto* mline = addMline(addStyle(Flag::kEndInnerArcs, {4.0, 2.0, 0.0, -2.0, -4.0}));
    const auto scene = build();
    const auto shapes = shapesOf(*scene, mline);
    ASSERT_THAT(shapes, SizeIs(7)); // five lines and the two halves of one arc
    EXPECT_THAT(shapes[5].box, IsBox(10, -2, 12, 0));
    EXPECT_THAT(shapes[6].box, IsBox(10, 0, 12, 2));
}

TEST_F(MlineScenes, SlantedEndsKeepTheirCapsAcross)
{
    auto* style = addStyle(Flag::kEndRoundCap | Flag::kStartSquareCap);
    change(style, [](MlineStyleMembers& members) {
        members.startAngle = std::numbers::pi / 4.0;
        members.endAngle = std::numbers::pi / 4.0;
    });
    const auto* mline = addMline(style);
    const auto scene = build();
    const auto shapes = shapesOf(*scene, mline);
    ASSERT_THAT(shapes, SizeIs(6));
    EXPECT_THAT(pointsOf(*scene, shapes[1]), ElementsAre(IsPoint(1, 1), IsPoint(11, 1)));
    EXPECT_THAT(pointsOf(*scene, shapes[2]), ElementsAre(IsPoint(-1, -1), IsPoint(0, 0)));
    // Half a circle over the line from (9, -1) to (11, 1), to the right of it.
    for (const auto& half : {shapes[4], shapes[5]}) {
        for (const QPointF& point : pointsAlong(*scene, half, 4)) {
            EXPECT_NEAR(std::hypot(point.x() - 10.0, point.y()), std::sqrt(2.0), 1e-5);
            EXPECT_GE(point.x() - 10.0 - point.y(), -kNear);
        }
    }
}

TEST_F(MlineScenes, MitersShowAtTheCorners)
{
    const auto* open = addMline(addStyle(Flag::kShowsMiters), [](MlineMembers& line) {
        line.vertices = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
    });
    const auto* closed = addMline(addStyle(Flag::kShowsMiters), [](MlineMembers& line) {
        line.vertices = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}};
        line.closed = true;
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, open);
    ASSERT_THAT(shapes, SizeIs(4));
    EXPECT_THAT(pointsOf(*scene, shapes[2]), ElementsAre(IsPoint(11, -1), IsPoint(10, 0)));
    EXPECT_THAT(shapesOf(*scene, closed), SizeIs(2 + 3 * 2));
}

TEST_F(MlineScenes, LinesLeaveOutTheirGaps)
{
    const auto* mline = addMline(addStyle(0), [](MlineMembers& line) {
        line.vertices = {{0, 0, 0}, {10, 0, 0}, {20, 0, 0}};
        line.lineCuts = {{0, 0, {0.0, 4.0, 6.0}}, // a gap from 4 to 6
                         {0, 1, {0.0, 7.0}},      // from 7 on
                         {1, 1, {3.0, 5.0}}};     // up to 3, and from 5 on
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, mline);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_THAT(pointsOf(*scene, shapes[0]),
                ElementsAre(IsPoint(0, -1), IsPoint(7, -1), IsPoint(13, -1), IsPoint(15, -1)));
    EXPECT_EQ(stepsOf(*scene, shapes[1]), "MLMLL");
    EXPECT_THAT(
        pointsOf(*scene, shapes[1]),
        ElementsAre(IsPoint(0, 1), IsPoint(4, 1), IsPoint(6, 1), IsPoint(10, 1), IsPoint(20, 1)));
}

TEST_F(MlineScenes, AbsurdGapsAreBorne)
{
    const auto* mline = addMline(addStyle(0), [](MlineMembers& line) {
        line.lineCuts = {{0, 0, {-5.0, 3.0, 50.0, 60.0, NAN, 2.0}}, {0, 1, {8.0, 2.0, 12.0}}};
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, mline);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(0, 1), IsPoint(3, 1)));
}

TEST_F(MlineScenes, FillsHaveTheFormOfTheirEnds)
{
    const auto* mline = addMline(addStyle(Flag::kFilled | Flag::kEndRoundCap));
    const auto scene = build();
    const auto fill = shapesOf(*scene, mline).at(0);
    EXPECT_EQ(fill.kind, SceneShape::Kind::Fill);
    EXPECT_EQ(lookOf(*scene, fill).color, 0xFF00FF00);
    EXPECT_THAT(fill.box, IsBox(0, -1, 11, 1));
    EXPECT_TRUE(holds(*scene, fill, {10.6, 0.6}));
    EXPECT_FALSE(holds(*scene, fill, {10.8, 0.8}));
    EXPECT_FALSE(holds(*scene, fill, {-0.1, 0.0}));
}

TEST_F(MlineScenes, FillsLeaveOutTheirGaps)
{
    const auto* mline = addMline(addStyle(Flag::kFilled), [](MlineMembers& line) {
        line.fillCuts = {{0, 0, {0.0, 4.0, 6.0}}, {0, 1, {0.0, 2.0, 6.0}}};
    });
    const auto scene = build();
    const auto fill = shapesOf(*scene, mline).at(0);
    EXPECT_TRUE(holds(*scene, fill, {1.5, 0}));
    EXPECT_FALSE(holds(*scene, fill, {5, 0}));
    EXPECT_FALSE(holds(*scene, fill, {2.5, -0.9}));
    EXPECT_TRUE(holds(*scene, fill, {2.5, 0.9})); // the edge of the gap is slanted
    EXPECT_TRUE(holds(*scene, fill, {7, 0}));
}

TEST_F(MlineScenes, ClosedFillsAreRings)
{
    const auto* mline = addMline(addStyle(Flag::kFilled), [](MlineMembers& line) {
        line.vertices = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
        line.closed = true;
    });
    const auto scene = build();
    const auto fill = shapesOf(*scene, mline).at(0);
    EXPECT_TRUE(holds(*scene, fill, {0.5, 5}));
    EXPECT_FALSE(holds(*scene, fill, {5, 5}));
}

} // namespace
