#include "text_box.h"

#include <cmath>

namespace {

KdGePoint3d placed(double x, double y, const TextPlacement& placement)
{
    x += y * std::tan(placement.oblique);
    x = placement.mirroredInX ? -x : x;
    y = placement.mirroredInY ? -y : y;
    const double cosine = std::cos(placement.rotation);
    const double sine = std::sin(placement.rotation);
    return placement.origin + KdGeVector3d{x * cosine - y * sine, x * sine + y * cosine, 0.0};
}

} // namespace

KdGeExtents3d placedExtents(const TextBox& box, const TextPlacement& placement,
                            const KdGeMatrix3d& frame, double thickness)
{
    KdGeExtents3d extents;
    for (const double x : {box.left, box.right}) {
        for (const double y : {box.bottom, box.top}) {
            const KdGePoint3d corner = placed(x, y, placement);
            extents.addPoint(frame * corner);
            extents.addPoint(frame * (corner + KdGeVector3d{0.0, 0.0, thickness}));
        }
    }
    return extents;
}

KdGeVector3d unitNormal(const KdGeVector3d& normal)
{
    const KdGeVector3d unit = normal.normal();
    return unit == KdGeVector3d{} ? KdGeVector3d::kZAxis : unit;
}

KdGeVector3d unitDirection(const KdGeVector3d& direction, const KdGeVector3d& normal)
{
    const KdGeVector3d across = normal.crossProduct(direction).normal();
    if (across == KdGeVector3d{})
        return KdGeMatrix3d::planeToWorld(normal) * KdGeVector3d::kXAxis;
    return across.crossProduct(normal);
}

void appendCorners(const TextBox& box, const KdGePoint3d& origin, const KdGeVector3d& right,
                   const KdGeVector3d& normal, KdArray<KdGePoint3d>& corners)
{
    const KdGeVector3d up = normal.crossProduct(right);
    for (const double y : {box.top, box.bottom}) {
        for (const double x : {box.left, box.right})
            corners.append(origin + right * x + up * y);
    }
}

KdGeExtents3d extentsOf(const KdArray<KdGePoint3d>& points)
{
    KdGeExtents3d extents;
    for (int i = 0; i < points.length(); ++i)
        extents.addPoint(points[i]);
    return extents;
}
