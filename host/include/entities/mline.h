/// Multilines.
#pragma once

#include <vector>

#include <entities/declare.h>
#include <entities/mline_style.h>
#include <geometry/point.h>

struct KW_EXPORT MlineMembers : EntityMembers
{
    KdDbObjectId style;
    double scale = 1.0;
    KdGeVector3d normal{0.0, 0.0, 1.0};
    std::vector<KdGePoint3d> vertices; ///< WCS
    std::int8_t justification = 0;
    bool closed = false;
    bool withoutStartCaps = false;
    bool withoutEndCaps = false;
};

/// Lines side by side along one path.
class KW_EXPORT KdDbMline : public KdDbEntity
{
    KD_RX_DECLARE(KdDbMline)
    KD_DB_MEMBERS(MlineMembers)

    /// Which of its lines follows the path; the numbers are those of drawing files.
    enum MlineJustification
    {
        kTop = 0,
        kZero = 1,
        kBottom = 2,
    };

    /// A `KdDbMlineStyle`; the null id if it is not there.
    KdDbObjectId style() const { return data().style; }
    /// Factor on the offsets of the style.
    double scale() const { return data().scale; }
    /// A `MlineJustification`, or what else a damaged drawing holds.
    int justification() const { return data().justification; }
    bool closedMline() const { return data().closed; }
    KdGeVector3d normal() const { return data().normal; }
    int numVertices() const { return static_cast<int>(data().vertices.size()); }
    /// A point of the path in WCS. `eInvalidInput` unless `index` is below `numVertices()`,
    /// `vertex` untouched.
    KdErrorStatus getVertexAt(int index, KdGePoint3d& vertex) const;
    /// True if the caps that the style asks for are left out at an end.
    bool suppressStartCaps() const { return data().withoutStartCaps; }
    bool suppressEndCaps() const { return data().withoutEndCaps; }

    /// The lines of the elements in WCS, in the order of the style, each with a point for each
    /// vertex of the path; where the path turns they meet on the bisector. Empty without a style.
    std::vector<std::vector<KdGePoint3d>> elementLines() const;
    /// The box around the lines of all elements.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
