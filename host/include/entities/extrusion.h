/// What flat entities share: the plane that they lie in, and how far they are drawn out of it.
#pragma once

#include <geometry/matrix.h>

/// A flat entity's direction of extrusion. It also fixes the entity's object frame (OCS): the frame
/// about the world's origin whose z axis is the direction and whose x axis follows the arbitrary
/// axis rule.
struct KW_EXPORT Extrusion
{
    KdGeVector3d direction{0.0, 0.0, 1.0}; ///< WCS, of any length
    double thickness = 0.0;                ///< along the direction, may be negative

    /// The direction with length 1; the world's Z for a direction of no length.
    KdGeVector3d normal() const;
    /// The thickness as a vector in WCS.
    KdGeVector3d sweep() const { return normal() * thickness; }
    /// From the object frame to the world.
    KdGePoint3d toWorld(const KdGePoint3d& point) const;
    KdGeMatrix3d frame() const { return KdGeMatrix3d::planeToWorld(normal()); }
};
