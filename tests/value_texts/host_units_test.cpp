#include <editor/units.h>

#include <array>
#include <cmath>
#include <numbers>
#include <optional>
#include <string>

#include "support.h"

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kDegree = kPi / 180.0;

struct Real
{
    const char* name;
    double value;
    int units;
    int precision;
    int zeros;
    int unitMode;
    const wchar_t* text;
};

class RealInUnits : public UnitsTest, public testing::WithParamInterface<Real>
{
};

TEST_P(RealInUnits, IsPrinted)
{
    set(L"DIMZIN", GetParam().zeros);
    set(L"UNITMODE", GetParam().unitMode);
    std::array<wchar_t, 256> buffer;
    EXPECT_EQ(RTNORM, kddbRToS(GetParam().value, GetParam().units, GetParam().precision,
                               buffer.data(), buffer.size()));
    EXPECT_STREQ(GetParam().text, buffer.data());
}

// clang-format off
constexpr Real kReals[] = {
    {"scientific", 17.5, 1, 4, 0, 0, L"1.7500E+01"},
    {"scientificNegative", -0.00175, 1, 2, 0, 0, L"-1.75E-03"},
    {"scientificZero", -0.0, 1, 2, 0, 0, L"0.00E+00"},
    {"decimal", 17.5, 2, 4, 0, 0, L"17.5000"},
    {"decimalNegative", -17.5, 2, 0, 0, 0, L"-18"},
    {"decimalTieRoundsUp", 0.125, 2, 2, 0, 0, L"0.13"},
    {"decimalTieJustBelowRoundsUp", 2.675, 2, 2, 0, 0, L"2.68"},
    {"decimalInvisibleHasNoSign", -0.00001, 2, 4, 0, 0, L"0.0000"},
    {"decimalWithoutLeadingZero", -0.5, 2, 4, 4, 0, L"-.5000"},
    {"decimalWithoutTrailingZeros", 0.5, 2, 4, 8, 0, L"0.5"},
    {"decimalWithoutBoth", 0.5, 2, 4, 12, 0, L".5"},
    {"decimalZeroWithoutBoth", 0.0, 2, 4, 12, 0, L"0"},
    {"decimalWholeWithoutTrailingZeros", 100.0, 2, 4, 8, 0, L"100"},
    {"decimalWithoutPrecision", 100.0, 2, 0, 12, 0, L"100"},
    {"decimalHuge", 1.0e20, 2, 2, 0, 0, L"1.00E+20"},
    {"engineering", 17.5, 3, 4, 0, 0, L"1'-5.5000\""},
    {"engineeringAsTyped", 17.5, 3, 4, 0, 1, L"1'5.5000\""},
    {"engineeringNegative", -17.5, 3, 1, 0, 0, L"-1'-5.5\""},
    {"engineeringWithoutTrailingZeros", 17.5, 3, 4, 8, 0, L"1'-5.5\""},
    {"engineeringLeadingZeroBehindFeet", 12.5, 3, 1, 4, 0, L"1'-0.5\""},
    {"engineeringLeadingZeroAlone", 0.5, 3, 1, 4, 0, L".5\""},
    {"engineeringZeros0", 24.0, 3, 2, 0, 0, L"2'"},
    {"engineeringZeros1", 24.0, 3, 2, 1, 0, L"2'-0.00\""},
    {"engineeringZeros2", 6.0, 3, 2, 2, 0, L"0'-6.00\""},
    {"engineeringZeros3", 24.0, 3, 2, 3, 0, L"2'-0.00\""},
    {"engineeringInchesFillAFoot", 23.999, 3, 2, 0, 0, L"2'"},
    {"engineeringZero", 0.0, 3, 2, 0, 0, L"0.00\""},
    {"architectural", 17.5, 4, 4, 0, 0, L"1'-5 1/2\""},
    {"architecturalAsTyped", 17.5, 4, 4, 0, 1, L"1'5-1/2\""},
    {"architecturalNegative", -17.5, 4, 4, 0, 0, L"-1'-5 1/2\""},
    {"architecturalInchFillsAFoot", 11.99, 4, 2, 0, 0, L"1'"},
    {"architecturalFractionZeros0", 0.5, 4, 4, 0, 0, L"1/2\""},
    {"architecturalInchesZeros0", 6.0, 4, 4, 0, 0, L"6\""},
    {"architecturalFeetZeros0", 12.0, 4, 4, 0, 0, L"1'"},
    {"architecturalFeetFractionZeros0", 12.75, 4, 4, 0, 0, L"1'-0 3/4\""},
    {"architecturalFractionZeros1", 0.5, 4, 4, 1, 0, L"0'-0 1/2\""},
    {"architecturalInchesZeros1", 6.0, 4, 4, 1, 0, L"0'-6\""},
    {"architecturalFeetZeros1", 12.0, 4, 4, 1, 0, L"1'-0\""},
    {"architecturalFractionZeros2", 0.5, 4, 4, 2, 0, L"0'-0 1/2\""},
    {"architecturalInchesZeros2", 6.0, 4, 4, 2, 0, L"0'-6\""},
    {"architecturalFeetZeros2", 12.0, 4, 4, 2, 0, L"1'"},
    {"architecturalFractionZeros3", 0.5, 4, 4, 3, 0, L"1/2\""},
    {"architecturalInchesZeros3", 6.0, 4, 4, 3, 0, L"6\""},
    {"architecturalFeetZeros3", 12.0, 4, 4, 3, 0, L"1'-0\""},
    {"architecturalZero", 0.0, 4, 4, 0, 0, L"0\""},
    {"architecturalInvisibleHasNoSign", -0.01, 4, 2, 0, 0, L"0\""},
    {"architecturalHuge", 1.0e20, 4, 2, 0, 0, L"1.00E+20"},
    {"fractional", 17.5, 5, 4, 0, 0, L"17 1/2"},
    {"fractionalAsTyped", 17.5, 5, 4, 0, 1, L"17-1/2"},
    {"fractionalNegativeBelowOne", -0.375, 5, 4, 0, 0, L"-3/8"},
    {"fractionalFillsUp", -1.999, 5, 2, 0, 0, L"-2"},
    {"fractionalHuge", 1.0e20, 5, 2, 0, 0, L"1.00E+20"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Host, RealInUnits, testing::ValuesIn(kReals), RowName());

struct Angle
{
    const char* name;
    double degrees;
    int units;
    int precision;
    const wchar_t* text;
};

class AngleInUnits : public UnitsTest, public testing::WithParamInterface<Angle>
{
};

TEST_P(AngleInUnits, IsPrinted)
{
    std::array<wchar_t, 256> buffer;
    EXPECT_EQ(RTNORM, kddbAngToS(GetParam().degrees * kDegree, GetParam().units,
                                 GetParam().precision, buffer.data(), buffer.size()));
    EXPECT_STREQ(GetParam().text, buffer.data());
}

// clang-format off
constexpr Angle kAngles[] = {
    {"degrees", 45.5, 0, 2, L"45.50"},
    {"degreesNegative", -90.0, 0, 0, L"270"},
    {"degreesManyTurns", 765.0, 0, 0, L"45"},
    {"degreesFillATurn", 359.999, 0, 2, L"0.00"},
    {"degreesTinyNegative", -1e-14, 0, 2, L"0.00"},
    {"degreesAlone", 45.5, 1, 0, L"46d"},
    {"minutes", 45.5, 1, 1, L"45d30'"},
    {"minutesAgain", 45.5, 1, 2, L"45d30'"},
    {"seconds", 45.5, 1, 3, L"45d30'0\""},
    {"secondsAgain", 45.50417, 1, 4, L"45d30'15\""},
    {"secondDecimals", 45.504180555, 1, 6, L"45d30'15.05\""},
    {"secondsFillADegree", 44.99999, 1, 4, L"45d0'0\""},
    {"secondsFillATurn", 359.99999, 1, 4, L"0d0'0\""},
    {"grads", 90.0, 2, 2, L"100.00g"},
    {"gradsFillATurn", 359.9999, 2, 1, L"0.0g"},
    {"radians", 90.0, 3, 4, L"1.5708r"},
    {"east", 0.0, 4, 4, L"E"},
    {"north", 90.0, 4, 4, L"N"},
    {"west", 180.0, 4, 4, L"W"},
    {"south", 270.0, 4, 4, L"S"},
    {"roundsToNorth", 89.99999, 4, 4, L"N"},
    {"northEast", 30.0, 4, 4, L"N 60d0'0\" E"},
    {"northWest", 120.5, 4, 1, L"N 30d30' W"},
    {"southWest", 225.0, 4, 0, L"S 45d W"},
    {"southEast", 315.0, 4, 8, L"S 45d0'0\" E"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Host, AngleInUnits, testing::ValuesIn(kAngles), RowName());

using HostUnits = UnitsTest;

std::optional<std::wstring> real(double value, int units, int precision)
{
    KdString text(L"untouched");
    if (kddbRToS(value, text, units, precision) != RTNORM) {
        EXPECT_EQ(L"untouched", std::wstring(text.view()));
        return std::nullopt;
    }
    return std::wstring(text.view());
}

std::optional<std::wstring> angle(double radians, int units, int precision)
{
    KdString text(L"untouched");
    if (kddbAngToS(radians, text, units, precision) != RTNORM) {
        EXPECT_EQ(L"untouched", std::wstring(text.view()));
        return std::nullopt;
    }
    return std::wstring(text.view());
}

TEST_F(HostUnits, MinusOneMeansTheDrawing)
{
    EXPECT_EQ(L"2.5000", real(2.5, -1, -1));
    EXPECT_EQ(L"90", angle(kPi / 2, -1, -1));
    set(L"LUNITS", 5);
    set(L"LUPREC", 2);
    set(L"AUNITS", 2);
    set(L"AUPREC", 1);
    EXPECT_EQ(L"2 1/2", real(2.5, -1, -1));
    EXPECT_EQ(L"2.5000", real(2.5, 2, 4));
    EXPECT_EQ(L"100.0g", angle(kPi / 2, -1, -1));
}

TEST_F(HostUnits, AnglesCountFromTheBase)
{
    set(L"ANGBASE", kPi / 2);
    EXPECT_EQ(L"0", angle(kPi / 2, 0, 0));
    EXPECT_EQ(L"270", angle(0.0, 0, 0));
    set(L"ANGDIR", 1);
    EXPECT_EQ(L"90", angle(0.0, 0, 0));
    EXPECT_EQ(L"270", angle(kPi, 0, 0));
}

TEST_F(HostUnits, AnglesLeaveZerosOut)
{
    set(L"DIMZIN", 12);
    EXPECT_EQ(L"45.5", angle(45.5 * kDegree, 0, 4));
    EXPECT_EQ(L".5g", angle(0.45 * kDegree, 2, 4));
}

TEST_F(HostUnits, BearingsAsTypedHaveNoBlanks)
{
    set(L"UNITMODE", 1);
    EXPECT_EQ(L"N45d0'E", angle(kPi / 4, 4, 1));
}

TEST_F(HostUnits, RefuseOtherUnitsAndValuesThatAreNotFinite)
{
    for (const int units : {0, 6, -2})
        EXPECT_FALSE(real(1.0, units, 2));
    for (const int units : {5, -2})
        EXPECT_FALSE(angle(1.0, units, 2));
    for (const double bad : {std::nan(""), static_cast<double>(INFINITY)}) {
        EXPECT_FALSE(real(bad, 2, 2));
        EXPECT_FALSE(angle(bad, 0, 2));
    }
}

TEST_F(HostUnits, TextsThatDoNotFitLeaveAnEmptyBuffer)
{
    std::array<wchar_t, 4> buffer{L'#', L'#', L'#', L'#'};
    EXPECT_EQ(RTERROR, kddbRToS(12.5, 2, 1, buffer.data(), buffer.size()));
    EXPECT_STREQ(L"", buffer.data());
    buffer.fill(L'#');
    EXPECT_EQ(RTERROR, kddbAngToS(12.5, 0, 1, buffer.data(), buffer.size()));
    EXPECT_STREQ(L"", buffer.data());
    EXPECT_EQ(RTERROR, kddbRToS(12.5, 2, 1, nullptr, 10));
    EXPECT_EQ(RTERROR, kddbAngToS(12.5, 0, 1, buffer.data(), 0));
}

TEST(HostUnitsAlone, TakeInitialSettingsWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(L"2.5000", real(2.5, -1, -1));
    EXPECT_EQ(L"90", angle(kPi / 2, -1, -1));
}

TEST(HeaderVar, ReadsEachVariableByItsName)
{
    const std::pair<const wchar_t*, int (KdDbHeaderVar::*)() const> kAccessors[] = {
        {L"LUNITS", &KdDbHeaderVar::lunits},     {L"LUPREC", &KdDbHeaderVar::luprec},
        {L"UNITMODE", &KdDbHeaderVar::unitmode}, {L"AUNITS", &KdDbHeaderVar::aunits},
        {L"AUPREC", &KdDbHeaderVar::auprec},     {L"ANGDIR", &KdDbHeaderVar::angdir},
        {L"DIMZIN", &KdDbHeaderVar::dimzin},     {L"DIMALTZ", &KdDbHeaderVar::dimaltz},
        {L"DIMALTTZ", &KdDbHeaderVar::dimalttz}, {L"DIMTZIN", &KdDbHeaderVar::dimtzin},
    };
    KdDbHeaderVariables variables;
    int value = 100;
    for (const auto& [name, accessor] : kAccessors)
        ASSERT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(name), ++value));
    value = 100;
    for (const auto& [name, accessor] : kAccessors)
        EXPECT_EQ(++value, (KdDbHeaderVar(variables).*accessor)());
    ASSERT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"ANGBASE"), 1.25));
    EXPECT_EQ(1.25, KdDbHeaderVar(variables).angbase());
}

TEST(UnitsFormatter, TakesDegrees)
{
    EXPECT_DOUBLE_EQ(kPi / 4, KdadUnitsFormatter::angleToRadian(45.0));
}

} // namespace
