#include "support.h"

#include <cmath>
#include <numbers>

#include <entities/special_text.h>

namespace {

using namespace text_test;
using testing::IsEmpty;
using testing::SizeIs;

constexpr double kPi = std::numbers::pi;

/// "AB", 2 high, over the upper half of a circle of radius 10 about (100, 50).
class ArcText : public testing::Test
{
  protected:
    ArcText()
    {
        ArcTextMembers& members = text.edit();
        members.text = L"AB";
        members.center = {100, 50, 0};
        members.radius = 10.0;
        members.height = 2.0;
        members.startAngle = 0.0;
        members.endAngle = kPi;
        members.alignment = KdDb::kArcLeft;
    }
    std::vector<Shown> shown()
    {
        writeArcText(text, paper.writer);
        return paper.texts();
    }
    /// Where the middle of a letter's foot is, as an angle about the centre.
    static double angleOf(const Shown& letter)
    {
        const QPointF middle = (letter.start + letter.end) / 2.0 - QPointF(100, 50);
        return std::atan2(middle.y(), middle.x());
    }
    static double distanceOf(const Shown& letter)
    {
        const QPointF middle = (letter.start + letter.end) / 2.0 - QPointF(100, 50);
        return std::hypot(middle.x(), middle.y());
    }

    const double a = 2.0 * plainWidth("A");
    const double b = 2.0 * plainWidth("B");
    KdDbArcAlignedText text;
    Paper paper;
};

TEST_F(ArcText, RunsClockwiseFromTheEndOfTheArc)
{
    const auto all = shown();
    ASSERT_THAT(all, SizeIs(2));
    EXPECT_NEAR(angleOf(all[0]), kPi - a / 2.0 / 10.0, kNear);
    EXPECT_NEAR(angleOf(all[1]), kPi - (a + b / 2.0) / 10.0, kNear);
    EXPECT_NEAR(distanceOf(all[0]), 10.0, kNear);
    EXPECT_GT(std::hypot(all[0].top.x() - 100, all[0].top.y() - 50), 11.9); // tops outwards
}

TEST_F(ArcText, RunsCounterClockwiseWithItsTopsInwards)
{
    text.edit().inward = true;
    text.edit().concave = true;
    const auto all = shown();
    EXPECT_NEAR(angleOf(all[0]), a / 2.0 / 10.0, kNear);
    EXPECT_NEAR(distanceOf(all[0]), 10.0, kNear);
    EXPECT_LT(std::hypot(all[0].top.x() - 100, all[0].top.y() - 50), 8.2);
}

TEST_F(ArcText, KeepsItsDistanceFromTheArcOnEitherSide)
{
    text.edit().offset = 0.5;
    EXPECT_NEAR(distanceOf(shown()[0]), 10.5, kNear);
    text.edit().concave = true; // tops below the arc
    EXPECT_NEAR(distanceOf(shown()[2]), 7.5, kNear);
    text.edit().concave = false;
    text.edit().inward = true; // tops on the side of the arc
    EXPECT_NEAR(distanceOf(shown()[4]), 12.5, kNear);
}

TEST_F(ArcText, EndsAtTheStartOfTheArc)
{
    text.edit().alignment = KdDb::kArcRight;
    text.edit().rightOffset = 1.0;
    EXPECT_NEAR(angleOf(shown()[1]), (1.0 + b / 2.0) / 10.0, kNear);
}

TEST_F(ArcText, StandsInTheMiddleOfTheArc)
{
    text.edit().alignment = KdDb::kArcCenter;
    text.edit().letterSpacing = 0.4;
    const auto all = shown();
    EXPECT_NEAR(angleOf(all[0]), kPi / 2.0 + ((a + b + 0.4) / 2.0 - a / 2.0) / 10.0, kNear);
    EXPECT_NEAR(angleOf(all[0]) - angleOf(all[1]), (a / 2.0 + 0.4 + b / 2.0) / 10.0, kNear);
}

TEST_F(ArcText, FillsTheArc)
{
    text.edit().alignment = KdDb::kArcFit;
    text.edit().leftOffset = 1.0;
    const auto all = shown();
    EXPECT_NEAR(angleOf(all[0]), kPi - (1.0 + a / 2.0) / 10.0, kNear);
    EXPECT_NEAR(angleOf(all[1]), b / 2.0 / 10.0, kNear);
}

TEST_F(ArcText, HasItsLettersInReverseOrder)
{
    text.edit().reversed = true;
    shown();
    EXPECT_EQ(paper.letters(), "B|A");
}

TEST_F(ArcText, HasALineBelowEachLetter)
{
    text.edit().underlined = true;
    shown();
    EXPECT_THAT(paper.strokes(), SizeIs(2));
}

TEST_F(ArcText, ShowsNothingWithoutRadiusHeightOrLetters)
{
    text.edit().radius = 0.0;
    EXPECT_THAT(shown(), IsEmpty());
    text.edit().radius = 10.0;
    text.edit().height = -1.0;
    EXPECT_THAT(shown(), IsEmpty());
    text.edit().height = 2.0;
    text.edit().text = L"";
    EXPECT_THAT(shown(), IsEmpty());
}

TEST(RText, ShowsItsExpression)
{
    KdDbRText text;
    text.edit().text = L"$(getvar,date)";
    text.edit().height = 2.0;
    text.edit().position = {5, 6, 0};
    text.edit().rotation = kPi / 2.0;
    Paper paper;
    writeRText(text, paper.writer);
    ASSERT_EQ(paper.letters(), "$(getvar,date)");
    EXPECT_THAT(paper.texts()[0].start, IsAt(5, 6));
    EXPECT_THAT(paper.texts()[0].top, IsAt(3, 6));
}

} // namespace
