#include <kwdraw/scene/curve_box.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

namespace {

/// Control values of a cubic along one axis.
using Cubic = std::array<double, 4>;

double valueAt(const Cubic& c, double t)
{
    const double s = 1.0 - t;
    return s * s * s * c[0] + 3.0 * s * s * t * c[1] + 3.0 * s * t * t * c[2] + t * t * t * c[3];
}

/// Widens a range by the values where the cubic turns round inside of the piece.
void addTurns(const Cubic& c, double& lowest, double& highest)
{
    // The ends are in the range already; with the control values inside of it nothing sticks out.
    const auto [least, most] = std::minmax(c[1], c[2]);
    if (least >= lowest && most <= highest)
        return;
    const double a = c[3] - c[0] + 3.0 * (c[1] - c[2]);
    const double b = 2.0 * (c[0] - 2.0 * c[1] + c[2]);
    const double d = c[1] - c[0];
    const auto add = [&](double t) {
        if (!(t > 0.0 && t < 1.0))
            return;
        const double value = valueAt(c, t);
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    };
    const double root = b * b - 4.0 * a * d;
    if (root < 0.0)
        return;
    // This form of the solution bears an `a` of next to nothing.
    const double q = -0.5 * (b + std::copysign(std::sqrt(root), b));
    if (a != 0.0)
        add(q / a);
    if (q != 0.0)
        add(d / q);
}

} // namespace

SceneBox boxOfPath(std::span<const PathStep> steps, std::span<const QPointF> points)
{
    SceneBox box;
    std::size_t next = 0;
    for (const PathStep step : steps) {
        if (step == PathStep::Close)
            continue;
        next += step == PathStep::Cubic ? 3 : 1;
        box.add(points[next - 1]);
        if (step != PathStep::Cubic || next < 4)
            continue;
        const std::span<const QPointF> p = points.subspan(next - 4, 4);
        addTurns({p[0].x(), p[1].x(), p[2].x(), p[3].x()}, box.left, box.right);
        addTurns({p[0].y(), p[1].y(), p[2].y(), p[3].y()}, box.bottom, box.top);
    }
    for (const QPointF& point : points)
        if (!std::isfinite(point.x()) || !std::isfinite(point.y()))
            return {std::numeric_limits<double>::quiet_NaN(), 0.0, 0.0, 0.0};
    return box;
}
