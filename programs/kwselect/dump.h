/// Everything that the module knows of a drawing's entities.
#pragma once

#include <common/module.h>

#include "search.h"

/// Hands over one JSON object for each entity of the current space, in the order of the drawing:
/// handle, class name, display name, and every listed property with key, restype and value.
void dumpEntities(const Module& module, const RowSink& sink);
