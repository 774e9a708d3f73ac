#include <kwdraw/scene/clip_area.h>

#include <algorithm>
#include <array>
#include <cmath>

#include <kwdraw/scene/convex_parts.h>
#include <kwdraw/scene/curve_box.h>

namespace {

/// Cutting along more corners takes too long, whatever is cut.
constexpr std::size_t kMostCorners = 1000;

double cross(QPointF a, QPointF b)
{
    return a.x() * b.y() - a.y() * b.x();
}

SceneBox boxAround(const std::vector<QPointF>& points)
{
    SceneBox box;
    for (const QPointF& point : points)
        box.add(point);
    return box;
}

/// True unless the line from one point to another is surely outside of the box.
bool mayMeet(QPointF from, QPointF to, const SceneBox& box)
{
    SceneBox around;
    around.add(from);
    around.add(to);
    if (!around.meets(box))
        return false;
    // All corners on one side of the line?
    const auto side = [&](double x, double y) { return cross(to - from, QPointF(x, y) - from); };
    const auto [least, most] = std::minmax({side(box.left, box.bottom), side(box.right, box.bottom),
                                            side(box.left, box.top), side(box.right, box.top)});
    return least <= 0.0 && most >= 0.0;
}

/// The straight line from one point to another, seen as an edge with its inside on the left.
struct Side
{
    QPointF from;
    QPointF along;

    double heightOf(QPointF point) const { return cross(along, point - from); }
    std::array<double, 4> heightsOf(const PlaneCubic& piece) const
    {
        return {heightOf(piece[0]), heightOf(piece[1]), heightOf(piece[2]), heightOf(piece[3])};
    }
};

/// Adds the parts of a piece that lie on the left of a side.
void addLeft(PlanePath& path, const PlanePiece& piece, const Side& side, bool& hasStart)
{
    const auto add = [&](const PlanePiece& part) {
        if (!hasStart)
            path.moveTo(part.cubic[0]);
        else if (path.points.back() != part.cubic[0])
            path.lineTo(part.cubic[0]);
        hasStart = true;
        path.add(part);
    };
    const std::array<double, 4> heights = side.heightsOf(piece.cubic);
    const auto [least, most] = std::ranges::minmax(heights);
    if (most <= 0.0)
        return;
    if (least >= 0.0)
        return add(piece);
    std::vector<double> ends;
    addSignChanges(heights, ends);
    ends.push_back(1.0);
    double from = 0.0;
    for (const double to : ends) {
        if (side.heightOf(pointOn(piece.cubic, (from + to) / 2.0)) > 0.0)
            add({partOf(piece.cubic, from, to), piece.isStraight});
        from = to;
    }
}

/// The part of the inside of a path that lies on the left of a side.
PlanePath cutAlong(const PlanePath& path, const Side& side)
{
    PlanePath left;
    bool hasStart = false;
    const auto finish = [&] {
        if (hasStart)
            left.close();
        hasStart = false;
    };
    walkPieces(path, true, finish,
               [&](const PlanePiece& piece) { addLeft(left, piece, side, hasStart); });
    finish();
    return left;
}

} // namespace

ClipArea::ClipArea(std::vector<QPointF> corners) : m_corners(std::move(corners))
{
    m_corners.erase(std::unique(m_corners.begin(), m_corners.end()), m_corners.end());
    while (m_corners.size() > 1 && m_corners.back() == m_corners.front())
        m_corners.pop_back();
    m_box = boxAround(m_corners);
    m_near = 1e-9 * std::hypot(m_box.width(), m_box.height());
    if (m_corners.size() > kMostCorners)
        m_corners = {{m_box.left, m_box.bottom},
                     {m_box.right, m_box.bottom},
                     {m_box.right, m_box.top},
                     {m_box.left, m_box.top}};
    m_convexParts = convexPartsOf(m_corners);
}

bool ClipArea::holds(QPointF point) const
{
    bool isInside = false;
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        const QPointF a = m_corners[i];
        const QPointF b = m_corners[(i + 1) % m_corners.size()];
        const QPointF along = b - a;
        const double square = QPointF::dotProduct(along, along);
        const double share =
            square > 0.0 ? std::clamp(QPointF::dotProduct(point - a, along) / square, 0.0, 1.0)
                         : 0.0;
        const QPointF apart = a + share * along - point;
        if (std::hypot(apart.x(), apart.y()) <= m_near)
            return true;
        if ((a.y() > point.y()) != (b.y() > point.y()) &&
            a.x() + along.x() * ((point.y() - a.y()) / along.y()) > point.x())
            isInside = !isInside;
    }
    return isInside;
}

ClipArea::Part ClipArea::visiblePart(const SceneBox& box) const
{
    if (!m_box.meets(box))
        return Part::None;
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        if (mayMeet(m_corners[i], m_corners[(i + 1) % m_corners.size()], box))
            return Part::Some;
    }
    return holds(box.center()) ? Part::All : Part::None;
}

void ClipArea::addCrossings(const PlaneCubic& piece, std::vector<double>& crossings) const
{
    const SceneBox box = boxAround({piece.begin(), piece.end()});
    for (std::size_t i = 0; i < m_corners.size(); ++i) {
        const QPointF from = m_corners[i];
        const QPointF to = m_corners[(i + 1) % m_corners.size()];
        if (mayMeet(from, to, box))
            addSignChanges(Side{from, to - from}.heightsOf(piece), crossings);
    }
}

PlanePath ClipArea::cutLine(const PlanePath& path) const
{
    PlanePath seen;
    bool isNew = true;
    walkPieces(
        path, false, [&] { isNew = true; },
        [&](const PlanePiece& piece) {
            std::vector<double> ends;
            addCrossings(piece.cubic, ends);
            ends.push_back(1.0);
            std::ranges::sort(ends);
            double from = 0.0;
            for (const double to : ends) {
                const bool isSeen = to > from && holds(pointOn(piece.cubic, (from + to) / 2.0));
                if (isSeen && isNew)
                    seen.moveTo(pointOn(piece.cubic, from));
                if (isSeen)
                    seen.add({partOf(piece.cubic, from, to), piece.isStraight});
                isNew = to > from ? !isSeen : isNew;
                from = to;
            }
        });
    return seen;
}

PlanePath ClipArea::cutFill(const PlanePath& path) const
{
    const SceneBox box = boxOfPath(path.steps, path.points);
    PlanePath seen;
    for (const std::vector<QPointF>& part : m_convexParts) {
        if (!boxAround(part).meets(box))
            continue;
        PlanePath piece = path;
        for (std::size_t i = 0; i < part.size() && !piece.steps.empty(); ++i) {
            const Side side{part[i], part[(i + 1) % part.size()] - part[i]};
            if (!side.along.isNull()) // a triangle has a side without length
                piece = cutAlong(piece, side);
        }
        seen.steps.insert(seen.steps.end(), piece.steps.begin(), piece.steps.end());
        seen.points.insert(seen.points.end(), piece.points.begin(), piece.points.end());
    }
    return seen;
}
