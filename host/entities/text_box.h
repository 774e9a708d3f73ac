// The rectangle that a row of letters fills.
#pragma once

#include <geometry/extents.h>
#include <geometry/matrix.h>
#include <runtime/kd_array.h>

/// A rectangle in the frame of a text: x runs along the line, y upwards.
struct TextBox
{
    double left = 0.0;
    double right = 0.0;
    double bottom = 0.0;
    double top = 0.0;
};

/// Slants and turns that take a box to its place.
struct TextPlacement
{
    KdGePoint3d origin;    ///< OCS: where the box has its (0, 0)
    double rotation = 0.0; ///< radians in the object frame
    double oblique = 0.0;  ///< radians; shifts what lies above the base line to the right
    bool mirroredInX = false;
    bool mirroredInY = false;
};

/// The box around the placed rectangle in the world, drawn out along the normal by the thickness.
/// @param frame  from the object frame to the world
KdGeExtents3d placedExtents(const TextBox& box, const TextPlacement& placement,
                            const KdGeMatrix3d& frame, double thickness);

/// A direction of any length with length 1; the world's Z for one of no length.
KdGeVector3d unitNormal(const KdGeVector3d& normal);
/// The part of a direction that lies in the plane of a unit normal, with length 1. Where no part
/// does, the x axis of the plane's object frame.
KdGeVector3d unitDirection(const KdGeVector3d& direction, const KdGeVector3d& normal);

/// Appends the corners of a box in the world: top left, top right, bottom left, bottom right.
/// @param origin  WCS: where the box has its (0, 0)
/// @param right   WCS: its x axis, across the normal, both of length 1
void appendCorners(const TextBox& box, const KdGePoint3d& origin, const KdGeVector3d& right,
                   const KdGeVector3d& normal, KdArray<KdGePoint3d>& corners);
KdGeExtents3d extentsOf(const KdArray<KdGePoint3d>& points);
