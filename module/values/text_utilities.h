/// Small helpers on plain wide texts.
#pragma once

#include <string_view>

#include <runtime/export.h>

/// True for two texts that are equal but for case; false if either is null.
bool strisameW(const wchar_t* a, const wchar_t* b);

/// True for two texts that are equal once each character is lowered by the rules of the classic
/// locale.
bool equalLowered(std::wstring_view a, std::wstring_view b);

/// The difference of the first two characters that differ, A to Z counting as lower case; 0 for
/// equal texts, -1 if either is null.
KW_EXPORT int strings_i_compare(const wchar_t* a, const wchar_t* b);

/// Trims `text` in place, letter by letter of `modes` in either case: "b" removes leading blanks,
/// "e" trailing ones, "m" those between the first and the last other character. A text of nothing
/// but blanks becomes empty in any case. Null is not allowed.
KW_EXPORT void ic_trim(wchar_t* text, wchar_t* modes);

/// The extension of a path, dot included, or "." if there is none. Backslashes alone separate
/// folders.
/// @param path       null counts as a path without extension
/// @param extension  receives the first 10 characters from the dot, without any blanks; null
///                   is allowed and does nothing
/// @param size       characters that `extension` has room for, terminator included
KW_EXPORT void ic_getext(wchar_t* path, wchar_t* extension, unsigned long size);

/// Replaces or adds the extension of a path in place. `path` must have room for the outcome.
/// @param extension  with or without its dot; an empty one takes the extension away. Null for
///                   either text does nothing
KW_EXPORT void ic_setext(wchar_t* path, wchar_t* extension);
