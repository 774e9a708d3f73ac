#include <entities/ole_frame.h>

#include "corners.h"

KD_RX_DEFINE_ABSTRACT(KdDbFrame, KdDbEntity, L"AcDbFrame")
KD_RX_DEFINE(KdDbOleFrame, KdDbFrame, L"AcDbOleFrame", L"OLEFRAME")
KD_RX_DEFINE(KdDbOle2Frame, KdDbOleFrame, L"AcDbOle2Frame", L"OLE2FRAME")

std::array<KdGePoint3d, 4> KdDbOleFrame::location() const
{
    const KdGePoint3d& a = data().upperLeft;
    const KdGePoint3d& b = data().lowerRight;
    return {a, KdGePoint3d{b.x, a.y, a.z}, b, KdGePoint3d{a.x, b.y, b.z}};
}

KdErrorStatus KdDbOleFrame::getGeomExtents(KdGeExtents3d& extents) const
{
    return extentsOfPoints(location(), extents);
}
