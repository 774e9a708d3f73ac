#include <entities/underlay.h>

KD_RX_DEFINE_ABSTRACT(KdDbUnderlayReference, KdDbEntity, L"AcDbUnderlayReference")
KD_RX_DEFINE(KdDbDgnReference, KdDbUnderlayReference, L"AcDbDgnReference", L"DGNUNDERLAY")
KD_RX_DEFINE(KdDbDwfReference, KdDbUnderlayReference, L"AcDbDwfReference", L"DWFUNDERLAY")
KD_RX_DEFINE(KdDbPdfReference, KdDbUnderlayReference, L"AcDbPdfReference", L"PDFUNDERLAY")
