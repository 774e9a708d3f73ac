#include <entities/mesh.h>

#include <providers/other_providers.h>
#include <providers/point_chain.h>
#include <providers/shadow_names.h>

namespace {

/// In the order in which they are offered.
constexpr NameRow kMeshTypes[] = {
    {KdDb::kPlainMesh, {77969, L"None"}},
    {KdDb::kBezierMesh, {77970, L"Bezier"}},
    {KdDb::kQuadraticMesh, {77971, L"Quadratic"}},
    {KdDb::kCubicMesh, {77972, L"Cubic"}},
};

std::vector<KdGePoint3d> verticesOf(const KdDbPolygonMesh& mesh)
{
    std::vector<KdGePoint3d> vertices;
    for (const auto at = mesh.vertexIterator(); !at->done(); at->step()) {
        const OpenForRead<KdDbPolygonMeshVertex> vertex(at->objectId());
        if (vertex)
            vertices.push_back(vertex->position());
    }
    return vertices;
}

/// Face records, which stand among the vertices, are passed over.
std::vector<KdGePoint3d> cornersOf(const KdDbPolyFaceMesh& mesh)
{
    std::vector<KdGePoint3d> corners;
    for (const auto at = mesh.vertexIterator(); !at->done(); at->step()) {
        KdDbVertex* vertex = nullptr;
        if (mesh.openVertex(vertex, at->objectId()) != eOk)
            continue;
        if (vertex->isKindOf(KdDbPolyFaceMeshVertex::desc()))
            corners.push_back(static_cast<KdDbPolyFaceMeshVertex*>(vertex)->position());
        vertex->close();
    }
    return corners;
}

// clang-format off
constexpr PropertyRow kPolygonMeshRows[] = {
    // key: id, default text              read-only  kind              value                                               choices
    shadowRow<kShadowNames>(77337),
    {{77338, L"Geometry:Vertex"},         editable,  ResBuf::kPoint3d, points<verticesOf>},
    {{77339, L"Mesh:M Closed"},           editable,  ResBuf::kBool,    value<&KdDbPolygonMesh::isMClosed>},
    {{77340, L"Mesh:N Closed"},           editable,  ResBuf::kBool,    value<&KdDbPolygonMesh::isNClosed>},
    {{77341, L"Mesh:M Density"},          editable,  ResBuf::kInt16,   value<&KdDbPolygonMesh::mSurfaceDensity>},
    {{77342, L"Mesh:N Density"},          editable,  ResBuf::kInt16,   value<&KdDbPolygonMesh::nSurfaceDensity>},
    {{77343, L"Mesh:M Vertex count"},     derived,   ResBuf::kInt16,   value<&KdDbPolygonMesh::mSize>},
    {{77344, L"Mesh:N Vertex count"},     derived,   ResBuf::kInt16,   value<&KdDbPolygonMesh::nSize>},
    {{77345, L"Misc:Fit/Smooth"},         editable,  ResBuf::kString,  nameOf<&KdDbPolygonMesh::polyMeshType, kMeshTypes>, namesOf<kMeshTypes>},
};

constexpr PropertyRow kPolyFaceMeshRows[] = {
    {{77347, L"Geometry:Vertex"},         editable,  ResBuf::kPoint3d, points<cornersOf>},
    {{77348, L"Mesh:Number of vertices"}, derived,   ResBuf::kInt16,   value<&KdDbPolyFaceMesh::numVertices>},
    {{77349, L"Mesh:Number of faces"},    derived,   ResBuf::kInt16,   value<&KdDbPolyFaceMesh::numFaces>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbPolygonMesh_Extension::rows()
{
    return kPolygonMeshRows;
}

std::span<const PropertyRow> KdDbPolyFaceMesh_Extension::rows()
{
    return kPolyFaceMeshRows;
}
