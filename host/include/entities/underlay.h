/// Pages of other files laid under a drawing.
#pragma once

#include <vector>

#include <entities/declare.h>
#include <entities/extrusion.h>

struct KW_EXPORT UnderlayMembers : EntityMembers
{
    KdGePoint3d position; ///< OCS, where the page's origin lies
    KdGeScale3d scale;
    double rotation = 0.0; ///< radians in the object frame
    Extrusion extrusion;
    std::vector<KdGePoint2d> clipPolygon; ///< units of the page; two opposite corners, or more
};

class KW_EXPORT KdDbUnderlayReference : public KdDbEntity
{
    KD_RX_DECLARE(KdDbUnderlayReference)
    KD_DB_MEMBERS(UnderlayMembers)

    /// The edge of what is shown, which a drawing only knows of a page that is clipped.
    KdErrorStatus getOutline(KdArray<KdGePoint3d>& points) const override;
};

KD_DB_PLAIN_ENTITY(KdDbDgnReference, KdDbUnderlayReference)
KD_DB_PLAIN_ENTITY(KdDbDwfReference, KdDbUnderlayReference)
KD_DB_PLAIN_ENTITY(KdDbPdfReference, KdDbUnderlayReference)
