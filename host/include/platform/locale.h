/// How numbers are written where the user lives.
#pragma once

#include <runtime/export.h>

/// Whose habits: those of the user, taken from the environment (LC_ALL, LC_NUMERIC, LANG) at each
/// call, or the neutral ones. The locale that the process has set for itself has no part in it.
constexpr unsigned long LOCALE_USER_DEFAULT = 0x0400;
constexpr unsigned long LOCALE_INVARIANT = 0x007F;

/// Which habit.
constexpr unsigned long LOCALE_SDECIMAL = 0x000E;   ///< text between whole and decimals
constexpr unsigned long LOCALE_STHOUSAND = 0x000F;  ///< text between groups of digits
constexpr unsigned long LOCALE_SGROUPING = 0x0010;  ///< sizes from the right, "3;0": 0 repeats
constexpr unsigned long LOCALE_INEGNUMBER = 0x1010; ///< one digit, see `NUMBERFMTW::NegativeOrder`

/// Reads one habit into `buffer`, with a terminator; `size` counts characters. Nothing is written
/// when `size` is 0.
/// @return  characters with the terminator, written or (for size 0) needed; 0 if the locale is not
///          installed, the habit unknown or the buffer too small
KW_EXPORT int GetLocaleInfoW(unsigned long locale, unsigned long habit, wchar_t* buffer, int size);

struct NUMBERFMTW
{
    unsigned NumDigits;   ///< decimals, at most 1074
    unsigned LeadingZero; ///< 1: a 0 stands before the separator of a value below 1
    unsigned Grouping;    ///< sizes as digits: 3 for 1,234,567; 32 for 12,34,567; 30: once only
    wchar_t* lpDecimalSep;
    wchar_t* lpThousandSep;
    unsigned NegativeOrder; ///< 0 (1.1)   1 -1.1   2 - 1.1   3 1.1-   4 1.1 -
};

/// Writes a plain number ("-", digits, optional "." and digits) as `format` says, rounding the last
/// decimal half away from zero.
/// @param locale  one of the above; all that it could tell stands in `format`
/// @param flags   must be 0
/// @param format  all of its members count; must not be null
/// @return        as `GetLocaleInfoW`; 0 for another text, a bad format or an unknown locale
KW_EXPORT int GetNumberFormatW(unsigned long locale, unsigned long flags, const wchar_t* value,
                               const NUMBERFMTW* format, wchar_t* buffer, int size);
