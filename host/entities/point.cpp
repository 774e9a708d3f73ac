#include <entities/point.h>

KD_RX_DEFINE(KdDbPoint, KdDbEntity, L"AcDbPoint", L"POINT")

KdErrorStatus KdDbPoint::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    points.append(position());
    return eOk;
}

KdErrorStatus KdDbPoint::getGeomExtents(KdGeExtents3d& extents) const
{
    extents = {position(), position()};
    extents.addPoint(position() + data().extrusion.sweep());
    return eOk;
}
