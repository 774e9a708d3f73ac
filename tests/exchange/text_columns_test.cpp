// Texts in columns that are entities of their own.
#include <gtest/gtest.h>

#include <entities/mtext.h>

#include "made_drawing.h"

namespace {

Groups operator+(Groups a, const Groups& b)
{
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

Groups text(const std::string& handle, const std::string& letters)
{
    return {{0, "MTEXT"}, {5, handle},        {100, "AcDbEntity"},
            {8, "0"},     {100, "AcDbMText"}, {1, letters}};
}

Groups columns(const std::vector<std::string>& handles)
{
    Groups groups{{1001, "ACAD"}, {1000, "ACAD_MTEXT_COLUMNS_BEGIN"}, {1070, "47"}, {1070, "3"}};
    for (const std::string& handle : handles)
        groups.emplace_back(1005, handle);
    groups.emplace_back(1000, "ACAD_MTEXT_COLUMNS_END");
    groups.emplace_back(1005, "A9"); // of no account behind the end
    return groups;
}

const Groups kInThree = text("A1", "One\\P") + columns({"A3", "A2"}) + text("A2", "Three") +
                        text("A3", "Two\\P") + text("A9", "Another");

Groups inModel(const Groups& entities)
{
    return drawing({header("AC1021"), section("ENTITIES", entities)});
}

std::vector<std::wstring> textsOf(const ReadDrawing& drawn)
{
    std::vector<std::wstring> texts;
    for (const KdDbEntity* entity : drawn.entities()) {
        KdString contents;
        static_cast<const KdDbMText*>(entity)->contents(contents);
        texts.emplace_back(contents.view());
    }
    return texts;
}

using Texts = std::vector<std::wstring>;

TEST(TextColumns, AreOneTextInTheirOrder)
{
    const ReadDrawing drawn = readGroups(inModel(kInThree));
    EXPECT_EQ(textsOf(drawn), (Texts{L"One\\PTwo\\PThree", L"Another"}));
    EXPECT_EQ(drawn.report.entities, 2u);
    EXPECT_TRUE(drawn.report.complete);
}

TEST(TextColumns, AreOneTextInBinaryDrawings)
{
    const ReadDrawing drawn = readBytes(asBinary(inModel(kInThree)));
    EXPECT_EQ(textsOf(drawn), (Texts{L"One\\PTwo\\PThree", L"Another"}));
}

TEST(TextColumns, AreOneTextWhenAllMembersAreReadAtOnce)
{
    const ReadDrawing drawn = readGroupsWhole(inModel(kInThree));
    EXPECT_EQ(textsOf(drawn), (Texts{L"One\\PTwo\\PThree", L"Another"}));
}

TEST(TextColumns, MayStandBeforeTheirText)
{
    const Groups entities = text("A2", "Two") + text("A1", "One\\P") + columns({"A2"});
    EXPECT_EQ(textsOf(readGroups(inModel(entities))), Texts{L"One\\PTwo"});
}

TEST(TextColumns, BelongToTheFirstTextThatNamesThem)
{
    const Groups entities = text("A1", "One\\P") + columns({"A3", "A3"}) + text("A2", "Two\\P") +
                            columns({"A3"}) + text("A3", "Three");
    EXPECT_EQ(textsOf(readGroups(inModel(entities))), (Texts{L"One\\PThree", L"Two\\P"}));
}

TEST(TextColumns, AreNoTextsThatHaveColumnsThemselves)
{
    const Groups entities =
        text("A1", "One") + columns({"A2", "A1"}) + text("A2", "Two") + columns({"A1"});
    EXPECT_EQ(textsOf(readGroups(inModel(entities))), (Texts{L"One", L"Two"}));
}

TEST(TextColumns, AreTextsOfTheSameBlockAlone)
{
    const Groups block = Groups{{0, "BLOCK"}, {2, "B"}} + text("A2", "Two") + Groups{{0, "ENDBLK"}};
    const Groups line{{0, "LINE"}, {5, "A3"}, {100, "AcDbEntity"}, {8, "0"}};
    const ReadDrawing drawn = readGroups(drawing(
        {header("AC1015"), section("BLOCKS", block),
         section("ENTITIES", text("A1", "One") + columns({"A2", "A3", "FF", "0"}) + line)}));
    ASSERT_EQ(drawn.entities().size(), 2u);
    KdString contents;
    drawn.entity<KdDbMText>(0)->contents(contents);
    EXPECT_EQ(contents, L"One");
    EXPECT_EQ(drawn.entities(L"B").size(), 1u);
}

} // namespace
