// UTF-8 as drawings of R2007 and later hold it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace dxf {

/// The character at `at`, which moves behind it. Malformed bytes give U+FFFD, at least one byte
/// each, and `wellFormed` false.
wchar_t nextUtf8(std::string_view bytes, std::size_t& at, bool& wellFormed);

/// Appends the characters of `bytes`. Never fails.
void decodeUtf8(std::string_view bytes, std::wstring& text);

/// The first place from `from` on that holds a byte above 127, or the end.
std::size_t asciiEnd(std::string_view bytes, std::size_t from);

/// How the bytes above 127 of a file look.
struct Utf8Evidence
{
    std::size_t characters = 0; ///< characters of more than one byte before the first fault
    bool wellFormed = true;
};

/// Looks at a whole file; stops at the first fault.
Utf8Evidence findUtf8(std::string_view bytes);

} // namespace dxf
