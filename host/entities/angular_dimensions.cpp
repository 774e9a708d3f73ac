#include <entities/angular_dimensions.h>

#include <cmath>

#include <geometry/turn.h>

KD_RX_DEFINE(KdDb2LineAngularDimension, KdDbDimension, L"AcDb2LineAngularDimension", L"DIMENSION")
KD_RX_DEFINE(KdDb3PointAngularDimension, KdDbDimension, L"AcDb3PointAngularDimension", L"DIMENSION")
KD_RX_DEFINE(KdDbArcDimension, KdDbDimension, L"AcDbArcDimension", L"ARC_DIMENSION")

namespace {

double cross(const KdGeVector2d& a, const KdGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

KdGeVector2d flattened(const KdGeMatrix3d& toPlane, const KdGeVector3d& vector)
{
    const KdGeVector3d inPlane = toPlane * vector;
    return {inPlane.x, inPlane.y};
}

/// The angle between `first` and `second` at their common start, on the side where `inside` lies.
KdErrorStatus sectorAngle(const KdGeVector3d& first, const KdGeVector3d& second,
                          const KdGeVector3d& inside, const KdGeVector3d& normal, double& angle)
{
    if (first == KdGeVector3d{} || second == KdGeVector3d{})
        return eInvalidInput;
    const double onward = first.angleTo(second, normal);
    angle = first.angleTo(inside, normal) <= onward ? onward : KdGe::kTurn - onward;
    return eOk;
}

KdErrorStatus sectorAngle(const ThreePointAngularDimensionMembers& points, double& angle)
{
    return sectorAngle(points.xLine1Point - points.centerPoint,
                       points.xLine2Point - points.centerPoint,
                       points.arcPoint - points.centerPoint, points.extrusion.normal(), angle);
}

/// What the arc of an arc dimension spans.
KdErrorStatus arcSpan(const ArcDimensionMembers& arc, double& span)
{
    if (arc.arcStartParam == arc.arcEndParam)
        return sectorAngle(arc, span);
    span = KdGe::endOfTurn(arc.arcStartParam, arc.arcEndParam) - arc.arcStartParam;
    return eOk;
}

} // namespace

// Two lines that cross make four sectors. The arc point, told in steps along the two lines, says by
// the signs of the steps in which of them it lies.
KdErrorStatus KdDb2LineAngularDimension::measure(double& value) const
{
    constexpr double kParallel = 1e-12;
    const KdGeMatrix3d toPlane = KdGeMatrix3d::worldToPlane(normal());
    KdGeVector2d first = flattened(toPlane, xLine1End() - xLine1Start());
    KdGeVector2d second = flattened(toPlane, xLine2End() - xLine2Start());
    const double turn = cross(first, second);
    if (!(std::fabs(turn) > kParallel * first.length() * second.length()))
        return eInvalidInput;
    const KdGeVector2d between = flattened(toPlane, xLine2Start() - xLine1Start());
    const double alongFirst = cross(between, second) / turn;
    const KdGeVector2d toArc = flattened(toPlane, arcPoint() - xLine1Start());
    const KdGeVector2d inside{toArc.x - first.x * alongFirst, toArc.y - first.y * alongFirst};
    const double firstSign = cross(inside, second) / turn < 0.0 ? -1.0 : 1.0;
    const double secondSign = cross(first, inside) / turn < 0.0 ? -1.0 : 1.0;
    const double dot = (first.x * second.x + first.y * second.y) * firstSign * secondSign;
    value = std::atan2(std::fabs(turn), dot);
    return eOk;
}

bool KdDb2LineAngularDimension::measuresAngle() const
{
    return true;
}

bool KdDb3PointAngularDimension::measuresAngle() const
{
    return true;
}

KdErrorStatus KdDb3PointAngularDimension::measure(double& value) const
{
    return sectorAngle(data(), value);
}

KdErrorStatus KdDbArcDimension::measure(double& value) const
{
    double span = 0.0;
    const KdErrorStatus status = arcSpan(data(), span);
    if (status == eOk)
        value = span * centerPoint().distanceTo(xLine1Point());
    return status;
}
