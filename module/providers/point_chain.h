/// Properties that are rows of points: the first one in the head, the others chained behind it.
#pragma once

#include <vector>

#include <providers/row_readers.h>

/// Makes the head a record of that kind with the first point and chains one for each further point.
/// Without points the head holds the origin.
void storePoints(ResBuf& head, ValueKind kind, const std::vector<KdGePoint3d>& points);

/// Reads a row of points; as 2D points their z is left out.
template <auto Getter>
bool points(const PropertyRequest& request, ValueKind kind)
{
    storePoints(request.head, kind, row_readers::get<Getter>(request.entity));
    return true;
}
