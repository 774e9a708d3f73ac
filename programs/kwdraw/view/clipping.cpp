#include "clipping.h"

#include <algorithm>
#include <cmath>

namespace {

/// Narrows `part` to where `start + t * step` is not above `limit`.
void narrow(LinePart& part, double start, double step, double limit)
{
    const double room = limit - start;
    if (step > 0.0)
        part.to = std::min(part.to, room / step);
    else if (step < 0.0)
        part.from = std::max(part.from, room / step);
    else if (!(room >= 0.0))
        part = {1.0, 0.0};
}

/// One side of the box: points with `sign * coordinate <= limit` stay.
struct Side
{
    bool vertical;
    double sign;
    double limit;

    double excess(QPointF point) const { return sign * (vertical ? point.x() : point.y()) - limit; }
};

QPointF between(QPointF from, QPointF to, double excessFrom, double excessTo)
{
    return from + (to - from) * (excessFrom / (excessFrom - excessTo));
}

void clipAt(const Side& side, const std::vector<QPointF>& polygon, std::vector<QPointF>& clipped)
{
    clipped.clear();
    QPointF last = polygon.back();
    double lastExcess = side.excess(last);
    for (const QPointF point : polygon) {
        const double excess = side.excess(point);
        if ((excess > 0.0) != (lastExcess > 0.0))
            clipped.push_back(between(last, point, lastExcess, excess));
        if (excess <= 0.0)
            clipped.push_back(point);
        last = point;
        lastExcess = excess;
    }
}

} // namespace

LinePart linePart(QPointF from, QPointF vector, const ClipBox& box, LinePart within)
{
    if (!std::isfinite(from.x() + from.y() + vector.x() + vector.y()))
        return {1.0, 0.0};
    LinePart part = within;
    narrow(part, from.x(), vector.x(), box.right);
    narrow(part, -from.x(), -vector.x(), -box.left);
    narrow(part, from.y(), vector.y(), box.bottom);
    narrow(part, -from.y(), -vector.y(), -box.top);
    return part;
}

bool clipLine(QPointF& from, QPointF& to, const ClipBox& box)
{
    if (box.contains(from) && box.contains(to))
        return true;
    const QPointF vector = to - from;
    const LinePart part = linePart(from, vector, box);
    if (part.isEmpty())
        return false;
    const QPointF start = from;
    if (part.from > 0.0)
        from = start + part.from * vector;
    if (part.to < 1.0)
        to = start + part.to * vector;
    return true;
}

void clipPolygon(std::vector<QPointF>& polygon, const ClipBox& box)
{
    const Side sides[] = {{true, 1.0, box.right},
                          {true, -1.0, -box.left},
                          {false, 1.0, box.bottom},
                          {false, -1.0, -box.top}};
    std::vector<QPointF> clipped;
    for (const Side& side : sides) {
        if (polygon.empty())
            return;
        const bool cut = std::any_of(polygon.begin(), polygon.end(), [&side](QPointF point) {
            return !(side.excess(point) <= 0.0);
        });
        if (!cut)
            continue;
        clipAt(side, polygon, clipped);
        polygon.swap(clipped);
    }
}
