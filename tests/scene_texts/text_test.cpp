#include "support.h"

#include <cmath>
#include <numbers>

#include <entities/attribute.h>

namespace {

using namespace text_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// "Hand" 4 high between (10, 20) and (16, 28).
class SingleText : public testing::Test
{
  protected:
    SingleText()
    {
        TextMembers& members = text.edit();
        members.text = L"Hand";
        members.height = 4.0;
        members.position = {10, 20, 0};
        members.alignmentPoint = {16, 28, 0};
    }
    void draw() { writeText(text, paper.writer); }
    Shown only()
    {
        draw();
        const auto all = paper.texts();
        EXPECT_THAT(all, SizeIs(1));
        return all.empty() ? Shown{} : all.front();
    }

    const double width = 4.0 * plainWidth("Hand");
    KdDbText text;
    Paper paper;
};

struct ModeRow
{
    const char* name;
    KdDb::TextHorizontalMode horizontal;
    KdDb::TextVerticalMode vertical;
    double widths;   ///< from the point to the left, in widths of the line
    double heights;  ///< from the point down to the base line, in heights
    double descents; ///< and up from there, in depths of letters
};

class TextModes : public SingleText, public testing::WithParamInterface<ModeRow>
{
};
constexpr ModeRow kModes[] = {
    {"centered", KdDb::kTextCenter, KdDb::kTextBase, 0.5, 0, 0},
    {"right", KdDb::kTextRight, KdDb::kTextBase, 1, 0, 0},
    {"middle", KdDb::kTextMiddle, KdDb::kTextBase, 0.5, 0.5, 0},
    {"middleIgnoresTheVerticalMode", KdDb::kTextMiddle, KdDb::kTextTop, 0.5, 0.5, 0},
    {"bottomLeft", KdDb::kTextLeft, KdDb::kTextBottom, 0, 0, 1},
    {"bottomCenter", KdDb::kTextCenter, KdDb::kTextBottom, 0.5, 0, 1},
    {"bottomRight", KdDb::kTextRight, KdDb::kTextBottom, 1, 0, 1},
    {"middleLeft", KdDb::kTextLeft, KdDb::kTextVerticalMiddle, 0, 0.5, 0},
    {"middleCenter", KdDb::kTextCenter, KdDb::kTextVerticalMiddle, 0.5, 0.5, 0},
    {"middleRight", KdDb::kTextRight, KdDb::kTextVerticalMiddle, 1, 0.5, 0},
    {"topLeft", KdDb::kTextLeft, KdDb::kTextTop, 0, 1, 0},
    {"topCenter", KdDb::kTextCenter, KdDb::kTextTop, 0.5, 1, 0},
    {"topRight", KdDb::kTextRight, KdDb::kTextTop, 1, 1, 0},
};
INSTANTIATE_TEST_SUITE_P(All, TextModes, testing::ValuesIn(kModes),
                         [](const auto& row) { return row.param.name; });

TEST_P(TextModes, PlaceTheTextAboutItsAlignmentPoint)
{
    const ModeRow& row = GetParam();
    text.edit().horizontalMode = row.horizontal;
    text.edit().verticalMode = row.vertical;
    const Shown shown = only();
    const double x = 16.0 - row.widths * width;
    const double y =
        28.0 - row.heights * 4.0 + row.descents * 4.0 * descentOf(faceOf(nullptr).font);
    EXPECT_THAT(shown.start, IsAt(x, y));
    EXPECT_THAT(shown.end, IsAt(x + width, y));
    EXPECT_THAT(shown.top, IsAt(x, y + 4.0));
}

TEST_P(TextModes, TurnTheTextAboutItsAlignmentPoint)
{
    const ModeRow& row = GetParam();
    text.edit().horizontalMode = row.horizontal;
    text.edit().verticalMode = row.vertical;
    text.edit().rotation = std::numbers::pi / 2.0;
    const Shown shown = only();
    const double x =
        16.0 + row.heights * 4.0 - row.descents * 4.0 * descentOf(faceOf(nullptr).font);
    EXPECT_THAT(shown.start, IsAt(x, 28.0 - row.widths * width));
    EXPECT_THAT(shown.top, IsAt(x - 4.0, 28.0 - row.widths * width));
}

TEST_F(SingleText, BeginsAtItsPosition)
{
    const Shown shown = only();
    EXPECT_EQ(shown.letters, "Hand");
    EXPECT_THAT(shown.start, IsAt(10, 20));
    EXPECT_THAT(shown.end, IsAt(10 + width, 20));
    EXPECT_THAT(shown.top, IsAt(10, 24));
}

TEST_F(SingleText, MiddleTakesLettersBelowTheBaseLineIn)
{
    text.edit().text = L"Jog";
    text.edit().horizontalMode = KdDb::kTextMiddle;
    const double depth = 4.0 * descentOf(faceOf(nullptr).font);
    EXPECT_NEAR(only().start.y(), 28.0 - (4.0 - depth) / 2.0, kNear);
}

TEST_F(SingleText, AlignedBetweenTwoPointsHasTheHeightThatFillsTheirDistance)
{
    text.edit().horizontalMode = KdDb::kTextAligned;
    text.edit().rotation = 1.0; // the points alone count
    const Shown shown = only();
    EXPECT_THAT(shown.start, IsAt(10, 20));
    EXPECT_THAT(shown.end, IsAt(16, 28));
    EXPECT_NEAR(shown.height(), 10.0 / plainWidth("Hand"), kNear);
}

TEST_F(SingleText, FittedBetweenTwoPointsKeepsItsHeight)
{
    text.edit().horizontalMode = KdDb::kTextFit;
    const Shown shown = only();
    EXPECT_THAT(shown.start, IsAt(10, 20));
    EXPECT_THAT(shown.end, IsAt(16, 28));
    EXPECT_NEAR(shown.height(), 4.0, kNear);
}

TEST_F(SingleText, FittedBackwardRunsFromTheSecondPoint)
{
    text.edit().horizontalMode = KdDb::kTextFit;
    text.edit().mirroredInX = true;
    const Shown shown = only();
    EXPECT_THAT(shown.start, IsAt(16, 28));
    EXPECT_THAT(shown.end, IsAt(10, 20));
}

TEST_F(SingleText, BetweenEqualPointsStandsAsItIs)
{
    text.edit().horizontalMode = KdDb::kTextAligned;
    text.edit().alignmentPoint = {10, 20, 0};
    EXPECT_NEAR(only().height(), 4.0, kNear);
}

TEST_F(SingleText, IsStretchedByItsWidthFactor)
{
    text.edit().widthFactor = 0.5;
    EXPECT_THAT(only().end, IsAt(10 + width / 2, 20));
}

TEST_F(SingleText, LeansByItsObliqueAngle)
{
    text.edit().oblique = std::numbers::pi / 4.0;
    EXPECT_THAT(only().top, IsAt(14, 24));
}

TEST_F(SingleText, RunsBackwardFromItsPoint)
{
    text.edit().mirroredInX = true;
    const Shown shown = only();
    EXPECT_THAT(shown.start, IsAt(10, 20));
    EXPECT_THAT(shown.end, IsAt(10 - width, 20));
    EXPECT_THAT(shown.top, IsAt(10, 24));
}

TEST_F(SingleText, HangsUpsideDownFromItsPoint)
{
    text.edit().mirroredInY = true;
    EXPECT_THAT(only().top, IsAt(10, 16));
}

TEST_F(SingleText, LiesInThePlaneOfItsExtrusion)
{
    text.edit().extrusion.setDirection({0, 0, -1}); // seen from behind: x runs to the left
    const Shown shown = only();
    EXPECT_THAT(shown.start, IsAt(-10, 20));
    EXPECT_THAT(shown.end, IsAt(-10 - width, 20));
    EXPECT_THAT(shown.top, IsAt(-10, 24));
}

TEST_F(SingleText, ShowsTheSignsOfItsCodes)
{
    text.edit().text = L"%%c12 %%d%%p%%%%%065 %%x";
    EXPECT_EQ(only().letters, QString::fromWCharArray(L"\u230012 \u00B0\u00B1%A %%x"));
}

TEST_F(SingleText, DrawsLinesWhereItsCodesTurnThemOn)
{
    text.edit().text = L"a%%ubc%%ud%%oe%%kf";
    draw();
    EXPECT_EQ(paper.letters(), "a|bc|d|e|f");
    const auto all = paper.texts();
    const auto strokes = paper.strokes();
    ASSERT_THAT(strokes, SizeIs(4)); // below, above, above and through the last letter
    EXPECT_THAT(strokes[0].points[0], IsAt(all[1].start.x(), 20 - 0.2 * 4));
    EXPECT_THAT(strokes[0].points[1], IsAt(all[2].start.x(), 20 - 0.2 * 4));
    EXPECT_THAT(strokes[1].points[0], IsAt(all[3].start.x(), 20 + 1.2 * 4));
    EXPECT_THAT(strokes[3].points[0], IsAt(all[4].start.x(), 20 + 0.5 * 4));
}

TEST_F(SingleText, HasTheColourOfItsEntityAndNoGaps)
{
    text.edit().text = L"%%uA";
    draw();
    for (const SceneLook& look : {paper.texts().at(0).look, paper.strokes().at(0).look}) {
        EXPECT_EQ(look.color, 0x80112233U);
        EXPECT_EQ(look.linetype, -1);
    }
}

TEST_F(SingleText, LeavesTheLookOfTheWriterAsItWas)
{
    draw();
    EXPECT_EQ(paper.writer.look().linetype, 3);
    EXPECT_EQ(paper.writer.layer(), 5U);
}

TEST(AttributeDefinition, ShowsItsTag)
{
    KdDbAttributeDefinition definition;
    definition.edit().height = 1.0;
    definition.edit().tag = L"NUMBER";
    definition.edit().text = L"17";
    Paper paper;
    writeText(definition, paper.writer);
    EXPECT_EQ(paper.letters(), "NUMBER");
    definition.edit().mode.constant = true;
    writeText(definition, paper.writer);
    EXPECT_EQ(paper.letters(), "NUMBER|17");
}

TEST(Attribute, ShowsAllOfItsLines)
{
    KdDbAttribute attribute;
    attribute.edit().height = 1.0;
    attribute.edit().text = L"first";
    attribute.edit().lines = std::make_unique<KdDbMText>();
    attribute.edit().lines->edit().contents = L"first\\Psecond";
    attribute.edit().lines->edit().textHeight = 1.0;
    Paper paper;
    writeText(attribute, paper.writer);
    EXPECT_EQ(paper.letters(), "first|second");
}

} // namespace
