#include <entities/special_text.h>

KD_RX_DEFINE(KdDbArcAlignedText, KdDbEntity, L"AcDbArcAlignedText", L"ARCALIGNEDTEXT")
KD_RX_DEFINE(KdDbRText, KdDbEntity, L"AcDbRText", L"RTEXT")
