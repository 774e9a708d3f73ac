/// Curves as paths.
#pragma once

#include <span>

#include <geometry/nurb_curve.h>
#include <kwdraw/scene/scene_writer.h>

/// A piece of a circle about the origin of an object frame.
struct ArcInFrame
{
    KdGePoint3d center; ///< WCS
    KdGeVector3d normal;
    double radius = 0.0;
    double start = 0.0; ///< radians from the x axis of the object frame
    double end = 0.0;
};
void addArc(ScenePath& path, const ArcInFrame& arc);

/// Goes on from the current point, or begins at the first cubic's start if the path is empty.
void addCubics(ScenePath& path, std::span<const KdGeCubic3d> cubics);
void addCubicsBackwards(ScenePath& path, std::span<const KdGeCubic3d> cubics);

/// A new line through points.
void addPolygon(ScenePath& path, std::span<const KdGePoint3d> points, bool closed);

/// A smooth curve through points; a straight line through two. Nothing for fewer.
void addCurveThrough(ScenePath& path, std::span<const KdGePoint3d> points);
