#include <entities/face.h>

#include <entities/point.h>

#include <providers/other_providers.h>
#include <providers/point_chain.h>
#include <providers/shadow_names.h>

namespace {

std::vector<KdGePoint3d> cornersOf(const KdDbFilledFace& face)
{
    std::vector<KdGePoint3d> corners(kCornersOfFace);
    for (int i = 0; i < kCornersOfFace; ++i)
        face.getPointAt(i, corners[static_cast<std::size_t>(i)]);
    return corners;
}

double elevation(const KdDbFilledFace& face)
{
    return cornersOf(face).front().z;
}

std::vector<KdGePoint3d> verticesOf(const KdDbFace& face)
{
    std::vector<KdGePoint3d> vertices(kCornersOfFace);
    for (int i = 0; i < kCornersOfFace; ++i)
        face.getVertexAt(i, vertices[static_cast<std::size_t>(i)]);
    return vertices;
}

template <int Edge>
bool isEdgeVisible(const KdDbFace& face)
{
    bool visible = false;
    face.isEdgeVisibleAt(Edge, visible);
    return visible;
}

// clang-format off
constexpr PropertyRow kPointRows[] = {
    // key: id, default text             read-only  kind              value
    {{77350, L"\tGeneral:Thickness"},   editable,  ResBuf::kReal,    value<&KdDbPoint::thickness>},
    {{77351, L"Geometry:Position"},     editable,  ResBuf::kPoint3d, value<&KdDbPoint::position>},
};

constexpr PropertyRow kSolidRows[] = {
    {{77300, L"\tGeneral:Thickness"},   editable,  ResBuf::kReal,    value<&KdDbFilledFace::thickness>},
    shadowRow<kShadowNamesOfFaces>(77302),
    {{77303, L"Geometry:Vertex"},       editable,  ResBuf::kPoint2d, points<cornersOf>},
    {{77304, L"Geometry:Elevation"},    editable,  ResBuf::kReal,    value<elevation>},
};

constexpr PropertyRow kTraceRows[] = {
    {{77199, L"\tGeneral:Thickness"},   editable,  ResBuf::kReal,    value<&KdDbFilledFace::thickness>},
    {{77201, L"Geometry:Vertex"},       editable,  ResBuf::kPoint2d, points<cornersOf>},
    {{77202, L"Geometry:Elevation"},    editable,  ResBuf::kReal,    value<elevation>},
};

constexpr PropertyRow kFaceRows[] = {
    {{77380, L"Geometry:Edge 1"},       editable,  ResBuf::kBool,    value<isEdgeVisible<0>>},
    {{77381, L"Geometry:Edge 2"},       editable,  ResBuf::kBool,    value<isEdgeVisible<1>>},
    {{77382, L"Geometry:Edge 3"},       editable,  ResBuf::kBool,    value<isEdgeVisible<2>>},
    {{77383, L"Geometry:Edge 4"},       editable,  ResBuf::kBool,    value<isEdgeVisible<3>>},
    {{77384, L"Geometry:Vertex"},       editable,  ResBuf::kPoint3d, points<verticesOf>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbPoint_Extension::rows()
{
    return kPointRows;
}

std::span<const PropertyRow> KdDbSolid_Extension::rows()
{
    return kSolidRows;
}

std::span<const PropertyRow> KdDbTrace_Extension::rows()
{
    return kTraceRows;
}

std::span<const PropertyRow> KdDbFace_Extension::rows()
{
    return kFaceRows;
}
