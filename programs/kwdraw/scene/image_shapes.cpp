// Images, and frames around what is not drawn.
#include <vector>

#include <entities/image.h>
#include <entities/ole_frame.h>
#include <entities/underlay.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

std::vector<KdGePoint3d> outlineOf(const KdDbEntity& entity)
{
    KdArray<KdGePoint3d> points;
    entity.getOutline(points);
    std::vector<KdGePoint3d> outline;
    for (int i = 0; i < points.length(); ++i)
        outline.push_back(points[i]);
    return outline;
}

void strokeOutline(const KdDbEntity& entity, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    addPolygon(path, outlineOf(entity), true);
    walk.writer().stroke(path);
}

void drawImage(const KdDbRasterImage& image, EntityWalk& walk)
{
    KdGePoint3d origin;
    KdGeVector3d u;
    KdGeVector3d v;
    image.getOrientation(origin, u, v);
    ScenePath& shown = walk.newPath();
    addPolygon(shown, outlineOf(image), true);
    if (image.isClipped() && image.isClipInverted()) {
        const KdGePoint3d whole[] = {origin, origin + u, origin + u + v, origin + v};
        addPolygon(shown, whole, true); // with the clipping edge as a hole
    }
    if (image.isSetDisplayOpt(KdDbRasterImage::kShow))
        walk.writer().image(walk.pictures().find(image.imageDefId()),
                            KdGeMatrix3d::fromFrame(origin, u, v, KdGeVector3d::kZAxis), shown);
    walk.writer().stroke(shown);
}

void drawWipeout(const KdDbWipeout& wipeout, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    addPolygon(path, outlineOf(wipeout), true);
    walk.writer().wipeout(path);
    walk.writer().stroke(path);
}

void drawUnderlay(const KdDbUnderlayReference& underlay, EntityWalk& walk)
{
    strokeOutline(underlay, walk);
}

void drawOleFrame(const KdDbOleFrame& frame, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    addPolygon(path, frame.location(), true);
    walk.writer().stroke(path);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbOleFrame, drawOleFrame>(),
    shapeRow<KdDbRasterImage, drawImage>(),
    shapeRow<KdDbUnderlayReference, drawUnderlay>(),
    shapeRow<KdDbWipeout, drawWipeout>(),
};

} // namespace

std::span<const ShapeRow> imageShapes()
{
    return kRows;
}
