#include <entities/mtext.h>

KD_RX_DEFINE(KdDbMText, KdDbEntity, L"AcDbMText", L"MTEXT")
