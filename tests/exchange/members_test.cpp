#include <cmath>
#include <numbers>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

/// A drawing whose model holds one entity, with subclass markers.
ReadDrawing readMarked(const std::string& name, const std::string& subclass, Groups groups,
                       const Groups& general = {})
{
    Groups entity{{0, name}, {5, "A1"}, {100, "AcDbEntity"}, {8, "0"}};
    entity.insert(entity.end(), general.begin(), general.end());
    entity.push_back({100, subclass});
    entity.insert(entity.end(), groups.begin(), groups.end());
    return readGroups(drawing({header("AC1015"), section("ENTITIES", entity)}));
}

ReadDrawing readGeneral(const Groups& general)
{
    return readMarked("LINE", "AcDbLine", {}, general);
}

TEST(GeneralMembers, HaveDefaults)
{
    const ReadDrawing drawn = readGeneral({});
    const KdDbEntity& entity = *drawn.entities()[0];
    EXPECT_EQ(entity.color().colorIndex(), KdCmColor::kIndexByLayer);
    EXPECT_EQ(entity.linetype(), L"ByLayer");
    EXPECT_EQ(entity.linetypeScale(), 1.0);
    EXPECT_EQ(entity.lineWeight(), -1);
    EXPECT_EQ(entity.transparency().method(), KdCmTransparency::kByLayer);
    EXPECT_EQ(entity.plotStyleName(), L"ByLayer");
    EXPECT_FALSE(entity.isInvisible());
    EXPECT_TRUE(entity.extensionDictionary().isNull());
}

TEST(GeneralMembers, AreRead)
{
    const ReadDrawing drawn = readGeneral({{6, "BYBLOCK"},
                                           {48, "2.5"},
                                           {62, "1"},
                                           {370, "35"},
                                           {60, "1"},
                                           {440, "33554559"},
                                           {430, "BOOK$Brick"}});
    const KdDbEntity& entity = *drawn.entities()[0];
    EXPECT_EQ(entity.color().colorIndex(), 1);
    EXPECT_EQ(entity.linetype(), L"ByBlock");
    EXPECT_EQ(entity.linetypeScale(), 2.5);
    EXPECT_EQ(entity.lineWeight(), 35);
    EXPECT_EQ(entity.transparency().method(), KdCmTransparency::kByAlpha);
    EXPECT_EQ(entity.transparency().alpha(), 127);
    EXPECT_EQ(entity.color().bookName(), L"BOOK");
    EXPECT_TRUE(entity.isInvisible());
}

struct ColorCase
{
    const char* name;
    Groups groups;
    std::uint32_t word;
};

class ColorOfEntity : public testing::TestWithParam<ColorCase>
{
};

TEST_P(ColorOfEntity, FollowsFromItsGroups)
{
    EXPECT_EQ(readGeneral(GetParam().groups).entities()[0]->color().color(), GetParam().word);
}

INSTANTIATE_TEST_SUITE_P(
    Colors, ColorOfEntity,
    testing::Values(ColorCase{"byBlock", {{62, "0"}}, 0xC1000000},
                    ColorCase{"byLayer", {{62, "256"}}, 0xC0000000},
                    ColorCase{"index", {{62, "7"}}, 0xC3000007},
                    ColorCase{"outOfRange", {{62, "300"}}, 0xC0000000},
                    ColorCase{"trueColor", {{62, "7"}, {420, "1193046"}}, 0xC2123456},
                    ColorCase{"trueColorFirst", {{420, "1193046"}, {62, "7"}}, 0xC2123456}),
    [](const auto& row) { return row.param.name; });

TEST(GeneralMembers, AreToldFromThoseOfTheKind)
{
    const ReadDrawing drawn = readMarked("SECTIONOBJECT", "AcDbSection", {{62, "5"}, {370, "40"}},
                                         {{62, "3"}, {370, "25"}});
    EXPECT_EQ(drawn.entities()[0]->color().colorIndex(), 3);
    EXPECT_EQ(drawn.entities()[0]->lineWeight(), 25);
}

TEST(GeneralMembers, NameTheirPlotStyle)
{
    const Groups objects{{0, "DICTIONARY"},
                         {5, "C"},
                         {100, "AcDbDictionary"},
                         {3, "ACAD_PLOTSTYLENAME"},
                         {350, "E"},
                         {0, "ACDBDICTIONARYWDFLT"},
                         {5, "E"},
                         {330, "C"},
                         {100, "AcDbDictionary"},
                         {3, "Draft"},
                         {350, "F"},
                         {100, "AcDbDictionaryWithDefault"},
                         {340, "F"},
                         {0, "ACDBPLACEHOLDER"},
                         {5, "F"},
                         {330, "E"}};
    const ReadDrawing drawn = readGroups(drawing({header("AC1015"),
                                                  section("ENTITIES", {{0, "LINE"},
                                                                       {5, "A1"},
                                                                       {100, "AcDbEntity"},
                                                                       {8, "0"},
                                                                       {380, "3"},
                                                                       {390, "F"},
                                                                       {100, "AcDbLine"}}),
                                                  section("OBJECTS", objects)}));
    EXPECT_EQ(drawn.entities()[0]->plotStyleName(), L"Draft");
    EXPECT_EQ(drawn.object(0xF)->ownerId(), drawn.object(0xE)->objectId());
}

TEST(ExtensionDictionary, IsThatOfTheApplicationGroup)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "LINE"},
                                                                       {5, "A1"},
                                                                       {102, "{ACAD_XDICTIONARY"},
                                                                       {360, "B1"},
                                                                       {102, "}"},
                                                                       {102, "{ACAD_REACTORS"},
                                                                       {330, "B2"},
                                                                       {102, "}"},
                                                                       {8, "0"}}),
                                                  section("OBJECTS", {{0, "DICTIONARY"},
                                                                      {5, "C"},
                                                                      {0, "DICTIONARY"},
                                                                      {5, "B1"},
                                                                      {330, "A1"},
                                                                      {3, "KEY"},
                                                                      {360, "B2"},
                                                                      {0, "XRECORD"},
                                                                      {5, "B2"}})}));
    const OpenForRead<KdDbDictionary> dictionary(drawn.entities()[0]->extensionDictionary());
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(dictionary->handle(), 0xB1u);
    EXPECT_EQ(dictionary->ownerId(), drawn.entities()[0]->objectId());
    KdDbObjectId id;
    EXPECT_EQ(dictionary->getAt(L"key", id), eOk);
    EXPECT_EQ(id.handle(), 0xB2u);
    EXPECT_EQ(kddbExtensionEntry(*drawn.entities()[0], L"KEY"), id);
    ASSERT_EQ(drawn.entities()[0]->reactors().size(), 1u);
    EXPECT_EQ(drawn.entities()[0]->reactors()[0], id);
}

TEST(ExtendedData, KeepsValuesOfEveryKind)
{
    Groups groups{{1001, "OTHER"},  {1070, "1"},   {1001, "App"},  {1000, "text"}, {1002, "{"},
                  {1010, "1.5"},    {1020, "2.5"}, {1030, "3.5"},  {1040, "0.25"}, {1070, "-7"},
                  {1071, "100000"}, {1005, "1F"},  {1004, "0aFF"}, {1002, "}"}};
    const ReadDrawing drawn = readMarked("LINE", "AcDbLine", groups);
    const resbuf* end = nullptr;
    const resbuf* record = drawn.entities()[0]->extendedData(L"APP", end);
    ASSERT_TRUE(record);
    EXPECT_STREQ(record->resval.rstring, L"text");
    record = record->rbnext->rbnext;
    EXPECT_EQ(record->restype, 1010);
    EXPECT_EQ(record->resval.rpoint[2], 3.5);
    record = record->rbnext;
    EXPECT_EQ(record->resval.rreal, 0.25);
    record = record->rbnext;
    EXPECT_EQ(record->resval.rint, -7);
    record = record->rbnext;
    EXPECT_EQ(record->resval.rlong, 100000);
    record = record->rbnext;
    EXPECT_STREQ(record->resval.rstring, L"1F");
    record = record->rbnext;
    ASSERT_EQ(record->resval.rbinary.clen, 2);
    EXPECT_EQ(record->resval.rbinary.buf[0], '\x0A');
    EXPECT_EQ(record->resval.rbinary.buf[1], '\xFF');
    EXPECT_EQ(record->rbnext->rbnext, end);
}

TEST(EmbeddedObject, IsNoPartOfTheEntity)
{
    const ReadDrawing drawn = readMarked("CIRCLE", "AcDbCircle",
                                         {{10, "1"},
                                          {40, "2"},
                                          {101, "Embedded Object"},
                                          {10, "9"},
                                          {40, "9"},
                                          {1001, "App"},
                                          {1000, "x"}});
    const auto* circle = drawn.entity<KdDbCircle>(0);
    EXPECT_EQ(circle->radius(), 2.0);
    const resbuf* end = nullptr;
    EXPECT_TRUE(circle->extendedData(L"App", end));
}

TEST(Preview, IsLeftOut)
{
    const ReadDrawing drawn =
        readMarked("CIRCLE", "AcDbCircle", {{40, "2"}}, {{92, "4"}, {310, "00112233"}});
    EXPECT_EQ(drawn.entity<KdDbCircle>(0)->radius(), 2.0);
}

TEST(Line, IsRead)
{
    const ReadDrawing drawn = readMarked("LINE", "AcDbLine",
                                         {{39, "0.5"},
                                          {10, "1"},
                                          {20, "2"},
                                          {30, "3"},
                                          {11, "4"},
                                          {21, "5"},
                                          {31, "6"},
                                          {210, "0"},
                                          {220, "2"},
                                          {230, "0"}});
    const auto* line = drawn.entity<KdDbLine>(0);
    EXPECT_EQ(line->startPoint(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(line->endPoint(), (KdGePoint3d{4, 5, 6}));
    EXPECT_EQ(line->thickness(), 0.5);
    EXPECT_EQ(line->normal(), (KdGeVector3d{0, 1, 0}));
}

TEST(Line, TakesTheElevationOfOldDrawings)
{
    const ReadDrawing drawn = readGroups(drawing({section(
        "ENTITIES",
        {{0, "LINE"}, {8, "0"}, {38, "7.5"}, {10, "1"}, {20, "2"}, {11, "4"}, {21, "5"}})}));
    EXPECT_EQ(drawn.entity<KdDbLine>(0)->endPoint(), (KdGePoint3d{4, 5, 7.5}));
}

TEST(Arc, IsReadInItsObjectFrameAndInRadians)
{
    const ReadDrawing drawn = readMarked("ARC", "AcDbCircle",
                                         {{10, "1"},
                                          {20, "2"},
                                          {30, "0"},
                                          {40, "3"},
                                          {210, "0"},
                                          {220, "0"},
                                          {230, "-1"},
                                          {100, "AcDbArc"},
                                          {50, "90"},
                                          {51, "180"}});
    const auto* arc = drawn.entity<KdDbArc>(0);
    EXPECT_NEAR(arc->startAngle(), kPi / 2, 1e-15);
    EXPECT_NEAR(arc->endAngle(), kPi, 1e-15);
    EXPECT_EQ(arc->radius(), 3.0);
    EXPECT_NEAR(arc->center().x, -1.0, 1e-12); // the frame of a normal downwards is mirrored in x
    EXPECT_NEAR(arc->center().y, 2.0, 1e-12);
}

TEST(Point, IsRead)
{
    const ReadDrawing drawn =
        readMarked("POINT", "AcDbPoint", {{10, "1"}, {20, "2"}, {39, "4"}, {50, "180"}});
    const auto* point = drawn.entity<KdDbPoint>(0);
    EXPECT_EQ(point->position(), (KdGePoint3d{1, 2, 0}));
    EXPECT_EQ(point->thickness(), 4.0);
    EXPECT_NEAR(point->ecsRotation(), kPi, 1e-15);
}

TEST(LightweightPolyline, IsRead)
{
    const ReadDrawing drawn = readMarked("LWPOLYLINE", "AcDbPolyline",
                                         {{90, "3"},
                                          {70, "129"},
                                          {43, "0.5"},
                                          {38, "2"},
                                          {10, "0"},
                                          {20, "0"},
                                          {42, "1"},
                                          {10, "4"},
                                          {20, "0"},
                                          {40, "0.1"},
                                          {41, "0.2"},
                                          {10, "4"},
                                          {20, "3"}});
    const auto* polyline = drawn.entity<KdDbPolyline>(0);
    ASSERT_EQ(polyline->numVerts(), 3u);
    EXPECT_TRUE(polyline->isClosed());
    EXPECT_TRUE(polyline->hasPlinegen());
    EXPECT_EQ(polyline->elevation(), 2.0);
    double bulge = 0.0;
    double start = 0.0;
    double end = 0.0;
    EXPECT_EQ(polyline->getBulgeAt(0, bulge), eOk);
    EXPECT_EQ(bulge, 1.0);
    EXPECT_EQ(polyline->getWidthsAt(1, start, end), eOk);
    EXPECT_EQ(start, 0.1);
    EXPECT_EQ(end, 0.2);
    EXPECT_EQ(polyline->getWidthsAt(2, start, end), eOk);
    EXPECT_EQ(start, 0.5);
    KdGePoint2d point;
    EXPECT_EQ(polyline->getPointAt(2, point), eOk);
    EXPECT_EQ(point, (KdGePoint2d{4, 3}));
}

TEST(LightweightPolyline, KeepsItsElevationWithoutMarkers)
{
    const ReadDrawing drawn = readGroups(drawing(
        {section("ENTITIES", {{0, "LWPOLYLINE"}, {8, "0"}, {38, "2"}, {10, "0"}, {20, "0"}})}));
    EXPECT_EQ(drawn.entity<KdDbPolyline>(0)->elevation(), 2.0);
}

TEST(Polyline2d, IsReadWithItsVertices)
{
    const ReadDrawing drawn = readGroups(drawing({section(
        "ENTITIES", {{0, "POLYLINE"}, {8, "0"},   {70, "5"},   {75, "6"},    {10, "0"},
                     {20, "0"},       {30, "7"},  {40, "0.5"}, {41, "0.75"}, {0, "VERTEX"},
                     {5, "11"},       {8, "0"},   {10, "1"},   {20, "2"},    {70, "16"},
                     {0, "VERTEX"},   {5, "12"},  {8, "0"},    {10, "3"},    {20, "4"},
                     {41, "2"},       {42, "-1"}, {50, "90"},  {70, "10"},   {0, "SEQEND"}})}));
    const auto* polyline = drawn.entity<KdDb2dPolyline>(0);
    ASSERT_TRUE(polyline);
    EXPECT_EQ(polyline->polyType(), KdDb::kCubic2dPolyline);
    EXPECT_EQ(polyline->elevation(), 7.0);
    EXPECT_TRUE(polyline->isClosed());
    const auto* first = dynamic_cast<const KdDb2dVertex*>(drawn.object(0x11));
    const auto* second = dynamic_cast<const KdDb2dVertex*>(drawn.object(0x12));
    EXPECT_EQ(first->vertexType(), KdDb::kControlVertex);
    EXPECT_EQ(first->endWidth(), 0.75);
    EXPECT_EQ(second->vertexType(), KdDb::kSplineFitVertex);
    EXPECT_EQ(second->startWidth(), 0.5);
    EXPECT_EQ(second->endWidth(), 2.0);
    EXPECT_EQ(second->bulge(), -1.0);
    EXPECT_NEAR(second->tangent(), kPi / 2, 1e-15);
    EXPECT_TRUE(second->isTangentUsed());
}

TEST(Polyline2d, HasItsElevationByItselfInTheOldestDrawings)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "POLYLINE"},
                                                                       {8, "0"},
                                                                       {38, "4"},
                                                                       {66, "1"},
                                                                       {0, "VERTEX"},
                                                                       {8, "0"},
                                                                       {10, "1"},
                                                                       {20, "2"},
                                                                       {0, "SEQEND"}})}));
    const auto* polyline = drawn.entity<KdDb2dPolyline>(0);
    ASSERT_TRUE(polyline);
    EXPECT_EQ(polyline->elevation(), 4.0);
    KdGePoint3d start;
    EXPECT_EQ(polyline->getStartPoint(start), eOk);
    EXPECT_EQ(start, (KdGePoint3d{1, 2, 4}));
}

struct SmoothCase
{
    const char* name;
    const char* flags;
    const char* smoothing;
    KdDb::Poly2dType type;
};

class SmoothingOfPolyline2d : public testing::TestWithParam<SmoothCase>
{
};

TEST_P(SmoothingOfPolyline2d, FollowsFromItsFlags)
{
    const SmoothCase& row = GetParam();
    const ReadDrawing drawn = readGroups(drawing(
        {section("ENTITIES", {{0, "POLYLINE"}, {8, "0"}, {70, row.flags}, {75, row.smoothing}})}));
    EXPECT_EQ(drawn.entity<KdDb2dPolyline>(0)->polyType(), row.type);
}

INSTANTIATE_TEST_SUITE_P(
    Flags, SmoothingOfPolyline2d,
    testing::Values(SmoothCase{"none", "0", "5", KdDb::kPlain2dPolyline},
                    SmoothCase{"curveFit", "2", "0", KdDb::kCurveFit2dPolyline},
                    SmoothCase{"quadratic", "4", "5", KdDb::kQuadratic2dPolyline},
                    SmoothCase{"cubic", "4", "6", KdDb::kCubic2dPolyline}),
    [](const auto& row) { return row.param.name; });

TEST(Polyline3d, IsRead)
{
    const ReadDrawing drawn = readGroups(
        drawing({section("ENTITIES", {{0, "POLYLINE"}, {8, "0"}, {70, "13"}, {75, "6"}})}));
    const auto* polyline = drawn.entity<KdDb3dPolyline>(0);
    EXPECT_EQ(polyline->polyType(), KdDb::kCubic3dPolyline);
    EXPECT_TRUE(polyline->isClosed());
}

TEST(PolygonMesh, IsRead)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "POLYLINE"},
                                                                       {8, "0"},
                                                                       {70, "49"},
                                                                       {71, "3"},
                                                                       {72, "4"},
                                                                       {73, "5"},
                                                                       {74, "6"},
                                                                       {75, "8"}})}));
    const auto* mesh = drawn.entity<KdDbPolygonMesh>(0);
    EXPECT_EQ(mesh->mSize(), 3);
    EXPECT_EQ(mesh->nSize(), 4);
    EXPECT_EQ(mesh->mSurfaceDensity(), 5);
    EXPECT_EQ(mesh->nSurfaceDensity(), 6);
    EXPECT_EQ(mesh->polyMeshType(), KdDb::kBezierMesh);
    EXPECT_TRUE(mesh->isMClosed());
    EXPECT_TRUE(mesh->isNClosed());
}

TEST(PolyFaceMesh, IsRead)
{
    const ReadDrawing drawn = readGroups(drawing(
        {section("ENTITIES", {{0, "POLYLINE"}, {8, "0"}, {70, "64"}, {71, "8"}, {72, "6"}})}));
    const auto* mesh = drawn.entity<KdDbPolyFaceMesh>(0);
    EXPECT_EQ(mesh->numVertices(), 8);
    EXPECT_EQ(mesh->numFaces(), 6);
}

TEST(Text, IsRead)
{
    const ReadDrawing drawn = readMarked("TEXT", "AcDbText",
                                         {{10, "1"},
                                          {20, "2"},
                                          {40, "2.5"},
                                          {1, "100%%c"},
                                          {50, "90"},
                                          {41, "0.8"},
                                          {51, "15"},
                                          {7, "standard"},
                                          {71, "6"},
                                          {72, "1"},
                                          {11, "3"},
                                          {21, "4"},
                                          {100, "AcDbText"},
                                          {73, "2"}});
    const auto* text = drawn.entity<KdDbText>(0);
    EXPECT_EQ(text->textString(), L"100%%c");
    EXPECT_EQ(text->position(), (KdGePoint3d{1, 2, 0}));
    EXPECT_EQ(text->alignmentPoint(), (KdGePoint3d{3, 4, 0}));
    EXPECT_EQ(text->height(), 2.5);
    EXPECT_EQ(text->widthFactor(), 0.8);
    EXPECT_NEAR(text->rotation(), kPi / 2, 1e-15);
    EXPECT_NEAR(text->oblique(), kPi / 12, 1e-15);
    EXPECT_EQ(text->horizontalMode(), KdDb::kTextCenter);
    EXPECT_EQ(text->verticalMode(), KdDb::kTextVerticalMiddle);
    EXPECT_TRUE(text->isMirroredInX());
    EXPECT_TRUE(text->isMirroredInY());
    EXPECT_EQ(text->textStyle(), drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
}

TEST(Text, HasTheStandardStyleUnlessItNamesOne)
{
    const ReadDrawing drawn = readMarked("TEXT", "AcDbText", {{1, "x"}});
    EXPECT_EQ(drawn.entity<KdDbText>(0)->textStyle(),
              drawn.record<KdDbTextStyleTable>(L"Standard")->objectId());
}

TEST(AttributeDefinition, IsRead)
{
    const ReadDrawing drawn = readMarked("ATTDEF", "AcDbText",
                                         {{40, "2"},
                                          {1, "12"},
                                          {72, "2"},
                                          {100, "AcDbAttributeDefinition"},
                                          {280, "0"},
                                          {3, "Which size?"},
                                          {2, "SIZE"},
                                          {70, "9"},
                                          {73, "6"},
                                          {74, "3"},
                                          {280, "1"}});
    const auto* definition = drawn.entity<KdDbAttributeDefinition>(0);
    EXPECT_EQ(definition->textString(), L"12");
    EXPECT_EQ(definition->prompt(), L"Which size?");
    EXPECT_EQ(definition->tag(), L"SIZE");
    EXPECT_TRUE(definition->isInvisible());
    EXPECT_FALSE(definition->isConstant());
    EXPECT_TRUE(definition->isPreset());
    EXPECT_EQ(definition->fieldLength(), 6);
    EXPECT_EQ(definition->verticalMode(), KdDb::kTextTop);
    EXPECT_TRUE(definition->lockPositionInBlock());
}

TEST(AttributeDefinition, OfSeveralLinesKeepsTheMembersOfItsText)
{
    const ReadDrawing drawn = readMarked("ATTDEF", "AcDbText",
                                         {{72, "1"},
                                          {11, "3"},
                                          {21, "4"},
                                          {100, "AcDbAttributeDefinition"},
                                          {2, "T"},
                                          {70, "0"},
                                          {280, "1"},
                                          {71, "4"},
                                          {72, "0"},
                                          {11, "9"},
                                          {21, "9"},
                                          {1001, "App"},
                                          {1000, "x"}});
    const auto* definition = drawn.entity<KdDbAttributeDefinition>(0);
    EXPECT_FALSE(definition->isMirroredInY());
    EXPECT_EQ(definition->horizontalMode(), KdDb::kTextCenter);
    EXPECT_EQ(definition->alignmentPoint(), (KdGePoint3d{3, 4, 0}));
    EXPECT_TRUE(definition->lockPositionInBlock());
    const resbuf* end = nullptr;
    EXPECT_TRUE(definition->extendedData(L"App", end));
}

TEST(GeneralMembers, AreFoundBehindTheKindsMarkerToo)
{
    const ReadDrawing drawn = readGroups(drawing({section("ENTITIES", {{0, "CIRCLE"},
                                                                       {5, "A1"},
                                                                       {100, "AcDbEntity"},
                                                                       {100, "AcDbCircle"},
                                                                       {8, "PIPES"},
                                                                       {62, "3"},
                                                                       {370, "25"},
                                                                       {40, "2"}})}));
    EXPECT_EQ(drawn.entities()[0]->layer(), L"PIPES");
    EXPECT_EQ(drawn.entities()[0]->color().colorIndex(), 3);
    EXPECT_EQ(drawn.entities()[0]->lineWeight(), 25);
}

TEST(AttributeDefinition, TakesTheOldFormOfTheLock)
{
    const ReadDrawing drawn = readMarked("ATTDEF", "AcDbText",
                                         {{1, "x"},
                                          {100, "AcDbAttributeDefinition"},
                                          {2, "T"},
                                          {70, "0"},
                                          {1001, "AcDbAttr"},
                                          {1070, "0"},
                                          {1070, "1"}});
    EXPECT_TRUE(drawn.entity<KdDbAttributeDefinition>(0)->lockPositionInBlock());
}

TEST(BlockReference, IsRead)
{
    const ReadDrawing drawn =
        readGroups(drawing({section("BLOCKS", {{0, "BLOCK"}, {2, "DOOR"}, {0, "ENDBLK"}}),
                            section("ENTITIES", {{0, "INSERT"},
                                                 {8, "0"},
                                                 {2, "door"},
                                                 {10, "1"},
                                                 {20, "2"},
                                                 {41, "2"},
                                                 {42, "3"},
                                                 {43, "4"},
                                                 {50, "45"}})}));
    const auto* reference = drawn.entity<KdDbBlockReference>(0);
    EXPECT_EQ(reference->blockTableRecord(), drawn.record<KdDbBlockTable>(L"DOOR")->objectId());
    EXPECT_EQ(reference->position(), (KdGePoint3d{1, 2, 0}));
    EXPECT_EQ(reference->scaleFactors(), (KdGeScale3d{2, 3, 4}));
    EXPECT_NEAR(reference->rotation(), kPi / 4, 1e-15);
}

TEST(BlockReference, RepeatedInAGridIsRead)
{
    const ReadDrawing drawn = readGroups(drawing({section(
        "ENTITIES",
        {{0, "INSERT"}, {8, "0"}, {2, "X"}, {70, "3"}, {71, "70000"}, {44, "1.5"}, {45, "2.5"}})}));
    const auto* grid = drawn.entity<KdDbMInsertBlock>(0);
    ASSERT_TRUE(grid);
    EXPECT_EQ(grid->columns(), 3);
    EXPECT_EQ(grid->rows(), 65535);
    EXPECT_EQ(grid->columnSpacing(), 1.5);
    EXPECT_EQ(grid->rowSpacing(), 2.5);
}

TEST(Table, IsABlockReferenceUpToItsOwnPart)
{
    const ReadDrawing drawn = readGroups(
        drawing({header("AC1027"), section("BLOCKS", {{0, "BLOCK"}, {2, "*T1"}, {0, "ENDBLK"}}),
                 section("ENTITIES", {{0, "ACAD_TABLE"},
                                      {100, "AcDbEntity"},
                                      {8, "0"},
                                      {100, "AcDbBlockReference"},
                                      {2, "*T1"},
                                      {10, "1"},
                                      {20, "2"},
                                      {100, "AcDbTable"},
                                      {41, "9"},
                                      {2, "cell"},
                                      {10, "7"}})}));
    const auto* tableReference = drawn.entity<KdDbTable>(0);
    EXPECT_EQ(tableReference->position(), (KdGePoint3d{1, 2, 0}));
    EXPECT_EQ(tableReference->scaleFactors(), (KdGeScale3d{1, 1, 1}));
    EXPECT_FALSE(tableReference->blockTableRecord().isNull());
}

Groups viewport(const std::string& handle, const Groups& groups)
{
    Groups all{{0, "VIEWPORT"}, {5, handle}, {67, "1"}, {8, "0"}};
    all.insert(all.end(), groups.begin(), groups.end());
    return all;
}

ReadDrawing readViewports(std::initializer_list<Groups> viewports)
{
    Groups entities;
    for (const Groups& one : viewports)
        entities.insert(entities.end(), one.begin(), one.end());
    return readGroups(drawing({section("ENTITIES", entities)}));
}

TEST(Viewport, IsRead)
{
    const ReadDrawing drawn = readViewports({viewport("10", {{10, "1"},
                                                             {20, "2"},
                                                             {40, "3"},
                                                             {41, "4"},
                                                             {68, "0"},
                                                             {69, "2"},
                                                             {90, "819232"},
                                                             {340, "11"}}),
                                             {{0, "CIRCLE"}, {5, "11"}, {67, "1"}, {8, "0"}}});
    const auto* port = drawn.entity<KdDbViewport>(0, kPaperSpaceName);
    EXPECT_EQ(port->centerPoint(), (KdGePoint3d{1, 2, 0}));
    EXPECT_EQ(port->width(), 3.0);
    EXPECT_EQ(port->height(), 4.0);
    EXPECT_EQ(port->number(), 2);
    EXPECT_TRUE(port->isOn());
    EXPECT_EQ(port->nonRectClipEntityId(), drawn.object(0x11)->objectId());
}

TEST(Viewport, IsOffByItsFlags)
{
    const ReadDrawing drawn =
        readViewports({viewport("10", {{90, "131072"}, {68, "3"}, {69, "2"}})});
    EXPECT_FALSE(drawn.entity<KdDbViewport>(0, kPaperSpaceName)->isOn());
}

TEST(Viewport, IsOffByItsStatusInOldDrawings)
{
    const ReadDrawing drawn = readViewports({viewport("10", {{68, "0"}, {69, "2"}})});
    EXPECT_FALSE(drawn.entity<KdDbViewport>(0, kPaperSpaceName)->isOn());
}

TEST(Viewport, IsTheSheetIfItIsTheFirstAndNoneHasANumber)
{
    const ReadDrawing drawn = readViewports(
        {viewport("10", {{69, "0"}}), viewport("11", {{69, "0"}}), viewport("12", {{69, "0"}})});
    EXPECT_EQ(drawn.entity<KdDbViewport>(0, kPaperSpaceName)->number(), 1);
    EXPECT_EQ(drawn.entity<KdDbViewport>(1, kPaperSpaceName)->number(), 0);
}

TEST(Viewport, IsNotTheSheetIfAnotherOneIs)
{
    const ReadDrawing drawn =
        readViewports({viewport("10", {{69, "0"}}), viewport("11", {{69, "1"}})});
    EXPECT_EQ(drawn.entity<KdDbViewport>(0, kPaperSpaceName)->number(), 0);
}

TEST(Members, ReadBadNumbersAsFarAsTheyGo)
{
    const ReadDrawing drawn =
        readMarked("CIRCLE", "AcDbCircle", {{10, "1,5"}, {20, "abc"}, {40, "3mm"}});
    const auto* circle = drawn.entity<KdDbCircle>(0);
    EXPECT_EQ(circle->center(), (KdGePoint3d{1.5, 0, 0}));
    EXPECT_EQ(circle->radius(), 3.0);
}

TEST(Members, AreTheSameInBinaryForm)
{
    const Groups groups = drawing({section("ENTITIES", {{0, "ARC"},
                                                        {5, "A1"},
                                                        {8, "0"},
                                                        {62, "3"},
                                                        {10, "1.25"},
                                                        {20, "2"},
                                                        {40, "3"},
                                                        {50, "90"},
                                                        {51, "180"},
                                                        {1001, "App"},
                                                        {1004, "0AFF"},
                                                        {1070, "7"}})});
    for (const bool narrowCodes : {true, false}) {
        const ReadDrawing drawn = readBytes(asBinary(groups, narrowCodes));
        const auto* arc = drawn.entity<KdDbArc>(0);
        ASSERT_TRUE(arc);
        EXPECT_EQ(arc->color().colorIndex(), 3);
        EXPECT_EQ(arc->center(), (KdGePoint3d{1.25, 2, 0}));
        EXPECT_NEAR(arc->endAngle(), kPi, 1e-15);
        const resbuf* end = nullptr;
        const resbuf* record = arc->extendedData(L"App", end);
        ASSERT_TRUE(record);
        EXPECT_EQ(record->resval.rbinary.clen, 2);
        EXPECT_EQ(record->rbnext->resval.rint, 7);
    }
}

} // namespace
