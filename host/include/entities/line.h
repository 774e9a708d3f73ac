/// Lines.
#pragma once

#include <entities/curve.h>
#include <entities/extrusion.h>

struct KW_EXPORT LineMembers : EntityMembers
{
    KdGePoint3d start; ///< WCS
    KdGePoint3d end;   ///< WCS
    Extrusion extrusion;
};

class KW_EXPORT KdDbLine : public KdDbCurve
{
    KD_RX_DECLARE(KdDbLine)
    KD_DB_MEMBERS(LineMembers)

    /// Both ends in WCS.
    KdGePoint3d startPoint() const { return data().start; }
    KdGePoint3d endPoint() const { return data().end; }
    double thickness() const { return data().extrusion.thickness(); }
    /// Direction of the thickness in WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The parameter is the distance from the start. A line encloses no area.
    KdErrorStatus getArea(double& area) const override;
    /// Start, end and middle.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    KdErrorStatus askGeometry(const Question& question) const override;
    KdGeVector3d sweep() const override { return data().extrusion.sweep(); }
};
