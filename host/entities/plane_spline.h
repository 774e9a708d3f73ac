// Splines in a plane.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include <geometry/nurb_curve.h>

namespace plane {

/// A spline, with what its pieces need to know again and again.
class SplineShape
{
  public:
    /// See `KdGeNurbCurve3d::create`; null if these make no curve.
    static std::shared_ptr<const SplineShape> create(int degree, std::span<const double> knots,
                                                     std::span<const KdGePoint2d> controlPoints,
                                                     std::span<const double> weights);
    /// The smooth curve through the points; null if there are not two different ones.
    static std::shared_ptr<const SplineShape> through(std::span<const KdGePoint2d> points);

    KdGePoint2d pointAt(double parameter) const;
    double first() const { return m_grid.front(); }
    double last() const { return m_grid.back(); }
    /// The area between the whole curve and its chord, above 0 if the curve runs counter-clockwise
    /// around it.
    double area() const { return m_area; }
    /// Parameters from the first to the last, so close that between two of them a coordinate turns
    /// once, if at all.
    std::span<const double> grid() const { return m_grid; }

  private:
    SplineShape(std::unique_ptr<KdGeNurbCurve3d> curve, int degree, std::span<const double> knots);

    std::unique_ptr<KdGeNurbCurve3d> m_curve;
    std::vector<double> m_grid;
    double m_area;
};

} // namespace plane
