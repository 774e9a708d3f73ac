#include <entities/ellipse.h>

#include "turn.h"

KD_RX_DEFINE(KdDbEllipse, KdDbCurve, L"AcDbEllipse", L"ELLIPSE")

KdGeVector3d KdDbEllipse::minorAxis() const
{
    return normal().crossProduct(majorAxis()) * radiusRatio();
}

double KdDbEllipse::span() const
{
    return endOfTurn(data().startParam, data().endParam) - data().startParam;
}

double KdDbEllipse::angleAt(double parameter) const
{
    const double angle = std::atan2(radiusRatio() * std::sin(parameter), std::cos(parameter));
    return angle < 0.0 ? angle + kTurn : angle;
}

KdGePoint3d KdDbEllipse::pointAt(double parameter) const
{
    return center() + majorAxis() * std::cos(parameter) + minorAxis() * std::sin(parameter);
}

double KdDbEllipse::startAngle() const
{
    return angleAt(data().startParam);
}

double KdDbEllipse::endAngle() const
{
    return isClosed() ? startAngle() + kTurn : angleAt(data().endParam);
}

bool KdDbEllipse::isClosed() const
{
    return std::abs(span() - kTurn) <= kAngleTolerance;
}

KdErrorStatus KdDbEllipse::getStartParam(double& parameter) const
{
    parameter = data().startParam;
    return eOk;
}

KdErrorStatus KdDbEllipse::getEndParam(double& parameter) const
{
    parameter = data().startParam + span();
    return eOk;
}

KdErrorStatus KdDbEllipse::getStartPoint(KdGePoint3d& point) const
{
    point = pointAt(data().startParam);
    return eOk;
}

KdErrorStatus KdDbEllipse::getEndPoint(KdGePoint3d& point) const
{
    point = pointAt(data().endParam);
    return eOk;
}

KdErrorStatus KdDbEllipse::getArea(double& area) const
{
    area = majorAxis().length() * minorAxis().length() * segmentArea(span());
    return eOk;
}
