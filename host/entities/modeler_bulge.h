// How far round faces swell beyond their edges.
#pragma once

#include <geometry/extents.h>

#include "modeler_body.h"

/// Adds the extremes inside a face: of a sphere or a torus those that its circular edges leave in,
/// of a free surface the hull of its control points. Plane, cylindrical and conical faces have none
/// but those of their edges.
void addBulge(const ModelerBody& body, const ModelerFace& face, KdGeExtents3d& box);
