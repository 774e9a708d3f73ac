// A body of a solid modeler as faces and edges in world coordinates.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include <geometry/curve.h>

/// A part of an ellipse: center + major cos t + minor sin t, with t running from `start` to `end`,
/// which is above it.
struct ModelerArc
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

struct ModelerEdge
{
    KdGePoint3d start;
    KdGePoint3d end;
    /// From the start to the end. Null for a straight edge; one whose curve is not understood
    /// counts as straight.
    std::unique_ptr<KdGeCurve3d> curve;
    std::optional<ModelerArc> arc; ///< what the curve is
};

struct ModelerSurface
{
    enum class Kind
    {
        Plane,
        Cone, ///< cylinders, too
        Sphere,
        Torus,
        Free,
        Unknown,
    };

    Kind kind = Kind::Unknown;
    KdGePoint3d center;
    KdGeVector3d axis;        ///< of length 1; the normal of a plane
    double radius = 0.0;      ///< of a sphere, or of a torus from its center to that of its tube
    double minorRadius = 0.0; ///< of the tube; radii below 0 turn the surface inside out
    std::vector<KdGePoint3d> hull;
};

struct ModelerFace
{
    struct EdgeUse
    {
        std::size_t edge;
        bool reversed;
    };

    ModelerSurface surface;
    bool reversed = false; ///< the outside is against the surface's normal
    /// Edges in order with the face on their left, as seen from outside.
    std::vector<std::vector<EdgeUse>> loops;
};

struct ModelerBody
{
    std::vector<ModelerEdge> edges;
    std::vector<ModelerFace> faces;
};

/// Reads a body. What is damaged is left out, so the result may be empty.
ModelerBody readModelerBody(std::string data);
