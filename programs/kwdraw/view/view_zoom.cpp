#include "view_zoom.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr std::size_t kPlacesKept = 100;

/// The larger side of a box, and a small part of its coordinates if it is a point.
double extentOf(const SceneBox& box)
{
    constexpr double kUnknown = 1e6;
    if (box.isEmpty())
        return kUnknown;
    const double extent = std::max(box.width(), box.height());
    if (extent > 0.0)
        return extent;
    const double far = std::max(std::abs(box.left), std::abs(box.bottom));
    return far > 0.0 ? far * 1e-3 : 1.0;
}

/// A drawing may have a point so far out that sizes overflow.
SceneBox tamed(const SceneBox& box)
{
    constexpr double kFar = 1e100;
    const auto tame = [kFar](double value) { return std::clamp(value, -kFar, kFar); };
    if (box.isEmpty())
        return box;
    return {tame(box.left), tame(box.bottom), tame(box.right), tame(box.top)};
}

double farthestOf(const SceneBox& box)
{
    if (box.isEmpty())
        return 1.0;
    return std::max(
        {std::abs(box.left), std::abs(box.right), std::abs(box.bottom), std::abs(box.top)});
}

} // namespace

ViewPlace placeAround(const SceneBox& whole, QSizeF size, double room)
{
    const SceneBox box = tamed(whole);
    if (box.isEmpty())
        return {};
    const double width = std::max(size.width() - 2.0 * room, size.width() / 2.0);
    const double height = std::max(size.height() - 2.0 * room, size.height() / 2.0);
    double units =
        std::max(box.width() / std::max(width, 1.0), box.height() / std::max(height, 1.0));
    if (!(units > 0.0))
        units = extentOf(box) / std::max(width, 1.0);
    return {box.center(), units};
}

ViewPlace zoomedAt(const ViewPlace& place, QSizeF size, QPointF pixel, double factor)
{
    ViewPlace zoomed{place.center, place.unitsPerPixel / factor};
    const QPointF fromMiddle(pixel.x() - size.width() / 2.0, size.height() / 2.0 - pixel.y());
    zoomed.center += fromMiddle * (place.unitsPerPixel - zoomed.unitsPerPixel);
    return zoomed;
}

ViewPlace limited(const ViewPlace& place, const SceneBox& drawing)
{
    // Not by the extent alone: one lost point far away must not keep the view from the rest.
    constexpr double kUsualExtent = 1e4;
    constexpr double kNearest = 1e-9;
    constexpr double kFarthest = 1e3;
    constexpr double kDigits = 1e-14;
    const SceneBox box = tamed(drawing);
    const double extent = extentOf(box);
    const double reach = 10.0 * farthestOf(box) + extent * kFarthest;
    const auto within = [reach](double value) {
        return std::isfinite(value) ? std::clamp(value, -reach, reach) : 0.0;
    };
    const QPointF center(within(place.center.x()), within(place.center.y()));
    const double least =
        std::max({std::min(extent, kUsualExtent) * kNearest, std::abs(center.x()) * kDigits,
                  std::abs(center.y()) * kDigits, 1e-100});
    const double most = std::max(least, extent * kFarthest);
    const double units = std::isfinite(place.unitsPerPixel) ? place.unitsPerPixel : 1.0;
    return {center, std::clamp(units, least, most)};
}

QPointF unitsAt(const ViewPlace& place, QSizeF size, QPointF pixel)
{
    return place.center + QPointF(pixel.x() - size.width() / 2.0, size.height() / 2.0 - pixel.y()) *
                              place.unitsPerPixel;
}

QPointF pixelAt(const ViewPlace& place, QSizeF size, QPointF units)
{
    const QPointF away = (units - place.center) / place.unitsPerPixel;
    return {size.width() / 2.0 + away.x(), size.height() / 2.0 - away.y()};
}

void ZoomHistory::remember(const ViewPlace& place)
{
    if (m_places.size() == kPlacesKept)
        m_places.erase(m_places.begin());
    m_places.push_back(place);
}

ViewPlace ZoomHistory::takeLast()
{
    const ViewPlace last = m_places.back();
    m_places.pop_back();
    return last;
}
