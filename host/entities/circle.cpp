#include <entities/circle.h>

#include <geometry/arcs.h>

#include "round_grips.h"

KD_RX_DEFINE(KdDbCircle, KdDbCurve, L"AcDbCircle", L"CIRCLE")
KD_RX_DEFINE(KdDbArc, KdDbCurve, L"AcDbArc", L"ARC")

namespace {

KdGeCircArc3d arcOf(const CircleMembers& circle, double startAngle, double endAngle)
{
    const Extrusion& extrusion = circle.extrusion;
    const KdGeVector3d xAxis = extrusion.frame() * KdGeVector3d::kXAxis;
    return {extrusion.toWorld(circle.center),
            extrusion.normal(),
            xAxis,
            circle.radius,
            startAngle,
            endAngle};
}

} // namespace

bool KdDbCircle::isClosed() const
{
    return true;
}

KdErrorStatus KdDbCircle::askGeometry(const Question& question) const
{
    return question(arcOf(data(), 0.0, KdGe::kTurn));
}

KdErrorStatus KdDbCircle::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    appendRingGrips(arcOf(data(), 0.0, KdGe::kTurn), points);
    return eOk;
}

KdErrorStatus KdDbArc::askGeometry(const Question& question) const
{
    return question(arcOf(data(), startAngle(), endAngle()));
}

KdErrorStatus KdDbArc::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    appendArcGrips(arcOf(data(), startAngle(), endAngle()), points);
    return eOk;
}
