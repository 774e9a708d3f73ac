#include <kwdraw/scene/clip_stack.h>

#include <algorithm>
#include <cmath>

namespace {

/// True if lines between the corners enclose anything.
bool hasArea(const std::vector<QPointF>& corners)
{
    SceneBox box;
    for (const QPointF& corner : corners) {
        if (!std::isfinite(corner.x()) || !std::isfinite(corner.y()))
            return false;
        box.add(corner);
    }
    double twice = 0.0;
    for (std::size_t i = 2; i < corners.size(); ++i) {
        const QPointF a = corners[i - 1] - corners[0];
        const QPointF b = corners[i] - corners[0];
        twice += a.x() * b.y() - a.y() * b.x();
    }
    constexpr double kNothing = 1e-12;
    const double extent = std::hypot(box.width(), box.height());
    return std::abs(twice) > kNothing * extent * extent;
}

} // namespace

void ClipStack::push(std::vector<QPointF> corners)
{
    m_cuts.push_back(hasArea(corners));
    if (m_cuts.back())
        m_areas.emplace_back(std::move(corners));
}

void ClipStack::pop()
{
    if (m_cuts.back())
        m_areas.pop_back();
    m_cuts.pop_back();
}

ClipArea::Part ClipStack::visiblePart(const SceneBox& box)
{
    auto seen = ClipArea::Part::All;
    for (const ClipArea& area : m_areas) {
        m_work += area.edgeCount();
        seen = std::min(seen, area.visiblePart(box));
    }
    return seen;
}

bool ClipStack::holds(QPointF point)
{
    return std::ranges::all_of(m_areas, [&](const ClipArea& area) { return area.holds(point); });
}

PlanePath ClipStack::cutLine(PlanePath path)
{
    for (const ClipArea& area : m_areas) {
        m_work += path.steps.size() * area.edgeCount();
        path = area.cutLine(path);
    }
    return path;
}

PlanePath ClipStack::cutFill(PlanePath path)
{
    for (const ClipArea& area : m_areas) {
        m_work += path.steps.size() * area.edgeCount();
        path = area.cutFill(path);
    }
    return path;
}

PlanePath ClipStack::cutRay(QPointF base, QPointF direction, bool bothSides)
{
    const SceneBox& box = m_areas.back().box();
    const QPointF toCenter = box.center() - base;
    const double middle = QPointF::dotProduct(toCenter, direction);
    const double reach = std::hypot(box.width(), box.height());
    const double from = bothSides ? middle - reach : std::max(0.0, middle - reach);
    if (!(from < middle + reach))
        return {};
    PlanePath path;
    path.moveTo(base + from * direction);
    path.lineTo(base + (middle + reach) * direction);
    return cutLine(std::move(path));
}
