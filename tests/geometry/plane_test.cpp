#include <geometry/plane.h>

#include <vector>

#include "support.h"

namespace {

using namespace geometry_test;

TEST(Plane, GivesCoordinatesAlongItsAxes)
{
    const KdGePoint3d point{3, 4, 5};
    EXPECT_EQ(point.convert2d(KdGePlane::kXYPlane), (KdGePoint2d{3, 4}));
    const KdGePlane upright{{1, 0, 0}, KdGeVector3d::kYAxis, KdGeVector3d::kZAxis};
    EXPECT_EQ(point.convert2d(upright), (KdGePoint2d{4, 5}));
}

TEST(Points, LieInOnePlaneIfNoneStandsOut)
{
    std::vector<KdGePoint3d> points{{0, 0, 0}, {1, 0, 1}, {0, 1, 1}, {1, 1, 2}, {-3, 5, 2}};
    EXPECT_TRUE(kdgeLieInOnePlane(points));
    points.push_back({1, 1, 2.001});
    EXPECT_FALSE(kdgeLieInOnePlane(points));
}

TEST(Points, AlwaysLieInOnePlaneIfTheyAreFewOrOnALine)
{
    EXPECT_TRUE(kdgeLieInOnePlane({}));
    EXPECT_TRUE(kdgeLieInOnePlane(std::vector<KdGePoint3d>{{0, 0, 0}, {1, 2, 3}, {4, 4, 4}}));
    EXPECT_TRUE(kdgeLieInOnePlane(
        std::vector<KdGePoint3d>{{0, 0, 0}, {1, 2, 3}, {2, 4, 6}, {-1, -2, -3}, {0, 0, 0}}));
}

TEST(Points, LieInOnePlaneAlsoFarFromTheOrigin)
{
    std::vector<KdGePoint3d> points;
    for (int i = 0; i < 20; ++i) // z = 0.1 x + 0.3 y, rounded
        points.push_back(
            {5e5 + i * 0.7, 6e5 + i * i * 0.1, 0.1 * (5e5 + i * 0.7) + 0.3 * (6e5 + i * i * 0.1)});
    EXPECT_TRUE(kdgeLieInOnePlane(points));
}

TEST(Vector, TurnsAboutAnAxis)
{
    EXPECT_THAT((KdGeVector3d{2, 0, 1}.rotatedBy(kPi / 2, {0, 0, 5})),
                IsNear(KdGeVector3d{0, 2, 1}));
    EXPECT_THAT((KdGeVector3d{0, 2, 0}.rotatedBy(kPi / 2, {-1, 0, 0})),
                IsNear(KdGeVector3d{0, 0, -2}));
}

TEST(Vector2d, HasAnAngle)
{
    EXPECT_DOUBLE_EQ((KdGeVector2d{0, 2}.angle()), kPi / 2);
    EXPECT_DOUBLE_EQ((KdGeVector2d{-1, 0}.angle()), kPi);
    EXPECT_DOUBLE_EQ((KdGeVector2d{1, -1}.angle()), -kPi / 4);
}

} // namespace
