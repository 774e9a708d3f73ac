#include <entities/mesh.h>

KD_RX_DEFINE(KdDbPolygonMesh, KdDbEntity, L"AcDbPolygonMesh", L"POLYLINE")
KD_RX_DEFINE(KdDbPolyFaceMesh, KdDbEntity, L"AcDbPolyFaceMesh", L"POLYLINE")
KD_RX_DEFINE(KdDbSubDMesh, KdDbEntity, L"AcDbSubDMesh", L"MESH")

namespace {

/// The box around those parts that are corners of that class.
template <class Corner>
KdErrorStatus extentsOfCorners(const KdDbPartList& parts, KdGeExtents3d& extents)
{
    KdGeExtents3d box;
    for (const KdDbObjectId id : parts.ids()) {
        const OpenForRead<Corner> corner(id);
        if (corner)
            box.addPoint(corner->position());
    }
    if (box.isEmpty())
        return eNotApplicable;
    extents = box;
    return eOk;
}

} // namespace

KdErrorStatus KdDbPolygonMesh::getGeomExtents(KdGeExtents3d& extents) const
{
    return extentsOfCorners<KdDbPolygonMeshVertex>(parts(), extents);
}

KdErrorStatus KdDbPolyFaceMesh::openVertex(KdDbVertex*& vertex, KdDbObjectId id,
                                           KdDb::OpenMode mode) const
{
    return kddbOpenObject(vertex, id, mode);
}

KdErrorStatus KdDbPolyFaceMesh::getGeomExtents(KdGeExtents3d& extents) const
{
    return extentsOfCorners<KdDbPolyFaceMeshVertex>(parts(), extents);
}
