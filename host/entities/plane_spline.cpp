#include "plane_spline.h"

namespace plane {
namespace {

std::vector<KdGePoint3d> inSpace(std::span<const KdGePoint2d> points)
{
    std::vector<KdGePoint3d> result;
    result.reserve(points.size());
    for (const KdGePoint2d& point : points)
        result.push_back({point.x, point.y, 0.0});
    return result;
}

/// Each span between two knots in equal parts. A rational span of degree n has at most 2n - 2
/// places where a coordinate turns.
std::vector<double> gridOver(const KdGeInterval& interval, int degree,
                             std::span<const double> knots)
{
    const int parts = 8 * degree;
    std::vector<double> grid{interval.lower};
    for (const double knot : knots) {
        const double from = grid.back();
        if (knot <= from || knot > interval.upper)
            continue;
        for (int i = 1; i < parts; ++i)
            grid.push_back(from + (knot - from) * i / parts);
        grid.push_back(knot);
    }
    return grid;
}

} // namespace

SplineShape::SplineShape(std::unique_ptr<KdGeNurbCurve3d> curve, int degree,
                         std::span<const double> knots)
    : m_curve(std::move(curve)),
      m_grid(gridOver(m_curve->interval(), degree, knots)),
      m_area(m_curve->areaVector().z)
{
}

std::shared_ptr<const SplineShape> SplineShape::create(int degree, std::span<const double> knots,
                                                       std::span<const KdGePoint2d> controlPoints,
                                                       std::span<const double> weights)
{
    auto curve = KdGeNurbCurve3d::create(degree, knots, inSpace(controlPoints), weights);
    if (!curve)
        return nullptr;
    return std::shared_ptr<const SplineShape>(new SplineShape(std::move(curve), degree, knots));
}

std::shared_ptr<const SplineShape> SplineShape::through(std::span<const KdGePoint2d> points)
{
    constexpr int kCubic = 3;
    const std::vector<KdGePoint3d> spatial = inSpace(points);
    const KdGeFitCurve fit = kdgeInterpolate({spatial, {}, {}, false});
    auto curve = KdGeNurbCurve3d::create(kCubic, fit.knots, fit.controlPoints);
    if (!curve)
        return nullptr;
    return std::shared_ptr<const SplineShape>(new SplineShape(std::move(curve), kCubic, fit.knots));
}

KdGePoint2d SplineShape::pointAt(double parameter) const
{
    const KdGePoint3d point = m_curve->evalPoint(parameter);
    return {point.x, point.y};
}

} // namespace plane
