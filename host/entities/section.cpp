#include <entities/section.h>

KD_RX_DEFINE(KdDbSection, KdDbEntity, L"AcDbSection", L"SECTIONOBJECT")
