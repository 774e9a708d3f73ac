/// Ellipses and elliptical arcs.
#pragma once

#include <entities/curve.h>
#include <entities/extrusion.h>
#include <geometry/turn.h>

/// The parameter t runs through centre + major axis * cos t + minor axis * sin t. It is in radians,
/// but no angle; an end below the start lies in the next turn.
struct KW_EXPORT EllipseMembers : EntityMembers
{
    KdGePoint3d center;                    ///< WCS
    KdGeVector3d majorAxis{1.0, 0.0, 0.0}; ///< WCS, from the centre
    Extrusion extrusion;                   ///< gives the normal only
    double radiusRatio = 1.0;              ///< minor to major; negative turns the minor axis round
    double startParam = 0.0;
    double endParam = KdGe::kTurn;
};

class KW_EXPORT KdDbEllipse : public KdDbCurve
{
    KD_RX_DECLARE(KdDbEllipse)
    KD_DB_MEMBERS(EllipseMembers)

    /// In WCS.
    KdGePoint3d center() const { return data().center; }
    /// From the centre to the curve, in WCS.
    KdGeVector3d majorAxis() const { return data().majorAxis; }
    KdGeVector3d minorAxis() const;
    double radiusRatio() const { return data().radiusRatio; }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }
    /// Directions of the ends as seen from the centre: radians, counter-clockwise about the normal
    /// from the major axis, not below 0. The end of a closed ellipse is a turn behind its start.
    double startAngle() const;
    double endAngle() const;
    /// The parameter at a direction, which is measured as those above; within a quarter of a turn
    /// of it for a positive ratio.
    double paramAtAngle(double angle) const;

    bool isClosed() const override;
    /// The centre, and the ends of the axes, or the ends and the middle of an open arc.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    KdErrorStatus askGeometry(const Question& question) const override;

  private:
    double angleAt(double parameter) const;
};
