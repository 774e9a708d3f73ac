#include "support.h"

using namespace provider_test;

namespace {

class TextProvider : public TextProviders
{
  protected:
    TextProvider()
    {
        TextMembers& members = text.edit();
        members.extrusion = {{0, 0, -1}, 0.5};
        members.position = {1, 2, 3};
        members.alignmentPoint = {4, 5, 3};
        members.height = 2.5;
        members.rotation = 0.75;
        members.oblique = 0.25;
        members.widthFactor = 0.8;
        members.text = L"12%%d";
        members.style = roman;
        members.horizontalMode = KdDb::kTextRight;
        members.verticalMode = KdDb::kTextTop;
        members.mirroredInY = true;
    }

    std::vector<ExpectedRow> rows = {
        {77065, L"\tGeneral:Thickness", false, "5001 0.5"},
        {77066, L"Text:Contents", false, "5005 12%%d", tagged(0)},
        {77067, L"Text:Height", false, "5001 2.5"},
        {77068, L"Text:Rotation", false, "5004 0.75"},
        {77073, L"Text:Style", false, "5005 ROMAN", kStyles},
        {78152, L"Text:Annotative", true, "290 false"},
        {77074, L"Text:Justify", false, "5005 Top right", kJustifications},
        {77075, L"Text:Width factor", false, "5001 0.8"},
        {77076, L"Text:Obliquing", false, "5004 0.25"},
        {77069, L"Geometry:Position", false, "5009 -1,2,-3"},
        {76638, L"Geometry:Normal", true, "5009 0,0,-1"},
        {77080, L"Misc:Upside down", false, "290 true"},
        {77081, L"Misc:Backward", false, "290 false"},
        {77077, L"Text:Text alignment", false, "5009 -4,5,-3"},
    };
    KdDbText text;
};

TEST_F(TextProvider, AnswersEveryKeyOfItsTable)
{
    expectTable<KdDbText_Extension>(text, rows);
}

TEST_F(TextProvider, ListsAllKeysButTheAlignmentPoint)
{
    KdDbText_Extension provider;
    const Listing listing = list(provider, &text);
    EXPECT_EQ(listing.status, 0);
    ASSERT_EQ(listing.keys.size(), kGeneralKeys + 13);
    for (std::size_t i = 0; i < 13; ++i)
        EXPECT_EQ(listing.keys[kGeneralKeys + i], rows[i].key);
}

TEST_F(TextProvider, AnswersNothingForOthers)
{
    const KdDbMText foreign;
    expectRefusals<KdDbText_Extension>(text, foreign, L"Text:Height");
}

TEST_F(TextProvider, ListsTheGeneralKeysAloneForOthers)
{
    KdDbText_Extension provider;
    const KdDbMText foreign;
    for (const KdDbEntity* entity :
         {static_cast<const KdDbEntity*>(nullptr), static_cast<const KdDbEntity*>(&foreign)}) {
        const Listing listing = list(provider, entity);
        EXPECT_EQ(listing.status, 0);
        EXPECT_EQ(listing.keys.size(), kGeneralKeys);
        EXPECT_EQ(listing.flags.size(), kGeneralKeys);
    }
}

struct FlagRow
{
    const char* name;
    int horizontal;
    int vertical;
    bool first;
    bool second;
};

class FlagsOfAText : public TextProviders, public testing::WithParamInterface<FlagRow>
{
};
constexpr FlagRow kFlagRows[] = {
    {"left", 0, 0, true, false},       {"center", 1, 0, false, true},
    {"right", 2, 0, false, true},      {"aligned", 3, 0, false, false},
    {"middle", 4, 0, false, true},     {"fit", 5, 0, false, false},
    {"topLeft", 0, 3, false, true},    {"bottomLeft", 0, 1, false, true},
    {"alignedTop", 3, 3, false, true}, {"unknown", 6, 0, false, true},
};
INSTANTIATE_TEST_SUITE_P(Modes, FlagsOfAText, testing::ValuesIn(kFlagRows),
                         [](const auto& row) { return row.param.name; });

TEST_P(FlagsOfAText, RunOneAheadBehindThePosition)
{
    KdDbText text;
    text.edit().horizontalMode = static_cast<KdDb::TextHorizontalMode>(GetParam().horizontal);
    text.edit().verticalMode = static_cast<KdDb::TextVerticalMode>(GetParam().vertical);
    KdDbText_Extension provider;
    const Listing listing = list(provider, &text);
    ASSERT_EQ(listing.flags.size(), listing.keys.size() + 1);
    constexpr std::size_t kPosition = kGeneralKeys + 9;
    ASSERT_EQ(listing.keys[kPosition], L"Geometry:Position");
    EXPECT_EQ(listing.flags[kPosition], GetParam().first);
    EXPECT_EQ(listing.keys[kPosition + 1], L"Geometry:Normal");
    EXPECT_EQ(listing.flags[kPosition + 1], GetParam().second);
    EXPECT_TRUE(listing.flags[kPosition + 2]) << "that of the normal";
    EXPECT_FALSE(listing.flags[kPosition + 3]);
    EXPECT_FALSE(listing.flags[kPosition + 4]);
    for (std::size_t i = kGeneralKeys; i < kPosition; ++i)
        EXPECT_EQ(listing.flags[i], listing.keys[i] == L"Text:Annotative");
}

TEST_F(TextProvider, TellsAnAnnotativeText)
{
    KdDbText_Extension provider;
    text.edit().extendedData = annotation(true);
    EXPECT_EQ(ask(provider, &text, L"Text:Annotative").chain.at(0), "290 true");
    text.edit().extendedData = annotation(false);
    EXPECT_EQ(ask(provider, &text, L"Text:Annotative").chain.at(0), "290 false");
}

TEST_F(TextProvider, HasNoStyleNameWithoutAStyleButOffersAllStyles)
{
    KdDbText_Extension provider;
    text.edit().style = {};
    std::vector<std::string> expected{"5005 "};
    expected.insert(expected.end(), kStyles.begin(), kStyles.end());
    const Answer answer = ask(provider, &text, L"Text:Style", false, true);
    EXPECT_EQ(answer.status, 1);
    EXPECT_EQ(answer.chain, expected);
}

/// The names by horizontal mode, a row for each vertical one.
constexpr const wchar_t* kNames[4][6] = {
    {L"Left", L"Center", L"Right", L"Aligned", L"Middle", L"Fit"},
    {L"Bottom left", L"Bottom center", L"Bottom right", L"Aligned", L"Middle", L"Fit"},
    {L"Middle left", L"Middle center", L"Middle right", L"Aligned", L"Middle", L"Fit"},
    {L"Top left", L"Top center", L"Top right", L"Aligned", L"Middle", L"Fit"},
};

std::wstring nameOfText(int horizontal, int vertical)
{
    KdDbText text;
    text.edit().horizontalMode = static_cast<KdDb::TextHorizontalMode>(horizontal);
    text.edit().verticalMode = static_cast<KdDb::TextVerticalMode>(vertical);
    CStdStr<wchar_t> name(L"?");
    KdDbText_Extension::fillJustifyNameByTextEntity(&text, &name);
    return name;
}

std::wstring nameOfDefinition(int horizontal, int vertical)
{
    KdDbAttributeDefinition definition;
    definition.edit().horizontalMode = static_cast<KdDb::TextHorizontalMode>(horizontal);
    definition.edit().verticalMode = static_cast<KdDb::TextVerticalMode>(vertical);
    KdString name(L"?");
    KdDbAttributeDefinition_Extension::fillJustifyNameByTextEntity(&definition, &name);
    return std::wstring(name.view());
}

TEST_F(TextProvider, NamesEveryPairOfModes)
{
    for (int vertical = 0; vertical < 4; ++vertical) {
        for (int horizontal = 0; horizontal < 6; ++horizontal) {
            EXPECT_EQ(nameOfText(horizontal, vertical), kNames[vertical][horizontal]);
            EXPECT_EQ(nameOfDefinition(horizontal, vertical), kNames[vertical][horizontal]);
        }
    }
}

TEST_F(TextProvider, HasNoNameForAModeBeyondTheKnownOnes)
{
    EXPECT_EQ(nameOfText(0, 4), L"");
    EXPECT_EQ(nameOfText(3, 4), L"");
    EXPECT_EQ(nameOfText(6, 3), L"");
    EXPECT_EQ(nameOfText(0, -1), L"");
    EXPECT_EQ(nameOfText(-1, 0), L"");
    EXPECT_EQ(nameOfDefinition(0, 4), L"");
    EXPECT_EQ(nameOfDefinition(6, 3), L"Top left") << "counts as left there";
}

TEST_F(TextProvider, LeavesTheNameOfNothingAlone)
{
    CStdStr<wchar_t> name(L"?");
    KdDbText_Extension::fillJustifyNameByTextEntity(nullptr, &name);
    EXPECT_EQ(name, L"?");
    KdDbText_Extension::fillJustifyNameByTextEntity(&text, nullptr);
}

class AttributeDefinitionProvider : public TextProviders
{
  protected:
    AttributeDefinitionProvider()
    {
        AttributeDefinitionMembers& members = definition.edit();
        members.tag = L"ROOM";
        members.prompt = L"Which room?";
        members.text = L"12b";
        members.style = roman;
        members.position = {1, 2, 3};
        members.alignmentPoint = {4, 5, 6};
        members.height = 2.5;
        members.rotation = 0.75;
        members.widthFactor = 0.8;
        members.oblique = 0.25;
        members.horizontalMode = KdDb::kTextFit;
        members.mirroredInX = true;
        members.mode.preset = true;
        members.mode.positionLocked = true;
    }

    std::vector<ExpectedRow> rows = {
        {77417, L"Text:Tag", false, "5005 ROOM", tagged(0)},
        {78152, L"Text:Annotative", true, "290 false"},
        {77418, L"Text:Prompt", false, "5005 Which room?", tagged(0)},
        {77419, L"Text:Value", false, "5005 12b", tagged(0)},
        {77420, L"Text:Style", false, "5005 ROMAN", kStyles},
        {77421, L"Text:Justify", false, "5005 Fit", kJustifications},
        {77422, L"Text:Height", false, "5001 2.5"},
        {77423, L"Text:Rotation", false, "5004 0.75"},
        {77424, L"Text:Width factor", false, "5001 0.8"},
        {77425, L"Text:Obliquing", false, "5004 0.25"},
        {77426, L"Text:Text alignment", false, "5009 4,5,6"},
        {77430, L"Misc:Upside down", false, "290 false"},
        {77431, L"Misc:Backward", false, "290 true"},
        {77432, L"Misc:Invisible", false, "290 false"},
        {77433, L"Misc:Constant", false, "290 false"},
        {77434, L"Misc:Verify", false, "290 false"},
        {77435, L"Misc:Preset", false, "290 true"},
        {77435, L"Misc:Preset", false, "290 true"},
        {77428, L"Misc:Multiple lines", false, "290 false"},
        {77436, L"Misc:Lock position", false, "290 true"},
    };
    KdDbAttributeDefinition definition;
};

TEST_F(AttributeDefinitionProvider, AnswersEveryKeyOfItsTable)
{
    expectTable<KdDbAttributeDefinition_Extension>(definition, rows);
}

TEST_F(AttributeDefinitionProvider, ListsThePresetTwiceAndNoPosition)
{
    expectListing<KdDbAttributeDefinition_Extension>(&definition, rows);
}

TEST_F(AttributeDefinitionProvider, ListsTheSameForOthers)
{
    const KdDbText foreign;
    expectListing<KdDbAttributeDefinition_Extension>(nullptr, rows);
    expectListing<KdDbAttributeDefinition_Extension>(&foreign, rows);
}

TEST_F(AttributeDefinitionProvider, AnswersNothingForOthers)
{
    const KdDbText foreign;
    expectRefusals<KdDbAttributeDefinition_Extension>(definition, foreign, L"Text:Tag");
}

TEST_F(AttributeDefinitionProvider, HasTheCodesOfSeveralLinesInItsValue)
{
    KdDbAttributeDefinition_Extension provider;
    definition.edit().lines = std::make_unique<KdDbMText>();
    definition.edit().lines->edit().contents = L"one\\Ptwo";
    EXPECT_EQ(ask(provider, &definition, L"Text:Value").chain.at(0), "5005 one\\Ptwo");
    EXPECT_EQ(ask(provider, &definition, L"Misc:Multiple lines").chain.at(0), "290 true");
}

struct ModeRow
{
    const wchar_t* key;
    bool AttributeMembers::Mode::*member;
};

TEST_F(AttributeDefinitionProvider, TellsEachModeByItsOwnKey)
{
    constexpr ModeRow kModes[] = {
        {L"Misc:Invisible", &AttributeMembers::Mode::invisible},
        {L"Misc:Constant", &AttributeMembers::Mode::constant},
        {L"Misc:Verify", &AttributeMembers::Mode::verify},
        {L"Misc:Preset", &AttributeMembers::Mode::preset},
        {L"Misc:Lock position", &AttributeMembers::Mode::positionLocked},
    };
    KdDbAttributeDefinition_Extension provider;
    for (const ModeRow& on : kModes) {
        definition.edit().mode = {};
        definition.edit().mode.*on.member = true;
        for (const ModeRow& row : kModes) {
            const char* expected = row.member == on.member ? "290 true" : "290 false";
            EXPECT_EQ(ask(provider, &definition, row.key).chain.at(0), expected);
        }
    }
}

} // namespace
