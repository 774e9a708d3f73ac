#include <values/resource_string.h>

#include <cstdlib>
#include <cwchar>
#include <string>

#include <sys/resource.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support.h"

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// The text that the test library holds for a length: groups of ten begin with their number.
std::wstring counted(std::size_t length)
{
    std::wstring text;
    for (std::size_t group = 0; text.size() < length; ++group) {
        text += std::to_wstring(group);
        text.resize((group + 1) * 10, L'.');
    }
    return text.substr(0, length);
}

bool liesInside(const __ResourceString& object, const wchar_t* text)
{
    const auto* const begin = reinterpret_cast<const char*>(&object);
    const auto* const place = reinterpret_cast<const char*>(text);
    return place >= begin && place < begin + sizeof object;
}

TEST(ResourceString, ComesFromTheCurrentLibrary)
{
    const CurrentResources english(kEnglishTexts);
    __ResourceString text(34492, L"a default");
    EXPECT_STREQ(text, L"Red");
    const CurrentResources other(kOtherTexts);
    __ResourceString otherText(34492, L"a default");
    EXPECT_STREQ(otherText, L"Rot");
}

TEST(ResourceString, ComesFromItsOwnLibraryWhereItHasOne)
{
    const CurrentResources english(kEnglishTexts);
    __ResourceString text(34492, L"a default", LoadResourceDll(kOtherTexts));
    EXPECT_STREQ(text, L"Rot");
}

TEST(ResourceString, IsResolvedOnce)
{
    const CurrentResources other(kOtherTexts);
    __ResourceString text(34492, L"a default");
    const wchar_t* const first = text;
    {
        const CurrentResources english(kEnglishTexts);
        EXPECT_EQ(static_cast<const wchar_t*>(text), first);
    }
    EXPECT_STREQ(first, L"Rot");
}

struct LengthCase
{
    int length;
    bool isInline;
};

class ResourceStringOfLength : public testing::TestWithParam<LengthCase>
{
};

INSTANTIATE_TEST_SUITE_P(Lengths, ResourceStringOfLength,
                         testing::Values(LengthCase{1, true}, LengthCase{252, true},
                                         LengthCase{253, true}, LengthCase{254, false},
                                         LengthCase{255, false}, LengthCase{256, false},
                                         LengthCase{5000, false}),
                         [](const auto& row) { return std::to_string(row.param.length); });

TEST_P(ResourceStringOfLength, IsWholeAndKeptInsideUpToTheLimit)
{
    const CurrentResources other(kOtherTexts);
    const auto [length, isInline] = GetParam();
    __ResourceString object(80000 + length, nullptr);
    const wchar_t* const text = object;
    EXPECT_EQ(text, counted(static_cast<std::size_t>(length)));
    EXPECT_EQ(liesInside(object, text), isInline);
}

TEST(ResourceString, ComplainsEachTimeItIsMissing)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    const wchar_t* const defaultText = L"\tGeneral:Color";
    __ResourceString text(76537, defaultText);
    EXPECT_EQ(static_cast<const wchar_t*>(text), defaultText);
    EXPECT_EQ(static_cast<const wchar_t*>(text), defaultText);
    const std::wstring complaint =
        L"The string id 76537 \"\tGeneral:Color\" was not found in the resource file.";
    EXPECT_THAT(messages.shown, ElementsAre(complaint, complaint));
    EXPECT_EQ(messages.last.style, 16u);
}

TEST(ResourceString, ComplainsInFullAboutALongDefaultText)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    const std::wstring defaultText(3000, L'x');
    __ResourceString text(1, defaultText.c_str());
    EXPECT_EQ(static_cast<const wchar_t*>(text), defaultText);
    EXPECT_THAT(messages.shown, ElementsAre(L"The string id 1 \"" + defaultText +
                                            L"\" was not found in the resource file."));
}

TEST(ResourceString, FollowsTheLibraryOnceItIsThere)
{
    Messages messages;
    __ResourceString text(34492, L"a default");
    {
        const CurrentResources lacking(L"KrxOPMRes.dll");
        EXPECT_STREQ(text, L"a default");
    }
    const CurrentResources english(kEnglishTexts);
    EXPECT_STREQ(text, L"Red");
    EXPECT_EQ(messages.shown.size(), 1u);
}

TEST(ResourceString, IsEmptyInSilenceWithoutADefaultText)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    __ResourceString object(76537, nullptr);
    const wchar_t* const text = object;
    EXPECT_STREQ(text, L"");
    EXPECT_TRUE(liesInside(object, text));
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST(ResourceString, ComplainsWithoutAnyLibrary)
{
    ASSERT_EQ(AfxGetResourceHandle(), nullptr);
    Messages messages;
    __ResourceString text(34492, L"Red");
    EXPECT_STREQ(text, L"Red");
    __ResourceString nothing(34492, nullptr);
    EXPECT_STREQ(nothing, L"");
    EXPECT_THAT(messages.shown,
                ElementsAre(L"The string id 34492 \"Red\" was not found in the resource file."));
}

TEST(ResourceString, UsesTheDefaultTextOfEachPlace)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    __ResourceString one(24000, L"X");
    __ResourceString another(24000, L" X");
    EXPECT_STREQ(one, L"X");
    EXPECT_STREQ(another, L" X");
}

TEST(ResourceString, HasOneTextForBothDefaultsWhereTheLibraryHasIt)
{
    const CurrentResources english(kEnglishTexts);
    __ResourceString one(24000, L"X");
    __ResourceString another(24000, L" X");
    EXPECT_STREQ(one, L" X");
    EXPECT_STREQ(another, L" X");
}

TEST(ResourceString, KeepsTheTabsOfAKey)
{
    const CurrentResources english(kEnglishTexts);
    __ResourceString key(76537, L"\tGeneral:Color");
    EXPECT_STREQ(key, L"\tGeneral:Color");
}

TEST(GetResourceString, GivesTheLibrarysOwnText)
{
    int length = -1;
    const HINSTANCE library = LoadResourceDll(kOtherTexts);
    const wchar_t* const text = __GetResourceString(48283, L"default", &length, library);
    EXPECT_EQ(std::wstring_view(text, static_cast<std::size_t>(length)), L"Point");
    EXPECT_EQ(__GetResourceString(48283, L"default", nullptr, library), text);
}

TEST(GetResourceString, GivesTheDefaultInSilenceWhereTheTextIsMissing)
{
    Messages messages;
    const wchar_t* const defaultText = L"default";
    int length = -1;
    EXPECT_EQ(__GetResourceString(7, defaultText, &length, LoadResourceDll(kOtherTexts)),
              defaultText);
    EXPECT_EQ(length, 0);
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST(GetResourceString, DoesNotFallBackToTheCurrentLibrary)
{
    const CurrentResources english(kEnglishTexts);
    const wchar_t* const defaultText = L"default";
    int length = -1;
    EXPECT_EQ(__GetResourceString(34492, defaultText, &length, nullptr), defaultText);
    EXPECT_EQ(length, 0);
}

TEST(GetOpmStr, GivesTheNameOfAType)
{
    EXPECT_EQ(GetOPMStr(51064), L"Circle");
}

TEST(GetOpmStr, IsEmptyInSilenceForAnUnknownNumber)
{
    Messages messages;
    EXPECT_TRUE(GetOPMStr(7).empty());
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST(GetOpmStr, CutsAfter1023Characters)
{
    EXPECT_EQ(GetOPMStr(91023), counted(1023));
    EXPECT_EQ(GetOPMStr(91024), counted(1023));
    EXPECT_EQ(GetOPMStr(93000), counted(1023));
}

TEST(GetOpmStr, EndsAtATerminatorInsideTheText)
{
    EXPECT_EQ(GetOPMStr(99000), L"before");
}

TEST(GetOpmStr, DoesNotDependOnTheCurrentLibrary)
{
    const CurrentResources other(kOtherTexts);
    EXPECT_EQ(GetOPMStr(51064), L"Circle");
}

/// The name of a type while no more files can be opened, and once they can be again. A library is
/// looked for beforehand, since sanitizers need files of their own for what they meet first.
std::wstring nameBeforeAndAfterShortage()
{
    LoadResourceDll(L"KwNoSuchLibrary.dll");
    rlimit files{};
    getrlimit(RLIMIT_NOFILE, &files);
    const rlimit none{0, files.rlim_max};
    setrlimit(RLIMIT_NOFILE, &none);
    const std::wstring before = GetOPMStr(51064);
    setrlimit(RLIMIT_NOFILE, &files);
    return before + L'|' + GetOPMStr(51064);
}

// A library that was found stays, so this runs in a process of its own.
TEST(GetOpmStrDeathTest, IsEmptyInSilenceUntilItsLibraryCanBeLoaded)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    EXPECT_EXIT(
        {
            Messages messages;
            const bool isRight = nameBeforeAndAfterShortage() == L"|Circle";
            std::exit(isRight && messages.shown.empty() ? 0 : 1);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
