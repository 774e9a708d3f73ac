#include <entities/spline.h>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/row_readers.h>

namespace {

ResBuf* chain(ResBuf* tail, ValueKind kind, const auto& value)
{
    tail = tail->setNext(ResBuf::newRb(kind));
    store(*tail, value);
    return tail;
}

/// Points and weights by turns, beginning with a point and ending with a weight.
bool controlPoints(const PropertyRequest& request, ValueKind kind)
{
    constexpr double kNoWeight = -1.0;
    const auto& spline = static_cast<const KdDbSpline&>(request.entity);
    const bool isWeighted = !spline.getNurbsData().weights.empty();
    const int count = spline.numControlPoints();
    KdGePoint3d point;
    spline.getControlPointAt(0, point);
    request.head.setRestype(kind);
    request.head.setPoint3d(point);
    ResBuf* tail = chain(&request.head, ResBuf::kReal, isWeighted ? spline.weightAt(0) : kNoWeight);
    for (int i = 1; i < count; ++i) {
        spline.getControlPointAt(i, point);
        tail = chain(tail, kind, point);
        tail = chain(tail, ResBuf::kReal, isWeighted ? spline.weightAt(i) : kNoWeight);
    }
    return true;
}

/// As many as there are control points, as intended: behind the last fit point it is repeated.
bool fitPoints(const PropertyRequest& request, ValueKind kind)
{
    const auto& spline = static_cast<const KdDbSpline&>(request.entity);
    KdGePoint3d point;
    spline.getFitPointAt(0, point);
    request.head.setRestype(kind);
    request.head.setPoint3d(point);
    ResBuf* tail = &request.head;
    for (int i = 1; i < spline.numControlPoints(); ++i) {
        spline.getFitPointAt(i, point);
        tail = chain(tail, kind, point);
    }
    return true;
}

KdGeVector3d startTangent(const KdDbSpline& spline)
{
    KdGeVector3d start;
    KdGeVector3d end;
    spline.getFitTangents(start, end);
    return start;
}

KdGeVector3d endTangent(const KdDbSpline& spline)
{
    KdGeVector3d start;
    KdGeVector3d end;
    spline.getFitTangents(start, end);
    return end;
}

KdString area(const KdDbSpline& spline)
{
    return areaText(curveArea(spline), L"-");
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                            read-only  kind              value
    {{77284, L"Data Points:Number of control points"},  derived,   ResBuf::kInt16,   value<&KdDbSpline::numControlPoints>},
    {{77285, L"Data Points:Control point"},             editable,  ResBuf::kPoint3d, controlPoints},
    {{77286, L"Data Points:Number of fit points"},      derived,   ResBuf::kInt16,   value<&KdDbSpline::numFitPoints>},
    {{77287, L"Data Points:Fit Point"},                 editable,  ResBuf::kPoint3d, fitPoints},
    {{77288, L"Misc:Degree"},                           derived,   ResBuf::kInt16,   value<&KdDbSpline::degree>},
    {{77289, L"Misc:Closed"},                           derived,   ResBuf::kBool,    value<&KdDbSpline::isClosed>},
    {{77290, L"Misc:Planar"},                           derived,   ResBuf::kBool,    value<&KdDbSpline::isPlanar>},
    {{77291, L"Misc:Start tangent vector"},             derived,   ResBuf::kPoint3d, value<startTangent>},
    {{77294, L"Misc:End tangent vector"},               derived,   ResBuf::kPoint3d, value<endTangent>},
    {{77297, L"Misc:Fit tolerance"},                    editable,  ResBuf::kReal,    value<&KdDbSpline::fitTolerance>},
    {{77298, L"Misc:Area"},                             derived,   ResBuf::kString,  value<area>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbSpline_Extension::rows()
{
    return kRows;
}
