#include <entities/vertex.h>

KD_RX_DEFINE_WITH(KdDbVertex, KdDbEntity, L"AcDbVertex", L"VERTEX", KdRxFactory{})
KD_RX_DEFINE(KdDb2dVertex, KdDbVertex, L"AcDb2dVertex", L"VERTEX")
KD_RX_DEFINE(KdDb3dPolylineVertex, KdDbVertex, L"AcDb3dPolylineVertex", L"VERTEX")
KD_RX_DEFINE(KdDbPolygonMeshVertex, KdDbVertex, L"AcDbPolygonMeshVertex", L"VERTEX")
KD_RX_DEFINE(KdDbPolyFaceMeshVertex, KdDbVertex, L"AcDbPolyFaceMeshVertex", L"VERTEX")
KD_RX_DEFINE(KdDbFaceRecord, KdDbVertex, L"AcDbFaceRecord", L"VERTEX")
KD_RX_DEFINE(KdDbSequenceEnd, KdDbEntity, L"AcDbSequenceEnd", L"SEQEND")
