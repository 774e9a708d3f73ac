#include <entities/circle.h>

#include "turn.h"

KD_RX_DEFINE(KdDbCircle, KdDbCurve, L"AcDbCircle", L"CIRCLE")
KD_RX_DEFINE(KdDbArc, KdDbCurve, L"AcDbArc", L"ARC")

namespace {

KdGePoint3d pointOf(const CircleMembers& circle, double angle)
{
    const KdGeVector3d arm{circle.radius * std::cos(angle), circle.radius * std::sin(angle), 0.0};
    return circle.extrusion.toWorld(circle.center + arm);
}

} // namespace

bool KdDbCircle::isClosed() const
{
    return true;
}

KdErrorStatus KdDbCircle::getStartParam(double& parameter) const
{
    parameter = 0.0;
    return eOk;
}

KdErrorStatus KdDbCircle::getEndParam(double& parameter) const
{
    parameter = kTurn;
    return eOk;
}

KdErrorStatus KdDbCircle::getStartPoint(KdGePoint3d& point) const
{
    point = pointOf(data(), 0.0);
    return eOk;
}

KdErrorStatus KdDbCircle::getEndPoint(KdGePoint3d& point) const
{
    return getStartPoint(point);
}

KdErrorStatus KdDbCircle::getArea(double& area) const
{
    area = std::numbers::pi * radius() * radius();
    return eOk;
}

KdErrorStatus KdDbArc::getStartParam(double& parameter) const
{
    parameter = startAngle();
    return eOk;
}

KdErrorStatus KdDbArc::getEndParam(double& parameter) const
{
    parameter = endOfTurn(startAngle(), endAngle());
    return eOk;
}

KdErrorStatus KdDbArc::getStartPoint(KdGePoint3d& point) const
{
    point = pointOf(data(), startAngle());
    return eOk;
}

KdErrorStatus KdDbArc::getEndPoint(KdGePoint3d& point) const
{
    point = pointOf(data(), endAngle());
    return eOk;
}

KdErrorStatus KdDbArc::getArea(double& area) const
{
    const double span = endOfTurn(startAngle(), endAngle()) - startAngle();
    area = radius() * radius() * segmentArea(span);
    return eOk;
}
