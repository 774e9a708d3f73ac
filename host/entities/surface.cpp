#include <entities/surface.h>

KD_RX_DEFINE(KdDbSurface, KdDbEntity, L"AcDbSurface", L"SURFACE")
KD_RX_DEFINE(KdDbExtrudedSurface, KdDbSurface, L"AcDbExtrudedSurface", L"EXTRUDEDSURFACE")
KD_RX_DEFINE(KdDbLoftedSurface, KdDbSurface, L"AcDbLoftedSurface", L"LOFTEDSURFACE")
KD_RX_DEFINE(KdDbPlaneSurface, KdDbSurface, L"AcDbPlaneSurface", L"PLANESURFACE")
KD_RX_DEFINE(KdDbRevolvedSurface, KdDbSurface, L"AcDbRevolvedSurface", L"REVOLVEDSURFACE")
KD_RX_DEFINE(KdDbSweptSurface, KdDbSurface, L"AcDbSweptSurface", L"SWEPTSURFACE")
