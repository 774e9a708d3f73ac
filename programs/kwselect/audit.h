/// What is wrong with drawing files.
#pragma once

#include "exit_status.h"
#include "plan.h"

/// Reads the drawings of the plan whole and prints every finding, as lines, or as one JSON object
/// for each drawing. Returns the gravest of the statuses.
ExitStatus auditDrawings(const Plan& plan);
