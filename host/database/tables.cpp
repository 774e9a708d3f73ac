#include <database/tables.h>

KD_RX_DEFINE(KdDbLayerTable, KdDbSymbolTable, L"AcDbLayerTable", L"TABLE")
KD_RX_DEFINE(KdDbLayerTableRecord, KdDbSymbolTableRecord, L"AcDbLayerTableRecord", L"LAYER")
KD_RX_DEFINE(KdDbLinetypeTable, KdDbSymbolTable, L"AcDbLinetypeTable", L"TABLE")
KD_RX_DEFINE(KdDbLinetypeTableRecord, KdDbSymbolTableRecord, L"AcDbLinetypeTableRecord", L"LTYPE")
KD_RX_DEFINE(KdDbTextStyleTable, KdDbSymbolTable, L"AcDbTextStyleTable", L"TABLE")
KD_RX_DEFINE(KdDbTextStyleTableRecord, KdDbSymbolTableRecord, L"AcDbTextStyleTableRecord", L"STYLE")
KD_RX_DEFINE(KdDbUCSTable, KdDbSymbolTable, L"AcDbUCSTable", L"TABLE")
KD_RX_DEFINE(KdDbUCSTableRecord, KdDbSymbolTableRecord, L"AcDbUCSTableRecord", L"UCS")
KD_RX_DEFINE(KdDbRegAppTable, KdDbSymbolTable, L"AcDbRegAppTable", L"TABLE")
KD_RX_DEFINE(KdDbRegAppTableRecord, KdDbSymbolTableRecord, L"AcDbRegAppTableRecord", L"APPID")
KD_RX_DEFINE(KdDbViewportTable, KdDbSymbolTable, L"AcDbViewportTable", L"TABLE")
KD_RX_DEFINE(KdDbViewportTableRecord, KdDbSymbolTableRecord, L"AcDbViewportTableRecord", L"VPORT")
