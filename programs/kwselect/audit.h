/// The command line's --audit.
#pragma once

#include "options.h"

/// Reads a drawing whole and prints everything that is wrong with it. Returns the exit status.
int auditDrawing(const Options& options);
