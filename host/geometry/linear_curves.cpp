#include <geometry/linear_curves.h>

#include <cmath>
#include <limits>

namespace {

constexpr double kEndless = std::numeric_limits<double>::infinity();

double lengthWithin(const KdGeInterval& interval, double from, double to)
{
    return std::abs(interval.clamped(to) - interval.clamped(from));
}

} // namespace

KdGeInterval KdGeLineSeg3d::interval() const
{
    return {0.0, m_start.distanceTo(m_end)};
}

KdGePoint3d KdGeLineSeg3d::evalPoint(double parameter) const
{
    const double whole = m_start.distanceTo(m_end);
    const double part = whole > 0.0 ? parameter / whole : 0.0;
    return {std::lerp(m_start.x, m_end.x, part), std::lerp(m_start.y, m_end.y, part),
            std::lerp(m_start.z, m_end.z, part)};
}

double KdGeLineSeg3d::length(double from, double to, double) const
{
    return lengthWithin(interval(), from, to);
}

void KdGeLineSeg3d::addToExtents(KdGeExtents3d& extents) const
{
    extents.addPoint(m_start);
    extents.addPoint(m_end);
}

KdGeInterval KdGeLine3d::interval() const
{
    return {-kEndless, kEndless};
}

KdGePoint3d KdGeLine3d::evalPoint(double parameter) const
{
    return m_point + m_direction * parameter;
}

double KdGeLine3d::length(double from, double to, double) const
{
    return lengthWithin(interval(), from, to);
}

KdGeInterval KdGeRay3d::interval() const
{
    return {0.0, kEndless};
}
