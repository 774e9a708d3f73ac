// The room that texts and shapes take. Capital letters of the plain font advance by their height,
// of which a third is the gap behind them.
#include "support.h"

#include <numbers>

#include <entities/attribute.h>
#include <entities/shape.h>

namespace {

using namespace entity_test;

void expectBox(const KdDbEntity& entity, const KdGePoint3d& low, const KdGePoint3d& high)
{
    KdGeExtents3d box;
    ASSERT_EQ(entity.getGeomExtents(box), eOk);
    EXPECT_THAT(box.minPoint, IsNear(low));
    EXPECT_THAT(box.maxPoint, IsNear(high));
}

class TextExtents : public testing::Test
{
  protected:
    TextExtents()
    {
        text.edit().text = L"HELLO";
        text.edit().height = 3.0;
        text.edit().widthFactor = 0.5; // (5 - 1/3) * 3 * 0.5 = 7
        text.edit().position = {1, 2, 4};
        text.edit().alignmentPoint = {10, 20, 4};
    }

    void align(KdDb::TextHorizontalMode horizontal, KdDb::TextVerticalMode vertical)
    {
        text.edit().horizontalMode = horizontal;
        text.edit().verticalMode = vertical;
    }

    KdDbText text;
};

TEST_F(TextExtents, ReachFromThePositionToTheRightAndUp)
{
    expectBox(text, {1, 2, 4}, {8, 5, 4});
}

TEST_F(TextExtents, ReachBelowTheBaseLineForLettersThatDo)
{
    text.edit().text = L"HELgO";
    expectBox(text, {1, 1, 4}, {8, 5, 4});
}

TEST_F(TextExtents, CountTheLetterThatACodeStandsFor)
{
    text.edit().text = L"%%uHEL%%d%%079"; // an underline, four letters, an O
    expectBox(text, {1, 2, 4}, {8, 5, 4});
}

TEST_F(TextExtents, TurnWithTheText)
{
    text.edit().rotation = std::numbers::pi / 2;
    expectBox(text, {-2, 2, 4}, {1, 9, 4});
}

TEST_F(TextExtents, SlantWithTheLetters)
{
    text.edit().oblique = std::numbers::pi / 4;
    expectBox(text, {1, 2, 4}, {11, 5, 4});
}

TEST_F(TextExtents, AreMirroredWithTheText)
{
    text.edit().mirroredInX = true;
    text.edit().mirroredInY = true;
    expectBox(text, {-6, -1, 4}, {1, 2, 4});
}

TEST_F(TextExtents, LieInTheObjectFrameAndGoAsDeepAsTheText)
{
    text.edit().extrusion = {{0, 0, -1}, 0.5};
    expectBox(text, {-8, 2, -4.5}, {-1, 5, -4});
}

TEST_F(TextExtents, EndAtTheAlignmentPointOfATextToTheRight)
{
    align(KdDb::kTextRight, KdDb::kTextBase);
    expectBox(text, {3, 20, 4}, {10, 23, 4});
}

TEST_F(TextExtents, HaveTheAlignmentPointInTheirMiddle)
{
    align(KdDb::kTextMiddle, KdDb::kTextBase);
    expectBox(text, {6.5, 18.5, 4}, {13.5, 21.5, 4});
    align(KdDb::kTextCenter, KdDb::kTextVerticalMiddle);
    expectBox(text, {6.5, 18.5, 4}, {13.5, 21.5, 4});
}

TEST_F(TextExtents, HangBelowOrStandAboveTheAlignmentPoint)
{
    align(KdDb::kTextLeft, KdDb::kTextTop);
    expectBox(text, {10, 17, 4}, {17, 20, 4});
    text.edit().text = L"HELgO";
    align(KdDb::kTextLeft, KdDb::kTextBottom);
    expectBox(text, {10, 20, 4}, {17, 24, 4});
}

TEST_F(TextExtents, FillTheStretchBetweenTheTwoPointsOfAFittedText)
{
    text.edit().alignmentPoint = {1, 6, 4};
    align(KdDb::kTextFit, KdDb::kTextBase);
    expectBox(text, {-2, 2, 4}, {1, 6, 4});
    align(KdDb::kTextAligned, KdDb::kTextBase);
    expectBox(text, {-2, 2, 4}, {1, 6, 4});
}

TEST_F(TextExtents, AreMissingForATextWithoutLettersOrHeight)
{
    KdGeExtents3d box;
    text.edit().height = 0.0;
    EXPECT_EQ(text.getGeomExtents(box), eNotApplicable);
    text.edit().height = 3.0;
    text.edit().text = L"%%u";
    EXPECT_EQ(text.getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
}

TEST(AttributeExtents, OfADefinitionAreThoseOfItsTagUnlessItIsConstant)
{
    KdDbAttributeDefinition definition;
    definition.edit().tag = L"HELLO";
    definition.edit().text = L"HE";
    definition.edit().height = 3.0;
    expectBox(definition, {0, 0, 0}, {14, 3, 0});
    definition.edit().mode.constant = true;
    expectBox(definition, {0, 0, 0}, {5, 3, 0});
}

TEST(AttributeExtents, OfSeveralLinesAreThoseOfTheLines)
{
    KdDbAttribute attribute;
    attribute.edit().text = L"HE";
    attribute.edit().height = 3.0;
    attribute.edit().lines = std::make_unique<KdDbMText>();
    EXPECT_TRUE(attribute.isMTextAttribute());
    MTextMembers& lines = attribute.edit().lines->edit();
    lines.contents = L"HE\\PHELLO";
    lines.textHeight = 3.0;
    expectBox(attribute, {0, -8, 0}, {14, 0, 0});
}

TEST(ShapeExtents, AreTheSquareOfTheShape)
{
    KdDbShape shape;
    shape.edit().position = {1, 2, 3};
    shape.edit().size = 4.0;
    shape.edit().widthFactor = 0.5;
    expectBox(shape, {1, 2, 3}, {3, 6, 3});
    shape.edit().rotation = std::numbers::pi / 2;
    expectBox(shape, {-3, 2, 3}, {1, 4, 3});
    shape.edit().size = 0.0;
    KdGeExtents3d box;
    EXPECT_EQ(shape.getGeomExtents(box), eNotApplicable);
}

using ShapeFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, ShapeFrame, frames(), frameName());

TEST_P(ShapeFrame, PlacesAShapeInTheWorld)
{
    KdDbShape shape;
    shape.edit().position = kPointInFrame;
    shape.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(shape.position(), IsNear(GetParam().world));
    EXPECT_THAT(shape.normal(), IsNear(GetParam().normal));
}

} // namespace
