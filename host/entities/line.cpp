#include <entities/line.h>

KD_RX_DEFINE(KdDbLine, KdDbCurve, L"AcDbLine", L"LINE")

KdErrorStatus KdDbLine::getStartParam(double& parameter) const
{
    parameter = 0.0;
    return eOk;
}

KdErrorStatus KdDbLine::getEndParam(double& parameter) const
{
    parameter = startPoint().distanceTo(endPoint());
    return eOk;
}

KdErrorStatus KdDbLine::getStartPoint(KdGePoint3d& point) const
{
    point = startPoint();
    return eOk;
}

KdErrorStatus KdDbLine::getEndPoint(KdGePoint3d& point) const
{
    point = endPoint();
    return eOk;
}
