// Angles and turns, for the round curves.
#pragma once

#include <cmath>
#include <numbers>

constexpr double kTurn = 2.0 * std::numbers::pi;
/// Angles come from drawings with fewer digits than ours.
constexpr double kAngleTolerance = 1e-10;

/// The end's angle in the turn that begins at `start`. A whole turn stays one.
inline double endOfTurn(double start, double end)
{
    const double span = end - start;
    if (span >= 0.0 && span <= kTurn + kAngleTolerance)
        return end;
    return end - kTurn * std::floor(span / kTurn);
}

/// The area between an arc of radius 1 and its chord.
inline double segmentArea(double span)
{
    return (span - std::sin(span)) / 2.0;
}
