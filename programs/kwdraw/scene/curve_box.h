/// Boxes around paths.
#pragma once

#include <span>

#include <kwdraw/scene/scene.h>

/// The smallest box around a path. Not finite, or empty, if a point is not finite.
SceneBox boxOfPath(std::span<const PathStep> steps, std::span<const QPointF> points);
