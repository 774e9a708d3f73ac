#include <entities/solid_history.h>

KD_RX_DEFINE(KdDbShHistory, KdDbObject, L"AcDbShHistory", L"ACSH_HISTORY_CLASS")
