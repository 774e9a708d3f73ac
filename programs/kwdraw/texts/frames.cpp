#include <kwdraw/texts/frames.h>

#include <cmath>

KdGeMatrix3d textFrame(const KdGePoint3d& origin, const KdGeVector3d& direction,
                       const KdGeVector3d& normal)
{
    const KdGeMatrix3d plane = KdGeMatrix3d::planeToWorld(normal);
    const KdGeVector3d z = plane * KdGeVector3d::kZAxis;
    const KdGeVector3d across = z.crossProduct(direction).normal();
    const KdGeVector3d y = across == KdGeVector3d{} ? plane * KdGeVector3d::kYAxis : across;
    return KdGeMatrix3d::fromFrame(origin, y.crossProduct(z), y, z);
}

KdGeMatrix3d turnedFrame(const KdGePoint3d& origin, double angle)
{
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    return KdGeMatrix3d::fromFrame(origin, {cosine, sine, 0.0}, {-sine, cosine, 0.0},
                                   KdGeVector3d::kZAxis);
}
