#include "closed_loop.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace plane {
namespace {

/// Turns edges round that run backwards, each towards the one before it, the first one towards the
/// second.
void orient(std::vector<Curve>& curves)
{
    if (curves.size() < 2)
        return;
    const auto distanceTo = [&](const KdGePoint2d& point) {
        return std::min(point.distanceTo(startOf(curves[1])), point.distanceTo(endOf(curves[1])));
    };
    if (distanceTo(startOf(curves[0])) < distanceTo(endOf(curves[0])))
        curves[0] = reversed(curves[0]);
    for (std::size_t i = 1; i < curves.size(); ++i) {
        const KdGePoint2d place = endOf(curves[i - 1]);
        if (place.distanceTo(endOf(curves[i])) < place.distanceTo(startOf(curves[i])))
            curves[i] = reversed(curves[i]);
    }
}

/// The same row with a line in each gap, the last one to the start included.
std::vector<Curve> withoutGaps(std::vector<Curve> curves)
{
    orient(curves);
    std::vector<Curve> closed;
    closed.reserve(curves.size() + 1);
    for (std::size_t i = 0; i < curves.size(); ++i) {
        closed.push_back(curves[i]);
        const KdGePoint2d end = endOf(curves[i]);
        const KdGePoint2d next = startOf(curves[(i + 1) % curves.size()]);
        if (end != next)
            closed.emplace_back(Line{end, next});
    }
    return closed;
}

bool covers(const Range& outer, const Range& inner, double tolerance)
{
    return outer.low <= inner.low + tolerance && outer.high >= inner.high - tolerance;
}

} // namespace

ClosedLoop::ClosedLoop(std::vector<Curve> curves) : m_curves(withoutGaps(std::move(curves)))
{
    double area = 0.0;
    for (const Curve& curve : m_curves) {
        area += areaTerm(curve);
        addRange(curve, {1.0, 0.0}, m_width);
        addRange(curve, {0.0, 1.0}, m_height);
        appendMonotoneParts(curve, m_parts);
    }
    m_area = std::abs(area);
}

ClosedLoop::Side ClosedLoop::sideOf(const KdGePoint2d& point) const
{
    constexpr double kNear = 1e-9; // of the loop's size
    const double tolerance = kNear * std::max(m_width.length(), m_height.length());
    bool inside = false;
    for (const MonotonePart& part : m_parts) {
        if (point.y < part.low().y - tolerance || point.y > part.high().y + tolerance)
            continue;
        const double x = part.xAt(point.y);
        const auto [left, right] = std::minmax(part.low().x, part.high().x);
        const bool isFlat = part.high().y - part.low().y <= tolerance;
        if (isFlat ? point.x >= left - tolerance && point.x <= right + tolerance
                   : std::abs(x - point.x) <= tolerance)
            return Side::Edge;
        if (part.low().y <= point.y && point.y < part.high().y && x > point.x)
            inside = !inside;
    }
    return inside ? Side::Inside : Side::Outside;
}

bool ClosedLoop::contains(const ClosedLoop& other) const
{
    const double tolerance = 1e-9 * std::max(m_width.length(), m_height.length());
    if (!covers(m_width, other.m_width, tolerance) || !covers(m_height, other.m_height, tolerance))
        return false;
    // A point that lies on the edge of both says nothing, and one close to it may lie; so many
    // vote.
    constexpr std::size_t kMostVoters = 32;
    const std::size_t step = std::max<std::size_t>(other.m_curves.size() / kMostVoters, 1);
    int votes = 0;
    for (std::size_t i = 0; i < other.m_curves.size(); i += step) {
        const Side side = sideOf(middleOf(other.m_curves[i]));
        if (side != Side::Edge)
            votes += side == Side::Inside ? 1 : -1;
    }
    return votes >= 0;
}

std::vector<std::size_t> enclosingLoops(std::span<const ClosedLoop> loops)
{
    std::vector<std::size_t> bySize(loops.size());
    std::iota(bySize.begin(), bySize.end(), std::size_t{0});
    std::ranges::stable_sort(bySize, std::ranges::greater(),
                             [&](std::size_t i) { return loops[i].area(); });
    std::vector<std::size_t> enclosing(loops.size());
    for (std::size_t place = 0; place < bySize.size(); ++place) {
        const std::size_t loop = bySize[place];
        enclosing[loop] = loop;
        for (std::size_t larger = place; larger-- > 0;) {
            if (loops[bySize[larger]].contains(loops[loop])) {
                enclosing[loop] = bySize[larger];
                break;
            }
        }
    }
    return enclosing;
}

} // namespace plane
