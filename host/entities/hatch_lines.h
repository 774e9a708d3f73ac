// Cutting the lines of patterns along boundaries.
#pragma once

#include <span>
#include <vector>

#include <entities/hatch.h>

#include "plane_curve.h"

/// A million; more lines nobody can look at, and a computer not hold.
constexpr std::size_t kMostHatchLines = 1'000'000;

/// Lines that a family has across a boundary of curves, before they are cut. Above
/// `kMostHatchLines` the number may be any.
double countHatchLines(std::span<const plane::Curve> boundary, const HatchPatternLine& family);

/// Appends the parts of a family's lines that lie inside: between the first crossing with the
/// boundary and the second, the third and the fourth, and so on, broken into its dashes.
/// @param boundary  closed loops, in the frame of the family
/// @return          false if `pieces` would get longer than `most`, which is not above
///                  `kMostHatchLines`
bool cutHatchLines(std::span<const plane::Curve> boundary, const HatchPatternLine& family,
                   std::size_t most, std::vector<plane::Line>& pieces);
