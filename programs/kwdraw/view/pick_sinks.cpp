#include "pick_sinks.h"

#include <algorithm>
#include <cmath>

namespace {

double distanceToOrigin(QPointF from, QPointF to)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    const double nearest =
        square > 0.0 ? std::clamp(-QPointF::dotProduct(from, along) / square, 0.0, 1.0) : 0.0;
    const QPointF point = from + nearest * along;
    return std::hypot(point.x(), point.y());
}

/// True if the line from the origin to the right crosses this one.
bool crossesRightOfOrigin(QPointF from, QPointF to)
{
    if ((from.y() > 0.0) == (to.y() > 0.0))
        return false;
    return from.x() + (to.x() - from.x()) * (from.y() / (from.y() - to.y())) > 0.0;
}

} // namespace

void NearestLine::moveTo(QPointF point)
{
    finish();
    m_start = m_at = point;
}

void NearestLine::lineTo(QPointF point)
{
    m_distance = std::min(m_distance, distanceToOrigin(m_at, point));
    if (crossesRightOfOrigin(m_at, point))
        m_isInside = !m_isInside;
    m_at = point;
}

void NearestLine::finish()
{
    if (m_isArea && m_at != m_start)
        lineTo(m_start);
}

void TouchedBox::moveTo(QPointF point)
{
    finish();
    m_start = m_at = point;
}

void TouchedBox::lineTo(QPointF point)
{
    QPointF from = m_at;
    QPointF to = point;
    m_isTouched = m_isTouched || clipLine(from, to, m_box);
    m_at = point;
}

void TouchedBox::finish()
{
    if (m_isArea && m_at != m_start)
        lineTo(m_start);
}
