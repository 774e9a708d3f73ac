#include <entities/mesh.h>

KD_RX_DEFINE(KdDbPolygonMesh, KdDbEntity, L"AcDbPolygonMesh", L"POLYLINE")
KD_RX_DEFINE(KdDbPolyFaceMesh, KdDbEntity, L"AcDbPolyFaceMesh", L"POLYLINE")
KD_RX_DEFINE(KdDbSubDMesh, KdDbEntity, L"AcDbSubDMesh", L"MESH")

KdErrorStatus KdDbPolyFaceMesh::openVertex(KdDbVertex*& vertex, KdDbObjectId id,
                                           KdDb::OpenMode mode) const
{
    return kddbOpenObject(vertex, id, mode);
}
