/// Where a view looks, and what it shows of the layers.
#pragma once

#include <QPointF>

/// What the view shows of each layer, in the order of `Scene::layers`.
struct LayerState
{
    bool on = true;
    bool frozen = false;

    bool operator==(const LayerState&) const = default;
};

/// Where the view looks.
struct ViewPlace
{
    QPointF center;             ///< drawing units
    double unitsPerPixel = 1.0; ///< of the widget's own, device-independent pixels

    // Not the comparison of QPointF, which takes points for equal that are a little apart.
    bool operator==(const ViewPlace& other) const
    {
        return center.x() == other.center.x() && center.y() == other.center.y() &&
               unitsPerPixel == other.unitsPerPixel;
    }
};
