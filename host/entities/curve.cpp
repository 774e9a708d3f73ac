#include <entities/curve.h>

#include <cmath>

KD_RX_DEFINE_ABSTRACT(KdDbCurve, KdDbEntity, L"AcDbCurve")

namespace {

/// A parameter that the curve reaches but for rounding.
bool isWithin(const KdGeInterval& interval, double parameter)
{
    return std::abs(interval.clamped(parameter) - parameter) <= KdGeContext::gTol.equalPoint;
}

/// One end of an interval, if it has one.
KdErrorStatus takeEnd(double end, double& parameter)
{
    if (!std::isfinite(end))
        return eNotApplicable;
    parameter = end;
    return eOk;
}

KdGeExtents3d drawnOut(const KdGeExtents3d& extents, const KdGeVector3d& sweep)
{
    KdGeExtents3d result = extents;
    result.addPoint(extents.minPoint + sweep);
    result.addPoint(extents.maxPoint + sweep);
    return result;
}

} // namespace

bool KdDbCurve::isClosed() const
{
    return false;
}

bool KdDbCurve::isPlanar() const
{
    return true;
}

KdErrorStatus KdDbCurve::askGeometry(const Question&) const
{
    return eNotApplicable;
}

KdGeVector3d KdDbCurve::sweep() const
{
    return {};
}

KdErrorStatus KdDbCurve::getStartParam(double& parameter) const
{
    return askGeometry(
        [&](const KdGeCurve3d& curve) { return takeEnd(curve.interval().lower, parameter); });
}

KdErrorStatus KdDbCurve::getEndParam(double& parameter) const
{
    return askGeometry(
        [&](const KdGeCurve3d& curve) { return takeEnd(curve.interval().upper, parameter); });
}

KdErrorStatus KdDbCurve::getStartPoint(KdGePoint3d& point) const
{
    return askGeometry([&](const KdGeCurve3d& curve) {
        return curve.hasStartPoint(point) ? eOk : eNotApplicable;
    });
}

KdErrorStatus KdDbCurve::getEndPoint(KdGePoint3d& point) const
{
    if (isClosed())
        return getStartPoint(point); // without the rounding of a whole turn
    return askGeometry(
        [&](const KdGeCurve3d& curve) { return curve.hasEndPoint(point) ? eOk : eNotApplicable; });
}

KdErrorStatus KdDbCurve::getPointAtParam(double parameter, KdGePoint3d& point) const
{
    return askGeometry([&](const KdGeCurve3d& curve) {
        if (!isWithin(curve.interval(), parameter))
            return eInvalidInput;
        point = curve.evalPoint(parameter);
        return eOk;
    });
}

KdErrorStatus KdDbCurve::getDistAtParam(double parameter, double& distance) const
{
    return askGeometry([&](const KdGeCurve3d& curve) {
        const KdGeInterval interval = curve.interval();
        if (!std::isfinite(interval.lower))
            return eNotApplicable;
        if (!isWithin(interval, parameter))
            return eInvalidInput;
        distance = curve.length(interval.lower, parameter, KdGeContext::gTol.equalPoint);
        return eOk;
    });
}

KdErrorStatus KdDbCurve::getArea(double& area) const
{
    if (!isPlanar())
        return eNotApplicable;
    return askGeometry([&](const KdGeCurve3d& curve) {
        if (!curve.interval().isBounded())
            return eNotApplicable;
        area = curve.areaVector().length();
        return eOk;
    });
}

KdErrorStatus KdDbCurve::getGeomExtents(KdGeExtents3d& extents) const
{
    return askGeometry([&](const KdGeCurve3d& curve) {
        KdGeExtents3d box;
        curve.addToExtents(box);
        if (box.isEmpty())
            return eNotApplicable;
        extents = drawnOut(box, sweep());
        return eOk;
    });
}

KdErrorStatus KdDbCurveArea::getArea(double& area) const
{
    return m_curve ? m_curve->getArea(area) : eNotApplicable;
}
