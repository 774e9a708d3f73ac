/// Boxes around entities.
#pragma once

#include <database/entity.h>

/// The box around any number of entities. It begins empty.
class KdDbExtents : public KdGeExtents3d
{
  public:
    /// Widens the box. Fails as `KdDbEntity::getGeomExtents` does, with the box as it was.
    KdErrorStatus addExt(const KdDbEntity& entity)
    {
        KdGeExtents3d box;
        const KdErrorStatus status = entity.getGeomExtents(box);
        if (status == eOk)
            addExtents(box);
        return status;
    }
};
