#include <entities/solid3d.h>

#include <entities/solid_history.h>

#include "modeler_measures.h"

KD_RX_DEFINE(KdDb3dSolid, KdDbEntity, L"AcDb3dSolid", L"3DSOLID")
KD_RX_DEFINE(KdDbBody, KdDbEntity, L"AcDbBody", L"BODY")
KD_RX_DEFINE(KdDbRegion, KdDbEntity, L"AcDbRegion", L"REGION")

namespace {

template <class Value>
KdErrorStatus planeMeasure(const KdDbRegion& region, Value PlaneMeasures::*member, Value& value)
{
    const auto measures = measurePlaneFaces(readModelerBody(region.bodyData()));
    if (!measures)
        return eNotApplicable;
    value = (*measures).*member;
    return eOk;
}

} // namespace

bool KdDb3dSolid::recordHistory() const
{
    const OpenForRead<KdDbShHistory> history(data().history);
    return history && history->recordsHistory();
}

bool KdDb3dSolid::showHistory() const
{
    const OpenForRead<KdDbShHistory> history(data().history);
    return history && history->showsHistory();
}

KdErrorStatus KdDbRegion::getArea(double& area) const
{
    return planeMeasure(*this, &PlaneMeasures::area, area);
}

KdErrorStatus KdDbRegion::getPerimeter(double& perimeter) const
{
    return planeMeasure(*this, &PlaneMeasures::perimeter, perimeter);
}

KdErrorStatus KdDbRegion::getNormal(KdGeVector3d& normal) const
{
    return planeMeasure(*this, &PlaneMeasures::normal, normal);
}
