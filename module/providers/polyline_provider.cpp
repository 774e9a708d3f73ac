#include <entities/polyline.h>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/point_chain.h>

namespace {

double constantWidth(const KdDbPolyline& polyline)
{
    double width = 0.0;
    polyline.getConstantWidth(width);
    return width;
}

/// In the polyline's own frame, as intended; other polylines give theirs in the user's.
bool vertices(const PropertyRequest& request, ValueKind kind)
{
    const auto& polyline = static_cast<const KdDbPolyline&>(request.entity);
    std::vector<KdGePoint3d> points(polyline.numVerts());
    for (unsigned int i = 0; i < polyline.numVerts(); ++i) {
        KdGePoint2d point;
        polyline.getPointAt(i, point);
        points[i] = {point.x, point.y, 0.0};
    }
    if (!points.empty())
        storePoints(request.head, kind, points);
    return true;
}

constexpr ResourceText kStartWidth{78045, L"Start segment width"};
constexpr ResourceText kEndWidth{78046, L"End segment width"};

/// Always those of the first segment. Returns the host's status, which is 0 on success.
int answerSegmentWidth(const KdDbPolyline& polyline, bool atEnd, ResBuf& head)
{
    double start = 0.0;
    double end = 0.0;
    const KdErrorStatus status = polyline.getWidthsAt(0, start, end);
    if (status == eOk) {
        head.setRestype(ResBuf::kReal);
        head.setDouble(atEnd ? end : start);
    }
    return status;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                read-only  kind              value
    {{77327, L"\tGeneral:Thickness"},       editable,  ResBuf::kReal,    value<&KdDbPolyline::thickness>},
    {{77328, L"Misc:Closed"},               editable,  ResBuf::kBool,    value<&KdDbPolyline::isClosed>},
    {{77330, L"Geometry:Global width"},     editable,  ResBuf::kReal,    value<constantWidth>},
    {{77331, L"Geometry:Elevation"},        editable,  ResBuf::kReal,    value<&KdDbPolyline::elevation>},
    {{77332, L"Geometry:Area"},             derived,   ResBuf::kReal,    value<curveArea>},
    {{77333, L"Geometry:Length"},           derived,   ResBuf::kReal,    value<curveLength>},
    {{77335, L"Misc:Linetype generation"},  editable,  ResBuf::kBool,    value<&KdDbPolyline::hasPlinegen>},
    {{77329, L"Geometry:Vertex"},           editable,  ResBuf::kPoint2d, vertices},
    {kStartWidth,                           editable,  ResBuf::kReal,    answeredByTheProvider},
    {kEndWidth,                             editable,  ResBuf::kReal,    answeredByTheProvider},
};
// clang-format on

constexpr int kNoEntity = 3;

} // namespace

std::span<const PropertyRow> KdDbPolyline_Extension::rows()
{
    return kRows;
}

int KdDbPolyline_Extension::PropertyCount(const KdDbEntity* entity, KdArray<KdString>& names,
                                          KdArray<bool>& flags)
{
    return entity ? TableProvider::PropertyCount(entity, names, flags) : kNoEntity;
}

int KdDbPolyline_Extension::PropertyValueGet(const KdDbEntity* entity, KdString name,
                                             ResBuf*& result, bool asDisplayText, bool withChoices)
{
    if (!entity)
        return kNoEntity;
    if (entity->isKindOf(KdDbPolyline::desc())) {
        const bool atEnd = kEndWidth.matches(name);
        if (atEnd || kStartWidth.matches(name))
            return answerSegmentWidth(static_cast<const KdDbPolyline&>(*entity), atEnd, *result);
    }
    return TableProvider::PropertyValueGet(entity, name, result, asDisplayText, withChoices);
}
