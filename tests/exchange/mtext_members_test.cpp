#include <numbers>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

/// A drawing whose model holds one entity with subclass markers.
ReadDrawing readMarked(const std::string& name, const std::string& subclass, const Groups& groups,
                       const std::string& version = "AC1032")
{
    Groups entity{{0, name}, {5, "A1"}, {100, "AcDbEntity"}, {8, "0"}, {100, subclass}};
    entity.insert(entity.end(), groups.begin(), groups.end());
    return readGroups(drawing({header(version, "ANSI_1252"), section("ENTITIES", entity)}));
}

ReadDrawing readMText(const Groups& groups, const std::string& version = "AC1032")
{
    return readMarked("MTEXT", "AcDbMText", groups, version);
}

KdString contentsOf(const KdDbMText& text)
{
    KdString contents;
    text.contents(contents);
    return contents;
}

TEST(MText, IsRead)
{
    const ReadDrawing drawn =
        readMText({{10, "1"},  {20, "2"},    {30, "3"},    {40, "2.5"},      {41, "40"},
                   {46, "12"}, {71, "6"},    {72, "5"},    {1, "one\\Ptwo"}, {7, "standard"},
                   {210, "0"}, {220, "0"},   {230, "-1"},  {11, "0"},        {21, "1"},
                   {31, "0"},  {42, "33.5"}, {43, "7.25"}, {73, "2"},        {44, "1.5"}});
    const auto* text = drawn.entity<KdDbMText>(0);
    ASSERT_TRUE(text);
    EXPECT_EQ(text->location(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(text->textHeight(), 2.5);
    EXPECT_EQ(text->width(), 40.0);
    EXPECT_EQ(text->height(), 12.0);
    EXPECT_EQ(text->attachment(), KdDb::kMiddleRight);
    EXPECT_EQ(text->flowDirection(), KdDb::kFlowByStyle);
    EXPECT_EQ(contentsOf(*text), L"one\\Ptwo");
    EXPECT_EQ(text->textStyle(), drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
    EXPECT_EQ(text->normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_EQ(text->direction(), (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(text->actualWidth(), 33.5);
    EXPECT_EQ(text->actualHeight(), 7.25);
    EXPECT_EQ(text->lineSpacingStyle(), KdDb::kExactly);
    EXPECT_EQ(text->lineSpacingFactor(), 1.5);
    EXPECT_FALSE(text->backgroundFillOn());
}

TEST(MText, BeginsWithWhatOldDrawingsDoNotState)
{
    const ReadDrawing drawn = readMText({{1, "x"}}, "AC1014");
    const auto* text = drawn.entity<KdDbMText>(0);
    EXPECT_EQ(text->attachment(), KdDb::kTopLeft);
    EXPECT_EQ(text->flowDirection(), KdDb::kLeftToRight);
    EXPECT_EQ(text->lineSpacingStyle(), KdDb::kAtLeast);
    EXPECT_EQ(text->lineSpacingFactor(), 1.0);
    EXPECT_EQ(text->rotation(), 0.0);
    EXPECT_EQ(text->height(), 0.0);
    EXPECT_EQ(text->textStyle(), drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
}

TEST(MText, TurnsByItsAngleUnlessItHasADirection)
{
    const ReadDrawing turned = readMText({{50, "90"}, {1, "x"}});
    EXPECT_NEAR(turned.entity<KdDbMText>(0)->rotation(), kPi / 2, 1e-12);
    const ReadDrawing directed = readMText({{11, "-1"}, {21, "0"}, {31, "0"}, {50, "90"}});
    EXPECT_NEAR(directed.entity<KdDbMText>(0)->rotation(), kPi, 1e-12);
    const ReadDrawing tilted = readMText({{50, "90"}, {210, "0"}, {220, "0"}, {230, "-1"}});
    EXPECT_NEAR(tilted.entity<KdDbMText>(0)->rotation(), kPi / 2, 1e-12);
}

TEST(MText, IsPutTogetherFromItsPieces)
{
    const ReadDrawing drawn = readMText({{3, "one "}, {3, " two"}, {1, " three"}});
    EXPECT_EQ(contentsOf(*drawn.entity<KdDbMText>(0)), L"one  two three");
}

TEST(MText, MayBreakALetterBetweenTwoPieces)
{
    const ReadDrawing utf8 = readMText({{3, "a\xC3"}, {1, "\xA4z"}});
    EXPECT_EQ(contentsOf(*utf8.entity<KdDbMText>(0)), L"a\u00E4z");
    const ReadDrawing escape = readMText({{3, "a\\U+00"}, {1, "E4z"}}, "AC1015");
    EXPECT_EQ(contentsOf(*escape.entity<KdDbMText>(0)), L"a\u00E4z");
}

TEST(MText, KeepsPiecesWithoutALastOne)
{
    const ReadDrawing drawn = readMText({{3, "one "}, {3, "two"}});
    EXPECT_EQ(contentsOf(*drawn.entity<KdDbMText>(0)), L"one two");
}

struct GroundRow
{
    const char* name;
    const char* flags;
    bool filled;
    bool withBackground;
    bool framed;
};

class MTextGround : public testing::TestWithParam<GroundRow>
{
};
constexpr GroundRow kGrounds[] = {
    {"none", "0", false, false, false},     {"color", "1", true, false, false},
    {"background", "3", true, true, false}, {"backgroundAlone", "2", true, true, false},
    {"frame", "16", false, false, true},    {"colorAndFrame", "17", true, false, true},
};
INSTANTIATE_TEST_SUITE_P(All, MTextGround, testing::ValuesIn(kGrounds),
                         [](const auto& row) { return row.param.name; });

TEST_P(MTextGround, IsToldByItsFlags)
{
    const ReadDrawing drawn =
        readMText({{1, "x"}, {90, GetParam().flags}, {63, "5"}, {45, "1.25"}});
    const auto* text = drawn.entity<KdDbMText>(0);
    EXPECT_EQ(text->backgroundFillOn(), GetParam().filled);
    EXPECT_EQ(text->useBackgroundColorOn(), GetParam().withBackground);
    EXPECT_EQ(text->showBorders(), GetParam().framed);
    EXPECT_EQ(text->getBackgroundScaleFactor(), 1.25);
    KdCmColor color;
    text->getBackgroundFillColor(color);
    EXPECT_EQ(color.colorIndex(), 5);
}

TEST(MText, PrefersTheTrueColorOfItsGround)
{
    const ReadDrawing drawn = readMText({{90, "1"}, {421, "66051"}, {63, "5"}, {431, "B$C"}});
    KdCmColor color;
    drawn.entity<KdDbMText>(0)->getBackgroundFillColor(color);
    EXPECT_EQ(color.colorMethod(), KdCmColor::kByColor);
    EXPECT_EQ(color.blue(), 3);
    EXPECT_EQ(color.colorName(), L"C");
    // the entity's own colour is another one
    EXPECT_EQ(drawn.entity<KdDbMText>(0)->color().colorMethod(), KdCmColor::kByLayer);
}

TEST(MText, HasColumnsOfAnEmbeddedObject)
{
    const ReadDrawing drawn =
        readMText({{10, "1"},  {40, "2.5"},  {41, "76"},   {46, "12"},
                   {71, "1"},  {72, "5"},    {1, "x"},     {101, "Embedded Object"},
                   {70, "1"},  {10, "9"},    {11, "9"},    {40, "70"},
                   {41, "13"}, {42, "76.5"}, {43, "10.5"}, {71, "2"},
                   {72, "3"},  {44, "24.5"}, {45, "1.25"}, {73, "1"},
                   {74, "0"},  {46, "7.5"},  {46, "0"},    {1001, "ACAD"},
                   {1000, "x"}});
    const auto* text = drawn.entity<KdDbMText>(0);
    EXPECT_EQ(text->location(), (KdGePoint3d{1, 0, 0}));
    EXPECT_EQ(text->textHeight(), 2.5);
    EXPECT_EQ(text->width(), 76.0);
    EXPECT_EQ(text->height(), 12.0);
    EXPECT_EQ(text->attachment(), KdDb::kTopLeft);
    EXPECT_EQ(text->flowDirection(), KdDb::kFlowByStyle);
    EXPECT_EQ(text->rotation(), 0.0);
    EXPECT_EQ(text->columnType(), KdDb::kDynamicColumns);
    EXPECT_EQ(text->columnCount(), 3);
    EXPECT_EQ(text->columnWidth(), 24.5);
    EXPECT_EQ(text->columnGutterWidth(), 1.25);
    EXPECT_EQ(text->textData().columns.heights, (std::vector<double>{7.5, 0.0}));
    EXPECT_EQ(text->actualWidth(), 76.5);
    const resbuf* end = nullptr;
    EXPECT_TRUE(text->extendedData(L"ACAD", end));
}

TEST(MText, HasColumnsAndAHeightOfExtendedDataInOldDrawings)
{
    const ReadDrawing drawn = readMText({{1, "x"},
                                         {1001, "ACAD"},
                                         {1000, "ACAD_MTEXT_COLUMN_INFO_BEGIN"},
                                         {1070, "75"},
                                         {1070, "1"},
                                         {1070, "76"},
                                         {1070, "4"},
                                         {1070, "48"},
                                         {1040, "24.5"},
                                         {1070, "49"},
                                         {1040, "1.25"},
                                         {1070, "50"},
                                         {1070, "3"},
                                         {1040, "7.5"},
                                         {1040, "3.25"},
                                         {1040, "0"},
                                         {1000, "ACAD_MTEXT_COLUMN_INFO_END"},
                                         {1000, "ACAD_MTEXT_DEFINED_HEIGHT_BEGIN"},
                                         {1070, "46"},
                                         {1040, "12.5"},
                                         {1000, "ACAD_MTEXT_DEFINED_HEIGHT_END"},
                                         {1000, "OTHER"},
                                         {1070, "46"},
                                         {1040, "99"}},
                                        "AC1018");
    const auto* text = drawn.entity<KdDbMText>(0);
    EXPECT_EQ(text->columnType(), KdDb::kStaticColumns);
    EXPECT_EQ(text->columnCount(), 4);
    EXPECT_EQ(text->columnWidth(), 24.5);
    EXPECT_EQ(text->columnGutterWidth(), 1.25);
    EXPECT_EQ(text->textData().columns.heights, (std::vector<double>{7.5, 3.25, 0.0}));
    EXPECT_EQ(text->height(), 12.5);
}

const Groups kDefinition{
    {40, "2"}, {1, "first line"}, {72, "1"}, {11, "3"}, {21, "4"}, {100, "AcDbAttributeDefinition"},
    {2, "T"},  {3, "Prompt"},     {70, "0"}, {74, "2"}, {280, "1"}};

const Groups kLines{{10, "5"}, {20, "6"},       {40, "2.5"}, {41, "40"}, {71, "4"}, {72, "5"},
                    {3, "o"},  {1, "ne\\Ptwo"}, {44, "1.5"}, {11, "0"},  {21, "1"}};

Groups joined(Groups first, const Groups& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

void expectLines(const KdDbAttributeDefinition& definition)
{
    ASSERT_TRUE(definition.isMTextAttributeDefinition());
    const KdDbMText& lines = *definition.getMTextAttributeDefinitionConst();
    EXPECT_EQ(contentsOf(lines), L"one\\Ptwo");
    EXPECT_EQ(lines.location(), (KdGePoint3d{5, 6, 0}));
    EXPECT_EQ(lines.textHeight(), 2.5);
    EXPECT_EQ(lines.width(), 40.0);
    EXPECT_EQ(lines.attachment(), KdDb::kMiddleLeft);
    EXPECT_EQ(lines.lineSpacingFactor(), 1.5);
    EXPECT_NEAR(lines.rotation(), kPi / 2, 1e-12);
    EXPECT_EQ(lines.textStyle(), definition.textStyle());
    // What the definition says for its first line stays.
    EXPECT_EQ(definition.textString(), L"first line");
    EXPECT_EQ(definition.tag(), L"T");
    EXPECT_EQ(definition.prompt(), L"Prompt");
    EXPECT_EQ(definition.height(), 2.0);
    EXPECT_EQ(definition.horizontalMode(), KdDb::kTextCenter);
    EXPECT_EQ(definition.verticalMode(), KdDb::kTextVerticalMiddle);
    EXPECT_EQ(definition.alignmentPoint(), (KdGePoint3d{3, 4, 0}));
    EXPECT_FALSE(definition.isMirroredInY());
}

TEST(AttributeDefinition, HasSeveralLinesOfAnEmbeddedObject)
{
    const Groups count{{71, "4"}, {72, "0"}, {11, "9"}, {21, "9"}, {101, "Embedded Object"}};
    const ReadDrawing drawn =
        readMarked("ATTDEF", "AcDbText", joined(joined(kDefinition, count), kLines));
    expectLines(*drawn.entity<KdDbAttributeDefinition>(0));
}

TEST(AttributeDefinition, HasOneLineWhereItSaysSo)
{
    const ReadDrawing drawn = readMarked("ATTDEF", "AcDbText", joined(kDefinition, {{71, "1"}}));
    const auto* definition = drawn.entity<KdDbAttributeDefinition>(0);
    EXPECT_FALSE(definition->isMTextAttributeDefinition());
    EXPECT_FALSE(definition->getMTextAttributeDefinitionConst());
    EXPECT_EQ(definition->textString(), L"first line");
}

/// An attribute definition that is extended by a dictionary with one record.
ReadDrawing readExtended(const Groups& record, const Groups& otherEntity = {})
{
    const Groups entity = joined({{0, "ATTDEF"},
                                  {5, "A1"},
                                  {102, "{ACAD_XDICTIONARY"},
                                  {360, "B1"},
                                  {102, "}"},
                                  {100, "AcDbEntity"},
                                  {8, "0"},
                                  {100, "AcDbText"}},
                                 kDefinition);
    const Groups objects{{0, "DICTIONARY"},       {5, "C"},          {100, "AcDbDictionary"},
                         {0, "DICTIONARY"},       {5, "B1"},         {330, "A1"},
                         {100, "AcDbDictionary"}, {3, "ACAD_MLATT"}, {360, "B2"}};
    return readGroups(drawing({header("AC1021"), section("ENTITIES", joined(entity, otherEntity)),
                               section("OBJECTS", joined(objects, record))}));
}

TEST(AttributeDefinition, HasSeveralLinesOfARecordBehindItInOlderDrawings)
{
    const Groups record{{0, "XRECORD"},
                        {5, "B2"},
                        {330, "B1"},
                        {100, "AcDbXrecord"},
                        {280, "1"},
                        {70, "4"},
                        {70, "0"},
                        {70, "0"},
                        {40, "1.0"},
                        {2, "T"},
                        {1, "Embedded Object"}};
    const ReadDrawing drawn = readExtended(joined(record, kLines));
    expectLines(*drawn.entity<KdDbAttributeDefinition>(0));
    EXPECT_EQ(drawn.database->openCount(), 0);
}

TEST(AttributeDefinition, HasOneLineWhereTheRecordIsMissingOrHoldsNone)
{
    const ReadDrawing without = readExtended({});
    EXPECT_FALSE(without.entity<KdDbAttributeDefinition>(0)->isMTextAttributeDefinition());
    const ReadDrawing empty =
        readExtended({{0, "XRECORD"}, {5, "B2"}, {100, "AcDbXrecord"}, {70, "4"}});
    EXPECT_FALSE(empty.entity<KdDbAttributeDefinition>(0)->isMTextAttributeDefinition());
}

TEST(AttributeDefinition, HasOneLineWhereAnEntityStandsForTheRecord)
{
    const Groups line{{0, "LINE"}, {5, "B2"}, {100, "AcDbEntity"}, {8, "0"},
                      {62, "3"},   {48, "2"}, {100, "AcDbLine"},   {1, "no text"}};
    const ReadDrawing drawn = readExtended({}, line);
    EXPECT_FALSE(drawn.entity<KdDbAttributeDefinition>(0)->isMTextAttributeDefinition());
}

TEST(Attribute, HasSeveralLinesToo)
{
    const ReadDrawing drawn =
        readGroups(drawing({header("AC1032"), section("ENTITIES", {{0, "INSERT"},
                                                                   {5, "A1"},
                                                                   {100, "AcDbEntity"},
                                                                   {8, "0"},
                                                                   {100, "AcDbBlockReference"},
                                                                   {66, "1"},
                                                                   {0, "ATTRIB"},
                                                                   {5, "A2"},
                                                                   {100, "AcDbEntity"},
                                                                   {8, "0"},
                                                                   {100, "AcDbText"},
                                                                   {1, "one"},
                                                                   {100, "AcDbAttribute"},
                                                                   {2, "T"},
                                                                   {71, "2"},
                                                                   {101, "Embedded Object"},
                                                                   {1, "one\\Ptwo"},
                                                                   {0, "SEQEND"},
                                                                   {5, "A3"}})}));
    const auto* attribute = dynamic_cast<const KdDbAttribute*>(drawn.object(0xA2));
    ASSERT_TRUE(attribute);
    ASSERT_TRUE(attribute->isMTextAttribute());
    EXPECT_EQ(contentsOf(*attribute->getMTextAttributeConst()), L"one\\Ptwo");
    EXPECT_EQ(attribute->textString(), L"one");
}

TEST(Shape, IsRead)
{
    const ReadDrawing drawn = readMarked("SHAPE", "AcDbShape",
                                         {{10, "1"},
                                          {20, "2"},
                                          {30, "3"},
                                          {40, "4"},
                                          {2, "BOLT"},
                                          {50, "90"},
                                          {41, "0.5"},
                                          {51, "45"},
                                          {39, "0.25"},
                                          {210, "0"},
                                          {220, "0"},
                                          {230, "-1"}});
    const auto* shape = drawn.entity<KdDbShape>(0);
    EXPECT_EQ(shape->name(), L"BOLT");
    EXPECT_EQ(shape->position(), (KdGePoint3d{-1, 2, -3}));
    EXPECT_EQ(shape->size(), 4.0);
    EXPECT_NEAR(shape->rotation(), kPi / 2, 1e-12);
    EXPECT_EQ(shape->widthFactor(), 0.5);
    EXPECT_NEAR(shape->oblique(), kPi / 4, 1e-12);
    EXPECT_EQ(shape->thickness(), 0.25);
    EXPECT_EQ(shape->normal(), (KdGeVector3d{0, 0, -1}));
}

} // namespace
