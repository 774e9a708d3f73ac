#include <entities/vertex_polyline.h>

#include <entities/vertex.h>
#include <geometry/plane.h>

#include "flat_path.h"

KD_RX_DEFINE(KdDb2dPolyline, KdDbCurve, L"AcDb2dPolyline", L"POLYLINE")
KD_RX_DEFINE(KdDb3dPolyline, KdDbCurve, L"AcDb3dPolyline", L"POLYLINE")

namespace {

/// Calls `use` for each vertex of that kind that can be opened.
template <class Vertex, class Use>
void forEachVertex(const KdDbPartList& parts, Use use)
{
    for (const KdDbObjectId id : parts.ids()) {
        const OpenForRead<Vertex> vertex(id);
        if (vertex)
            use(*vertex);
    }
}

} // namespace

bool KdDb2dPolyline::isClosed() const
{
    return data().closed;
}

KdErrorStatus KdDb2dPolyline::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    forEachVertex<KdDb2dVertex>(parts(), [&](const KdDb2dVertex& vertex) {
        const KdGePoint3d position = vertex.position();
        points.append(data().extrusion.toWorld({position.x, position.y, elevation()}));
    });
    return eOk;
}

KdErrorStatus KdDb2dPolyline::askGeometry(const Question& question) const
{
    std::vector<KdGePoint2d> points;
    std::vector<double> bulges;
    forEachVertex<KdDb2dVertex>(parts(), [&](const KdDb2dVertex& vertex) {
        if (vertex.vertexType() == KdDb::kControlVertex)
            return;
        points.push_back({vertex.position().x, vertex.position().y});
        bulges.push_back(vertex.bulge());
    });
    if (points.empty())
        return eNotApplicable;
    return question(FlatPath({points, bulges, elevation(), isClosed()}, data().extrusion));
}

bool KdDb3dPolyline::isClosed() const
{
    return data().closed;
}

bool KdDb3dPolyline::isPlanar() const
{
    return kdgeLieInOnePlane(drawnPoints());
}

KdErrorStatus KdDb3dPolyline::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    forEachVertex<KdDb3dPolylineVertex>(
        parts(), [&](const KdDb3dPolylineVertex& vertex) { points.append(vertex.position()); });
    return eOk;
}

std::vector<KdGePoint3d> KdDb3dPolyline::drawnPoints() const
{
    std::vector<KdGePoint3d> points;
    forEachVertex<KdDb3dPolylineVertex>(parts(), [&](const KdDb3dPolylineVertex& vertex) {
        if (vertex.vertexType() != KdDb::kControlVertex)
            points.push_back(vertex.position());
    });
    return points;
}

KdErrorStatus KdDb3dPolyline::askGeometry(const Question& question) const
{
    std::vector<KdGePoint3d> points = drawnPoints();
    if (points.empty())
        return eNotApplicable;
    if (isClosed() && points.size() > 1)
        points.push_back(points.front());
    return question(KdGePolyline3d(std::move(points)));
}
