#include <entities/ole_frame.h>

KD_RX_DEFINE_ABSTRACT(KdDbFrame, KdDbEntity, L"AcDbFrame")
KD_RX_DEFINE(KdDbOleFrame, KdDbFrame, L"AcDbOleFrame", L"OLEFRAME")
KD_RX_DEFINE(KdDbOle2Frame, KdDbOleFrame, L"AcDbOle2Frame", L"OLE2FRAME")
