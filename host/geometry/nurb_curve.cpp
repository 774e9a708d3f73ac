#include <geometry/nurb_curve.h>

#include <algorithm>
#include <cmath>

#include <BndLib_Add3dCurve.hxx>
#include <Bnd_Box.hxx>
#include <GeomAdaptor_Curve.hxx>
#include <Geom_BSplineCurve.hxx>
#include <Precision.hxx>
#include <Standard_Failure.hxx>
#include <TColStd_Array1OfInteger.hxx>
#include <TColStd_Array1OfReal.hxx>
#include <TColgp_Array1OfPnt.hxx>
#include <math.hxx>
#include <math_Vector.hxx>

#include "cubic_pieces.h"
#include "integration.h"

struct KdGeNurbCurve3d::Kernel
{
    opencascade::handle<Geom_BSplineCurve> curve;

    /// Calls `use(from, to)` for the smooth pieces of an interval.
    template <class Use>
    void forEachSpan(double from, double to, Use use) const
    {
        for (int i = 1; i < curve->NbKnots(); ++i) {
            const double start = std::max(from, curve->Knot(i));
            const double end = std::min(to, curve->Knot(i + 1));
            if (start < end)
                use(start, end);
        }
    }
};

namespace {

KdGeVector3d vectorOf(const gp_XYZ& v)
{
    return {v.X(), v.Y(), v.Z()};
}

bool isFinite(const KdGePoint3d& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z);
}

bool makeSense(int degree, std::span<const double> knots, std::span<const KdGePoint3d> points,
               std::span<const double> weights)
{
    const auto isWeight = [](double weight) { return std::isfinite(weight) && weight > 0.0; };
    const auto isNumber = [](double knot) { return std::isfinite(knot); };
    return degree >= 1 && degree <= Geom_BSplineCurve::MaxDegree() &&
           points.size() > static_cast<std::size_t>(degree) &&
           knots.size() == points.size() + static_cast<std::size_t>(degree) + 1 &&
           (weights.empty() || weights.size() == points.size()) &&
           std::ranges::all_of(knots, isNumber) && std::ranges::is_sorted(knots) &&
           knots.front() < knots.back() && std::ranges::all_of(weights, isWeight) &&
           std::ranges::all_of(points, isFinite);
}

/// Knots with the number of times that each occurs.
struct KnotRow
{
    explicit KnotRow(std::span<const double> flat)
    {
        const double apart = 1e-12 * (flat.back() - flat.front());
        for (const double knot : flat) {
            if (!values.empty() && knot - values.back() <= apart) {
                ++counts.back();
            } else {
                values.push_back(knot);
                counts.push_back(1);
            }
        }
    }

    std::vector<double> values;
    std::vector<int> counts;
};

/// As the kernel has its lists, counted from 1; it reads them and copies what it keeps.
template <class Array, class T>
Array arrayOver(const std::vector<T>& values)
{
    return Array(values.front(), 1, static_cast<int>(values.size()));
}

opencascade::handle<Geom_BSplineCurve> makeCurve(int degree, const KnotRow& knots,
                                                 std::span<const KdGePoint3d> controlPoints,
                                                 std::span<const double> weights)
{
    std::vector<gp_Pnt> points;
    points.reserve(controlPoints.size());
    for (const KdGePoint3d& point : controlPoints)
        points.emplace_back(point.x, point.y, point.z);
    const auto pointArray = arrayOver<TColgp_Array1OfPnt>(points);
    const auto knotArray = arrayOver<TColStd_Array1OfReal>(knots.values);
    const auto countArray = arrayOver<TColStd_Array1OfInteger>(knots.counts);
    if (weights.empty())
        return new Geom_BSplineCurve(pointArray, knotArray, countArray, degree);
    const TColStd_Array1OfReal weightArray(weights.front(), 1, static_cast<int>(weights.size()));
    return new Geom_BSplineCurve(pointArray, weightArray, knotArray, countArray, degree);
}

} // namespace

KdGeNurbCurve3d::KdGeNurbCurve3d(std::unique_ptr<Kernel> kernel) : m_kernel(std::move(kernel)) {}

KdGeNurbCurve3d::~KdGeNurbCurve3d() = default;

std::unique_ptr<KdGeNurbCurve3d> KdGeNurbCurve3d::create(int degree, std::span<const double> knots,
                                                         std::span<const KdGePoint3d> controlPoints,
                                                         std::span<const double> weights)
{
    if (!makeSense(degree, knots, controlPoints, weights))
        return nullptr;
    try {
        auto kernel = std::make_unique<Kernel>();
        kernel->curve = makeCurve(degree, KnotRow(knots), controlPoints, weights);
        return std::unique_ptr<KdGeNurbCurve3d>(new KdGeNurbCurve3d(std::move(kernel)));
    } catch (const Standard_Failure&) {
        return nullptr; // a knot that occurs too often
    }
}

std::unique_ptr<KdGeNurbCurve3d> KdGeNurbCurve3d::part(double first, double last) const
{
    const double from = interval().clamped(std::min(first, last));
    const double to = interval().clamped(std::max(first, last));
    if (!(to - from > Precision::PConfusion()))
        return nullptr;
    try {
        auto kernel = std::make_unique<Kernel>();
        kernel->curve = Handle(Geom_BSplineCurve)::DownCast(m_kernel->curve->Copy());
        kernel->curve->Segment(from, to);
        if (first > last)
            kernel->curve->Reverse();
        return std::unique_ptr<KdGeNurbCurve3d>(new KdGeNurbCurve3d(std::move(kernel)));
    } catch (const Standard_Failure&) {
        return nullptr;
    }
}

std::vector<KdGeCubic3d> KdGeNurbCurve3d::cubicPieces() const
{
    return geometry::cubicPieces(*m_kernel->curve);
}

KdGeInterval KdGeNurbCurve3d::interval() const
{
    return {m_kernel->curve->FirstParameter(), m_kernel->curve->LastParameter()};
}

KdGePoint3d KdGeNurbCurve3d::evalPoint(double parameter) const
{
    const gp_Pnt point = m_kernel->curve->Value(interval().clamped(parameter));
    return {point.X(), point.Y(), point.Z()};
}

double KdGeNurbCurve3d::length(double from, double to, double) const
{
    const auto speed = [this](double t) { return m_kernel->curve->DN(t, 1).Magnitude(); };
    const KdGeInterval whole = interval();
    double sum = 0.0;
    m_kernel->forEachSpan(
        whole.clamped(std::min(from, to)), whole.clamped(std::max(from, to)),
        [&](double start, double end) { sum += geometry::integral(speed, start, end); });
    return sum;
}

void KdGeNurbCurve3d::addToExtents(KdGeExtents3d& extents) const
{
    Bnd_Box box;
    BndLib_Add3dCurve::AddOptimal(GeomAdaptor_Curve(m_kernel->curve), 0.0, box);
    box.SetGap(0.0);
    double low[3];
    double high[3];
    box.Get(low[0], low[1], low[2], high[0], high[1], high[2]);
    extents.addPoint({low[0], low[1], low[2]});
    extents.addPoint({high[0], high[1], high[2]});
}

KdGeVector3d KdGeNurbCurve3d::areaVector() const
{
    // Exact for plain splines, where the integrand of a span is a polynomial of degree 2n - 1.
    const int pointCount =
        m_kernel->curve->IsRational() ? math::GaussPointsMax() / 2 : m_kernel->curve->Degree();
    math_Vector places(1, pointCount);
    math_Vector weights(1, pointCount);
    math::GaussPoints(pointCount, places);
    math::GaussWeights(pointCount, weights);
    const KdGeInterval whole = interval();
    const gp_XYZ origin = m_kernel->curve->Value(whole.lower).XYZ();
    gp_XYZ sum;
    m_kernel->forEachSpan(whole.lower, whole.upper, [&](double start, double end) {
        const double half = (end - start) / 2.0;
        for (int i = 1; i <= pointCount; ++i) {
            gp_Pnt point;
            gp_Vec derivative;
            m_kernel->curve->D1(start + half * (1.0 + places(i)), point, derivative);
            sum += (point.XYZ() - origin).Crossed(derivative.XYZ()) * (weights(i) * half / 2.0);
        }
    });
    return vectorOf(sum);
}
