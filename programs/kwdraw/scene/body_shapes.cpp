// Solids, regions, bodies and surfaces by their edges.
#include <entities/solid3d.h>
#include <entities/surface.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

/// A curve of any other kind, by points on it.
void addSampled(ScenePath& path, const KdGeCurve3d& curve)
{
    constexpr int kPieces = 64;
    const KdGeInterval interval = curve.interval();
    if (!interval.isBounded())
        return;
    path.moveTo(curve.evalPoint(interval.lower));
    for (int i = 1; i <= kPieces; ++i)
        path.lineTo(curve.evalPoint(interval.lower + interval.length() * i / kPieces));
}

void addEdge(ScenePath& path, const ModelerEdge& edge)
{
    if (edge.arc) {
        const ModelerArc& arc = *edge.arc;
        path.moveTo(arc.pointAt(arc.start));
        path.ellipseTo(arc.center, arc.major, arc.minor, arc.start, arc.end);
    } else if (const auto* spline = dynamic_cast<const KdGeNurbCurve3d*>(edge.curve.get())) {
        path.moveTo(spline->evalPoint(spline->interval().lower));
        addCubics(path, spline->cubicPieces());
    } else if (edge.curve) {
        addSampled(path, *edge.curve);
    } else {
        path.moveTo(edge.start);
        path.lineTo(edge.end);
    }
}

void drawEdges(const KdDbModelerGeometry& body, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    for (const ModelerEdge& edge : body.edges())
        addEdge(path, edge);
    walk.writer().stroke(path);
}

template <class Class>
void drawBody(const Class& body, EntityWalk& walk)
{
    drawEdges(body, walk);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDb3dSolid, drawBody<KdDb3dSolid>>(),
    shapeRow<KdDbBody, drawBody<KdDbBody>>(),
    shapeRow<KdDbRegion, drawBody<KdDbRegion>>(),
    shapeRow<KdDbSurface, drawBody<KdDbSurface>>(),
};

} // namespace

std::span<const ShapeRow> bodyShapes()
{
    return kRows;
}
