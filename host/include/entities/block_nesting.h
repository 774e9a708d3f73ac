/// Blocks inside blocks.
#pragma once

#include <vector>

#include <database/database.h>

/// The block references that lead back to a block that they stand in, in a drawing that is damaged
/// or was made by force. Without them the blocks of the drawing form no loop, so whoever leaves
/// them out may follow references to any depth. Reads the members of all block references.
KW_EXPORT std::vector<KdDbObjectId> kddbReferencesThatLoop(const KdDbDatabase& database);
