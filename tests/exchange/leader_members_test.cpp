#include <gtest/gtest.h>

#include <database/mleader_style.h>
#include <entities/all.h>

#include "made_drawing.h"

namespace {

Groups joined(Groups first, const Groups& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

ReadDrawing readMarked(const std::string& name, const std::string& subclass, const Groups& groups,
                       const Groups& objects = {})
{
    const Groups entity =
        joined({{0, name}, {5, "A1"}, {330, "1F"}, {100, "AcDbEntity"}, {8, "0"}, {100, subclass}},
               groups);
    const Groups tables{{0, "TABLE"},    {2, "STYLE"},    {0, "STYLE"},   {5, "11"},
                        {2, "ROMAN"},    {70, "0"},       {0, "ENDTAB"},  {0, "TABLE"},
                        {2, "DIMSTYLE"}, {0, "DIMSTYLE"}, {105, "27"},    {2, "ISO-25"},
                        {70, "0"},       {41, "2.5"},     {147, "0.625"}, {0, "ENDTAB"}};
    return readGroups(drawing({header("AC1027"), section("TABLES", tables),
                               section("ENTITIES", entity), section("OBJECTS", objects)}));
}

const Groups kLeader{{3, "ISO-25"}, {71, "0"},  {72, "1"},  {73, "1"},  {75, "1"}, {76, "99999"},
                     {10, "1"},     {20, "2"},  {30, "3"},  {10, "4"},  {20, "5"}, {30, "3"},
                     {340, "A1"},   {210, "0"}, {220, "0"}, {230, "-1"}};

TEST(Leader, IsRead)
{
    const ReadDrawing drawn = readMarked("LEADER", "AcDbLeader", kLeader);
    const auto* leader = drawn.entity<KdDbLeader>(0);
    ASSERT_TRUE(leader);
    ASSERT_EQ(leader->numVertices(), 2);
    EXPECT_EQ(leader->vertexAt(0), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(leader->vertexAt(1), (KdGePoint3d{4, 5, 3}));
    EXPECT_FALSE(leader->hasArrowHead());
    EXPECT_TRUE(leader->isSplined());
    EXPECT_TRUE(leader->hasHookLine());
    EXPECT_EQ(leader->annoType(), LeaderMembers::Annotation::Tolerance);
    EXPECT_EQ(leader->annotationObjId(), leader->objectId());
    EXPECT_EQ(leader->normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_EQ(leader->dimensionStyle(), drawn.record<KdDbDimStyleTable>(L"ISO-25")->objectId());
    EXPECT_EQ(leader->dimasz(), 2.5);
}

TEST(Leader, IsStraightWithAnArrowUnlessItSaysOtherwise)
{
    const ReadDrawing drawn = readMarked("LEADER", "AcDbLeader", {{10, "1"}});
    const auto* leader = drawn.entity<KdDbLeader>(0);
    EXPECT_TRUE(leader->hasArrowHead());
    EXPECT_FALSE(leader->isSplined());
    EXPECT_EQ(leader->dimensionStyle(), drawn.record<KdDbDimStyleTable>(L"Standard")->objectId());
}

TEST(Leader, OverridesItsStyle)
{
    const ReadDrawing drawn = readMarked("LEADER", "AcDbLeader",
                                         joined(kLeader, {{1001, "ACAD"},
                                                          {1000, "DSTYLE"},
                                                          {1002, "{"},
                                                          {1070, "77"},
                                                          {1070, "2"},
                                                          {1070, "41"},
                                                          {1040, "6.5"},
                                                          {1002, "}"}}));
    const auto* leader = drawn.entity<KdDbLeader>(0);
    EXPECT_EQ(leader->dimasz(), 6.5);
    EXPECT_EQ(leader->dimtad(), 2);
    EXPECT_EQ(leader->dimgap(), 0.625);
}

TEST(ToleranceFrame, IsRead)
{
    const ReadDrawing drawn = readMarked("TOLERANCE", "AcDbFcf",
                                         {{3, "ISO-25"},
                                          {10, "1"},
                                          {20, "2"},
                                          {30, "3"},
                                          {1, "{\\Fgdt;j}%%v1^J2"},
                                          {11, "0"},
                                          {21, "3"},
                                          {31, "0"},
                                          {210, "0"},
                                          {220, "0"},
                                          {230, "2"}});
    const auto* frame = drawn.entity<KdDbFcf>(0);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->text(), L"{\\Fgdt;j}%%v1\n2");
    EXPECT_EQ(frame->location(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(frame->direction(), (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(frame->normal(), (KdGeVector3d{0, 0, 1}));
    EXPECT_EQ(frame->dimgap(), 0.625);
    EXPECT_EQ(frame->dimensionStyle(), drawn.record<KdDbDimStyleTable>(L"ISO-25")->objectId());
}

const Groups kTextContent{{300, "CONTEXT_DATA{"},
                          {40, "2"},
                          {10, "1"},
                          {20, "1"},
                          {30, "0"},
                          {41, "8"},
                          {140, "6"},
                          {145, "3"},
                          {174, "7"},
                          {290, "1"},
                          {304, "see\\Pthere"},
                          {11, "0"},
                          {21, "0"},
                          {31, "1"},
                          {340, "11"},
                          {12, "50"},
                          {22, "60"},
                          {32, "0"},
                          {13, "0"},
                          {23, "1"},
                          {33, "0"},
                          {42, "9"},
                          {43, "40"},
                          {44, "12"},
                          {45, "1.5"},
                          {170, "2"},
                          {90, "-1073741824"},
                          {171, "3"},
                          {172, "5"},
                          {91, "-1023410171"}, // index 5
                          {141, "1.25"},
                          {92, "0"},
                          {291, "1"},
                          {292, "0"},
                          {173, "1"},
                          {293, "0"},
                          {142, "10"},
                          {143, "2"},
                          {294, "0"},
                          {144, "5"},
                          {144, "5"},
                          {295, "0"},
                          {296, "0"},
                          {110, "9"},
                          {297, "0"},
                          {302, "LEADER{"},
                          {290, "1"},
                          {10, "48"},
                          {20, "61"},
                          {30, "0"},
                          {11, "1"},
                          {21, "0"},
                          {31, "0"},
                          {90, "0"},
                          {40, "4"},
                          {304, "LEADER_LINE{"},
                          {10, "30"},
                          {20, "35"},
                          {30, "0"},
                          {10, "25"},
                          {20, "10"},
                          {30, "0"},
                          {91, "7"},
                          {340, "0"},
                          {40, "99"},
                          {305, "}"},
                          {304, "LEADER_LINE{"},
                          {10, "31"},
                          {20, "36"},
                          {30, "0"},
                          {305, "}"},
                          {271, "0"},
                          {303, "}"},
                          {302, "LEADER{"},
                          {90, "1"},
                          {303, "}"},
                          {272, "9"},
                          {301, "}"}};

const Groups kEntityPart{
    {340, "D1"}, {90, "279808"}, {170, "2"},  {91, "-1056964608"}, {341, "0"},          {171, "35"},
    {290, "1"},  {291, "0"},     {41, "8"},   {42, "3.5"},         {172, "2"},          {343, "11"},
    {173, "6"},  {95, "7"},      {174, "1"},  {175, "2"},          {92, "-1056964608"}, {292, "1"},
    {293, "1"},  {176, "0"},     {272, "10"}, {273, "9"}};

TEST(MLeader, IsReadWithItsText)
{
    const ReadDrawing drawn =
        readMarked("MULTILEADER", "AcDbMLeader",
                   joined(joined({{270, "2"}}, kTextContent), joined(kEntityPart, {{45, "2"}})));
    const auto* leader = drawn.entity<KdDbMLeader>(0);
    ASSERT_TRUE(leader);
    EXPECT_EQ(leader->scale(), 2.0);
    EXPECT_EQ(leader->leaderLineType(), KdDb::kSplineLeader);
    EXPECT_EQ(leader->leaderLineColor().colorMethod(), KdCmColor::kByBlock);
    EXPECT_EQ(leader->leaderLineWeight(), 35);
    EXPECT_TRUE(leader->enableLanding());
    EXPECT_FALSE(leader->enableDogleg());
    EXPECT_EQ(leader->doglegLength(), 8.0);
    EXPECT_EQ(leader->arrowSize(), 3.5);
    EXPECT_TRUE(leader->arrowSymbolId().isNull());
    EXPECT_EQ(leader->contentType(), KdDb::kMTextContent);
    EXPECT_EQ(leader->textStyleId(), drawn.record<KdDbTextStyleTable>(L"ROMAN")->objectId());
    EXPECT_EQ(leader->textAttachmentType(KdDb::kLeftLeader), 6);
    EXPECT_EQ(leader->textAttachmentType(KdDb::kRightLeader), 7);
    EXPECT_EQ(leader->textAttachmentType(KdDb::kBottomLeader), 10);
    EXPECT_EQ(leader->textAlignmentType(), 2);
    EXPECT_TRUE(leader->enableFrameText());
    EXPECT_TRUE(leader->isAnnotative());
    // lengths before scaling
    EXPECT_EQ(leader->landingGap(), 1.5);
    EXPECT_EQ(leader->textHeight(), 4.0);
    EXPECT_TRUE(leader->blockContentId().isNull());
}

TEST(MLeader, HasTheTextAsItIsDrawn)
{
    const ReadDrawing drawn =
        readMarked("MULTILEADER", "AcDbMLeader", joined(kTextContent, kEntityPart));
    const auto text = drawn.entity<KdDbMLeader>(0)->mtext();
    ASSERT_TRUE(text);
    KdString contents;
    text->contents(contents);
    EXPECT_EQ(contents, L"see\\Pthere");
    EXPECT_EQ(text->location(), (KdGePoint3d{50, 60, 0}));
    EXPECT_EQ(text->direction(), (KdGeVector3d{0, 1, 0}));
    EXPECT_EQ(text->textHeight(), 8.0);
    EXPECT_EQ(text->width(), 40.0);
    EXPECT_EQ(text->height(), 12.0);
    EXPECT_EQ(text->lineSpacingFactor(), 1.5);
    EXPECT_EQ(text->lineSpacingStyle(), KdDb::kExactly);
    EXPECT_EQ(text->attachment(), KdDb::kTopRight);
    EXPECT_EQ(text->flowDirection(), KdDb::kFlowByStyle);
    EXPECT_TRUE(text->backgroundFillOn());
    EXPECT_FALSE(text->useBackgroundColorOn());
    EXPECT_EQ(text->getBackgroundScaleFactor(), 1.25);
    KdCmColor color;
    text->getBackgroundFillColor(color);
    EXPECT_EQ(color.colorIndex(), 5);
    EXPECT_EQ(text->columnType(), KdDb::kStaticColumns);
    EXPECT_EQ(text->columnCount(), 2);
    EXPECT_EQ(text->columnWidth(), 10.0);
    EXPECT_EQ(text->textStyle(), drawn.record<KdDbTextStyleTable>(L"ROMAN")->objectId());
}

TEST(MLeader, HasItsLinesInTheirBraces)
{
    const ReadDrawing drawn =
        readMarked("MULTILEADER", "AcDbMLeader", joined(kTextContent, kEntityPart));
    const auto& branches = drawn.entity<KdDbMLeader>(0)->branches();
    ASSERT_EQ(branches.size(), 2u);
    EXPECT_EQ(branches[0].lastPoint, (KdGePoint3d{48, 61, 0}));
    EXPECT_EQ(branches[0].direction, (KdGeVector3d{1, 0, 0}));
    EXPECT_EQ(branches[0].landingLength, 4.0);
    ASSERT_EQ(branches[0].lines.size(), 2u);
    EXPECT_EQ(branches[0].lines[0].index, 7);
    ASSERT_EQ(branches[0].lines[0].vertices.size(), 2u);
    EXPECT_EQ(branches[0].lines[0].vertices[1], (KdGePoint3d{25, 10, 0}));
    EXPECT_EQ(branches[0].lines[1].vertices.size(), 1u);
    EXPECT_EQ(branches[1].index, 1);
    EXPECT_TRUE(branches[1].lines.empty());
}

TEST(MLeader, TakesTheScaleOfItsContentWhereItStatesNone)
{
    const ReadDrawing drawn =
        readMarked("MULTILEADER", "AcDbMLeader", joined(kTextContent, kEntityPart));
    EXPECT_EQ(drawn.entity<KdDbMLeader>(0)->scale(), 2.0);
}

TEST(MLeader, MayShowABlockWithAttributes)
{
    const ReadDrawing drawn = readMarked("MULTILEADER", "AcDbMLeader",
                                         {{300, "CONTEXT_DATA{"},
                                          {290, "0"},
                                          {296, "1"},
                                          {341, "A1"},
                                          {14, "0"},
                                          {24, "0"},
                                          {34, "1"},
                                          {15, "7"},
                                          {25, "8"},
                                          {35, "9"},
                                          {16, "2"},
                                          {26, "3"},
                                          {36, "4"},
                                          {46, "0.5"},
                                          {93, "-1023410171"},
                                          {301, "}"},
                                          {172, "1"},
                                          {330, "A1"},
                                          {177, "1"},
                                          {44, "1.5"},
                                          {302, "TAG 7"},
                                          {330, "A1"},
                                          {302, "TAG 8"},
                                          {294, "0"}});
    const auto* leader = drawn.entity<KdDbMLeader>(0);
    EXPECT_EQ(leader->contentType(), KdDb::kBlockContent);
    EXPECT_FALSE(leader->mtext());
    EXPECT_EQ(leader->blockContentId(), leader->objectId());
    ASSERT_TRUE(leader->blockContent());
    const MLeaderMembers::Block& block = *leader->blockContent();
    EXPECT_EQ(block.position, (KdGePoint3d{7, 8, 9}));
    EXPECT_EQ(block.scale, (KdGeScale3d{2, 3, 4}));
    EXPECT_EQ(block.rotation, 0.5);
    ASSERT_EQ(block.attributes.size(), 2u);
    EXPECT_EQ(block.attributes[0].text, L"TAG 7");
    EXPECT_EQ(block.attributes[0].index, 1);
    EXPECT_EQ(block.attributes[0].width, 1.5);
    EXPECT_EQ(block.attributes[1].text, L"TAG 8");
    EXPECT_EQ(block.attributes[1].definition, leader->objectId());
}

TEST(MLeader, SurvivesBracesOutOfOrder)
{
    const ReadDrawing drawn = readMarked("MULTILEADER", "AcDbMLeader",
                                         {{305, "}"},
                                          {303, "}"},
                                          {304, "LEADER_LINE{"},
                                          {10, "1"},
                                          {300, "CONTEXT_DATA{"},
                                          {305, "}"},
                                          {10, "2"},
                                          {303, "}"},
                                          {302, "LEADER{"},
                                          {301, "}"},
                                          {304, "LEADER_LINE{"},
                                          {10, "3"}});
    const auto* leader = drawn.entity<KdDbMLeader>(0);
    ASSERT_EQ(leader->branches().size(), 1u);
    ASSERT_EQ(leader->branches()[0].lines.size(), 1u);
    EXPECT_EQ(leader->branches()[0].lines[0].vertices.size(), 1u);
}

TEST(MLeaderStyle, IsReadAndNamedByItsDictionary)
{
    const Groups objects{{0, "DICTIONARY"},
                         {5, "C"},
                         {100, "AcDbDictionary"},
                         {3, "ACAD_MLEADERSTYLE"},
                         {350, "D0"},
                         {0, "DICTIONARY"},
                         {5, "D0"},
                         {330, "C"},
                         {100, "AcDbDictionary"},
                         {3, "Site"},
                         {350, "D1"},
                         {0, "MLEADERSTYLE"},
                         {5, "D1"},
                         {330, "D0"},
                         {100, "AcDbMLeaderStyle"},
                         {170, "1"},
                         {173, "2"},
                         {91, "-1023410171"},
                         {92, "35"},
                         {290, "0"},
                         {42, "2"},
                         {291, "0"},
                         {43, "8"},
                         {3, "for sites"},
                         {44, "4"},
                         {300, "default"},
                         {342, "11"},
                         {174, "3"},
                         {178, "4"},
                         {175, "2"},
                         {176, "1"},
                         {45, "5"},
                         {292, "1"},
                         {142, "2.5"},
                         {296, "1"}};
    const ReadDrawing drawn =
        readMarked("MULTILEADER", "AcDbMLeader", joined(kTextContent, kEntityPart), objects);
    const KdDbObjectId id = drawn.entity<KdDbMLeader>(0)->mleaderStyle();
    const KdDbObjectId styles =
        kddbDictionaryEntry(drawn.database->namedObjectsDictionaryId(), L"ACAD_MLEADERSTYLE");
    EXPECT_EQ(kddbDictionaryEntry(styles, L"Site"), id);
    const OpenForRead<KdDbMLeaderStyle> style(id);
    ASSERT_TRUE(style);
    EXPECT_EQ(style->getName(), L"Site");
    EXPECT_EQ(style->description(), L"for sites");
    EXPECT_EQ(style->defaultText(), L"default");
    EXPECT_EQ(style->contentType(), 1);
    EXPECT_EQ(style->leaderLineType(), 2);
    EXPECT_EQ(style->leaderLineColor().colorIndex(), 5);
    EXPECT_EQ(style->leaderLineWeight(), 35);
    EXPECT_EQ(style->landingGap(), 2.0);
    EXPECT_EQ(style->doglegLength(), 8.0);
    EXPECT_EQ(style->arrowSize(), 4.0);
    EXPECT_EQ(style->textHeight(), 5.0);
    EXPECT_EQ(style->scale(), 2.5);
    EXPECT_EQ(style->leftAttachment(), 3);
    EXPECT_EQ(style->rightAttachment(), 4);
    EXPECT_EQ(style->textAngleType(), 2);
    EXPECT_EQ(style->textAlignmentType(), 1);
    EXPECT_FALSE(style->enableLanding());
    EXPECT_FALSE(style->enableDogleg());
    EXPECT_TRUE(style->enableFrameText());
    EXPECT_TRUE(style->isAnnotative());
    EXPECT_EQ(style->textStyleId(), drawn.record<KdDbTextStyleTable>(L"ROMAN")->objectId());
    EXPECT_TRUE(style->arrowSymbolId().isNull());
}

} // namespace
