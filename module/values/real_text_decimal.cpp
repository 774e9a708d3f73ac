#include <values/real_text.h>
#include <values/real_text_forms.h>

#include <algorithm>
#include <cmath>

#include <runtime/number_text.h>
#include <values/compare.h>

namespace {

constexpr int kMostDecimals = 15;
constexpr int kMostDecimalsBelowOne = 30;
constexpr double kLargestDecimal = 1.0e16;
constexpr int kUserLocaleUnits = 8;
constexpr int kDecimalUnits = 2;
constexpr double kZeroTolerance = 1.0e-11;

/// 0 for a value that would not show in `precision` decimals.
double withoutInvisible(double value, int precision)
{
    return kdadIsZero(value, std::pow(10.0, -(precision + 1))) ? 0.0 : value;
}

/// Moves a value away from zero by a unit of its sixteenth digit, so that a double just under a
/// decimal tie is rounded upwards.
double nudged(double value, int precision)
{
    constexpr int kDigits = 16;
    const double wholeDigits = std::trunc(std::log10(std::fabs(value) * 10.0));
    if (value == 0.0 || !(wholeDigits >= 0.0) || precision >= kDigits - wholeDigits)
        return value;
    return value + std::copysign(std::pow(0.1, kDigits - wholeDigits), value);
}

void dropLeadingZero(std::wstring& text)
{
    const std::size_t first = text.starts_with(L'-') ? 1 : 0;
    if (text.compare(first, 2, L"0.") == 0)
        text.erase(first, 1);
}

void dropTrailingZeros(std::wstring& text)
{
    if (text.find(L'.') == std::wstring::npos)
        return;
    text.erase(text.find_last_not_of(L'0') + 1);
    if (text.ends_with(L'.'))
        text.pop_back();
}

} // namespace

std::wstring dimzinText(double value, int precision, int kind, int zeroSuppression)
{
    const double number = nudged(withoutInvisible(value, precision), precision);
    std::wstring text = kdPrintFixed(number, precision);
    if (zeroSuppression <= 3 || (kind != RealKind::Plain && kind != RealKind::Dimension))
        return text;

    const bool keepsLeadingZero = zeroSuppression >= 8 && zeroSuppression <= 11;
    if (!keepsLeadingZero) {
        if (text == L"0")
            return text;
        dropLeadingZero(text);
    }
    if (zeroSuppression > 7)
        dropTrailingZeros(text);
    if (text.empty() && kdadRealEqual(number, 0.0, kZeroTolerance))
        text = L"0";
    return text;
}

int ConvertStringWithDimzin(double value, int precision, int kind, int zeroSuppression,
                            wchar_t* buffer, unsigned long size)
{
    kdCopyText(dimzinText(value, precision, kind, zeroSuppression), buffer, size);
    return 1;
}

std::wstring decimalForm(double value, const RealStyle& style)
{
    const double magnitude = std::fabs(value);
    if (magnitude > kLargestDecimal)
        return scientificForm(value, style);
    const int most = magnitude < 1.0 ? kMostDecimalsBelowOne : kMostDecimals;
    const int precision = std::min(style.precision, most);
    std::wstring text = dimzinText(value, precision, style.kind, style.zeroSuppression);
    if (style.units == kUserLocaleUnits)
        text = inUserLocale(text, style.zeroSuppression);
    if (style.kind == RealKind::Dimension && !style.isTolerance && precision > 0)
        text = withRaisedDecimals(text);
    if (style.decimalSeparator != 0 && style.units == kDecimalUnits) {
        const std::size_t dot = text.find(L'.');
        if (dot != std::wstring::npos)
            text[dot] = static_cast<wchar_t>(style.decimalSeparator);
    }
    return text;
}
