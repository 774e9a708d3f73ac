#include <platform/locale.h>

#include <array>
#include <string>

#include "support.h"

namespace {

std::wstring habit(unsigned long locale, unsigned long which)
{
    std::array<wchar_t, 80> buffer;
    const int length =
        GetLocaleInfoW(locale, which, buffer.data(), static_cast<int>(buffer.size()));
    return length > 0 ? std::wstring(buffer.data()) : L"(none)";
}

TEST(Locale, OfNobodyHasADotAndNoGroups)
{
    EXPECT_EQ(L".", habit(LOCALE_INVARIANT, LOCALE_SDECIMAL));
    EXPECT_EQ(L"", habit(LOCALE_INVARIANT, LOCALE_STHOUSAND));
    EXPECT_EQ(L"0", habit(LOCALE_INVARIANT, LOCALE_SGROUPING));
    EXPECT_EQ(L"1", habit(LOCALE_INVARIANT, LOCALE_INEGNUMBER));
}

TEST(Locale, RefusesUnknownLocalesHabitsAndSmallBuffers)
{
    std::array<wchar_t, 80> buffer;
    EXPECT_EQ(0, GetLocaleInfoW(0x1234, LOCALE_SDECIMAL, buffer.data(), 80));
    EXPECT_EQ(0, GetLocaleInfoW(LOCALE_INVARIANT, 0x9999, buffer.data(), 80));
    EXPECT_EQ(0, GetLocaleInfoW(LOCALE_INVARIANT, LOCALE_SDECIMAL, buffer.data(), 1));
    EXPECT_EQ(0, GetLocaleInfoW(LOCALE_INVARIANT, LOCALE_SDECIMAL, nullptr, 80));
    EXPECT_EQ(0, GetLocaleInfoW(LOCALE_INVARIANT, LOCALE_SDECIMAL, buffer.data(), -1));
}

TEST(Locale, TellsTheRoomItNeeds)
{
    EXPECT_EQ(2, GetLocaleInfoW(LOCALE_INVARIANT, LOCALE_SDECIMAL, nullptr, 0));
}

struct Format
{
    const char* name;
    const wchar_t* value;
    unsigned decimals;
    unsigned leadingZero;
    unsigned grouping;
    unsigned negativeOrder;
    const wchar_t* text;
};

class NumberFormat : public testing::TestWithParam<Format>
{
};

std::wstring format(const wchar_t* value, unsigned decimals, unsigned leadingZero,
                    unsigned grouping, unsigned negativeOrder)
{
    std::wstring decimal = L",";
    std::wstring thousand = L"::";
    const NUMBERFMTW numberFormat{decimals,       leadingZero,     grouping,
                                  decimal.data(), thousand.data(), negativeOrder};
    std::array<wchar_t, 80> buffer;
    const int length = GetNumberFormatW(LOCALE_USER_DEFAULT, 0, value, &numberFormat, buffer.data(),
                                        static_cast<int>(buffer.size()));
    return length > 0 ? std::wstring(buffer.data()) : L"(none)";
}

TEST_P(NumberFormat, Writes)
{
    const Format& row = GetParam();
    EXPECT_EQ(row.text,
              format(row.value, row.decimals, row.leadingZero, row.grouping, row.negativeOrder));
}

// clang-format off
constexpr Format kFormats[] = {
    {"groupsOfThree", L"1234567.5", 2, 1, 3, 1, L"1::234::567,50"},
    {"groupsOfThreeThenTwo", L"123456789", 0, 1, 32, 1, L"12::34::56::789"},
    {"oneGroupOnly", L"123456789", 0, 1, 30, 1, L"123456::789"},
    {"noGroups", L"1234567", 0, 1, 0, 1, L"1234567"},
    {"groupJustFull", L"123", 0, 1, 3, 1, L"123"},
    {"leadingZero", L"0.5", 1, 1, 3, 1, L"0,5"},
    {"noLeadingZero", L"0.5", 1, 0, 3, 1, L",5"},
    {"leadingZeroIsAdded", L".5", 1, 1, 3, 1, L"0,5"},
    {"zeroKeepsItsDigit", L"0", 0, 0, 3, 1, L"0"},
    {"leadingZerosGo", L"007", 0, 1, 3, 1, L"7"},
    {"roundsHalfUp", L"1.25", 1, 1, 3, 1, L"1,3"},
    {"roundsDown", L"1.249", 1, 1, 3, 1, L"1,2"},
    {"carriesIntoTheWhole", L"9.99", 1, 1, 3, 1, L"10,0"},
    {"carriesIntoANewGroup", L"999.9", 0, 1, 3, 1, L"1::000"},
    {"carriesIntoNothing", L".96", 1, 0, 3, 1, L"1,0"},
    {"negativeInBrackets", L"-1.5", 1, 1, 3, 0, L"(1,5)"},
    {"negativeInFront", L"-1.5", 1, 1, 3, 1, L"-1,5"},
    {"negativeInFrontWithBlank", L"-1.5", 1, 1, 3, 2, L"- 1,5"},
    {"negativeBehind", L"-1.5", 1, 1, 3, 3, L"1,5-"},
    {"negativeBehindWithBlank", L"-1.5", 1, 1, 3, 4, L"1,5 -"},
    {"zeroHasNoSign", L"-0.04", 1, 1, 3, 1, L"0,0"},
    {"refusesNothing", L"", 1, 1, 3, 1, L"(none)"},
    {"refusesSignAlone", L"-", 1, 1, 3, 1, L"(none)"},
    {"refusesDotAlone", L".", 1, 1, 3, 1, L"(none)"},
    {"refusesLetters", L"12x", 1, 1, 3, 1, L"(none)"},
    {"refusesTwoDots", L"1.2.3", 1, 1, 3, 1, L"(none)"},
    {"refusesPlus", L"+1", 1, 1, 3, 1, L"(none)"},
    {"refusesTooManyDecimals", L"1", 1075, 1, 3, 1, L"(none)"},
    {"refusesOtherLeadingZero", L"1", 1, 2, 3, 1, L"(none)"},
    {"refusesOtherOrder", L"1", 1, 1, 3, 5, L"(none)"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Text, NumberFormat, testing::ValuesIn(kFormats), RowName());

TEST(NumberFormatArguments, AreChecked)
{
    std::wstring decimal = L",";
    std::wstring thousand = L".";
    NUMBERFMTW numberFormat{1, 1, 3, decimal.data(), thousand.data(), 1};
    std::array<wchar_t, 4> buffer;
    const auto write = [&](unsigned long locale, unsigned long flags, const wchar_t* value,
                           const NUMBERFMTW* with, int size) {
        return GetNumberFormatW(locale, flags, value, with, buffer.data(), size);
    };
    EXPECT_EQ(4, write(LOCALE_USER_DEFAULT, 0, L"1.5", &numberFormat, 4));
    EXPECT_STREQ(L"1,5", buffer.data());
    EXPECT_EQ(4, write(LOCALE_INVARIANT, 0, L"1.5", &numberFormat, 0)) << "the room it needs";
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 0, L"1.5", &numberFormat, 3));
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 0, L"1.5", &numberFormat, -1));
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 1, L"1.5", &numberFormat, 4));
    EXPECT_EQ(0, write(0x1234, 0, L"1.5", &numberFormat, 4));
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 0, nullptr, &numberFormat, 4));
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 0, L"1.5", nullptr, 4));
    numberFormat.lpThousandSep = nullptr;
    EXPECT_EQ(0, write(LOCALE_USER_DEFAULT, 0, L"1.5", &numberFormat, 4));
}

} // namespace
