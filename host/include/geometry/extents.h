/// Boxes around points.
#pragma once

#include <geometry/point.h>

/// A box along the axes. It begins empty, with its lowest corner above its highest.
struct KW_EXPORT KdGeExtents3d
{
    KdGePoint3d minPoint{1e20, 1e20, 1e20};
    KdGePoint3d maxPoint{-1e20, -1e20, -1e20};

    bool isEmpty() const { return minPoint.x > maxPoint.x; }
    void addPoint(const KdGePoint3d& point);
    void addExtents(const KdGeExtents3d& other);
    bool operator==(const KdGeExtents3d&) const = default;
};
