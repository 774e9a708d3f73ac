#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/text_codes.h>

namespace {

using testing::ElementsAre;
using Kind = MTextToken::Kind;

/// A token in a few letters: what it is, its letter, and its argument in brackets.
std::wstring told(const MTextToken& token)
{
    constexpr std::wstring_view kKinds = L".PNX{}LuCS";
    std::wstring text(1, kKinds[static_cast<std::size_t>(token.kind)]);
    const bool hasLetter = token.kind == Kind::Letter || token.kind == Kind::LineSwitch ||
                           token.kind == Kind::LineToggle || token.kind == Kind::Code;
    if (hasLetter)
        text += token.letter;
    if (token.kind == Kind::Code || token.kind == Kind::Stack)
        text.append(L"[").append(token.argument).append(L"]");
    return text;
}

std::vector<std::wstring> tokensOf(std::wstring_view text)
{
    std::vector<std::wstring> all;
    MTextTokens tokens(text);
    for (MTextToken token; tokens.next(token);)
        all.push_back(told(token));
    return all;
}

TEST(MTextTokens, TellLettersFromEnds)
{
    EXPECT_THAT(
        tokensOf(L"a\tb\\Pc\nd\r\\Ne\\Xf"),
        ElementsAre(L".a", L".\t", L".b", L"P", L".c", L"P", L".d", L"N", L".e", L"X", L".f"));
}

TEST(MTextTokens, TellGroupsWhetherOrNotTheyMatch)
{
    EXPECT_THAT(tokensOf(L"{a}}{"), ElementsAre(L"{", L".a", L"}", L"}", L"{"));
}

TEST(MTextTokens, TakeSignsBehindABackslashAsTheyAre)
{
    EXPECT_THAT(tokensOf(L"\\{\\}\\\\\\~\\z\\"),
                ElementsAre(L".{", L".}", L".\\", L".\u00A0", L".z", L".\\"));
}

TEST(MTextTokens, TellSwitchesOfLines)
{
    EXPECT_THAT(tokensOf(L"\\L\\l\\O\\o\\K\\k%%u%%O%%k"),
                ElementsAre(L"LL", L"Ll", L"LO", L"Lo", L"LK", L"Lk", L"uu", L"uo", L"uk"));
}

TEST(MTextTokens, GiveCodesTheirArguments)
{
    EXPECT_THAT(tokensOf(L"\\H2.5x;\\fArial|b1;\\pi1,t4;\\A;"),
                ElementsAre(L"CH[2.5x]", L"Cf[Arial|b1]", L"Cp[i1,t4]", L"CA[]"));
}

TEST(MTextTokens, TakeACodeWithoutEndForItsLetter)
{
    EXPECT_THAT(tokensOf(L"\\C1;\\H2\\S1"), ElementsAre(L"CC[1]", L".H", L".2", L".S", L".1"));
}

TEST(MTextTokens, GiveStacksWithTheSignsThatAreKept)
{
    EXPECT_THAT(tokensOf(L"\\S1\\;/2;3"), ElementsAre(L"S[1\\;/2]", L".3"));
    EXPECT_THAT(tokensOf(L"\\S1\\;"), ElementsAre(L".S", L".1", L".;"));
}

TEST(MTextTokens, TakePercentCodes)
{
    EXPECT_THAT(
        tokensOf(L"%%c%%D%%p%%%%%065%%x%"),
        ElementsAre(L".\u2300", L".\u00B0", L".\u00B1", L".%", L".A", L".%", L".%", L".x", L".%"));
}

TEST(TextCode, IsLeftAloneWhereThereIsNone)
{
    TextCode code{L'q', L'q'};
    for (const std::wstring_view text : {L"", L"%", L"%%", L"%d%", L"a%%d"}) {
        std::size_t at = 0;
        EXPECT_FALSE(kddbTakeTextCode(text, at, code));
        EXPECT_EQ(at, 0U);
        EXPECT_EQ(code.letter, L'q');
    }
}

TEST(TextCode, TakesFewerThanThreeDigitsForLetters)
{
    TextCode code;
    std::size_t at = 0;
    EXPECT_FALSE(kddbTakeTextCode(L"%%12", at, code));
    EXPECT_TRUE(kddbTakeTextCode(L"%%1234", at, code));
    EXPECT_EQ(code.letter, L'{');
    EXPECT_EQ(at, 5U);
}

} // namespace
