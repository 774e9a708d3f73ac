/// Multilines.
#pragma once

#include <cstddef>
#include <vector>

#include <entities/declare.h>
#include <entities/mline_style.h>
#include <geometry/point.h>

/// The gaps that editing has cut into a multiline: of one line, or of the fill, along one segment
/// of the path.
struct KW_EXPORT MlineCut
{
    std::size_t vertex = 0; ///< where the segment begins
    std::size_t line = 0;   ///< in the order of the style
    /// In turn where what is drawn begins and where it ends, in drawing units from the line's own
    /// point at the vertex. What has no end goes on to the next vertex.
    std::vector<double> places;
};

struct KW_EXPORT MlineMembers : EntityMembers
{
    KdDbObjectId style;
    double scale = 1.0;
    KdGeVector3d normal{0.0, 0.0, 1.0};
    std::vector<KdGePoint3d> vertices; ///< WCS
    std::vector<MlineCut> lineCuts;    ///< by vertices, and of each by lines
    std::vector<MlineCut> fillCuts;    ///< in the same order
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

    /// True if a line is cut anywhere.
    bool hasCuts() const { return !data().lineCuts.empty(); }
    /// Where a line of a segment is cut, or the fill beside it; null if it is drawn from end to
    /// end.
    const MlineCut* lineCut(std::size_t vertex, std::size_t line) const;
    const MlineCut* fillCut(std::size_t vertex, std::size_t line) const;
    /// The lines of the elements in WCS, in the order of the style, each with a point for each
    /// vertex of the path; where the path turns they meet on the bisector, and at its ends they
    /// stop as the style slants them. Gaps are not left out. Empty without a style.
    std::vector<std::vector<KdGePoint3d>> elementLines() const;
    /// The box around the lines of all elements.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
