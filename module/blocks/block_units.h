/// The units in which blocks are drawn.
#pragma once

#include <runtime/kd_string.h>

/// The name of a unit by the number that a block keeps, 0 to 20; empty for any other.
KdString blockUnitName(int unit);

/// How many of one unit go into another, 0 to 21; any other number counts as 0. No unit counts as
/// one metre.
double blockUnitFactor(int blockUnit, int drawingUnit);
