/// Coordinates in the user coordinate system of the working drawing. For the main thread.
#pragma once

#include <geometry/point.h>
#include <runtime/status.h>

/// Gives a point, or a vector, of the world as the user sees it.
/// @param vector  true: `world` has a direction and a length, but no place
/// @param user    may be `world` itself; untouched on failure
/// @return        `eNotInDatabase` without a working database
KW_EXPORT KdErrorStatus kddbWcs2Ucs(const KdGePoint3d& world, KdGePoint3d& user, bool vector);
