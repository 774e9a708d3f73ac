#include <geometry/chains.h>

#include <algorithm>
#include <cassert>
#include <cmath>

namespace {

double parameterAt(const KdGeCurve3d& curve, double fraction)
{
    const KdGeInterval interval = curve.interval();
    return std::lerp(interval.lower, interval.upper, fraction);
}

} // namespace

KdGeInterval KdGeSegmentChain3d::interval() const
{
    return {0.0, static_cast<double>(segmentCount())};
}

KdGePoint3d KdGeSegmentChain3d::evalPoint(double parameter) const
{
    const std::size_t count = segmentCount();
    if (count == 0)
        return pointOf(0, 0.0);
    const double within = interval().clamped(parameter);
    const std::size_t segment = std::min(static_cast<std::size_t>(within), count - 1);
    return pointOf(segment, within - static_cast<double>(segment));
}

double KdGeSegmentChain3d::length(double from, double to, double tolerance) const
{
    const KdGeInterval whole = interval();
    const double start = whole.clamped(std::min(from, to));
    const double end = whole.clamped(std::max(from, to));
    double sum = 0.0;
    for (auto segment = static_cast<std::size_t>(start); segment < segmentCount(); ++segment) {
        const auto first = static_cast<double>(segment);
        if (first >= end)
            break;
        sum += lengthOf({segment, std::max(start - first, 0.0), std::min(end - first, 1.0)},
                        tolerance);
    }
    return sum;
}

KdGeVector3d KdGeSegmentChain3d::areaVector() const
{
    KdGeVector3d sum;
    if (segmentCount() == 0)
        return sum;
    const KdGePoint3d origin = pointOf(0, 0.0); // near by, so that no digits are lost
    for (std::size_t segment = 0; segment < segmentCount(); ++segment) {
        const KdGeVector3d toStart = pointOf(segment, 0.0) - origin;
        const KdGeVector3d toEnd = pointOf(segment, 1.0) - origin;
        sum = sum + toStart.crossProduct(toEnd) * 0.5 + areaOf(segment);
    }
    return sum;
}

std::size_t KdGePolyline3d::segmentCount() const
{
    return m_points.empty() ? 0 : m_points.size() - 1;
}

KdGePoint3d KdGePolyline3d::pointOf(std::size_t segment, double fraction) const
{
    assert(!m_points.empty());
    const KdGePoint3d& start = m_points[segment];
    const KdGePoint3d& end = m_points[std::min(segment + 1, m_points.size() - 1)];
    return {std::lerp(start.x, end.x, fraction), std::lerp(start.y, end.y, fraction),
            std::lerp(start.z, end.z, fraction)};
}

double KdGePolyline3d::lengthOf(const Part& part, double) const
{
    return m_points[part.segment].distanceTo(m_points[part.segment + 1]) * (part.to - part.from);
}

KdGeVector3d KdGePolyline3d::areaOf(std::size_t) const
{
    return {};
}

void KdGePolyline3d::addToExtents(KdGeExtents3d& extents) const
{
    for (const KdGePoint3d& point : m_points)
        extents.addPoint(point);
}

KdGePoint3d KdGeCompositeCurve3d::pointOf(std::size_t segment, double fraction) const
{
    if (m_pieces.empty())
        return {};
    const KdGeCurve3d& piece = *m_pieces[segment];
    return piece.evalPoint(parameterAt(piece, fraction));
}

double KdGeCompositeCurve3d::lengthOf(const Part& part, double tolerance) const
{
    const KdGeCurve3d& piece = *m_pieces[part.segment];
    return piece.length(parameterAt(piece, part.from), parameterAt(piece, part.to), tolerance);
}

KdGeVector3d KdGeCompositeCurve3d::areaOf(std::size_t segment) const
{
    return m_pieces[segment]->areaVector();
}

void KdGeCompositeCurve3d::addToExtents(KdGeExtents3d& extents) const
{
    for (const auto& piece : m_pieces)
        piece->addToExtents(extents);
}
