#include <kwdraw/scene/curve_box.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include <kwdraw/scene/plane_path.h>

namespace {

/// Widens a range by the values where the cubic turns round inside of the piece.
void addTurns(const std::array<double, 4>& c, double& lowest, double& highest)
{
    // The ends are in the range already; with the control values inside of it nothing sticks out.
    const auto [least, most] = std::minmax(c[1], c[2]);
    if (least >= lowest && most <= highest)
        return;
    for (const double t : turnsOf(c)) {
        const double value = valueAt(c, t);
        lowest = std::min(lowest, value);
        highest = std::max(highest, value);
    }
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
