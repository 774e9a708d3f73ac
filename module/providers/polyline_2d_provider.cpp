#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/name_rows.h>
#include <providers/point_chain.h>
#include <values/ucs_frame.h>

namespace {

constexpr NameRow kTypes[] = {{KdDb::kPlain2dPolyline, {77690, L"None"}},
                              {KdDb::kCurveFit2dPolyline, {77691, L"Curve fit"}},
                              {KdDb::kQuadratic2dPolyline, {77692, L"Quadratic"}},
                              {KdDb::kCubic2dPolyline, {77693, L"Cubic"}}};

/// In the user's frame. Of a cubic spline those by which it is controlled; of all other polylines,
/// the quadratic spline among them, every vertex, as intended.
bool vertices(const PropertyRequest& request, ValueKind kind)
{
    const auto& polyline = static_cast<const KdDb2dPolyline&>(request.entity);
    const bool isCubic = polyline.polyType() == KdDb::kCubic2dPolyline;
    const KdGeMatrix3d worldToUser = ucsToWcsTransf().inverse();
    std::vector<KdGePoint3d> points;
    const auto iterator = polyline.vertexIterator();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb2dVertex> vertex(iterator->objectId());
        if (vertex && (!isCubic || vertex->vertexType() == KdDb::kControlVertex))
            points.push_back(worldToUser * vertex->position());
    }
    if (!points.empty())
        storePoints(request.head, kind, points);
    return true;
}

/// The width that all vertices have at both ends; 0 if they differ.
double globalWidth(const KdDb2dPolyline& polyline)
{
    const auto iterator = polyline.vertexIterator();
    const OpenForRead<KdDb2dVertex> first(iterator->objectId());
    if (!first)
        return 0.0;
    const double width = first->startWidth();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb2dVertex> vertex(iterator->objectId());
        if (vertex && (vertex->startWidth() != width || vertex->endWidth() != width))
            return 0.0;
    }
    return width;
}

/// The first segment's width. A spline has none, and the record stays as it was. The end of a curve
/// fit is that of its second vertex, as intended.
template <double (KdDb2dVertex::*Width)() const, int CurveFitVertex>
bool segmentWidth(const PropertyRequest& request, ValueKind kind)
{
    const auto& polyline = static_cast<const KdDb2dPolyline&>(request.entity);
    if (polyline.polyType() > KdDb::kCurveFit2dPolyline)
        return true;
    const auto iterator = polyline.vertexIterator();
    for (int i = 0; i < CurveFitVertex && polyline.polyType() == KdDb::kCurveFit2dPolyline; ++i)
        iterator->step();
    const OpenForRead<KdDb2dVertex> vertex(iterator->objectId());
    if (vertex) {
        request.head.setRestype(kind);
        request.head.setDouble(((*vertex).*Width)());
    }
    return true;
}

constexpr auto startWidth = segmentWidth<&KdDb2dVertex::startWidth, 0>;
constexpr auto endWidth = segmentWidth<&KdDb2dVertex::endWidth, 1>;

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                read-only  kind              value                                       choices
    {{76544, L"\tGeneral:Thickness"},       editable,  ResBuf::kReal,    value<&KdDb2dPolyline::thickness>},
    {{76546, L"Geometry:Vertex"},           editable,  ResBuf::kPoint2d, vertices},
    {{76547, L"Geometry:Global width"},     editable,  ResBuf::kReal,    value<globalWidth>},
    {{76548, L"Geometry:Elevation"},        editable,  ResBuf::kReal,    value<&KdDb2dPolyline::elevation>},
    {{76549, L"Geometry:Area"},             derived,   ResBuf::kReal,    value<curveArea>},
    {{76550, L"Geometry:Length"},           derived,   ResBuf::kReal,    value<curveLength>},
    {{76551, L"Misc:Fit/Smooth"},           editable,  ResBuf::kString,  nameOf<&KdDb2dPolyline::polyType, kTypes>,  namesOf<kTypes>},
    {{76552, L"Misc:Closed"},               editable,  ResBuf::kBool,    value<&KdDb2dPolyline::isClosed>},
    {{76553, L"Misc:Linetype generation"},  editable,  ResBuf::kBool,    value<&KdDb2dPolyline::isLinetypeGenerationOn>},
    {{78045, L"Start segment width"},       editable,  ResBuf::kReal,    startWidth},
    {{78046, L"End segment width"},         editable,  ResBuf::kReal,    endWidth},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDb2dPolyline_Extension::rows()
{
    return kRows;
}
