// Prints the curves of a drawing as JSON, a line for each, to be compared with what another reader
// finds.
#include <cmath>
#include <cstdio>

#include <nlohmann/json.hpp>

#include <entities/all.h>

#include "print_drawing.h"

namespace {

using nlohmann::json;

json jsonOf(const KdGePoint3d& p)
{
    return {p.x, p.y, p.z};
}

json jsonOf(const KdGeVector3d& v)
{
    return {v.x, v.y, v.z};
}

json jsonOf(std::span<const KdGePoint3d> points)
{
    json list = json::array();
    for (const KdGePoint3d& point : points)
        list.push_back(jsonOf(point));
    return list;
}

/// What all curves tell. Points stand at equal steps of the parameter.
void addMeasures(const KdDbCurve& curve, json& row)
{
    row["closed"] = curve.isClosed();
    double start = 0.0;
    double end = 0.0;
    double value = 0.0;
    if (curve.getStartParam(start) != eOk || curve.getEndParam(end) != eOk)
        return;
    row["range"] = {start, end};
    if (curve.getDistAtParam(end, value) == eOk)
        row["length"] = value;
    if (curve.getArea(value) == eOk)
        row["area"] = value;
    KdGeExtents3d extents;
    if (curve.getGeomExtents(extents) == eOk)
        row["extents"] = {jsonOf(extents.minPoint), jsonOf(extents.maxPoint)};
    constexpr int kSteps = 16;
    row["points"] = json::array();
    for (int i = 0; i <= kSteps; ++i) {
        KdGePoint3d point;
        if (curve.getPointAtParam(std::lerp(start, end, static_cast<double>(i) / kSteps), point) ==
            eOk)
            row["points"].push_back(jsonOf(point));
    }
}

void add(const KdDbLine& line, json& row)
{
    const KdGeVector3d delta = line.endPoint() - line.startPoint();
    row["angle"] = KdGeVector2d{delta.x, delta.y}.angle();
    KdGeExtents3d extents; // without the thickness
    extents.addPoint(line.startPoint());
    extents.addPoint(line.endPoint());
    row["flatExtents"] = {jsonOf(extents.minPoint), jsonOf(extents.maxPoint)};
}

template <class Round>
void addRound(const Round& round, json& row)
{
    row["radius"] = round.radius();
    row["center"] = jsonOf(round.center());
}

void add(const KdDbCircle& circle, json& row)
{
    addRound(circle, row);
}

void add(const KdDbArc& arc, json& row)
{
    addRound(arc, row);
}

void add(const KdDbPolyline& polyline, json& row)
{
    row["vertices"] = json::array();
    row["bulges"] = json::array();
    for (unsigned int i = 0; i < polyline.numVerts(); ++i) {
        KdGePoint3d point;
        double bulge = 0.0;
        polyline.getPointAt(i, point);
        polyline.getBulgeAt(i, bulge);
        row["vertices"].push_back(jsonOf(point));
        row["bulges"].push_back(bulge);
    }
}

/// The vertices that are drawn, in the world.
void add(const KdDb2dPolyline& polyline, json& row)
{
    row["vertices"] = json::array();
    row["bulges"] = json::array();
    double end = 0.0;
    polyline.getEndParam(end);
    const int count = static_cast<int>(end) + (polyline.isClosed() && end > 0.0 ? 0 : 1);
    for (int i = 0; i < count; ++i) {
        KdGePoint3d point;
        polyline.getPointAtParam(i, point);
        row["vertices"].push_back(jsonOf(point));
    }
    const auto iterator = polyline.vertexIterator();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb2dVertex> vertex(iterator->objectId());
        if (vertex && vertex->vertexType() != KdDb::kControlVertex)
            row["bulges"].push_back(vertex->bulge());
    }
}

void add(const KdDbHelix& helix, json& row)
{
    row["position"] = jsonOf(helix.position());
    row["baseRadius"] = helix.baseRadius();
    row["topRadius"] = helix.topRadius();
    row["turns"] = helix.turns();
    row["turnHeight"] = helix.turnHeight();
    row["twist"] = helix.twist();
}

void add(const KdDbSpline& spline, json& row)
{
    const KdDbNurbsData data = spline.getNurbsData();
    row["controlPoints"] = jsonOf(data.controlPoints);
    row["knots"] = std::vector<double>(data.knots.begin(), data.knots.end());
    row["weights"] = std::vector<double>(data.weights.begin(), data.weights.end());
    row["fitPoints"] = json::array();
    for (int i = 0; i < spline.numFitPoints(); ++i) {
        KdGePoint3d point;
        spline.getFitPointAt(i, point);
        row["fitPoints"].push_back(jsonOf(point));
    }
    if (const auto* helix = dynamic_cast<const KdDbHelix*>(&spline))
        add(*helix, row);
}

void add(const KdDbRay& ray, json& row)
{
    row["base"] = jsonOf(ray.basePoint());
    row["direction"] = jsonOf(ray.unitDir());
}

void add(const KdDbXline& line, json& row)
{
    row["base"] = jsonOf(line.basePoint());
    row["direction"] = jsonOf(line.unitDir());
}

/// Adds what the first of the kinds has that fits.
template <class... Kinds>
void addKind(const KdDbCurve& curve, json& row)
{
    const auto tryKind = [&]<class Kind>(const Kind* kind) {
        if (kind)
            add(*kind, row);
        return kind != nullptr;
    };
    (tryKind(dynamic_cast<const Kinds*>(&curve)) || ...);
}

void print(const KdDbDatabase& drawing)
{
    for (const KdDbObject* object : drawing.objects()) {
        if (!object->isKindOf(KdDbCurve::desc()))
            continue;
        const auto& curve = static_cast<const KdDbCurve&>(*object);
        json row = {{"handle", curve.handle()}};
        addMeasures(curve, row);
        addKind<KdDbLine, KdDbCircle, KdDbArc, KdDbPolyline, KdDb2dPolyline, KdDbSpline, KdDbRay,
                KdDbXline>(curve, row);
        std::printf("%s\n", row.dump().c_str());
    }
}

} // namespace

int main(int argc, char** argv)
{
    return printDrawing(argc, argv, print);
}
