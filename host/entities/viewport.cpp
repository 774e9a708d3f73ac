#include <entities/viewport.h>

KD_RX_DEFINE(KdDbViewport, KdDbEntity, L"AcDbViewport", L"VIEWPORT")
