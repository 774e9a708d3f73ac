#include <entities/mesh.h>

#include <algorithm>

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

std::vector<std::pair<std::uint32_t, std::uint32_t>> KdDbSubDMesh::edges() const
{
    const std::vector<std::int32_t>& faces = data().faces;
    const auto isCorner = [this](std::int32_t corner) {
        return corner >= 0 && static_cast<std::size_t>(corner) < data().vertices.size();
    };
    std::vector<std::pair<std::uint32_t, std::uint32_t>> edges;
    for (std::size_t first = 1; first <= faces.size();) {
        const std::int32_t stated = faces[first - 1];
        const std::size_t corners = static_cast<std::size_t>(std::max(stated, 0));
        if (corners > faces.size() - first)
            break;
        for (std::size_t i = 0; i < corners; ++i) {
            const std::int32_t from = faces[first + i];
            const std::int32_t to = faces[first + (i + 1) % corners];
            if (isCorner(from) && isCorner(to))
                edges.emplace_back(std::min(from, to), std::max(from, to));
        }
        first += corners + 1;
    }
    std::ranges::sort(edges);
    edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
    return edges;
}

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
