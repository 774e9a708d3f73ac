#include <entities/polyline.h>

#include <algorithm>

#include "flat_path.h"

KD_RX_DEFINE(KdDbPolyline, KdDbCurve, L"AcDbPolyline", L"LWPOLYLINE")

void PolylineMembers::setLastBulge(double bulge)
{
    if (points.empty() || bulge == bulgeAt(points.size() - 1))
        return;
    bulges.reserve(points.capacity()); // mostly known beforehand
    bulges.resize(points.size(), 0.0);
    bulges.back() = bulge;
}

double PolylineMembers::bulgeAt(std::size_t vertex) const
{
    return vertex < bulges.size() ? bulges[vertex] : 0.0;
}

void PolylineMembers::setLastWidth(double Widths::*side, double width)
{
    if (points.empty() || width == widthsAt(points.size() - 1).*side)
        return;
    widths.resize(points.size(), {constantWidth, constantWidth});
    widths.back().*side = width;
}

PolylineMembers::Widths PolylineMembers::widthsAt(std::size_t vertex) const
{
    return vertex < widths.size() ? widths[vertex] : Widths{constantWidth, constantWidth};
}

KdErrorStatus KdDbPolyline::getPointAt(unsigned int index, KdGePoint2d& point) const
{
    if (index >= numVerts())
        return eOutOfRange;
    point = data().points[index];
    return eOk;
}

KdErrorStatus KdDbPolyline::getPointAt(unsigned int index, KdGePoint3d& point) const
{
    KdGePoint2d flat;
    const KdErrorStatus status = getPointAt(index, flat);
    if (status == eOk)
        point = data().extrusion.toWorld({flat.x, flat.y, data().elevation});
    return status;
}

KdErrorStatus KdDbPolyline::getBulgeAt(unsigned int index, double& bulge) const
{
    if (index >= numVerts())
        return eOutOfRange;
    bulge = data().bulgeAt(index);
    return eOk;
}

KdErrorStatus KdDbPolyline::getWidthsAt(unsigned int index, double& startWidth,
                                        double& endWidth) const
{
    if (index >= numVerts())
        return eOutOfRange;
    const PolylineMembers::Widths widths = data().widthsAt(index);
    startWidth = widths.start;
    endWidth = widths.end;
    return eOk;
}

KdErrorStatus KdDbPolyline::getConstantWidth(double& width) const
{
    const PolylineMembers& polyline = data();
    const double first = polyline.widthsAt(0).start;
    const auto differs = [first](const PolylineMembers::Widths& widths) {
        return widths.start != first || widths.end != first;
    };
    const bool ruleApplies = polyline.widths.size() < polyline.points.size();
    if (std::ranges::any_of(polyline.widths, differs) ||
        (ruleApplies && polyline.constantWidth != first))
        return eInvalidInput;
    width = first;
    return eOk;
}

bool KdDbPolyline::isClosed() const
{
    return data().closed;
}

void KdDbPolyline::reset(unsigned int vertexCount)
{
    PolylineMembers& polyline = edit();
    polyline.points.assign(vertexCount, {});
    polyline.bulges.clear();
    polyline.widths.clear();
    polyline.constantWidth = 0.0;
}

KdErrorStatus KdDbPolyline::setPointAt(unsigned int index, const KdGePoint2d& point)
{
    if (index >= numVerts())
        return eOutOfRange;
    edit().points[index] = point;
    return eOk;
}

KdErrorStatus KdDbPolyline::setBulgeAt(unsigned int index, double bulge)
{
    if (index >= numVerts())
        return eOutOfRange;
    std::vector<double>& bulges = edit().bulges;
    bulges.resize(std::max<std::size_t>(bulges.size(), index + 1), 0.0);
    bulges[index] = bulge;
    return eOk;
}

KdErrorStatus KdDbPolyline::setWidthsAt(unsigned int index, double startWidth, double endWidth)
{
    if (index >= numVerts())
        return eOutOfRange;
    PolylineMembers& polyline = edit();
    polyline.widths.resize(std::max<std::size_t>(polyline.widths.size(), index + 1),
                           {polyline.constantWidth, polyline.constantWidth});
    polyline.widths[index] = {startWidth, endWidth};
    return eOk;
}

void KdDbPolyline::setConstantWidth(double width)
{
    PolylineMembers& polyline = edit();
    polyline.widths.clear();
    polyline.constantWidth = width;
}

KdErrorStatus KdDbPolyline::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    for (const KdGePoint2d& point : data().points)
        points.append(data().extrusion.toWorld({point.x, point.y, elevation()}));
    return eOk;
}

KdErrorStatus KdDbPolyline::askGeometry(const Question& question) const
{
    const PolylineMembers& polyline = data();
    if (polyline.points.empty())
        return eNotApplicable;
    return question(
        FlatPath({polyline.points, polyline.bulges, polyline.elevation, polyline.closed},
                 polyline.extrusion));
}
