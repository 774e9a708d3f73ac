#include <entities/mline.h>

KD_RX_DEFINE(KdDbMline, KdDbEntity, L"AcDbMline", L"MLINE")
