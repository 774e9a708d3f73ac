// Records of tables and objects of the named dictionaries, with all that is kept of them.
#include <numbers>

#include <gtest/gtest.h>

#include <database/named_objects.h>

#include "made_drawing.h"

namespace {

Groups table(const std::string& kind, const Groups& groups)
{
    Groups all{{0, "TABLE"}, {2, kind}, {5, "F0"}, {0, kind}};
    all.insert(all.end(), groups.begin(), groups.end());
    all.push_back({0, "ENDTAB"});
    return section("TABLES", all);
}

/// A dictionary under a key of the root dictionary, with one object in it.
Groups named(const std::string& key, const std::string& entry, const Groups& object)
{
    Groups all{{0, "DICTIONARY"}, {5, "C"},   {3, key},   {350, "D"}, {0, "DICTIONARY"},
               {5, "D"},          {330, "C"}, {3, entry}, {350, "E"}};
    all.insert(all.end(), object.begin(), object.end());
    return section("OBJECTS", all);
}

template <class T>
const T* objectOf(const ReadDrawing& drawn, KdDbHandle handle)
{
    return dynamic_cast<const T*>(drawn.object(handle));
}

TEST(Tables, KeepTheirHandles)
{
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1018"), table("LAYER", {{5, "10"}, {330, "F0"}, {2, "PIPES"}})}));
    EXPECT_EQ(drawn.object(0xF0), &drawn.database->table<KdDbLayerTable>());
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

TEST(Tables, OfAHandleThatIsTakenGetANewOne)
{
    const ReadDrawing drawn = readGroups(
        drawing({section("ENTITIES", {{0, "LINE"}, {5, "F0"}}), table("LAYER", {{2, "PIPES"}})}));
    EXPECT_NE(drawn.database->table<KdDbLayerTable>().handle(), 0xF0u);
    EXPECT_NE(drawn.database->table<KdDbLayerTable>().handle(), 0u);
    EXPECT_TRUE(drawn.hasFinding(DrawingFinding::HandleIsDoubled));
}

TEST(TableRecords, DefinedBehindTheirUseKeepTheirHandles)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "LINE"}, {8, "PIPES"}}),
                                                  table("LAYER", {{5, "10"}, {2, "PIPES"}})}));
    EXPECT_EQ(drawn.record<KdDbLayerTable>(L"PIPES")->handle(), 0x10u);
    EXPECT_EQ(drawn.object(0x10), drawn.record<KdDbLayerTable>(L"PIPES"));
}

TEST(LayerRecord, HasAllThatIsSaidOfIt)
{
    const ReadDrawing drawn = readGroups(drawing(
        {header("AC1018"),
         table("LAYER", {{5, "10"},
                         {2, "PIPES"},
                         {70, "2"},
                         {62, "1"},
                         {420, "255"},
                         {430, "DIC 7$DIC 12"},
                         {347, "E"},
                         {1001, "AcAecLayerStandard"},
                         {1000, ""},
                         {1000, "hot and cold"},
                         {1001, "AcCmTransparency"},
                         {1071, "33554559"}}),
         named("ACAD_MATERIAL", "Steel", {{0, "MATERIAL"}, {5, "E"}, {330, "D"}, {1, "Steel"}})}));
    const auto* layer = drawn.record<KdDbLayerTable>(L"PIPES");
    EXPECT_TRUE(layer->isFrozenInNewViewports());
    EXPECT_FALSE(layer->isFrozen());
    EXPECT_EQ(layer->colorName(), L"DIC 7$DIC 12");
    EXPECT_EQ(layer->description(), L"hot and cold");
    EXPECT_EQ(layer->transparency().alpha(), 0x7F);
    EXPECT_EQ(layer->materialId().handle(), 0xEu);
}

TEST(LinetypeRecord, LeavesOutShapesAndTextsInItsDashes)
{
    const ReadDrawing drawn = readGroups(drawing({table("LTYPE", {{2, "GAS"},
                                                                  {3, "--- GAS ---"},
                                                                  {73, "3"},
                                                                  {40, "0.95"},
                                                                  {49, "0.5"},
                                                                  {74, "0"},
                                                                  {49, "-0.2"},
                                                                  {74, "2"},
                                                                  {75, "0"},
                                                                  {340, "11"},
                                                                  {46, "0.1"},
                                                                  {50, "0.0"},
                                                                  {44, "-0.1"},
                                                                  {45, "-0.05"},
                                                                  {9, "GAS"},
                                                                  {49, "-0.25"},
                                                                  {74, "0"}})}));
    const auto* linetype = drawn.record<KdDbLinetypeTable>(L"GAS");
    EXPECT_EQ(linetype->dashes(), (std::vector<double>{0.5, -0.2, -0.25}));
    EXPECT_EQ(linetype->patternLength(), 0.95);
    EXPECT_EQ(linetype->comments(), L"--- GAS ---");
}

TEST(TextStyleRecord, HasAllThatIsSaidOfIt)
{
    const ReadDrawing drawn =
        readGroups(drawing({table("STYLE", {{2, "NOTES"},
                                            {70, "0"},
                                            {42, "3.5"},
                                            {71, "6"},
                                            {3, "arial.ttf"},
                                            {4, "bigfont.shx"},
                                            {1001, "ACAD"},
                                            {1000, "Arial"},
                                            {1071, "50331682"}})})); // 0x03000022
    const auto* style = drawn.record<KdDbTextStyleTable>(L"NOTES");
    EXPECT_EQ(style->priorSize(), 3.5);
    EXPECT_TRUE(style->isBackward());
    EXPECT_TRUE(style->isUpsideDown());
    EXPECT_EQ(style->bigFontFileName(), L"bigfont.shx");
    EXPECT_EQ(style->typeface(), L"Arial");
    EXPECT_TRUE(style->isBold());
    EXPECT_TRUE(style->isItalic());
}

TEST(ExtendedData, MayHoldNothingForAnApplication)
{
    const Groups nothing{{2, "A"},
                         {1001, "ACAD"},
                         {1001, "AcCmTransparency"},
                         {1001, "AcAecLayerStandard"},
                         {1001, "AcadAnnotative"},
                         {1001, "OTHER"},
                         {1000, "x"}};
    for (const char* kind : {"LAYER", "STYLE", "BLOCK_RECORD"}) {
        const ReadDrawing drawn =
            readGroupsWhole(drawing({header("AC1009"), table(kind, nothing)}));
        ASSERT_EQ(drawn.status, eOk);
        for (const KdDbObject* each : drawn.database->objects()) {
            const resbuf* end = nullptr;
            EXPECT_EQ(each->extendedData(L"ACAD", end), nullptr);
            EXPECT_EQ(end, nullptr);
            EXPECT_FALSE(each->isAnnotative());
        }
    }
}

TEST(ViewportRecord, HasItsView)
{
    const ReadDrawing drawn = readGroups(drawing({table(
        "VPORT",
        {{2, "*Active"}, {70, "0"},   {10, "0"},  {20, "0.5"}, {11, "1"},  {21, "1"},  {12, "7"},
         {22, "8"},      {16, "1"},   {26, "-1"}, {36, "2"},   {17, "3"},  {27, "4"},  {37, "5"},
         {40, "297"},    {41, "1.5"}, {42, "35"}, {51, "90"},  {110, "1"}, {120, "2"}, {130, "3"},
         {111, "0"},     {121, "1"},  {131, "0"}, {112, "-1"}, {122, "0"}, {132, "0"}})}));
    const ViewportTableMembers& view = drawn.record<KdDbViewportTable>(L"*Active")->view();
    EXPECT_EQ(view.lowerLeft, (KdGePoint2d{0, 0.5}));
    EXPECT_EQ(view.upperRight, (KdGePoint2d{1, 1}));
    EXPECT_EQ(view.center, (KdGePoint2d{7, 8}));
    EXPECT_EQ(view.direction, (KdGeVector3d{1, -1, 2}));
    EXPECT_EQ(view.target, (KdGePoint3d{3, 4, 5}));
    EXPECT_EQ(view.height, 297.0);
    EXPECT_EQ(view.aspectRatio, 1.5);
    EXPECT_EQ(view.lensLength, 35.0);
    EXPECT_NEAR(view.twist, std::numbers::pi / 2, 1e-15);
    EXPECT_EQ(view.ucsOrigin, (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(view.ucsXAxis, (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(view.ucsYAxis, (KdGeVector3d{-1, 0, 0}));
}

TEST(ApplicationRecord, IsKnownByItsName)
{
    const ReadDrawing drawn = readGroups(drawing({table("APPID", {{2, "PE_URL"}, {70, "0"}})}));
    EXPECT_TRUE(drawn.record<KdDbRegAppTable>(L"pe_url"));
}

Groups layoutGroups()
{
    return {{0, "LAYOUT"},   {5, "E"},
            {330, "D"},      {100, "AcDbPlotSettings"},
            {1, "setup"},    {2, "plotter"},
            {4, "A3"},       {6, "view"},
            {40, "5"},       {41, "6"},
            {42, "7"},       {43, "8"},
            {44, "420"},     {45, "297"},
            {46, "1"},       {47, "2"},
            {48, "10"},      {49, "20"},
            {140, "30"},     {141, "40"},
            {142, "1"},      {143, "50"},
            {70, "688"},     {72, "1"},
            {73, "2"},       {74, "5"},
            {7, "mono.ctb"}, {75, "16"},
            {147, "0.02"},   {100, "AcDbLayout"},
            {1, "Plan"},     {70, "1"},
            {71, "3"},       {10, "-1"},
            {20, "-2"},      {11, "3"},
            {21, "4"},       {12, "5"},
            {22, "6"},       {32, "7"},
            {14, "8"},       {24, "9"},
            {34, "10"},      {15, "11"},
            {25, "12"},      {35, "13"},
            {146, "2.5"},    {13, "1"},
            {23, "2"},       {33, "3"},
            {16, "0"},       {26, "1"},
            {36, "0"},       {17, "-1"},
            {27, "0"},       {37, "0"},
            {76, "0"},       {330, "1B"},
            {331, "77"}};
}

ReadDrawing readLayout()
{
    const Groups sheet{{5, "1B"}, {2, "*Paper_Space"}};
    const Groups viewport{{0, "VIEWPORT"}, {5, "77"}, {330, "1B"}, {67, "1"}};
    return readGroups(
        drawing({header("AC1015"), table("BLOCK_RECORD", sheet), section("ENTITIES", viewport),
                 named("ACAD_LAYOUT", "Plan", layoutGroups())}));
}

TEST(Layout, HasItsPlotSettings)
{
    const ReadDrawing drawn = readLayout();
    const auto* layout = objectOf<KdDbLayout>(drawn, 0xE);
    ASSERT_TRUE(layout);
    const PlotSettingsMembers& plot = layout->plotSettings();
    EXPECT_EQ(layout->getPlotSettingsName(), L"setup");
    EXPECT_EQ(layout->getPlotCfgName(), L"plotter");
    EXPECT_EQ(layout->getCanonicalMediaName(), L"A3");
    EXPECT_EQ(layout->getPlotViewName(), L"view");
    EXPECT_EQ(layout->getCurrentStyleSheet(), L"mono.ctb");
    EXPECT_EQ(plot.leftMargin, 5.0);
    EXPECT_EQ(plot.bottomMargin, 6.0);
    EXPECT_EQ(plot.rightMargin, 7.0);
    EXPECT_EQ(plot.topMargin, 8.0);
    EXPECT_EQ(plot.paperWidth, 420.0);
    EXPECT_EQ(plot.paperHeight, 297.0);
    EXPECT_EQ(plot.origin, (KdGePoint2d{1, 2}));
    EXPECT_EQ(plot.windowMinimum, (KdGePoint2d{10, 20}));
    EXPECT_EQ(plot.windowMaximum, (KdGePoint2d{30, 40}));
    EXPECT_EQ(plot.scaleNumerator, 1.0);
    EXPECT_EQ(plot.scaleDenominator, 50.0);
    EXPECT_EQ(plot.standardScaleFactor, 0.02);
    EXPECT_EQ(plot.flags, 688);
    EXPECT_EQ(plot.units, 1);
    EXPECT_EQ(plot.rotation, 2);
    EXPECT_EQ(plot.area, 5);
    EXPECT_EQ(plot.standardScale, 16);
}

TEST(Layout, HasWhatIsItsOwn)
{
    const ReadDrawing drawn = readLayout();
    const auto* layout = objectOf<KdDbLayout>(drawn, 0xE);
    ASSERT_TRUE(layout);
    const LayoutMembers& own = layout->settings();
    EXPECT_EQ(layout->getLayoutName(), L"Plan");
    EXPECT_EQ(layout->getTabOrder(), 3);
    EXPECT_TRUE(layout->scalesLinetypesBySheet());
    EXPECT_EQ(layout->lastActiveViewportId().handle(), 0x77u);
    EXPECT_EQ(own.limitsMinimum, (KdGePoint2d{-1, -2}));
    EXPECT_EQ(own.limitsMaximum, (KdGePoint2d{3, 4}));
    EXPECT_EQ(own.insertionBase, (KdGePoint3d{5, 6, 7}));
    EXPECT_EQ(own.extentsMinimum, (KdGePoint3d{8, 9, 10}));
    EXPECT_EQ(own.extentsMaximum, (KdGePoint3d{11, 12, 13}));
    EXPECT_EQ(own.elevation, 2.5);
    EXPECT_EQ(own.ucsOrigin, (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(own.ucsXAxis, (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(own.ucsYAxis, (KdGeVector3d{-1, 0, 0}));
}

TEST(PageSetup, IsReadLikeTheSettingsOfALayout)
{
    const ReadDrawing drawn = readGroups(drawing({named(
        "ACAD_PLOTSETTINGS", "A4",
        {{0, "PLOTSETTINGS"}, {5, "E"}, {100, "AcDbPlotSettings"}, {1, "A4"}, {44, "210"}})}));
    const auto* setup = objectOf<KdDbPlotSettings>(drawn, 0xE);
    ASSERT_TRUE(setup);
    EXPECT_EQ(setup->getPlotSettingsName(), L"A4");
    EXPECT_EQ(setup->plotSettings().paperWidth, 210.0);
}

TEST(ActiveSheet, IsTheBlockWithThePlainName)
{
    const ReadDrawing drawn = readLayout();
    EXPECT_EQ(drawn.database->activeSheetId(),
              drawn.record<KdDbBlockTable>(kPaperSpaceName)->objectId());
}

TEST(ActiveSheet, IsTheFirstLayoutWhereTheDrawingLacksThatBlock)
{
    const Groups records{{0, "TABLE"}, {2, "BLOCK_RECORD"},  {0, "BLOCK_RECORD"},
                         {5, "1A"},    {2, "*Paper_Space7"}, {0, "BLOCK_RECORD"},
                         {5, "1B"},    {2, "*Paper_Space3"}, {0, "ENDTAB"}};
    const Groups objects{{0, "DICTIONARY"},   {5, "C"},      {0, "LAYOUT"},       {5, "E"},
                         {100, "AcDbLayout"}, {1, "Second"}, {71, "2"},           {330, "1A"},
                         {0, "LAYOUT"},       {5, "F"},      {100, "AcDbLayout"}, {1, "First"},
                         {71, "1"},           {330, "1B"}};
    const ReadDrawing drawn =
        readGroups(drawing({section("TABLES", records), section("OBJECTS", objects)}));
    EXPECT_EQ(drawn.database->activeSheetId().handle(), 0x1Bu);
}

TEST(Scale, IsRead)
{
    const ReadDrawing drawn = readGroups(drawing({named("ACAD_SCALELIST", "A1",
                                                        {{0, "SCALE"},
                                                         {5, "E"},
                                                         {100, "AcDbScale"},
                                                         {70, "0"},
                                                         {300, "1:50"},
                                                         {140, "1"},
                                                         {141, "50"},
                                                         {290, "0"}})}));
    const auto* scale = objectOf<KdDbScale>(drawn, 0xE);
    ASSERT_TRUE(scale);
    EXPECT_EQ(scale->scaleName(), L"1:50");
    EXPECT_EQ(scale->paperUnits(), 1.0);
    EXPECT_EQ(scale->drawingUnits(), 50.0);
    EXPECT_EQ(scale->scale(), 0.02);
    EXPECT_FALSE(scale->isUnitScale());
}

TEST(Scale, OfNoDrawingUnitsIsZero)
{
    KdDbScale scale;
    scale.edit().drawingUnits = 0.0;
    EXPECT_EQ(scale.scale(), 0.0);
}

TEST(DictionaryVariables, AreFoundByTheirNames)
{
    const ReadDrawing drawn = readGroups(drawing({named(
        "AcDbVariableDictionary", "CANNOSCALE",
        {{0, "DICTIONARYVAR"}, {5, "E"}, {100, "DictionaryVariables"}, {280, "0"}, {1, "1:20"}})}));
    EXPECT_EQ(kddbDictionaryVariable(*drawn.database, L"cannoscale"), L"1:20");
    EXPECT_EQ(kddbDictionaryVariable(*drawn.database, L"LIGHTINGUNITS"), L"");
    EXPECT_EQ(kddbDictionaryVariable(KdDbDatabase(), L"CANNOSCALE"), L"");
}

TEST(Material, HasItsFirstNameAndDescription)
{
    const ReadDrawing drawn = readGroups(drawing({named("ACAD_MATERIAL", "Steel",
                                                        {{0, "MATERIAL"},
                                                         {5, "E"},
                                                         {100, "AcDbMaterial"},
                                                         {1, "Steel"},
                                                         {2, "brushed"},
                                                         {1, "texture"}})}));
    const auto* material = objectOf<KdDbMaterial>(drawn, 0xE);
    ASSERT_TRUE(material);
    EXPECT_EQ(material->name(), L"Steel");
    EXPECT_EQ(material->description(), L"brushed");
}

TEST(Group, NamesItsEntities)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("ENTITIES", {{0, "LINE"}, {5, "A1"}, {0, "LINE"}, {5, "A2"}}),
                            named("ACAD_GROUP", "DOORS",
                                  {{0, "GROUP"},
                                   {5, "E"},
                                   {100, "AcDbGroup"},
                                   {300, "all"},
                                   {70, "1"},
                                   {71, "0"},
                                   {340, "A2"},
                                   {340, "A1"},
                                   {340, "FF"}})})); // the last one is not there
    const auto* group = objectOf<KdDbGroup>(drawn, 0xE);
    ASSERT_TRUE(group);
    EXPECT_EQ(group->description(), L"all");
    EXPECT_TRUE(group->isAnonymous());
    EXPECT_FALSE(group->isSelectable());
    ASSERT_EQ(group->allEntityIds().size(), 2u);
    EXPECT_EQ(group->allEntityIds()[0].handle(), 0xA2u);
    EXPECT_EQ(group->allEntityIds()[1].handle(), 0xA1u);
}

TEST(Header, KnowsNamesOfOldVersions)
{
    const ReadDrawing drawn = readGroups(drawing({section("HEADER", {{9, "$ACADVER"},
                                                                     {1, "AC1006"},
                                                                     {9, "$UCSXORI"},
                                                                     {10, "0"},
                                                                     {20, "1"},
                                                                     {30, "0"},
                                                                     {9, "$UCSYORI"},
                                                                     {10, "-1"},
                                                                     {20, "0"},
                                                                     {30, "0"}})}));
    EXPECT_EQ(drawn.database->header().point(L"UCSXDIR"), (KdGePoint3d{0, 1, 0}));
    EXPECT_EQ(drawn.database->header().point(L"UCSYDIR"), (KdGePoint3d{-1, 0, 0}));
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

struct SplitCase
{
    const char* name;
    const char* old;
    const char* value;
    const wchar_t* first;
    int firstValue;
    const wchar_t* second;
    int secondValue;
};

class SplitHeaderVariable : public testing::TestWithParam<SplitCase>
{
};

TEST_P(SplitHeaderVariable, StandsForTwoOfLaterVersions)
{
    const SplitCase& row = GetParam();
    const ReadDrawing drawn = readGroups(drawing(
        {section("HEADER", {{9, "$ACADVER"}, {1, "AC1014"}, {9, row.old}, {70, row.value}})}));
    EXPECT_EQ(drawn.database->header().integer(row.first), row.firstValue);
    EXPECT_EQ(drawn.database->header().integer(row.second), row.secondValue);
}

INSTANTIATE_TEST_SUITE_P(
    Values, SplitHeaderVariable,
    testing::Values(SplitCase{"decimal", "$DIMUNIT", "2", L"DIMLUNIT", 2, L"DIMFRAC", 0},
                    SplitCase{"architectural", "$DIMUNIT", "6", L"DIMLUNIT", 4, L"DIMFRAC", 2},
                    SplitCase{"fractional", "$DIMUNIT", "7", L"DIMLUNIT", 5, L"DIMFRAC", 2},
                    SplitCase{"desktop", "$DIMUNIT", "8", L"DIMLUNIT", 6, L"DIMFRAC", 0},
                    SplitCase{"absurd", "$DIMUNIT", "99", L"DIMLUNIT", 2, L"DIMFRAC", 0},
                    SplitCase{"textOnly", "$DIMFIT", "1", L"DIMATFIT", 1, L"DIMTMOVE", 0},
                    SplitCase{"withLeader", "$DIMFIT", "4", L"DIMATFIT", 3, L"DIMTMOVE", 1},
                    SplitCase{"withoutLeader", "$DIMFIT", "5", L"DIMATFIT", 3, L"DIMTMOVE", 2}),
    [](const auto& row) { return row.param.name; });

} // namespace
