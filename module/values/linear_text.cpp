#include <values/linear_text.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <string>

#include <runtime/number_text.h>
#include <values/system_variable.h>

namespace {

constexpr int kRoom = 40;
// Sign, digit, dot, "E", its sign, three digits and the terminator leave this many.
constexpr int kMostScientificDecimals = kRoom - 9;
constexpr int kMostFractionBits = 30;
constexpr double kInchesPerFoot = 12.0;

enum ZeroSuppression
{
    kNoZeroFeet = 1,
    kNoZeroInches = 2,
    kNoLeadingZero = 4,
    kNoTrailingZeros = 8,
};

struct Style
{
    int precision;
    int zeroSuppression;
    int unitMode;

    const wchar_t* fractionSeparator() const { return unitMode == 0 ? L" " : L"-"; }
    const wchar_t* feetSeparator() const { return unitMode == 0 ? L"-" : L""; }
};

/// Length of a decimal text without its trailing zeros and a dot that is then left at the end.
int lengthWithoutTrailingZeros(const wchar_t* text, int length)
{
    if (std::find(text, text + length, L'.') == text + length)
        return length;
    while (text[length - 1] == L'0')
        --length;
    return text[length - 1] == L'.' ? length - 1 : length;
}

/// Decimals for a text of at most `room` characters, terminator included.
std::wstring decimalWithin(int room, double magnitude, const Style& style)
{
    std::array<wchar_t, kRoom> buffer;
    const int length = formatDecimal(magnitude, buffer.data(), std::min(room, kRoom),
                                     style.precision, style.zeroSuppression, L'\0', L'\0');
    return {buffer.data(), static_cast<std::size_t>(length)};
}

std::wstring scientific(double magnitude, const Style& style)
{
    return kdPrintScientific(magnitude, std::min(style.precision, kMostScientificDecimals));
}

std::wstring decimal(double magnitude, const Style& style)
{
    return decimalWithin(kRoom - 1, magnitude, style);
}

/// The feet with their mark, or nothing where they are 0 and stay away.
std::wstring leadingFeet(int feet, const Style& style)
{
    if ((style.zeroSuppression & kNoZeroFeet) && feet <= 0)
        return {};
    return std::to_wstring(feet) + L"'" + style.feetSeparator();
}

std::wstring engineering(double magnitude, const Style& style)
{
    const int feet = static_cast<int>(magnitude / kInchesPerFoot);
    std::wstring text = leadingFeet(feet, style);
    const int room = kRoom - 2 - static_cast<int>(text.size());
    const std::wstring inches = decimalWithin(room, magnitude - feet * kInchesPerFoot, style);
    return inches.empty() ? text : text + inches + L"\"";
}

/// The numerator and denominator behind their separator; nothing where the numerator is 0.
std::wstring fractionPart(int numerator, int denominator, const Style& style)
{
    if (numerator == 0)
        return {};
    return style.fractionSeparator() + std::to_wstring(numerator) + L"/" +
           std::to_wstring(denominator);
}

std::wstring architectural(double magnitude, const Style& style)
{
    const int feet = static_cast<int>(magnitude / kInchesPerFoot);
    std::wstring text = leadingFeet(feet, style);
    const bool hasFeet = !text.empty();

    int whole = 0;
    int numerator = 0;
    int denominator = 0;
    fraction(magnitude - feet * kInchesPerFoot, whole, numerator, denominator, style.precision);
    if (whole == 0 && numerator == 0 && hasFeet && (style.zeroSuppression & kNoZeroInches))
        return text;
    if (hasFeet)
        text +=
            style.feetSeparator(); // a second one on purpose: 5'--6 1/2" is what users of it know
    return text + std::to_wstring(whole) + fractionPart(numerator, denominator, style) + L"\"";
}

std::wstring fractional(double magnitude, const Style& style)
{
    int whole = 0;
    int numerator = 0;
    int denominator = 0;
    fraction(magnitude, whole, numerator, denominator, style.precision);
    return std::to_wstring(whole) + fractionPart(numerator, denominator, style);
}

int usableBits(int precision)
{
    return std::clamp(precision, 0, kMostFractionBits);
}

struct Form
{
    std::wstring (*print)(double magnitude, const Style& style);
    double largest; ///< above it the scientific form is taken
};

/// The largest length whose feet, rounded to the precision, fit an int.
double largestArchitectural(int precision)
{
    return 25769803776.0 - 1.0 / std::ldexp(1.0, usableBits(precision));
}

Form formOf(LUnits units, int precision)
{
    switch (units) {
    case LUnits::Decimal:
        return {decimal, 9999999999999998.0};
    case LUnits::Engineering:
        return {engineering, 25769803775.0};
    case LUnits::Architectural:
        return {architectural, largestArchitectural(precision)};
    case LUnits::Fractional:
        return {fractional, 2147483647.0};
    case LUnits::Scientific:
        break;
    }
    return {scientific, 0.0};
}

/// A value below 1 loses its sign when none of its decimals would show.
bool showsMinus(double value, int precision)
{
    if (value >= 0.0 || std::isnan(value))
        return false;
    if (value <= -1.0)
        return true;
    return precision > 0 && std::trunc(value * std::pow(10.0, precision)) < 0.0;
}

int toInt(double value)
{
    return std::isnan(value) ? 0 : static_cast<int>(std::clamp(value, -2147483648.0, 2147483647.0));
}

} // namespace

int formatLinear(CStdStr<wchar_t>& out, double value)
{
    return formatL(out, value, static_cast<LUnits>(shortVariable(L"LUNITS")),
                   shortVariable(L"LUPREC"), shortVariable(L"DIMZIN"), shortVariable(L"UNITMODE"),
                   L'\0', L'\0');
}

int formatL(CStdStr<wchar_t>& out, double value, LUnits units, int precision, int zeroSuppression,
            int unitMode, wchar_t /*decimalSeparator*/, wchar_t /*thousandsSeparator*/)
{
    if (units < LUnits::Scientific || units > LUnits::Fractional)
        return RTERROR;
    const Style style{precision, zeroSuppression, unitMode};
    const Form form = formOf(units, precision);
    const double magnitude = std::fabs(value);
    const bool fits = magnitude <= form.largest; // false for a NaN as well
    const std::wstring digits = (fits ? form.print : scientific)(magnitude, style);
    out = showsMinus(value, precision) ? L"-" + digits : digits;
    return RTNORM;
}

int formatDecimal(double value, wchar_t* buffer, int size, int precision, int zeroSuppression,
                  wchar_t /*decimalSeparator*/, wchar_t /*thousandsSeparator*/)
{
    if (!buffer || size <= 0)
        return 0;
    std::wstring text = kdPrintFixed(value, precision);
    const auto room = static_cast<std::size_t>(size) - 1;
    const std::size_t wholeLength = std::min(text.find(L'.'), text.size());
    if (text.size() > room)
        text.resize(wholeLength + 1 < room ? room : wholeLength);
    if (!kdCopyText(text, buffer, static_cast<unsigned long>(size)))
        return 0;

    int length = static_cast<int>(text.size());
    if ((zeroSuppression & kNoTrailingZeros) && precision > 0)
        length = lengthWithoutTrailingZeros(buffer, length);
    if ((zeroSuppression & kNoLeadingZero) && value < 1.0 && length > 1 && buffer[0] == L'0') {
        std::copy(buffer + 1, buffer + length, buffer);
        --length;
    }
    return length;
}

void fraction(double value, int& whole, int& numerator, int& denominator, int precision)
{
    denominator = 1 << usableBits(precision);
    const double rounded = std::trunc(denominator * value + 0.5) / denominator;
    whole = toInt(std::floor(rounded));
    numerator = toInt(std::trunc((rounded - std::floor(rounded)) * denominator));
    while (numerator != 0 && numerator % 2 == 0) {
        numerator /= 2;
        denominator /= 2;
    }
}
