#include <entities/face.h>

#include "corners.h"

KD_RX_DEFINE(KdDbFace, KdDbEntity, L"AcDbFace", L"3DFACE")
KD_RX_DEFINE(KdDbSolid, KdDbEntity, L"AcDbSolid", L"SOLID")
KD_RX_DEFINE(KdDbTrace, KdDbEntity, L"AcDbTrace", L"TRACE")

KdErrorStatus KdDbFace::getVertexAt(int index, KdGePoint3d& vertex) const
{
    return elementAt(data().vertices, index, vertex);
}

KdErrorStatus KdDbFace::isEdgeVisibleAt(int index, bool& visible) const
{
    if (index < 0 || index >= kCornersOfFace)
        return eInvalidInput;
    visible = (data().hiddenEdges >> index & 1) == 0;
    return eOk;
}

KdErrorStatus KdDbFace::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    for (const KdGePoint3d& vertex : data().vertices)
        points.append(vertex);
    return eOk;
}

KdErrorStatus KdDbFace::getGeomExtents(KdGeExtents3d& extents) const
{
    return extentsOfPoints(data().vertices, extents);
}

KdErrorStatus KdDbFilledFace::getPointAt(int index, KdGePoint3d& point) const
{
    const KdErrorStatus status = elementAt(data().points, index, point);
    if (status == eOk)
        point = data().extrusion.toWorld(point);
    return status;
}

KdErrorStatus KdDbFilledFace::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    for (const KdGePoint3d& point : data().points)
        points.append(data().extrusion.toWorld(point));
    return eOk;
}

KdErrorStatus KdDbFilledFace::getGeomExtents(KdGeExtents3d& extents) const
{
    const KdGeVector3d depth = normal() * thickness();
    KdGeExtents3d box;
    for (const KdGePoint3d& point : data().points) {
        const KdGePoint3d corner = data().extrusion.toWorld(point);
        box.addPoint(corner);
        box.addPoint(corner + depth);
    }
    extents = box;
    return eOk;
}
