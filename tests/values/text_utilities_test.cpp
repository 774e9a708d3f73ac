#include <values/text_utilities.h>

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

std::wstring trimmed(std::wstring text, std::wstring modes)
{
    ic_trim(text.data(), modes.data());
    return text.c_str();
}

std::wstring extensionOf(std::wstring path, unsigned long size = 20)
{
    std::vector<wchar_t> extension(size + 1, L'#');
    ic_getext(path.data(), extension.data(), size);
    EXPECT_EQ(extension[size], L'#') << "written behind the end";
    return extension.data();
}

std::wstring withExtension(const std::wstring& path, std::wstring extension)
{
    std::vector<wchar_t> room(path.begin(), path.end());
    room.resize(path.size() + extension.size() + 2);
    ic_setext(room.data(), extension.data());
    return room.data();
}

struct TrimCase
{
    const char* name;
    const wchar_t* text;
    const wchar_t* modes;
    const wchar_t* expected;
};

class IcTrim : public testing::TestWithParam<TrimCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, IcTrim, testing::Values(
    TrimCase{"leadingBlanks", L"  a b ", L"b", L"a b "},
    TrimCase{"trailingBlanks", L"  a b  ", L"e", L"  a b"},
    TrimCase{"blanksBetween", L"  a  b c ", L"m", L"  abc "},
    TrimCase{"allInCapitals", L" a b ", L"BME", L"ab"},
    TrimCase{"noModes", L" a ", L"", L" a "},
    TrimCase{"unknownModes", L" a ", L"xyz", L" a "},
    TrimCase{"tabsStay", L"\t a \t", L"be", L"\t a \t"},
    TrimCase{"carriageReturnIsNothingSpecial", L"a\rb  ", L"e", L"a\rb"},
    TrimCase{"onlyBlanksWithoutModes", L"   ", L"", L""},
    TrimCase{"onlyBlanks", L"   ", L"bme", L""},
    TrimCase{"empty", L"", L"bme", L""},
    TrimCase{"singleCharacter", L"a", L"bme", L"a"}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(IcTrim, RemovesWhatTheLettersSay)
{
    EXPECT_EQ(trimmed(GetParam().text, GetParam().modes), GetParam().expected);
}

TEST(IcTrimOfNull, IsAMistakeOfTheCallerAndChangesNothing)
{
    wchar_t modes[] = L"b";
    wchar_t text[] = L" a";
    EXPECT_DEBUG_DEATH(ic_trim(nullptr, modes), "text && modes");
    EXPECT_DEBUG_DEATH(ic_trim(text, nullptr), "text && modes");
    EXPECT_STREQ(text, L" a");
}

TEST(IcGetext, GivesTheExtensionWithItsDot)
{
    EXPECT_EQ(extensionOf(L"a.dwg"), L".dwg");
}

TEST(IcGetext, TakesTheLastDot)
{
    EXPECT_EQ(extensionOf(L"a.b.dxf"), L".dxf");
}

TEST(IcGetext, GivesADotForAPathWithoutExtension)
{
    EXPECT_EQ(extensionOf(L"drawing"), L".");
}

TEST(IcGetext, PassesOverADotInAFolderName)
{
    EXPECT_EQ(extensionOf(L"a.b\\c"), L".");
}

TEST(IcGetext, KnowsNoSlashAsASeparator)
{
    EXPECT_EQ(extensionOf(L"a.b/c"), L".b/c");
}

TEST(IcGetext, FindsTheExtensionBehindAFolder)
{
    EXPECT_EQ(extensionOf(L"a.b\\c.d"), L".d");
}

TEST(IcGetext, CutsAfterTenCharacters)
{
    EXPECT_EQ(extensionOf(L"a.123456789abc"), L".123456789");
}

TEST(IcGetext, CutsAtTheRoomGiven)
{
    EXPECT_EQ(extensionOf(L"a.dwg", 3), L".d");
}

TEST(IcGetext, RemovesAllBlanks)
{
    EXPECT_EQ(extensionOf(L"a. d w g "), L".dwg");
}

TEST(IcGetext, TakesANullPathAsOneWithoutExtension)
{
    wchar_t extension[4] = L"xyz";
    ic_getext(nullptr, extension, 4);
    EXPECT_STREQ(extension, L".");
}

TEST(IcGetext, DoesNothingWithoutATarget)
{
    std::wstring path = L"a.dwg";
    ic_getext(path.data(), nullptr, 4);
    EXPECT_EQ(path, L"a.dwg");
}

TEST(IcGetext, WritesNothingWhereThereIsNoRoom)
{
    wchar_t extension[] = L"xyz";
    wchar_t path[] = L"a.dwg";
    ic_getext(path, extension, 0);
    EXPECT_STREQ(extension, L"xyz");
}

TEST(IcSetext, ReplacesTheExtension)
{
    EXPECT_EQ(withExtension(L"a.txt", L"dwg"), L"a.dwg");
}

TEST(IcSetext, AddsNoSecondDot)
{
    EXPECT_EQ(withExtension(L"a.txt", L".dwg"), L"a.dwg");
}

TEST(IcSetext, TakesTheExtensionAway)
{
    EXPECT_EQ(withExtension(L"a.txt", L""), L"a");
}

TEST(IcSetext, AddsAnExtensionWhereThereIsNone)
{
    EXPECT_EQ(withExtension(L"a", L"dwg"), L"a.dwg");
}

TEST(IcSetext, LeavesADotInAFolderNameAlone)
{
    EXPECT_EQ(withExtension(L"a.b\\c", L"dwg"), L"a.b\\c.dwg");
    EXPECT_EQ(withExtension(L"a.b\\c", L""), L"a.b\\c");
}

TEST(IcSetext, DoesNothingWithNull)
{
    wchar_t path[8] = L"a.txt";
    ic_setext(path, nullptr);
    EXPECT_STREQ(path, L"a.txt");
    ic_setext(nullptr, path);
    EXPECT_STREQ(path, L"a.txt");
}

TEST(StringsICompare, IgnoresTheCaseOfAToZ)
{
    EXPECT_EQ(strings_i_compare(L"LINE", L"line"), 0);
}

TEST(StringsICompare, GivesTheDifferenceOfTheFirstTwoThatDiffer)
{
    EXPECT_EQ(strings_i_compare(L"aC", L"Ab"), 1);
    EXPECT_EQ(strings_i_compare(L"a", L"AZ"), -L'z');
    EXPECT_EQ(strings_i_compare(L"az", L"A"), L'z');
    EXPECT_EQ(strings_i_compare(L"", L""), 0);
}

TEST(StringsICompare, KeepsTheCaseOfOtherLetters)
{
    EXPECT_EQ(strings_i_compare(L"\u00C4", L"\u00E4"), 0xC4 - 0xE4);
}

TEST(StringsICompare, GivesMinusOneForNull)
{
    EXPECT_EQ(strings_i_compare(nullptr, L"x"), -1);
    EXPECT_EQ(strings_i_compare(L"x", nullptr), -1);
    EXPECT_EQ(strings_i_compare(nullptr, nullptr), -1);
}

TEST(StrisameW, ComparesWithoutCase)
{
    EXPECT_TRUE(strisameW(L"ByLayer", L"BYLAYER"));
    EXPECT_FALSE(strisameW(L"ByLayer", L"ByBlock"));
    EXPECT_FALSE(strisameW(L"ByLayer", L"ByLayer0"));
}

TEST(StrisameW, FindsNullTheSameAsNothing)
{
    EXPECT_FALSE(strisameW(nullptr, L""));
    EXPECT_FALSE(strisameW(L"", nullptr));
}

} // namespace
