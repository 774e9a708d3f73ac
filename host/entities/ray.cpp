#include <entities/ray.h>

KD_RX_DEFINE(KdDbRay, KdDbCurve, L"AcDbRay", L"RAY")
KD_RX_DEFINE(KdDbXline, KdDbCurve, L"AcDbXline", L"XLINE")

KdErrorStatus KdDbRay::getStartParam(double& parameter) const
{
    parameter = 0.0;
    return eOk;
}

KdErrorStatus KdDbRay::getStartPoint(KdGePoint3d& point) const
{
    point = basePoint();
    return eOk;
}
