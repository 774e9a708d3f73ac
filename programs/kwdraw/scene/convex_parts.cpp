#include <kwdraw/scene/convex_parts.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>

namespace {

using Polygon = std::vector<QPointF>;

double cross(QPointF a, QPointF b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// By how much the way along a polygon turns in all, in radians, and whether it ever turns back.
struct Turning
{
    double sum = 0.0;
    bool leftOnly = true;
    bool rightOnly = true;
};

Turning turningOf(const Polygon& corners)
{
    Turning turning;
    const std::size_t count = corners.size();
    for (std::size_t i = 0; i < count; ++i) {
        const QPointF arriving = corners[i] - corners[(i + count - 1) % count];
        const QPointF leaving = corners[(i + 1) % count] - corners[i];
        const double turn =
            std::atan2(cross(arriving, leaving), QPointF::dotProduct(arriving, leaving));
        turning.sum += turn;
        turning.leftOnly = turning.leftOnly && turn >= 0.0;
        turning.rightOnly = turning.rightOnly && turn <= 0.0;
    }
    return turning;
}

bool isOnce(double turned)
{
    return turned < 3.0 * std::numbers::pi; // twice around is a star
}

double xAt(const QPointF& low, const QPointF& high, double y)
{
    if (y == high.y()) // without rounding, so that edges meet in their corner
        return high.x();
    const double share = (y - low.y()) / (high.y() - low.y());
    return low.x() + (high.x() - low.x()) * share;
}

struct Edge
{
    double atBottom;
    double atTop;
};

/// The edges that lead through a band, from left to right.
std::vector<Edge> edgesThrough(const Polygon& corners, double bottom, double top)
{
    std::vector<Edge> edges;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const auto [low, high] =
            std::minmax(corners[i], corners[(i + 1) % corners.size()],
                        [](const QPointF& a, const QPointF& b) { return a.y() < b.y(); });
        if (low.y() <= bottom && high.y() >= top && low.y() < high.y())
            edges.push_back({xAt(low, high, bottom), xAt(low, high, top)});
    }
    std::ranges::sort(edges, {}, [](const Edge& edge) { return edge.atBottom + edge.atTop; });
    return edges;
}

} // namespace

std::vector<Polygon> convexPartsOf(const Polygon& corners)
{
    const Turning turning = turningOf(corners);
    if (turning.leftOnly && isOnce(turning.sum))
        return {corners};
    if (turning.rightOnly && isOnce(-turning.sum))
        return {Polygon(corners.rbegin(), corners.rend())};

    std::vector<double> heights;
    for (const QPointF& corner : corners)
        heights.push_back(corner.y());
    std::ranges::sort(heights);
    heights.erase(std::unique(heights.begin(), heights.end()), heights.end());
    std::vector<Polygon> parts;
    for (std::size_t i = 1; i < heights.size(); ++i) {
        const double bottom = heights[i - 1];
        const double top = heights[i];
        const std::vector<Edge> edges = edgesThrough(corners, bottom, top);
        for (std::size_t k = 1; k < edges.size(); k += 2) {
            const auto [lowLeft, lowRight] = std::minmax(edges[k - 1].atBottom, edges[k].atBottom);
            const auto [highLeft, highRight] = std::minmax(edges[k - 1].atTop, edges[k].atTop);
            parts.push_back(
                {{lowLeft, bottom}, {lowRight, bottom}, {highRight, top}, {highLeft, top}});
        }
    }
    return parts;
}
