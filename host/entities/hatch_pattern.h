// The patterns that are known by name, and those made of an angle and a spacing.
#pragma once

#include <entities/hatch.h>

/// Sets `solid` and `patternLines` of a hatch from its pattern type, name, angle, scale, spacing
/// and origin. `eKeyNotFound` for a name that is not known, the hatch untouched.
KdErrorStatus makePatternLines(HatchContent& hatch);
