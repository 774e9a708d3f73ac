#include <entities/vertex_polyline.h>

KD_RX_DEFINE(KdDb2dPolyline, KdDbCurve, L"AcDb2dPolyline", L"POLYLINE")
KD_RX_DEFINE(KdDb3dPolyline, KdDbCurve, L"AcDb3dPolyline", L"POLYLINE")

bool KdDb2dPolyline::isClosed() const
{
    return data().closed;
}

bool KdDb3dPolyline::isClosed() const
{
    return data().closed;
}
