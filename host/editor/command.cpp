#include <editor/command.h>

KD_RX_DEFINE_ABSTRACT(KdEdCommand, KdRxObject, L"KdEdCommand")
