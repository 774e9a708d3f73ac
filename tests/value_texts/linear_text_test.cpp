#include <values/linear_text.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>
#include <tuple>

#include "support.h"

namespace {

std::wstring print(double value, int units, int precision, int zeros = 0, int unitMode = 0)
{
    CStdStr<wchar_t> text = L"untouched";
    EXPECT_EQ(RTNORM, formatL(text, value, static_cast<LUnits>(units), precision, zeros, unitMode,
                              L'\0', L'\0'));
    return text;
}

struct Print
{
    const char* name;
    double value;
    int units;
    int precision;
    int zeros;
    int unitMode;
    const wchar_t* text;
};

class FormatL : public testing::TestWithParam<Print>
{
};

TEST_P(FormatL, Prints)
{
    const Print& row = GetParam();
    EXPECT_EQ(row.text, print(row.value, row.units, row.precision, row.zeros, row.unitMode));
}

// clang-format off
constexpr Print kPrints[] = {
    {"scientific", 1234.5, 1, 3, 0, 0, L"1.234E+03"},
    {"scientificLongExponent", 1.5e200, 1, 1, 0, 0, L"1.5E+200"},
    {"scientificSmallLosesMinus", -1.5e-7, 1, 3, 0, 0, L"1.500E-07"},
    {"scientificTooManyDecimals", 1.5, 1, 60, 0, 0, L"1.5000000000000000000000000000000E+00"},
    {"decimal", 12.34567, 2, 3, 0, 0, L"12.346"},
    {"decimalWithoutTrailingZeros", 12.5, 2, 4, 8, 0, L"12.5"},
    {"decimalWithoutTrailingDot", 12.0, 2, 4, 8, 0, L"12"},
    {"decimalWithoutLeadingZero", 0.25, 2, 4, 4, 0, L".2500"},
    {"decimalZeroKeepsOneDigit", 0.0, 2, 4, 12, 0, L"0"},
    {"decimalNegative", -12.5, 2, 1, 0, 0, L"-12.5"},
    {"decimalTooLarge", 1.0e17, 2, 2, 0, 0, L"1.00E+17"},
    {"decimalAtLimit", 9999999999999998.0, 2, 0, 0, 0, L"9999999999999998"},
    {"decimalTooManyDecimals", 0.5, 2, 60, 0, 0, L"0.500000000000000000000000000000000000"},
    {"minusOfInvisible", -0.0004, 2, 3, 0, 0, L"0.000"},
    {"minusOfVisible", -0.0004, 2, 4, 0, 0, L"-0.0004"},
    {"noMinusBelowOneWithoutDecimals", -0.75, 2, 0, 0, 0, L"1"},
    {"minusFromOneOn", -1.0, 2, 0, 0, 0, L"-1"},
    {"negativeZero", -0.0, 2, 2, 0, 0, L"0.00"},
    {"engineering", 66.5, 3, 2, 0, 0, L"5'-6.50\""},
    {"engineeringAsTyped", 66.5, 3, 2, 0, 1, L"5'6.50\""},
    {"engineeringZeroFeet", 6.5, 3, 2, 0, 0, L"0'-6.50\""},
    {"engineeringWithoutZeroFeet", 6.5, 3, 2, 1, 0, L"6.50\""},
    {"engineeringZeroInchesStay", 60.0, 3, 1, 3, 0, L"5'-0.0\""},
    {"engineeringNegative", -66.5, 3, 1, 0, 0, L"-5'-6.5\""},
    {"engineeringTooLarge", 25769803776.0, 3, 1, 0, 0, L"2.6E+10"},
    {"engineeringTooManyDecimals", 66.5, 3, 60, 0, 0, L"5'-6.50000000000000000000000000000000\""},
    {"architecturalTwoDashes", 66.5, 4, 1, 0, 0, L"5'--6 1/2\""},
    {"architecturalAsTyped", 66.5, 4, 1, 0, 1, L"5'6-1/2\""},
    {"architecturalZeroFeet", 6.5, 4, 1, 0, 0, L"0'--6 1/2\""},
    {"architecturalWithoutZeroFeet", 6.5, 4, 1, 1, 0, L"6 1/2\""},
    {"architecturalZeroInchesStay", 60.0, 4, 1, 0, 0, L"5'--0\""},
    {"architecturalOneDashWithoutZeroInches", 60.0, 4, 1, 2, 0, L"5'-"},
    {"architecturalWithoutZeroInchesAsTyped", 60.0, 4, 1, 2, 1, L"5'"},
    {"architecturalZeroInchesStayWithoutFeet", 0.0, 4, 1, 3, 0, L"0\""},
    {"architecturalWholeOfZero", 0.5, 4, 4, 1, 0, L"0 1/2\""},
    {"architecturalInchesFillUp", 11.99, 4, 1, 1, 0, L"12\""},
    {"architecturalNegative", -66.5, 4, 1, 0, 1, L"-5'6-1/2\""},
    {"architecturalTooLarge", 25769803775.75, 4, 1, 0, 0, L"2.6E+10"},
    {"architecturalAtLimit", 25769803775.5, 4, 1, 0, 1, L"2147483647'11-1/2\""},
    {"fractional", 2.375, 5, 4, 0, 0, L"2 3/8"},
    {"fractionalAsTyped", 2.375, 5, 4, 0, 1, L"2-3/8"},
    {"fractionalBelowOne", 0.375, 5, 4, 0, 0, L"0 3/8"},
    {"fractionalWhole", 7.0, 5, 4, 0, 0, L"7"},
    {"fractionalNegative", -2.5, 5, 1, 0, 0, L"-2 1/2"},
    {"fractionalTooLarge", 2147483648.0, 5, 1, 0, 0, L"2.1E+09"},
    {"fractionalAtLimit", 2147483647.0, 5, 1, 0, 0, L"2147483647"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Units, FormatL, testing::ValuesIn(kPrints), RowName());

TEST(FormatLUnits, OutsideOfOneToFiveLeaveTheTextAlone)
{
    for (const int units : {0, 6, -1}) {
        CStdStr<wchar_t> text = L"untouched";
        EXPECT_EQ(RTERROR, formatL(text, 1.0, static_cast<LUnits>(units), 2, 0, 0, L'\0', L'\0'));
        EXPECT_STREQ(L"untouched", text.c_str());
    }
}

TEST(FormatLUnits, NoValueBreaksThem)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (int units = 1; units <= 5; ++units) {
        EXPECT_EQ(L"NAN", print(std::nan(""), units, 2));
        EXPECT_EQ(L"-INF", print(-kInfinity, units, 2));
        EXPECT_EQ(L"-1.80E+308", print(-std::numeric_limits<double>::max(), units, 2));
    }
}

TEST(FormatLUnits, TextsStayBelowFortyCharacters)
{
    for (int units = 1; units <= 5; ++units)
        for (const double value : {-9999999999999998.0, -25769803775.0, -2147483646.9, -1.5e-300})
            for (const int precision : {0, 8, 22, 30, 31, 400})
                EXPECT_LT(print(value, units, precision).size(), 40u);
}

using FormatLinear = UnitsTest;

TEST_F(FormatLinear, FollowsTheSystemVariables)
{
    set(L"LUNITS", 4);
    set(L"LUPREC", 2);
    set(L"DIMZIN", 1);
    set(L"UNITMODE", 1);
    CStdStr<wchar_t> text;
    EXPECT_EQ(RTNORM, formatLinear(text, 66.25));
    EXPECT_STREQ(L"5'6-1/4\"", text.c_str());
    EXPECT_EQ(RTNORM, formatLinear(text, 6.25));
    EXPECT_STREQ(L"6-1/4\"", text.c_str());
}

TEST(FormatLinearAlone, HasNoUnitsWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    CStdStr<wchar_t> text = L"untouched";
    EXPECT_EQ(RTERROR, formatLinear(text, 1.0));
    EXPECT_STREQ(L"untouched", text.c_str());
}

std::wstring decimal(double value, int size, int precision, int zeros)
{
    std::array<wchar_t, 64> buffer;
    buffer.fill(L'#');
    const int length = formatDecimal(value, buffer.data(), size, precision, zeros, L',', L'.');
    EXPECT_EQ(L'#', buffer[static_cast<std::size_t>(size)]) << "wrote behind its room";
    return {buffer.data(), static_cast<std::size_t>(length)};
}

TEST(FormatDecimal, LeavesZerosOutByLength)
{
    std::array<wchar_t, 16> buffer;
    EXPECT_EQ(2, formatDecimal(0.5, buffer.data(), 16, 3, 12, L'\0', L'\0'));
    EXPECT_EQ(L".5", std::wstring(buffer.data(), 2));
}

TEST(FormatDecimal, TellsZerosByTheirBits)
{
    EXPECT_EQ(L"0.500", decimal(0.5, 16, 3, 0));
    EXPECT_EQ(L".500", decimal(0.5, 16, 3, 4));
    EXPECT_EQ(L"0.5", decimal(0.5, 16, 3, 8));
    EXPECT_EQ(L"5", decimal(5.0, 16, 3, 8));
    EXPECT_EQ(L"0", decimal(0.0, 16, 3, 12));
    EXPECT_EQ(L"500", decimal(500.0, 16, 0, 12));
    EXPECT_EQ(L"-0.5", decimal(-0.5, 16, 3, 12)) << "the sign stands before the zero";
}

TEST(FormatDecimal, IgnoresTheSeparators)
{
    EXPECT_EQ(L"1234567.5", decimal(1234567.5, 16, 1, 0));
}

TEST(FormatDecimal, NegativePrecisionCountsAsSix)
{
    EXPECT_EQ(L"0.500000", decimal(0.5, 16, -1, 0));
}

TEST(FormatDecimal, LeavesOutDecimalsThatDoNotFit)
{
    EXPECT_EQ(L"123.4", decimal(123.4375, 6, 4, 0));
    EXPECT_EQ(L"123", decimal(123.4375, 5, 4, 0));
    EXPECT_EQ(L"123", decimal(123.4375, 4, 4, 8));
    EXPECT_EQ(L"", decimal(123.4375, 3, 4, 0)) << "half a number would be another number";
    EXPECT_EQ(0, formatDecimal(1.0, nullptr, 5, 2, 0, L'\0', L'\0'));
    EXPECT_EQ(L"", decimal(1.0, 0, 2, 0));
}

std::tuple<int, int, int> split(double value, int precision)
{
    int whole = -1;
    int numerator = -1;
    int denominator = -1;
    fraction(value, whole, numerator, denominator, precision);
    return {whole, numerator, denominator};
}

TEST(Fraction, IsReduced)
{
    EXPECT_EQ(std::make_tuple(2, 3, 8), split(2.375, 4));
    EXPECT_EQ(std::make_tuple(0, 1, 2), split(0.5, 8));
}

TEST(Fraction, OfZeroKeepsItsDenominator)
{
    EXPECT_EQ(std::make_tuple(2, 0, 16), split(2.0, 4));
    EXPECT_EQ(std::make_tuple(3, 0, 1), split(2.5, 0));
}

TEST(Fraction, TruncatesTowardsZeroBelowIt)
{
    // -2.375 * 16 + 0.5 is -37.5, cut to -37 sixteenths: -3 and 11/16.
    EXPECT_EQ(std::make_tuple(-3, 11, 16), split(-2.375, 4));
}

TEST(Fraction, StaysWithinItsTypes)
{
    EXPECT_EQ(std::make_tuple(2147483647, 0, 2), split(1e300, 1));
    EXPECT_EQ(std::make_tuple(0, 0, 2), split(std::nan(""), 1));
    EXPECT_EQ(std::make_tuple(1, 1, 2), split(1.5, 99));
    EXPECT_EQ(std::make_tuple(2, 0, 1), split(1.5, -3));
}

} // namespace
