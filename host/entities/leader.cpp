#include <entities/leader.h>

KD_RX_DEFINE(KdDbLeader, KdDbCurve, L"AcDbLeader", L"LEADER")
