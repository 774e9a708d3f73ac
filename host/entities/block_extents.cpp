#include "block_extents.h"

#include <map>

#include <database/block_table.h>
#include <entities/block_reference.h>
#include <entities/dimension.h>

namespace {

void addCorners(const KdGeExtents3d& box, const KdGeMatrix3d& toWorld, KdGeExtents3d& extents)
{
    for (const double x : {box.minPoint.x, box.maxPoint.x}) {
        for (const double y : {box.minPoint.y, box.maxPoint.y}) {
            for (const double z : {box.minPoint.z, box.maxPoint.z})
                extents.addPoint(toWorld * KdGePoint3d{x, y, z});
        }
    }
}

/// The boxes of blocks in their own frames. Each is worked out once; a block that holds itself,
/// directly or by others, adds nothing to its own.
class BlockBoxes
{
  public:
    const KdGeExtents3d& of(KdDbObjectId block)
    {
        const auto [found, isNew] = m_boxes.try_emplace(block);
        // Deeper ones than this are a chain that somebody made to exhaust the stack.
        constexpr int kDeepest = 100;
        if (isNew && m_depth < kDeepest) {
            ++m_depth;
            const KdGeExtents3d box = boxOf(block);
            --m_depth;
            found->second = box; // references into the map stay valid
        }
        return found->second;
    }

  private:
    KdGeExtents3d boxOf(KdDbObjectId block)
    {
        KdGeExtents3d box;
        if (!block.isKindOf(KdDbBlockTableRecord::desc()))
            return box;
        const OpenForRead<KdDbBlockTableRecord> record(block);
        if (!record)
            return box;
        for (const KdDbObjectId id : record->entityIds()) {
            const OpenForRead<KdDbEntity> entity(id);
            if (entity)
                addEntity(*entity, box);
        }
        return box;
    }

    void addEntity(const KdDbEntity& entity, KdGeExtents3d& extents)
    {
        KdGeExtents3d own;
        if (entity.isKindOf(KdDbBlockReference::desc())) {
            const auto& reference = static_cast<const KdDbBlockReference&>(entity);
            const KdGeExtents3d& box = of(reference.blockTableRecord());
            if (!box.isEmpty())
                addCorners(box, reference.blockTransform(), extents);
        } else if (entity.isKindOf(KdDbDimension::desc())) {
            const KdGeExtents3d& box = of(static_cast<const KdDbDimension&>(entity).dimBlockId());
            if (!box.isEmpty())
                extents.addExtents(box);
        } else if (entity.getGeomExtents(own) == eOk) {
            extents.addExtents(own);
        }
    }

    std::map<KdDbObjectId, KdGeExtents3d> m_boxes;
    int m_depth = 0;
};

} // namespace

KdErrorStatus extentsOfBlock(KdDbObjectId block, KdGeExtents3d& extents)
{
    BlockBoxes boxes;
    const KdGeExtents3d& box = boxes.of(block);
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}
