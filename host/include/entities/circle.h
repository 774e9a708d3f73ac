/// Circles and circular arcs.
#pragma once

#include <entities/curve.h>
#include <entities/extrusion.h>

struct KW_EXPORT CircleMembers : EntityMembers
{
    KdGePoint3d center; ///< OCS
    double radius = 0.0;
    Extrusion extrusion;
};

class KW_EXPORT KdDbCircle : public KdDbCurve
{
    KD_RX_DECLARE(KdDbCircle)
    KD_DB_MEMBERS(CircleMembers)

    /// In WCS.
    KdGePoint3d center() const { return data().extrusion.toWorld(data().center); }
    double radius() const { return data().radius; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    bool isClosed() const override;
    /// The centre and the four quadrants, from the start on.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The parameter is the angle from the x axis of the object frame, which is where it starts.
    KdErrorStatus askGeometry(const Question& question) const override;
    KdGeVector3d sweep() const override { return data().extrusion.sweep(); }
};

/// An arc is its circle and two angles. They are in radians, counter-clockwise about the normal
/// from the x axis of the object frame; an end below the start lies in the next turn.
struct KW_EXPORT ArcMembers : CircleMembers
{
    double startAngle = 0.0;
    double endAngle = 0.0;
};

class KW_EXPORT KdDbArc : public KdDbCurve
{
    KD_RX_DECLARE(KdDbArc)
    KD_DB_MEMBERS(ArcMembers)

    /// In WCS.
    KdGePoint3d center() const { return data().extrusion.toWorld(data().center); }
    double radius() const { return data().radius; }
    /// In radians, as the drawing has them; see `ArcMembers`.
    double startAngle() const { return data().startAngle; }
    double endAngle() const { return data().endAngle; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The centre, both ends and the middle of the arc.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The parameter is the angle, which in the end is not below that of the start.
    KdErrorStatus askGeometry(const Question& question) const override;
    KdGeVector3d sweep() const override { return data().extrusion.sweep(); }
};
