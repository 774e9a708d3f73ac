// What shows the contents of blocks.
#include <cmath>
#include <span>
#include <vector>

#include <entities/attribute.h>
#include <entities/block_reference.h>
#include <entities/dimension.h>
#include <entities/spatial_filter.h>
#include <kwdraw/scene/block_placement.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

/// The corners along which the contents of the reference are cut, in the frame of the block. None
/// if all is shown.
std::vector<KdGePoint3d> clipOf(const KdDbBlockReference& reference)
{
    const OpenForRead<KdDbSpatialFilter> filter(KdDbSpatialFilter::filterOf(reference));
    return filter && filter->isEnabled() ? filter->boundaryInBlock() : std::vector<KdGePoint3d>();
}

/// One use of the block, with the attributes of the reference.
void drawOnce(const KdDbBlockReference& reference, std::span<const KdGePoint3d> clip,
              const KdGeVector3d& shift, EntityWalk& walk)
{
    walk.drawBlock(reference.blockTableRecord(), shiftBy(shift) * reference.blockTransform(), clip);
    SceneWriter& writer = walk.writer();
    const KdGeMatrix3d outside = writer.frame();
    writer.setFrame(outside * shiftBy(shift));
    for (const KdDbObjectId id : reference.parts().ids())
        walk.drawPart(id);
    writer.setFrame(outside);
}

void drawReference(const KdDbBlockReference& reference, EntityWalk& walk)
{
    drawOnce(reference, clipOf(reference), {}, walk);
}

void drawGrid(const KdDbMInsertBlock& grid, EntityWalk& walk)
{
    const std::vector<KdGePoint3d> clip = clipOf(grid);
    const double c = std::cos(grid.rotation());
    const double s = std::sin(grid.rotation());
    const KdGeMatrix3d plane = KdGeMatrix3d::planeToWorld(grid.normal());
    const KdGeVector3d toNextColumn = plane * (KdGeVector3d{c, s, 0.0} * grid.columnSpacing());
    const KdGeVector3d toNextRow = plane * (KdGeVector3d{-s, c, 0.0} * grid.rowSpacing());
    for (int row = 0; row < grid.rows(); ++row) {
        for (int column = 0; column < grid.columns(); ++column) {
            const bool isFirst = row == 0 && column == 0;
            if (walk.isTooMuch() && !isFirst) // a grid may have billions of places
                return;
            drawOnce(grid, clip, toNextColumn * column + toNextRow * row, walk);
        }
    }
}

/// The contents of a dimension's block stand in world coordinates.
void drawDimension(const KdDbDimension& dimension, EntityWalk& walk)
{
    walk.drawBlock(dimension.dimBlockId(), KdGeMatrix3d());
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbBlockReference, drawReference>(),
    shapeRow<KdDbDimension, drawDimension>(),
    shapeRow<KdDbMInsertBlock, drawGrid>(),
};

} // namespace

std::span<const ShapeRow> blockShapes()
{
    return kRows;
}
