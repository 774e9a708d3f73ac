/// Where blocks are placed that no block reference places.
#pragma once

#include <geometry/matrix.h>
#include <kwdraw/scene/entity_walk.h>

/// The map that moves by a vector.
KdGeMatrix3d shiftBy(const KdGeVector3d& way);

/// Draws a block with its base point in the frame's origin.
void drawBlockAt(EntityWalk& walk, KdDbObjectId block, const KdGeMatrix3d& frame);

/// The end of a leader.
struct ArrowPlace
{
    KdGePoint3d tip;
    KdGePoint3d toward; ///< any point of the line behind the tip
    KdGeVector3d normal;
    double size = 0.0;
};
/// Draws an arrowhead in the look in force.
/// @param block  of unit size, with its tip in the origin; null: the filled closed one
void drawArrowHead(EntityWalk& walk, KdDbObjectId block, const ArrowPlace& place);
