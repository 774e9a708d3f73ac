#include "support.h"

#include <cmath>
#include <numbers>

#include <kwdraw/texts/mtext_codes.h>
#include <kwdraw/texts/mtext_items.h>

namespace {

using namespace text_test;
using testing::SizeIs;

/// Letters 2 high from (10, 20) down.
std::vector<Shown> shownOf(Paper& paper, const wchar_t* contents)
{
    KdDbMText text;
    text.edit().contents = contents;
    text.edit().textHeight = 2.0;
    text.edit().location = {10, 20, 0};
    writeMText(text, paper.writer);
    return paper.texts();
}

class MTextCodes : public testing::Test
{
  protected:
    std::vector<Shown> shown(const wchar_t* contents) { return shownOf(paper, contents); }

    Paper paper;
};

TEST_F(MTextCodes, SetTheHeight)
{
    const auto all = shown(L"a{\\H5;b}{\\H0.5x;c}d{\\H-1;e}");
    ASSERT_THAT(all, SizeIs(4)); // what makes no sense changes nothing
    EXPECT_NEAR(all[0].height(), 2.0, kNear);
    EXPECT_NEAR(all[1].height(), 5.0, kNear);
    EXPECT_NEAR(all[2].height(), 1.0, kNear);
    EXPECT_NEAR(all[3].height(), 2.0, kNear);
    EXPECT_EQ(all[3].letters, "de");
}

TEST_F(MTextCodes, SetTheWidth)
{
    const auto all = shown(L"{\\W0.5;abc}{\\W3x;d}");
    EXPECT_NEAR(all[0].end.x() - all[0].start.x(), plainWidth("abc"), kNear);
    EXPECT_NEAR(all[1].end.x() - all[1].start.x(), 6.0 * plainWidth("d"), kNear);
}

TEST_F(MTextCodes, SetTheDistanceOfLetters)
{
    const auto all = shown(L"{\\T2;ab}c");
    ASSERT_THAT(all, SizeIs(3));
    EXPECT_NEAR(all[1].start.x(), 10.0 + 4.0 * plainWidth("a"), kNear);
    EXPECT_NEAR(all[2].start.x(), 10.0 + 4.0 * plainWidth("ab"), kNear);
    EXPECT_NEAR(all[1].end.x() - all[1].start.x(), 2.0 * plainWidth("b"), kNear);
}

TEST_F(MTextCodes, SetTheSlant)
{
    const auto all = shown(L"{\\Q45;a}{\\Q-45;b}");
    EXPECT_NEAR(all[0].top.x() - all[0].start.x(), 2.0, kNear);
    EXPECT_NEAR(all[1].top.x() - all[1].start.x(), -2.0, kNear);
}

TEST_F(MTextCodes, SetColoursByIndexAndByValue)
{
    const auto all = shown(L"a{\\C1;b}{\\c16711680;c}{\\C7;d}{\\C256;e}{\\C300;f}");
    ASSERT_THAT(all, SizeIs(5)); // the two last have the colour of the text
    EXPECT_EQ(all[0].look.color, 0x80112233U);
    EXPECT_EQ(all[1].look.color, 0x80FF0000U); // as transparent as the text
    EXPECT_EQ(all[2].look.color, 0x800000FFU); // the number has blue in its high byte
    EXPECT_TRUE(all[3].look.isForeground);
    EXPECT_EQ(all[4].look.color, 0x80112233U);
    EXPECT_EQ(paper.writer.look().color, 0x80112233U);
}

TEST_F(MTextCodes, SwitchLinesOnAndOff)
{
    const auto all = shown(L"\\La\\l \\Ob\\o\\Kc\\k");
    ASSERT_THAT(all, SizeIs(3));
    const auto strokes = paper.strokes();
    ASSERT_THAT(strokes, SizeIs(3));
    const double base = 18.0;
    EXPECT_THAT(strokes[0].points[0], IsAt(10.0, base - 0.4));
    EXPECT_THAT(strokes[0].points[1], IsAt(all[0].end.x(), base - 0.4));
    EXPECT_THAT(strokes[1].points[0], IsAt(all[1].start.x(), base + 2.4));
    EXPECT_THAT(strokes[2].points[0], IsAt(all[2].start.x(), base + 1.0));
}

TEST_F(MTextCodes, ToggleLinesByPercentSigns)
{
    shown(L"%%ua%%ub");
    EXPECT_THAT(paper.strokes(), SizeIs(1));
}

TEST_F(MTextCodes, DrawLinesBelowBlanksAsWell)
{
    const auto all = shown(L"\\La b\\l");
    const auto strokes = paper.strokes();
    ASSERT_THAT(strokes, SizeIs(1));
    EXPECT_NEAR(strokes[0].points[1].x(), 10.0 + 2.0 * plainWidth("a b"), kNear);
}

TEST_F(MTextCodes, SetThePlaceInTheLine)
{
    const auto all = shown(L"A\\H1;\\A0;b\\A1;c\\A2;d");
    ASSERT_THAT(all, SizeIs(4));
    EXPECT_NEAR(all[1].start.y(), 18.0, kNear);
    EXPECT_NEAR(all[2].start.y(), 18.5, kNear);
    EXPECT_NEAR(all[3].start.y(), 19.0, kNear);
}

TEST_F(MTextCodes, ShowSignsAndBraces)
{
    shown(L"\\{%%d\\}\\\\%%c\\~x");
    EXPECT_EQ(paper.letters(), QString::fromWCharArray(L"{\u00B0}\\\u2300 x"));
}

TEST_F(MTextCodes, EndWithTheirGroup)
{
    const auto all = shown(L"{\\H1;a{\\C1;b}c}d}e{f");
    EXPECT_EQ(paper.letters(), "a|b|c|def");
    EXPECT_NEAR(all[2].height(), 1.0, kNear);
    EXPECT_EQ(all[2].look.color, 0x80112233U);
    EXPECT_NEAR(all[3].height(), 2.0, kNear);
}

TEST_F(MTextCodes, ChooseFaces)
{
    const auto all = shown(L"{\\fDejaVu Serif|b1|i1|c0|p18;a}{\\fDejaVu Serif|b0|i0;b}"
                           L"{\\Fisocp.shx,bigfont.shx;c}{\\f;d}");
    ASSERT_THAT(all, SizeIs(4));
    EXPECT_TRUE(all[0].font.bold);
    EXPECT_TRUE(all[0].font.italic);
    EXPECT_FALSE(all[1].font.bold);
    EXPECT_EQ(all[0].font.family, faceOfFamily(L"DejaVu Serif", true, true).font.family);
    EXPECT_EQ(all[2].font, faceOfFile(L"isocp").font);
    EXPECT_LT(all[2].end.x() - all[2].start.x(), 2.0 * plainWidth("c"));
    EXPECT_EQ(all[3].font, faceOf(nullptr).font);
}

TEST(ParagraphCode, GivesIndentsAlignmentAndTabs)
{
    ParagraphFormat format;
    applyParagraphCode(L"xi-1.5,l2,r3,b4,a5,qc,t1,c8,r4", format);
    EXPECT_EQ(format.first, -1.5);
    EXPECT_EQ(format.left, 2.0);
    EXPECT_EQ(format.right, 3.0);
    EXPECT_EQ(format.before, 4.0);
    EXPECT_EQ(format.after, 5.0);
    EXPECT_EQ(format.align, ParagraphFormat::Align::Center);
    ASSERT_THAT(format.tabs, SizeIs(3)); // in order
    EXPECT_EQ(format.tabs[1].place, 4.0);
    EXPECT_EQ(format.tabs[1].kind, ParagraphFormat::TabStop::Kind::Right);
    EXPECT_EQ(format.tabs[2].kind, ParagraphFormat::TabStop::Kind::Center);
}

TEST(ParagraphCode, TakesValuesBackByAsterisks)
{
    ParagraphFormat format;
    applyParagraphCode(L"i1,l2,qr,t5", format);
    applyParagraphCode(L"i*,l*,q*,t;", format);
    EXPECT_EQ(format.first, 0.0);
    EXPECT_EQ(format.left, 0.0);
    EXPECT_EQ(format.align, ParagraphFormat::Align::ByAttachment);
    EXPECT_THAT(format.tabs, testing::IsEmpty());
}

TEST(LookCode, IgnoresNumbersThatMakeNoSense)
{
    TextLook look;
    look.height = 2.0;
    const TextLook before = look;
    for (const wchar_t* argument : {L"", L"x", L"0", L"-3", L"nan", L"inf", L"1e300", L"1e-300"}) {
        applyLookCode(L'H', argument, look);
        applyLookCode(L'W', argument, look);
        applyLookCode(L'T', argument, look);
    }
    applyLookCode(L'C', L"-1", look);
    applyLookCode(L'c', L"99999999", look);
    applyLookCode(L'A', L"7", look);
    applyLookCode(L'Q', L"nan", look);
    EXPECT_EQ(look, before);
}

} // namespace
