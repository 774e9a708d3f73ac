#include "support.h"

#include <database/tables.h>
#include <entities/attribute.h>

namespace {

using namespace entity_test;

using TextFrame = InEachFrame;
INSTANTIATE_TEST_SUITE_P(Directions, TextFrame, frames(), frameName());

TEST_P(TextFrame, PlacesBothPointsOfATextInTheWorld)
{
    KdDbText text;
    text.edit().position = kPointInFrame;
    text.edit().extrusion.setDirection(GetParam().direction);
    EXPECT_THAT(text.position(), IsNear(GetParam().world));
    EXPECT_THAT(text.alignmentPoint(), IsNear(KdGePoint3d()));
    text.edit().alignmentPoint = kPointInFrame;
    text.edit().position = {};
    EXPECT_THAT(text.alignmentPoint(), IsNear(GetParam().world));
    EXPECT_THAT(text.position(), IsNear(KdGePoint3d()));
    EXPECT_THAT(text.normal(), IsNear(GetParam().normal));
}

TEST(Text, BeginsLeftOnTheBaseLineWithWidthFactorOne)
{
    const KdDbText text;
    EXPECT_TRUE(text.textString().isEmpty());
    EXPECT_TRUE(text.textStyle().isNull());
    EXPECT_EQ(text.height(), 0.0);
    EXPECT_EQ(text.rotation(), 0.0);
    EXPECT_EQ(text.oblique(), 0.0);
    EXPECT_EQ(text.widthFactor(), 1.0);
    EXPECT_EQ(text.horizontalMode(), 0);
    EXPECT_EQ(text.verticalMode(), 0);
    EXPECT_FALSE(text.isMirroredInX());
    EXPECT_FALSE(text.isMirroredInY());
}

TEST(Text, AnswersWhatItsRecordHolds)
{
    KdDbTextStyleTableRecord style;
    KdDbText text;
    TextMembers& members = text.edit();
    members.text = L"%%c20";
    members.style = style.objectId();
    members.height = 2.5;
    members.rotation = 0.5;
    members.oblique = 0.25;
    members.widthFactor = 0.8;
    members.extrusion.setThickness(3.0);
    EXPECT_EQ(text.textString(), L"%%c20");
    EXPECT_EQ(text.textStyle(), style.objectId());
    EXPECT_EQ(text.height(), 2.5);
    EXPECT_EQ(text.rotation(), 0.5);
    EXPECT_EQ(text.oblique(), 0.25);
    EXPECT_EQ(text.widthFactor(), 0.8);
    EXPECT_EQ(text.thickness(), 3.0);
}

TEST(Text, KeepsAModeBeyondTheNamedOnes)
{
    KdDbText text;
    text.edit().horizontalMode = static_cast<KdDb::TextHorizontalMode>(6);
    text.edit().verticalMode = static_cast<KdDb::TextVerticalMode>(-1);
    EXPECT_EQ(text.horizontalMode(), 6);
    EXPECT_EQ(text.verticalMode(), -1);
}

TEST(Text, TellsBackwardFromUpsideDown)
{
    KdDbText text;
    text.edit().mirroredInX = true;
    EXPECT_TRUE(text.isMirroredInX());
    EXPECT_FALSE(text.isMirroredInY());
    text.edit().mirroredInX = false;
    text.edit().mirroredInY = true;
    EXPECT_FALSE(text.isMirroredInX());
    EXPECT_TRUE(text.isMirroredInY());
}

TEST(Attribute, HasATagBesideItsText)
{
    KdDbAttribute attribute;
    attribute.edit().tag = L"ROOM";
    attribute.edit().text = L"12b";
    attribute.edit().fieldLength = 8;
    EXPECT_EQ(attribute.tag(), L"ROOM");
    EXPECT_EQ(attribute.textString(), L"12b");
    EXPECT_EQ(attribute.fieldLength(), 8);
}

struct ModeRow
{
    const char* name;
    bool AttributeMembers::Mode::*member;
    bool (KdDbAttributeText::*getter)() const;
};

const ModeRow kModes[] = {
    {"invisible", &AttributeMembers::Mode::invisible, &KdDbAttributeText::isInvisible},
    {"constant", &AttributeMembers::Mode::constant, &KdDbAttributeText::isConstant},
    {"verify", &AttributeMembers::Mode::verify, &KdDbAttributeText::isVerifiable},
    {"preset", &AttributeMembers::Mode::preset, &KdDbAttributeText::isPreset},
    {"locked", &AttributeMembers::Mode::positionLocked, &KdDbAttributeText::lockPositionInBlock},
};

class AttributeMode : public testing::TestWithParam<ModeRow>
{
};
INSTANTIATE_TEST_SUITE_P(All, AttributeMode, testing::ValuesIn(kModes),
                         [](const auto& row) { return row.param.name; });

TEST_P(AttributeMode, IsAnsweredByItsOwnGetterAlone)
{
    KdDbAttributeDefinition definition;
    definition.edit().mode.*GetParam().member = true;
    for (const ModeRow& row : kModes)
        EXPECT_EQ((definition.*row.getter)(), row.member == GetParam().member) << row.name;
}

TEST(AttributeDefinition, HasAPromptAndIsAnAttributeTextAsWell)
{
    KdDbAttributeDefinition definition;
    definition.edit().prompt = L"Which room?";
    definition.edit().tag = L"ROOM";
    EXPECT_EQ(definition.prompt(), L"Which room?");
    EXPECT_EQ(definition.tag(), L"ROOM");
}

TEST(AttributeDefinition, IsInvisibleApartFromTheEntityItself)
{
    KdDbAttributeDefinition definition;
    definition.edit().mode.invisible = true;
    EXPECT_TRUE(definition.isInvisible());
    EXPECT_FALSE(definition.KdDbEntity::isInvisible());
}

} // namespace
