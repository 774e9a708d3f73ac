#include "block_extents.h"

#include <database/block_table.h>
#include <entities/block_reference.h>

namespace {

/// A block that holds itself would go on for ever.
constexpr int kDeepest = 8;

void addCorners(const KdGeExtents3d& box, const KdGeMatrix3d& toWorld, KdGeExtents3d& extents)
{
    for (const double x : {box.minPoint.x, box.maxPoint.x}) {
        for (const double y : {box.minPoint.y, box.maxPoint.y}) {
            for (const double z : {box.minPoint.z, box.maxPoint.z})
                extents.addPoint(toWorld * KdGePoint3d{x, y, z});
        }
    }
}

void addBlock(KdDbObjectId block, int depth, KdGeExtents3d& extents);

void addEntity(const KdDbEntity& entity, int depth, KdGeExtents3d& extents)
{
    KdGeExtents3d box;
    if (!entity.isKindOf(KdDbBlockReference::desc())) {
        if (entity.getGeomExtents(box) == eOk)
            extents.addExtents(box);
        return;
    }
    const auto& reference = static_cast<const KdDbBlockReference&>(entity);
    if (depth < kDeepest)
        addBlock(reference.blockTableRecord(), depth + 1, box);
    if (!box.isEmpty())
        addCorners(box, reference.blockTransform(), extents);
}

void addBlock(KdDbObjectId block, int depth, KdGeExtents3d& extents)
{
    if (!block.isKindOf(KdDbBlockTableRecord::desc()))
        return;
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!record)
        return;
    for (const KdDbObjectId id : record->entityIds()) {
        const OpenForRead<KdDbEntity> entity(id);
        if (entity)
            addEntity(*entity, depth, extents);
    }
}

} // namespace

KdErrorStatus extentsOfBlock(KdDbObjectId block, KdGeExtents3d& extents)
{
    KdGeExtents3d box;
    addBlock(block, 0, box);
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}
