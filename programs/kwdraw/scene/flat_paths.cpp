#include <kwdraw/scene/flat_paths.h>

#include <cmath>
#include <numbers>

bool FlatSegment::isArc() const
{
    constexpr double kStraight = 1e-10; // of a longer radius no digits are left
    return std::abs(bulge) > kStraight && std::isfinite(bulge) && !(start == end);
}

double FlatSegment::turn() const
{
    return isArc() ? 4.0 * std::atan(bulge) : 0.0;
}

double FlatSegment::startDirection() const
{
    return (end - start).angle() - turn() / 2.0;
}

double FlatSegment::signedRadius() const
{
    return start.distanceTo(end) / (2.0 * std::sin(turn() / 2.0));
}

KdGePoint2d FlatSegment::center() const
{
    const double direction = startDirection();
    const double radius = signedRadius();
    return {start.x - std::sin(direction) * radius, start.y + std::cos(direction) * radius};
}

double FlatSegment::length() const
{
    return isArc() ? std::abs(signedRadius() * turn()) : start.distanceTo(end);
}

FlatSegment FlatSegment::part(double from, double to) const
{
    const auto pointAt = [this](double share) -> KdGePoint2d {
        if (share <= 0.0 || share >= 1.0)
            return share <= 0.0 ? start : end;
        if (!isArc())
            return {start.x + (end.x - start.x) * share, start.y + (end.y - start.y) * share};
        const double direction = startDirection() + turn() * share;
        const KdGePoint2d middle = center();
        return {middle.x + std::sin(direction) * signedRadius(),
                middle.y - std::cos(direction) * signedRadius()};
    };
    return {pointAt(from), pointAt(to), std::tan(turn() * (to - from) / 4.0)};
}

void addSegment(ScenePath& path, const FlatFrame& frame, const FlatSegment& segment)
{
    if (!segment.isArc())
        return path.lineTo(frame(segment.end));
    const double radius = segment.signedRadius();
    const double from = segment.startDirection() - std::numbers::pi / 2.0;
    path.ellipseTo(frame(segment.center()), frame(KdGeVector2d{radius, 0.0}),
                   frame(KdGeVector2d{0.0, radius}), from, from + segment.turn());
}
