/// What can be asked for in a drawing.
#pragma once

#include <common/filter_resolving.h>

#include "options.h"
#include "search.h"

/// Hands over the types, the properties of a type, or the values of a property in the current
/// space. False: a name is wrong.
bool listCatalog(Catalog& catalog, const Options& options, const RowSink& sink,
                 FilterProblem& problem);
