/// What the tests of geometry share.
#pragma once

#include <numbers>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <geometry/curve.h>

#include <support/near.h>

namespace geometry_test {

using test_support::IsNear;
using test_support::kNear;

constexpr double kPi = std::numbers::pi;
constexpr double kTolerance = KdGeContext::gTol.equalPoint;

inline double wholeLength(const KdGeCurve3d& curve)
{
    return curve.length(curve.interval().lower, curve.interval().upper, kTolerance);
}

inline KdGePoint3d startOf(const KdGeCurve3d& curve)
{
    KdGePoint3d point;
    EXPECT_TRUE(curve.hasStartPoint(point));
    return point;
}

inline KdGePoint3d endOf(const KdGeCurve3d& curve)
{
    KdGePoint3d point;
    EXPECT_TRUE(curve.hasEndPoint(point));
    return point;
}

inline KdGeExtents3d extentsOf(const KdGeCurve3d& curve)
{
    KdGeExtents3d extents;
    curve.addToExtents(extents);
    return extents;
}

} // namespace geometry_test
