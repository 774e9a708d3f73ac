#include <entities/ole_frame.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>

namespace {

constexpr NameRow kTypes[] = {
    {KdDbOleFrame::kLink, {77993, L"Link"}},
    {KdDbOleFrame::kEmbedded, {77994, L"Embeded"}},
    {KdDbOleFrame::kStatic, {77995, L"Static"}},
};
constexpr ResourceText kUnknownType{77996, L"Unknown"}; // shown, but not offered

KdString typeName(const KdDbOleFrame& frame)
{
    return frame.getType() == KdDbOleFrame::kUnknown ? kUnknownType.text()
                                                     : nameIn(kTypes, frame.getType());
}

KdGePoint3d position(const KdDbOleFrame& frame)
{
    return frame.location()[0];
}

double width(const KdDbOleFrame& frame)
{
    const auto corners = frame.location();
    return corners[0].distanceTo(corners[1]);
}

double height(const KdDbOleFrame& frame)
{
    const auto corners = frame.location();
    return corners[1].distanceTo(corners[2]);
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text        read-only  kind              value              choices
    {{77625, L"Geometry:Position"}, editable,  ResBuf::kPoint3d, value<position>},
    {{77626, L"Geometry:Width"},    editable,  ResBuf::kReal,    value<width>},
    {{77627, L"Geometry:Height"},   editable,  ResBuf::kReal,    value<height>},
    {{77628, L"Misc:Type"},         derived,   ResBuf::kString,  value<typeName>,   namesOf<kTypes>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbOleFrame_Extension::rows()
{
    return kRows;
}
