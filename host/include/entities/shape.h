/// Shapes: letters of a shape file, placed by themselves.
#pragma once

#include <entities/declare.h>
#include <entities/extrusion.h>

struct KW_EXPORT ShapeMembers : EntityMembers
{
    KdGePoint3d position; ///< OCS
    double size = 0.0;
    double rotation = 0.0; ///< radians in the object frame
    double widthFactor = 1.0;
    double oblique = 0.0; ///< radians
    Extrusion extrusion;
    KdString name;
};

class KW_EXPORT KdDbShape : public KdDbEntity
{
    KD_RX_DECLARE(KdDbShape)
    KD_DB_MEMBERS(ShapeMembers)

    /// In WCS.
    KdGePoint3d position() const { return data().extrusion.toWorld(data().position); }
    /// What the shape is called in its file.
    const KdString& name() const { return data().name; }
    double size() const { return data().size; }
    /// In radians, counter-clockwise about the normal from the x axis of the object frame.
    double rotation() const { return data().rotation; }
    double widthFactor() const { return data().widthFactor; }
    /// Slant in radians, to the right.
    double oblique() const { return data().oblique; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The box around the square in which the shape is drawn, as a drawing does not hold the shape
    /// itself.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
