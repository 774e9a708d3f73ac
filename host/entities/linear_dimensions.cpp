#include <entities/linear_dimensions.h>

#include <cmath>

KD_RX_DEFINE(KdDbAlignedDimension, KdDbDimension, L"AcDbAlignedDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbRotatedDimension, KdDbDimension, L"AcDbRotatedDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbOrdinateDimension, KdDbDimension, L"AcDbOrdinateDimension", L"DIMENSION")

namespace {

/// How far `distance` (WCS) leads along the direction at `angle` in the object frame.
double lengthAlong(const KdGeVector3d& distance, double angle, const Extrusion& extrusion)
{
    const KdGeVector3d inFrame = KdGeMatrix3d::worldToPlane(extrusion.normal()) * distance;
    return std::fabs(inFrame.x * std::cos(angle) + inFrame.y * std::sin(angle));
}

} // namespace

KdErrorStatus KdDbAlignedDimension::measure(double& value) const
{
    value = xLine1Point().distanceTo(xLine2Point());
    return eOk;
}

KdErrorStatus KdDbRotatedDimension::measure(double& value) const
{
    value = lengthAlong(xLine2Point() - xLine1Point(), rotation(), data().extrusion);
    return eOk;
}

KdErrorStatus KdDbOrdinateDimension::measure(double& value) const
{
    constexpr double kQuarterTurn = 1.5707963267948966;
    const double xAxis = -horizontalRotation();
    value = lengthAlong(definingPoint() - origin(), isUsingXAxis() ? xAxis : xAxis + kQuarterTurn,
                        data().extrusion);
    return eOk;
}
