#include <values/distance_text.h>

#include <string>

#include "support.h"

namespace {

struct Trim
{
    const char* name;
    const wchar_t* text;
    const wchar_t* modes;
    const wchar_t* trimmed;
};

class TrimWhiteSpace : public testing::TestWithParam<Trim>
{
};

TEST_P(TrimWhiteSpace, WorksInPlace)
{
    std::wstring text = GetParam().text;
    trimWhiteSpace(text.data(), GetParam().modes);
    EXPECT_STREQ(GetParam().trimmed, text.c_str());
}

// clang-format off
constexpr Trim kTrims[] = {
    {"beginTakesBlanksAndTabs", L" \t a b ", L"b", L"a b "},
    {"beginInUpperCase", L"  a", L"B", L"a"},
    {"endTakesBlanks", L" a b  ", L"e", L" a b"},
    {"endKeepsTabs", L"a\t", L"e", L"a\t"},
    {"endCutsAtCarriageReturn", L"a\rb", L"e", L"a"},
    {"endKeepsBlanksBeforeCarriageReturn", L"a  \rb  ", L"e", L"a  "},
    {"endDropsBlanksBehindCarriageReturn", L"a\r  ", L"E", L"a"},
    {"middleKeepsOuterBlanks", L"  a b  c ", L"m", L"  abc "},
    {"middleOfOneCharacter", L" a ", L"M", L" a "},
    {"lettersInOrder", L"  a b  ", L"bem", L"ab"},
    {"otherLettersDoNothing", L" a ", L"xyz", L" a "},
    {"noLetters", L" a ", L"", L" a "},
    {"blanksAlone", L"   ", L"", L""},
    {"blanksAloneInMiddleMode", L"   ", L"m", L""},
    {"empty", L"", L"be", L""},
    {"tabAlone", L"\t", L"be", L""},
    {"nothingLeftForTheMiddle", L"\t", L"bm", L""},
    {"nothingLeftForTheEnd", L" \t ", L"be", L""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Mode, TrimWhiteSpace, testing::ValuesIn(kTrims), RowName());

TEST(TrimWhiteSpaceOfNull, DoesNothing)
{
    trimWhiteSpace(nullptr, L"be");
    std::wstring text = L" a ";
    trimWhiteSpace(text.data(), nullptr);
    EXPECT_EQ(L" a ", text);
}

} // namespace
