#include <entities/curve.h>

KD_RX_DEFINE_ABSTRACT(KdDbCurve, KdDbEntity, L"AcDbCurve")

bool KdDbCurve::isClosed() const
{
    return false;
}

KdErrorStatus KdDbCurve::getStartParam(double&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbCurve::getEndParam(double&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbCurve::getStartPoint(KdGePoint3d&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbCurve::getEndPoint(KdGePoint3d&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbCurve::getArea(double&) const
{
    return eNotApplicable;
}
