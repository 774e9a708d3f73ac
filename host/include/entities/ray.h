/// Rays and construction lines.
#pragma once

#include <entities/curve.h>

/// A point and a direction, for both kinds.
struct KW_EXPORT RayMembers : EntityMembers
{
    KdGePoint3d basePoint;                 ///< WCS
    KdGeVector3d direction{1.0, 0.0, 0.0}; ///< WCS, of any length
};

/// Begins at its base point and has no end.
class KW_EXPORT KdDbRay : public KdDbCurve
{
    KD_RX_DECLARE(KdDbRay)
    KD_DB_MEMBERS(RayMembers)

    /// In WCS.
    KdGePoint3d basePoint() const { return data().basePoint; }
    /// In WCS, of length 1.
    KdGeVector3d unitDir() const { return data().direction.normal(); }

    /// The base point, and the point one unit behind it.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The parameter is the distance from the base point.
    KdErrorStatus askGeometry(const Question& question) const override;
};

/// Runs through its base point both ways and has no ends.
class KW_EXPORT KdDbXline : public KdDbCurve
{
    KD_RX_DECLARE(KdDbXline)
    KD_DB_MEMBERS(RayMembers)

    /// In WCS.
    KdGePoint3d basePoint() const { return data().basePoint; }
    /// In WCS, of length 1.
    KdGeVector3d unitDir() const { return data().direction.normal(); }

    /// The base point, and the points one unit before and behind it.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The parameter is the distance from the base point, negative before it.
    KdErrorStatus askGeometry(const Question& question) const override;
};
