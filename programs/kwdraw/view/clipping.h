/// Lines and polygons cut at the bounds of a picture, whose painter takes small numbers only.
#pragma once

#include <QPointF>

#include <vector>

#include "pixel_frame.h"

/// Cuts the line from `from` to `to`. False, and the points untouched, if nothing of it lies in the
/// box or a number is none.
bool clipLine(QPointF& from, QPointF& to, const ClipBox& box);

/// What of a line lies in a box, as parts of its length.
struct LinePart
{
    double from = 0.0;
    double to = 1.0;
    bool isEmpty() const { return !(from <= to); }
};

/// The part of `from + t * vector` with `t` in `within` that lies in the box.
LinePart linePart(QPointF from, QPointF vector, const ClipBox& box, LinePart within = {});

/// Cuts a closed polygon. What lies outside collapses onto the bounds.
void clipPolygon(std::vector<QPointF>& polygon, const ClipBox& box);
