// Polylines of all kinds.
#include <entities/polyline.h>
#include <entities/vertex.h>
#include <entities/vertex_polyline.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/scene/wide_paths.h>

namespace {

void drawPolyline(const KdDbPolyline& polyline, EntityWalk& walk)
{
    FlatPolyline flat{{}, polyline.isClosed(), polyline.hasPlinegen()};
    flat.vertices.resize(polyline.numVerts());
    for (unsigned i = 0; i < polyline.numVerts(); ++i) {
        FlatVertex& vertex = flat.vertices[i];
        polyline.getPointAt(i, vertex.point);
        polyline.getBulgeAt(i, vertex.bulge);
        polyline.getWidthsAt(i, vertex.startWidth, vertex.endWidth);
    }
    drawFlatPolyline(flat, FlatFrame(polyline.normal(), polyline.elevation()), walk);
}

void draw2dPolyline(const KdDb2dPolyline& polyline, EntityWalk& walk)
{
    FlatPolyline flat{{}, polyline.isClosed(), polyline.isLinetypeGenerationOn()};
    for (const KdDbObjectId id : polyline.parts().ids()) {
        const OpenForRead<KdDb2dVertex> vertex(id);
        if (!vertex || vertex->vertexType() == KdDb::kControlVertex)
            continue;
        const KdGePoint3d position = vertex->position();
        flat.vertices.push_back(
            {{position.x, position.y}, vertex->bulge(), vertex->startWidth(), vertex->endWidth()});
    }
    drawFlatPolyline(flat, FlatFrame(polyline.normal(), polyline.elevation()), walk);
}

void draw3dPolyline(const KdDb3dPolyline& polyline, EntityWalk& walk)
{
    std::vector<KdGePoint3d> points;
    for (const KdDbObjectId id : polyline.parts().ids()) {
        const OpenForRead<KdDb3dPolylineVertex> vertex(id);
        if (vertex && vertex->vertexType() != KdDb::kControlVertex)
            points.push_back(vertex->position());
    }
    ScenePath& path = walk.newPath();
    addPolygon(path, points, polyline.isClosed());
    walk.writer().stroke(path);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDb2dPolyline, draw2dPolyline>(),
    shapeRow<KdDb3dPolyline, draw3dPolyline>(),
    shapeRow<KdDbPolyline, drawPolyline>(),
};

} // namespace

std::span<const ShapeRow> polylineShapes()
{
    return kRows;
}
