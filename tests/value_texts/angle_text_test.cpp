#include <values/angle_text.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <numbers>
#include <string>

#include <editor/system_variables.h>
#include <values/degree_mark.h>

#include "support.h"

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDegree = kPi / 180.0;

struct Accepted
{
    const char* name;
    const wchar_t* text;
    int units;
    double angle;
};

class AcceptedAngle : public UnitsTest, public testing::WithParamInterface<Accepted>
{
};

TEST_P(AcceptedAngle, IsReadAsRadians)
{
    double angle = -99.0;
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(0, GetParam().text, GetParam().units, &angle));
    EXPECT_NEAR(GetParam().angle, angle, 1e-9);
}

// clang-format off
constexpr Accepted kByLetter[] = {
    {"bare", L"90", -1, kPi / 2},
    {"degrees", L"90d", -1, kPi / 2},
    {"degreesInUpperCase", L"90D", 3, kPi / 2},
    {"degreesEndAtTheirLetter", L"45dxyz", -1, kPi / 4},
    {"decimalDegrees", L"45.5d", -1, 45.5 * kDegree},
    {"fromDot", L".5d", -1, 0.5 * kDegree},
    {"minusAlone", L"-", 0, 0.0},
    {"outerSpace", L" \t90\n", -1, kPi / 2},
    {"underscore", L"_90", -1, kPi / 2},
    {"grads", L"100g", -1, kPi / 2},
    {"gradsInUpperCase", L"100G", 0, kPi / 2},
    {"gradsIgnoreWhatFollows", L"100xg", -1, kPi / 2},
    {"gradsWinOverRadians", L"100rg", -1, kPi / 2},
    {"radians", L"1.5707963r", -1, 1.5707963},
    {"radiansInUpperCase", L"1.5R", 0, 1.5},
    {"radiansWinOverDegrees", L"1.5dr", -1, 1.5},
    {"minutes", L"45d30'", -1, 45.5 * kDegree},
    {"seconds", L"45d30'15\"", -1, (45.5 + 15.0 / 3600.0) * kDegree},
    {"minutesAlone", L"30'", -1, 0.5 * kDegree},
    {"negativeMinutes", L"-30'", -1, 2 * kPi - 0.5 * kDegree},
    {"negative", L"-90", -1, 3 * kPi / 2},
    {"moreThanATurn", L"450", -1, kPi / 2},
    {"tooFarToNormalise", L"2000000r", -1, 0.0},
};

constexpr Accepted kByUnits[] = {
    {"degrees", L"90", 0, kPi / 2},
    {"degreesMinutesSeconds", L"90", 1, kPi / 2},
    {"emptyDegreesMinutesSeconds", L"", 1, 0.0},
    {"grads", L"100", 2, kPi / 2},
    {"radians", L"1.5", 3, 1.5},
    {"surveyor", L"90", 4, kPi / 2},
    {"aboveSurveyor", L"90", 77, kPi / 2},
};

constexpr Accepted kSurveyor[] = {
    {"northEast", L"N45dE", -1, kPi / 4},
    {"northWest", L"N45dW", -1, 3 * kPi / 4},
    {"southEast", L"S45dE", -1, 7 * kPi / 4},
    {"southWest", L"S45dW", -1, 5 * kPi / 4},
    {"inLowerCase", L"n45dw", -1, 3 * kPi / 4},
    {"withBlanks", L"N 45d30'15\" E", -1, kPi / 2 - (45.5 + 15.0 / 3600.0) * kDegree},
    {"bareNumber", L"S45E", -1, 7 * kPi / 4},
    {"decimalsFromTheSouth", L"S45.5dE", -1, 3 * kPi / 2 + 45.5 * kDegree},
    {"noAngle", L"N0dE", -1, kPi / 2},
    {"fullQuarter", L"N90dE", -1, 0.0},
    {"northAlone", L"N", -1, kPi / 2},
    {"southAlone", L"s", -1, 3 * kPi / 2},
    {"east", L"E", -1, 0.0},
    {"west", L"W", -1, kPi},
    {"eastWhateverFollows", L"E123", -1, 0.0},
    {"westWhateverFollows", L"wxyz", -1, kPi},
    {"numberUpToItsD", L"45d e", -1, kPi / 4},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(ByLetter, AcceptedAngle, testing::ValuesIn(kByLetter), RowName());
INSTANTIATE_TEST_SUITE_P(ByUnits, AcceptedAngle, testing::ValuesIn(kByUnits), RowName());
INSTANTIATE_TEST_SUITE_P(Surveyor, AcceptedAngle, testing::ValuesIn(kSurveyor), RowName());

struct Rejected
{
    const char* name;
    const wchar_t* text;
    int units;
};

class RejectedAngle : public UnitsTest, public testing::WithParamInterface<Rejected>
{
};

TEST_P(RejectedAngle, LeavesTheResultAlone)
{
    double angle = 4.5;
    EXPECT_EQ(RTERROR, ConvertAngleToFloat(0, GetParam().text, GetParam().units, &angle));
    EXPECT_EQ(RTERROR, stringToAngle(0, KdString(GetParam().text), GetParam().units, angle));
    EXPECT_EQ(4.5, angle);
}

// clang-format off
constexpr Rejected kRejected[] = {
    {"empty", L"", -1},
    {"blanks", L"   ", 0},
    {"emptySurveyor", L"", 4},
    {"letters", L"x", 0},
    {"letterBehindDegrees", L"12x", 0},
    {"signInside", L"12-3", 0},
    {"plus", L"+12", 0},
    {"degreeLetterAlone", L"d", -1},
    {"gradsWithoutNumber", L"g100", -1},
    {"radiansWithoutNumber", L"r1", -1},
    {"exponent", L"1e3", -1},
    {"exponentInDegrees", L"1e3", 0},
    {"minutesOutOfOrder", L"10'5d", -1},
    {"numberBehindMarks", L"45d30'15", -1},
    {"twoUnderscores", L"__90", 0},
    {"tooLarge", L"10000000001r", -1},
    {"infinite", L"1" "0000000000000000000000000000000000000000000000000000000000000000000000r", -1},
    {"minusInSurveyorNumber", L"4-5", 4},
    {"otherLetterInSurveyor", L"x45", 4},
    {"decimalsFromTheNorth", L"N45.5dE", -1},
    {"bearingAboveAQuarter", L"N95dE", -1},
    {"bearingJustAboveAQuarter", L"S90d0'1\"E", -1},
    {"bearingWithoutAngle", L"NE", -1},
    {"bearingWithoutSide", L"N45d", -1},
    {"bearingWithBadSide", L"N45dN", -1},
    {"bearingWithMore", L"N45dEE", -1},
    {"bearingWithTwoBlanks", L"N  45dE", -1},
    {"bearingWithTwoBlanksBehind", L"N45d  E", -1},
    {"negativeBearing", L"N-45dE", -1},
    {"bearingFromDot", L"S.5dE", -1},
    {"bearingWithBadAngle", L"N10'5dE", -1},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, RejectedAngle, testing::ValuesIn(kRejected), RowName());

using Angle = UnitsTest;

TEST_F(Angle, NullTextIsRefused)
{
    double angle = 4.5;
    EXPECT_EQ(RTERROR, ConvertAngleToFloat(0, nullptr, 0, &angle));
    EXPECT_EQ(4.5, angle);
}

TEST_F(Angle, BareNumbersFollowTheDrawing)
{
    double angle = 0.0;
    set(L"AUNITS", 2);
    EXPECT_EQ(RTNORM, stringToAngle(0, KdString(L"100"), -1, angle));
    EXPECT_NEAR(kPi / 2, angle, 1e-12);
    set(L"AUNITS", 3);
    EXPECT_EQ(RTNORM, stringToAngle(0, KdString(L"1.25"), -1, angle));
    EXPECT_DOUBLE_EQ(1.25, angle);
}

TEST_F(Angle, UnknownUnitsOfTheDrawingAreRefused)
{
    double angle = 0.0;
    set(L"AUNITS", 5);
    EXPECT_EQ(RTERROR, stringToAngle(0, KdString(L"100"), -1, angle));
    EXPECT_EQ(RTNORM, stringToAngle(0, KdString(L"100g"), -1, angle)) << "the letter decides";
    set(L"AUNITS", -1);
    EXPECT_EQ(RTERROR, stringToAngle(0, KdString(L"100"), -1, angle));
}

TEST_F(Angle, ClockwiseDrawingsReverseIt)
{
    double angle = 0.0;
    set(L"ANGDIR", 1);
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(0, L"90", 0, &angle));
    EXPECT_NEAR(3 * kPi / 2, angle, 1e-12);
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(AngleFlags::KeepTurns, L"90", 0, &angle));
    EXPECT_NEAR(-kPi / 2, angle, 1e-12);
}

TEST_F(Angle, FlagsKeepTheFrameAndTheTurns)
{
    double angle = 0.0;
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(AngleFlags::KeepTurns, L"450", 0, &angle));
    EXPECT_NEAR(2.5 * kPi, angle, 1e-12);
    set(L"ANGDIR", 1);
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(AngleFlags::KeepFrame, L"90", 0, &angle));
    EXPECT_NEAR(3 * kPi / 2, angle, 1e-12) << "reversed at the end instead";
    const int kept = AngleFlags::KeepFrame | AngleFlags::KeepDirection;
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(kept, L"90", 0, &angle));
    EXPECT_NEAR(kPi / 2, angle, 1e-12);
}

TEST_F(Angle, TakesOnlyTheLowBitsOfTheBase)
{
    double angle = 0.0;
    set(L"ANGBASE", 1.0); // its low bits are all 0
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(0, L"90", 0, &angle));
    EXPECT_NEAR(kPi / 2, angle, 1e-12);
    set(L"ANGBASE", std::nextafter(1.0, 2.0)); // and now they are 1
    EXPECT_EQ(RTNORM, ConvertAngleToFloat(0, L"90", 0, &angle));
    EXPECT_NEAR(kPi / 2 + 1.0, angle, 1e-12);
}

void setDegreeSign(short value)
{
    resbuf variable{};
    variable.restype = RTSHORT;
    variable.resval.rint = value;
    ASSERT_EQ(RTNORM, kdedSetVar(L"USEDEGREESYM", &variable));
}

// The mark changes for the life of a process, so this runs in one of its own.
TEST(DegreeMarkDeathTest, StaysChangedOnceItIsALetter)
{
    EXPECT_EXIT(
        {
            setDegreeSign(1);
            const bool sign = std::wstring(GetDegreesSymbol()) == L"\u00B0";
            setDegreeSign(0);
            const bool letter = std::wstring(GetDegreesSymbol()) == L"d";
            setDegreeSign(1);
            const bool stays = std::wstring(GetDegreesSymbol()) == L"d";
            const bool apart = std::wstring(KdadGetDegreesSymbol()) == L"\u00B0";
            std::exit(sign && letter && stays && apart ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

TEST(DegreeMarkDeathTest, IsReadInAngles)
{
    EXPECT_EXIT(
        {
            double angle = 0.0;
            setDegreeSign(1);
            const int status = ConvertAngleToFloat(0, L"45\u00B030'", 0, &angle);
            std::exit(status == RTNORM && std::fabs(angle - 45.5 * kDegree) < 1e-12 ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

struct Radians
{
    const char* name;
    const wchar_t* text;
    double degrees;
};

class AcceptedRadians : public testing::TestWithParam<Radians>
{
};

TEST_P(AcceptedRadians, AreReadWithTheirSign)
{
    std::wstring text = GetParam().text;
    double angle = -99.0;
    EXPECT_EQ(RTNORM, ConvertToRadians(text.data(), &angle));
    EXPECT_NEAR(GetParam().degrees * kDegree, angle, 1e-12);
}

// clang-format off
constexpr Radians kRadians[] = {
    {"empty", L"", 0.0},
    {"minusAlone", L"-", 0.0},
    {"bare", L"45.25", 45.25},
    {"bareNegative", L"-45.25", -45.25},
    {"bareBeyondATurn", L"725", 725.0},
    {"degrees", L"45d", 45.0},
    {"all", L"10d20'30\"", 10.0 + 20.0 / 60.0 + 30.0 / 3600.0},
    {"allNegative", L"-10D20'30.5\"", -(10.0 + 20.0 / 60.0 + 30.5 / 3600.0)},
    {"degreesAndSeconds", L"10d36\"", 10.01},
    {"secondsAlone", L"36\"", 0.01},
    {"minusAtEachRun", L"--10d-30'", -10.5},
    {"beyondHalfATurn", L"270d", -90.0},
    {"negativeBeyondHalfATurn", L"-270d", 90.0},
    {"beyondATurn", L"730d", 10.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, AcceptedRadians, testing::ValuesIn(kRadians), RowName());

TEST(ConvertToRadiansText, RefusesWhatIsNotFinite)
{
    for (const wchar_t* end : {L"", L"d", L"'"}) {
        std::wstring text = std::wstring(400, L'9') + end;
        double angle = 4.5;
        EXPECT_EQ(RTERROR, ConvertToRadians(text.data(), &angle));
        EXPECT_EQ(4.5, angle);
    }
}

TEST(ConvertToRadiansText, RefusesMarksOutOfOrder)
{
    for (const wchar_t* bad : {L"10'5d", L"10\"5'", L"10d5d", L"10'5'", L"10\"5\"", L"10\"5d",
                               L"10d5", L"10d5'3", L"10x", L"10d x", L"+10"}) {
        std::wstring text = bad;
        double angle = 4.5;
        EXPECT_EQ(RTERROR, ConvertToRadians(text.data(), &angle));
        EXPECT_EQ(4.5, angle);
    }
    double angle = 4.5;
    EXPECT_EQ(RTERROR, ConvertToRadians(nullptr, &angle));
    EXPECT_EQ(4.5, angle);
}

double normalised(double angle)
{
    normalizeAngle(&angle, nullptr);
    return angle;
}

TEST(NormalizeAngle, BringsIntoOneTurn)
{
    EXPECT_EQ(1.5, normalised(1.5));
    EXPECT_NEAR(1.5 * kPi, normalised(-kPi / 2), 1e-12);
    EXPECT_NEAR(kPi, normalised(7 * kPi), 1e-12);
    EXPECT_NEAR(std::fmod(999999.0, 2 * kPi), normalised(999999.0), 1e-6);
    EXPECT_NEAR(std::fmod(-999999.0, 2 * kPi) + 2 * kPi, normalised(-999999.0), 1e-6);
}

TEST(NormalizeAngle, LeavesWhatIsWithinItsSlack)
{
    EXPECT_EQ(-5e-11, normalised(-5e-11));
    EXPECT_EQ(2 * kPi, normalised(2 * kPi));
    EXPECT_NEAR(2 * kPi, normalised(-2e-10), 1e-9);
}

TEST(NormalizeAngle, MakesZeroOfWhatIsNoUsualNumber)
{
    for (const double bad :
         {std::nan(""), std::numeric_limits<double>::infinity(), 5e-324, 2e6, -2e6}) {
        double end = 9.0;
        double start = bad;
        normalizeAngle(&start, &end);
        EXPECT_EQ(0.0, start);
        EXPECT_EQ(9.0, end) << "the end is not reached";
        start = 1.0;
        end = bad;
        normalizeAngle(&start, &end);
        EXPECT_EQ(1.0, start);
        EXPECT_EQ(0.0, end) << "and not moved above the start";
    }
}

TEST(NormalizeAngle, PutsTheEndBehindTheStart)
{
    double start = 1.0;
    double end = 0.5;
    normalizeAngle(&start, &end);
    EXPECT_EQ(1.0, start);
    EXPECT_DOUBLE_EQ(0.5 + 2 * kPi, end);
    end = 700001.0;
    normalizeAngle(&start, &end);
    EXPECT_NEAR(std::fmod(700001.0, 2 * kPi), end, 1e-6);
}

} // namespace
