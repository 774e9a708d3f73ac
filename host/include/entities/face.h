/// Faces with three or four corners.
#pragma once

#include <array>

#include <entities/declare.h>
#include <entities/extrusion.h>

constexpr int kCornersOfFace = 4;

struct KW_EXPORT FaceMembers : EntityMembers
{
    /// WCS, round the face; a face with three corners has the third one twice.
    std::array<KdGePoint3d, kCornersOfFace> vertices;
    std::uint8_t hiddenEdges = 0; ///< bit i: the edge behind vertex i
};

/// A face in space.
class KW_EXPORT KdDbFace : public KdDbEntity
{
    KD_RX_DECLARE(KdDbFace)
    KD_DB_MEMBERS(FaceMembers)

    /// A corner in WCS. `eInvalidInput` unless `index` is 0 to 3, `vertex` untouched.
    KdErrorStatus getVertexAt(int index, KdGePoint3d& vertex) const;
    /// Whether the edge behind a corner is drawn; fails in the same way.
    KdErrorStatus isEdgeVisibleAt(int index, bool& visible) const;

    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

struct KW_EXPORT FilledFaceMembers : EntityMembers
{
    /// OCS, in the order of a bow tie: first edge from left to right, then the opposite one from
    /// left to right. With three corners the third one stands twice.
    std::array<KdGePoint3d, kCornersOfFace> points;
    Extrusion extrusion;
};

/// What solids and traces share.
class KW_EXPORT KdDbFilledFace : public KdDbEntity
{
    KD_DB_MEMBERS(FilledFaceMembers)

    /// A corner in WCS. `eInvalidInput` unless `index` is 0 to 3, `point` untouched.
    KdErrorStatus getPointAt(int index, KdGePoint3d& point) const;
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The corners in the stored order, which is that of a bow tie.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

/// A filled area.
class KW_EXPORT KdDbSolid : public KdDbFilledFace
{
    KD_RX_DECLARE(KdDbSolid)
};

/// A filled stretch of a broad line.
class KW_EXPORT KdDbTrace : public KdDbFilledFace
{
    KD_RX_DECLARE(KdDbTrace)
};
