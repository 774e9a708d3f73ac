#include <providers/hatch_provider.h>

#include <entities/circle.h>
#include <exchange/made_drawing.h>
#include <providers/support.h>

#include "support.h"

namespace {

using namespace provider_test;
using testing::ElementsAre;
using namespace hatch_test;

constexpr std::size_t kGeneralKeys = 8;

class HatchProvider : public ProviderTest
{
  protected:
    HatchProvider()
    {
        HatchContent& content = hatch.edit();
        content.loops = {rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8)};
        content.elevation = 2.5;
        content.origin = {3, 4};
        content.style = HatchContent::Style::Outer;
        content.patternName = L"ANSI31";
        content.patternAngle = 0.75;
        content.patternScale = 6;
        content.patternSpace = 0.5;
        content.doubled = true;
        content.associative = true;
        content.gradientName = L"InvCurved";
        content.gradientAngle = 1.25;
        content.gradientColors = {KdCmColor(0xC3000003), KdCmColor(0xC3000004)};
        content.gradientValues = {0.0F, 1.0F};
    }

    struct Listed
    {
        const wchar_t* key;
        bool readOnly;
        bool operator==(const Listed& other) const
        {
            return std::wstring_view(key) == other.key && readOnly == other.readOnly;
        }
    };

    void expectList(const std::vector<Listed>& expected)
    {
        const Listing listing = list(provider, &hatch);
        EXPECT_EQ(listing.status, 0);
        ASSERT_EQ(listing.keys.size(), kGeneralKeys + expected.size());
        ASSERT_EQ(listing.flags.size(), listing.keys.size());
        EXPECT_EQ(listing.keys[kGeneralKeys - 1], L"\tGeneral:Hyperlink");
        for (std::size_t i = 0; i < expected.size(); ++i) {
            EXPECT_EQ(listing.keys[kGeneralKeys + i], expected[i].key);
            EXPECT_EQ(listing.flags[kGeneralKeys + i], expected[i].readOnly) << i;
        }
    }

    bool isListed(const wchar_t* key)
    {
        const std::vector<std::wstring> keys = list(provider, &hatch).keys;
        return std::ranges::find(keys, key) != keys.end();
    }

    std::vector<std::string> answer(const wchar_t* key, bool withChoices = false)
    {
        const Answer found = ask(provider, &hatch, key, false, withChoices);
        EXPECT_EQ(found.status, 1);
        EXPECT_EQ(ask(provider, &hatch, key, true, withChoices).chain, found.chain);
        return found.chain;
    }

    KdDbHatch* addHatch(const wchar_t* pattern)
    {
        auto* added = add<KdDbHatch>();
        change(added, [&](HatchMembers& members) { members.patternName = pattern; });
        return added;
    }

    KdDbHatch_Extension provider;
    KdDbHatch hatch;
};

TEST_F(HatchProvider, ListsAPattern)
{
    expectList({{L"Geometry:Elevation", false},
                {L"Geometry:Area", true},
                {L"Pattern:Origin", false},
                {L"Pattern: Hatch style", false},
                {L"Pattern:Type", false},
                {L"Pattern:Pattern name", false},
                {L"Pattern:Annotative", true},
                {L"Pattern:Angle", false},
                {L"Pattern:Scale", false},
                {L"Pattern:Pattern space", true},
                {L"Pattern:Double", true},
                {L"Geometry:ISO pen width", false},
                {L"Pattern:Associative", false}});
}

TEST_F(HatchProvider, ListsAGradient)
{
    hatch.edit().gradient = true;
    hatch.edit().associative = false;
    expectList({{L"Geometry:Elevation", false},
                {L"Geometry:Area", true},
                {L"Pattern:Origin", false},
                {L"Pattern: Hatch style", false},
                {L"Pattern: Gradient name", false},
                {L"Pattern: Gradient angle", false},
                {L"Pattern: Gradient color 1", false},
                {L"Pattern: Gradient color 2", false},
                {L"Pattern: Gradient shift", false},
                {L"Pattern:Associative", true}});
}

TEST_F(HatchProvider, LocksTheSpacingOrTheScaleByThePatternType)
{
    hatch.edit().patternType = 0;
    const Listing listing = list(provider, &hatch);
    EXPECT_TRUE(listing.flags[kGeneralKeys + 8]) << "scale";
    EXPECT_FALSE(listing.flags[kGeneralKeys + 9]) << "spacing";
    EXPECT_FALSE(listing.flags[kGeneralKeys + 10]) << "double";
}

TEST_F(HatchProvider, HasThePenWidthForAllPatternsButThoseOfIso)
{
    constexpr const wchar_t* kKey = L"Geometry:ISO pen width";
    EXPECT_TRUE(isListed(kKey));
    hatch.edit().patternName = L"ISO02W100";
    EXPECT_FALSE(isListed(kKey));
    hatch.edit().patternName = L"ACAD_ISO02W100";
    EXPECT_TRUE(isListed(kKey)) << "it does not begin so";
    EXPECT_THAT(answer(kKey), ElementsAre("5005 0.50 mm"));
}

TEST_F(HatchProvider, HasTheIdsOfItsKeys)
{
    const int ids[] = {77678, 77613, 77683, 78047, 78048, 78049, 78050, 78051, 78052,
                       77679, 77680, 78153, 77681, 77682, 77684, 77685, 78067, 77686};
    ASSERT_EQ(KdDbHatch_Extension::rows().size(), std::size(ids));
    for (std::size_t i = 0; i < std::size(ids); ++i)
        EXPECT_EQ(KdDbHatch_Extension::rows()[i].key.id, ids[i]);
}

struct ValueRow
{
    const char* name;
    const wchar_t* key;
    const char* value;
};

TEST_F(HatchProvider, AnswersAllKeysWhateverTheHatchIs)
{
    constexpr ValueRow kValues[] = {
        {"elevation", L"Geometry:Elevation", "5001 2.5"},
        {"area", L"Geometry:Area", "5001 64"},
        {"origin", L"Pattern:Origin", "5002 3,4"},
        {"style", L"Pattern: Hatch style", "5005 Outer"},
        {"gradient", L"Pattern: Gradient name", "5005 Inverted curved"},
        {"gradientAngle", L"Pattern: Gradient angle", "5001 1.25"},
        {"color1", L"Pattern: Gradient color 1", "5011 color 3"},
        {"color2", L"Pattern: Gradient color 2", "5011 color 4"},
        {"shift", L"Pattern: Gradient shift", "290 true"},
        {"type", L"Pattern:Type", "5005 Predefined"},
        {"pattern", L"Pattern:Pattern name", "5005 ANSI31"},
        {"annotative", L"Pattern:Annotative", "290 false"},
        {"angle", L"Pattern:Angle", "5004 0.75"},
        {"scale", L"Pattern:Scale", "5001 6"},
        {"space", L"Pattern:Pattern space", "5001 0.5"},
        {"double", L"Pattern:Double", "290 true"},
        {"penWidth", L"Geometry:ISO pen width", "5005 0.50 mm"},
        {"associative", L"Pattern:Associative", "290 true"},
        {"general", L"\tGeneral:Transparency", "441 ByLayer"},
    };
    for (const bool isGradient : {false, true}) {
        hatch.edit().gradient = isGradient;
        for (const ValueRow& row : kValues) {
            SCOPED_TRACE(row.name);
            EXPECT_THAT(answer(row.key), ElementsAre(row.value));
        }
    }
}

TEST_F(HatchProvider, AddsNothingToPlainValuesWhenChoicesAreAskedFor)
{
    for (const wchar_t* key :
         {L"Geometry:Elevation", L"Geometry:Area", L"Pattern:Origin", L"Pattern: Gradient angle",
          L"Pattern: Gradient color 1", L"Pattern: Gradient color 2", L"Pattern: Gradient shift",
          L"Pattern:Annotative", L"Pattern:Angle", L"Pattern:Scale", L"Pattern:Pattern space",
          L"Pattern:Double", L"Pattern:Associative"})
        EXPECT_EQ(answer(key, true).size(), 1u);
}

TEST_F(HatchProvider, RefusesWhatIsNoHatchTheGeneralKeysIncluded)
{
    const KdDbCircle circle;
    const KdDbMPolygon polygon;
    for (const KdDbEntity* entity :
         std::initializer_list<const KdDbEntity*>{nullptr, &circle, &polygon}) {
        const Listing listing = list(provider, entity);
        EXPECT_EQ(listing.status, 0);
        EXPECT_TRUE(listing.keys.empty());
        EXPECT_TRUE(listing.flags.empty());
        for (const wchar_t* key : {L"Pattern:Angle", L"\tGeneral:Layer"}) {
            const Answer answered = ask(provider, entity, key);
            EXPECT_EQ(answered.status, 0);
            EXPECT_THAT(answered.chain, ElementsAre("5000 nothing"));
        }
    }
    EXPECT_EQ(ask(provider, &hatch, L"Pattern:Nothing").status, 0);
}

TEST_F(HatchProvider, NamesPatternTypesAndStyles)
{
    const auto typeName = [&](std::int16_t type) {
        hatch.edit().patternType = type;
        return answer(L"Pattern:Type").at(0);
    };
    EXPECT_EQ(typeName(0), "5005 User defined");
    EXPECT_EQ(typeName(1), "5005 Predefined");
    EXPECT_EQ(typeName(2), "5005 Custom");
    EXPECT_EQ(typeName(3), "5005 ");
    const auto styleName = [&](int style) {
        hatch.edit().style = static_cast<HatchContent::Style>(style);
        return answer(L"Pattern: Hatch style").at(0);
    };
    EXPECT_EQ(styleName(0), "5005 Normal");
    EXPECT_EQ(styleName(2), "5005 Ignore");
    EXPECT_EQ(styleName(3), "5005 ");
}

TEST_F(HatchProvider, OffersStylesAndGradients)
{
    EXPECT_THAT(answer(L"Pattern: Hatch style", true),
                ElementsAre("5005 Outer", "5005 Normal", "5005 Outer", "5005 Ignore"));
    EXPECT_THAT(answer(L"Pattern: Gradient name", true),
                ElementsAre("5005 Inverted curved", "5005 Linear", "5005 Cylinder",
                            "5005 Inverted cylinder", "5005 Spherical", "5005 Hemispherical",
                            "5005 Curved", "5005 Inverted spherical", "5005 Inverted hemispherical",
                            "5005 Inverted curved"));
}

TEST_F(HatchProvider, KnowsGradientsInAnyCaseAndNoOthers)
{
    const auto nameOf = [&](const wchar_t* gradient) {
        hatch.edit().gradientName = gradient;
        return answer(L"Pattern: Gradient name").at(0);
    };
    EXPECT_EQ(nameOf(L"hemiSPHERICAL"), "5005 Hemispherical");
    EXPECT_EQ(nameOf(L"LINEAR "), "5005 ");
    EXPECT_EQ(nameOf(L""), "5005 ");
}

TEST_F(HatchProvider, GivesNoColorThatTheGradientLacks)
{
    hatch.edit().gradientColors.resize(1);
    hatch.edit().gradientValues.resize(1);
    EXPECT_THAT(answer(L"Pattern: Gradient color 1"), ElementsAre("5011 color 3"));
    EXPECT_THAT(answer(L"Pattern: Gradient color 2"), ElementsAre("5011 color 256"));
    hatch.edit().gradientColors.clear();
    hatch.edit().gradientValues.clear();
    EXPECT_THAT(answer(L"Pattern: Gradient color 1"), ElementsAre("5011 color 256"));
}

TEST_F(HatchProvider, CallsAGradientCenteredWithinTheDigitsOfAFloat)
{
    const auto shifted = [&](float shift) {
        hatch.edit().gradientShift = shift;
        return answer(L"Pattern: Gradient shift").at(0);
    };
    EXPECT_EQ(shifted(1.1920929e-07F), "290 true");
    EXPECT_EQ(shifted(-1.1920929e-07F), "290 true");
    EXPECT_EQ(shifted(1.2e-07F), "290 false");
    EXPECT_EQ(shifted(-1.0F), "290 false");
}

TEST_F(HatchProvider, TagsTheTypeAndOffersNoList)
{
    EXPECT_THAT(answer(L"Pattern:Type", true), ElementsAre("5005 Predefined", "280 2"));
}

TEST_F(HatchProvider, OffersThePatternsOfTheModelBehindATag)
{
    addHatch(L"BRICK");
    add<KdDbCircle>();
    addHatch(L"brick");
    addHatch(L"BRICK");
    addHatch(L"ANGLE");
    EXPECT_THAT(answer(L"Pattern:Pattern name", true),
                ElementsAre("5005 ANSI31", "280 2", "5005 BRICK", "5005 brick", "5005 ANGLE"));
}

TEST_F(HatchProvider, OffersNoPatternsOfSheets)
{
    auto* onSheet = new KdDbHatch;
    onSheet->edit().patternName = L"SHEET";
    KdDbBlockTableRecord* sheet = nullptr;
    ASSERT_EQ(kddbOpenObject(sheet, drawing.activeSheetId(), KdDb::kForWrite), eOk);
    ASSERT_EQ(sheet->appendEntity(onSheet), eOk);
    sheet->close();
    EXPECT_THAT(answer(L"Pattern:Pattern name", true), ElementsAre("5005 ANSI31", "280 2"));
}

TEST_F(HatchProvider, LeavesTheNamesAloneThatAreThereAlready)
{
    addHatch(L"BRICK");
    addHatch(L"ANGLE");
    KdArray<KdString> names;
    names.append(L"ANGLE");
    KdDbHatch_Extension::GetHatchPatternNames(names);
    ASSERT_EQ(names.length(), 2);
    EXPECT_EQ(names[0], L"ANGLE");
    EXPECT_EQ(names[1], L"BRICK");
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    KdDbHatch_Extension::GetHatchPatternNames(names);
    EXPECT_EQ(names.length(), 2);
}

TEST_F(HatchProvider, ReadsThePenWidthFromTheSpacing)
{
    const auto widthOf = [&](double spacing) {
        hatch.edit().patternSpace = spacing;
        return answer(L"Geometry:ISO pen width").at(0);
    };
    EXPECT_EQ(widthOf(0.5), "5005 0.50 mm");
    EXPECT_EQ(widthOf(2.0), "5005 2.00 mm");
    EXPECT_EQ(widthOf(0.51), "5005 ");
    hatch.edit().patternSpace = 0.51;
    EXPECT_THAT(answer(L"Geometry:ISO pen width", true),
                ElementsAre("5005 ", "5005 0.13 mm", "5005 0.18 mm", "5005 0.25 mm", "5005 0.35 mm",
                            "5005 0.50 mm", "5005 0.70 mm", "5005 1.00 mm", "5005 1.40 mm",
                            "5005 2.00 mm"));
}

TEST_F(HatchProvider, MeasuresHatchesAlone)
{
    double area = -7;
    EXPECT_EQ(provider.getEntityTotalArea(&hatch, area), 0);
    EXPECT_DOUBLE_EQ(area, 64);
    const KdDbCircle circle;
    EXPECT_EQ(provider.getEntityTotalArea(&circle, area), 0);
    EXPECT_EQ(provider.getEntityTotalArea(nullptr, area), 0);
    EXPECT_DOUBLE_EQ(area, 64);
    double length = -7;
    EXPECT_EQ(provider.getEntityTotalLength(&hatch, length), 1);
    EXPECT_EQ(length, -7);
}

TEST_F(HatchProvider, AnswersAnAreaOfZeroForAHatchWithoutBoundary)
{
    hatch.edit().loops.clear();
    EXPECT_THAT(answer(L"Geometry:Area"), ElementsAre("5001 0"));
}

class HatchAreas : public HatchProvider
{
  protected:
    HatchAreas() { KdDbHatch::desc()->addX(KdDbEntityPE::desc(), &provider); }
    ~HatchAreas() override { KdDbHatch::desc()->delX(KdDbEntityPE::desc()); }

    static double solid(const KdDbEntity* entity)
    {
        double area = -1;
        EXPECT_EQ(calculateAreaBySolidPattern(entity, area), 0);
        return area;
    }
    static double lines(const KdDbEntity* entity)
    {
        double area = -1;
        EXPECT_EQ(calculateAreaByLinePattern(entity, area), 0);
        return area;
    }
};

TEST_F(HatchAreas, OfASolidCopyAreThoseOfItsPieces)
{
    EXPECT_NEAR(solid(&hatch), 64, 1e-9);
    hatch.edit().style = HatchContent::Style::Normal;
    hatch.edit().loops.push_back(rectangle(3, 3, 7, 7));
    EXPECT_NEAR(solid(&hatch), 80, 1e-9);
}

TEST_F(HatchAreas, OfASolidCopyNeedTheProviderOfThePieces)
{
    KdDbHatch::desc()->delX(KdDbEntityPE::desc());
    EXPECT_EQ(solid(&hatch), 0);
}

TEST_F(HatchAreas, OfARuledCopyAreSumsOfStrips)
{
    hatch.edit().loops = {rectangle(0, 0, 4, 1)};
    // 801 - 1 lines from side to side, 0.00125 apart, along the turned direction; the first strip
    // begins with the distance across
    hatch.edit().patternAngle = 0;
    const double spacing = 0.125 * 0.01;
    const double first = 0.5 * (4 + std::hypot(4, spacing)) * spacing;
    EXPECT_NEAR(lines(&hatch), first + 798 * 4 * spacing, 1e-9);
    hatch.edit().loops = {circle(0, 0, 1)};
    hatch.edit().patternAngle = 1;
    EXPECT_NEAR(lines(&hatch), kPi, 1e-3);
}

TEST_F(HatchAreas, AreZeroWhereNothingCanBeMeasured)
{
    const KdDbCircle circle;
    const KdDbHatch empty;
    for (const KdDbEntity* entity :
         std::initializer_list<const KdDbEntity*>{nullptr, &circle, &empty}) {
        EXPECT_EQ(solid(entity), 0);
        EXPECT_EQ(lines(entity), 0);
    }
    hatch.edit().patternAngle = 0;
    hatch.edit().loops = {rectangle(0, 0.0001, 4, 0.001)};
    EXPECT_EQ(lines(&hatch), 0) << "not even one line";
    hatch.edit().loops = {rectangle(0, 0, 1e7, 1e7)};
    EXPECT_EQ(lines(&hatch), 0) << "too many lines";
}

} // namespace
