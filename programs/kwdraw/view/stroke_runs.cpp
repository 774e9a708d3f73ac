#include "stroke_runs.h"

#include <algorithm>
#include <cmath>

namespace {

/// A dot of a linetype, as long as it is wide.
constexpr double kDotPixels = 1.0;
/// The shortest dashes, with their gaps, that are worth being painted.
constexpr double kDashPixels = 1.5;

bool same(QPointF first, QPointF second)
{
    return first.x() == second.x() && first.y() == second.y();
}

} // namespace

void StrokeRuns::add(QPointF from, QPointF to)
{
    if (!m_open || !same(m_points.back(), from)) {
        m_starts.push_back(m_points.size());
        m_points.push_back(from);
    }
    m_points.push_back(to);
    m_open = true;
}

void StrokeRuns::clear()
{
    m_points.clear();
    m_starts.clear();
    m_open = false;
}

std::span<const QPointF> StrokeRuns::run(std::size_t index) const
{
    const std::size_t end = index + 1 < m_starts.size() ? m_starts[index + 1] : m_points.size();
    return std::span(m_points).subspan(m_starts[index], end - m_starts[index]);
}

void SolidLine::moveTo(QPointF point)
{
    m_at = point;
    m_runs.breakRun();
}

void SolidLine::lineTo(QPointF point)
{
    QPointF from = m_at;
    QPointF to = point;
    m_at = point;
    if (clipLine(from, to, m_box))
        m_runs.add(from, to);
}

DashedLine::DashedLine(StrokeRuns& runs, const ClipBox& box, const SceneLinetype& dashes,
                       double pixelsPerUnit)
    : m_runs(runs), m_box(box), m_dashes(dashes), m_scale(pixelsPerUnit), m_pattern(0.0)
{
    for (const double dash : dashes.dashes)
        m_pattern += std::abs(dash) * pixelsPerUnit;
}

bool DashedLine::isVisible(const SceneLinetype& dashes, double pixelsPerUnit)
{
    double pattern = 0.0;
    for (const double dash : dashes.dashes)
        pattern += std::abs(dash) * pixelsPerUnit;
    return std::isfinite(pattern) &&
           pattern > kDashPixels * static_cast<double>(dashes.dashes.size());
}

void DashedLine::moveTo(QPointF point)
{
    m_at = point;
    m_done = 0.0;
    m_runs.breakRun();
}

void DashedLine::jumpTo(const Cubic& cubic)
{
    m_done += cubic.length();
    m_at = cubic.end;
}

void DashedLine::lineTo(QPointF point)
{
    const QPointF from = m_at;
    const QPointF vector = point - from;
    const double length = std::hypot(vector.x(), vector.y());
    m_at = point;
    if (!(length > 0.0))
        return;
    const LinePart shown = linePart(from, vector, m_box);
    if (!shown.isEmpty())
        dash(from, vector, length, shown);
    m_done += length;
}

void DashedLine::dash(QPointF from, QPointF vector, double length, LinePart shown)
{
    const auto dashLength = [this](std::size_t i) {
        return std::abs(m_dashes.dashes[i]) * m_scale;
    };
    const std::size_t count = m_dashes.dashes.size();
    double phase = std::fmod(m_done + shown.from * length, m_pattern);
    std::size_t index = 0;
    // What rounding leaves over after the last dash belongs to it.
    while (index + 1 < count && phase >= dashLength(index))
        phase -= dashLength(index++);

    // Measured from where the line becomes visible, so that a very long line is cut up well too.
    const QPointF start = from + vector * shown.from;
    const double end = (shown.to - shown.from) * length;
    const auto place = [&](double distance) { return start + vector * (distance / length); };
    for (double at = 0.0; at < end; index = (index + 1) % count) {
        const double dash = m_dashes.dashes[index];
        const double next = std::min(end, at + std::max(0.0, dashLength(index) - phase));
        phase = 0.0;
        if (dash > 0.0 && next > at)
            m_runs.add(place(at), place(next));
        else if (dash == 0.0)
            m_runs.add(place(at), place(std::min(end, at + kDotPixels)));
        at = next;
    }
}
