/// The forms in which point entities are shown.
#pragma once

#include <vector>

#include <kwdraw/scene/scene.h>

#include "path_walk.h"

/// How far a marker reaches from its place, in units of its size.
inline constexpr double kMarkerReach = 1.0;

/// The size of a marker in pixels.
/// @param scale       pixels for one unit
/// @param viewHeight  pixels
double markerSize(const SceneMarker& marker, double scale, double viewHeight);

/// The largest size that goes by the view's height, as a part of it.
double largestViewMarker(const Scene& scene);

/// What is drawn of a marker of this mode, with size 1 and its place in the origin. Empty for a
/// plain dot, and for the mode that shows nothing.
PathView markerPath(int mode);

/// True for modes that show a dot in the middle.
bool hasDot(int mode);
