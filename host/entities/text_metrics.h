// How much room letters take. A drawing names the fonts of its texts and does not hold them, so the
// proportions of a plain stroke font stand in for all of them.
#pragma once

#include <string>
#include <string_view>

/// How far a letter moves the pen, the gap behind it included, for a height of 1.
double letterAdvance(wchar_t letter);
/// How wide a row of letters is for a height of 1, without the gap behind the last one.
double lettersWidth(std::wstring_view letters);
/// How far the letters of a row reach below the base line for a height of 1.
double lettersDescent(std::wstring_view letters);

/// The gap behind each letter for a height of 1.
constexpr double kLetterGap = 1.0 / 3.0;

/// The letters that a single-line text shows, its `%%` codes resolved.
std::wstring shownLetters(std::wstring_view text);
