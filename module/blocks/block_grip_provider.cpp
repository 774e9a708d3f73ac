#include <blocks/block_element_providers.h>

using namespace block_elements;

namespace {

using Grip = KdDbBlockGrip;

KdString gripType(const Grip& grip)
{
    return grip.typeName();
}

double offsetX(const Grip& grip)
{
    return grip.baseOffset().x;
}

double offsetY(const Grip& grip)
{
    return grip.baseOffset().y;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                    read-only  kind              value
    {{78133, L"\tGeometry:Base"},               editable,  ResBuf::kPoint2d, flatPoint<&Grip::location>},
    {{78136, L"\tMisc:Grip type"},              derived,   ResBuf::kString,  element<gripType>},
    {{78137, L"\tMisc:Parameter type"},         derived,   ResBuf::kString,  element<&Grip::parameterTypeName>},
    {{78138, L"\tMisc:Cycling"},                editable,  ResBuf::kBool,    element<&Grip::cycling>},
    {{78134, L"\tGeometry:Base point offset X"}, editable, ResBuf::kReal,    element<offsetX>},
    {{78135, L"\tGeometry:Base point offset Y"}, editable, ResBuf::kReal,    element<offsetY>},
};
// clang-format on

std::span<const PropertyRow> gripRows()
{
    return kRows;
}

constexpr RowRun kListed[] = {gripRows};

} // namespace

std::span<const RowRun> KdDbBlockGripEntity_Extension::listed()
{
    return kListed;
}
