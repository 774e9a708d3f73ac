#include <values/real_text.h>

#include <array>
#include <cmath>
#include <limits>
#include <string>

#include "support.h"

namespace {

constexpr int kDimzin = -1;
constexpr int kDimaltz = -2;
constexpr int kDimalttz = -3;
constexpr int kDimtzin = -4;

struct Print
{
    const char* name;
    double value;
    int units;
    int precision;
    int kind;
    int zeros;
    int unitMode;
    const wchar_t* text;
};

/// Without a working database: all settings come from the header that is handed over.
class RealText : public testing::TestWithParam<Print>
{
};

void setInteger(KdDbHeaderVariables& variables, const wchar_t* name, int value)
{
    ASSERT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(name), value));
}

std::wstring print(const KdDbHeaderVariables& variables, double value, int units, int precision,
                   int kind, int zeros, int separator = 0)
{
    std::array<wchar_t, 2049> buffer;
    EXPECT_EQ(RTNORM, KdadConvertRealToStringInternal(KdDbHeaderVar(variables), value, units,
                                                      precision, buffer.data(), buffer.size(), kind,
                                                      zeros, separator));
    return buffer.data();
}

std::wstring print(double value, int units, int precision, int kind = RealKind::Plain,
                   int zeros = 0, int separator = 0)
{
    return print(KdDbHeaderVariables(), value, units, precision, kind, zeros, separator);
}

TEST_P(RealText, Prints)
{
    const Print& row = GetParam();
    KdDbHeaderVariables variables;
    setInteger(variables, L"UNITMODE", row.unitMode);
    EXPECT_EQ(row.text, print(variables, row.value, row.units, row.precision, row.kind, row.zeros));
}

// clang-format off
constexpr Print kGeneral[] = {
    {"scientific", 1234.5, 1, 2, 0, 0, 0, L"1.23E+03"},
    {"scientificNegative", -1234.5, 1, 2, 0, 0, 0, L"-1.23E+03"},
    {"scientificNegativeZero", -0.0, 1, 2, 0, 0, 0, L"0.00E+00"},
    {"scientificAtMostFifteen", 1.5, 1, 30, 0, 0, 0, L"1.500000000000000E+00"},
    {"scientificLongExponent", 1e-123, 1, 0, 0, 0, 0, L"1E-123"},
    {"decimal", 0.5, 2, 3, 0, 0, 0, L"0.500"},
    {"decimalNegative", -0.5, 2, 3, 0, 0, 0, L"-0.500"},
    {"decimalWithoutLeadingZero", 0.5, 2, 3, 0, 4, 0, L".500"},
    {"decimalWithoutTrailingZeros", 0.5, 2, 3, 0, 8, 0, L"0.5"},
    {"decimalWithoutBoth", 0.5, 2, 3, 0, 12, 0, L".5"},
    {"decimalNegativeWithoutBoth", -0.5, 2, 3, 0, 12, 0, L"-.5"},
    {"decimalZeroWithoutBoth", 0.0, 2, 3, 0, 12, 0, L"0"},
    {"decimalTieRoundsUp", 2.675, 2, 2, 0, 0, 0, L"2.68"},
    {"decimalNegativeTieRoundsAway", -2.675, 2, 2, 0, 0, 0, L"-2.68"},
    {"decimalInvisible", 0.00001, 2, 4, 0, 0, 0, L"0.0000"},
    {"decimalAtMostFifteen", 123.5, 2, 20, 0, 0, 0, L"123.500000000000000"},
    {"decimalBelowOneAtMostThirty", 0.5, 2, 40, 0, 0, 0, L"0.500000000000000000000000000000"},
    {"decimalTooLarge", 1.5e16, 2, 1, 0, 0, 0, L"1.5E+16"},
    {"decimalAtLimit", 1.0e16, 2, 0, 0, 0, 0, L"10000000000000000"},
    {"areaKeepsZeros", 0.5, 2, 3, 1, 12, 0, L"0.500"},
    {"windowsUnitsAreFractional", 2.5, 6, 1, 0, 0, 0, L"2 1/2"},
    {"fractional", 2.375, 5, 4, 0, 0, 0, L"2 3/8"},
    {"fractionalAsTyped", 2.375, 5, 4, 0, 0, 1, L"2-3/8"},
    {"fractionalBelowOne", 0.375, 5, 4, 0, 0, 0, L"3/8"},
    {"fractionalNegative", -2.375, 5, 4, 0, 0, 0, L"-2 3/8"},
    {"fractionalNegativeBelowOne", -0.375, 5, 4, 0, 0, 0, L"-3/8"},
    {"fractionalWhole", 7.0, 5, 4, 0, 0, 0, L"7"},
    {"fractionalZero", 0.0, 5, 4, 0, 0, 0, L"0"},
    {"fractionalInvisibleNegative", -0.01, 5, 1, 0, 0, 0, L"0"},
    {"fractionalFillsUp", 2.99, 5, 2, 0, 0, 0, L"3"},
    {"fractionalFillingUpLosesMinus", -0.999, 5, 1, 0, 0, 0, L"1"},
    {"fractionalWithoutFraction", 2.5, 5, 0, 0, 0, 0, L"3"},
    {"fractionalFinest", 0.5, 5, 60, 0, 0, 0, L"1/2"},
    {"fractionalLarge", 123456789012345.0, 5, 2, 0, 0, 0, L"123456789012345"},
};

constexpr Print kEngineering[] = {
    {"feetAndInches", 66.5, 3, 2, 0, 0, 0, L"5'-6.50\""},
    {"asTyped", 66.5, 3, 2, 0, 0, 1, L"5'6.50\""},
    {"negative", -66.5, 3, 2, 0, 0, 0, L"-5'-6.50\""},
    {"feetAlone", 60.0, 3, 2, 0, 0, 0, L"5'"},
    {"negativeFeetAlone", -60.0, 3, 2, 0, 0, 0, L"-5'"},
    {"feetAloneWithZeros2", 60.0, 3, 2, 0, 2, 0, L"5'"},
    {"zeroInchesReplaceFeetWithZeros1", 60.0, 3, 2, 0, 1, 0, L"0.00\""},
    {"zeroInchesReplaceFeetWithZeros3", -60.0, 3, 2, 0, 3, 0, L"0.00\""},
    {"inchesAlone", 6.5, 3, 2, 0, 0, 0, L"6.50\""},
    {"zeroFeetWithZeros1", 6.5, 3, 2, 0, 1, 0, L"0'-6.50\""},
    {"zeroFeetWithZeros1AsTyped", 6.5, 3, 2, 0, 1, 1, L"0'6.50\""},
    {"zeroFeetWithZeros2", 6.5, 3, 2, 0, 2, 0, L"0'-6.50\""},
    {"zeroFeetWithZeros5", 0.5, 3, 2, 0, 5, 0, L"0'-.50\""},
    {"noZeroFeetWithZeros3", 6.5, 3, 2, 0, 3, 0, L"6.50\""},
    {"zero", 0.0, 3, 2, 0, 0, 0, L"0.00\""},
    {"invisibleLosesMinus", -0.001, 3, 2, 0, 0, 0, L"0.00\""},
    {"zeros4DropTheLeadingZero", 0.5, 3, 2, 0, 4, 0, L".50\""},
    {"zeros4LoseTheMinusBelowOne", -0.5, 3, 2, 0, 4, 0, L".50\""},
    {"zeros7DropTheLeadingZero", -0.5, 3, 2, 0, 7, 0, L".50\""},
    {"zeros8DropTrailingZeros", 6.5, 3, 2, 0, 8, 0, L"6.5\""},
    {"zeros12DropBoth", 0.5, 3, 2, 0, 12, 0, L".5\""},
    {"zeros12BehindFeet", 60.5, 3, 2, 0, 12, 0, L"5'-.5\""},
    {"zeros13DropBoth", 0.5, 3, 2, 0, 13, 0, L"0'-.5\""},
    {"zeros15KeepTheMinus", -0.5, 3, 2, 0, 15, 0, L"-.5\""},
    {"inchesFillUpWithoutCarry", 71.999, 3, 2, 0, 0, 0, L"5'-12.00\""},
    {"areaOfWholeFeet", 288.0, 3, 0, 1, 0, 0, L"2'"},
    {"areaOfFeetAndInches", 300.0, 3, 0, 1, 0, 0, L"2'-12\""},
    {"areaBelowAFoot", 100.25, 3, 2, 1, 0, 0, L"100.25\""},
    {"areaZeros12StartAtTheDot", 0.5, 3, 2, 1, 12, 0, L".50\""},
};

constexpr Print kArchitectural[] = {
    {"all", 66.5, 4, 4, 0, 0, 0, L"5'-6 1/2\""},
    {"asTyped", 66.5, 4, 4, 0, 0, 1, L"5'6-1/2\""},
    {"negative", -66.5, 4, 4, 0, 0, 0, L"-5'-6 1/2\""},
    {"feetAndInches", 66.0, 4, 4, 0, 0, 0, L"5'-6\""},
    {"feetAlone", 60.0, 4, 4, 0, 0, 0, L"5'"},
    {"feetAndFraction", 60.5, 4, 4, 0, 0, 0, L"5'1/2\""},
    {"feetAndFractionAsTyped", 60.5, 4, 4, 0, 0, 1, L"5'0-1/2\""},
    {"inchesAlone", 6.0, 4, 4, 0, 0, 0, L"6\""},
    {"zeroFeetWithZeros1", 6.0, 4, 4, 0, 1, 0, L"0'-6\""},
    {"zeroFeetWithZeros2AsTyped", 6.0, 4, 4, 0, 2, 1, L"0'6\""},
    {"zeroFeetWithZeros13", 6.0, 4, 4, 0, 13, 0, L"0'-6\""},
    {"noZeroFeetWithZeros3", 6.0, 4, 4, 0, 3, 0, L"6\""},
    {"fractionAlone", 0.5, 4, 4, 0, 1, 0, L"1/2\""},
    {"fractionAloneAsTyped", 0.5, 4, 4, 0, 0, 1, L"0-1/2\""},
    {"zero", 0.0, 4, 4, 0, 0, 0, L"0\""},
    {"roundsToZero", 0.01, 4, 2, 0, 0, 0, L"0\""},
    {"halfOfTheFinestRoundsUp", 0.25, 4, 1, 0, 0, 0, L"1/2\""},
    {"fractionFillsInch", 6.99, 4, 2, 0, 0, 0, L"7\""},
    {"inchFillsFoot", 71.99, 4, 2, 0, 0, 0, L"6'"},
    {"withoutFraction", 6.5, 4, 0, 0, 0, 0, L"7\""},
    {"areaOfFeetAndInches", 300.0, 4, 4, 1, 0, 0, L"2'-12\""},
    {"areaBelowAFoot", 100.5, 4, 4, 1, 0, 0, L"100 1/2\""},
    {"areaFillsFoot", 143.999, 4, 4, 1, 0, 0, L"1'"},
    {"areaFillsInchBelowTwelve", 10.999, 4, 0, 1, 0, 0, L"11\""},
    {"areaFillsInchFromTwelveOnAndWithItAFoot", 20.999, 4, 0, 1, 0, 0, L"1'"},
};

constexpr Print kDimensions[] = {
    {"raisedDecimals", 12.5, 2, 2, 2, 0, 0, L"12.{\\A0;\\H0.5x;\\S5^ ;}"},
    {"noDecimalsLeft", 12.0, 2, 2, 2, 0, 0, L"12."},
    {"nothingRaisedWithoutPrecision", 12.0, 2, 0, 2, 0, 0, L"12"},
    {"nothingRaisedWithoutDot", 12.0, 2, 2, 2, 8, 0, L"12"},
    {"toleranceStaysInLine", 12.5, 2, 2, 2, kDimalttz, 0, L"12.50"},
    {"otherToleranceStaysInLine", 12.5, 2, 2, 2, kDimtzin, 0, L"12.50"},
    {"alternateIsRaised", 12.5, 2, 2, 2, kDimaltz, 0, L"12.{\\A0;\\H0.5x;\\S5^ ;}"},
    {"stackedFractional", 2.5, 7, 1, 2, 0, 0, L"2 1/2"},
    {"stackedArchitectural", 66.5, 6, 1, 2, 0, 0, L"5'-6 1/2\""},
    {"all", 66.5, 4, 1, 2, 0, 0, L"5'-6 1/2\""},
    {"negative", -66.5, 4, 1, 2, 0, 0, L"-5'-6 1/2\""},
    {"feetAlone", 60.0, 4, 1, 2, 0, 0, L"5'"},
    {"feetAloneZeros2", 60.0, 4, 1, 2, 2, 0, L"5'"},
    {"feetWithZeroInchesZeros1", 60.0, 4, 1, 2, 1, 0, L"5'-0\""},
    {"feetWithZeroInchesZeros3", 60.0, 4, 1, 2, 3, 0, L"5'-0\""},
    {"feetAndFractionZeros0", 60.5, 4, 1, 2, 0, 0, L"5'-1/2\""},
    {"feetAndFractionZeros1", 60.5, 4, 1, 2, 1, 0, L"5'-01/2\""},
    {"feetAndFractionZeros2", 60.5, 4, 1, 2, 2, 0, L"5'-01/2\""},
    {"feetAndFractionZeros3", 60.5, 4, 1, 2, 3, 0, L"5'-01/2\""},
    {"feetAndFractionZeros4", 60.5, 4, 1, 2, 4, 0, L"5'-1/2\""},
    {"feetAndFractionZeros12", 60.5, 4, 1, 2, 12, 0, L"5'-01/2\""},
    {"feetAndFractionZeros16", 60.5, 4, 1, 2, 16, 0, L"5'-0 1/2\""},
    {"inchesZeros0", 6.0, 4, 1, 2, 0, 0, L"6\""},
    {"inchesZeros1", 6.0, 4, 1, 2, 1, 0, L"0'-6\""},
    {"inchesZeros2", 6.0, 4, 1, 2, 2, 0, L"0'-6\""},
    {"inchesZeros15", 6.0, 4, 1, 2, 15, 0, L"6\""},
    {"negativeInchesLoseMinus", -6.0, 4, 1, 2, 0, 0, L"6\""},
    {"negativeInchesKeepMinusZeros1", -6.0, 4, 1, 2, 1, 0, L"-0'-6\""},
    {"fractionZeros0", 0.5, 4, 1, 2, 0, 0, L"1/2\""},
    {"fractionZeros1", 0.5, 4, 1, 2, 1, 0, L"0'-01/2\""},
    {"fractionZeros2", 0.5, 4, 1, 2, 2, 0, L"0'-01/2\""},
    {"fractionZeros3", 0.5, 4, 1, 2, 3, 0, L"1/2\""},
    {"fractionZeros12", 0.5, 4, 1, 2, 12, 0, L"1/2\""},
    {"fractionZeros16", 0.5, 4, 1, 2, 16, 0, L"0'-0 1/2\""},
    {"zeroZeros0", 0.0, 4, 1, 2, 0, 0, L"0\""},
    {"zeroZeros1", 0.0, 4, 1, 2, 1, 0, L"0'-0\""},
    {"zeroZeros2", 0.0, 4, 1, 2, 2, 0, L"0'"},
    {"belowTheFinestFraction", 0.3, 4, 1, 2, 0, 0, L"0\""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(General, RealText, testing::ValuesIn(kGeneral), RowName());
INSTANTIATE_TEST_SUITE_P(Engineering, RealText, testing::ValuesIn(kEngineering), RowName());
INSTANTIATE_TEST_SUITE_P(Architectural, RealText, testing::ValuesIn(kArchitectural), RowName());
INSTANTIATE_TEST_SUITE_P(Dimensions, RealText, testing::ValuesIn(kDimensions), RowName());

TEST(RealTextHeader, FillsWhatIsLeftOpen)
{
    KdDbHeaderVariables variables;
    setInteger(variables, L"LUNITS", 5);
    setInteger(variables, L"LUPREC", 1);
    EXPECT_EQ(L"2 1/2", print(variables, 2.5, 0, -1, RealKind::Plain, 0));
    EXPECT_EQ(L"2 1/2", print(variables, 2.5, -1, -1, RealKind::Plain, 0));
}

TEST(RealTextHeader, GivesEachZeroSuppression)
{
    KdDbHeaderVariables variables;
    setInteger(variables, L"DIMZIN", 12);
    setInteger(variables, L"DIMALTZ", 8);
    setInteger(variables, L"DIMALTTZ", 4);
    setInteger(variables, L"DIMTZIN", 0);
    EXPECT_EQ(L".5", print(variables, 0.5, 2, 2, RealKind::Plain, kDimzin));
    EXPECT_EQ(L"0.5", print(variables, 0.5, 2, 2, RealKind::Plain, kDimaltz));
    EXPECT_EQ(L".50", print(variables, 0.5, 2, 2, RealKind::Plain, kDimalttz));
    EXPECT_EQ(L"0.50", print(variables, 0.5, 2, 2, RealKind::Plain, kDimtzin));
}

TEST(RealTextSeparator, TakesThePlaceOfTheDotInDecimalUnits)
{
    EXPECT_EQ(L"0,50", print(0.5, 2, 2, RealKind::Plain, 0, L','));
    EXPECT_EQ(L"0.50", print(0.5, 2, 2, RealKind::Plain, 0, L'.'));
    EXPECT_EQ(L"0.50\"", print(0.5, 3, 2, RealKind::Plain, 0, L','));
    EXPECT_EQ(L"1,{\\A0;\\H0.5x;\\S5^ ;}", print(1.5, 2, 2, RealKind::Dimension, 0, L','));
}

TEST(RealTextFailure, IsToldByStatusAndAnEmptyText)
{
    const KdDbHeaderVariables variables;
    const KdDbHeaderVar header(variables);
    EXPECT_EQ(RTERROR, KdadConvertRealToStringInternal(header, 1.0, 2, 2, nullptr, 10, 0, 0, 0));
    std::array<wchar_t, 5> buffer{L'#', L'#', L'#', L'#', L'#'};
    EXPECT_EQ(RTERROR,
              KdadConvertRealToStringInternal(header, 12.5, 2, 2, buffer.data(), 5, 0, 0, 0));
    EXPECT_STREQ(L"", buffer.data());
    EXPECT_EQ(RTNORM,
              KdadConvertRealToStringInternal(header, 1.5, 2, 2, buffer.data(), 5, 0, 0, 0));
    EXPECT_STREQ(L"1.50", buffer.data());
}

TEST(RealTextUnits, WithoutAFormGiveAnEmptyText)
{
    EXPECT_EQ(L"", print(1.5, 9, 2, RealKind::Dimension));
}

TEST(RealTextUnits, NoValueBreaksThem)
{
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    constexpr double kLargest = std::numeric_limits<double>::max();
    for (int units = 1; units <= 8; ++units) {
        EXPECT_EQ(L"NAN", print(std::nan(""), units, 2, RealKind::Dimension));
        EXPECT_EQ(L"-INF", print(-kInfinity, units, 2, RealKind::Dimension));
        for (const double value : {kLargest, -kLargest, 5e-324})
            for (const int kind : {RealKind::Plain, RealKind::Area, RealKind::Dimension})
                EXPECT_NE(L"", print(value, units, 400, kind));
    }
}

TEST(ConvertStringWithDimzinText, KeepsWhatAnAreaShows)
{
    std::array<wchar_t, 16> buffer;
    EXPECT_EQ(1, ConvertStringWithDimzin(0.5, 3, RealKind::Area, 12, buffer.data(), 16));
    EXPECT_STREQ(L"0.500", buffer.data());
    EXPECT_EQ(1, ConvertStringWithDimzin(0.5, 3, RealKind::Dimension, 12, buffer.data(), 16));
    EXPECT_STREQ(L".5", buffer.data());
}

TEST(ConvertStringWithDimzinText, OfBareZeroStays)
{
    std::array<wchar_t, 16> buffer;
    ConvertStringWithDimzin(0.0, 0, RealKind::Plain, 12, buffer.data(), 16);
    EXPECT_STREQ(L"0", buffer.data());
}

TEST(ConvertStringWithDimzinText, OfAWholeNumberKeepsItsZeros)
{
    std::array<wchar_t, 16> buffer;
    ConvertStringWithDimzin(100.0, 0, RealKind::Plain, 12, buffer.data(), 16);
    EXPECT_STREQ(L"100", buffer.data());
}

TEST(ConvertStringWithDimzinText, MayVanishForAValueThatOnlyRoundsToZero)
{
    std::array<wchar_t, 16> buffer;
    ConvertStringWithDimzin(0.0004, 3, RealKind::Plain, 12, buffer.data(), 16);
    EXPECT_STREQ(L"", buffer.data());
}

TEST(ConvertStringWithDimzinText, IsEmptyWhereItDoesNotFit)
{
    std::array<wchar_t, 4> buffer{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(1, ConvertStringWithDimzin(12.5, 3, RealKind::Plain, 0, buffer.data(), 4));
    EXPECT_STREQ(L"", buffer.data());
}

TEST(SubConvert, BringsThePrecisionBelowItsLimit)
{
    std::array<wchar_t, 64> buffer;
    int precision = 20;
    subConvert(buffer.data(), buffer.size(), precision, -1.5, 4);
    EXPECT_EQ(3, precision);
    EXPECT_STREQ(L"-1.500E+00", buffer.data());
    subConvert(buffer.data(), buffer.size(), precision, -0.0, 16);
    EXPECT_EQ(3, precision);
    EXPECT_STREQ(L"0.000E+00", buffer.data());
}

using RealArea = UnitsTest;

TEST_F(RealArea, IsPrintedInTheUnitsOfTheWorkingDrawing)
{
    CStdStr<wchar_t> text;
    EXPECT_EQ(RTNORM, realAreaToString(300.0, -1, -1, text));
    EXPECT_STREQ(L"300.0000", text.c_str());
    set(L"LUNITS", 3);
    set(L"LUPREC", 0);
    EXPECT_EQ(RTNORM, realAreaToString(300.0, -1, -1, text));
    EXPECT_STREQ(L"2'-12\"", text.c_str());
}

TEST_F(RealArea, FollowsTheZerosOfTheDrawing)
{
    set(L"DIMZIN", 1);
    CStdStr<wchar_t> text;
    EXPECT_EQ(RTNORM, realAreaToString(6.0, 4, 2, text));
    EXPECT_STREQ(L"0'-6\"", text.c_str());
}

TEST(RealAreaAlone, FailsWithoutAWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    CStdStr<wchar_t> text = L"untouched";
    EXPECT_EQ(RTERROR, realAreaToString(1.0, 2, 2, text));
    EXPECT_STREQ(L"untouched", text.c_str());
}

} // namespace
