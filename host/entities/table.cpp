#include <entities/table.h>

KD_RX_DEFINE(KdDbTable, KdDbBlockReference, L"AcDbTable", L"ACAD_TABLE")
