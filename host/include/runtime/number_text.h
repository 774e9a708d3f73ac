/// Numbers as text and back, the same under every locale of the process.
#pragma once

#include <string>
#include <string_view>

#include <runtime/export.h>

/// Prints `value` with `precision` decimals and a dot, rounded from its exact binary value.
/// @param precision  negative counts as 6; above 1074, where every double ends, it counts as 1074
/// @return           the digits without an exponent; "inf", "nan" or "-inf" for what has none
KW_EXPORT std::wstring kdPrintFixed(double value, int precision);

/// Prints `value` as a mantissa with `precision` decimals, "E", a sign and two or three digits of
/// exponent. `precision` as in `kdPrintFixed`; "INF", "NAN" or "-INF" for what has no digits.
KW_EXPORT std::wstring kdPrintScientific(double value, int precision);

/// Reads the decimal number that `text` begins with, behind white space: sign, digits with a dot,
/// exponent. What follows it is not looked at. 0 if no number stands there; an infinity or 0 for
/// one that is too large or too small.
KW_EXPORT double kdReadReal(std::wstring_view text);

/// Copies `text` with a terminator to `buffer`, which has room for `size` characters.
/// @return  false if it does not fit or `buffer` is null; the buffer, if it has room, is then empty
KW_EXPORT bool kdCopyText(std::wstring_view text, wchar_t* buffer, unsigned long size);
