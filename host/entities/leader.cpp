#include <entities/leader.h>

#include <cassert>

#include "text_box.h"

KD_RX_DEFINE(KdDbLeader, KdDbCurve, L"AcDbLeader", L"LEADER")

KdGePoint3d KdDbLeader::vertexAt(int index) const
{
    const bool isThere = index >= 0 && index < numVertices();
    assert(isThere);
    return isThere ? data().vertices[static_cast<std::size_t>(index)] : KdGePoint3d();
}

KdGeVector3d KdDbLeader::normal() const
{
    return unitNormal(data().normal);
}

KdErrorStatus KdDbLeader::getStartPoint(KdGePoint3d& point) const
{
    if (data().vertices.empty())
        return eNotApplicable;
    point = data().vertices.front();
    return eOk;
}

KdErrorStatus KdDbLeader::getEndPoint(KdGePoint3d& point) const
{
    if (data().vertices.empty())
        return eNotApplicable;
    point = data().vertices.back();
    return eOk;
}

KdErrorStatus KdDbLeader::getGripPoints(KdArray<KdGePoint3d>& points) const
{
    for (const KdGePoint3d& vertex : data().vertices)
        points.append(vertex);
    return eOk;
}

KdErrorStatus KdDbLeader::getGeomExtents(KdGeExtents3d& extents) const
{
    if (data().vertices.empty())
        return eNotApplicable;
    KdArray<KdGePoint3d> points;
    getGripPoints(points);
    extents = extentsOf(points);
    return eOk;
}
