#include <values/arrow_names.h>

#include <values/init_order.h>
#include <values/resource_string.h>

// clang-format off
[[gnu::init_priority(kInitArrowNames)]]
const std::array<ArrowName, 20> ArrowNameTable = {{
    {48281, L"NONE"},         {48282, L"CLOSED"},       {48283, L"DOT"},          {48284, L"CLOSEDFILLED"},
    {48285, L"CLOSEDBLANK"},  {48286, L"OBLIQUE"},      {48287, L"ARCHTICK"},     {48288, L"OPEN"},
    {48289, L"ORIGIN"},       {48290, L"ORIGIN2"},      {48291, L"OPEN90"},       {48292, L"OPEN30"},
    {48293, L"DOTBLANK"},     {48294, L"DOTSMALL"},     {48295, L"BOXFILLED"},    {48296, L"BOXBLANK"},
    {48297, L"DATUMFILLED"},  {48298, L"DATUMBLANK"},   {48299, L"INTEGRAL"},     {48300, L"SMALL"},
}};
// clang-format on

namespace {

KdString displayText(const ArrowName& arrow)
{
    return KdString(static_cast<const wchar_t*>(__ResourceString(arrow.id, L"ArrowName")));
}

} // namespace

void getArrowName(KdString& key)
{
    if (key.isEmpty()) {
        key = displayText(ArrowNameTable.front());
        return;
    }
    for (const ArrowName& arrow : ArrowNameTable)
        if (arrow.key.compareNoCase(key) == 0)
            key = displayText(arrow);
}
