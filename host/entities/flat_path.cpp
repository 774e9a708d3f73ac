#include "flat_path.h"

#include <cmath>

#include <geometry/arcs.h>

FlatPath::FlatPath(const Content& content, const Extrusion& extrusion)
    : m_content(content), m_frame(extrusion.frame())
{
}

bool FlatPath::Segment::isArc() const
{
    // A flatter arc can't be told from its chord, and its centre is lost in rounding.
    constexpr double kLeastBulge = 1e-9;
    return std::abs(bulge) > kLeastBulge && !(start == end);
}

FlatPath::Segment FlatPath::segmentAt(std::size_t index) const
{
    const auto& [points, bulges, elevation, closed] = m_content;
    return {points[index], points[(index + 1) % points.size()],
            index < bulges.size() ? bulges[index] : 0.0};
}

KdGePoint3d FlatPath::toWorld(const KdGePoint2d& point) const
{
    return m_frame * KdGePoint3d{point.x, point.y, m_content.elevation};
}

std::size_t FlatPath::segmentCount() const
{
    const std::size_t count = m_content.points.size();
    return m_content.closed && count > 1 ? count : count - 1;
}

KdGePoint3d FlatPath::pointOf(std::size_t index, double fraction) const
{
    const Segment segment = segmentAt(index);
    if (fraction <= 0.0)
        return toWorld(segment.start);
    if (fraction >= 1.0)
        return toWorld(segment.end);
    if (!segment.isArc())
        return toWorld({std::lerp(segment.start.x, segment.end.x, fraction),
                        std::lerp(segment.start.y, segment.end.y, fraction)});
    const KdGeCircArc2d arc(segment.start, segment.end, segment.bulge, false);
    return toWorld(arc.evalPoint(arc.endAng() * fraction));
}

double FlatPath::lengthOf(const Part& part, double) const
{
    const Segment segment = segmentAt(part.segment);
    const double whole =
        segment.isArc() ? KdGeCircArc2d(segment.start, segment.end, segment.bulge, false).length()
                        : segment.start.distanceTo(segment.end);
    return whole * (part.to - part.from);
}

KdGeVector3d FlatPath::areaOf(std::size_t index) const
{
    const Segment segment = segmentAt(index);
    if (!segment.isArc())
        return {};
    const KdGeCircArc2d arc(segment.start, segment.end, segment.bulge, false);
    const double area = arc.radius() * arc.radius() * KdGe::segmentArea(arc.endAng());
    return m_frame * KdGeVector3d{0.0, 0.0, arc.isClockWise() ? -area : area};
}

void FlatPath::addToExtents(KdGeExtents3d& extents) const
{
    for (const KdGePoint2d& point : m_content.points)
        extents.addPoint(toWorld(point));
    const KdGeVector3d normal = m_frame * KdGeVector3d::kZAxis;
    for (std::size_t i = 0; i < segmentCount(); ++i) {
        const Segment segment = segmentAt(i);
        if (!segment.isArc())
            continue;
        const KdGeCircArc2d arc(segment.start, segment.end, segment.bulge, false);
        const KdGeVector3d reference = m_frame * KdGeVector3d{arc.refVec().x, arc.refVec().y, 0.0};
        KdGeCircArc3d(toWorld(arc.center()), arc.isClockWise() ? -normal : normal, reference,
                      arc.radius(), arc.startAng(), arc.endAng())
            .addToExtents(extents);
    }
}
