#include <entities/fcf.h>

KD_RX_DEFINE(KdDbFcf, KdDbEntity, L"AcDbFcf", L"TOLERANCE")
