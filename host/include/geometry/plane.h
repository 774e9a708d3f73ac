/// Planes.
#pragma once

#include <span>

#include <geometry/point.h>

/// A plane with a frame of its own.
struct KW_EXPORT KdGePlane
{
    KdGePoint3d origin;
    KdGeVector3d xAxis{1.0, 0.0, 0.0}; ///< of length 1
    KdGeVector3d yAxis{0.0, 1.0, 0.0}; ///< of length 1, across the x axis

    static const KdGePlane kXYPlane;
};

/// True if there is a plane from which no point is farther away than rounding explains. Points on
/// one line, and fewer than four, always lie in one plane.
KW_EXPORT bool kdgeLieInOnePlane(std::span<const KdGePoint3d> points);
