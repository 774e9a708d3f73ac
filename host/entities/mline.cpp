#include <entities/mline.h>

#include "corners.h"

KD_RX_DEFINE(KdDbMline, KdDbEntity, L"AcDbMline", L"MLINE")

KdErrorStatus KdDbMline::getVertexAt(int index, KdGePoint3d& vertex) const
{
    return elementAt(data().vertices, index, vertex);
}
