#include <values/distance_text.h>

#include <string>
#include <tuple>

#include "support.h"

namespace {

int read(const wchar_t* text, double& result, int units = -1)
{
    return ConvertStringToDistance(text, units, &result, false);
}

struct Accepted
{
    const char* name;
    const wchar_t* text;
    double value;
};

class AcceptedDistance : public testing::TestWithParam<Accepted>
{
};

TEST_P(AcceptedDistance, ReadsTheSameInEveryUnitMode)
{
    for (int units = -1; units <= 5; ++units) {
        double result = -99.0;
        EXPECT_EQ(RTNORM, read(GetParam().text, result, units));
        EXPECT_DOUBLE_EQ(GetParam().value, result) << "units " << units;
    }
}

// clang-format off
constexpr Accepted kAccepted[] = {
    {"whole", L"12", 12.0},
    {"dotAtEnd", L"12.", 12.0},
    {"dotAtStart", L".5", 0.5},
    {"negativeDotAtStart", L"-.5", -0.5},
    {"plus", L"+3", 3.0},
    {"blanksAround", L"  \t7.25   ", 7.25},
    {"carriageReturnEndsIt", L"8\r9", 8.0},
    {"exponent", L"1e3", 1000.0},
    {"negativeExponent", L"1.5E-2", 0.015},
    {"plusInExponent", L"1.5e+2", 150.0},
    {"exponentWithoutDigits", L"2e", 2.0},
    {"exponentOfZero", L"2e0", 2.0},
    {"exponentBehindDot", L"12.e2", 1200.0},
    {"zeroWithHugeExponent", L"0e400", 0.0},
    {"underflowToZero", L"1e-400", 0.0},
    {"smallestMagnitude", L"1.2345678e-304", 1.2345678e-304},
    {"largestMagnitude", L"1.2345678e304", 1.2345678e304},
    {"feet", L"2'", 24.0},
    {"feetAndInches", L"2'6", 30.0},
    {"feetAndMarkedInches", L"2'6\"", 30.0},
    {"feetDashInches", L"2'-6\"", 30.0},
    {"feetBlankInches", L"2' 6", 30.0},
    {"feetInchesFraction", L"2'-6 1/2\"", 30.5},
    {"feetInchesDashFraction", L"2'6-1/2\"", 30.5},
    {"feetInchesFractionUnmarked", L"2'6 1/2", 30.5},
    {"feetFraction", L"2'1/2\"", 24.5},
    {"feetDashFraction", L"2'-1/2", 24.5},
    {"feetDecimalInches", L"2'6.25", 30.25},
    {"feetMarkedDecimalInches", L"2'-6.25\"", 30.25},
    {"feetInchesDotAtEnd", L"2'6.", 30.0},
    {"feetInchesDotAtMark", L"2'6.\"", 30.0},
    {"feetDotInches", L"2'.5\"", 24.5},
    {"decimalFeet", L"1.5'", 18.0},
    {"decimalFeetFromDot", L".5'", 6.0},
    {"inches", L"3\"", 3.0},
    {"decimalInches", L"3.25\"", 3.25},
    {"inchesDotAtMark", L"3.\"", 3.0},
    {"decimalInchesFromDot", L".25\"", 0.25},
    {"fraction", L"1/2", 0.5},
    {"markedFraction", L"3/4\"", 0.75},
    {"wholeDashFraction", L"1-1/2", 1.5},
    {"wholeBlankFraction", L"1 1/2", 1.5},
    {"wholeMarkedFraction", L"1 1/2\"", 1.5},
    {"improperFraction", L"7/2", 3.5},
    {"negativeFeet", L"-1'-6", -18.0},
    {"negativeZero", L"-0", 0.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, AcceptedDistance, testing::ValuesIn(kAccepted), RowName());

struct Rejected
{
    const char* name;
    const wchar_t* text;
    int status;
};

class RejectedDistance : public testing::TestWithParam<Rejected>
{
};

TEST_P(RejectedDistance, HasItsStatus)
{
    double result = -99.0;
    EXPECT_EQ(GetParam().status, read(GetParam().text, result));
    double kept = 1.0;
    EXPECT_EQ(GetParam().status, stringToDistance(KdString(GetParam().text), -1, kept));
    EXPECT_EQ(1.0, kept) << "a caller's own value stays";
}

// clang-format off
constexpr Rejected kRejected[] = {
    {"empty", L"", RTERROR},
    {"blanks", L"   ", RTERROR},
    {"tab", L"\t", RTERROR},
    {"sign", L"-", RTERROR},
    {"twoSigns", L"--1", RTERROR},
    {"blankBehindSign", L"- 1", RTERROR},
    {"loneDot", L".", RTERROR},
    {"letters", L"abc", RTERROR},
    {"letterBehindNumber", L"12x", RTERROR},
    {"letterBehindDecimals", L"1.5x", RTERROR},
    {"twoDots", L"1.2.3", RTERROR},
    {"dotThenExponent", L".e5", RTERROR},
    {"exponentAlone", L"e5", RTERROR},
    {"otherDigits", L"\u0661\u0662", RTERROR},
    {"decimalComma", L"1,5", RTERROR},
    {"zeroDenominator", L"1/0", RTERROR},
    {"noDenominator", L"1/", RTERROR},
    {"noNumerator", L"1-/2", RTERROR},
    {"bareSlash", L"/2", RTERROR},
    {"decimalNumerator", L"1.5/2", RTERROR},
    {"decimalInFraction", L"1 1.5/2", RTERROR},
    {"decimalDenominator", L"1/2.5", RTERROR},
    {"wholeWithoutFraction", L"1-2", RTERROR},
    {"separatorAtEnd", L"1-", RTERROR},
    {"zeroDenominatorBehindWhole", L"1-1/0", RTERROR},
    {"separatorBeforeLetter", L"1-x/2", RTERROR},
    {"blankInDecimals", L"1.5 2", RTERROR},
    {"twoBlanks", L"1  1/2", RTERROR},
    {"loneInchMark", L"\"", RTERROR},
    {"loneFootMark", L"'", RTERROR},
    {"dotAtInchMark", L".\"", RTERROR},
    {"dotAtFootMark", L"2.'", RTERROR},
    {"behindInchMark", L"3\"x", RTERROR},
    {"behindInches", L"2'6x", RTERROR},
    {"behindDecimalFeet", L"1.5'6", RTERROR},
    {"feetThenSeparator", L"2'-", RTERROR},
    {"feetThenTwoDashes", L"5'--6", RTERROR},
    {"feetSeparatorDot", L"2'-.5", RTERROR},
    {"feetThenSlash", L"2'/4", RTERROR},
    {"feetTwice", L"2'3'", RTERROR},
    {"rubbishBehindExponent", L"1e5x", RTREJ},
    {"dotInExponent", L"1e5.5", RTREJ},
    {"inchMarkBehindExponent", L"1e2\"", RTREJ},
    {"tooLarge", L"1e305", RTREJ},
    {"negativeTooLarge", L"-1e305", RTREJ},
    {"tooSmall", L"1e-305", RTREJ},
    {"aboveLargest", L"1.2345679e304", RTREJ},
    {"belowSmallest", L"1.2345677e-304", RTREJ},
    {"infinite", L"1e999", RTREJ},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, RejectedDistance, testing::ValuesIn(kRejected), RowName());

TEST(Distance, NullTextLeavesTheResultAlone)
{
    double result = 4.5;
    EXPECT_EQ(RTERROR, ConvertStringToDistance(nullptr, 2, &result, false));
    EXPECT_EQ(4.5, result);
}

TEST(Distance, FailureLeavesTheSignedValueThatTheReaderGot)
{
    double result = 7.0;
    EXPECT_EQ(RTREJ, read(L"-1e305", result));
    EXPECT_DOUBLE_EQ(-1e305, result);
    EXPECT_EQ(RTERROR, read(L"abc", result));
    EXPECT_EQ(0.0, result);
}

TEST(Distance, EndsAtTheFirstXOnlyWhenAsked)
{
    double result = 0.0;
    EXPECT_EQ(RTNORM, ConvertStringToDistance(L"12x34", 2, &result, true));
    EXPECT_EQ(12.0, result);
    EXPECT_EQ(RTNORM, ConvertStringToDistance(L"5X6x7", 2, &result, true));
    EXPECT_EQ(5.0, result);
    EXPECT_EQ(RTERROR, ConvertStringToDistance(L"x5", 2, &result, true));
    EXPECT_EQ(RTERROR, ConvertStringToDistance(L"12x34", 2, &result, false));
}

TEST(Distance, ExponentsAreRoundedCorrectly)
{
    double result = 0.0;
    EXPECT_EQ(RTNORM, read(L"1.234567890123e-7", result));
    EXPECT_EQ(1.234567890123e-7, result);
}

TEST(ParseAsDecimal, TakesZeroWithAnyExponent)
{
    std::wstring text = L"0e400";
    double result = 1.0;
    EXPECT_EQ(RTNORM, parse_as_decimal(text.data(), &result));
    EXPECT_EQ(0.0, result);
}

TEST(ParseAsDecimal, RubbishBehindTheExponentLeavesZero)
{
    std::wstring text = L"1e5x";
    double result = 1.0;
    EXPECT_EQ(RTREJ, parse_as_decimal(text.data(), &result));
    EXPECT_EQ(0.0, result);
}

TEST(ParseAsDecimal, TakesNoSign)
{
    std::wstring text = L"-1";
    double result = 1.0;
    EXPECT_EQ(RTERROR, parse_as_decimal(text.data(), &result));
}

TEST(ParseAsArchitectural, TakesPlainInchesAndNoBareDecimals)
{
    std::wstring whole = L"12";
    std::wstring decimal = L"12.5";
    double result = 0.0;
    EXPECT_EQ(RTNORM, parse_as_architectural(whole.data(), &result));
    EXPECT_EQ(12.0, result);
    EXPECT_EQ(RTERROR, parse_as_architectural(decimal.data(), &result));
    EXPECT_EQ(0.0, result);
}

TEST(ParseAsArchitectural, HasNoLimitOfMagnitude)
{
    std::wstring text = std::wstring(306, L'9') + L"'";
    double result = 0.0;
    EXPECT_EQ(RTNORM, parse_as_architectural(text.data(), &result));
    EXPECT_GT(result, 1e306);
}

TEST(GatherValue, StopsBehindTheDigits)
{
    std::wstring text = L"0420x7";
    wchar_t* cursor = text.data();
    double value = -1.0;
    int digits = -1;
    gathervalue(&cursor, &value, &digits);
    EXPECT_EQ(std::make_tuple(420.0, 4, L'x'), std::make_tuple(value, digits, *cursor));
}

TEST(GatherValue, GivesZeroWhereNoDigitStands)
{
    std::wstring text = L"x7";
    wchar_t* cursor = text.data();
    double value = -1.0;
    int digits = -1;
    gathervalue(&cursor, &value, &digits);
    EXPECT_EQ(std::make_tuple(0.0, 0, text.data()), std::make_tuple(value, digits, cursor));
}

} // namespace
