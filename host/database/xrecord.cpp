#include <database/xrecord.h>

KD_RX_DEFINE(KdDbXrecord, KdDbObject, L"AcDbXrecord", L"XRECORD")
