/// Reals as text in the linear units that the system variables tell.
#pragma once

#include <runtime/status.h>
#include <runtime/std_str.h>

/// The unit modes of "LUNITS".
enum class LUnits : int
{
    Scientific = 1,
    Decimal = 2,
    Engineering = 3,
    Architectural = 4,
    Fractional = 5,
};

/// Prints `value` as "LUNITS", "LUPREC", "DIMZIN" and "UNITMODE" say.
/// @return  as `formatL`
int formatLinear(CStdStr<wchar_t>& out, double value);

/// Prints `value` in the given units. A value too large for its units is printed as scientific, and
/// decimals that don't fit into 39 characters are left out.
/// @param out              untouched on failure
/// @param precision        decimals, or the power of two of the smallest fraction
/// @param zeroSuppression  bits: 0 zero feet, 1 zero inches, 2 leading zeros, 3 trailing zeros
/// @param unitMode         0 puts dashes behind feet and a blank before fractions, others put
/// neither
/// @param decimalSeparator, thousandsSeparator  have no effect
/// @return                 `RTNORM`, or `RTERROR` for other units
int formatL(CStdStr<wchar_t>& out, double value, LUnits units, int precision, int zeroSuppression,
            int unitMode, wchar_t decimalSeparator, wchar_t thousandsSeparator);

/// Prints plain decimals into `buffer`. Bits 2 and 3 of `zeroSuppression` leave out leading and
/// trailing zeros; the outcome is then told by the returned length alone, and what stands behind it
/// is left over. The separators have no effect.
/// @param size       characters that `buffer` has room for; decimals that don't fit are left out
/// @param precision  negative counts as 6
/// @return           the length of the text; 0, with an empty buffer, if not even the whole part
/// fits
int formatDecimal(double value, wchar_t* buffer, int size, int precision, int zeroSuppression,
                  wchar_t decimalSeparator, wchar_t thousandsSeparator);

/// Splits `value`, rounded to the nearest 1 / 2^precision, into a whole and a reduced fraction. A
/// numerator of 0 leaves the denominator at 2^precision. `precision` counts from 0 to 30.
void fraction(double value, int& whole, int& numerator, int& denominator, int precision);
