// Splines as pieces of degree 3.
#pragma once

#include <geometry/nurb_curve.h>

class Geom_BSplineCurve;

namespace geometry {

/// See `KdGeNurbCurve3d::cubicPieces`.
std::vector<KdGeCubic3d> cubicPieces(const Geom_BSplineCurve& curve);

} // namespace geometry
