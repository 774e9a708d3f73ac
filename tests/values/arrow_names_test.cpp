#include <values/arrow_names.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support.h"

namespace {

struct ArrowCase
{
    int id;
    const wchar_t* key;
    const wchar_t* text; ///< in the English library
};

// clang-format off
constexpr ArrowCase kArrows[] = {
    {48281, L"NONE", L"None"},
    {48282, L"CLOSED", L"Closed"},
    {48283, L"DOT", L"Dot"},
    {48284, L"CLOSEDFILLED", L"Closed filled"},
    {48285, L"CLOSEDBLANK", L"Closed blank"},
    {48286, L"OBLIQUE", L"Oblique"},
    {48287, L"ARCHTICK", L"Architectural tick"},
    {48288, L"OPEN", L"Open"},
    {48289, L"ORIGIN", L"Origin indicator"},
    {48290, L"ORIGIN2", L"Origin indicator 2"},
    {48291, L"OPEN90", L"Right angle"},
    {48292, L"OPEN30", L"Open 30"},
    {48293, L"DOTBLANK", L"Dot blank"},
    {48294, L"DOTSMALL", L"Dot small"},
    {48295, L"BOXFILLED", L"Box filled"},
    {48296, L"BOXBLANK", L"Box"},
    {48297, L"DATUMFILLED", L"Datum triangle filled"},
    {48298, L"DATUMBLANK", L"Datum triangle"},
    {48299, L"INTEGRAL", L"Integral"},
    {48300, L"SMALL", L"Dot small blank"},
};
// clang-format on

std::wstring arrowName(KdString key)
{
    getArrowName(key);
    return key.kwszPtr();
}

TEST(ArrowNameTable, HoldsTheArrowheadsInOrder)
{
    ASSERT_EQ(ArrowNameTable.size(), std::size(kArrows));
    for (std::size_t i = 0; i < ArrowNameTable.size(); ++i) {
        EXPECT_EQ(ArrowNameTable[i].id, kArrows[i].id);
        EXPECT_EQ(ArrowNameTable[i].key, kArrows[i].key);
    }
}

TEST(GetArrowName, TurnsEachKeyIntoItsText)
{
    const CurrentResources english(kEnglishTexts);
    for (const ArrowCase& arrow : kArrows)
        EXPECT_EQ(arrowName(arrow.key), arrow.text);
}

TEST(GetArrowName, FindsAKeyInAnyCase)
{
    const CurrentResources english(kEnglishTexts);
    EXPECT_EQ(arrowName(L"ClosedBlank"), L"Closed blank");
}

TEST(GetArrowName, TakesAnEmptyKeyForTheFirstArrowhead)
{
    const CurrentResources english(kEnglishTexts);
    EXPECT_EQ(arrowName(L""), L"None");
}

TEST(GetArrowName, LeavesAnUnknownKeyAlone)
{
    const CurrentResources english(kEnglishTexts);
    EXPECT_EQ(arrowName(L"MYARROW"), L"MYARROW");
    EXPECT_EQ(arrowName(L"Datum triangle"), L"Datum triangle");
}

TEST(GetArrowName, GoesOnWithTheNewTextThroughTheLaterRows)
{
    const CurrentResources other(kOtherTexts); // there "NONE" reads "DOT", and "DOT" reads "Point"
    Messages messages;
    EXPECT_EQ(arrowName(L"NONE"), L"Point");
    EXPECT_EQ(arrowName(L""), L"DOT");
    EXPECT_TRUE(messages.shown.empty());
}

TEST(GetArrowName, HasOneDefaultForAllArrowheads)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    EXPECT_EQ(arrowName(L"OBLIQUE"), L"ArrowName");
    EXPECT_THAT(messages.shown,
                testing::ElementsAre(
                    L"The string id 48286 \"ArrowName\" was not found in the resource file."));
}

} // namespace
