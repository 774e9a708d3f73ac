#include <entities/ellipse.h>

#include <providers/curve_providers.h>
#include <providers/curve_values.h>
#include <providers/row_readers.h>

namespace {

double majorRadius(const KdDbEllipse& ellipse)
{
    return ellipse.majorAxis().length();
}

double minorRadius(const KdDbEllipse& ellipse)
{
    return ellipse.minorAxis().length();
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                 read-only  kind              value
    {{77386, L"Geometry:Start"},             derived,   ResBuf::kPoint3d, value<startPointOf>},
    {{77389, L"Geometry:Center"},            editable,  ResBuf::kPoint3d, value<&KdDbEllipse::center>},
    {{77392, L"Geometry:End"},               derived,   ResBuf::kPoint3d, value<endPointOf>},
    {{77395, L"Geometry:Major radius"},      editable,  ResBuf::kReal,    value<majorRadius>},
    {{77396, L"Geometry:Minor radius"},      editable,  ResBuf::kReal,    value<minorRadius>},
    {{77397, L"Geometry:Radius ratio"},      editable,  ResBuf::kReal,    value<&KdDbEllipse::radiusRatio>},
    {{77398, L"Geometry:Start angle"},       editable,  ResBuf::kAngle,   value<&KdDbEllipse::startAngle>},
    {{77399, L"Geometry:End angle"},         editable,  ResBuf::kAngle,   value<&KdDbEllipse::endAngle>},
    {{77400, L"Geometry:Major axis vector"}, derived,   ResBuf::kPoint3d, value<&KdDbEllipse::majorAxis>},
    {{77403, L"Geometry:Minor axis vector"}, derived,   ResBuf::kPoint3d, value<&KdDbEllipse::minorAxis>},
    {{77406, L"Geometry:Area"},              derived,   ResBuf::kString,  value<curveAreaText>},
    {{76638, L"Geometry:Normal"},            derived,   ResBuf::kPoint3d, value<&KdDbEllipse::normal>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbEllipse_Extension::rows()
{
    return kRows;
}
