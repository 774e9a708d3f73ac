#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace {

Groups joined(std::initializer_list<Groups> parts)
{
    Groups all;
    for (const Groups& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Groups blockRecord(const std::string& name, const std::string& handle)
{
    return {{0, "BLOCK_RECORD"},
            {5, handle},
            {100, "AcDbSymbolTableRecord"},
            {100, "AcDbBlockTableRecord"},
            {2, name}};
}

Groups table(const std::string& name, const Groups& entries)
{
    return section("TABLES", joined({{{0, "TABLE"}, {2, name}}, entries, {{0, "ENDTAB"}}}));
}

Groups point(const std::string& handle, const Groups& more = {})
{
    return joined({{{0, "POINT"}, {5, handle}}, more, {{8, "0"}}});
}

const Groups kSpaces = table(
    "BLOCK_RECORD", joined({blockRecord("*Model_Space", "1F"), blockRecord("*Paper_Space", "1B"),
                            blockRecord("*Paper_Space0", "23")}));

TEST(SpaceOfEntity, FollowsTheOwner)
{
    const ReadDrawing drawn = readGroups(
        drawing({kSpaces,
                 section("ENTITIES", joined({point("30", {{330, "1F"}}), point("31", {{330, "1B"}}),
                                             point("32", {{330, "23"}})}))}));
    ASSERT_EQ(drawn.entities().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->handle(), 0x30u);
    ASSERT_EQ(drawn.entities(L"*Paper_Space").size(), 1u);
    EXPECT_EQ(drawn.entities(L"*Paper_Space0").size(), 1u);
}

TEST(SpaceOfEntity, FollowsTheFlagWithoutAnOwner)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("ENTITIES", joined({point("30"), point("31", {{67, "1"}})}))}));
    ASSERT_EQ(drawn.entities(kPaperSpaceName).size(), 1u);
    EXPECT_EQ(drawn.entities(kPaperSpaceName)[0]->handle(), 0x31u);
    EXPECT_EQ(drawn.entities().size(), 1u);
}

TEST(SpaceOfEntity, FollowsTheFlagIfTheOwnerIsNoSpace)
{
    const ReadDrawing drawn = readGroups(
        drawing({table("BLOCK_RECORD", blockRecord("DOOR", "40")),
                 section("ENTITIES", joined({point("30", {{330, "40"}}), point("31", {{330, "99"}}),
                                             point("32", {{330, "40"}, {67, "1"}})}))}));
    EXPECT_EQ(drawn.entities().size(), 2u);
    EXPECT_EQ(drawn.entities(kPaperSpaceName).size(), 1u);
}

TEST(SpaceOfEntity, IgnoresHandlesOfApplicationGroups)
{
    const ReadDrawing drawn = readGroups(drawing(
        {kSpaces,
         section("ENTITIES",
                 point("30", {{102, "{ACAD_REACTORS"}, {330, "1B"}, {102, "}"}, {330, "1F"}}))}));
    EXPECT_EQ(drawn.entities().size(), 1u);
}

TEST(OldBlockNames, MeanTheModelAndTheSheet)
{
    const ReadDrawing drawn = readGroups(drawing({section("BLOCKS", {{0, "BLOCK"},
                                                                     {2, "$MODEL_SPACE"},
                                                                     {0, "ENDBLK"},
                                                                     {0, "BLOCK"},
                                                                     {2, "$PAPER_SPACE"},
                                                                     {0, "ENDBLK"}}),
                                                  section("ENTITIES", point("30"))}));
    EXPECT_EQ(drawn.entities().size(), 1u);
    EXPECT_FALSE(drawn.record<KdDbBlockTable>(L"$MODEL_SPACE"));
}

TEST(OldBlockNames, AreNamesLikeOthersInNewDrawings)
{
    const ReadDrawing drawn = readGroups(drawing(
        {header("AC1027"), table("BLOCK_RECORD", joined({blockRecord("*Model_Space", "1F"),
                                                         blockRecord("$MODEL_SPACE", "2F")}))}));
    EXPECT_EQ(drawn.report.totalFindings, 0u);
    EXPECT_EQ(drawn.record<KdDbBlockTable>(L"$MODEL_SPACE")->handle(), 0x2Fu);
}

TEST(Block, HoldsItsEntitiesAndItsHead)
{
    const Groups blocks{{0, "BLOCK"},     {8, "0"},      {2, "DOOR"},   {70, "5"},
                        {10, "1"},        {20, "2"},     {30, "3"},     {3, "DOOR"},
                        {1, "doors.dxf"}, {4, "A door"}, {0, "LINE"},   {8, "0"},
                        {0, "CIRCLE"},    {8, "0"},      {0, "ENDBLK"}, {8, "0"}};
    const ReadDrawing drawn = readGroups(drawing({section("BLOCKS", blocks)}));
    const auto* block = drawn.record<KdDbBlockTable>(L"door");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->entityIds().size(), 2u);
    EXPECT_EQ(block->origin(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(block->comments(), L"A door");
    EXPECT_TRUE(block->isAnonymous());
    EXPECT_TRUE(block->isFromExternalReference());
}

TEST(Block, KeepsTheHandleOfItsRecord)
{
    const ReadDrawing drawn = readGroups(drawing(
        {table("BLOCK_RECORD", blockRecord("DOOR", "40")), section("BLOCKS", {{0, "BLOCK"},
                                                                              {5, "41"},
                                                                              {330, "40"},
                                                                              {2, "Door"},
                                                                              {0, "LINE"},
                                                                              {5, "42"},
                                                                              {8, "0"},
                                                                              {0, "ENDBLK"}})}));
    const auto* block = drawn.record<KdDbBlockTable>(L"DOOR");
    ASSERT_TRUE(block);
    EXPECT_EQ(block->handle(), 0x40u);
    EXPECT_EQ(block->entityIds().size(), 1u);
    EXPECT_EQ(drawn.object(0x42)->ownerId(), block->objectId());
}

TEST(Block, IsKeptTwiceIfItsNameIsDoubled)
{
    const ReadDrawing drawn = readGroups(drawing({section("BLOCKS", {{0, "BLOCK"},
                                                                     {2, "D"},
                                                                     {0, "LINE"},
                                                                     {8, "0"},
                                                                     {0, "ENDBLK"},
                                                                     {0, "BLOCK"},
                                                                     {2, "d"},
                                                                     {0, "POINT"},
                                                                     {5, "77"},
                                                                     {8, "0"},
                                                                     {0, "ENDBLK"}})}));
    EXPECT_EQ(drawn.entities(L"D").size(), 1u);
    ASSERT_TRUE(drawn.object(0x77));
    EXPECT_NE(drawn.object(0x77)->ownerId(), drawn.record<KdDbBlockTable>(L"D")->objectId());
    EXPECT_TRUE(drawn.hasFinding(DrawingFinding::DoubledName));
}

TEST(Parts, FollowTheirPolyline)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "POLYLINE"},
                                                                       {5, "10"},
                                                                       {8, "0"},
                                                                       {70, "8"},
                                                                       {0, "VERTEX"},
                                                                       {5, "11"},
                                                                       {8, "0"},
                                                                       {0, "VERTEX"},
                                                                       {5, "12"},
                                                                       {8, "0"},
                                                                       {0, "SEQEND"},
                                                                       {5, "13"},
                                                                       {0, "LINE"},
                                                                       {5, "14"},
                                                                       {8, "0"}})}));
    EXPECT_EQ(drawn.entities().size(), 2u);
    EXPECT_EQ(drawn.report.entities, 2u);
    const auto* polyline = drawn.entity<KdDb3dPolyline>(0);
    ASSERT_TRUE(polyline);
    EXPECT_EQ(polyline->parts().ids().size(), 2u);
    EXPECT_EQ(polyline->parts().sequenceEnd(), drawn.object(0x13)->objectId());
    EXPECT_EQ(drawn.object(0x11)->ownerId(), polyline->objectId());
    EXPECT_STREQ(drawn.object(0x11)->isA()->name(), L"AcDb3dPolylineVertex");
}

TEST(Parts, FollowTheirBlockReference)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "INSERT"},
                                                                       {5, "10"},
                                                                       {8, "0"},
                                                                       {66, "1"},
                                                                       {2, "B"},
                                                                       {0, "ATTRIB"},
                                                                       {5, "11"},
                                                                       {8, "0"},
                                                                       {0, "SEQEND"},
                                                                       {5, "12"},
                                                                       {0, "ATTDEF"},
                                                                       {5, "13"},
                                                                       {8, "0"}})}));
    EXPECT_EQ(drawn.entities().size(), 2u);
    const auto* reference = drawn.entity<KdDbBlockReference>(0);
    ASSERT_TRUE(reference);
    EXPECT_EQ(reference->parts().ids().size(), 1u);
}

TEST(Parts, AreNotGivenToAnEntityOfAnotherBlock)
{
    const ReadDrawing drawn = readGroups(drawing(
        {section("BLOCKS",
                 {{0, "BLOCK"}, {2, "B"}, {0, "INSERT"}, {8, "0"}, {2, "X"}, {0, "ENDBLK"}}),
         section("ENTITIES", {{0, "ATTRIB"}, {5, "20"}, {8, "0"}})}));
    EXPECT_TRUE(drawn.hasFinding(DrawingFinding::PartWithoutParent));
    EXPECT_EQ(drawn.entities().size(), 0u);
    EXPECT_TRUE(drawn.object(0x20));
}

struct ClassCase
{
    const char* name;
    Groups groups;
    const wchar_t* className;
};

class ClassOfEntity : public testing::TestWithParam<ClassCase>
{
};

TEST_P(ClassOfEntity, FollowsFromItsRecord)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", GetParam().groups)}));
    ASSERT_EQ(drawn.entities().size(), 1u);
    EXPECT_STREQ(drawn.entities()[0]->isA()->name(), GetParam().className);
}

INSTANTIATE_TEST_SUITE_P(
    Records, ClassOfEntity,
    testing::Values(
        ClassCase{"line", {{0, "LINE"}}, L"AcDbLine"},
        ClassCase{"oldLineInSpace", {{0, "3DLINE"}}, L"AcDbLine"},
        ClassCase{"mleaderByItsOtherName", {{0, "MLEADER"}}, L"AcDbMLeader"},
        ClassCase{"polyline2d", {{0, "POLYLINE"}, {70, "1"}}, L"AcDb2dPolyline"},
        ClassCase{"polylineWithoutFlags", {{0, "POLYLINE"}}, L"AcDb2dPolyline"},
        ClassCase{"polyline3d", {{0, "POLYLINE"}, {70, "8"}}, L"AcDb3dPolyline"},
        ClassCase{"mesh", {{0, "POLYLINE"}, {70, "17"}}, L"AcDbPolygonMesh"},
        ClassCase{"polyface", {{0, "POLYLINE"}, {70, "64"}}, L"AcDbPolyFaceMesh"},
        ClassCase{"markedPolyline",
                  {{0, "POLYLINE"}, {100, "AcDbEntity"}, {100, "AcDb3dPolyline"}, {70, "8"}},
                  L"AcDb3dPolyline"},
        ClassCase{"blockReference", {{0, "INSERT"}, {2, "B"}}, L"AcDbBlockReference"},
        ClassCase{"grid", {{0, "INSERT"}, {2, "B"}, {70, "3"}}, L"AcDbMInsertBlock"},
        ClassCase{
            "gridOfRows", {{0, "INSERT"}, {2, "B"}, {70, "1"}, {71, "2"}}, L"AcDbMInsertBlock"},
        ClassCase{"gridMarkedAsSingle",
                  {{0, "INSERT"}, {100, "AcDbEntity"}, {100, "AcDbBlockReference"}, {71, "2"}},
                  L"AcDbMInsertBlock"},
        ClassCase{"markedGridOfOne",
                  {{0, "INSERT"}, {100, "AcDbEntity"}, {100, "AcDbMInsertBlock"}},
                  L"AcDbMInsertBlock"},
        ClassCase{"dimensionWithoutKind", {{0, "DIMENSION"}}, L"AcDbRotatedDimension"},
        ClassCase{"oldRadialDimension", {{0, "DIMENSION"}, {70, "132"}}, L"AcDbRadialDimension"},
        ClassCase{"oldOrdinateDimension", {{0, "DIMENSION"}, {70, "70"}}, L"AcDbOrdinateDimension"},
        ClassCase{"rotatedDimension",
                  {{0, "DIMENSION"},
                   {100, "AcDbDimension"},
                   {70, "33"},
                   {100, "AcDbAlignedDimension"},
                   {100, "AcDbRotatedDimension"}},
                  L"AcDbRotatedDimension"},
        ClassCase{
            "alignedDimension",
            {{0, "DIMENSION"}, {100, "AcDbDimension"}, {70, "32"}, {100, "AcDbAlignedDimension"}},
            L"AcDbAlignedDimension"},
        ClassCase{"unknownKind", {{0, "FLUX_CAPACITOR"}}, L"AcDbProxyEntity"},
        ClassCase{"tableEntryAmongEntities", {{0, "LAYER"}}, L"AcDbProxyEntity"}),
    [](const auto& row) { return row.param.name; });

TEST(ClassOfEntityByMesh, VerticesFollowTheirMesh)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "POLYLINE"},
                                                                       {70, "64"},
                                                                       {0, "VERTEX"},
                                                                       {5, "11"},
                                                                       {70, "192"},
                                                                       {0, "VERTEX"},
                                                                       {5, "12"},
                                                                       {70, "128"},
                                                                       {71, "1"},
                                                                       {0, "SEQEND"}})}));
    EXPECT_STREQ(drawn.object(0x11)->isA()->name(), L"AcDbPolyFaceMeshVertex");
    EXPECT_STREQ(drawn.object(0x12)->isA()->name(), L"AcDbFaceRecord");
}

TEST(ClassOfEntityByClassesSection, KnowsTheKindsThatTheDrawingNames)
{
    const Groups classes{{0, "CLASS"}, {1, "SPECIALLINE"}, {2, "AcDbLine"}, {3, "App"}};
    const ReadDrawing drawn = readGroups(drawing(
        {section("CLASSES", classes), section("ENTITIES", {{0, "SPECIALLINE"}, {8, "0"}})}));
    EXPECT_TRUE(drawn.entity<KdDbLine>(0));
    EXPECT_EQ(drawn.report.unknownEntities, 0u);
}

TEST(UnknownEntity, KeepsItsNameAndItsGeneralProperties)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "FLUX_CAPACITOR"},
                                                                       {5, "10"},
                                                                       {100, "AcDbEntity"},
                                                                       {8, "PIPES"},
                                                                       {62, "3"},
                                                                       {100, "AcDbFlux"},
                                                                       {62, "5"},
                                                                       {40, "1.21"}})}));
    const auto* proxy = drawn.entity<KdDbProxyEntity>(0);
    ASSERT_TRUE(proxy);
    EXPECT_EQ(drawn.report.unknownEntities, 1u);
    EXPECT_EQ(proxy->originalDxfName(), L"FLUX_CAPACITOR");
    EXPECT_EQ(proxy->layer(), L"PIPES");
    EXPECT_EQ(proxy->color().colorIndex(), 3);
}

TEST(ProxyEntity, NamesTheKindThatItStandsFor)
{
    const Groups classes{{0, "CLASS"}, {1, "FIRST"},  {2, "AcFirst"},
                         {0, "CLASS"}, {1, "SECOND"}, {2, "AcSecond"}};
    const ReadDrawing drawn = readGroups(
        drawing({section("CLASSES", classes), section("ENTITIES", {{0, "ACAD_PROXY_ENTITY"},
                                                                   {100, "AcDbEntity"},
                                                                   {100, "AcDbProxyEntity"},
                                                                   {90, "498"},
                                                                   {91, "501"}})}));
    ASSERT_TRUE(drawn.entity<KdDbProxyEntity>(0));
    EXPECT_EQ(drawn.entity<KdDbProxyEntity>(0)->originalDxfName(), L"SECOND");
}

TEST(DoubledHandle, KeepsBothEntities)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("ENTITIES", joined({point("30"), point("30"), point("31")}))}));
    ASSERT_EQ(drawn.entities().size(), 3u);
    EXPECT_EQ(drawn.object(0x30), drawn.entities()[0]);
    EXPECT_GT(drawn.entities()[1]->handle(), 0x31u);
}

} // namespace
