#include <entities/hatch.h>

KD_RX_DEFINE(KdDbHatch, KdDbEntity, L"AcDbHatch", L"HATCH")
KD_RX_DEFINE(KdDbMPolygon, KdDbEntity, L"AcDbMPolygon", L"MPOLYGON")
