/// What the tests of entities share.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <geometry/point.h>

#include <support/near.h>

namespace entity_test {

using test_support::IsNear;
using test_support::kNear;

/// Directions of extrusion, and where the point (2, 3, 5) of their object frames lies in the world.
constexpr KdGePoint3d kPointInFrame{2.0, 3.0, 5.0};

struct FrameRow
{
    const char* name;
    KdGeVector3d direction;
    KdGeVector3d normal;
    KdGePoint3d world;
};

constexpr FrameRow kFrames[] = {
    {"upward", {0, 0, 1}, {0, 0, 1}, {2, 3, 5}},
    // x axis = (0,1,0) x N = (-1,0,0), y axis = N x (-1,0,0) = (0,1,0)
    {"downward", {0, 0, -1}, {0, 0, -1}, {-2, 3, -5}},
    // x axis = (0,0,1) x N = (0,1,0), y axis = N x (0,1,0) = (-0.8,0,0.6)
    {"tilted", {3, 0, 4}, {0.6, 0, 0.8}, {0.6, 2, 5.8}},
    {"withoutLength", {0, 0, 0}, {0, 0, 1}, {2, 3, 5}},
};

class InEachFrame : public testing::TestWithParam<FrameRow>
{
};

inline auto frames()
{
    return testing::ValuesIn(kFrames);
}

inline auto frameName()
{
    return [](const testing::TestParamInfo<FrameRow>& row) { return row.param.name; };
}

} // namespace entity_test
