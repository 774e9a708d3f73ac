// The points by which round curves are taken hold of.
#pragma once

#include <geometry/arcs.h>
#include <runtime/kd_array.h>

/// The centre and the four points at a quarter of a turn from each other.
inline void appendRingGrips(const KdGeRoundArc3d& ring, KdArray<KdGePoint3d>& points)
{
    points.append(ring.center());
    for (int quarter = 0; quarter < 4; ++quarter)
        points.append(ring.evalPoint(quarter * KdGe::kTurn / 4.0));
}

/// The centre, the ends and the middle.
inline void appendArcGrips(const KdGeRoundArc3d& arc, KdArray<KdGePoint3d>& points)
{
    const KdGeInterval interval = arc.interval();
    points.append(arc.center());
    points.append(arc.evalPoint(interval.lower));
    points.append(arc.evalPoint(interval.upper));
    points.append(arc.evalPoint(interval.lower + interval.length() / 2.0));
}
