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
