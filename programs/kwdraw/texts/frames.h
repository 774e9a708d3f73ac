/// Frames in which texts lie.
#pragma once

#include <geometry/matrix.h>

/// The frame of a text: x along its lines, z along its normal.
/// @param direction  WCS, of any length; what of it points along the normal doesn't count. Without
///                   length: the x axis of the object frame
/// @param normal     WCS, of any length
KdGeMatrix3d textFrame(const KdGePoint3d& origin, const KdGeVector3d& direction,
                       const KdGeVector3d& normal);
/// Turns about the z axis, counter-clockwise, in radians, and moves the origin.
KdGeMatrix3d turnedFrame(const KdGePoint3d& origin, double angle);
