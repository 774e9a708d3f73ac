#include <cmath>
#include <numbers>

#include <entities/hatch.h>
#include <kwdraw/scene/hatch_gradients.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::SizeIs;

std::ostream& operator<<(std::ostream& stream, const SceneGradient::Stop& stop)
{
    return stream << stop.place << ": " << std::hex << stop.color << std::dec;
}

namespace {

using Form = SceneGradient::Form;
constexpr double kPi = std::numbers::pi;
constexpr QRgb kFirst = 0xFF102030;
constexpr QRgb kSecond = 0xFFFF0000;

MATCHER_P2(IsStop, place, color, "")
{
    return std::abs(arg.place - place) < 1e-9 && arg.color == color;
}

/// A gradient over the box from (0, 0) to (8, 6).
class GradientScenes : public SceneTest
{
  protected:
    template <class Fill>
    SceneGradient gradient(const wchar_t* name, Fill fill)
    {
        const auto* hatch = add<KdDbHatch>([&](HatchMembers& members) {
            members.gradient = true;
            members.solid = true;
            members.gradientName = name;
            members.gradientColors = {KdCmColor(0xC2102030), KdCmColor(0xC3000001)};
            HatchLoop loop;
            loop.type = HatchLoop::kPolyline;
            loop.vertices = {{{0, 0}}, {{8, 0}}, {{8, 6}}, {{0, 6}}};
            members.loops = {loop};
            fill(members);
        });
        const auto scene = build();
        const auto shapes = shapesOf(*scene, hatch);
        EXPECT_THAT(shapes, SizeIs(1));
        EXPECT_EQ(shapes.at(0).kind, SceneShape::Kind::Gradient);
        return scene->gradients.at(shapes.at(0).index);
    }
    SceneGradient gradient(const wchar_t* name)
    {
        return gradient(name, [](HatchMembers&) {});
    }
};

TEST_F(GradientScenes, LinearOnesRunFromSideToSide)
{
    const SceneGradient linear = gradient(L"LINEAR");
    EXPECT_EQ(linear.form, Form::Linear);
    EXPECT_THAT(linear.stops, ElementsAre(IsStop(0.0, kFirst), IsStop(1.0, kSecond)));
    EXPECT_THAT(linear.placement.map(QPointF(0, 0)), IsPoint(0, 0));
    EXPECT_THAT(linear.placement.map(QPointF(1, 0)), IsPoint(8, 0));
}

TEST_F(GradientScenes, TurnedOnesReachTheCorners)
{
    const SceneGradient turned =
        gradient(L"LINEAR", [](HatchMembers& hatch) { hatch.gradientAngle = kPi / 2.0; });
    EXPECT_THAT(turned.placement.map(QPointF(0, 0)), IsPoint(8, 0));
    EXPECT_THAT(turned.placement.map(QPointF(1, 0)), IsPoint(8, 6));
    // Along (4, 3) / 5 the box reaches from 0 to (8 * 4 + 6 * 3) / 5.
    const SceneGradient slanted = gradient(
        L"linear", [](HatchMembers& hatch) { hatch.gradientAngle = std::atan2(3.0, 4.0); });
    const QPointF along =
        slanted.placement.map(QPointF(1, 0)) - slanted.placement.map(QPointF(0, 0));
    EXPECT_THAT(along, IsPoint(8.0, 6.0));
}

TEST_F(GradientScenes, CylindersAreLightInTheMiddle)
{
    EXPECT_THAT(gradient(L"CYLINDER").stops,
                ElementsAre(IsStop(0.0, kFirst), IsStop(0.5, kSecond), IsStop(1.0, kFirst)));
    EXPECT_THAT(gradient(L"INVCYLINDER").stops,
                ElementsAre(IsStop(0.0, kSecond), IsStop(0.5, kFirst), IsStop(1.0, kSecond)));
    EXPECT_EQ(gradient(L"CYLINDER").form, Form::Linear);
}

TEST_F(GradientScenes, SpheresReachFromTheMiddleToTheCorners)
{
    const SceneGradient sphere = gradient(L"SPHERICAL");
    EXPECT_EQ(sphere.form, Form::Radial);
    EXPECT_THAT(sphere.stops, ElementsAre(IsStop(0.0, kSecond), IsStop(1.0, kFirst)));
    EXPECT_THAT(sphere.placement.map(QPointF(0, 0)), IsPoint(4, 3));
    EXPECT_THAT(sphere.placement.map(QPointF(1, 0)), IsPoint(9, 3));
    EXPECT_THAT(gradient(L"INVSPHERICAL").stops,
                ElementsAre(IsStop(0.0, kFirst), IsStop(1.0, kSecond)));
}

TEST_F(GradientScenes, HemispheresStandOnTheLowerSide)
{
    const SceneGradient dome = gradient(L"HEMISPHERICAL");
    EXPECT_EQ(dome.form, Form::Radial);
    EXPECT_THAT(dome.stops, ElementsAre(IsStop(0.0, kSecond), IsStop(1.0, kFirst)));
    EXPECT_THAT(dome.placement.map(QPointF(0, 0)), IsPoint(4, 0));
    EXPECT_THAT(dome.placement.map(QPointF(1, 0)), IsPoint(4 + std::hypot(4, 6), 0));
    const SceneGradient turned =
        gradient(L"INVHEMISPHERICAL", [](HatchMembers& hatch) { hatch.gradientAngle = kPi; });
    EXPECT_THAT(turned.placement.map(QPointF(0, 0)), IsPoint(4, 6));
    EXPECT_THAT(turned.stops, ElementsAre(IsStop(0.0, kFirst), IsStop(1.0, kSecond)));
}

TEST_F(GradientScenes, CurvedOnesRunInBowsFromTheLowerSide)
{
    const SceneGradient curved = gradient(L"CURVED");
    const double radius = std::hypot(4, 12);
    EXPECT_EQ(curved.form, Form::Radial);
    EXPECT_THAT(curved.placement.map(QPointF(0, 0)), IsPoint(4, -6));
    EXPECT_THAT(curved.placement.map(QPointF(0, 1)), IsPoint(4, radius - 6));
    EXPECT_THAT(curved.stops, ElementsAre(IsStop(6 / radius, kFirst), IsStop(1.0, kSecond)));
    EXPECT_THAT(gradient(L"INVCURVED").stops,
                ElementsAre(IsStop(6 / radius, kSecond), IsStop(1.0, kFirst)));
}

TEST_F(GradientScenes, ShiftsMoveTheLightUpAndToTheLeft)
{
    const auto shiftedBy = [&](float share) {
        return gradient(L"SPHERICAL", [&](HatchMembers& hatch) { hatch.gradientShift = share; })
            .placement.map(QPointF(0, 0));
    };
    EXPECT_THAT(shiftedBy(1.0F), IsPoint(2, 4.5));
    EXPECT_THAT(shiftedBy(0.5F), IsPoint(3, 3.75));
    EXPECT_THAT(shiftedBy(7.0F), IsPoint(2, 4.5)); // of a damaged drawing
}

TEST_F(GradientScenes, OneColourRunsToItsTint)
{
    const auto secondOf = [&](float tint) {
        const SceneGradient made = gradient(L"LINEAR", [&](HatchMembers& hatch) {
            hatch.oneColorGradient = true;
            hatch.gradientTint = tint;
        });
        EXPECT_EQ(made.stops.at(0).color, kFirst);
        return made.stops.at(1).color;
    };
    EXPECT_EQ(secondOf(1.0F), 0xFFFFFFFF);
    EXPECT_EQ(secondOf(0.0F), 0xFF000000);
    EXPECT_EQ(secondOf(0.5F), kFirst);
    EXPECT_EQ(secondOf(0.75F), 0xFF889098); // half the way to white
}

TEST_F(GradientScenes, UnknownNamesRunStraight)
{
    EXPECT_EQ(gradient(L"SOMETHING").form, Form::Linear);
}

TEST_F(GradientScenes, GradientsAreMirroredWithTheirHatch)
{
    const SceneGradient mirrored = gradient(L"LINEAR", [](HatchMembers& hatch) {
        hatch.extrusion.setDirection({0, 0, -1});
    });
    EXPECT_THAT(mirrored.placement.map(QPointF(0, 0)), IsPoint(0, 0));
    EXPECT_THAT(mirrored.placement.map(QPointF(1, 0)), IsPoint(-8, 0));
}

} // namespace
