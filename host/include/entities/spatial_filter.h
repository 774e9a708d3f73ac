/// What shows of a block reference.
#pragma once

#include <vector>

#include <database/object.h>
#include <geometry/matrix.h>

struct KW_EXPORT SpatialFilterMembers : ObjectMembers
{
    std::vector<KdGePoint2d> boundary; ///< in the boundary's own frame; two are a rectangle
    bool enabled = true;
    KdGeMatrix3d worldToBlock; ///< of the reference as it was when the boundary was drawn
    KdGeMatrix3d worldToBoundary;
};

/// Cuts what a block reference shows of its block along a boundary. It stands in the extension
/// dictionary of the reference and moves with it. Planes that cut off what is near or far are not
/// known here.
class KW_EXPORT KdDbSpatialFilter : public KdDbObject
{
    KD_RX_DECLARE(KdDbSpatialFilter)
    KD_DB_MEMBERS(SpatialFilterMembers)

    /// The filter of a block reference; the null id if it has none.
    static KdDbObjectId filterOf(const KdDbObject& reference);

    /// False for a boundary that is switched off, and cuts nothing.
    bool isEnabled() const { return data().enabled; }
    /// The corners of the boundary in the frame of the block, a rectangle with all four. Around
    /// what an inverted boundary hides it runs in one line, which goes from there to a box around
    /// the block and back. Empty for fewer than two corners.
    std::vector<KdGePoint3d> boundaryInBlock() const;
};
