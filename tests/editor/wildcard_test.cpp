#include <gtest/gtest.h>

#include <editor/wildcard.h>

#include <runtime/status.h>
#include <support/processor_watch.h>

#include <string>

namespace {

struct Row
{
    const char* name;
    const wchar_t* text;
    const wchar_t* pattern;
    bool matches;
};

class WildcardRows : public testing::TestWithParam<Row>
{
};

TEST_P(WildcardRows, AreAnsweredAsTheTableSays)
{
    const Row& row = GetParam();
    EXPECT_EQ(kdutWcMatch(row.text, row.pattern), row.matches ? RTNORM : RTERROR);
}

// clang-format off
const Row kRows[] = {
    // name                            text              pattern             matches
    {"plainTextEqual",                 L"PIPES",         L"PIPES",           true},
    {"plainTextLonger",                L"PIPES-1",       L"PIPES",           false},
    {"plainTextShorter",               L"PIPE",          L"PIPES",           false},
    {"caseCounts",                     L"pipes",         L"PIPES",           false},
    {"emptyAgainstEmpty",              L"",              L"",                true},
    {"textAgainstEmpty",               L"a",             L"",                false},
    {"emptyAgainstStar",               L"",              L"*",               true},
    {"emptyAgainstTwoStars",           L"",              L"**",              true},
    {"emptyAgainstQuestionMark",       L"",              L"?",               false},
    {"starTakesAll",                   L"anything",      L"*",               true},
    {"starTakesNothing",               L"ab",            L"a*b",             true},
    {"starAtTheEnd",                   L"PIPES-1",       L"PIPES*",          true},
    {"starInFront",                    L"my-pipes",      L"*pipes",          true},
    {"starInFrontAndMore",             L"my-pipes2",     L"*pipes",          false},
    {"starsAround",                    L"see TODO here", L"*TODO*",          true},
    {"starsAroundMissing",             L"see ToDo here", L"*TODO*",          false},
    {"starTriesAgain",                 L"aab",           L"*ab",             true},
    {"twoStarsTryAgain",               L"xaayab",        L"*a?*ab",          true},
    {"starBeforeTheLastOfSeveral",     L"abcabc",        L"*abc",            true},
    {"starOverLineFeeds",              L"a\nb",          L"a*b",             true},

    {"questionMarkTakesOne",           L"cat",           L"c?t",             true},
    {"questionMarkNeedsOne",           L"ct",            L"c?t",             false},
    {"questionMarkTakesNoMore",        L"caat",          L"c?t",             false},

    {"numberSignTakesADigit",          L"DN50",          L"DN##",            true},
    {"numberSignRefusesALetter",       L"DN5x",          L"DN##",            false},
    {"numberSignTakesForeignDigits",   L"\u0663",        L"#",               true},
    {"atSignTakesALetter",             L"a1",            L"@1",              true},
    {"atSignRefusesADigit",            L"11",            L"@1",              false},
    {"atSignRefusesABlank",            L" ",             L"@",               false},
    {"atSignTakesAnUmlaut",            L"\u00dc",        L"@",               true},
    {"atSignTakesAnIdeograph",         L"\u5e73",        L"@",               true},
    {"atSignTakesCyrillic",            L"\u0416",        L"@",               true},
    {"dotTakesABlank",                 L"a b",           L"a.b",             true},
    {"dotTakesADot",                   L"a.b",           L"a.b",             true},
    {"dotRefusesALetter",              L"axb",           L"a.b",             false},
    {"dotRefusesADigit",               L"a1b",           L"a.b",             false},
    {"dotRefusesAnUmlaut",             L"a\u00e4b",      L"a.b",             false},

    {"classTakesItsMembers",           L"b",             L"[abc]",           true},
    {"classRefusesOthers",             L"d",             L"[abc]",           false},
    {"classNeedsACharacter",           L"",              L"[abc]",           false},
    {"classTakesOnlyOne",              L"ab",            L"[abc]",           false},
    {"rangeTakesItsEnds",              L"az",            L"[a-m][n-z]",      true},
    {"rangeRefusesTheNext",            L"n",             L"[a-m]",           false},
    {"rangeMindsCase",                 L"B",             L"[a-c]",           false},
    {"rangeAndSingles",                L"x7_",           L"[x0-9_][x0-9_][x0-9_]", true},
    {"rangeBackwardsIsEmpty",          L"b",             L"[c-a]",           false},
    {"hyphenInFrontIsItself",          L"-",             L"[-a]",            true},
    {"hyphenAtTheEndIsItself",         L"-",             L"[a-]",            true},
    {"hyphenAtTheEndIsNoRange",        L"b",             L"[a-]",            false},
    {"hyphenAtTheEndBeforeAClass",     L"9a",            L"[+-][a]",         false},
    {"escapedHyphenIsItself",          L"-",             L"[a`-c]",          true},
    {"escapedHyphenIsNoRange",         L"b",             L"[a`-c]",          false},
    {"notInClassTakesOthers",          L"d",             L"[~abc]",          true},
    {"notInClassRefusesMembers",       L"b",             L"[~abc]",          false},
    {"notInClassNeedsACharacter",      L"",              L"[~abc]",          false},
    {"notInRange",                     L"5",             L"[~0-9]",          false},
    {"tildeLaterInClassIsItself",      L"~",             L"[a~]",            true},
    {"emptyClassMatchesNothing",       L"a",             L"[]",              false},
    {"emptyNegatedClassMatchesAny",    L"a",             L"[~]",             true},
    {"starInClassIsItself",            L"*",             L"[*?]",            true},
    {"starInClassIsNoStar",            L"x",             L"[*?]",            false},
    {"commaInClassIsItself",           L"a,b",           L"a[,;]b",          true},
    {"escapedBracketInClass",          L"]",             L"[`]]",            true},
    {"openingBracketInClass",          L"[",             L"[[]",             true},
    {"openBracketAloneIsItself",       L"[abc",          L"[abc",            true},
    {"openBracketAloneIsNoClass",      L"a",             L"[abc",            false},
    {"closingBracketAloneIsItself",    L"a]",            L"a]",              true},
    {"escapedOpeningBracket",          L"[a]",           L"`[a]",            true},
    {"escapedClosingKeepsBracketOpen", L"[a]",           L"[a`]",            true},

    {"negatedTextDiffers",             L"abc",           L"~abd",            true},
    {"negatedTextEqual",               L"abc",           L"~abc",            false},
    {"negatedStars",                   L"my door",       L"~*door*",         false},
    {"negatedStarsElsewhere",          L"my window",     L"~*door*",         true},
    {"negatedNothingTakesTexts",       L"a",             L"~",               true},
    {"negatedNothingRefusesEmpty",     L"",              L"~",               false},
    {"tildeLaterIsItself",             L"a~b",           L"a~b",             true},
    {"escapedTildeIsItself",           L"~a",            L"`~a",             true},
    {"escapedTildeIsNoNegation",       L"b",             L"`~a",             false},
    {"onlyTheFirstTildeNegates",       L"~a",            L"~~a",             false},

    {"firstAlternative",               L"door",          L"door,window",     true},
    {"lastAlternative",                L"window",        L"door,window",     true},
    {"noAlternative",                  L"wall",          L"door,window",     false},
    {"blankBelongsToTheAlternative",   L"window",        L"door, window",    false},
    {"alternativesWithStars",          L"W-12",          L"D-*,W-*",         true},
    {"negationHoldsForOneAlternative", L"wall",          L"~door,window",    true},
    {"negationBesideAPlainOne",        L"door",          L"~door,door",      true},
    {"laterNegation",                  L"wall",          L"door,~window",    true},
    {"everyNegationFails",             L"a",             L"~a,~[a-c]",       false},
    {"emptyAlternativeInFront",        L"",              L",a",              true},
    {"emptyAlternativeAtTheEnd",       L"",              L"a,",              true},
    {"escapedCommaIsItself",           L"a,b",           L"a`,b",            true},
    {"escapedCommaPartsNothing",       L"a",             L"a`,b",            false},
    {"commaBehindAnOpenBracket",       L"b",             L"[a,b",            true},

    {"escapedStarIsItself",            L"2*3",           L"2`*3",            true},
    {"escapedStarIsNoStar",            L"2xx3",          L"2`*3",            false},
    {"escapedQuestionMark",            L"x",             L"`?",              false},
    {"escapedNumberSign",              L"#",             L"`#",              true},
    {"escapedBackQuote",               L"a`b",           L"a``b",            true},
    {"backQuoteAtTheEndIsItself",      L"a`",            L"a`",              true},
    {"backslashIsPlain",               L"a\\b",          L"a\\b",            true},
    {"nullText",                       nullptr,          L"*",               false},
    {"nullPattern",                    L"a",             nullptr,            false},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Wildcard, WildcardRows, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.name; });

double secondsFor(const std::wstring& text, const std::wstring& pattern, int expected)
{
    const ProcessorWatch watch;
    EXPECT_EQ(kdutWcMatch(text.c_str(), pattern.c_str()), expected);
    return watch.seconds();
}

TEST(Wildcard, StaysFastWhenManyStarsFail)
{
    std::wstring pattern;
    for (int i = 0; i < 30; ++i)
        pattern += L"*a";
    EXPECT_LT(secondsFor(std::wstring(20000, L'a'), pattern + L"*b", RTERROR), 1.0);
}

TEST(Wildcard, StaysFastWithManyOpenBrackets)
{
    const std::wstring brackets(20000, L'[');
    EXPECT_LT(secondsFor(brackets, brackets, RTNORM), 1.0);
}

TEST(Wildcard, StaysFastWithManyAlternatives)
{
    std::wstring pattern;
    for (int i = 0; i < 5000; ++i)
        pattern += L"LAYER-" + std::to_wstring(i) + L"*,";
    EXPECT_LT(secondsFor(L"LAYER-X", pattern, RTERROR), 1.0);
}

} // namespace
