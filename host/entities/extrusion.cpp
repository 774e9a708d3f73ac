#include <entities/extrusion.h>

KdGeVector3d Extrusion::normal() const
{
    if (direction() == KdGeVector3d{})
        return KdGeVector3d::kZAxis;
    return direction().normal();
}

KdGePoint3d Extrusion::toWorld(const KdGePoint3d& point) const
{
    // Nearly all entities lie flat, and their two frames are the same.
    if (direction() == KdGeVector3d::kZAxis)
        return point;
    return frame() * point;
}
