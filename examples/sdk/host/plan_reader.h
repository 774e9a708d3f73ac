/// Reads drawings of this host's own form, plans: an entity a line, its kind and handle first.
///
///     line A1  0 0 0  10 0 -0.5
///     circle C1  5 5 0  2.5
#pragma once

#include <istream>

class KdDbDatabase;

/// Adds the entities of a plan to the model of a drawing, all of them on layer "0".
/// @param drawing  a standard one, whose handles the plan does not use
/// @return         the number of the first line that can't be read, which ends the reading; 0 if
///                 there is none
int readPlan(std::istream& plan, KdDbDatabase& drawing);
