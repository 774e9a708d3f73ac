#include <entities/line.h>

#include <geometry/linear_curves.h>

KD_RX_DEFINE(KdDbLine, KdDbCurve, L"AcDbLine", L"LINE")

KdErrorStatus KdDbLine::askGeometry(const Question& question) const
{
    return question(KdGeLineSeg3d(startPoint(), endPoint()));
}

KdErrorStatus KdDbLine::getArea(double&) const
{
    return eNotApplicable;
}

KdErrorStatus KdDbLine::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    points.append(startPoint());
    points.append(endPoint());
    points.append(startPoint() + (endPoint() - startPoint()) * 0.5);
    return eOk;
}
