#include <entities/solid3d.h>

KD_RX_DEFINE(KdDb3dSolid, KdDbEntity, L"AcDb3dSolid", L"3DSOLID")
KD_RX_DEFINE(KdDbBody, KdDbEntity, L"AcDbBody", L"BODY")
KD_RX_DEFINE(KdDbRegion, KdDbEntity, L"AcDbRegion", L"REGION")
