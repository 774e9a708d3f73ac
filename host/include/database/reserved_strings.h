/// Words that drawings use in place of a value.
#pragma once

#include <runtime/export.h>

/// The numbers of the words.
namespace ReservedString {
constexpr int ByLayer = 0;
constexpr int ByBlock = 1;
constexpr int Default = 7;
} // namespace ReservedString

/// A reserved word as drawings spell it; empty for a number without one. The language of the texts
/// plays no part, so `localised` changes nothing.
KW_EXPORT const wchar_t* kddbGetReservedString(int number, bool localised);
