#include "support.h"

#include <algorithm>

#include <kwdraw/texts/text_stack.h>

namespace {

using namespace text_test;
using testing::IsEmpty;
using testing::SizeIs;

/// Letters 2 high in the plain face.
TextStack stackOf(std::wstring_view content)
{
    TextLook look;
    look.face = faceOf(nullptr);
    look.height = 2.0;
    return stackOf(content, look, 7);
}

TEST(Stack, HasTheRowsOfAFractionInItsMiddle)
{
    const TextStack stack = stackOf(L"1/16");
    const double wide = 2.0 * plainWidth("16");
    ASSERT_THAT(stack.pieces.runs, SizeIs(2));
    EXPECT_EQ(stack.pieces.runs[0].letters, "1");
    EXPECT_EQ(stack.pieces.runs[0].look, 7U);
    EXPECT_NEAR(stack.width, wide + 0.4, kNear);
    EXPECT_NEAR(stack.height, 5.0, kNear);
    EXPECT_NEAR(stack.pieces.runs[0].x, 0.2 + (wide - 2.0 * plainWidth("1")) / 2.0, kNear);
    EXPECT_NEAR(stack.pieces.runs[0].y, 3.0, kNear);
    EXPECT_NEAR(stack.pieces.runs[1].x, 0.2, kNear);
    EXPECT_NEAR(stack.pieces.runs[1].y, 0.0, kNear);
    ASSERT_THAT(stack.pieces.bars, SizeIs(1));
    EXPECT_NEAR(stack.pieces.bars[0].y1, 2.5, kNear);
    EXPECT_NEAR(stack.pieces.bars[0].x2, stack.width, kNear);
}

TEST(Stack, HasNoBarBetweenTheRowsOfATolerance)
{
    const TextStack stack = stackOf(L"+0.2^ -1");
    ASSERT_THAT(stack.pieces.runs, SizeIs(2));
    EXPECT_EQ(stack.pieces.runs[1].letters, "-1");
    EXPECT_NEAR(stack.pieces.runs[0].x, 0.0, kNear);
    EXPECT_NEAR(stack.pieces.runs[0].y, 3.0, kNear);
    EXPECT_THAT(stack.pieces.bars, IsEmpty());
}

TEST(Stack, KeepsTheRowOfAToleranceWhoseOtherRowIsEmpty)
{
    EXPECT_NEAR(stackOf(L"2^").pieces.runs.at(0).y, 3.0, kNear);
    EXPECT_NEAR(stackOf(L"^2").pieces.runs.at(0).y, 0.0, kNear);
}

TEST(Stack, HasASlantedBar)
{
    const TextStack stack = stackOf(L"1#2");
    const double one = 2.0 * plainWidth("1");
    ASSERT_THAT(stack.pieces.runs, SizeIs(2));
    EXPECT_NEAR(stack.pieces.runs[0].y, 1.2, kNear);
    EXPECT_NEAR(stack.pieces.runs[1].x, one + 1.0, kNear);
    EXPECT_GT(stack.pieces.bars.at(0).x2, stack.pieces.bars.at(0).x1);
    EXPECT_NEAR(stack.pieces.bars.at(0).y2, stack.height, kNear);
}

TEST(Stack, TakesSignsBehindBackslashesAsTheyAre)
{
    const TextStack stack = stackOf(L"1\\/2%%d\\^#3/4");
    ASSERT_THAT(stack.pieces.runs, SizeIs(2));
    EXPECT_EQ(stack.pieces.runs[0].letters, QString::fromWCharArray(L"1/2\u00B0^"));
    EXPECT_EQ(stack.pieces.runs[1].letters, "3/4");
}

TEST(Stack, MayHaveOneRowOrNone)
{
    EXPECT_THAT(stackOf(L"12").pieces.runs, SizeIs(1));
    EXPECT_NEAR(stackOf(L"12").height, 2.0, kNear);
    EXPECT_THAT(stackOf(L"").pieces.runs, IsEmpty());
    EXPECT_THAT(stackOf(L"/").pieces.runs, IsEmpty());
}

class StackInLine : public testing::Test
{
  protected:
    std::vector<Shown> shown(const wchar_t* contents)
    {
        KdDbMText text;
        text.edit().contents = contents;
        text.edit().textHeight = 2.0;
        writeMText(text, paper.writer);
        return paper.texts();
    }

    Paper paper;
};

TEST_F(StackInLine, StandsOnTheBaseLineUnlessMovedToTheMiddle)
{
    auto all = shown(L"A\\S1/2;");
    ASSERT_THAT(all, SizeIs(3));
    EXPECT_NEAR(all[2].start.y(), all[0].start.y(), kNear);
    all = shown(L"A{\\A1;\\S1/2;}");
    EXPECT_NEAR(all[5].start.y(), all[3].start.y() - 1.5, kNear);
}

TEST_F(StackInLine, KeepsItsLineBelowTheTopOfTheText)
{
    const auto all = shown(L"A\\S1/2;");
    EXPECT_NEAR(all[0].start.y(), -5.0, kNear); // the stack is 5 high
    EXPECT_NEAR(all[1].top.y(), 0.0, kNear);
}

TEST_F(StackInLine, HasTheHeightOfItsLetters)
{
    EXPECT_NEAR(shown(L"A{\\H0.5x;\\S1/2;}")[1].height(), 1.0, kNear);
}

TEST_F(StackInLine, MovesLinesApart)
{
    const auto all = shown(L"A\\PB\\S1/2;\\PC");
    EXPECT_NEAR(all[0].start.y() - all[1].start.y(), 10.0 / 3.0 + 3.0, kNear);
    EXPECT_NEAR(all[1].start.y() - all[4].start.y(), 10.0 / 3.0, kNear);
}

TEST_F(StackInLine, IsFollowedByWhatStandsBehind)
{
    const auto all = shown(L"\\S1/2;B");
    EXPECT_NEAR(all[2].start.x(), 2.0 * std::max(plainWidth("1"), plainWidth("2")) + 0.4, kNear);
    EXPECT_THAT(paper.strokes(), SizeIs(1));
}

} // namespace
