#include <entities/line.h>

#include <providers/curve_providers.h>
#include <providers/row_readers.h>

namespace {

KdGeVector3d delta(const KdDbLine& line)
{
    return line.endPoint() - line.startPoint();
}

/// In space, so longer than the line looks from above.
double length(const KdDbLine& line)
{
    return line.startPoint().distanceTo(line.endPoint());
}

/// As seen from above, whatever the line's normal: counter-clockwise from the X axis.
double angle(const KdDbLine& line)
{
    KdGeVector3d flat = delta(line);
    flat.z = 0.0;
    return flat.angleTo(KdGeVector3d::kXAxis, -KdGeVector3d::kZAxis);
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                 read-only  kind              value
    {{77357, L"\tGeneral:Thickness"},        editable,  ResBuf::kReal,    value<&KdDbLine::thickness>},
    {{77358, L"Geometry:\t\t\t\tStart"},     editable,  ResBuf::kPoint3d, value<&KdDbLine::startPoint>},
    {{77361, L"Geometry:\t\t\tEnd"},         editable,  ResBuf::kPoint3d, value<&KdDbLine::endPoint>},
    {{77364, L"Geometry:\t\tDelta"},         derived,   ResBuf::kPoint3d, value<delta>},
    {{77367, L"Geometry:\tLength"},          derived,   ResBuf::kReal,    value<length>},
    {{77368, L"Geometry:Angle"},             derived,   ResBuf::kAngle,   value<angle>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbLine_Extension::rows()
{
    return kRows;
}
