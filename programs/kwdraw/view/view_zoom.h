/// Moving a view about.
#pragma once

#include <QPointF>
#include <QSizeF>

#include <vector>

#include <kwdraw/scene/scene.h>

#include "view_place.h"

/// @param size  of the view, in pixels
/// @param room  pixels that stay free on each side, as far as there are so many
/// @return      the whole box in the middle; at 1 unit a pixel if the box is empty
ViewPlace placeAround(const SceneBox& box, QSizeF size, double room);

/// Seen larger by a factor; what is at `pixel` stays there.
ViewPlace zoomedAt(const ViewPlace& place, QSizeF size, QPointF pixel, double factor);

/// As near to this place as numbers allow that can still tell neighbouring pixels apart. A place
/// that is no number becomes one.
/// @param drawing  the box around all of it
ViewPlace limited(const ViewPlace& place, const SceneBox& drawing);

QPointF unitsAt(const ViewPlace& place, QSizeF size, QPointF pixel);
QPointF pixelAt(const ViewPlace& place, QSizeF size, QPointF units);

/// The places to go back to.
class ZoomHistory
{
  public:
    void remember(const ViewPlace& place);
    bool isEmpty() const { return m_places.empty(); }
    ViewPlace takeLast();
    void clear() { m_places.clear(); }

  private:
    std::vector<ViewPlace> m_places;
};
