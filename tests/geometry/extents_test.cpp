#include <geometry/extents.h>

#include <gtest/gtest.h>

namespace {

TEST(Extents, BeginEmptyAndGrowAroundPoints)
{
    KdGeExtents3d extents;
    EXPECT_TRUE(extents.isEmpty());
    extents.addPoint({1.0, -2.0, 3.0});
    EXPECT_FALSE(extents.isEmpty());
    EXPECT_EQ(extents.minPoint, extents.maxPoint);
    extents.addPoint({-1.0, 5.0, 3.0});
    EXPECT_EQ(extents.minPoint, (KdGePoint3d{-1.0, -2.0, 3.0}));
    EXPECT_EQ(extents.maxPoint, (KdGePoint3d{1.0, 5.0, 3.0}));
}

TEST(Extents, TakeOverAnotherBoxUnlessItIsEmpty)
{
    KdGeExtents3d extents;
    extents.addPoint({1.0, 1.0, 1.0});
    const KdGeExtents3d before = extents;
    extents.addExtents({});
    EXPECT_EQ(extents, before);
    extents.addExtents({{0.0, 2.0, 0.0}, {3.0, 4.0, 0.5}});
    EXPECT_EQ(extents.minPoint, (KdGePoint3d{0.0, 1.0, 0.0}));
    EXPECT_EQ(extents.maxPoint, (KdGePoint3d{3.0, 4.0, 1.0}));
}

} // namespace
