#include <geometry/curve.h>

#include <algorithm>
#include <cmath>

bool KdGeInterval::isBounded() const
{
    return std::isfinite(lower) && std::isfinite(upper);
}

double KdGeInterval::clamped(double parameter) const
{
    return std::clamp(parameter, lower, upper);
}

KdGeCurve3d::~KdGeCurve3d() = default;

KdGeVector3d KdGeCurve3d::areaVector() const
{
    return {};
}

bool KdGeCurve3d::hasStartPoint(KdGePoint3d& point) const
{
    const double start = interval().lower;
    if (!std::isfinite(start))
        return false;
    point = evalPoint(start);
    return true;
}

bool KdGeCurve3d::hasEndPoint(KdGePoint3d& point) const
{
    const double end = interval().upper;
    if (!std::isfinite(end))
        return false;
    point = evalPoint(end);
    return true;
}
