// The number of each key of the block family. Many of these keys share a text with another one, so
// what is listed in English can't tell one number from another; where the texts are missing, the
// complaints about them can.
#include <functional>
#include <ostream>

#include "support.h"

using namespace blocks_test;
using namespace provider_test;

namespace {

using References = KdDbBlockReference_Extension;

/// A number and the default text beside it.
struct Numbered
{
    int id;
    std::wstring defaultText;

    bool operator==(const Numbered&) const = default;
};

void PrintTo(const Numbered& text, std::ostream* out)
{
    *out << text.id << ' ' << ascii(text.defaultText);
}

/// Lists to the two arrays.
using Lister = std::function<void(KdArray<KdString>&, KdArray<bool>&)>;

template <auto Operation>
Lister ofReferences()
{
    return [](KdArray<KdString>& names, KdArray<bool>& flags) {
        References provider;
        (provider.*Operation)(nullptr, names, flags);
    };
}

/// What an element's provider lists behind the General keys.
template <class Provider>
Lister ofElements()
{
    return [](KdArray<KdString>& names, KdArray<bool>& flags) {
        Provider().PropertyCount(nullptr, names, flags);
    };
}

struct NumbersRow
{
    const char* name;
    Lister list;
    std::size_t generalKeys;
    std::vector<Numbered> keys;
};

/// A library that has none of these texts is current.
class NumbersOfBlocks : public BlocksTest
{
  protected:
    NumbersOfBlocks()
    {
        LoadResourceDll(L"KrxOPMRes.dll");
        EXPECT_TRUE(SetCurrentResourceName(L"KrxOPMRes.dll"));
    }
    void TearDown() override
    {
        RestorePreviousResource();
        messages.shown.clear();
        BlocksTest::TearDown();
    }

    /// The numbers and texts that have been found missing so far.
    std::vector<Numbered> missing() const
    {
        std::vector<Numbered> all;
        for (const std::wstring& message : messages.shown) {
            const std::size_t number = message.find_first_of(L"0123456789");
            const std::size_t opening = message.find(L'"');
            const std::size_t closing = message.rfind(L'"');
            all.push_back({std::stoi(message.substr(number)),
                           message.substr(opening + 1, closing - opening - 1)});
        }
        return all;
    }
};

class NumbersOfKeys : public NumbersOfBlocks, public testing::WithParamInterface<NumbersRow>
{
};

TEST_P(NumbersOfKeys, AreThose)
{
    KdArray<KdString> names;
    KdArray<bool> flags;
    GetParam().list(names, flags);
    std::vector<Numbered> listed = missing();
    ASSERT_GE(listed.size(), GetParam().generalKeys);
    listed.erase(listed.begin(),
                 listed.begin() + static_cast<std::ptrdiff_t>(GetParam().generalKeys));
    EXPECT_EQ(listed, GetParam().keys);
}

constexpr std::size_t kGeneral = 8;

const Numbered kType{78071, L"\tProperty Labels:Parameter type"};
const Numbered kShow{78072, L"\tMisc:Show Properties"};
const Numbered kChain{78073, L"\tMisc:Chain Actions"};
const Numbered kGrips{78074, L"\tMisc:Number of Grips"};
const Numbered kBase{78075, L"\tGeometry:\t\t\t\tBase"};
const Numbered kLabel{78078, L"\tGeometry:\t\t\t\tLabel"};
const Numbered kStart{78079, L"\tGeometry:\t\t\t\tStart"};
const Numbered kEnd{78080, L"\tGeometry:\t\t\t\tEnd"};
const Numbered kPosition{78139, L"\tGeometry:Position"};
const Numbered kActionName{78140, L"\tMisc:Action name"};
const Numbered kActionType{78141, L"\tMisc:Action type"};
const Numbered kMultiplier{78142, L"\tOverrides:Distance multiplier"};
const Numbered kAngleOffset{78143, L"\tOverrides:Angle offset"};
const Numbered kBaseType{78144, L"\tOverrides:Base type"};
const Numbered kBaseOffset{78145, L"\tOverrides:Base offset"};
const Numbered kFrame{78148, L"\tStretch frame:\t\t\t\tVertex"};
const Numbered kConstraintName{78305, L"Constraint:Name"};
const Numbered kExpression{78306, L"Constraint:Expression"};
const Numbered kValue{78307, L"Constraint:Value"};
const Numbered kDescription{78308, L"Constraint:Description"};
const Numbered kTextPosition{78311, L"Geometry:Text position"};
const Numbered kDistances{78086, L"\tValue Set:Dist type"};
const Numbered kConstraintShow{78072, L"\tMisc:Show properties"};
const Numbered kConstraintGrips{78074, L"\tMisc:Number of grips"};
const Numbered kBaseX{78167, L"Geometry:Base X"};
const Numbered kBaseY{78168, L"Geometry:Base Y"};
const Numbered kBaseZ{78169, L"Geometry:Base Z"};
const Numbered kItems{78184, L"Misc:Items"};
const Numbered kRows{78173, L"Misc:Rows"};
const Numbered kRowSpacing{78174, L"Misc:Rows Spacing"};
const Numbered kElevation{78175, L"Misc:Rows Elevation Increment"};
const Numbered kLevels{78176, L"Misc:Levels"};
const Numbered kLevelSpacing{78177, L"Misc:Level Spacing"};
const Numbered kAssociative{78284, L"General:Associative"};

const NumbersRow kReferenceRows[] = {
    {"reference",
     ofReferences<&References::blockReferencePropertyCount>(),
     0,
     {{77408, L"Geometry:Position"},
      {77411, L"Geometry:Scale X"},
      {77412, L"Geometry:Scale Y"},
      {77413, L"Geometry:Scale Z"},
      {77414, L"Misc:Name"},
      {77415, L"Misc:Rotation"},
      {78151, L"Misc:Annotative"},
      {77524, L"Misc:Block Unit"},
      {77525, L"Misc:Unit factor"}}},
    {"rectangularArray",
     ofReferences<&References::assocArrayRectPropertyCount>(),
     0,
     {kBaseX,
      kBaseY,
      kBaseZ,
      {78171, L"Misc:Columns"},
      {78172, L"Misc:Columns Spacing"},
      kRows,
      kRowSpacing,
      kElevation,
      kLevels,
      kLevelSpacing,
      {78178, L"Misc:Included Axis Angle"}}},
    {"polarArray",
     ofReferences<&References::assocArrayPolarPropertyCount>(),
     0,
     {kBaseX,
      kBaseY,
      kBaseZ,
      {78179, L"Geometry:Center X"},
      {78180, L"Geometry:Center Y"},
      {78181, L"Geometry:Center Z"},
      {78182, L"Geometry:Radius"},
      {78183, L"Misc:Direction"},
      kItems,
      {78185, L"Misc:Angle Between Items"},
      {78186, L"Misc:Fill Angle"},
      kRows,
      kRowSpacing,
      kElevation,
      kLevels,
      kLevelSpacing,
      {78187, L"Misc:Rotate Items"}}},
    {"pathArray",
     ofReferences<&References::assocArrayPathPropertyCount>(),
     0,
     {kBaseX,
      kBaseY,
      kBaseZ,
      {78188, L"Geometry:Path Length"},
      {78189, L"Misc:Method"},
      {78190, L"Misc:Fill Entire Path"},
      kItems,
      {78192, L"Misc:Item Spacing"},
      {78193, L"Misc:Start Offset"},
      kRows,
      kRowSpacing,
      kElevation,
      kLevels,
      kLevelSpacing,
      {78194, L"Misc:Align Items"}}},
    {"centerMark",
     ofReferences<&References::centerMarkPropertyCount>(),
     0,
     {kAssociative,
      {78289, L"Geometry:Cross Size"},
      {78290, L"Geometry:Cross Gap"},
      {78391, L"Geometry:Horizontal Start Extension"}, // out of the run, as intended
      {78292, L"Geometry:Horizontal End Extension"},
      {78293, L"Geometry:Vertical Start Extension"},
      {78294, L"Geometry:Vertical End Extension"},
      {78295, L"Geometry:Extension Lines Visibility"},
      {78296, L"Misc:Rotation"}}},
    {"centerLine",
     ofReferences<&References::centerlinePropertyCount>(),
     0,
     {kAssociative,
      {78285, L"Geometry:Start Point"},
      {78286, L"Geometry:End Point"},
      {78287, L"Geometry:Start Extension"},
      {78288, L"Geometry:End Extension"}}},
};

const NumbersRow kParameterRows[] = {
    {"basePoint", ofElements<KdDbBlockBasepointParameterEntity_Extension>(), kGeneral, {kBase}},
    {"point",
     ofElements<KdDbBlockPointParameterEntity_Extension>(),
     kGeneral,
     {{78076, L"\tProperty Labels:Positions name"},
      {78077, L"\tProperty Labels:Positions description"},
      kType,
      kBase,
      kLabel,
      kShow,
      kChain,
      kGrips}},
    {"lookup",
     ofElements<KdDbBlockLookupParameterEntity_Extension>(),
     kGeneral,
     {{78130, L"\tProperty Labels:Lookup name"},
      {78131, L"\tProperty Labels:Lookup description"},
      kType,
      kBase,
      kShow,
      kChain,
      kGrips,
      {78132, L"\tMisc:Lookup action"}}},
    {"visibility",
     ofElements<KdDbBlockVisibilityParameterEntity_Extension>(),
     kGeneral,
     {{78128, L"\tProperty Labels:Visibility name"},
      {78129, L"\tProperty Labels:Visibility description"},
      kType,
      kBase,
      kShow,
      kChain,
      kGrips}},
    {"alignment",
     ofElements<KdDbBlockAlignmentParameterEntity_Extension>(),
     kGeneral,
     {kType, kBase, {78119, L"\tGeometry:Alignment angle"}, {78120, L"\tMisc:Alignment type"}}},
    {"flip",
     ofElements<KdDbBlockFlipParameterEntity_Extension>(),
     kGeneral,
     {{78123, L"\tProperty Labels:Flip name"},
      {78124, L"\tProperty Labels:Flip description"},
      {78125, L"\tProperty Labels:Base state name"},
      {78126, L"\tProperty Labels:Fliped state name"},
      kType,
      kBase,
      kEnd,
      kLabel,
      {78127, L"\tGeometry:Angle"},
      kShow,
      kChain,
      kGrips}},
    {"linear",
     ofElements<KdDbBlockLinearParameterEntity_Extension>(),
     kGeneral,
     {{78081, L"\tProperty Labels:Distance name"},
      {78082, L"\tProperty Labels:Distance description"},
      kType,
      kStart,
      kEnd,
      {78083, L"\tGeometry:Label offset"},
      {78084, L"\tGeometry:Distance"},
      {78085, L"\tGeometry:Angle"},
      kDistances,
      {78087, L"\tMisc:Base position"},
      kShow,
      kChain,
      kGrips}},
    {"polar",
     ofElements<KdDbBlockPolarParameterEntity_Extension>(),
     kGeneral,
     {{78093, L"\tProperty Labels:Distance name"},
      {78094, L"\tProperty Labels:Angle name"},
      {78095, L"\tProperty Labels:Distance description"},
      {78096, L"\tProperty Labels:Angle description"},
      kType,
      kStart,
      kEnd,
      {78097, L"\tGeometry:Label offset"},
      {78098, L"\tGeometry:Distance"},
      {78099, L"\tGeometry:Angle"},
      {78100, L"\tValue Set:Dist type"},
      {78101, L"\tValue Set:Ang type"},
      kShow,
      kChain,
      kGrips}},
    {"rotation",
     ofElements<KdDbBlockRotationParameterEntity_Extension>(),
     kGeneral,
     {{78112, L"\tProperty Labels:Angle name"},
      {78113, L"\tProperty Labels:Angle description"},
      kType,
      kBase,
      {78114, L"\tGeometry:Radius"},
      {78115, L"\tGeometry:Label offset"},
      {78116, L"\tGeometry:Base angle"},
      {78117, L"\tGeometry:Angle"},
      {78118, L"\tValue Set:Ang type"},
      kShow,
      kChain,
      kGrips}},
    {"xy",
     ofElements<KdDbBlockXYParameterEntity_Extension>(),
     kGeneral,
     {{78102, L"\tProperty Labels:Hor distance name"},
      {78103, L"\tProperty Labels:Ver distance name"},
      {78104, L"\tProperty Labels:Hor distance desciption"},
      {78105, L"\tProperty Labels:Ver distance description"},
      kType,
      kBase,
      kEnd,
      {78106, L"\tGeometry:Hor label offset"},
      {78107, L"\tGeometry:Ver label offset"},
      {78108, L"\tGeometry:Hor distance"},
      {78109, L"\tGeometry:Ver distance"},
      {78110, L"\tValue Set:Hor type"},
      {78111, L"\tValue Set:Ver type"},
      kShow,
      kChain,
      kGrips}},
};

const std::vector<Numbered> kStretchKeys = {kPosition,    kFrame,      kMultiplier,
                                            kAngleOffset, kActionName, kActionType};
const std::vector<Numbered> kRoundKeys = {kConstraintName, kExpression,     kValue,
                                          kDescription,    kTextPosition,   kDistances,
                                          kConstraintShow, kConstraintGrips};

const NumbersRow kActionRows[] = {
    {"grip",
     ofElements<KdDbBlockGripEntity_Extension>(),
     kGeneral,
     {{78133, L"\tGeometry:Base"},
      {78136, L"\tMisc:Grip type"},
      {78137, L"\tMisc:Parameter type"},
      {78138, L"\tMisc:Cycling"},
      {78134, L"\tGeometry:Base point offset X"},
      {78135, L"\tGeometry:Base point offset Y"}}},
    {"flipAction",
     ofElements<KdDbBlockFlipActionEntity_Extension>(),
     kGeneral,
     {kPosition, kActionName, kActionType}},
    {"rotateAction",
     ofElements<KdDbBlockRotateActionEntity_Extension>(),
     kGeneral,
     {kPosition, kBaseType, kBaseOffset, kActionName, kActionType}},
    {"moveAction",
     ofElements<KdDbBlockMoveActionEntity_Extension>(),
     kGeneral,
     {kPosition, kMultiplier, kAngleOffset, kActionName, kActionType}},
    {"stretchAction", ofElements<KdDbBlockStretchActionEntity_Extension>(), kGeneral, kStretchKeys},
    {"polarStretchAction", ofElements<KdDbBlockPolarStretchActionEntity_Extension>(), kGeneral,
     kStretchKeys},
    {"arrayAction",
     ofElements<KdDbBlockArrayActionEntity_Extension>(),
     kGeneral,
     {kPosition,
      {78149, L"\tRows And Columns:Row offset"},
      {78150, L"\tRows And Columns:Column offset"},
      kActionName,
      kActionType}},
    {"linearConstraint",
     ofElements<KdDbBlockLinearConstraintTagEntity_Extension>(),
     kGeneral,
     {kConstraintName,
      kExpression,
      kValue,
      kDescription,
      {78312, L"Geometry:Dim line offset"},
      kTextPosition,
      kDistances,
      kConstraintShow,
      kConstraintGrips}},
    {"angularConstraint",
     ofElements<KdDbBlockAngularConstraintTagEntity_Extension>(),
     kGeneral,
     {kConstraintName,
      kExpression,
      kValue,
      kDescription,
      {78167, L"Geometry:Base point X"},
      {78168, L"Geometry:Base point Y"},
      kTextPosition,
      {78101, L"\tValue Set:Ang type"},
      kConstraintShow,
      kConstraintGrips}},
    {"radialConstraint", ofElements<KdDbBlockRadialConstraintTagEntity_Extension>(), kGeneral,
     kRoundKeys},
    {"diametricConstraint", ofElements<KdDbBlockDiametricConstraintTagEntity_Extension>(), kGeneral,
     kRoundKeys},
};

const auto kNameOfRow = [](const auto& row) { return std::string(row.param.name); };
INSTANTIATE_TEST_SUITE_P(References, NumbersOfKeys, testing::ValuesIn(kReferenceRows), kNameOfRow);
INSTANTIATE_TEST_SUITE_P(Parameters, NumbersOfKeys, testing::ValuesIn(kParameterRows), kNameOfRow);
INSTANTIATE_TEST_SUITE_P(Others, NumbersOfKeys, testing::ValuesIn(kActionRows), kNameOfRow);

TEST_F(NumbersOfBlocks, OfTheGridFollowThoseOfTheReference)
{
    KdDbMInsertBlock_Extension provider;
    list(provider, addReference(addBlock(L"LAMP")));
    std::vector<Numbered> listed = missing();
    ASSERT_EQ(listed.size(), kGeneral + 9 + 4);
    listed.erase(listed.begin(), listed.end() - 4);
    EXPECT_EQ(listed, (std::vector<Numbered>{{77526, L"Misc:Columns"},
                                             {77527, L"Misc:Column spacing"},
                                             {77528, L"Misc:Rows"},
                                             {77529, L"Misc:Row spacing"}}));
}

/// A question with choices, and the texts that it asks for last.
struct ChoicesRow
{
    const char* name;
    std::function<Answer()> ask;
    std::vector<Numbered> choices;
};

template <class Provider, class Entity>
std::function<Answer()> choicesOf(const wchar_t* key)
{
    return [key] {
        Provider provider;
        const Entity entity;
        return ask(provider, &entity, key, false, true);
    };
}

class NumbersOfChoices : public NumbersOfBlocks, public testing::WithParamInterface<ChoicesRow>
{
};

TEST_P(NumbersOfChoices, AreThose)
{
    EXPECT_EQ(GetParam().ask().status, 1);
    std::vector<Numbered> asked = missing();
    ASSERT_GE(asked.size(), GetParam().choices.size());
    asked.erase(asked.begin(),
                asked.end() - static_cast<std::ptrdiff_t>(GetParam().choices.size()));
    EXPECT_EQ(asked, GetParam().choices);
}

const std::vector<Numbered> kSets = {{78088, L"None"}, {78089, L"Increment"}, {78090, L"List"}};
const ChoicesRow kChoicesRows[] = {
    {"direction",
     choicesOf<References, KdDbBlockReference>(L"Misc:Direction"),
     {{78197, L"Clockwise"}, {78198, L"Counter-clockwise"}}},
    {"method",
     choicesOf<References, KdDbBlockReference>(L"Misc:Method"),
     {{78195, L"Divide"}, {78196, L"Measure"}}},
    {"alignmentType",
     choicesOf<KdDbBlockAlignmentParameterEntity_Extension, KdDbBlockAlignmentParameterEntity>(
         L"\tMisc:Alignment type"),
     {{78121, L"tangnet"}, {78122, L"perpendicular"}}},
    {"basePosition",
     choicesOf<KdDbBlockLinearParameterEntity_Extension, KdDbBlockLinearParameterEntity>(
         L"\tMisc:Base position"),
     {{78091, L"Startpoint"}, {78092, L"Midpoint"}}},
    {"baseType",
     choicesOf<KdDbBlockScaleActionEntity_Extension, KdDbBlockScaleActionEntity>(
         L"\tOverrides:Base type"),
     {{78146, L"Dependent"}, {78147, L"Independent"}}},
    {"valueSet",
     choicesOf<KdDbBlockXYParameterEntity_Extension, KdDbBlockXYParameterEntity>(
         L"\tValue Set:Ver type"),
     kSets},
    {"valueSetOfConstraint",
     choicesOf<KdDbBlockLinearConstraintTagEntity_Extension, KdDbBlockLinearConstraintTagEntity>(
         L"\tValue Set:Dist type"),
     kSets},
};
INSTANTIATE_TEST_SUITE_P(, NumbersOfChoices, testing::ValuesIn(kChoicesRows), kNameOfRow);

TEST_F(NumbersOfBlocks, AreAskedForOnceWhereTheKeysAreRemembered)
{
    constexpr std::size_t kRemembered = 26 + 13;
    References provider;
    provider.initFuncsMap();
    EXPECT_EQ(missing().size(), kRemembered);
    provider.initFuncsMap();
    EXPECT_EQ(missing().size(), kRemembered);
}

/// Speaks another language from here on; what that lacks is complained about in English.
class OtherLanguage
{
  public:
    OtherLanguage()
    {
        setResourceFolder(KW_TEST_RESOURCES);
        setResourceLanguage("de");
        EXPECT_TRUE(SetCurrentResourceName(L"BlockTexts.dll"));
        setResourceLanguage("");
        setResourceFolder({});
    }
    ~OtherLanguage() { RestorePreviousResource(); }
    OtherLanguage(const OtherLanguage&) = delete;
    OtherLanguage& operator=(const OtherLanguage&) = delete;
};

class LanguagesOfBlocks : public BlocksTest
{
  protected:
    void TearDown() override
    {
        messages.shown.clear(); // the other language has a few of the texts alone
        BlocksTest::TearDown();
    }
    int status(const wchar_t* key) { return ask(provider, reference, key).status; }

    KdDbBlockReference* reference = addReference(addBlock(L"LAMP"));
    References provider;
};

TEST_F(LanguagesOfBlocks, OfArraysAndCenterObjectsStayThatOfTheFirstQuestion)
{
    EXPECT_EQ(status(L"No such key"), 0);
    const OtherLanguage other;
    EXPECT_EQ(status(L"Misc:Levels"), 1);
    EXPECT_EQ(status(L"General:Associative"), 1);
    EXPECT_EQ(status(L"Verschiedenes:Ebenen"), 0);
    EXPECT_EQ(status(L"Allgemein:Assoziativ"), 0);
    EXPECT_EQ(status(L"Verschiedenes:Drehung"), 1); // a key that is not remembered
}

TEST_F(LanguagesOfBlocks, OfTheFirstQuestionCountsWhateverComesLater)
{
    {
        const OtherLanguage other;
        EXPECT_EQ(status(L"Misc:Levels"), 0);
        EXPECT_EQ(status(L"Verschiedenes:Ebenen"), 1);
    }
    EXPECT_EQ(status(L"Verschiedenes:Ebenen"), 1);
    EXPECT_EQ(status(L"Allgemein:Assoziativ"), 1);
    EXPECT_EQ(status(L"Misc:Levels"), 0);
    EXPECT_EQ(status(L"Misc:Rotation"), 1);
}

} // namespace
