#include "support.h"

#include <cmath>
#include <numbers>

#include <entities/fcf.h>
#include <entities/mtext.h>

namespace {

using namespace entity_test;
using testing::ElementsAre;

std::vector<KdGePoint3d> cornersOf(const KdDbEntity& entity)
{
    KdArray<KdGePoint3d> points;
    EXPECT_EQ(entity.getBoundingPoints(points), eOk);
    std::vector<KdGePoint3d> corners;
    for (int i = 0; i < points.length(); ++i)
        corners.push_back(points[i]);
    return corners;
}

class MText : public testing::Test
{
  protected:
    MText()
    {
        text.edit().textHeight = 3.0;
        text.edit().location = {1, 2, 0};
        text.edit().contents = L"HELLO"; // (5 - 1/3) * 3 = 14 wide
    }

    KdDbMText text;
};

struct CodeRow
{
    const char* name;
    const wchar_t* contents;
    const wchar_t* plain;
};

class MTextCodes : public testing::TestWithParam<CodeRow>
{
};
constexpr CodeRow kCodes[] = {
    {"none", L"plain text", L"plain text"},
    {"paragraphsAndColumns", L"a\\Pb\\Nc\\Xd", L"a\nb\nc\nd"},
    {"lineFeeds", L"a\r\nb", L"a\nb"},
    {"blankThatDoesNotBreak", L"a\\~b", L"a\u00A0b"},
    {"escapedSigns", L"\\{a\\}\\\\", L"{a}\\"},
    {"braces", L"{a{b}}", L"ab"},
    {"lines", L"\\La\\l\\Ob\\o\\Kc\\k", L"abc"},
    {"fontsAndSizes", L"{\\fArial|b0|i0;\\H2.5;\\W0.8;\\T1.2;\\Q15;\\C1;\\c255;\\A1;a}", L"a"},
    {"paragraphSetting", L"\\pi1,t4;a", L"a"},
    {"fraction", L"1\\S1/2;\"", L"11/2\""},
    {"diagonalFraction", L"\\S1#2;", L"1/2"},
    {"tolerance", L"\\S+1^-2;", L"+1 -2"},
    {"oneRowStack", L"\\S1;", L"1"},
    {"percentCodes", L"%%d%%c%%P%%%%%u%%065%%x", L"\u00B0\u2300\u00B1%A%%x"},
    {"argumentWithoutEnd", L"\\H2.5x", L"H2.5x"},
    {"backslashAtTheEnd", L"a\\", L"a\\"},
    {"braceTooMany", L"a}b", L"ab"},
    {"unknownCode", L"\\za", L"za"},
};
INSTANTIATE_TEST_SUITE_P(All, MTextCodes, testing::ValuesIn(kCodes),
                         [](const auto& row) { return row.param.name; });

TEST_P(MTextCodes, AreNoPartOfThePlainText)
{
    KdDbMText text;
    text.edit().contents = GetParam().contents;
    KdString contents;
    EXPECT_EQ(text.contents(contents), eOk);
    EXPECT_EQ(contents, GetParam().contents);
    EXPECT_EQ(text.text(), GetParam().plain);
}

TEST(MTextCodesWithoutEnd, TakeNoTimeBeyondTheirLength)
{
    std::wstring contents;
    for (int i = 0; i < 300000; ++i)
        contents += L"\\H";
    KdDbMText text;
    text.edit().contents = KdString(std::wstring_view(contents));
    EXPECT_EQ(text.text().length(), 300000u);
}

TEST_F(MText, HasItsCornersInRows)
{
    EXPECT_THAT(cornersOf(text),
                ElementsAre(IsNear(KdGePoint3d{1, 2, 0}), IsNear(KdGePoint3d{15, 2, 0}),
                            IsNear(KdGePoint3d{1, -1, 0}), IsNear(KdGePoint3d{15, -1, 0})));
}

TEST_F(MText, LiesAroundItsLocationAsItIsAttached)
{
    text.edit().attachment = KdDb::kMiddleCenter;
    EXPECT_THAT(cornersOf(text)[0], IsNear(KdGePoint3d{-6, 3.5, 0}));
    text.edit().attachment = KdDb::kBottomRight;
    EXPECT_THAT(cornersOf(text)[0], IsNear(KdGePoint3d{-13, 5, 0}));
    text.edit().attachment = static_cast<KdDb::MTextAttachment>(77);
    EXPECT_THAT(cornersOf(text)[0], IsNear(KdGePoint3d{1, 2, 0}));
}

TEST_F(MText, RunsAlongItsDirection)
{
    text.edit().direction = {0, 5, 0};
    EXPECT_THAT(cornersOf(text),
                ElementsAre(IsNear(KdGePoint3d{1, 2, 0}), IsNear(KdGePoint3d{1, 16, 0}),
                            IsNear(KdGePoint3d{4, 2, 0}), IsNear(KdGePoint3d{4, 16, 0})));
    EXPECT_NEAR(text.rotation(), std::numbers::pi / 2, kNear);
    KdGeExtents3d box;
    ASSERT_EQ(text.getGeomExtents(box), eOk);
    EXPECT_THAT(box.minPoint, IsNear(KdGePoint3d{1, 2, 0}));
    EXPECT_THAT(box.maxPoint, IsNear(KdGePoint3d{4, 16, 0}));
}

TEST_F(MText, TurnsAboutItsNormal)
{
    text.edit().normal = {0, 0, -1}; // whose object frame has its x axis to the left
    text.edit().direction = {-1, 0, 0};
    EXPECT_EQ(text.rotation(), 0.0);
    text.edit().direction = {0, -1, 0};
    EXPECT_NEAR(text.rotation(), 3 * std::numbers::pi / 2, kNear);
    text.edit().direction = {0, 1, 7}; // only what lies in the plane counts
    EXPECT_NEAR(text.rotation(), std::numbers::pi / 2, kNear);
    EXPECT_THAT(text.direction(), IsNear(KdGeVector3d{0, 1, 0}));
}

TEST_F(MText, HasADirectionAndANormalWhateverItsRecordHolds)
{
    text.edit().normal = {};
    text.edit().direction = {0, 0, 4};
    EXPECT_EQ(text.normal(), KdGeVector3d::kZAxis);
    EXPECT_THAT(text.direction(), IsNear(KdGeVector3d::kXAxis));
    EXPECT_EQ(text.rotation(), 0.0);
}

TEST_F(MText, IsAsHighAsItsLines)
{
    text.edit().contents = L"HELLO\\PHE\\P";
    EXPECT_NEAR(text.actualWidth(), 14.0, kNear);
    EXPECT_NEAR(text.actualHeight(), 3.0 + 5.0 + 5.0, kNear);
    text.edit().lineSpacingFactor = 2.0;
    EXPECT_NEAR(text.actualHeight(), 3.0 + 10.0 + 10.0, kNear);
}

TEST_F(MText, BreaksItsLinesAtTheWidth)
{
    text.edit().contents = L"HE LLO"; // 5 and 8 wide, 17 in one line
    EXPECT_NEAR(text.actualWidth(), 17.0, kNear);
    EXPECT_NEAR(text.actualHeight(), 3.0, kNear);
    text.edit().width = 16.0;
    EXPECT_NEAR(text.actualWidth(), 8.0, kNear);
    EXPECT_NEAR(text.actualHeight(), 8.0, kNear);
    text.edit().width = 1.0; // a word is not broken
    EXPECT_NEAR(text.actualWidth(), 8.0, kNear);
    EXPECT_NEAR(text.actualHeight(), 8.0, kNear);
}

TEST_F(MText, MakesRoomForLargerLetters)
{
    text.edit().contents = L"{\\H2x;A}\\P\\H6;\\W0.5;B";
    EXPECT_NEAR(text.actualWidth(), 4.0, kNear); // (1 - 1/3) * 6
    EXPECT_NEAR(text.actualHeight(), 6.0 + 10.0, kNear);
    text.edit().lineSpacingStyle = KdDb::kExactly;
    EXPECT_NEAR(text.actualHeight(), 6.0 + 5.0, kNear);
}

TEST_F(MText, StretchesTheGapsOfTrackedLetters)
{
    text.edit().contents = L"\\T2;HE"; // 6 from letter to letter, and 2 of the last one
    EXPECT_NEAR(text.actualWidth(), 8.0, kNear);
}

TEST_F(MText, TakesTheSizeOfItsDrawingBeforeItsOwn)
{
    text.edit().actualWidth = 5.0;
    text.edit().actualHeight = 4.0;
    EXPECT_THAT(cornersOf(text)[3], IsNear(KdGePoint3d{6, -2, 0}));
}

TEST_F(MText, IsAsWideAsItsColumns)
{
    text.edit().columns = {KdDb::kStaticColumns, 3, 10.0, 2.0, {}};
    text.edit().height = 20.0;
    EXPECT_NEAR(text.actualWidth(), 34.0, kNear);
    EXPECT_NEAR(text.actualHeight(), 20.0, kNear);
    EXPECT_EQ(text.columnCount(), 3);
    EXPECT_EQ(text.columnWidth(), 10.0);
    EXPECT_EQ(text.columnGutterWidth(), 2.0);
}

TEST_F(MText, HasNoExtentsWithoutLettersOrHeight)
{
    KdGeExtents3d box;
    text.edit().contents = L"";
    EXPECT_EQ(text.getGeomExtents(box), eNotApplicable);
    text.edit().contents = L"a";
    text.edit().textHeight = 0.0;
    EXPECT_EQ(text.getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
}

TEST_F(MText, NamesTheColorOfItsGround)
{
    text.edit().fillColor = 0xC3000004;
    text.edit().fillColorName = L"BOOK$Sea";
    KdCmColor color;
    EXPECT_EQ(text.getBackgroundFillColor(color), eOk);
    EXPECT_EQ(color.colorIndex(), 4);
    EXPECT_EQ(color.colorName(), L"Sea");
    EXPECT_EQ(color.bookName(), L"BOOK");
}

class ToleranceFrame : public testing::Test
{
  protected:
    ToleranceFrame()
    {
        frame.edit().location = {1, 2, 0};
        DimensionStyleUse& use = frame.edit().dimension;
        use.overrides.set(KdDbDimVar::dimtxt, 1.5);
        use.overrides.set(KdDbDimVar::dimgap, -0.5);
        use.overrides.set(KdDbDimVar::dimscale, 2.0);
    }

    KdDbFcf frame;
};

TEST_F(ToleranceFrame, HasRowsOfTwiceTheTextHeight)
{
    // Letters of height 3 with a gap of 1 on both sides of each cell: 5 + 2 and 2 + 2.
    frame.edit().text = L"HE%%vA%%v%%v\nB";
    EXPECT_THAT(cornersOf(frame),
                ElementsAre(IsNear(KdGePoint3d{1, 5, 0}), IsNear(KdGePoint3d{12, 5, 0}),
                            IsNear(KdGePoint3d{1, -7, 0}), IsNear(KdGePoint3d{12, -7, 0})));
}

TEST_F(ToleranceFrame, CountsAnEmptyCellBetweenOthersAndNoFormatCodes)
{
    frame.edit().text = L"%%v{\\Fgdt;j}";
    EXPECT_THAT(cornersOf(frame)[3],
                IsNear(KdGePoint3d{1 + 2 + 2 + (4.0 / 6 - 2.0 / 6) * 3, -1, 0}));
}

TEST_F(ToleranceFrame, LiesInItsPlane)
{
    frame.edit().text = L"A";
    frame.edit().normal = {0, 0, -3};
    frame.edit().direction = {0, 2, 0};
    EXPECT_THAT(cornersOf(frame)[1], IsNear(KdGePoint3d{4, 6, 0}));
    KdGeExtents3d box;
    ASSERT_EQ(frame.getGeomExtents(box), eOk);
    EXPECT_THAT(box.minPoint, IsNear(KdGePoint3d{-2, 2, 0}));
    EXPECT_THAT(box.maxPoint, IsNear(KdGePoint3d{4, 6, 0}));
}

TEST_F(ToleranceFrame, HasNoCornersWithoutCells)
{
    KdArray<KdGePoint3d> points;
    KdGeExtents3d box;
    EXPECT_EQ(frame.getBoundingPoints(points), eNotApplicable);
    EXPECT_EQ(frame.getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(points.isEmpty());
    EXPECT_TRUE(box.isEmpty());
}

} // namespace
