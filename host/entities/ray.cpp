#include <entities/ray.h>

#include <geometry/linear_curves.h>

KD_RX_DEFINE(KdDbRay, KdDbCurve, L"AcDbRay", L"RAY")
KD_RX_DEFINE(KdDbXline, KdDbCurve, L"AcDbXline", L"XLINE")

KdErrorStatus KdDbRay::askGeometry(const Question& question) const
{
    return question(KdGeRay3d(basePoint(), unitDir()));
}

KdErrorStatus KdDbRay::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    points.append(basePoint());
    points.append(basePoint() + unitDir());
    return eOk;
}

KdErrorStatus KdDbXline::askGeometry(const Question& question) const
{
    return question(KdGeLine3d(basePoint(), unitDir()));
}

KdErrorStatus KdDbXline::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    points.append(basePoint());
    points.append(basePoint() + -unitDir());
    points.append(basePoint() + unitDir());
    return eOk;
}
