/// Which blocks a drawing shows.
#pragma once

#include <set>

#include <entities/block_reference.h>

/// The names of the source blocks of all references in the current space, each once, sorted.
/// @param reference  tells the drawing; without one the answer is empty
/// @param external   true: only external references, false: only blocks of the drawing itself
std::set<KdString> namesOfBlocksInUse(const KdDbBlockReference& reference, bool external);
