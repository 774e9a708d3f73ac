#include <entities/section.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>
#include <providers/point_chain.h>

namespace {

enum TypeIndex
{
    kPlaneType,
    kSliceType,
    kBoundaryType,
    kVolumeType,
};

/// In the order in which they are offered.
constexpr ResourceText kTypes[] = {
    {78240, L"Plane"}, {78241, L"Slice"}, {78242, L"Boundary"}, {78243, L"Volume"}};

bool isSlice(const KdDbSection& section)
{
    return section.isSlice() && section.state() == KdDbSection::kBoundary;
}

KdString typeName(const KdDbSection& section)
{
    switch (section.state()) {
    case KdDbSection::kPlane:
        return kTypes[kPlaneType].text();
    case KdDbSection::kBoundary:
        return kTypes[isSlice(section) ? kSliceType : kBoundaryType].text();
    case KdDbSection::kVolume:
        return kTypes[kVolumeType].text();
    default:
        return {};
    }
}

/// Sections that are no slices have no value, but a neutral one where a list is made of it.
bool sliceThickness(const PropertyRequest& request, ValueKind kind)
{
    const auto& section = static_cast<const KdDbSection&>(request.entity);
    if (isSlice(section) || request.withChoices) {
        request.head.setRestype(kind);
        request.head.setDouble(isSlice(section) ? section.thicknessDepth() : 0.0);
    }
    return true;
}

/// Of a slice only the line that it was made from.
std::vector<KdGePoint3d> verticesOf(const KdDbSection& section)
{
    constexpr int kOfSlice = 2;
    const int all = section.numVertices();
    std::vector<KdGePoint3d> vertices;
    for (int i = 0; i < (isSlice(section) ? std::min(all, kOfSlice) : all); ++i) {
        KdGePoint3d vertex;
        section.getVertex(i, vertex);
        vertices.push_back(vertex);
    }
    return vertices;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                     read-only  kind              value                                    choices
    {{78229, L"Section Object:Name"},            editable,  ResBuf::kString,  value<&KdDbSection::getName>},
    {{78230, L"Section Object:Live section"},    editable,  ResBuf::kBool,    value<&KdDbSection::isLiveSectionEnabled>},
    {{78231, L"Section Object:Type"},            editable,  ResBuf::kString,  value<typeName>,                         namesOf<kTypes>},
    {{78232, L"Geometry:Top plane"},             editable,  ResBuf::kReal,    value<&KdDbSection::topPlane>},
    {{78233, L"Geometry:Bottom plane"},          editable,  ResBuf::kReal,    value<&KdDbSection::bottomPlane>},
    {{78234, L"Geometry:Section offset"},        editable,  ResBuf::kReal,    value<&KdDbSection::sectionPlaneOffset>},
    {{78235, L"Geometry:Slice thickness"},       editable,  ResBuf::kReal,    sliceThickness},
    {{78236, L"Geometry:Vertex"},                editable,  ResBuf::kPoint3d, points<verticesOf>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbSection_Extension::rows()
{
    return kRows;
}
