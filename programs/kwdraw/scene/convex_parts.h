/// Polygons as unions of simpler ones.
#pragma once

#include <vector>

#include <QPointF>

/// Parts without dents, each counter-clockwise, that together cover the inside of a polygon by the
/// odd-even rule and do not overlap; a polygon without dents is its own only part. Edges that cross
/// each other away from corners may leave the parts inexact there.
std::vector<std::vector<QPointF>> convexPartsOf(const std::vector<QPointF>& corners);
