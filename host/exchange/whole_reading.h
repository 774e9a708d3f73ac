// Reads the members of all objects of a drawing.
#pragma once

#include <functional>

#include "drawing_source.h"

namespace dxf {

/// How many threads can run at the same time and have enough to do.
unsigned threadsWorthWhile(const KdDbDatabase& database);

/// Reads the members of all objects that have none yet, in so many threads. What comes out does not
/// depend on their number: findings come in the order of the objects, and so do records that are
/// made because an object names them.
/// @param progress  called in this thread with the part that is done; answering false cancels
/// @return          false if cancelled
bool readAllMembers(DrawingSource& source, const std::function<bool(double)>& progress,
                    unsigned threads);

} // namespace dxf
