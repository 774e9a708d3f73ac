#include <values/real_text.h>
#include <values/real_text_forms.h>

#include <algorithm>
#include <cmath>

#include <runtime/number_text.h>
#include <values/compare.h>

namespace {

constexpr double kZeroTolerance = 1.0e-10;
constexpr double kRealTolerance = 1.0e-11;
constexpr int kNoZeroInches = 2;
constexpr int kDecimalZeros = 12; ///< leading and trailing
constexpr int kNoTrailingZeros = 8;
constexpr int kMostFractionBits = 30;
// A half counts as one even if it comes out a little low.
constexpr double kHalf = 0.499999999995;
constexpr double kHalfUnit = 0.500000000005;
constexpr double kFullFoot = 11.99999999988;

bool isNearZero(double value)
{
    return kdadIsZero(value, kZeroTolerance);
}

bool isZero(double value)
{
    return kdadRealEqual(value, 0.0, kRealTolerance);
}

/// True where zero feet stand in front of inches.
bool showsZeroFeet(const RealStyle& style)
{
    const int zeros = style.zerosWithout(kDecimalZeros);
    return zeros == 1 || zeros == 2;
}

void startAtDot(std::wstring& text)
{
    const std::size_t dot = text.find(L'.');
    if (dot != std::wstring::npos)
        text.erase(0, dot);
}

std::wstring engineeringInches(double inches, const RealStyle& style)
{
    std::wstring text = dimzinText(inches, style.precision, style.kind, style.zeroSuppression);
    text += L'"';
    const bool dropsZeros = style.zeroSuppression >= kDecimalZeros && style.zeroSuppression <= 15;
    if (dropsZeros && inches < 1.0)
        startAtDot(text);
    return text;
}

/// True where inches below 1 show from their dot on, when no feet stand before them.
bool dropsWholeInches(const RealStyle& style)
{
    return style.zerosWithout(kNoTrailingZeros) == 4 || style.zeroSuppression == 7;
}

/// Adds half of the smallest fraction: moves `fraction` to 0 and answers true if that fills a
/// whole.
bool roundsUp(double& fraction, double half)
{
    if (half < 1.0 - fraction)
        return false;
    fraction = 0.0;
    return true;
}

/// Splits into the integer part, which it returns, and the rest.
double takeWhole(double value, double& rest)
{
    double whole = 0.0;
    rest = std::modf(value, &whole);
    return whole;
}

FeetInchesFraction splitLength(double value, const RealStyle& style)
{
    FeetInchesFraction length;
    length.denominator = denominatorOf(style);
    const double divisor = inchesPerFoot(style);
    const double half = kHalfUnit / (divisor * length.denominator);
    // The exponent is made of the denominator, as intended: only a value as good as 0 is cut.
    if (kdadIsZero(value, std::pow(10.0, -length.denominator - 1.0)))
        value = 0.0;
    length.negative = value < 0.0;
    length.magnitude = std::fabs(value);

    double rest = 0.0;
    length.feet = takeWhole(length.magnitude / divisor, rest);
    if (roundsUp(rest, half))
        length.feet += 1.0;
    length.inches = takeWhole(rest * divisor, rest);
    if (roundsUp(rest, divisor * half)) {
        length.inches += 1.0;
        if (length.inches >= kFullFoot) {
            length.inches = 0.0;
            length.feet += 1.0;
        }
    }
    length.numerator = takeWhole(rest * length.denominator, rest);
    if (rest >= kHalf)
        length.numerator += 1.0;
    while (isNearZero(std::fmod(length.numerator, 2.0)) && length.numerator > 0.0) {
        length.numerator /= 2.0;
        length.denominator /= 2;
    }
    return length;
}

std::wstring inchesAndFraction(const FeetInchesFraction& length, const RealStyle& style)
{
    const std::wstring inches = kdPrintFixed(length.inches, 0);
    const bool hasFraction = length.denominator != 1 && !isZero(length.numerator) &&
                             length.numerator != length.denominator;
    if (!hasFraction)
        return isZero(length.inches) && !isZero(length.feet) ? L"" : inches + L"\"";

    const std::wstring fraction =
        kdPrintFixed(length.numerator, 0) + L"/" + std::to_wstring(length.denominator) + L"\"";
    if (style.unitMode != 0)
        return inches + L"-" + fraction;
    return isZero(length.inches) ? fraction : inches + L" " + fraction;
}

} // namespace

double inchesPerFoot(const RealStyle& style)
{
    return style.kind == RealKind::Area ? 144.0 : 12.0;
}

int denominatorOf(const RealStyle& style)
{
    return 1 << std::clamp(style.precision, 0, kMostFractionBits);
}

std::wstring engineeringForm(double value, const RealStyle& style)
{
    std::wstring text = value < 0.0 ? L"-" : L"";
    const double divisor = inchesPerFoot(style);
    const double feet = std::trunc(std::fabs(value) / divisor);
    const double exactInches = std::fabs(std::fabs(value) - feet * divisor);
    const double inches = kdReadReal(kdPrintFixed(exactInches, style.precision));

    const bool hasFeet = !isNearZero(feet);
    if (hasFeet) {
        text += kdPrintFixed(feet, 0);
        if (inches <= 0.0 && style.zerosWithout(kNoZeroInches) != 1)
            return text + L"'";
        text += style.feetEnd();
    } else if (inches > 0.0 && showsZeroFeet(style)) {
        text += std::wstring(L"0") + style.feetEnd();
    }

    const std::wstring inchText = engineeringInches(inches, style);
    // Inches of 0 stand alone: they replace the feet and the sign.
    text = inches > 0.0 ? text + inchText : inchText;
    if (!hasFeet && dropsWholeInches(style) && isNearZero(std::trunc(inches)))
        startAtDot(text);
    return text;
}

std::wstring architecturalForm(double value, const RealStyle& style)
{
    const FeetInchesFraction length = splitLength(value, style);
    if (style.kind == RealKind::Dimension)
        return architecturalDimension(length, style);

    std::wstring text = length.negative ? L"-" : L"";
    if (!isZero(length.feet))
        text += kdPrintFixed(length.feet, 0) + (length.inches > 0.0 ? style.feetEnd() : L"'");
    else if (length.inches > 0.0 && showsZeroFeet(style))
        text += std::wstring(L"0") + style.feetEnd();
    return text + inchesAndFraction(length, style);
}
