#include "support.h"

#include <set>

#include <entities/fcf.h>
#include <kwdraw/texts/symbols.h>

namespace {

using namespace text_test;
using testing::IsEmpty;
using testing::SizeIs;

/// A tolerance at (10, 20), letters 2 high with a gap of 1.
class Tolerance : public testing::Test
{
  protected:
    Tolerance()
    {
        tolerance.edit().location = {10, 20, 0};
        KdDbDimValues& own = tolerance.edit().dimension.overrides;
        own.set(KdDbDimVar::dimtxt, 0.5);
        own.set(KdDbDimVar::dimgap, -0.25);
        own.set(KdDbDimVar::dimscale, 4.0);
    }
    void draw(const wchar_t* text)
    {
        tolerance.edit().text = text;
        writeFcf(tolerance, paper.writer);
    }

    KdDbFcf tolerance;
    Paper paper;
};

TEST_F(Tolerance, HasACellAroundEachOfItsTexts)
{
    draw(L"A%%vBB");
    const auto cells = paper.strokes();
    ASSERT_THAT(cells, SizeIs(2));
    const double first = 2.0 * plainWidth("A") + 2.0;
    const double second = 2.0 * plainWidth("BB") + 2.0;
    EXPECT_THAT(cells[0].points[0], IsAt(10.0, 18.0)); // twice as high as letters
    EXPECT_THAT(cells[0].points[2], IsAt(10.0 + first, 22.0));
    EXPECT_THAT(cells[1].points[2], IsAt(10.0 + first + second, 22.0));
    const auto texts = paper.texts();
    EXPECT_THAT(texts[0].start, IsAt(11.0, 19.0));
    EXPECT_THAT(texts[1].start, IsAt(11.0 + first, 19.0));
}

TEST_F(Tolerance, HasItsRowsBelowEachOther)
{
    draw(L"A\nB");
    EXPECT_THAT(paper.texts()[1].start, IsAt(11.0, 15.0));
}

TEST_F(Tolerance, DrawsNoEmptyCellsAtTheEndOfARow)
{
    draw(L"A%%v%%vB%%v%%v");
    EXPECT_THAT(paper.strokes(), SizeIs(3));
    EXPECT_THAT(paper.texts(), SizeIs(2));
}

TEST_F(Tolerance, HasTheColoursOfItsStyle)
{
    tolerance.edit().dimension.overrides.set(KdDbDimVar::dimclrd, static_cast<int>(0xC3000001));
    tolerance.edit().dimension.overrides.set(KdDbDimVar::dimclrt, static_cast<int>(0xC3000005));
    draw(L"A");
    EXPECT_EQ(paper.strokes()[0].look.color, 0x80FF0000U);
    EXPECT_EQ(paper.texts()[0].look.color, 0x800000FFU);
}

TEST_F(Tolerance, DrawsSignsAsStrokes)
{
    draw(L"{\\Fgdt;b}%%v{\\Fgdt;n}1{\\FGDT.SHX|c0;m}");
    EXPECT_EQ(paper.letters(), "1|M"); // the M stands in the sign for most material
    const auto strokes = paper.strokes();
    ASSERT_THAT(strokes, SizeIs(5)); // two cells and three signs
    const Stroke& sign = strokes[1];
    EXPECT_THAT(sign.points[0], IsAt(11.2, 19.0));
    EXPECT_THAT(sign.points[1], IsAt(11.2 + 2.4, 19.0));
    EXPECT_THAT(strokes[0].points[2], IsAt(10.0 + 2.0 + 2.0 * kSymbolAdvance, 22.0));
}

TEST_F(Tolerance, LiesInItsPlaneAlongItsDirection)
{
    tolerance.edit().direction = {0, 3, 0};
    draw(L"A");
    EXPECT_THAT(paper.texts()[0].start, IsAt(11.0, 21.0));
}

TEST(Symbols, AreThereForAllSmallLetters)
{
    for (char32_t letter = U'a'; letter <= U'z'; ++letter) {
        EXPECT_THAT(symbolSteps(letter), testing::Not(IsEmpty()));
        for (const SymbolStep& step : symbolSteps(letter))
            EXPECT_EQ(static_cast<char32_t>(step.symbol), letter);
    }
    for (const char32_t other : {U'A', U'1', U'{', U'`', U'\u4E00'})
        EXPECT_THAT(symbolSteps(other), IsEmpty());
}

TEST(Symbols, BelongToFontsOfTheirOwn)
{
    EXPECT_TRUE(isSymbolFont(L"gdt"));
    EXPECT_TRUE(isSymbolFont(L"AMGDT.SHX"));
    EXPECT_FALSE(isSymbolFont(L"gdtx"));
    EXPECT_FALSE(isSymbolFont(L".shx"));
}

} // namespace
