#include <entities/point.h>

KD_RX_DEFINE(KdDbPoint, KdDbEntity, L"AcDbPoint", L"POINT")
