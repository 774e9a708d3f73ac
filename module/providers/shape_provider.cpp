#include <providers/row_readers.h>
#include <providers/text_providers.h>

namespace {

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text           read-only  kind              value
    {{77305, L"\tGeneral:Thickness"},  editable,  ResBuf::kReal,    value<&KdDbShape::thickness>},
    {{77307, L"Geometry:Position"},    editable,  ResBuf::kPoint3d, value<&KdDbShape::position>},
    {{77310, L"Misc:Name"},            derived,   ResBuf::kString,  value<&KdDbShape::name>},
    {{77311, L"Misc:Size"},            editable,  ResBuf::kReal,    value<&KdDbShape::size>},
    {{77312, L"Misc:Rotation"},        editable,  ResBuf::kAngle,   value<&KdDbShape::rotation>},
    {{77313, L"Misc:Width factor"},    editable,  ResBuf::kReal,    value<&KdDbShape::widthFactor>},
    {{77314, L"Misc:Obliquing"},       editable,  ResBuf::kAngle,   value<&KdDbShape::oblique>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbShape_Extension::rows()
{
    return kRows;
}
