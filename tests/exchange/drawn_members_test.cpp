// What is read for drawing alone.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace {

using testing::ElementsAre;

ReadDrawing read(const Groups& entities, const Groups& objects = {})
{
    return readGroups(
        drawing({header("AC1027"), section("ENTITIES", entities), section("OBJECTS", objects)}));
}

TEST(SubDMesh, HasItsFacesRead)
{
    const ReadDrawing drawn = read({{0, "MESH"}, {8, "0"},     {100, "AcDbSubDMesh"},
                                    {71, "2"},   {72, "1"},    {91, "2"},
                                    {92, "3"},   {10, "1"},    {20, "2"},
                                    {30, "3"},   {10, "4"},    {20, "5"},
                                    {30, "6"},   {10, "7"},    {20, "8"},
                                    {30, "9"},   {93, "4"},    {90, "3"},
                                    {90, "0"},   {90, "1"},    {90, "2"},
                                    {94, "1"},   {90, "0"},    {90, "2"},
                                    {95, "1"},   {140, "0.5"}, {90, "0"}});
    const auto* mesh = drawn.entity<KdDbSubDMesh>(0);
    ASSERT_NE(mesh, nullptr);
    EXPECT_THAT(mesh->vertices(),
                ElementsAre(KdGePoint3d{1, 2, 3}, KdGePoint3d{4, 5, 6}, KdGePoint3d{7, 8, 9}));
    EXPECT_EQ(mesh->edges().size(), 3U);
}

TEST(FaceRecord, HasItsCornersRead)
{
    const ReadDrawing drawn =
        read({{0, "POLYLINE"}, {8, "0"},  {70, "64"},   {71, "1"}, {72, "1"},   {0, "VERTEX"},
              {8, "0"},        {10, "1"}, {20, "0"},    {30, "0"}, {70, "192"}, {0, "VERTEX"},
              {8, "0"},        {10, "0"}, {20, "0"},    {30, "0"}, {70, "128"}, {71, "1"},
              {72, "-2"},      {73, "3"}, {0, "SEQEND"}});
    const auto* mesh = drawn.entity<KdDbPolyFaceMesh>(0);
    ASSERT_NE(mesh, nullptr);
    ASSERT_EQ(mesh->parts().ids().size(), 2U);
    const OpenForRead<KdDbFaceRecord> face(mesh->parts().ids()[1]);
    ASSERT_TRUE(face);
    EXPECT_THAT(face->corners(), ElementsAre(1, -2, 3, 0));
}

TEST(MlineStyle, HasItsElementsRead)
{
    const ReadDrawing drawn = read({}, {{0, "MLINESTYLE"},
                                        {5, "31"},
                                        {2, "WALL"},
                                        {70, "273"},
                                        {62, "3"},
                                        {51, "90"},
                                        {52, "45"},
                                        {71, "2"},
                                        {49, "0.5"},
                                        {62, "1"},
                                        {6, "BYLAYER"},
                                        {49, "-0.5"}});
    const auto* style = dynamic_cast<const KdDbMlineStyle*>(drawn.object(0x31));
    ASSERT_NE(style, nullptr);
    EXPECT_THAT(style->offsets(), ElementsAre(0.5, -0.5));
    EXPECT_EQ(style->colorOf(0).colorIndex(), 1);
    EXPECT_EQ(style->colorOf(1).colorMethod(), KdCmColor::kByLayer);
    EXPECT_EQ(style->colorOf(9).colorMethod(), KdCmColor::kByLayer);
    EXPECT_EQ(style->fillColor().colorIndex(), 3);
    EXPECT_TRUE(style->has(KdDbMlineStyle::kFilled));
    EXPECT_TRUE(style->has(KdDbMlineStyle::kStartSquareCap));
    EXPECT_TRUE(style->has(KdDbMlineStyle::kEndSquareCap));
    EXPECT_FALSE(style->has(KdDbMlineStyle::kShowsMiters));
}

TEST(Mline, HasTheFlagsOfItsCapsRead)
{
    const auto capsOf = [](const char* flags) {
        const ReadDrawing drawn = read({{0, "MLINE"}, {8, "0"}, {71, flags}});
        const auto* mline = drawn.entity<KdDbMline>(0);
        return std::pair(mline->suppressStartCaps(), mline->suppressEndCaps());
    };
    EXPECT_EQ(capsOf("1"), std::pair(false, false));
    EXPECT_EQ(capsOf("5"), std::pair(true, false));
    EXPECT_EQ(capsOf("9"), std::pair(false, true));
}

TEST(Mline, HasItsGapsRead)
{
    const ReadDrawing drawn =
        read({{0, "MLINE"}, {8, "0"},     {11, "1"}, {21, "2"},   {12, "1"}, {22, "0"},
              {13, "0"},    {23, "1"},    {74, "2"}, {41, "0.5"}, {41, "0"}, {75, "0"},
              {74, "4"},    {41, "-0.5"}, {41, "0"}, {41, "3"},   {41, "4"}, {75, "2"},
              {42, "2.5"},  {42, "3.5"},  {11, "9"}, {21, "2"},   {74, "3"}, {41, "0.5"},
              {41, "1"},    {41, "2"},    {75, "0"}, {74, "0"},   {75, "0"}});
    const auto* mline = drawn.entity<KdDbMline>(0);
    ASSERT_NE(mline, nullptr);
    EXPECT_TRUE(mline->hasCuts());
    EXPECT_EQ(mline->lineCut(0, 0), nullptr);
    ASSERT_NE(mline->lineCut(0, 1), nullptr);
    EXPECT_THAT(mline->lineCut(0, 1)->places, ElementsAre(0.0, 3.0, 4.0));
    ASSERT_NE(mline->fillCut(0, 1), nullptr);
    EXPECT_THAT(mline->fillCut(0, 1)->places, ElementsAre(0.0, 2.5, 3.5));
    EXPECT_EQ(mline->fillCut(0, 0), nullptr);
    ASSERT_NE(mline->lineCut(1, 0), nullptr);
    EXPECT_THAT(mline->lineCut(1, 0)->places, ElementsAre(1.0, 2.0));
    EXPECT_EQ(mline->lineCut(1, 1), nullptr);
}

TEST(Mline, BearsGapsWithoutAVertexOrALine)
{
    const ReadDrawing drawn = read({{0, "MLINE"},
                                    {8, "0"},
                                    {74, "2"},
                                    {41, "1"},
                                    {41, "2"},
                                    {42, "3"},
                                    {11, "9"},
                                    {21, "2"},
                                    {41, "4"},
                                    {41, "5"},
                                    {42, "6"}});
    const auto* mline = drawn.entity<KdDbMline>(0);
    ASSERT_NE(mline, nullptr);
    EXPECT_EQ(mline->numVertices(), 1);
    EXPECT_FALSE(mline->hasCuts());
    EXPECT_EQ(mline->fillCut(0, 0), nullptr);
}

TEST(Underlay, HasItsClippedPageRead)
{
    const ReadDrawing drawn = read({{0, "PDFUNDERLAY"},
                                    {8, "0"},
                                    {100, "AcDbUnderlayReference"},
                                    {10, "10"},
                                    {20, "20"},
                                    {30, "0"},
                                    {41, "2"},
                                    {42, "2"},
                                    {43, "2"},
                                    {50, "90"},
                                    {280, "3"},
                                    {11, "0"},
                                    {21, "0"},
                                    {11, "3"},
                                    {21, "1"}});
    const auto* page = drawn.entity<KdDbPdfReference>(0);
    ASSERT_NE(page, nullptr);
    KdArray<KdGePoint3d> corners;
    ASSERT_EQ(page->getOutline(corners), eOk);
    ASSERT_EQ(corners.length(), 4);
    EXPECT_TRUE(corners[0].isEqualTo({10, 20, 0}));
    EXPECT_TRUE(corners[1].isEqualTo({10, 26, 0})); // turned by a right angle
    EXPECT_TRUE(corners[2].isEqualTo({8, 26, 0}));
}

TEST(MPolygon, HasItsLoopsRead)
{
    const ReadDrawing drawn = read({{0, "MPOLYGON"}, {8, "0"},     {100, "AcDbMPolygon"},
                                    {70, "1"},       {10, "0"},    {20, "0"},
                                    {30, "5"},       {210, "0"},   {220, "0"},
                                    {230, "1"},      {2, "SOLID"}, {71, "1"},
                                    {91, "1"},       {92, "2"},    {72, "1"},
                                    {73, "1"},       {93, "3"},    {10, "0"},
                                    {20, "0"},       {42, "0"},    {10, "4"},
                                    {20, "0"},       {42, "0.5"},  {10, "4"},
                                    {20, "4"},       {42, "0"},    {76, "1"}});
    const auto* polygon = drawn.entity<KdDbMPolygon>(0);
    ASSERT_NE(polygon, nullptr);
    EXPECT_TRUE(polygon->content().solid);
    EXPECT_EQ(polygon->content().elevation, 5);
    ASSERT_EQ(polygon->content().loops.size(), 1U);
    ASSERT_EQ(polygon->content().loops[0].vertices.size(), 3U);
    EXPECT_EQ(polygon->content().loops[0].vertices[1].bulge, 0.5);
}

TEST(DrawOrder, FollowsTheHandlesThatAreGiven)
{
    const ReadDrawing drawn = read({{0, "LINE"},
                                    {5, "A1"},
                                    {8, "0"},
                                    {0, "LINE"},
                                    {5, "A2"},
                                    {8, "0"},
                                    {0, "LINE"},
                                    {5, "A3"},
                                    {8, "0"}},
                                   {{0, "SORTENTSTABLE"},
                                    {5, "50"},
                                    {100, "AcDbSortentsTable"},
                                    {330, "1F"},
                                    {331, "A1"},
                                    {5, "A3"},
                                    {331, "A3"},
                                    {5, "A1"}});
    const auto* table = dynamic_cast<const KdDbSortentsTable*>(drawn.object(0x50));
    ASSERT_NE(table, nullptr);
    ASSERT_EQ(table->entries().size(), 2U);
    EXPECT_EQ(table->entries()[0].entity.handle(), 0xA1U);
    EXPECT_EQ(table->entries()[0].sortHandle, 0xA3U);
    EXPECT_EQ(table->entries()[1].sortHandle, 0xA1U);
}

} // namespace
