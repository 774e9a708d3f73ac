#include "support.h"

using namespace provider_test;

namespace {

const std::vector<std::string> kAttachments =
    texts({"Top of top line", "Middle of top line", "Bottom of top line", "Underline top line",
           "Middle of text", "Middle of bottom line", "Bottom of bottom line",
           "Underline bottom line", "Underline all text"});

class MLeaderProvider : public ProviderTest
{
  protected:
    MLeaderProvider()
    {
        setVariable(L"LWUNITS", 1);
        MLeaderMembers& members = leader.edit();
        members.scale = 2.0;
        members.annotative = true;
        members.lineType = KdDb::kSplineLeader;
        members.lineColor = 0xC3000005;
        members.linetype = drawing.findOrAddRecord<KdDbLinetypeTable>(L"ByBlock");
        members.lineWeight = 35;
        members.arrowSymbol = drawing.addRecord<KdDbBlockTable>(L"_DOT")->objectId();
        members.arrowSize = 3.0;
        members.dogleg = false;
        members.doglegLength = 8.0;
        members.textStyle = drawing.addRecord<KdDbTextStyleTable>(L"ROMAN")->objectId();
        members.textAlignment = 1;
        members.textHeight = 1.5;
        members.leftAttachment = 6;
        members.rightAttachment = 6;
        members.landingGap = 0.25;
        members.textFrame = true;
        members.text = std::make_unique<MTextData>();
        members.text->contents = L"see\\Pthere";
        members.text->flow = KdDb::kTopToBottom;
        members.text->width = 40.0;
        members.text->textHeight = 3.0;
        members.text->direction = {0, 1, 0};
        members.text->lineSpacingFactor = 1.0;
        members.text->lineSpacingStyle = KdDb::kExactly;
        members.text->fill = true;
    }

    std::string value(const wchar_t* key) { return ask(provider, &leader, key).chain.at(0); }

    std::vector<ExpectedRow> rows = {
        {77448, L"Misc:Overall scale", false, "5001 2"},
        {77449, L"Misc:Annotative", false, "290 true"},
        {77451, L"Leaders:Leader type", false, "5005 Spline",
         texts({"None", "Straight", "Spline"})},
        {77452, L"Leaders:Leader color", false, "5011 color 5"},
        {77453,
         L"Leaders:Leader linetype",
         false,
         "6 ByBlock",
         {},
         "5005 ByBlock",
         texts({"ByBlock", "ByLayer", "Continuous"})},
        {77454,
         L"Leaders:Leader lineweight",
         false,
         "370 0.35 mm",
         {},
         "5005 0.35 mm",
         kLineweights},
        {77455, L"Leaders:Arrowhead", false, "440 Dot", {}, "5005 Dot"},
        {77456, L"Leaders:Arrowhead Size", false, "5001 3"},
        {77457, L"Leaders:Horizontal Landing", false, "290 false"},
        {77458, L"Leaders:Landing distance", false, "5001 8"},
        {77459, L"Text:Contents", false, "5005 see\\Pthere"},
        {77460, L"Text:Text Style", false, "5005 ROMAN", texts({"Standard", "ROMAN"})},
        {77461, L"Text:Justify", false, "5005 Center", texts({"Left", "Center", "Right"})},
        {77462, L"Text:Direction", false, "5005 Vertical",
         texts({"Horizontal", "Vertical", "By Style"})},
        {77463, L"Text:Width", false, "5001 40"},
        {77464, L"Text:Height", false, "5001 1.5"},
        {77465, L"Text:Rotation", false, "5004 1.5708"},
        {77466, L"Text:Line space factor", false, "5001 1"},
        {77467, L"Text:Line space distance", false, "5001 5"},
        {77468, L"Text:Line space style", false, "5005 Exactly", texts({"At least", "Exactly"})},
        {77469, L"Text:Background mask", false, "290 true"},
        {77470, L"Text:Left Attachment", false, "5005 Underline top line", kAttachments},
        {77471, L"Text:Right Attachment", false, "5005 Bottom of top line", kAttachments},
        {77472, L"Text:Landing gap", false, "5001 0.25"},
        {77473, L"Text:Text frame", false, "290 true"},
    };
    KdDbMLeader leader;
    KdDbMLeader_Extension provider;
};

TEST_F(MLeaderProvider, AnswersEveryKeyOfItsTable)
{
    expectTable<KdDbMLeader_Extension>(leader, rows);
}

TEST_F(MLeaderProvider, ListsEveryKeyForEveryEntity)
{
    const KdDbLeader foreign;
    expectListing<KdDbMLeader_Extension>(&leader, rows);
    expectListing<KdDbMLeader_Extension>(&foreign, rows);
    expectListing<KdDbMLeader_Extension>(nullptr, rows);
}

TEST_F(MLeaderProvider, AnswersNothingForOthers)
{
    const KdDbLeader foreign;
    expectRefusals<KdDbMLeader_Extension>(leader, foreign, L"Misc:Overall scale");
}

TEST_F(MLeaderProvider, AnswersWithNeutralValuesWithoutAText)
{
    leader.edit().text.reset();
    EXPECT_EQ(value(L"Text:Contents"), "5005 ");
    EXPECT_EQ(value(L"Text:Direction"), "5005 ");
    EXPECT_EQ(value(L"Text:Width"), "5001 0");
    EXPECT_EQ(value(L"Text:Rotation"), "5004 0");
    EXPECT_EQ(value(L"Text:Line space factor"), "5001 0");
    EXPECT_EQ(value(L"Text:Line space distance"), "5001 0");
    EXPECT_EQ(value(L"Text:Line space style"), "5005 ");
    EXPECT_EQ(value(L"Text:Background mask"), "290 false");
    EXPECT_EQ(ask(provider, &leader, L"Text:Width").status, 1);
    EXPECT_EQ(value(L"Text:Height"), "5001 1.5") << "the leader's own";
    const Answer offered = ask(provider, &leader, L"Text:Direction", false, true);
    EXPECT_EQ(offered.status, 1);
    EXPECT_EQ(offered.chain.size(), 4u);
}

TEST_F(MLeaderProvider, NamesTwoAttachmentsOtherwiseOnEachSide)
{
    constexpr const char* kLeft[] = {"Top of top line",       "Middle of top line",
                                     "Middle of text",        "Middle of bottom line",
                                     "Bottom of bottom line", "Underline bottom line",
                                     "Underline top line",    "Bottom of top line",
                                     "Underline all text",    ""};
    for (std::int16_t number = 0; number < 10; ++number) {
        leader.edit().leftAttachment = number;
        leader.edit().rightAttachment = number;
        const int other = number == 6 ? 7 : number == 7 ? 6 : number;
        EXPECT_EQ(value(L"Text:Left Attachment"), std::string("5005 ") + kLeft[number]);
        EXPECT_EQ(value(L"Text:Right Attachment"), std::string("5005 ") + kLeft[other]);
    }
}

TEST_F(MLeaderProvider, HasNoNameForANumberBeyondTheKnownOnes)
{
    leader.edit().lineType = static_cast<KdDb::LeaderLineType>(3);
    leader.edit().textAlignment = 3;
    leader.edit().text->flow = static_cast<KdDb::MTextFlow>(2);
    leader.edit().text->lineSpacingStyle = static_cast<KdDb::LineSpacingStyle>(3);
    for (const wchar_t* key :
         {L"Leaders:Leader type", L"Text:Justify", L"Text:Direction", L"Text:Line space style"}) {
        EXPECT_EQ(value(key), "5005 ");
        EXPECT_EQ(ask(provider, &leader, key).status, 1);
    }
}

TEST_F(MLeaderProvider, HasAFilledArrowWithoutABlock)
{
    leader.edit().arrowSymbol = {};
    EXPECT_EQ(value(L"Leaders:Arrowhead"), "440 Closed filled");
}

} // namespace
