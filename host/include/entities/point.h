/// Points.
#pragma once

#include <entities/declare.h>
#include <entities/extrusion.h>

struct KW_EXPORT PointMembers : EntityMembers
{
    KdGePoint3d position; ///< WCS
    double ecsRotation = 0.0;
    Extrusion extrusion;
};

class KW_EXPORT KdDbPoint : public KdDbEntity
{
    KD_RX_DECLARE(KdDbPoint)
    KD_DB_MEMBERS(PointMembers)

    /// In WCS.
    KdGePoint3d position() const { return data().position; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    /// How far the point's mark is turned, in radians about the normal.
    double ecsRotation() const { return data().ecsRotation; }

    bool isPlanar() const override { return true; }
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
