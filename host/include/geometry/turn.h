/// Angles and turns of round curves.
#pragma once

#include <numbers>

#include <runtime/export.h>

namespace KdGe {

constexpr double kTurn = 2.0 * std::numbers::pi;
/// Angles come from drawings with fewer digits than ours.
constexpr double kAngleTolerance = 1e-10;

/// The end's angle in the turn that begins at `start`. A whole turn stays one.
KW_EXPORT double endOfTurn(double start, double end);
/// The area between an arc of radius 1 and its chord; `span` is its angle in radians.
KW_EXPORT double segmentArea(double span);

} // namespace KdGe
