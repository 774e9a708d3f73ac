// Rays and construction lines, which differ in ids only.
#include <entities/ray.h>

#include <array>

#include <providers/curve_providers.h>
#include <providers/row_readers.h>

namespace {

struct Ids
{
    int basepoint;
    int secondPoint;
    int direction;
};

/// One unit from the base point, since nobody keeps the point that was picked.
template <class Host>
KdGePoint3d secondPoint(const Host& ray)
{
    return ray.basePoint() + ray.unitDir();
}

// clang-format off
template <class Host, Ids kIds>
constexpr std::array<PropertyRow, 3> kRows{{
    // key: id, default text                          read-only  kind              value
    {{kIds.basepoint, L"Geometry:Basepoint"},         editable,  ResBuf::kPoint3d, value<&Host::basePoint>},
    {{kIds.secondPoint, L"Geometry:Second point"},    editable,  ResBuf::kPoint3d, value<secondPoint<Host>>},
    {{kIds.direction, L"Geometry:Direction vector"},  derived,   ResBuf::kPoint3d, value<&Host::unitDir>},
}};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbRay_Extension::rows()
{
    return kRows<KdDbRay, Ids{77315, 77318, 77321}>;
}

std::span<const PropertyRow> KdDbXline_Extension::rows()
{
    return kRows<KdDbXline, Ids{77437, 77440, 77443}>;
}
