/// The host's pickfirst selection as plain ids.
#pragma once

#include <vector>

#include <database/object_id.h>

/// In the order of the selection; empty if nothing is selected or no drawing is open.
std::vector<KdDbObjectId> pickfirstIds();
/// Makes these entities of the working drawing the selection, each once. The host's hook is told.
void setPickfirst(const std::vector<KdDbObjectId>& ids);
