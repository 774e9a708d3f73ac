#include <geometry/linear_curves.h>

#include <limits>

#include "support.h"

namespace {

using namespace geometry_test;

constexpr double kEndless = std::numeric_limits<double>::infinity();

TEST(LineSegment, RunsFromPointToPointByDistance)
{
    const KdGeLineSeg3d segment({1, 1, 1}, {3, 4, 7});
    EXPECT_EQ(segment.interval().lower, 0.0);
    EXPECT_EQ(segment.interval().upper, 7.0);
    EXPECT_EQ(startOf(segment), (KdGePoint3d{1, 1, 1}));
    EXPECT_EQ(endOf(segment), (KdGePoint3d{3, 4, 7}));
    EXPECT_THAT(segment.evalPoint(3.5), IsNear(KdGePoint3d{2, 2.5, 4}));
}

TEST(LineSegment, HasALengthWithinItsEndsWhicheverComesFirst)
{
    const KdGeLineSeg3d segment({0, 0, 0}, {0, 5, 0});
    EXPECT_EQ(wholeLength(segment), 5.0);
    EXPECT_EQ(segment.length(4, 1, kTolerance), 3.0);
    EXPECT_EQ(segment.length(-10, 2, kTolerance), 2.0);
    EXPECT_EQ(segment.length(7, 9, kTolerance), 0.0);
}

TEST(LineSegment, StaysAPointIfItsEndsMeet)
{
    const KdGeLineSeg3d segment({1, 2, 3}, {1, 2, 3});
    EXPECT_EQ(wholeLength(segment), 0.0);
    EXPECT_EQ(endOf(segment), (KdGePoint3d{1, 2, 3}));
}

TEST(LineSegment, FillsTheBoxOfItsEnds)
{
    const KdGeExtents3d extents = extentsOf(KdGeLineSeg3d({3, 0, 1}, {1, 2, 1}));
    EXPECT_EQ(extents.minPoint, (KdGePoint3d{1, 0, 1}));
    EXPECT_EQ(extents.maxPoint, (KdGePoint3d{3, 2, 1}));
}

TEST(Line, HasNoEndsAndNoBox)
{
    const KdGeLine3d line({1, 2, 3}, KdGeVector3d{0, 0, 2});
    KdGePoint3d point{7, 7, 7};
    EXPECT_FALSE(line.hasStartPoint(point));
    EXPECT_FALSE(line.hasEndPoint(point));
    EXPECT_EQ(point, (KdGePoint3d{7, 7, 7}));
    EXPECT_FALSE(line.interval().isBounded());
    EXPECT_TRUE(extentsOf(line).isEmpty());
}

TEST(Line, MeasuresDistancesFromItsPoint)
{
    const KdGeLine3d line(KdGePoint3d{1, 2, 3}, KdGePoint3d{4, 6, 3});
    EXPECT_THAT(line.evalPoint(-5), IsNear(KdGePoint3d{-2, -2, 3}));
    EXPECT_EQ(line.length(-2, 3, kTolerance), 5.0);
    EXPECT_EQ(line.length(0, kEndless, kTolerance), kEndless);
}

TEST(Ray, BeginsAtItsPoint)
{
    const KdGeRay3d ray({1, 2, 3}, KdGeVector3d{0, 4, 0});
    KdGePoint3d end;
    EXPECT_EQ(startOf(ray), (KdGePoint3d{1, 2, 3}));
    EXPECT_FALSE(ray.hasEndPoint(end));
    EXPECT_EQ(ray.length(-2, 3, kTolerance), 3.0);
    EXPECT_THAT(ray.evalPoint(2), IsNear(KdGePoint3d{1, 4, 3}));
}

} // namespace
