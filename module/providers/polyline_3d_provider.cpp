#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include <memory>

#include <providers/curve_geometry.h>
#include <providers/curve_providers.h>
#include <providers/name_rows.h>
#include <providers/point_chain.h>
#include <values/ucs_frame.h>

namespace {

// No curve fit in space; and the ids are not those of flat polylines.
constexpr NameRow kTypes[] = {{KdDb::kPlain3dPolyline, {77727, L"None"}},
                              {KdDb::kQuadratic3dPolyline, {77728, L"Quadratic"}},
                              {KdDb::kCubic3dPolyline, {77729, L"Cubic"}}};

/// In the user's frame, of every kind. None at all if the first can't be opened.
bool vertices(const PropertyRequest& request, ValueKind kind)
{
    const auto& polyline = static_cast<const KdDb3dPolyline&>(request.entity);
    const auto iterator = polyline.vertexIterator();
    const OpenForRead<KdDbObject> first(iterator->objectId());
    const KdGeMatrix3d worldToUser = ucsToWcsTransf().inverse();
    std::vector<KdGePoint3d> points;
    for (; first && !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb3dPolylineVertex> vertex(iterator->objectId());
        if (vertex)
            points.push_back(worldToUser * vertex->position());
    }
    storePoints(request.head, kind, points);
    return true;
}

bool length(const PropertyRequest& request, ValueKind kind)
{
    const auto& polyline = static_cast<const KdDb3dPolyline&>(request.entity);
    request.head.setRestype(kind);
    double start = 0.0;
    double end = 0.0;
    polyline.getStartParam(start);
    polyline.getEndParam(end);
    const std::unique_ptr<KdGeCurve3d> curve(asIcGeCurve(&polyline, false, false));
    if (curve)
        request.head.setDouble(curve->length(start, end, KdGeContext::gTol.equalPoint));
    return true;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text         read-only  kind              value                                       choices
    {{76613, L"Geometry:Vertex"},    editable,  ResBuf::kPoint3d, vertices},
    {{76614, L"Geometry:Length"},    derived,   ResBuf::kReal,    length},
    {{76615, L"Misc:Fit/Smooth"},    editable,  ResBuf::kString,  nameOf<&KdDb3dPolyline::polyType, kTypes>,  namesOf<kTypes>},
    {{76616, L"Misc:Closed"},        editable,  ResBuf::kBool,    value<&KdDb3dPolyline::isClosed>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDb3dPolyline_Extension::rows()
{
    return kRows;
}
