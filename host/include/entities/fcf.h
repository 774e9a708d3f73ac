/// Tolerance frames.
#pragma once

#include <database/dimension_style.h>
#include <entities/declare.h>

struct KW_EXPORT FcfMembers : EntityMembers
{
    KdString text;                      ///< cells and lines as `KdDbFcf::text` tells
    KdGePoint3d location;               ///< WCS
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length
    KdGeVector3d direction; ///< WCS, of any length; without: the x axis of the object frame
    DimensionStyleUse dimension;
};

/// Rows of cells with symbols and numbers that tell how far a made part may be off.
class KW_EXPORT KdDbFcf : public KdDbEntity
{
    KD_RX_DECLARE(KdDbFcf)
    KD_DB_MEMBERS(FcfMembers)
    KD_DB_USES_DIMENSION_STYLE

    /// The rows, a line feed between each two; inside a row "%%v" stands between two cells.
    const KdString& text() const { return data().text; }
    /// In WCS: the middle of the left edge of the first row.
    KdGePoint3d location() const { return data().location; }
    /// In WCS, of length 1.
    KdGeVector3d normal() const;
    /// In WCS, of length 1: along the rows.
    KdGeVector3d direction() const;

    /// The corners of the frame: top left, top right, bottom left, bottom right.
    KdErrorStatus getBoundingPoints(KdArray<KdGePoint3d>& points) const override;
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
