#include <runtime/number_text.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "support.h"

namespace {

double anyDouble(std::mt19937_64& random)
{
    return std::bit_cast<double>(random());
}

std::wstring printed(const char* format, int precision, double value)
{
    std::array<char, 2048> buffer;
    const int length = std::snprintf(buffer.data(), buffer.size(), format, precision, value);
    return {buffer.data(), buffer.data() + length};
}

// The tests run under the neutral locale, where the standard library prints a dot.
TEST(PrintFixed, AgreesWithTheStandardLibrary)
{
    std::mt19937_64 random(20240611);
    for (int i = 0; i < 5000; ++i) {
        const double value = anyDouble(random);
        const int precision = static_cast<int>(random() % 40);
        if (!std::isfinite(value))
            continue;
        ASSERT_EQ(printed("%.*f", precision, value), kdPrintFixed(value, precision));
        ASSERT_EQ(printed("%.*E", precision, value), kdPrintScientific(value, precision));
    }
}

TEST(PrintFixed, CountsNegativePrecisionAsSix)
{
    EXPECT_EQ(L"0.500000", kdPrintFixed(0.5, -1));
    EXPECT_EQ(L"5.000000E-01", kdPrintScientific(0.5, -7));
}

TEST(PrintFixed, EndsWhereDoublesEnd)
{
    EXPECT_EQ(2u + 1074u, kdPrintFixed(5e-324, 2000000000).size());
    EXPECT_EQ(L'5', kdPrintFixed(5e-324, 2000000000).back()) << "2^-1074 ends in a 5";
    EXPECT_EQ(310u + 1u + 1074u, kdPrintFixed(-std::numeric_limits<double>::max(), 1074).size());
}

TEST(PrintFixed, NamesWhatHasNoDigits)
{
    EXPECT_EQ(L"inf", kdPrintFixed(INFINITY, 2));
    EXPECT_EQ(L"-inf", kdPrintFixed(-INFINITY, 2));
    EXPECT_EQ(L"nan", kdPrintFixed(NAN, 2));
    EXPECT_EQ(L"-INF", kdPrintScientific(-INFINITY, 2));
    EXPECT_EQ(L"NAN", kdPrintScientific(NAN, 2));
}

TEST(ReadReal, GetsBackWhatWasPrinted)
{
    std::mt19937_64 random(7);
    for (int i = 0; i < 5000; ++i) {
        const double value = anyDouble(random);
        if (std::isfinite(value)) {
            ASSERT_EQ(value, kdReadReal(kdPrintScientific(value, 16)));
        }
    }
}

struct Read
{
    const char* name;
    const wchar_t* text;
    double value;
};

class ReadRealText : public testing::TestWithParam<Read>
{
};

TEST_P(ReadRealText, TakesTheNumberInFront)
{
    EXPECT_EQ(GetParam().value, kdReadReal(GetParam().text));
}

// clang-format off
constexpr Read kReads[] = {
    {"empty", L"", 0.0},
    {"letters", L"abc", 0.0},
    {"whole", L"12", 12.0},
    {"whiteSpace", L" \t\n12 ", 12.0},
    {"plus", L"+12", 12.0},
    {"minus", L"-12", -12.0},
    {"twoSigns", L"--12", 0.0},
    {"mixedSigns", L"+-12", 0.0},
    {"dotAtEnd", L"12.", 12.0},
    {"dotAtStart", L".5", 0.5},
    {"secondDot", L"1.5.5", 1.5},
    {"exponent", L"1.5e2", 150.0},
    {"exponentWithoutDigits", L"2e", 2.0},
    {"exponentSignAlone", L"2e+", 2.0},
    {"rubbishBehind", L"2x5", 2.0},
    {"wideRubbishBehind", L"2\u0661", 2.0},
    {"noHexadecimal", L"0x10", 0.0},
    {"noInfinity", L"inf", 0.0},
    {"tooLarge", L"1e999", std::numeric_limits<double>::infinity()},
    {"tooLargeNegative", L"-1e999", -std::numeric_limits<double>::infinity()},
    {"tooSmall", L"1e-999", 0.0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, ReadRealText, testing::ValuesIn(kReads), RowName());

TEST(CopyText, FillsTheBufferOrLeavesItEmpty)
{
    std::array<wchar_t, 4> buffer{L'#', L'#', L'#', L'#'};
    EXPECT_TRUE(kdCopyText(L"abc", buffer.data(), 4));
    EXPECT_STREQ(L"abc", buffer.data());
    EXPECT_FALSE(kdCopyText(L"abcd", buffer.data(), 4));
    EXPECT_STREQ(L"", buffer.data());
    EXPECT_FALSE(kdCopyText(L"", buffer.data(), 0));
    EXPECT_FALSE(kdCopyText(L"", nullptr, 4));
}

} // namespace
