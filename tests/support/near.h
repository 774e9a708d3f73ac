/// Comparison of computed points.
#pragma once

#include <gmock/gmock.h>

namespace test_support {

/// How far rounding may take a coordinate, in drawing units.
constexpr double kNear = 1e-12;

/// A point or vector each of whose coordinates is that of another, but for rounding.
MATCHER_P(IsNear, expected, "")
{
    const auto isNear = [&](double coordinate, double wanted) {
        return testing::ExplainMatchResult(testing::DoubleNear(wanted, kNear), coordinate,
                                           result_listener);
    };
    return isNear(arg.x, expected.x) && isNear(arg.y, expected.y) && isNear(arg.z, expected.z);
}

} // namespace test_support
