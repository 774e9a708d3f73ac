#include "support.h"

using namespace provider_test;

namespace {

class ArcAlignedTextProvider : public TextProviders
{
  protected:
    std::vector<ExpectedRow> rows = {
        {77660, L"Text:Contents", false, ""},      {77661, L"Text:Height", false, ""},
        {77662, L"Text:Width Factor", false, ""},  {77663, L"Text:Char Spacing", false, ""},
        {77664, L"Position:Center", false, ""},    {77665, L"Position:Normal", false, ""},
        {77666, L"Position:Radius", false, ""},    {77667, L"Position:Start Angle", false, ""},
        {77668, L"Position:End Angle", false, ""}, {77669, L"Misc:Arc offset", false, ""},
        {77670, L"Misc:Left offset", false, ""},   {77671, L"Misc:Right offset", false, ""},
    };
    KdDbArcAlignedText text;
    KdDbArcAlignedText_Extension provider;
};

TEST_F(ArcAlignedTextProvider, ListsTwelveKeysForWhateverEntity)
{
    const KdDbText foreign;
    expectListing<KdDbArcAlignedText_Extension>(&text, rows);
    expectListing<KdDbArcAlignedText_Extension>(&foreign, rows);
    expectListing<KdDbArcAlignedText_Extension>(nullptr, rows);
}

TEST_F(ArcAlignedTextProvider, AnswersNoneOfThem)
{
    for (const ExpectedRow& row : rows) {
        const Answer answer = ask(provider, &text, row.key, false, true);
        EXPECT_EQ(answer.status, 0) << row.id;
        EXPECT_THAT(answer.chain, testing::ElementsAre("5000 nothing")) << row.id;
    }
}

TEST_F(ArcAlignedTextProvider, AnswersTheGeneralKeysForWhateverEntity)
{
    auto* const own = add<KdDbArcAlignedText>();
    auto* const foreign = add<KdDbText>();
    EXPECT_EQ(ask(provider, own, L"\tGeneral:Layer").chain.at(0), "8 0");
    EXPECT_EQ(ask(provider, foreign, L"\tGeneral:Layer").chain.at(0), "8 0");
    EXPECT_EQ(ask(provider, nullptr, L"\tGeneral:Layer").status, 0);
}

class FcfProvider : public TextProviders
{
  protected:
    std::vector<ExpectedRow> rows = {{77489, L"Misc:Annotative", true, "290 false"}};
    KdDbFcf frame;
    KdDbFcf_Extension provider;
};

TEST_F(FcfProvider, TellsOnlyWhetherAFrameIsAnnotative)
{
    expectTable<KdDbFcf_Extension>(frame, rows);
    expectListing<KdDbFcf_Extension>(&frame, rows);
    frame.edit().extendedData = annotation(true);
    EXPECT_EQ(ask(provider, &frame, L"Misc:Annotative", true, true).chain.at(0), "290 true");
}

TEST_F(FcfProvider, ListsNothingAtAllForOthers)
{
    const KdDbText foreign;
    EXPECT_TRUE(list(provider, &foreign).keys.empty());
    EXPECT_TRUE(list(provider, nullptr).keys.empty());
    EXPECT_TRUE(list(provider, nullptr).flags.empty());
}

TEST_F(FcfProvider, AnswersNothingForOthers)
{
    const KdDbText foreign;
    expectRefusals<KdDbFcf_Extension>(frame, foreign, L"Misc:Annotative");
}

class ShapeProvider : public TextProviders
{
  protected:
    ShapeProvider()
    {
        ShapeMembers& members = shape.edit();
        members.name = L"BOLT";
        members.position = {1, 2, 3};
        members.size = 4.0;
        members.rotation = 0.75;
        members.widthFactor = 0.8;
        members.oblique = 0.25;
        members.extrusion = {{0, 0, -1}, 0.5};
    }

    std::vector<ExpectedRow> rows = {
        {77305, L"\tGeneral:Thickness", false, "5001 0.5"},
        {77307, L"Geometry:Position", false, "5009 -1,2,-3"},
        {77310, L"Misc:Name", true, "5005 BOLT"},
        {77311, L"Misc:Size", false, "5001 4"},
        {77312, L"Misc:Rotation", false, "5004 0.75"},
        {77313, L"Misc:Width factor", false, "5001 0.8"},
        {77314, L"Misc:Obliquing", false, "5004 0.25"},
    };
    KdDbShape shape;
};

TEST_F(ShapeProvider, AnswersAndListsEveryKeyOfItsTable)
{
    expectTable<KdDbShape_Extension>(shape, rows);
    expectListing<KdDbShape_Extension>(&shape, rows);
    expectListing<KdDbShape_Extension>(nullptr, rows);
}

TEST_F(ShapeProvider, AnswersNothingForOthers)
{
    const KdDbText foreign;
    expectRefusals<KdDbShape_Extension>(shape, foreign, L"Misc:Name");
}

} // namespace
