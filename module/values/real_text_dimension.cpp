#include <values/real_text_forms.h>

#include <runtime/number_text.h>

namespace {

/// Zero suppressions under which feet of 0 stay away.
constexpr bool dropsZeroFeet(int zeros)
{
    return zeros >= 0 && zeros <= 15 && (zeros % 4 == 0 || zeros % 4 == 3);
}

/// True where nothing stands before the fraction of an inch when feet and inches are 0.
bool startsAtFraction(int zeros, bool hasFeet)
{
    if (zeros % 2 == 0)
        return zeros == 0 || zeros == 4 || zeros == 8 || (zeros == 12 && !hasFeet);
    return zeros % 4 == 3 && !hasFeet;
}

std::wstring fractionOf(const FeetInchesFraction& length)
{
    return kdPrintFixed(length.numerator, 0) + L"/" + std::to_wstring(length.denominator) + L"\"";
}

std::wstring wholeInches(const FeetInchesFraction& length)
{
    const std::wstring inches = kdPrintFixed(length.inches, 0);
    return length.numerator > 0.0 ? inches + L" " + fractionOf(length) : inches + L"\"";
}

std::wstring inchText(const FeetInchesFraction& length, int zeros)
{
    if (length.inches > 0.0 || zeros < 0 || zeros > 15)
        return wholeInches(length);
    if (length.numerator <= 0.0)
        return zeros % 2 == 0 ? L"" : L"0\"";
    const bool bare = startsAtFraction(zeros, length.feet > 0.0);
    return (bare ? L"" : L"0") + fractionOf(length); // the 0 without a blank, as intended
}

} // namespace

std::wstring architecturalDimension(const FeetInchesFraction& length, const RealStyle& style)
{
    const std::wstring inches = inchText(length, style.zeroSuppression);
    if (length.feet <= 0.0 && dropsZeroFeet(style.zeroSuppression)) {
        const bool isInvisible = length.magnitude < 1.0 / denominatorOf(style);
        return isInvisible ? L"0\"" : inches;
    }
    const std::wstring feet = (length.negative ? L"-" : L"") + kdPrintFixed(length.feet, 0) + L"'";
    return inches.empty() ? feet : feet + L"-" + inches;
}

std::wstring withRaisedDecimals(const std::wstring& text)
{
    const std::size_t dot = text.rfind(L'.');
    if (dot == std::wstring::npos)
        return text;
    const std::wstring upToDot = text.substr(0, dot + 1);
    std::wstring decimals = text.substr(dot + 1);
    decimals.erase(decimals.find_last_not_of(L'0') + 1);
    return decimals.empty() ? upToDot : upToDot + L"{\\A0;\\H0.5x;\\S" + decimals + L"^ ;}";
}
