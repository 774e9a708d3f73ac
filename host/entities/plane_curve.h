// The pieces of which boundaries in a plane are made.
#pragma once

#include <limits>
#include <memory>
#include <variant>
#include <vector>

#include <geometry/point.h>

#include "plane_spline.h"

namespace plane {

/// A turn about the origin, counter-clockwise.
struct Turn
{
    Turn() = default;
    explicit Turn(double angle);
    KdGePoint2d operator()(const KdGePoint2d& point) const;
    KdGeVector2d operator()(const KdGeVector2d& vector) const;
    Turn then(const Turn& next) const;

    double cosine = 1.0;
    double sine = 0.0;
};

struct Line
{
    KdGePoint2d start;
    KdGePoint2d end;
};

/// A piece of an ellipse: the points center + major cos t + minor sin t, t running from `from` to
/// `to`, which may be lower. It is kept by its start, since the center of a flat arc is so far away
/// that coordinates lose their digits on the way back.
struct Arc
{
    static Arc around(const KdGePoint2d& center, const KdGeVector2d& major,
                      const KdGeVector2d& minor, double from, double to);

    KdGePoint2d start;
    KdGeVector2d major;
    KdGeVector2d minor;
    double from = 0.0;
    double to = 0.0;
};

/// A whole spline, turned; `from` and `to` are its ends in the order in which it is run through.
struct Spline
{
    std::shared_ptr<const SplineShape> shape;
    double from = 0.0;
    double to = 0.0;
    Turn turn;
};

using Curve = std::variant<Line, Arc, Spline>;

KdGePoint2d startOf(const Curve& curve);
KdGePoint2d endOf(const Curve& curve);
/// Where half of the parameter is run through.
KdGePoint2d middleOf(const Curve& curve);
Curve reversed(const Curve& curve);
Curve turned(const Curve& curve, const Turn& turn);

/// What a curve adds to the area of a closed row of curves: the integral of (x dy - y dx) / 2.
double areaTerm(const Curve& curve);

struct Range
{
    double low = std::numeric_limits<double>::infinity();
    double high = -std::numeric_limits<double>::infinity();

    void add(double value);
    double length() const { return high - low; }
};
/// Widens `range` by the values of `direction` times the curve's points.
void addRange(const Curve& curve, const KdGeVector2d& direction, Range& range);

/// A part of a curve along which y does nothing but rise, or nothing but fall.
class MonotonePart
{
  public:
    MonotonePart(const Curve& curve, double from, double to);

    const KdGePoint2d& low() const { return m_low; }
    const KdGePoint2d& high() const { return m_high; }
    /// Where the part has this y; beyond its ends, the x of the nearer one.
    double xAt(double y) const;

  private:
    const Curve* m_curve;
    double m_lowParameter;
    double m_highParameter;
    KdGePoint2d m_low;
    KdGePoint2d m_high;
};
/// Cuts a curve, which must outlive the parts, where y turns.
void appendMonotoneParts(const Curve& curve, std::vector<MonotonePart>& parts);

} // namespace plane
