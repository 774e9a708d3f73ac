#include <entities/circle.h>

#include <numbers>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/row_readers.h>

namespace {

constexpr double kPi = std::numbers::pi;

double diameter(const KdDbCircle& circle)
{
    return circle.radius() + circle.radius();
}

double circumference(const KdDbCircle& circle)
{
    return 2.0 * (circle.radius() * kPi);
}

/// From the radius, as intended; arcs and ellipses ask the curve.
KdString area(const KdDbCircle& circle)
{
    return areaText(circle.radius() * circle.radius() * kPi);
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text              read-only  kind              value                           choices
    {{77097, L"\tGeneral:Thickness"},    editable,  ResBuf::kReal,    value<&KdDbCircle::thickness>},
    {{77098, L"Geometry:Center"},        editable,  ResBuf::kPoint3d, value<&KdDbCircle::center>},
    {{77101, L"Geometry:Radius"},        editable,  ResBuf::kReal,    value<&KdDbCircle::radius>},
    {{77102, L"Geometry:Diameter"},      editable,  ResBuf::kReal,    value<diameter>},
    {{77103, L"Geometry:Circumference"}, editable,  ResBuf::kReal,    value<circumference>},
    {{77104, L"Geometry:Area"},          editable,  ResBuf::kString,  value<area>,                    tag<0>}, // settable and tagged, unlike that of others: as intended
    {{76638, L"Geometry:Normal"},        derived,   ResBuf::kPoint3d, value<&KdDbCircle::normal>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbCircle_Extension::rows()
{
    return kRows;
}
