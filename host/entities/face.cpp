#include <entities/face.h>

KD_RX_DEFINE(KdDbFace, KdDbEntity, L"AcDbFace", L"3DFACE")
KD_RX_DEFINE(KdDbSolid, KdDbEntity, L"AcDbSolid", L"SOLID")
KD_RX_DEFINE(KdDbTrace, KdDbEntity, L"AcDbTrace", L"TRACE")
