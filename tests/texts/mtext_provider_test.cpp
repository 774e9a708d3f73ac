#include "support.h"

using namespace provider_test;

namespace {

class MTextProvider : public TextProviders
{
  protected:
    MTextProvider()
    {
        MTextMembers& members = text.edit();
        members.contents = L"{\\H2x;one}\\Ptwo";
        members.location = {1, 2, 3};
        members.normal = {0, 0, 2};
        members.direction = {0, 3, 0};
        members.textHeight = 2.5;
        members.width = 40.0;
        members.height = 12.0;
        members.attachment = KdDb::kMiddleRight;
        members.flow = KdDb::kFlowByStyle;
        members.lineSpacingStyle = KdDb::kExactly;
        members.style = roman;
        members.fill = true;
        members.fillWithBackground = true;
        members.fillColor = 0xC3000005;
    }

    std::vector<ExpectedRow> rows = {
        {77082, L"Text:Contents", false, "5005 {\\H2x;one}\\Ptwo", tagged(1)},
        {77083, L"Text:Style", false, "5005 ROMAN", kStyles},
        {78152, L"Text:Annotative", true, "290 false"},
        {77084, L"Text:Justify", false, "5005 Middle right",
         texts({"Top left", "Top center", "Top right", "Middle left", "Middle center",
                "Middle right", "Bottom left", "Bottom center", "Bottom right"})},
        {77085, L"Text:Direction", false, "5005 By Style",
         texts({"By Style", "Horizontal", "Vertical"})},
        {77086, L"Text:Text height", false, "5001 2.5"},
        {77087, L"Text:Rotation", false, "5004 1.5708"},
        {77088, L"Text:Line space factor", false, "5001 1"},
        {77089, L"Text:Line space distance", false, "5001 4.16667"},
        {77090, L"Text:Line space style", false, "5005 Exactly", texts({"At least", "Exactly"})},
        {77091, L"Text:Defined width", false, "5001 40"},
        {77092, L"Text:Defined height", false, "5001 12"},
        {77094, L"Text:Background mask", false, "290 true"},
        {77095, L"Text:Use drawing background color", false, "290 true"},
        {77078, L"Text:Fill background color", false, "5011 color 5"},
        {77093, L"Geometry:Position", false, "5009 1,2,3"},
        {76638, L"Geometry:Normal", true, "5009 0,0,1"},
    };
    KdDbMText text;
    KdDbMText_Extension provider;
};

TEST_F(MTextProvider, AnswersEveryKeyOfItsTable)
{
    expectTable<KdDbMText_Extension>(text, rows);
}

TEST_F(MTextProvider, ListsAllKeysOfAFilledText)
{
    expectListing<KdDbMText_Extension>(&text, rows);
}

TEST_F(MTextProvider, ListsNoColorsOfTheGroundUnlessItIsFilledButAnswersThem)
{
    text.edit().fill = false;
    rows.erase(rows.begin() + 13, rows.begin() + 15);
    expectListing<KdDbMText_Extension>(&text, rows);
    EXPECT_EQ(ask(provider, &text, L"Text:Use drawing background color").chain.at(0), "290 true");
    EXPECT_EQ(ask(provider, &text, L"Text:Fill background color").chain.at(0), "5011 color 5");
}

TEST_F(MTextProvider, ListsNothingAtAllForOthers)
{
    const KdDbText foreign;
    for (const KdDbEntity* entity :
         {static_cast<const KdDbEntity*>(nullptr), static_cast<const KdDbEntity*>(&foreign)}) {
        const Listing listing = list(provider, entity);
        EXPECT_EQ(listing.status, 0);
        EXPECT_TRUE(listing.keys.empty());
        EXPECT_TRUE(listing.flags.empty());
    }
}

TEST_F(MTextProvider, AnswersNothingForOthers)
{
    const KdDbText foreign;
    expectRefusals<KdDbMText_Extension>(text, foreign, L"Text:Contents");
}

TEST_F(MTextProvider, MultipliesTheLineSpaceToFiveThirdsOfTheHeight)
{
    ValueChain value;
    EXPECT_EQ(
        provider.PropertyValueGet(&text, L"Text:Line space distance", value.head(), false, false),
        1);
    EXPECT_DOUBLE_EQ(value.head()->getDouble(), 4.166666666666667);
}

TEST_F(MTextProvider, NamesTheAttachmentOfKnownNumbersAlone)
{
    KdString name;
    KdDbMText_Extension::fillJustifyNameByTextEntity(&text, &name);
    EXPECT_EQ(name, L"Middle right");
    for (const int number : {0, 10, -1}) {
        text.edit().attachment = static_cast<KdDb::MTextAttachment>(number);
        KdDbMText_Extension::fillJustifyNameByTextEntity(&text, &name);
        EXPECT_TRUE(name.isEmpty()) << number;
    }
    name = L"?";
    KdDbMText_Extension::fillJustifyNameByTextEntity(nullptr, &name);
    EXPECT_EQ(name, L"?");
    KdDbMText_Extension::fillJustifyNameByTextEntity(&text, nullptr);
}

TEST_F(MTextProvider, CountsEveryOtherDirectionAsHorizontal)
{
    const auto direction = [this](int flow) {
        text.edit().flow = static_cast<KdDb::MTextFlow>(flow);
        return ask(provider, &text, L"Text:Direction").chain.at(0);
    };
    EXPECT_EQ(direction(3), "5005 Vertical");
    EXPECT_EQ(direction(5), "5005 By Style");
    for (const int other : {0, 1, 2, 4, 6})
        EXPECT_EQ(direction(other), "5005 Horizontal");
}

TEST_F(MTextProvider, HasNoNameForAnUnknownLineSpaceStyle)
{
    const auto style = [this](int number) {
        text.edit().lineSpacingStyle = static_cast<KdDb::LineSpacingStyle>(number);
        return ask(provider, &text, L"Text:Line space style").chain.at(0);
    };
    EXPECT_EQ(style(1), "5005 At least");
    EXPECT_EQ(style(2), "5005 Exactly");
    EXPECT_EQ(style(3), "5005 ");
}

TEST_F(MTextProvider, TellsAnAnnotativeText)
{
    text.edit().extendedData = annotation(true);
    EXPECT_EQ(ask(provider, &text, L"Text:Annotative").chain.at(0), "290 true");
}

} // namespace
