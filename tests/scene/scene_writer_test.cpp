#include <cmath>
#include <limits>
#include <numbers>

#include <kwdraw/scene/scene_writer.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;

namespace {

constexpr double kPi = std::numbers::pi;

class SceneWriting : public testing::Test
{
  protected:
    ScenePath lineTo(const KdGePoint3d& end) const
    {
        ScenePath path;
        path.moveTo({0, 0, 0});
        path.lineTo(end);
        return path;
    }

    Scene scene;
    SceneWriter writer{scene};
};

TEST(SceneBoxes, BeginEmptyAndGrow)
{
    SceneBox box;
    EXPECT_TRUE(box.isEmpty());
    box.add(QPointF(2, 3));
    EXPECT_FALSE(box.isEmpty());
    EXPECT_EQ(box.width(), 0.0);
    box.add(QPointF(-1, 5));
    EXPECT_THAT(box, IsBox(-1, 3, 2, 5));
    EXPECT_EQ(box.center(), QPointF(0.5, 4));
    box.add(SceneBox{});
    EXPECT_THAT(box, IsBox(-1, 3, 2, 5));
}

TEST(SceneBoxes, MeetAndHoldEachOther)
{
    const SceneBox box{0, 0, 10, 10};
    EXPECT_TRUE(box.meets({10, 10, 20, 20}));
    EXPECT_FALSE(box.meets({11, 0, 20, 10}));
    EXPECT_FALSE(box.meets(SceneBox{}));
    EXPECT_TRUE(box.holds({0, 0, 10, 10}));
    EXPECT_FALSE(box.holds({0, 0, 10, 11}));
    EXPECT_FALSE(box.holds(SceneBox{}));
}

TEST_F(SceneWriting, GathersTheShapesOfAnItemAndTheirBox)
{
    writer.beginItem({}, 7);
    writer.stroke(lineTo({1, 2, 0}));
    writer.stroke(lineTo({-3, 1, 9}));
    writer.endItem();
    writer.beginItem({}, 0);
    writer.endItem();
    ASSERT_EQ(scene.items.size(), 2U);
    EXPECT_EQ(scene.items[0].layer, 7U);
    EXPECT_EQ(scene.items[0].shapeCount, 2U);
    EXPECT_THAT(scene.items[0].box, IsBox(-3, 0, 1, 2));
    EXPECT_EQ(scene.items[1].firstShape, 2U);
    EXPECT_EQ(scene.items[1].shapeCount, 0U);
    EXPECT_TRUE(scene.items[1].box.isEmpty());
}

TEST_F(SceneWriting, PlacesShapesByTheFrameInForce)
{
    writer.beginItem({}, 0);
    writer.setFrame(KdGeMatrix3d::fromFrame({10, 20, 0}, {0, 2, 0}, {-2, 0, 0}, {0, 0, 2}));
    writer.stroke(lineTo({1, 0, 0}));
    EXPECT_THAT(pointsOf(scene, scene.shapes[0]), ElementsAre(IsPoint(10, 20), IsPoint(10, 22)));
}

TEST_F(SceneWriting, KeepsEachLookOnce)
{
    writer.beginItem({}, 0);
    SceneLook red;
    red.color = 0xFFFF0000;
    for (int i = 0; i < 3; ++i) {
        writer.setLook(red, 1);
        writer.stroke(lineTo({1, 0, 0}));
        writer.setLook(SceneLook(), 2);
        writer.stroke(lineTo({1, 0, 0}));
    }
    EXPECT_EQ(scene.looks.size(), 2U);
    EXPECT_EQ(lookOf(scene, scene.shapes[4]), red);
    EXPECT_EQ(scene.shapes[4].layer, 1U);
    EXPECT_EQ(scene.shapes[5].layer, 2U);
}

TEST_F(SceneWriting, LeavesOutWhatHasNoFinitePlace)
{
    const double none = std::numeric_limits<double>::quiet_NaN();
    const double far = std::numeric_limits<double>::infinity();
    writer.beginItem({}, 0);
    writer.stroke(lineTo({none, 0, 0}));
    writer.fill(lineTo({0, far, 0}));
    writer.marker({none, 0, 0}, 0, 0.0);
    writer.ray({0, far, 0}, {1, 0, 0}, true);
    writer.text(QStringLiteral("A"), {},
                KdGeMatrix3d::fromFrame({none, 0, 0}, {1, 0, 0}, {0, 1, 0}, {}));
    writer.stroke(ScenePath());
    EXPECT_TRUE(scene.shapes.empty());
    EXPECT_TRUE(scene.points.empty());
    EXPECT_TRUE(scene.markers.empty());
}

TEST_F(SceneWriting, BoundsCurvesWhereTheyTurn)
{
    ScenePath path;
    path.moveTo({0, 0, 0});
    path.cubicTo({0, 4, 0}, {3, 4, 0}, {3, 0, 0}); // highest in the middle, at 3
    writer.beginItem({}, 0);
    writer.stroke(path);
    EXPECT_THAT(scene.shapes[0].box, IsBox(0, 0, 3, 3));
}

TEST_F(SceneWriting, RaysKeepTheirDirectionInThePlane)
{
    writer.beginItem({}, 0);
    writer.ray({1, 2, 3}, {3, 4, 12}, true);
    writer.ray({0, 0, 0}, {0, 0, 1}, false); // points at the eye
    ASSERT_EQ(scene.rays.size(), 1U);
    EXPECT_THAT(scene.rays[0].direction, IsPoint(0.6, 0.8));
    EXPECT_TRUE(scene.rays[0].bothSides);
    EXPECT_THAT(scene.shapes[0].box, IsBox(1, 2, 1, 2));
}

TEST_F(SceneWriting, TextsReachAcrossTheirLetters)
{
    writer.beginItem({}, 0);
    writer.text(QStringLiteral("AB"), {QStringLiteral("Sans"), false, false},
                KdGeMatrix3d::fromFrame({10, 20, 0}, {5, 0, 0}, {0, 5, 0}, {0, 0, 5}));
    ASSERT_EQ(scene.texts.size(), 1U);
    const SceneBox& box = scene.shapes[0].box;
    EXPECT_EQ(box.left, 10.0);
    EXPECT_NEAR(box.right, 10.0 + 5.0 * scene.texts[0].advance, kNear);
    EXPECT_GT(scene.texts[0].advance, 0.5);
    EXPECT_EQ(box.top, 25.0);
    EXPECT_LT(box.bottom, 20.0);
}

TEST(ScenePaths, FollowAnEllipseToTheLastDigitsOfAScreen)
{
    ScenePath path;
    path.ellipseTo({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 0.0, 2.0 * kPi);
    Scene scene;
    SceneWriter writer(scene);
    writer.beginItem({}, 0);
    writer.stroke(path);
    EXPECT_EQ(stepsOf(scene, scene.shapes[0]), "MCCCCCCCCCCCC");
    for (const QPointF& point : pointsAlong(scene, scene.shapes[0], 16))
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 1.0, 5e-7);
}

TEST(ScenePaths, RunEllipsesBothWaysRound)
{
    ScenePath path;
    path.moveTo({2, 0, 0});
    path.ellipseTo({0, 0, 0}, {2, 0, 0}, {0, 1, 0}, 0.0, -kPi / 2.0);
    EXPECT_EQ(path.steps().size(), 4U); // three pieces behind the start
    EXPECT_NEAR(path.points().back().x, 0.0, kNear);
    EXPECT_NEAR(path.points().back().y, -1.0, kNear);
}

TEST(ScenePaths, BearAbsurdTurns)
{
    ScenePath path;
    path.ellipseTo({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 0.0, 1e300);
    path.ellipseTo({0, 0, 0}, {1, 0, 0}, {0, 1, 0}, 0.0, std::numeric_limits<double>::quiet_NaN());
    EXPECT_LT(path.points().size(), 10'000U);
}

} // namespace
