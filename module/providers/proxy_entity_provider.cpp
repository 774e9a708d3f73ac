#include <entities/proxy_entity.h>

#include <providers/other_providers.h>
#include <providers/shadow_names.h>

namespace {

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text                      read-only  kind             value                             choices, listed
    // answered and not listed, and nothing is offered: as intended
    {{77326, L"3D Visualization:Shadow display"}, editable,  ResBuf::kString, nameOf<shadowsOf, kShadowNames>,  noChoices, never},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbProxyEntity_Extension::rows()
{
    return kRows;
}
