#include <kwdraw/scene/curve_paths.h>

#include <geometry/matrix.h>

namespace {

void startAt(ScenePath& path, const KdGePoint3d& point)
{
    if (path.isEmpty() || path.steps().back() == PathStep::Close)
        path.moveTo(point);
}

} // namespace

void addArc(ScenePath& path, const ArcInFrame& arc)
{
    const KdGeMatrix3d frame = KdGeMatrix3d::planeToWorld(arc.normal);
    path.ellipseTo(arc.center, frame * (KdGeVector3d::kXAxis * arc.radius),
                   frame * (KdGeVector3d::kYAxis * arc.radius), arc.start, arc.end);
}

void addCubics(ScenePath& path, std::span<const KdGeCubic3d> cubics)
{
    if (!cubics.empty())
        startAt(path, cubics.front()[0]);
    for (const KdGeCubic3d& cubic : cubics)
        path.cubicTo(cubic[1], cubic[2], cubic[3]);
}

void addCubicsBackwards(ScenePath& path, std::span<const KdGeCubic3d> cubics)
{
    if (!cubics.empty())
        startAt(path, cubics.back()[3]);
    for (auto cubic = cubics.rbegin(); cubic != cubics.rend(); ++cubic)
        path.cubicTo((*cubic)[2], (*cubic)[1], (*cubic)[0]);
}

void addPolygon(ScenePath& path, std::span<const KdGePoint3d> points, bool closed)
{
    if (points.empty())
        return;
    path.moveTo(points.front());
    for (const KdGePoint3d& point : points.subspan(1))
        path.lineTo(point);
    if (closed)
        path.close();
}

void addCurveThrough(ScenePath& path, std::span<const KdGePoint3d> points)
{
    constexpr int kDegree = 3;
    constexpr std::size_t kFewestForCurve = 3;
    if (points.size() >= kFewestForCurve) {
        const KdGeFitCurve fit = kdgeInterpolate({points, {}, {}, false});
        if (const auto curve = KdGeNurbCurve3d::create(kDegree, fit.knots, fit.controlPoints))
            return addCubics(path, curve->cubicPieces());
    }
    if (points.size() > 1)
        addPolygon(path, points, false);
}
