#include <editor/units.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <optional>
#include <string>

#include <runtime/number_text.h>

#include "decimal_digits.h"
#include "working_header.h"

namespace {

constexpr int kInchesPerFoot = 12;
// Beyond this a double can't tell neighbouring fractions or decimals apart any more.
constexpr double kLargestCount = 9007199254740992.0;
constexpr double kLargestDecimal = 1.0e16;

enum ZeroBits
{
    kFeetAndInches = 3, ///< mask of the bits that say which of the two show a zero
    kBothZeros = 1,
    kZeroFeetOnly = 2,
    kZeroInchesOnly = 3,
};

struct LinearStyle
{
    int precision;
    int zeroSuppression;
    bool asTyped; ///< UNITMODE 1: no blanks, no dash behind the feet

    bool showsZeroFeet() const
    {
        const int bits = zeroSuppression & kFeetAndInches;
        return bits == kBothZeros || bits == kZeroFeetOnly;
    }
    bool showsZeroInches() const
    {
        const int bits = zeroSuppression & kFeetAndInches;
        return bits == kBothZeros || bits == kZeroInchesOnly;
    }
};

/// A length as a count of the smallest fraction that the precision allows.
struct Fractions
{
    std::int64_t count;
    std::int64_t perUnit;
};

std::optional<Fractions> countFractions(double magnitude, int precision)
{
    const std::int64_t perUnit = std::int64_t{1} << precision;
    const double count = magnitude * static_cast<double>(perUnit);
    if (count >= kLargestCount)
        return std::nullopt;
    return Fractions{static_cast<std::int64_t>(std::floor(count + 0.5)), perUnit};
}

/// Such as `5 1/2`; a whole of 0 stands before a fraction only on `wantsWhole`.
std::wstring wholeAndFraction(Fractions length, const LinearStyle& style, bool wantsWhole)
{
    const std::int64_t whole = length.count / length.perUnit;
    const std::int64_t rest = length.count % length.perUnit;
    if (rest == 0)
        return std::to_wstring(whole);
    std::wstring text;
    if (whole > 0 || wantsWhole)
        text = std::to_wstring(whole) + (style.asTyped ? L"-" : L" ");
    const std::int64_t common = std::gcd(rest, length.perUnit);
    return text + std::to_wstring(rest / common) + L"/" + std::to_wstring(length.perUnit / common);
}

/// Joins the feet and the printed inches; either is left out when it is 0 and the style says so.
std::wstring feetAndInches(double feet, bool inchesAreZero, const std::wstring& inches,
                           const LinearStyle& style)
{
    std::wstring text;
    const bool showsFeet = feet > 0.0 || style.showsZeroFeet();
    if (showsFeet)
        text = kdPrintFixed(feet, 0) + L"'";
    if (showsFeet && inchesAreZero && !style.showsZeroInches())
        return text;
    if (showsFeet && !style.asTyped)
        text += L"-";
    return text + inches + L"\"";
}

std::wstring scientific(double magnitude, const LinearStyle& style)
{
    return kdPrintScientific(magnitude, style.precision);
}

std::wstring decimal(double magnitude, const LinearStyle& style)
{
    if (magnitude > kLargestDecimal)
        return scientific(magnitude, style);
    return decimalDigits(magnitude, style.precision, style.zeroSuppression);
}

std::wstring engineering(double magnitude, const LinearStyle& style)
{
    if (magnitude >= kLargestCount)
        return scientific(magnitude, style);
    double feet = std::floor(magnitude / kInchesPerFoot);
    double inches = magnitude - feet * kInchesPerFoot;
    if (kdReadReal(decimalDigits(inches, style.precision, 0)) >= kInchesPerFoot) {
        feet += 1.0;
        inches = 0.0;
    }
    // Behind the feet the 0 before the dot stays, or the text could not be read back.
    const bool hasFeet = feet > 0.0 || style.showsZeroFeet();
    const int zeros = hasFeet ? style.zeroSuppression & ~kLeadingZeros : style.zeroSuppression;
    const std::wstring digits = decimalDigits(inches, style.precision, zeros);
    return feetAndInches(feet, !hasValue(digits), digits, style);
}

std::wstring architectural(double magnitude, const LinearStyle& style)
{
    const auto length = countFractions(magnitude, style.precision);
    if (!length)
        return scientific(magnitude, style);
    const std::int64_t perFoot = length->perUnit * kInchesPerFoot;
    const auto feet = static_cast<double>(length->count / perFoot);
    const Fractions inches{length->count % perFoot, length->perUnit};
    const bool hasFeet = feet > 0.0 || style.showsZeroFeet();
    return feetAndInches(feet, inches.count == 0, wholeAndFraction(inches, style, hasFeet), style);
}

std::wstring fractional(double magnitude, const LinearStyle& style)
{
    const auto length = countFractions(magnitude, style.precision);
    return length ? wholeAndFraction(*length, style, false) : scientific(magnitude, style);
}

using Form = std::wstring (*)(double magnitude, const LinearStyle& style);
constexpr Form kForms[] = {scientific, decimal, engineering, architectural, fractional};

std::optional<std::wstring> realText(const KdDbHeaderVar& header, double value, int units,
                                     int precision)
{
    if (units == -1)
        units = header.lunits();
    if (precision == -1)
        precision = header.luprec();
    if (units < 1 || units > std::ssize(kForms) || !std::isfinite(value))
        return std::nullopt;

    const LinearStyle style{std::clamp(precision, 0, kMostDecimalDigits), header.dimzin(),
                            header.unitmode() != 0};
    const std::wstring text = kForms[units - 1](std::fabs(value), style);
    return value < 0.0 && hasValue(text) ? L"-" + text : text;
}

std::optional<std::wstring> realText(double value, int units, int precision)
{
    return withWorkingHeader(
        [&](const KdDbHeaderVar& header) { return realText(header, value, units, precision); });
}

} // namespace

int kddbRToS(double value, int units, int precision, wchar_t* buffer, unsigned long size)
{
    return copyOrFail(realText(value, units, precision), buffer, size);
}

int kddbRToS(double value, KdString& text, int units, int precision)
{
    return assignOrFail(realText(value, units, precision), text);
}
