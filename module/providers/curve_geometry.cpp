#include <providers/curve_geometry.h>

#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include <entities/all.h>
#include <geometry/linear_curves.h>

namespace {

using Curve = std::unique_ptr<KdGeCurve3d>;
using Points = std::vector<KdGePoint3d>;

/// The line between two points, or the one through both without end.
Curve straight(const KdGePoint3d& start, const KdGePoint3d& end, bool unbounded)
{
    if (unbounded)
        return std::make_unique<KdGeLine3d>(start, end);
    return std::make_unique<KdGeLineSeg3d>(start, end);
}

Curve chainOf(Points points)
{
    if (points.empty())
        return nullptr;
    return std::make_unique<KdGePolyline3d>(std::move(points));
}

/// Back to the first point.
Curve ringOf(Points points)
{
    if (!points.empty())
        points.push_back(points.front());
    return chainOf(std::move(points));
}

using GivePoints = KdErrorStatus (KdDbEntity::*)(KdArray<KdGePoint3d>&) const;

/// What the entity gives, or nothing.
Points pointsOf(const KdDbEntity& entity, GivePoints give)
{
    KdArray<KdGePoint3d> given;
    Points points;
    if ((entity.*give)(given) != eOk)
        return points;
    for (int i = 0; i < given.length(); ++i)
        points.push_back(given[i]);
    return points;
}

Curve lineCurve(const KdDbLine& line, bool unbounded)
{
    return straight(line.startPoint(), line.endPoint(), unbounded);
}

Curve circleCurve(const KdDbCircle& circle, bool)
{
    return std::make_unique<KdGeCircArc3d>(circle.center(), circle.normal(), circle.radius());
}

Curve arcCurve(const KdDbArc& arc, bool unbounded)
{
    const KdGePoint3d center = arc.center();
    const KdGeVector3d normal = arc.normal();
    if (unbounded)
        return std::make_unique<KdGeCircArc3d>(center, normal, arc.radius());
    double start = 0.0;
    double end = 0.0;
    KdGePoint3d startPoint;
    arc.getStartParam(start);
    arc.getEndParam(end);
    arc.getStartPoint(startPoint);
    const KdGeVector3d reference = (startPoint - center).rotatedBy(-start, normal);
    return std::make_unique<KdGeCircArc3d>(center, normal, reference, arc.radius(), start, end);
}

Curve ellipseCurve(const KdDbEllipse& ellipse, bool unbounded)
{
    const KdGeVector3d major = ellipse.majorAxis();
    const KdGeVector3d minor = ellipse.minorAxis();
    const bool isWhole = unbounded || ellipse.isClosed();
    const double start = unbounded ? 0.0 : ellipse.paramAtAngle(ellipse.startAngle());
    const double end = isWhole ? start + KdGe::kTurn : ellipse.paramAtAngle(ellipse.endAngle());
    return std::make_unique<KdGeEllipArc3d>(ellipse.center(), major, minor, major.length(),
                                            minor.length(), start, end);
}

Curve noCurve(const KdDbSpline&, bool)
{
    return nullptr;
}

Curve polyline3dCurve(const KdDb3dPolyline& polyline, bool)
{
    Points points;
    const auto iterator = polyline.vertexIterator();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb3dPolylineVertex> vertex(iterator->objectId());
        if (vertex && (vertex->vertexType() == KdDb::kPlainVertex ||
                       vertex->vertexType() == KdDb::kSplineFitVertex))
            points.push_back(vertex->position());
    }
    const bool isOpenRing =
        polyline.isClosed() && !points.empty() && !points.back().isEqualTo(points.front());
    return isOpenRing ? ringOf(std::move(points)) : chainOf(std::move(points));
}

Curve polylineCurve(const KdDbPolyline& polyline, bool)
{
    return Curve(compositeCurve3d(polyline));
}

Curve polyline2dCurve(const KdDb2dPolyline& polyline, bool)
{
    KdDbPolyline filled;
    KdDbCurve* lightweight = &filled;
    KdDbCurve* source = const_cast<KdDb2dPolyline*>(&polyline); // it is only read
    lwPlineFrom2DPline(lightweight, source, true);
    return Curve(compositeCurve3d(filled));
}

Curve rayCurve(const KdDbRay& ray, bool unbounded)
{
    if (unbounded)
        return std::make_unique<KdGeLine3d>(ray.basePoint(), ray.unitDir());
    return std::make_unique<KdGeRay3d>(ray.basePoint(), ray.unitDir());
}

Curve xlineCurve(const KdDbXline& line, bool)
{
    return std::make_unique<KdGeLine3d>(line.basePoint(), line.unitDir());
}

Curve leaderCurve(const KdDbLeader& leader, bool)
{
    return chainOf(pointsOf(leader, &KdDbEntity::getGripPoints));
}

/// Between the points that are measured.
template <class Dimension>
Curve measuredCurve(const Dimension& dimension, bool unbounded)
{
    return straight(dimension.xLine1Point(), dimension.xLine2Point(), unbounded);
}

Curve imageCurve(const KdDbRasterImage& image, bool)
{
    return ringOf(pointsOf(image, &KdDbEntity::getOutline));
}

Curve cornerCurve(const KdDbEntity& face, bool)
{
    return ringOf(pointsOf(face, &KdDbEntity::getGripPoints));
}

/// Solids hold their corners like the ends of two parallel edges.
Curve bowTieCurve(const KdDbEntity& solid, bool)
{
    Points points = pointsOf(solid, &KdDbEntity::getGripPoints);
    if (points.size() >= 4)
        std::swap(points[2], points[3]);
    return ringOf(std::move(points));
}

/// Frames of texts come in two rows of corners.
Curve frameCurve(const KdDbEntity& text, bool)
{
    Points points = pointsOf(text, &KdDbEntity::getBoundingPoints);
    if (points.size() != 4)
        return nullptr;
    std::swap(points[2], points[3]);
    return ringOf(std::move(points));
}

Curve extentsCurve(const KdDbText& text, bool)
{
    KdGeExtents3d box;
    if (text.getGeomExtents(box) != eOk)
        return nullptr;
    const auto& [low, high] = box;
    return ringOf({low, {high.x, low.y, low.z}, {high.x, high.y, low.z}, {low.x, high.y, low.z}});
}

struct Conversion
{
    KdRxClass* (*rxClass)();
    Curve (*convert)(const KdDbEntity&, bool unbounded);
};

template <class Host, auto Convert>
constexpr Conversion row()
{
    return {Host::desc, [](const KdDbEntity& entity, bool unbounded) -> Curve {
                return Convert(static_cast<const Host&>(entity), unbounded);
            }};
}

// The first row that fits counts.
constexpr Conversion kConversions[] = {
    row<KdDbLine, lineCurve>(),
    row<KdDbCircle, circleCurve>(),
    row<KdDbArc, arcCurve>(),
    row<KdDbEllipse, ellipseCurve>(),
    row<KdDbSpline, noCurve>(),
    row<KdDb3dPolyline, polyline3dCurve>(),
    row<KdDb2dPolyline, polyline2dCurve>(),
    row<KdDbPolyline, polylineCurve>(),
    row<KdDbRay, rayCurve>(),
    row<KdDbXline, xlineCurve>(),
    row<KdDbLeader, leaderCurve>(),
    row<KdDbAlignedDimension, measuredCurve<KdDbAlignedDimension>>(),
    row<KdDbRotatedDimension, measuredCurve<KdDbRotatedDimension>>(),
    row<KdDbRasterImage, imageCurve>(),
    row<KdDbWipeout, imageCurve>(),
    row<KdDbSolid, bowTieCurve>(),
    row<KdDbTrace, bowTieCurve>(),
    row<KdDbFace, cornerCurve>(),
    row<KdDbMText, frameCurve>(),
    row<KdDbText, extentsCurve>(),
    row<KdDbFcf, frameCurve>(),
};

} // namespace

KdGeCircArc3d* circArc3d(const KdDbArc& arc)
{
    constexpr double kNearZ = 1.0 / 64.0;
    const KdGeVector3d n = arc.normal();
    KdGeVector3d reference = KdGeVector3d::kXAxis;
    if (!n.isEqualTo(KdGeVector3d::kZAxis)) {
        const bool isNearZ = std::abs(n.x) <= kNearZ && std::abs(n.y) <= kNearZ;
        reference = isNearZ ? KdGeVector3d{n.z, 0.0, -n.x} : KdGeVector3d{-n.y, n.x, 0.0};
    }
    return new KdGeCircArc3d(arc.center(), n, reference.normal(), arc.radius(), arc.startAngle(),
                             arc.endAngle());
}

KdGeCurve3d* asIcGeCurve(const KdDbEntity* entity, bool unbounded, bool exactClass)
{
    if (!entity)
        return nullptr;
    for (const Conversion& conversion : kConversions) {
        KdRxClass* const rxClass = conversion.rxClass();
        const bool fits = exactClass ? entity->isA() == rxClass : entity->isKindOf(rxClass);
        if (fits)
            return conversion.convert(*entity, unbounded).release();
    }
    return nullptr;
}
