// Filled areas with corners, and faces in space.
#include <array>

#include <entities/face.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

void drawFilledFace(const KdDbFilledFace& face, EntityWalk& walk)
{
    constexpr int kRoundTheBowTie[] = {0, 1, 3, 2};
    std::array<KdGePoint3d, kCornersOfFace> corners;
    for (std::size_t i = 0; i < corners.size(); ++i)
        face.getPointAt(kRoundTheBowTie[i], corners[i]);
    ScenePath& path = walk.newPath();
    addPolygon(path, corners, true);
    if (walk.settings().fillsAreas)
        walk.writer().fill(path);
    else
        walk.writer().stroke(path);
}

void drawFace(const KdDbFace& face, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    for (int edge = 0; edge < kCornersOfFace; ++edge) {
        bool visible = false;
        KdGePoint3d from;
        KdGePoint3d to;
        face.isEdgeVisibleAt(edge, visible);
        face.getVertexAt(edge, from);
        face.getVertexAt((edge + 1) % kCornersOfFace, to);
        if (!visible || from == to) // a corner that stands twice makes no edge
            continue;
        path.moveTo(from);
        path.lineTo(to);
    }
    walk.writer().stroke(path);
}

void drawSolid(const KdDbSolid& solid, EntityWalk& walk)
{
    drawFilledFace(solid, walk);
}

void drawTrace(const KdDbTrace& trace, EntityWalk& walk)
{
    drawFilledFace(trace, walk);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbFace, drawFace>(),
    shapeRow<KdDbSolid, drawSolid>(),
    shapeRow<KdDbTrace, drawTrace>(),
};

} // namespace

std::span<const ShapeRow> faceShapes()
{
    return kRows;
}
