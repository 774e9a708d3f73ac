#include <geometry/matrix.h>

#include <cmath>

#include <gtest/gtest.h>

namespace {

constexpr double kNear = 1e-12;

void expectNear(const KdGePoint3d& actual, const KdGePoint3d& expected)
{
    EXPECT_NEAR(actual.x, expected.x, kNear);
    EXPECT_NEAR(actual.y, expected.y, kNear);
    EXPECT_NEAR(actual.z, expected.z, kNear);
}

void expectNear(const KdGeVector3d& actual, const KdGeVector3d& expected)
{
    expectNear(KdGePoint3d{actual.x, actual.y, actual.z},
               KdGePoint3d{expected.x, expected.y, expected.z});
}

/// The axes that the arbitrary axis rule gives, worked out by hand.
struct AxesRow
{
    const char* name;
    KdGeVector3d direction;
    KdGeVector3d x;
    KdGeVector3d y;
    KdGeVector3d z;
};

const double kRoot2 = std::sqrt(2.0);
const double kRoot3 = std::sqrt(3.0);
const double kRoot6 = std::sqrt(6.0);

const AxesRow kAxes[] = {
    {"upward", {0, 0, 1}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
    // Y x (0,0,-1) = (-1,0,0); (0,0,-1) x (-1,0,0) = (0,1,0)
    {"downward", {0, 0, -1}, {-1, 0, 0}, {0, 1, 0}, {0, 0, -1}},
    // Z x (1,0,0) = (0,1,0); (1,0,0) x (0,1,0) = (0,0,1)
    {"alongX", {1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 0, 0}},
    // Z x (0,1,0) = (-1,0,0); (0,1,0) x (-1,0,0) = (0,0,1)
    {"alongY", {0, 1, 0}, {-1, 0, 0}, {0, 0, 1}, {0, 1, 0}},
    {"alongNegativeY", {0, -1, 0}, {1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
    // Z x (1,1,1) = (-1,1,0); (1,1,1) x (-1,1,0) = (-1,-1,2)
    {"tiltedAndNotOfLengthOne",
     {5, 5, 5},
     {-1 / kRoot2, 1 / kRoot2, 0},
     {-1 / kRoot6, -1 / kRoot6, 2 / kRoot6},
     {1 / kRoot3, 1 / kRoot3, 1 / kRoot3}},
    // 7/25 is beyond 1/64, so Z x N = (0, 7/25, 0)
    {"tiltedInOnePlane", {7, 0, 24}, {0, 1, 0}, {-0.96, 0, 0.28}, {0.28, 0, 0.96}},
    {"withoutLength", {0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},
};

class ArbitraryAxis : public testing::TestWithParam<AxesRow>
{
};

TEST_P(ArbitraryAxis, GivesTheAxesOfThePlane)
{
    const AxesRow& row = GetParam();
    const KdGeMatrix3d map = KdGeMatrix3d::planeToWorld(row.direction);
    expectNear(map * KdGeVector3d::kXAxis, row.x);
    expectNear(map * KdGeVector3d::kYAxis, row.y);
    expectNear(map * KdGeVector3d::kZAxis, row.z);
    expectNear(map * KdGePoint3d::kOrigin, KdGePoint3d::kOrigin);
}

TEST_P(ArbitraryAxis, HasAnInverse)
{
    const KdGePoint3d point{2.0, -3.0, 5.0};
    const KdGeMatrix3d there = KdGeMatrix3d::planeToWorld(GetParam().direction);
    const KdGeMatrix3d back = KdGeMatrix3d::worldToPlane(GetParam().direction);
    expectNear(back * (there * point), point);
    expectNear((there * back) * point, point);
}

INSTANTIATE_TEST_SUITE_P(All, ArbitraryAxis, testing::ValuesIn(kAxes),
                         [](const auto& row) { return row.param.name; });

TEST(ArbitraryAxisLimit, LiesAtOneSixtyFourth)
{
    // Just inside, x is Y crossed with the normal and so close to world X; just outside it is Z
    // crossed with the normal and so exactly world Y.
    const double inside = 1.0 / 64.0 - 1e-6;
    const double outside = 1.0 / 64.0 + 1e-6;
    const auto normalOf = [](double x) { return KdGeVector3d{x, 0.0, std::sqrt(1.0 - x * x)}; };
    EXPECT_GT((KdGeMatrix3d::planeToWorld(normalOf(inside)) * KdGeVector3d::kXAxis).x, 0.99);
    expectNear(KdGeMatrix3d::planeToWorld(normalOf(outside)) * KdGeVector3d::kXAxis,
               KdGeVector3d::kYAxis);
}

TEST(Matrix, BeginsAsTheIdentity)
{
    const KdGePoint3d point{1.0, 2.0, 3.0};
    EXPECT_EQ(KdGeMatrix3d() * point, point);
}

TEST(Matrix, MovesPointsButNotVectors)
{
    const KdGeMatrix3d map = KdGeMatrix3d::fromFrame({10.0, 20.0, 30.0}, KdGeVector3d::kYAxis,
                                                     -KdGeVector3d::kXAxis, KdGeVector3d::kZAxis);
    EXPECT_EQ((map * KdGePoint3d{1.0, 2.0, 3.0}), (KdGePoint3d{8.0, 21.0, 33.0}));
    EXPECT_EQ((map * KdGeVector3d{1.0, 2.0, 3.0}), (KdGeVector3d{-2.0, 1.0, 3.0}));
}

TEST(Matrix, ProductAppliesTheRightOneFirst)
{
    const KdGeMatrix3d turn = KdGeMatrix3d::fromFrame(KdGePoint3d::kOrigin, KdGeVector3d::kYAxis,
                                                      -KdGeVector3d::kXAxis, KdGeVector3d::kZAxis);
    const KdGeMatrix3d move = KdGeMatrix3d::fromFrame({5.0, 0.0, 0.0}, KdGeVector3d::kXAxis,
                                                      KdGeVector3d::kYAxis, KdGeVector3d::kZAxis);
    const KdGePoint3d point{1.0, 0.0, 0.0};
    EXPECT_EQ((move * turn) * point, (KdGePoint3d{5.0, 1.0, 0.0}));
    EXPECT_EQ((turn * move) * point, (KdGePoint3d{0.0, 6.0, 0.0}));
    EXPECT_EQ((turn * move) * point, turn * (move * point));
}

TEST(Matrix, HasAnInverseThatLeadsBack)
{
    const KdGeMatrix3d map =
        KdGeMatrix3d::fromFrame({10.0, 20.0, 30.0}, {0.0, 2.0, 0.0}, {-1.0, 0.0, 1.0}, {1, 1, 4});
    const KdGePoint3d back = map.inverse() * (map * KdGePoint3d{1.0, 2.0, 3.0});
    EXPECT_NEAR(back.distanceTo({1.0, 2.0, 3.0}), 0.0, 1e-14);
    EXPECT_EQ((map * KdGePoint3d::kOrigin), (KdGePoint3d{10.0, 20.0, 30.0}));
    EXPECT_NEAR((map.inverse() * KdGePoint3d{10.0, 20.0, 30.0}).distanceTo({}), 0.0, 1e-14);
}

TEST(Matrix, ThatFlattensSpaceHasTheIdentityAsItsInverse)
{
    const KdGeMatrix3d flat = KdGeMatrix3d::fromFrame(KdGePoint3d::kOrigin, KdGeVector3d::kXAxis,
                                                      KdGeVector3d::kYAxis, {});
    const KdGePoint3d point{1.0, 2.0, 3.0};
    EXPECT_EQ(flat.inverse() * point, point);
}

} // namespace
