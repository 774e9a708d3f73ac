#include <numbers>

#include <gtest/gtest.h>

#include <database/dimension_style.h>

#include "made_drawing.h"

namespace {

Groups entry(const std::string& kind, const Groups& groups)
{
    Groups all{{0, "TABLE"}, {2, kind}, {0, kind}};
    all.insert(all.end(), groups.begin(), groups.end());
    all.push_back({0, "ENDTAB"});
    return section("TABLES", all);
}

ReadDrawing readEntry(const std::string& kind, const Groups& groups, const char* version = "AC1018")
{
    return readGroups(drawing({header(version), entry(kind, groups)}));
}

TEST(LayerRecord, IsRead)
{
    const ReadDrawing drawn = readEntry("LAYER", {{5, "10"},
                                                  {2, "PIPES"},
                                                  {70, "5"},
                                                  {62, "-3"},
                                                  {6, "CONTINUOUS"},
                                                  {290, "0"},
                                                  {370, "50"},
                                                  {1001, "AcCmTransparency"},
                                                  {1071, "33554559"}});
    const auto* layer = drawn.record<KdDbLayerTable>(L"pipes");
    ASSERT_TRUE(layer);
    EXPECT_EQ(layer->handle(), 0x10u);
    EXPECT_TRUE(layer->isFrozen());
    EXPECT_TRUE(layer->isLocked());
    EXPECT_TRUE(layer->isOff());
    EXPECT_FALSE(layer->isPlottable());
    EXPECT_EQ(layer->color().colorIndex(), 3);
    EXPECT_EQ(layer->lineWeight(), 50);
    EXPECT_EQ(layer->linetypeObjectId(),
              drawn.record<KdDbLinetypeTable>(L"Continuous")->objectId());
}

TEST(LayerRecord, MayHaveATrueColor)
{
    const ReadDrawing drawn = readEntry("LAYER", {{2, "A"}, {62, "-1"}, {420, "1193046"}});
    EXPECT_EQ(drawn.record<KdDbLayerTable>(L"A")->color().color(), 0xC2123456u);
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"A")->isOff());
}

TEST(LayerRecord, WithTheLeastOfAllColorsIsOff)
{
    const ReadDrawing drawn = readEntry("LAYER", {{2, "A"}, {62, "-2147483648"}});
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"A")->isOff());
}

TEST(LayerRecord, OfAnExternalReferenceIsDependent)
{
    const ReadDrawing drawn = readEntry("LAYER", {{2, "X|A"}, {70, "16"}});
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"X|A")->isDependent());
}

TEST(LayerRecord, IsMadeForEntitiesThatNameIt)
{
    const ReadDrawing drawn = readGroups(
        drawing({entry("LAYER", {{2, "Pipes"}, {62, "3"}}),
                 section("ENTITIES", {{0, "LINE"}, {8, "PIPES"}, {0, "LINE"}, {8, "NEW"}})}));
    EXPECT_EQ(drawn.entities()[0]->layer(), L"Pipes");
    EXPECT_EQ(drawn.entities()[1]->layer(), L"NEW");
    EXPECT_EQ(drawn.record<KdDbLayerTable>(L"NEW")->color().colorIndex(), 7);
}

TEST(LayerRecord, DefinedBehindItsUseIsOneAndTheSame)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "LINE"}, {8, "PIPES"}}),
                                                  entry("LAYER", {{2, "PIPES"}, {62, "3"}})}));
    EXPECT_EQ(drawn.entities()[0]->layerId(), drawn.record<KdDbLayerTable>(L"PIPES")->objectId());
    EXPECT_EQ(drawn.record<KdDbLayerTable>(L"PIPES")->color().colorIndex(), 3);
}

TEST(LinetypeRecord, IsRead)
{
    const ReadDrawing drawn = readEntry("LTYPE", {{2, "DASHED"},
                                                  {70, "0"},
                                                  {3, "__ __"},
                                                  {72, "65"},
                                                  {73, "2"},
                                                  {40, "0.75"},
                                                  {49, "0.5"},
                                                  {74, "0"},
                                                  {49, "-0.25"}});
    const auto* linetype = drawn.record<KdDbLinetypeTable>(L"dashed");
    EXPECT_EQ(linetype->comments(), L"__ __");
    EXPECT_EQ(linetype->patternLength(), 0.75);
    EXPECT_EQ(linetype->dashes(), (std::vector<double>{0.5, -0.25}));
}

TEST(TextStyleRecord, IsRead)
{
    const ReadDrawing drawn = readEntry(
        "STYLE", {{2, "NOTES"}, {70, "4"}, {40, "2.5"}, {41, "0.8"}, {50, "15"}, {3, "txt.shx"}});
    const auto* style = drawn.record<KdDbTextStyleTable>(L"NOTES");
    EXPECT_EQ(style->textSize(), 2.5);
    EXPECT_EQ(style->xScale(), 0.8);
    EXPECT_NEAR(style->obliquingAngle(), std::numbers::pi / 12, 1e-15);
    EXPECT_EQ(style->fileName(), L"txt.shx");
    EXPECT_TRUE(style->isVertical());
    EXPECT_FALSE(style->isShapeFile());
}

TEST(TextStyleRecord, OfAShapeFileHasNoName)
{
    const ReadDrawing drawn =
        readEntry("STYLE", {{5, "11"}, {2, ""}, {70, "1"}, {3, "ltypeshp.shx"}});
    EXPECT_EQ(drawn.report.totalFindings, 0u);
    ASSERT_TRUE(drawn.record<KdDbTextStyleTable>(L""));
    EXPECT_TRUE(drawn.record<KdDbTextStyleTable>(L"")->isShapeFile());
}

TEST(UcsRecord, IsRead)
{
    const ReadDrawing drawn = readEntry("UCS", {{2, "FRONT"},
                                                {70, "0"},
                                                {10, "1"},
                                                {20, "2"},
                                                {30, "3"},
                                                {11, "0"},
                                                {21, "1"},
                                                {31, "0"},
                                                {12, "0"},
                                                {22, "0"},
                                                {32, "1"}});
    const auto* ucs = drawn.record<KdDbUCSTable>(L"FRONT");
    EXPECT_EQ(ucs->origin(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(ucs->xAxis(), (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(ucs->yAxis(), (KdGeVector3d{0, 0, 1}));
}

TEST(DimensionStyleRecord, HasItsHandleInAGroupOfItsOwn)
{
    const ReadDrawing drawn = readEntry("DIMSTYLE", {{105, "27"}, {5, "ARROW"}, {2, "ISO-25"}});
    ASSERT_TRUE(drawn.record<KdDbDimStyleTable>(L"ISO-25"));
    EXPECT_EQ(drawn.record<KdDbDimStyleTable>(L"ISO-25")->handle(), 0x27u);
}

TEST(ViewportRecords, MayAllHaveOneName)
{
    const ReadDrawing drawn = readGroups(drawing({section("TABLES", {{0, "TABLE"},
                                                                     {2, "VPORT"},
                                                                     {0, "VPORT"},
                                                                     {2, "*ACTIVE"},
                                                                     {0, "VPORT"},
                                                                     {2, "*ACTIVE"},
                                                                     {0, "ENDTAB"}})}));
    EXPECT_EQ(drawn.database->table<KdDbViewportTable>().count(), 2u);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

TEST(BlockRecord, HasItsUnits)
{
    const ReadDrawing drawn =
        readEntry("BLOCK_RECORD",
                  {{5, "10"}, {2, "B"}, {340, "0"}, {70, "4"}, {280, "0"}, {281, "1"}}, "AC1021");
    EXPECT_EQ(drawn.record<KdDbBlockTable>(L"B")->blockInsertUnits(), 4);
}

TEST(BlockRecord, HasItsUnitsInExtendedDataOfOldDrawings)
{
    const ReadDrawing drawn = readEntry("BLOCK_RECORD",
                                        {{5, "10"},
                                         {2, "B"},
                                         {1001, "ACAD"},
                                         {1000, "DesignCenter Data"},
                                         {1002, "{"},
                                         {1070, "1"},
                                         {1070, "6"},
                                         {1002, "}"}},
                                        "AC1015");
    EXPECT_EQ(drawn.record<KdDbBlockTable>(L"B")->blockInsertUnits(), 6);
}

TEST(Tables, OfAnotherNameAreReadByTheirEntries)
{
    const ReadDrawing drawn = readGroups(drawing({section("TABLES", {{0, "TABLE"},
                                                                     {0, "LAYER"},
                                                                     {2, "A"},
                                                                     {0, "STYLE"},
                                                                     {2, "S"},
                                                                     {0, "STRANGE"},
                                                                     {2, "X"},
                                                                     {0, "ENDTAB"}})}));
    EXPECT_TRUE(drawn.record<KdDbLayerTable>(L"A"));
    EXPECT_TRUE(drawn.record<KdDbTextStyleTable>(L"S"));
}

TEST(Layouts, AreTiedToTheirBlocks)
{
    const Groups objects{{0, "DICTIONARY"},
                         {5, "C"},
                         {100, "AcDbDictionary"},
                         {3, "ACAD_LAYOUT"},
                         {350, "1A"},
                         {0, "DICTIONARY"},
                         {5, "1A"},
                         {330, "C"},
                         {100, "AcDbDictionary"},
                         {3, "Plan"},
                         {350, "1E"},
                         {0, "LAYOUT"},
                         {5, "1E"},
                         {330, "1A"},
                         {100, "AcDbPlotSettings"},
                         {1, "setup"},
                         {100, "AcDbLayout"},
                         {1, "Plan"},
                         {71, "3"},
                         {330, "1B"},
                         {331, "77"}};
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1015"), entry("BLOCK_RECORD", {{5, "1B"}, {2, "*Paper_Space"}}),
                 section("OBJECTS", objects)}));
    const auto* layout = dynamic_cast<const KdDbLayout*>(drawn.object(0x1E));
    ASSERT_TRUE(layout);
    EXPECT_EQ(layout->getLayoutName(), L"Plan");
    EXPECT_EQ(layout->getTabOrder(), 3);
    const auto* sheet = drawn.record<KdDbBlockTable>(kPaperSpaceName);
    EXPECT_EQ(layout->getBlockTableRecordId(), sheet->objectId());
    EXPECT_EQ(sheet->getLayoutId(), layout->objectId());
    EXPECT_EQ(drawn.database->namedObjectsDictionaryId().handle(), 0xCu);
}

TEST(Header, IsRead)
{
    const ReadDrawing drawn = readGroups(drawing({section("HEADER", {{9, "$ACADVER"},
                                                                     {1, "AC1015"},
                                                                     {9, "$LUNITS"},
                                                                     {70, "4"},
                                                                     {9, "$LTSCALE"},
                                                                     {40, "2.5"},
                                                                     {9, "$CLAYER"},
                                                                     {8, "PIPES"},
                                                                     {9, "$ANGBASE"},
                                                                     {50, "90"},
                                                                     {9, "$UCSORG"},
                                                                     {10, "1"},
                                                                     {20, "2"},
                                                                     {30, "3"},
                                                                     {9, "$TILEMODE"},
                                                                     {70, "0"},
                                                                     {9, "$STRANGE"},
                                                                     {70, "1"}})}));
    const KdDbHeaderVariables& variables = drawn.database->header();
    EXPECT_EQ(drawn.report.version, L"AC1015");
    EXPECT_EQ(variables.integer(L"LUNITS"), 4);
    EXPECT_EQ(variables.real(L"LTSCALE"), 2.5);
    EXPECT_EQ(variables.text(L"CLAYER"), L"PIPES");
    EXPECT_NEAR(variables.real(L"ANGBASE"), std::numbers::pi / 2, 1e-15);
    EXPECT_EQ(variables.point(L"UCSORG"), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(variables.integer(L"TILEMODE"), 0);
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

TEST(Header, KeepsDefaultsOfBadValues)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("HEADER", {{9, "$LUNITS"}, {70, "x"}, {9, "$LUPREC"}})}));
    EXPECT_EQ(drawn.database->header().integer(L"LUNITS"), 2);
    EXPECT_EQ(drawn.database->header().integer(L"LUPREC"), 4);
}

struct EncodingCase
{
    const char* name;
    const char* version;
    const char* codePage;
    const char* layer;
    const wchar_t* text;
};

class EncodingOfDrawing : public testing::TestWithParam<EncodingCase>
{
};

TEST_P(EncodingOfDrawing, FollowsFromItsHeader)
{
    const EncodingCase& row = GetParam();
    const Groups entities{{0, "LINE"}, {8, row.layer}};
    const ReadDrawing drawn =
        readGroups(drawing({header(row.version, row.codePage), section("ENTITIES", entities)}));
    EXPECT_EQ(drawn.entities()[0]->layer(), row.text);
}

INSTANTIATE_TEST_SUITE_P(
    Headers, EncodingOfDrawing,
    testing::Values(
        EncodingCase{"oldWithoutPage", "AC1009", "", "W\xE4nde", L"W\u00E4nde"},
        EncodingCase{"old", "AC1015", "ANSI_1251", "\xD1\xF2\xE5\xED\xE0",
                     L"\u0421\u0442\u0435\u043D\u0430"},
        EncodingCase{"oldPairs", "AC1015", "ANSI_936", "\xC4\xA3\xD0\xCD", L"\u6A21\u578B"},
        EncodingCase{"newIsUtf8", "AC1021", "ANSI_1252", "W\xC3\xA4nde", L"W\u00E4nde"},
        EncodingCase{"oldAndMisdeclared", "AC1018", "ANSI_1252", "W\xC3\xA4nde", L"W\u00E4nde"},
        EncodingCase{"pairsAndMisdeclared", "AC1018", "ANSI_936",
                     "\xE5\xA2\x99\xE4\xBD\x93\xE6\xA2\x81\xE6\x9F\xB1",
                     L"\u5899\u4F53\u6881\u67F1"},
        // Two characters of GBK that happen to look like UTF-8.
        EncodingCase{"pairsThatLookLikeUtf8", "AC1018", "ANSI_936", "\xC4\xA3\xCD\xA8",
                     L"\u6A21\u901A"},
        EncodingCase{"escaped", "AC1015", "ANSI_1252", "W\\U+00E4nde", L"W\u00E4nde"}),
    [](const auto& row) { return row.param.name; });

} // namespace
