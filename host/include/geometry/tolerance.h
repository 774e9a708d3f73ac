/// How near counts as equal.
#pragma once

#include <runtime/export.h>

struct KdGeTol
{
    double equalPoint = 1e-10;  ///< distance of points, in drawing units
    double equalVector = 1e-10; ///< length of the difference of vectors
};

/// The tolerance for whoever has no better one.
struct KW_EXPORT KdGeContext
{
    static constexpr KdGeTol gTol{};
};
