#include <values/distance_text.h>

#include <algorithm>
#include <cwchar>
#include <string_view>

namespace {

void trimBegin(wchar_t* text)
{
    const std::wstring_view all = text;
    const std::size_t first = std::min(all.find_first_not_of(L" \t"), all.size());
    std::wmemmove(text, text + first, all.size() - first + 1);
}

void trimEnd(wchar_t* text)
{
    const std::wstring_view all = text;
    // Blanks in front of a carriage return in the middle stay: they are not the last of the text.
    text[all.find_last_not_of(L' ') + 1] = L'\0';
    text[std::min(all.find(L'\r'), std::wcslen(text))] = L'\0';
}

void trimMiddle(wchar_t* text)
{
    const std::wstring_view all = text;
    const std::size_t first = all.find_first_not_of(L' ');
    if (first == std::wstring_view::npos)
        return;
    wchar_t* const last = text + all.find_last_not_of(L' ');
    wchar_t* const kept = std::remove(text + first, last, L' ');
    std::wmemmove(kept, last, std::wcslen(last) + 1);
}

} // namespace

void trimWhiteSpace(wchar_t* text, const wchar_t* modes)
{
    if (!text || !modes)
        return;
    if (std::wstring_view(text).find_first_not_of(L' ') == std::wstring_view::npos) {
        text[0] = L'\0';
        return;
    }
    for (; *modes; ++modes) {
        if (*modes == L'b' || *modes == L'B')
            trimBegin(text);
        else if (*modes == L'e' || *modes == L'E')
            trimEnd(text);
        else if (*modes == L'm' || *modes == L'M')
            trimMiddle(text);
    }
}
