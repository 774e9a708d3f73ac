/// What can be asked for in a drawing.
#pragma once

#include "options.h"

#include <common/module.h>

/// Prints the types, the properties of a type, or the values of a property, one a line. Returns the
/// exit status.
int listCatalog(const Module& module, const Options& options);
