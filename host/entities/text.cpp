#include <entities/text.h>

KD_RX_DEFINE(KdDbText, KdDbEntity, L"AcDbText", L"TEXT")
