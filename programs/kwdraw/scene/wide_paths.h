/// Polylines with widths.
#pragma once

#include <vector>

#include <kwdraw/scene/entity_walk.h>
#include <kwdraw/scene/flat_paths.h>

/// A vertex and the segment behind it.
struct FlatVertex
{
    KdGePoint2d point;
    double bulge = 0.0;
    double startWidth = 0.0;
    double endWidth = 0.0;
};

struct FlatPolyline
{
    std::vector<FlatVertex> vertices;
    bool closed = false;
    bool patternRunsOn = false; ///< linetypes begin once and not at each vertex
};

/// Strokes the segments without width, and fills the others.
void drawFlatPolyline(const FlatPolyline& polyline, const FlatFrame& frame, EntityWalk& walk);
