/// Character tests for number texts, independent of the process's locale.
#pragma once

#include <string_view>

constexpr std::wstring_view kWhiteSpace = L" \t\n\v\f\r";

constexpr bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

constexpr bool isOneOf(wchar_t c, std::wstring_view set)
{
    return set.find(c) != std::wstring_view::npos;
}

/// `text` without the white space at both ends.
constexpr std::wstring_view withoutOuterSpace(std::wstring_view text)
{
    const std::size_t first = text.find_first_not_of(kWhiteSpace);
    if (first == std::wstring_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(kWhiteSpace) - first + 1);
}
