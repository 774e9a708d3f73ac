#include <providers/row_readers.h>
#include <providers/text_providers.h>

namespace {

constexpr PropertyRow kRows[] = {
    {{77489, L"Misc:Annotative"}, derived, ResBuf::kBool, value<&KdDbObject::isAnnotative>},
};

} // namespace

std::span<const PropertyRow> KdDbFcf_Extension::rows()
{
    return kRows;
}
