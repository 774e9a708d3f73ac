#include <kwdraw/scene/block_placement.h>

namespace {

void drawFilledArrow(EntityWalk& walk, const KdGeMatrix3d& frame)
{
    constexpr double kHalfWidth = 1.0 / 6.0;
    ScenePath& path = walk.newPath();
    path.moveTo(frame * KdGePoint3d{0.0, 0.0, 0.0});
    path.lineTo(frame * KdGePoint3d{-1.0, kHalfWidth, 0.0});
    path.lineTo(frame * KdGePoint3d{-1.0, -kHalfWidth, 0.0});
    path.close();
    walk.writer().fill(path);
}

} // namespace

KdGeMatrix3d shiftBy(const KdGeVector3d& way)
{
    return KdGeMatrix3d::fromFrame({way.x, way.y, way.z}, KdGeVector3d::kXAxis,
                                   KdGeVector3d::kYAxis, KdGeVector3d::kZAxis);
}

void drawBlockAt(EntityWalk& walk, KdDbObjectId block, const KdGeMatrix3d& frame)
{
    if (!block.isKindOf(KdDbBlockTableRecord::desc()))
        return;
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (record)
        walk.drawBlock(block, frame * shiftBy(-record->origin().asVector()));
}

void drawArrowHead(EntityWalk& walk, KdDbObjectId block, const ArrowPlace& place)
{
    const KdGeVector3d outward = (place.tip - place.toward).normal();
    const KdGeVector3d normal = place.normal.normal();
    const KdGeMatrix3d frame =
        KdGeMatrix3d::fromFrame(place.tip, outward * place.size,
                                normal.crossProduct(outward) * place.size, normal * place.size);
    if (block.isNull())
        drawFilledArrow(walk, frame);
    else
        drawBlockAt(walk, block, frame);
}
