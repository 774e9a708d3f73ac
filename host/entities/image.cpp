#include <entities/image.h>

KD_RX_DEFINE_ABSTRACT(KdDbImage, KdDbEntity, L"AcDbImage")
KD_RX_DEFINE(KdDbRasterImage, KdDbImage, L"AcDbRasterImage", L"IMAGE")
KD_RX_DEFINE(KdDbWipeout, KdDbRasterImage, L"AcDbWipeout", L"WIPEOUT")
