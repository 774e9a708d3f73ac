#include <geometry/arcs.h>

#include <array>
#include <cmath>

#include <geometry/matrix.h>

#include "integration.h"

KdGeCircArc2d::KdGeCircArc2d(const KdGePoint2d& start, const KdGePoint2d& end, double bulge,
                             bool asSagitta)
{
    const KdGeVector2d chord = end - start;
    const double tangent = asSagitta ? 2.0 * bulge / chord.length() : bulge;
    // The centre stands off the chord's middle, to the left of it for a short arc.
    const double offset = (1.0 / tangent - tangent) / 4.0;
    m_center = {(start.x + end.x) / 2.0 - chord.y * offset,
                (start.y + end.y) / 2.0 + chord.x * offset};
    m_radius = chord.length() * (1.0 / tangent + tangent) / 4.0;
    m_clockwise = m_radius < 0.0;
    m_radius = std::abs(m_radius);
    m_angle = 4.0 * std::atan(std::abs(tangent));
    const KdGeVector2d toStart = start - m_center;
    m_reference = {toStart.x / m_radius, toStart.y / m_radius};
}

KdGePoint2d KdGeCircArc2d::evalPoint(double parameter) const
{
    const double angle = m_clockwise ? -parameter : parameter;
    const double cosine = m_radius * std::cos(angle);
    const double sine = m_radius * std::sin(angle);
    return {m_center.x + m_reference.x * cosine - m_reference.y * sine,
            m_center.y + m_reference.y * cosine + m_reference.x * sine};
}

KdGePoint3d KdGeRoundArc3d::evalPoint(double parameter) const
{
    return m_center + m_first * std::cos(parameter) + m_second * std::sin(parameter);
}

void KdGeRoundArc3d::addToExtents(KdGeExtents3d& extents) const
{
    extents.addPoint(evalPoint(m_interval.lower));
    extents.addPoint(evalPoint(m_interval.upper));
    // A coordinate turns where its derivative by the parameter vanishes: twice in a turn.
    const std::array parameters{std::atan2(m_second.x, m_first.x),
                                std::atan2(m_second.y, m_first.y),
                                std::atan2(m_second.z, m_first.z)};
    constexpr double kHalfTurn = KdGe::kTurn / 2.0;
    for (const double parameter : parameters) {
        const double before = std::ceil((m_interval.lower - parameter) / kHalfTurn);
        for (double turn = parameter + before * kHalfTurn; turn < m_interval.upper;
             turn += kHalfTurn)
            extents.addPoint(evalPoint(turn));
    }
}

KdGeVector3d KdGeRoundArc3d::areaVector() const
{
    return m_first.crossProduct(m_second) * KdGe::segmentArea(m_interval.length());
}

KdGeCircArc3d::KdGeCircArc3d(const KdGePoint3d& center, const KdGeVector3d& normal, double radius)
    : KdGeCircArc3d(center, normal,
                    KdGeMatrix3d::planeToWorld(normal) * KdGeVector3d{1.0, 0.0, 0.0}, radius, 0.0,
                    KdGe::kTurn)
{
}

KdGeCircArc3d::KdGeCircArc3d(const KdGePoint3d& center, const KdGeVector3d& normal,
                             const KdGeVector3d& reference, double radius, double startAngle,
                             double endAngle)
    : KdGeRoundArc3d(center, reference.normal() * radius,
                     normal.normal().crossProduct(reference.normal()) * radius, startAngle,
                     endAngle),
      m_normal(normal.normal()),
      m_radius(radius)
{
}

double KdGeCircArc3d::length(double from, double to, double) const
{
    return m_radius * std::abs(m_interval.clamped(to) - m_interval.clamped(from));
}

void KdGeCircArc3d::reverseParam()
{
    m_normal = -m_normal;
    m_second = -m_second;
    m_interval = {-m_interval.upper, -m_interval.lower};
}

KdGeEllipArc3d::KdGeEllipArc3d(const KdGePoint3d& center, const KdGeVector3d& majorAxis,
                               const KdGeVector3d& minorAxis, double majorRadius,
                               double minorRadius, double startParam, double endParam)
    : KdGeRoundArc3d(center, majorAxis.normal() * majorRadius, minorAxis.normal() * minorRadius,
                     startParam, endParam)
{
}

double KdGeEllipArc3d::length(double from, double to, double) const
{
    const double major = majorRadius();
    const double minor = minorRadius();
    const auto speed = [=](double t) {
        return std::hypot(major * std::sin(t), minor * std::cos(t));
    };
    return std::abs(geometry::integral(speed, m_interval.clamped(from), m_interval.clamped(to)));
}
