// A body of a solid modeler as faces and edges in world coordinates.
#pragma once

#include <string>
#include <vector>

#include <entities/modeler_edge.h>

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
