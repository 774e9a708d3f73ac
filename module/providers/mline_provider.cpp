#include <entities/mline.h>

#include <database/database.h>

#include <providers/name_rows.h>
#include <providers/other_providers.h>

namespace {

constexpr NameRow kAlignments[] = {
    {KdDbMline::kTop, {78068, L"TOP"}},
    {KdDbMline::kZero, {78069, L"ZERO"}},
    {KdDbMline::kBottom, {78070, L"BUTTOM"}}, // as intended
};

KdString styleName(const KdDbMline& mline)
{
    KdString name;
    if (!mline.database())
        return name;
    const OpenForRead<KdDbDictionary> styles(KdDbMlineStyle::styleDictionary(*mline.database()));
    if (styles)
        styles->nameAt(mline.style(), name);
    return name;
}

// clang-format off
constexpr PropertyRow kRows[] = {
    // key: id, default text            read-only  kind             value
    {{77353, L"Misc:Mline scale"},      editable,  ResBuf::kReal,   value<&KdDbMline::scale>},
    {{77355, L"Misc:Mline style"},      editable,  ResBuf::kString, value<styleName>},
    {{77356, L"Misc:Mline alignment"},  editable,  ResBuf::kString, nameOf<&KdDbMline::justification, kAlignments>},
};
// clang-format on

} // namespace

std::span<const PropertyRow> KdDbMline_Extension::rows()
{
    return kRows;
}
