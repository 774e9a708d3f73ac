#include <entities/ellipse.h>

#include <cmath>

#include <geometry/arcs.h>

#include "round_grips.h"

KD_RX_DEFINE(KdDbEllipse, KdDbCurve, L"AcDbEllipse", L"ELLIPSE")

namespace {

KdGeEllipArc3d arcOf(const KdDbEllipse& ellipse, double startParam, double endParam)
{
    const KdGeVector3d major = ellipse.majorAxis();
    const KdGeVector3d minor = ellipse.minorAxis();
    return {ellipse.center(), major, minor, major.length(), minor.length(), startParam, endParam};
}

} // namespace

KdGeVector3d KdDbEllipse::minorAxis() const
{
    return normal().crossProduct(majorAxis()) * radiusRatio();
}

double KdDbEllipse::angleAt(double parameter) const
{
    const double angle = std::atan2(radiusRatio() * std::sin(parameter), std::cos(parameter));
    return angle < 0.0 ? angle + KdGe::kTurn : angle;
}

double KdDbEllipse::startAngle() const
{
    return angleAt(data().startParam);
}

double KdDbEllipse::endAngle() const
{
    return isClosed() ? startAngle() + KdGe::kTurn : angleAt(data().endParam);
}

double KdDbEllipse::paramAtAngle(double angle) const
{
    if (radiusRatio() == 0.0)
        return angle; // the ellipse is a line, and all directions fall into one
    const double parameter = std::atan2(std::sin(angle) / radiusRatio(), std::cos(angle));
    return parameter + KdGe::kTurn * std::round((angle - parameter) / KdGe::kTurn);
}

bool KdDbEllipse::isClosed() const
{
    const double start = data().startParam;
    const double span = KdGe::endOfTurn(start, data().endParam) - start;
    return std::abs(span - KdGe::kTurn) <= KdGe::kAngleTolerance;
}

KdErrorStatus KdDbEllipse::askGeometry(const Question& question) const
{
    return question(arcOf(*this, data().startParam, data().endParam));
}

KdErrorStatus KdDbEllipse::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    const KdGeEllipArc3d arc = arcOf(*this, data().startParam, data().endParam);
    if (isClosed())
        appendRingGrips(arc, points);
    else
        appendArcGrips(arc, points);
    return eOk;
}
