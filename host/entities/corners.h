// What entities that are little more than a row of points share.
#pragma once

#include <iterator>

#include <database/entity.h>

/// The element of a row at `index`; `eInvalidInput` beyond its ends, `element` untouched.
template <class Row, class Element>
KdErrorStatus elementAt(const Row& row, int index, Element& element)
{
    if (index < 0 || static_cast<std::size_t>(index) >= std::size(row))
        return eInvalidInput;
    element = row[static_cast<std::size_t>(index)];
    return eOk;
}

/// The box around points; `eNotApplicable` if there are none, `extents` untouched.
template <class Points>
KdErrorStatus extentsOfPoints(const Points& points, KdGeExtents3d& extents)
{
    KdGeExtents3d box;
    for (const KdGePoint3d& point : points)
        box.addPoint(point);
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}
