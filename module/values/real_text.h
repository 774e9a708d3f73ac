/// Reals, areas and dimensions as text in the units of a drawing's header.
#pragma once

#include <editor/units.h>
#include <runtime/std_str.h>

/// What a number is, for `KdadConvertRealToStringInternal`.
namespace RealKind {
constexpr int Plain = 0;
constexpr int Area = 1;      ///< feet and inches are square ones; zeros of decimals always stay
constexpr int Dimension = 2; ///< unit modes 6, 7 and 8 exist as well
} // namespace RealKind

/// Prints an area of the working database, in square feet and square inches where it has feet.
/// @param units      unit mode; 0 or less: that of the database
/// @param precision  negative: that of the database
/// @param out        untouched on failure
/// @return           `RTNORM`, or `RTERROR` without a working database
int realAreaToString(double value, int units, int precision, CStdStr<wchar_t>& out);

/// `KdadConvertRealToStringInternal` for an area, with a dot.
int KdadConvertRealToString_Area(const KdDbHeaderVar& header, double value, int units,
                                 int precision, wchar_t* buffer, unsigned long size,
                                 int zeroSuppression);

/// Prints a number. A value that is not finite, or in decimal units too large, becomes scientific.
/// @param header            settings for what the other arguments leave open, and the unit mode
/// @param units             1 to 5 as "LUNITS"; for dimensions also 6 stacked architectural, 7
/// stacked
///                          fractional, 8 as the user's locale writes numbers; 0 or less: as in
///                          `header`
/// @param precision         decimals, or the power of two of the smallest fraction; negative: as in
///                          `header`
/// @param buffer            receives the text with a terminator; empty on failure
/// @param size              characters that `buffer` has room for
/// @param kind              a `RealKind`
/// @param zeroSuppression   bits as in DIMZIN; -1 to -4: DIMZIN, DIMALTZ, DIMALTTZ, DIMTZIN of
/// `header`
/// @param decimalSeparator  takes the place of the dot in decimal units unless it is 0
/// @return                  `RTNORM`, with an empty text for a unit mode that does not exist;
/// `RTERROR`
///                          if `buffer` is null or the text does not fit
int KdadConvertRealToStringInternal(const KdDbHeaderVar& header, double value, int units,
                                    int precision, wchar_t* buffer, unsigned long size, int kind,
                                    int zeroSuppression, int decimalSeparator);

/// Prints decimals, a binary value just under a decimal tie rounded upwards, and leaves out zeros
/// as `zeroSuppression` says, except for an area. `buffer` is empty if the text does not fit.
/// Returns 1.
int ConvertStringWithDimzin(double value, int precision, int kind, int zeroSuppression,
                            wchar_t* buffer, unsigned long size);

/// Prints `value` as scientific; `precision` is first brought below `limit`. `buffer` is empty if
/// the text does not fit.
void subConvert(wchar_t* buffer, unsigned long size, int& precision, double value, int limit);
