// The variables of dimensions, in styles and in what entities set apart from them.
#include <gtest/gtest.h>

#include <numbers>

#include <entities/dimension.h>

#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

Groups joined(Groups first, const Groups& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

const Groups kOtherEntries{{0, "TABLE"},        {0, "BLOCK_RECORD"}, {5, "A1"},    {2, "_Dot"},
                           {0, "BLOCK_RECORD"}, {5, "A2"},           {2, "MINE"},  {0, "LTYPE"},
                           {5, "B1"},           {2, "DASHED"},       {0, "STYLE"}, {5, "C1"},
                           {2, "NOTES"},        {0, "ENDTAB"}};

ReadDrawing readStyle(const std::string& version, const Groups& groups)
{
    const Groups style = joined({{0, "TABLE"}, {0, "DIMSTYLE"}, {105, "D1"}, {2, "S"}, {70, "0"}},
                                joined(groups, {{0, "ENDTAB"}}));
    return readGroups(drawing({header(version), section("TABLES", joined(kOtherEntries, style))}));
}

TEST(DimensionStyleRecord, KeepsWhatItStates)
{
    const ReadDrawing drawn = readStyle(
        "AC1027", {{3, "<>mm"}, {40, "2"},   {41, "2.5"}, {50, "90"},  {69, "2"},   {70, "3"},
                   {71, "1"},   {73, "0"},   {78, "12"},  {90, "1"},   {147, "-1"}, {170, "1"},
                   {176, "5"},  {271, "2"},  {277, "4"},  {278, "44"}, {283, "2"},  {290, "1"},
                   {294, "1"},  {340, "C1"}, {341, "A2"}, {342, "A1"}, {345, "B1"}, {371, "25"}});
    const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
    EXPECT_EQ(style.dimpost(), L"<>mm");
    EXPECT_EQ(style.dimscale(), 2.0);
    EXPECT_EQ(style.dimasz(), 2.5);
    EXPECT_NEAR(style.dimjogang(), kPi / 2, 1e-12);
    EXPECT_EQ(style.dimtfill(), 2);
    EXPECT_EQ(style.dimtfillclr().colorIndex(), 3);
    EXPECT_TRUE(style.dimtol());
    EXPECT_FALSE(style.dimtih());
    EXPECT_EQ(style.dimzin(), 12);
    EXPECT_EQ(style.dimarcsym(), 1);
    EXPECT_EQ(style.dimgap(), -1.0);
    EXPECT_TRUE(style.dimalt());
    EXPECT_EQ(style.dimclrd().colorIndex(), 5);
    EXPECT_EQ(style.dimdec(), 2);
    EXPECT_EQ(style.dimlunit(), 4);
    EXPECT_EQ(style.dimdsep(), ',');
    EXPECT_EQ(style.dimtolj(), 2);
    EXPECT_TRUE(style.dimfxlon());
    EXPECT_EQ(style.dimtxtdirection(), 1);
    EXPECT_EQ(style.dimtxsty().handle(), 0xC1u);
    EXPECT_EQ(style.dimldrblk().handle(), 0xA2u);
    EXPECT_EQ(style.dimblk().handle(), 0xA1u);
    EXPECT_EQ(style.dimltype().handle(), 0xB1u);
    EXPECT_EQ(style.dimlwd(), 25);
    EXPECT_FALSE(style.isDependent());
    EXPECT_EQ(drawn.report.totalFindings, 0u);
}

TEST(DimensionStyleRecord, HasInitialValuesForTheRest)
{
    const ReadDrawing drawn = readStyle("AC1027", {});
    const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
    EXPECT_EQ(style.dimasz(), 0.18);
    EXPECT_EQ(style.dimatfit(), 3);
    EXPECT_TRUE(style.dimblk().isNull());
    EXPECT_EQ(style.dimtxsty(), drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
}

TEST(DimensionStyleRecord, NamesItsArrowsInOldDrawings)
{
    for (const char* version : {"AC1009", "AC1014"}) {
        const ReadDrawing drawn = readStyle(version, {{5, "MINE"}, {6, "DOT"}, {7, "UNKNOWN"}});
        const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
        EXPECT_EQ(style.dimblk().handle(), 0xA2u) << version;
        EXPECT_EQ(style.dimblk1().handle(), 0xA1u) << version;
        EXPECT_TRUE(style.dimblk2().isNull()) << version;
    }
}

TEST(DimensionStyleRecord, KeepsItsDefaultsWhereOldChoicesMeanNothing)
{
    for (const char* absurd : {"-1", "9", "99"}) {
        const ReadDrawing drawn = readStyle("AC1014", {{270, absurd}, {287, absurd}});
        const auto* style = drawn.record<KdDbDimStyleTable>(L"S");
        ASSERT_TRUE(style);
        EXPECT_EQ(style->dimlunit(), 2) << absurd;
        EXPECT_EQ(style->dimfrac(), 0) << absurd;
        EXPECT_EQ(style->dimatfit(), 3) << absurd;
        EXPECT_EQ(style->dimtmove(), 0) << absurd;
    }
}

struct OldUnit
{
    const char* stated;
    int unit;
    int fraction;
};

TEST(DimensionStyleRecord, HasOneVariableForUnitsInOldDrawings)
{
    const OldUnit rows[] = {{"1", 1, 0}, {"2", 2, 0}, {"3", 3, 0}, {"4", 4, 0},
                            {"5", 5, 0}, {"6", 4, 2}, {"7", 5, 2}, {"8", 6, 0}};
    for (const OldUnit& row : rows) {
        const ReadDrawing drawn = readStyle("AC1012", {{270, row.stated}});
        const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
        EXPECT_EQ(style.dimlunit(), row.unit) << row.stated;
        EXPECT_EQ(style.dimfrac(), row.fraction) << row.stated;
    }
    EXPECT_EQ(readStyle("AC1015", {{270, "4"}}).record<KdDbDimStyleTable>(L"S")->dimlunit(), 2);
}

struct OldFit
{
    const char* stated;
    int fit;
    int movement;
};

TEST(DimensionStyleRecord, HasOneVariableForTheFitInOldDrawings)
{
    const OldFit rows[] = {{"0", 0, 0}, {"1", 1, 0}, {"2", 2, 0},
                           {"3", 3, 0}, {"4", 3, 1}, {"5", 3, 2}};
    for (const OldFit& row : rows) {
        const ReadDrawing drawn = readStyle("AC1014", {{287, row.stated}});
        const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
        EXPECT_EQ(style.dimatfit(), row.fit) << row.stated;
        EXPECT_EQ(style.dimtmove(), row.movement) << row.stated;
    }
}

TEST(DimensionStyleRecord, KeepsSomeVariablesInExtendedData)
{
    const ReadDrawing drawn =
        readStyle("AC1015", {{1001, "ACAD_DSTYLE_DIM_LINETYPE"},
                             {1070, "380"},
                             {1005, "B1"},
                             {1001, "ACAD_DSTYLE_DIM_EXT2_LINETYPE"},
                             {1070, "382"},
                             {1005, "B1"},
                             {1001, "ACAD_DSTYLE_DIMEXT_LENGTH"},
                             {1070, "378"},
                             {1040, "1.25"},
                             {1001, "ACAD_DSTYLE_DIMJOGGED_JOGANGLE_SYMBOL"},
                             {1070, "384"},
                             {1040, "1.5"},
                             {1001, "ACAD_DSTYLE_DIMTEXT_FILL"},
                             {1070, "376"},
                             {1070, "2"},
                             {1070, "377"},
                             {1004, "1800000001000000427536C2000000000000000000000000"},
                             {1001, "ACAD_DSTYLE_DIMTALN"},
                             {1070, "392"},
                             {1070, "1"}});
    const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
    EXPECT_EQ(style.dimltype().handle(), 0xB1u);
    EXPECT_TRUE(style.dimltex1().isNull());
    EXPECT_EQ(style.dimltex2().handle(), 0xB1u);
    EXPECT_EQ(style.dimfxl(), 1.25);
    EXPECT_EQ(style.dimjogang(), 1.5);
    EXPECT_EQ(style.dimtfill(), 2);
    EXPECT_EQ(style.dimtfillclr().color(), 0xC2367542u);
    const resbuf* alignment = style.xData(L"ACAD_DSTYLE_DIMTALN");
    ASSERT_TRUE(alignment && alignment->rbnext && alignment->rbnext->rbnext);
    EXPECT_EQ(alignment->rbnext->rbnext->resval.rint, 1);
}

TEST(DimensionStyleRecord, LeavesOutExtendedDataThatIsCutShort)
{
    const ReadDrawing drawn = readStyle("AC1015", {{1001, "ACAD_DSTYLE_DIMTEXT_FILL"},
                                                   {1070, "377"},
                                                   {1004, "18000000010000004275"},
                                                   {1001, "ACAD_DSTYLE_DIM_LINETYPE"},
                                                   {1070, "380"}});
    const auto& style = *drawn.record<KdDbDimStyleTable>(L"S");
    EXPECT_EQ(style.dimtfillclr().colorIndex(), 0);
    EXPECT_TRUE(style.dimltype().isNull());
}

// What an entity sets apart.

ReadDrawing readDimension(const std::string& version, const Groups& groups)
{
    const Groups dimension = joined({{0, "DIMENSION"}, {8, "0"}, {70, "1"}, {3, "S"}}, groups);
    const Groups style{{0, "TABLE"}, {0, "DIMSTYLE"}, {105, "D1"},  {2, "S"},
                       {41, "4"},    {42, "5"},       {0, "ENDTAB"}};
    return readGroups(drawing({header(version), section("TABLES", joined(kOtherEntries, style)),
                               section("ENTITIES", dimension)}));
}

TEST(OverridesOfADimension, StandInAList)
{
    const ReadDrawing drawn = readDimension(
        "AC1027", {{1001, "ACAD"}, {1000, "Other"}, {1070, "41"},   {1000, "DSTYLE"}, {1002, "{"},
                   {1070, "41"},   {1040, "2.5"},   {1070, "70"},   {1070, "4"},      {1070, "50"},
                   {1040, "1.5"},  {1070, "3"},     {1000, "<>mm"}, {1070, "343"},    {1005, "A1"},
                   {1070, "9999"}, {1070, "7"},     {1070, "173"},  {1070, "1"},      {1002, "}"},
                   {1070, "42"},   {1040, "9"}});
    const auto& dimension = *drawn.entity<KdDbDimension>(0);
    EXPECT_EQ(dimension.dimensionStyle().handle(), 0xD1u);
    EXPECT_EQ(dimension.dimasz(), 2.5);
    EXPECT_EQ(dimension.dimexo(), 5.0); // that of the style: the list has ended
    EXPECT_EQ(dimension.dimtfillclr().colorIndex(), 4);
    EXPECT_EQ(dimension.dimjogang(), 1.5); // radians here
    EXPECT_EQ(dimension.dimpost(), L"<>mm");
    EXPECT_EQ(dimension.dimblk1().handle(), 0xA1u);
    EXPECT_TRUE(dimension.dimsah());
}

TEST(OverridesOfADimension, NameArrowsInTheOldestDrawings)
{
    const ReadDrawing drawn = readDimension("AC1009", {{1001, "ACAD"},
                                                       {1000, "DSTYLE"},
                                                       {1002, "{"},
                                                       {1070, "6"},
                                                       {1000, "MINE"},
                                                       {1070, "270"},
                                                       {1070, "7"},
                                                       {1070, "277"},
                                                       {1070, "3"},
                                                       {1002, "}"}});
    const auto& dimension = *drawn.entity<KdDbDimension>(0);
    EXPECT_EQ(dimension.dimblk1().handle(), 0xA2u);
    EXPECT_EQ(dimension.dimlunit(), 3); // the later of two ways to say it
}

TEST(OverridesOfADimension, OfTheWrongFormCountForNothing)
{
    const ReadDrawing drawn = readDimension("AC1027", {{1001, "ACAD"},
                                                       {1000, "DSTYLE"},
                                                       {1002, "{"},
                                                       {1070, "41"},
                                                       {1000, "large"},
                                                       {1070, "3"},
                                                       {1070, "5"},
                                                       {1070, "340"},
                                                       {1005, "0"},
                                                       {1070, "342"},
                                                       {1070, "1"},
                                                       {1070, "271"}});
    const auto& dimension = *drawn.entity<KdDbDimension>(0);
    EXPECT_EQ(dimension.dimasz(), 4.0);
    EXPECT_EQ(dimension.dimpost(), L"");
    EXPECT_EQ(dimension.dimtxsty(), drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
    EXPECT_EQ(dimension.dimdec(), 4);
}

TEST(StyleOfADimension, IsTheStandardOneIfNoneIsNamed)
{
    const ReadDrawing drawn = readGroups(drawing(
        {section("ENTITIES", {{0, "DIMENSION"}, {8, "0"}, {0, "DIMENSION"}, {3, "GONE"}})}));
    const auto standard = drawn.record<KdDbDimStyleTable>(L"Standard")->objectId();
    EXPECT_EQ(drawn.entity<KdDbDimension>(0)->dimensionStyle(), standard);
    const KdDbObjectId made = drawn.entity<KdDbDimension>(1)->dimensionStyle(); // when it is read
    const auto* gone = drawn.record<KdDbDimStyleTable>(L"GONE");
    ASSERT_TRUE(gone);
    EXPECT_EQ(made, gone->objectId());
    EXPECT_TRUE(drawn.database->openCount() == 0);
}

} // namespace
