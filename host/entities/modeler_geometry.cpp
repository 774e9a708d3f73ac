#include <entities/modeler_geometry.h>

#include "modeler_measures.h"

std::string KdDbModelerGeometry::bodyData() const
{
    return data().bodyData ? data().bodyData() : std::string();
}

std::vector<ModelerEdge> KdDbModelerGeometry::edges() const
{
    return readModelerBody(bodyData()).edges;
}

KdErrorStatus KdDbModelerGeometry::getGeomExtents(KdGeExtents3d& extents) const
{
    const KdGeExtents3d box = extentsOfBody(readModelerBody(bodyData()));
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}
