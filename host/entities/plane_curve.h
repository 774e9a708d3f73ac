// The pieces of which boundaries in a plane are made.
#pragma once

#include <limits>
#include <variant>
#include <vector>

#include <geometry/point.h>

namespace plane {

struct Line
{
    KdGePoint2d start;
    KdGePoint2d end;
};

/// The points center + major cos t + minor sin t, t running from `from` to `to`, which may be
/// lower.
struct Arc
{
    KdGePoint2d center;
    KdGeVector2d major;
    KdGeVector2d minor;
    double from = 0.0;
    double to = 0.0;
};

using Curve = std::variant<Line, Arc>;

KdGePoint2d startOf(const Curve& curve);
KdGePoint2d endOf(const Curve& curve);
/// Where half of the parameter is run through.
KdGePoint2d middleOf(const Curve& curve);
Curve reversed(const Curve& curve);

/// A turn about the origin, counter-clockwise.
struct Turn
{
    explicit Turn(double angle);
    KdGePoint2d operator()(const KdGePoint2d& point) const;
    KdGeVector2d operator()(const KdGeVector2d& vector) const;

    double cosine;
    double sine;
};
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
    /// Where the part has this y, which must be one that it has.
    double xAt(double y) const;

  private:
    const Curve* m_curve;
    double m_first; ///< the parameters of the ends, the lower one first
    double m_last;
    KdGePoint2d m_low;
    KdGePoint2d m_high;
};
/// Cuts a curve, which must outlive the parts, where y turns.
void appendMonotoneParts(const Curve& curve, std::vector<MonotonePart>& parts);

} // namespace plane
