/// Leaders: lines with an arrowhead that lead to a text or another annotation.
#pragma once

#include <vector>

#include <database/dimension_style.h>
#include <entities/curve.h>

struct KW_EXPORT LeaderMembers : EntityMembers
{
    /// What stands at the leader's end.
    enum class Annotation : std::int16_t
    {
        Text = 0,
        Tolerance = 1,
        Block = 2,
        None = 3,
    };

    std::vector<KdGePoint3d> vertices;  ///< WCS, from the arrowhead on
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length
    DimensionStyleUse dimension;
    KdDbObjectId annotation;
    Annotation annotationKind = Annotation::None;
    bool arrowHead = true;
    bool splined = false;
    bool hookLine = false;
};

class KW_EXPORT KdDbLeader : public KdDbCurve
{
    KD_RX_DECLARE(KdDbLeader)
    KD_DB_MEMBERS(LeaderMembers)
    KD_DB_USES_DIMENSION_STYLE

    int numVertices() const { return static_cast<int>(data().vertices.size()); }
    /// In WCS, counted from the arrowhead on. The origin for an index out of range, which is a
    /// mistake of the caller.
    KdGePoint3d vertexAt(int index) const;
    /// In WCS, of length 1.
    KdGeVector3d normal() const;
    bool isSplined() const { return data().splined; }
    bool hasArrowHead() const { return data().arrowHead; }
    bool hasHookLine() const { return data().hookLine; }
    LeaderMembers::Annotation annoType() const { return data().annotationKind; }
    /// The text, tolerance frame or block reference at the end; the null id if there is none.
    KdDbObjectId annotationObjId() const { return data().annotation; }

    KdErrorStatus getStartPoint(KdGePoint3d& point) const override;
    KdErrorStatus getEndPoint(KdGePoint3d& point) const override;
    /// The vertices.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;
    /// The box around the vertices.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};
