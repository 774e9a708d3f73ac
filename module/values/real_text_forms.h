#pragma once

#include <string>

/// How one number is to be printed, with everything resolved that callers may leave open.
struct RealStyle
{
    int units;
    int precision;
    int kind;
    int zeroSuppression;
    int unitMode;
    int decimalSeparator;
    bool isTolerance; ///< the zeros came from DIMALTTZ or DIMTZIN: decimals are not raised

    /// The zero suppression without the given bits.
    int zerosWithout(int bits) const { return zeroSuppression & ~bits; }
    /// What stands between feet and inches.
    const wchar_t* feetEnd() const { return unitMode == 0 ? L"'-" : L"'"; }
};

/// Inches in a foot, or square inches in a square foot.
double inchesPerFoot(const RealStyle& style);
/// 2^precision, at most 2^30.
int denominatorOf(const RealStyle& style);

std::wstring scientificForm(double value, const RealStyle& style);
std::wstring decimalForm(double value, const RealStyle& style);
std::wstring engineeringForm(double value, const RealStyle& style);
std::wstring architecturalForm(double value, const RealStyle& style);
std::wstring fractionalForm(double value, const RealStyle& style);

/// The text of `ConvertStringWithDimzin`.
std::wstring dimzinText(double value, int precision, int kind, int zeroSuppression);

/// `text` as the user's locale writes numbers; unchanged where that cannot be found out.
std::wstring inUserLocale(const std::wstring& text, int zeroSuppression);
/// The decimals of `text`, without trailing zeros, as small and raised in-line text.
std::wstring withRaisedDecimals(const std::wstring& text);

/// A length taken apart for the architectural forms.
struct FeetInchesFraction
{
    bool negative = false;
    double magnitude = 0.0;
    double feet = 0.0;
    double inches = 0.0;
    double numerator = 0.0; ///< of the reduced fraction
    int denominator = 1;
};
/// The architectural form of a dimension, which has zero rules of its own.
std::wstring architecturalDimension(const FeetInchesFraction& length, const RealStyle& style);
