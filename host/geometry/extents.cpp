#include <geometry/extents.h>

#include <algorithm>

void KdGeExtents3d::addPoint(const KdGePoint3d& point)
{
    minPoint = {std::min(minPoint.x, point.x), std::min(minPoint.y, point.y),
                std::min(minPoint.z, point.z)};
    maxPoint = {std::max(maxPoint.x, point.x), std::max(maxPoint.y, point.y),
                std::max(maxPoint.z, point.z)};
}

void KdGeExtents3d::addExtents(const KdGeExtents3d& other)
{
    if (other.isEmpty())
        return;
    addPoint(other.minPoint);
    addPoint(other.maxPoint);
}
