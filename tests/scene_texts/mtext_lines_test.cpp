#include "support.h"

#include <kwdraw/texts/mtext_items.h>
#include <kwdraw/texts/text_lines.h>

namespace {

using namespace text_test;
using testing::DoubleNear;
using testing::ElementsAre;

/// Letters 1 high in the plain face.
TextLook plainLook()
{
    TextLook look;
    look.face = faceOf(nullptr);
    look.height = 1.0;
    return look;
}

std::vector<TextLine> linesOf(std::wstring_view contents, double width)
{
    return linesOf(mtextItems(contents, plainLook()), width);
}

/// What stands in each line, its pieces parted by bars.
std::vector<QString> lettersOf(const std::vector<TextLine>& lines)
{
    std::vector<QString> all;
    for (const TextLine& line : lines) {
        QStringList pieces;
        for (const TextRun& run : line.pieces.runs)
            pieces += run.letters;
        all.push_back(pieces.join(QLatin1Char('|')));
    }
    return all;
}

TEST(Lines, EndWithParagraphs)
{
    const auto lines = linesOf(L"one two\\Pthree\nfour\\P", 0.0);
    EXPECT_THAT(lettersOf(lines), ElementsAre("one two", "three", "four", ""));
    EXPECT_TRUE(lines[0].startsParagraph);
    EXPECT_TRUE(lines[0].endsParagraph);
}

TEST(Lines, AreBrokenAtBlanks)
{
    const auto lines = linesOf(L"one two three", plainWidth("one two") + 0.1);
    EXPECT_THAT(lettersOf(lines), ElementsAre("one two", "three"));
    EXPECT_FALSE(lines[0].endsParagraph);
    EXPECT_FALSE(lines[1].startsParagraph);
}

TEST(Lines, HoldWhatJustFits)
{
    EXPECT_THAT(lettersOf(linesOf(L"one two", plainWidth("one two"))), ElementsAre("one two"));
}

TEST(Lines, DropBlanksAtBreaksButNotBeforeParagraphs)
{
    const auto lines = linesOf(L"  one   two", plainWidth("  one") + 0.1);
    EXPECT_THAT(lettersOf(lines), ElementsAre("  one", "two"));
    EXPECT_DOUBLE_EQ(lines[1].pieces.runs[0].x, 0.0);
}

TEST(Lines, EndBeforeTheirTrailingBlanks)
{
    EXPECT_NEAR(linesOf(L"one  ", 0.0)[0].end, plainWidth("one"), kNear);
}

TEST(Lines, AreNotBrokenAtBlanksThatHold)
{
    const auto lines = linesOf(L"a one\\~two", plainWidth("a one") + 0.1);
    EXPECT_THAT(lettersOf(lines), ElementsAre("a", "one two"));
}

TEST(Lines, LetWordsThatAreWiderReachOut)
{
    const auto lines = linesOf(L"x aaaaaaa b", plainWidth("aaa"));
    EXPECT_THAT(lettersOf(lines), ElementsAre("x", "aaaaaaa", "b"));
    EXPECT_THAT(lettersOf(linesOf(L"abc d", 0.01)), ElementsAre("abc", "d"));
}

TEST(Lines, MayHoldNothingButBlanksBeforeAWordWithoutRoom)
{
    const auto lines = linesOf(L"   one", plainWidth("one") + 0.01);
    EXPECT_THAT(lettersOf(lines), ElementsAre("", "one"));
}

TEST(Lines, KeepWordsOfSeveralLooksTogether)
{
    const auto lines = linesOf(L"a one{\\C1;two} b", plainWidth("onetwo") + 0.1);
    EXPECT_THAT(lettersOf(lines), ElementsAre("a", "one|two", "b"));
}

TEST(Lines, MayBeBrokenBetweenIdeographs)
{
    const QString four = QString::fromWCharArray(L"\u4E00\u4E8C\u4E09\u3002");
    const auto lines = linesOf(four.toStdWString(), plainWidth(four.left(2)) + 0.01);
    // The full stop goes with the sign before it.
    EXPECT_THAT(lettersOf(lines), ElementsAre(four.left(2), four.mid(2)));
}

TEST(Lines, GoOnAtTabStopsFourHeightsApart)
{
    const auto lines = linesOf(L"a\tb\t\tc", 0.0);
    ASSERT_EQ(lines[0].pieces.runs.size(), 3U);
    EXPECT_NEAR(lines[0].pieces.runs[1].x, 4.0, kNear);
    EXPECT_NEAR(lines[0].pieces.runs[2].x, 12.0, kNear);
}

TEST(Lines, GoOnAtTheStopsOfTheirParagraph)
{
    const auto lines = linesOf(L"\\pt3,r20,c30;a\tb\tcd\tef\tg", 0.0);
    const auto& runs = lines[0].pieces.runs;
    ASSERT_EQ(runs.size(), 5U);
    EXPECT_NEAR(runs[1].x, 3.0, kNear);
    EXPECT_NEAR(runs[2].x + plainWidth("cd"), 20.0, kNear);
    EXPECT_NEAR(runs[3].x + plainWidth("ef") / 2.0, 30.0, kNear);
    EXPECT_NEAR(runs[4].x, 32.0, kNear); // behind the last of its own
}

TEST(Lines, KeepTheIndentsOfTheirParagraph)
{
    const auto lines = linesOf(L"\\pi-2,l3,r1;one two\\Pthree", plainWidth("two") + 4.5);
    EXPECT_THAT(lettersOf(lines), ElementsAre("one", "two", "three"));
    EXPECT_NEAR(lines[0].pieces.runs[0].x, 1.0, kNear);
    EXPECT_NEAR(lines[1].pieces.runs[0].x, 3.0, kNear);
    EXPECT_NEAR(lines[2].pieces.runs[0].x, 1.0, kNear); // goes on for the paragraphs behind
}

TEST(Lines, HaveNoIndentsThatLeaveThemNoRoom)
{
    const auto lines = linesOf(L"\\pl50;one", 10.0);
    EXPECT_DOUBLE_EQ(lines[0].pieces.runs[0].x, 0.0);
}

TEST(Lines, FillTheirColumnWhereTheyAreJustified)
{
    const double width = plainWidth("a b c") + 3.0;
    const auto lines = linesOf(L"\\pqj;a b c dddddddddd e", width);
    ASSERT_EQ(lines.size(), 3U);
    const TextRun& last = lines[0].pieces.runs.back();
    EXPECT_EQ(last.letters, QString("c"));
    EXPECT_NEAR(last.x + last.width, width, kNear);
    EXPECT_LT(lines[2].end, width / 2.0); // the last line stands as it is
}

TEST(Lines, DrawLinesAlongWidenedBlanks)
{
    const auto lines = linesOf(L"\\pqd;a b", 20.0);
    EXPECT_THAT(lettersOf(lines), ElementsAre("a |b"));
    EXPECT_NEAR(lines[0].pieces.runs[0].width, 20.0 - plainWidth("b"), kNear);
}

TEST(Lines, FillTheirColumnToTheLastWhereTheyAreDistributed)
{
    const auto lines = linesOf(L"\\pqd;a b", 20.0);
    EXPECT_NEAR(lines[0].pieces.runs.back().x + plainWidth("b"), 20.0, kNear);
}

TEST(Lines, AreAsHighAsTheirTallestLetters)
{
    const auto lines = linesOf(L"a{\\H2x;b}c\\P\\P{\\H3;\\P}", 0.0);
    EXPECT_DOUBLE_EQ(lines[0].height, 2.0);
    EXPECT_DOUBLE_EQ(lines[1].height, 1.0);
    EXPECT_DOUBLE_EQ(lines[2].height, 3.0); // empty, and ended by a tall paragraph mark
}

TEST(Lines, MarkTheEndOfAColumnOnce)
{
    const auto lines = linesOf(L"a\\P\\Nb\\Nc", 0.0);
    EXPECT_THAT(lettersOf(lines), ElementsAre("a", "b", "c"));
    EXPECT_TRUE(lines[0].endsColumn);
    EXPECT_TRUE(lines[1].endsColumn);
    EXPECT_FALSE(lines[2].endsColumn);
}

TEST(Lines, MayLeaveColumnsEmpty)
{
    const auto lines = linesOf(L"a\\N\\N\\Pb", 0.0);
    EXPECT_THAT(lettersOf(lines), ElementsAre("a", "", "", "b"));
    EXPECT_TRUE(lines[1].endsColumn);
    EXPECT_FALSE(lines[2].endsColumn);
}

} // namespace
