// Leaders.
#include <entities/leader.h>
#include <kwdraw/scene/block_placement.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

double sizeOfArrow(const KdDbLeader& leader)
{
    const double scale = leader.dimscale();
    return leader.dimasz() * (scale > 0.0 ? scale : 1.0); // 0: by the scale of a viewport
}

std::vector<KdGePoint3d> verticesOf(const KdDbLeader& leader)
{
    std::vector<KdGePoint3d> vertices;
    for (int i = 0; i < leader.numVertices(); ++i)
        vertices.push_back(leader.vertexAt(i));
    return vertices;
}

void drawLeader(const KdDbLeader& leader, EntityWalk& walk)
{
    const std::vector<KdGePoint3d> vertices = verticesOf(leader);
    if (vertices.size() < 2)
        return;
    walk.setPartColor(leader.dimclrd());
    walk.setPartLineweight(leader.dimlwd());
    ScenePath& path = walk.newPath();
    if (leader.isSplined())
        addCurveThrough(path, vertices);
    else
        addPolygon(path, vertices, false);
    walk.writer().stroke(path);

    // Where there is no room for both, the arrowhead gives way to the line.
    constexpr double kLeastRoom = 2.0;
    const double size = sizeOfArrow(leader);
    if (leader.hasArrowHead() && vertices[0].distanceTo(vertices[1]) >= kLeastRoom * size)
        drawArrowHead(walk, leader.dimldrblk(), {vertices[0], vertices[1], leader.normal(), size});
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbLeader, drawLeader>(),
};

} // namespace

std::span<const ShapeRow> leaderShapes()
{
    return kRows;
}
