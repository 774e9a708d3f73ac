#include <entities/light.h>

KD_RX_DEFINE(KdDbLight, KdDbEntity, L"AcDbLight", L"LIGHT")
