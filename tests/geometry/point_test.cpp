#include <geometry/point.h>

#include <numbers>

#include <gtest/gtest.h>

namespace {

TEST(Vector, HasALength)
{
    EXPECT_EQ((KdGeVector2d{3.0, -4.0}.length()), 5.0);
    EXPECT_EQ((KdGeVector3d{2.0, 3.0, -6.0}.length()), 7.0);
    EXPECT_EQ(KdGeVector3d().length(), 0.0);
    EXPECT_EQ((KdGeVector3d{1e200, 0.0, 0.0}.length()), 1e200);
}

TEST(Vector, ScaledToLengthOneKeepsItsDirection)
{
    const KdGeVector3d normal = KdGeVector3d{0.0, 3.0, -4.0}.normal();
    EXPECT_DOUBLE_EQ(normal.y, 0.6);
    EXPECT_DOUBLE_EQ(normal.z, -0.8);
    EXPECT_EQ(normal.x, 0.0);
}

TEST(Vector, WithoutLengthStaysAsItIs)
{
    EXPECT_EQ(KdGeVector3d().normal(), KdGeVector3d());
}

TEST(Vector, HasProducts)
{
    const KdGeVector3d a{1.0, 2.0, 3.0};
    const KdGeVector3d b{4.0, -5.0, 6.0};
    EXPECT_EQ(a.dotProduct(b), 12.0);
    EXPECT_EQ(a.crossProduct(b), (KdGeVector3d{27.0, 6.0, -13.0}));
    EXPECT_EQ(b.crossProduct(a), -a.crossProduct(b));
    EXPECT_EQ(KdGeVector3d::kXAxis.crossProduct(KdGeVector3d::kYAxis), KdGeVector3d::kZAxis);
}

TEST(Vector, CanBeScaledAndAdded)
{
    EXPECT_EQ((KdGeVector3d{1.0, -2.0, 3.0} * 2.0), (KdGeVector3d{2.0, -4.0, 6.0}));
    EXPECT_EQ((KdGeVector3d{1.0, 2.0, 3.0} + KdGeVector3d{10.0, 20.0, 30.0}),
              (KdGeVector3d{11.0, 22.0, 33.0}));
}

constexpr double kPi = std::numbers::pi;

struct TurnCase
{
    const char* name;
    KdGeVector3d from;
    KdGeVector3d to;
    double aboutZ;
};

class AngleOfVectors : public testing::TestWithParam<TurnCase>
{
};

TEST_P(AngleOfVectors, IsCounterClockwiseAboutTheAxis)
{
    const auto& [name, from, to, aboutZ] = GetParam();
    EXPECT_NEAR(from.angleTo(to, KdGeVector3d::kZAxis), aboutZ, 1e-15);
    EXPECT_NEAR(to.angleTo(from, -KdGeVector3d::kZAxis), aboutZ, 1e-15);
}

INSTANTIATE_TEST_SUITE_P(
    Turns, AngleOfVectors,
    testing::Values(TurnCase{"same", {2, 0, 0}, {5, 0, 0}, 0.0},
                    TurnCase{"eighth", {1, 0, 0}, {1, 1, 0}, kPi / 4},
                    TurnCase{"quarter", {0, 1, 0}, {-3, 0, 0}, kPi / 2},
                    TurnCase{"half", {1, 1, 0}, {-1, -1, 0}, kPi},
                    TurnCase{"fiveEighths", {1, 0, 0}, {-1, -1, 0}, 5 * kPi / 4},
                    TurnCase{"threeQuarters", {1, 0, 0}, {0, -1, 0}, 3 * kPi / 2},
                    TurnCase{"huge", {1e200, 0, 0}, {0, 1e200, 0}, kPi / 2},
                    TurnCase{"tiny", {1e-200, 0, 0}, {0, 1e-200, 0}, kPi / 2},
                    TurnCase{"withoutLength", {0, 0, 0}, {0, 1, 0}, 0.0}),
    [](const auto& row) { return row.param.name; });

TEST(Vector, JustBelowAnotherIsAtAngleZeroAndNotAtAWholeTurn)
{
    const double angle = KdGeVector3d::kXAxis.angleTo({1.0, -1e-300, 0.0}, KdGeVector3d::kZAxis);
    EXPECT_EQ(angle, 0.0);
}

TEST(Vector, EqualsAnotherWithinTheTolerance)
{
    const KdGeVector3d vector{1.0, 2.0, 3.0};
    EXPECT_TRUE(vector.isEqualTo({1.0, 2.0, 3.0 + 5e-11}));
    EXPECT_FALSE(vector.isEqualTo({1.0, 2.0, 3.0 + 2e-10}));
    EXPECT_TRUE(vector.isEqualTo({1.0, 2.0, 3.5}, {.equalPoint = 0.0, .equalVector = 0.5}));
    EXPECT_FALSE(vector.isEqualTo({1.0, 2.0, 3.75}, {.equalPoint = 9.0, .equalVector = 0.5}));
}

TEST(Point, EqualsOthersWithinTheToleranceOfPoints)
{
    const KdGePoint3d point{1.0, 2.0, 3.0};
    EXPECT_TRUE(point.isEqualTo({1.0, 2.0, 3.0 + 5e-11}));
    EXPECT_FALSE(point.isEqualTo({1.0, 2.0, 3.0 + 2e-10}));
    EXPECT_TRUE(point.isEqualTo({1.0, 2.0, 3.5}, {.equalPoint = 0.5, .equalVector = 0.0}));
    EXPECT_FALSE(point.isEqualTo({1.0, 2.0, 3.75}, {.equalPoint = 0.5, .equalVector = 9.0}));
}

TEST(Point, HasADistanceToOthers)
{
    EXPECT_EQ((KdGePoint2d{1.0, 1.0}.distanceTo({4.0, 5.0})), 5.0);
    EXPECT_EQ((KdGePoint3d{1.0, 1.0, 1.0}.distanceTo({3.0, 4.0, 7.0})), 7.0);
    EXPECT_EQ(KdGePoint3d::kOrigin.distanceTo({}), 0.0);
}

TEST(Point, MovesByVectors)
{
    const KdGePoint3d from{1.0, 2.0, 3.0};
    const KdGePoint3d to{10.0, 20.0, 30.0};
    EXPECT_EQ(from + (to - from), to);
    EXPECT_EQ(to - KdGePoint3d::kOrigin, to.asVector());
    EXPECT_EQ((KdGePoint2d{3.0, 5.0} - KdGePoint2d{1.0, 1.0}), (KdGeVector2d{2.0, 4.0}));
}

TEST(Scale, IsOneInEachDirectionAtFirst)
{
    EXPECT_EQ(KdGeScale3d(), (KdGeScale3d{1.0, 1.0, 1.0}));
}

} // namespace
