/// Objects of other programs, embedded or linked.
#pragma once

#include <array>

#include <entities/declare.h>
#include <geometry/point.h>

/// Base of what shows content of other programs.
KD_DB_PLAIN_ENTITY(KdDbFrame, KdDbEntity)

struct KW_EXPORT OleFrameMembers : EntityMembers
{
    KdGePoint3d upperLeft;  ///< WCS
    KdGePoint3d lowerRight; ///< WCS
    std::int16_t type = 0;
};

class KW_EXPORT KdDbOleFrame : public KdDbFrame
{
    KD_RX_DECLARE(KdDbOleFrame)
    KD_DB_MEMBERS(OleFrameMembers)

    /// The numbers are those of drawing files.
    enum Type
    {
        kUnknown = 0,
        kLink = 1,
        kEmbedded = 2,
        kStatic = 3,
    };

    /// A `Type`, or what else a damaged drawing holds.
    int getType() const { return data().type; }
    /// The corners in WCS: upper left, upper right, lower right, lower left.
    std::array<KdGePoint3d, 4> location() const;

    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

class KW_EXPORT KdDbOle2Frame : public KdDbOleFrame
{
    KD_RX_DECLARE(KdDbOle2Frame)
};
