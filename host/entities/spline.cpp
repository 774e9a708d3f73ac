#include <entities/spline.h>

#include <algorithm>
#include <numbers>

#include <geometry/nurb_curve.h>
#include <geometry/plane.h>

KD_RX_DEFINE(KdDbSpline, KdDbCurve, L"AcDbSpline", L"SPLINE")
KD_RX_DEFINE(KdDbHelix, KdDbSpline, L"AcDbHelix", L"HELIX")

namespace {

KdErrorStatus takePoint(const std::vector<KdGePoint3d>& points, int index, KdGePoint3d& point)
{
    if (index < 0 || static_cast<std::size_t>(index) >= points.size())
        return eOutOfRange;
    point = points[static_cast<std::size_t>(index)];
    return eOk;
}

} // namespace

void SplineMembers::fitCurve()
{
    if (!controlPoints.empty())
        return;
    KdGeFitCurve curve = kdgeInterpolate({fitPoints, startTangent, endTangent, closed || periodic});
    if (curve.controlPoints.empty())
        return;
    constexpr std::int16_t kDegreeOfFitCurves = 3;
    degree = kDegreeOfFitCurves;
    knots = std::move(curve.knots);
    controlPoints = std::move(curve.controlPoints);
    weights.clear();
}

KdDbNurbsData KdDbSpline::getNurbsData() const
{
    const SplineMembers& spline = data();
    return {spline.degree,
            !spline.weights.empty(),
            spline.closed,
            spline.periodic,
            spline.knots,
            spline.controlPoints,
            spline.weights,
            spline.knotTolerance,
            spline.controlPointTolerance};
}

KdErrorStatus KdDbSpline::getControlPointAt(int index, KdGePoint3d& point) const
{
    return takePoint(data().controlPoints, index, point);
}

double KdDbSpline::weightAt(int index) const
{
    const std::vector<double>& weights = data().weights;
    const auto place = static_cast<std::size_t>(index);
    return index >= 0 && place < weights.size() ? weights[place] : 1.0;
}

KdErrorStatus KdDbSpline::getFitPointAt(int index, KdGePoint3d& point) const
{
    return takePoint(data().fitPoints, index, point);
}

KdErrorStatus KdDbSpline::getFitTangents(KdGeVector3d& start, KdGeVector3d& end) const
{
    const SplineMembers& spline = data();
    if (spline.startTangent == KdGeVector3d() && spline.endTangent == KdGeVector3d())
        return eNotApplicable;
    start = spline.startTangent;
    end = spline.endTangent;
    return eOk;
}

bool KdDbSpline::isClosed() const
{
    return data().closed || data().periodic;
}

bool KdDbSpline::isPlanar() const
{
    // Not every writer sets the flag. The control points hold the curve between them.
    return data().planar || kdgeLieInOnePlane(data().controlPoints);
}

KdErrorStatus KdDbSpline::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    const SplineMembers& spline = data();
    for (const KdGePoint3d& point :
         spline.fitPoints.empty() ? spline.controlPoints : spline.fitPoints)
        points.append(point);
    return eOk;
}

KdErrorStatus KdDbSpline::askGeometry(const Question& question) const
{
    const SplineMembers& spline = data();
    const auto curve =
        KdGeNurbCurve3d::create(spline.degree, spline.knots, spline.controlPoints, spline.weights);
    return curve ? question(*curve) : eNotApplicable;
}

double KdDbHelix::turnSlope() const
{
    const double around = std::numbers::pi * (baseRadius() + topRadius());
    return around > 0.0 ? turnHeight() / around : 0.0;
}
