/// Wide text from and to UTF-8, whatever the locale of the process.
#pragma once

#include <string>
#include <string_view>

#include <runtime/export.h>

/// Malformed bytes become U+FFFD.
KW_EXPORT std::wstring kdFromUtf8(std::string_view bytes);
/// Characters that are none (above U+10FFFF, lone surrogates) become U+FFFD.
KW_EXPORT std::string kdToUtf8(std::wstring_view text);
