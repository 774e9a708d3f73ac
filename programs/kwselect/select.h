/// The selection itself.
#pragma once

#include <common/module.h>

#include "options.h"

/// Runs the filter of the options and prints the handles of the outcome. Returns the exit status.
int selectEntities(const Module& module, const Options& options);
