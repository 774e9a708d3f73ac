/// Edges of bodies.
#pragma once

#include <memory>
#include <optional>

#include <geometry/curve.h>

/// A part of an ellipse: center + major cos t + minor sin t, with t running from `start` to `end`,
/// which is above it.
struct KW_EXPORT ModelerArc
{
    KdGePoint3d center;
    KdGeVector3d major;
    KdGeVector3d minor;
    double start = 0.0;
    double end = 0.0;

    KdGePoint3d pointAt(double t) const;
    KdGeVector3d tangentAt(double t) const;
    KdGeVector3d normal() const { return major.crossProduct(minor).normal(); }
};

struct KW_EXPORT ModelerEdge
{
    KdGePoint3d start;
    KdGePoint3d end;
    /// From the start to the end. Null for a straight edge; one whose curve is not understood
    /// counts as straight.
    std::unique_ptr<KdGeCurve3d> curve;
    std::optional<ModelerArc> arc; ///< what the curve is
};
