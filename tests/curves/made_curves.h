/// What the tests of the curves that are made from entities share.
#pragma once

#include "../geometry/support.h"

namespace provider_test {

using geometry_test::endOf;
using geometry_test::kNear;
using geometry_test::kPi;
using geometry_test::startOf;
using geometry_test::wholeLength;

inline void expectNear(const KdGePoint3d& actual, const KdGePoint3d& expected)
{
    EXPECT_NEAR(actual.distanceTo(expected), 0.0, kNear)
        << actual.x << ',' << actual.y << ',' << actual.z;
}

} // namespace provider_test
