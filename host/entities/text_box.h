// The rectangle that a row of letters fills.
#pragma once

#include <geometry/extents.h>
#include <geometry/matrix.h>

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
