#include <numbers>
#include <sstream>

#include <gtest/gtest.h>

#include <entities/all.h>

#include "../entities/body_text.h"
#include "made_drawing.h"

namespace {

constexpr double kPi = std::numbers::pi;

Groups joined(std::initializer_list<Groups> parts)
{
    Groups all;
    for (const Groups& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

Groups point(int code, const char* x, const char* y, const char* z)
{
    return {{code, x}, {code + 10, y}, {code + 20, z}};
}

/// A drawing in both forms, one after the other.
template <class Check>
void inBothForms(const std::vector<Groups>& parts, Check check)
{
    const Groups whole = drawing(parts);
    for (const std::string& bytes : {asText(whole), asBinary(whole)}) {
        const ReadDrawing drawn = readBytes(bytes);
        ASSERT_EQ(drawn.status, eOk);
        check(drawn);
    }
}

TEST(Face, IsReadInTheWorld)
{
    const Groups face = joined({{{0, "3DFACE"}, {8, "0"}},
                                point(10, "1", "2", "3"),
                                point(11, "4", "5", "6"),
                                point(12, "7", "8", "9"),
                                {{70, "5"}, {284, "1"}}});
    inBothForms({section("ENTITIES", face)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbFace>(0);
        KdGePoint3d vertex;
        EXPECT_EQ(read->getVertexAt(1, vertex), eOk);
        EXPECT_EQ(vertex, (KdGePoint3d{4, 5, 6}));
        EXPECT_EQ(read->getVertexAt(3, vertex), eOk);
        EXPECT_EQ(vertex, (KdGePoint3d{7, 8, 9})); // the third, as there is no fourth
        const bool expected[] = {false, true, false, true};
        for (int i = 0; i < 4; ++i) {
            bool visible = false;
            EXPECT_EQ(read->isEdgeVisibleAt(i, visible), eOk);
            EXPECT_EQ(visible, expected[i]);
        }
        EXPECT_TRUE(read->castShadows());
        EXPECT_FALSE(read->receiveShadows());
    });
}

TEST(Shadows, AreOfTheGeneralPartAlone)
{
    const Groups entities{
        {0, "POINT"}, {100, "AcDbEntity"}, {284, "3"},         {100, "AcDbPoint"}, {10, "1"},
        {0, "POINT"}, {100, "AcDbEntity"}, {100, "AcDbPoint"}, {284, "3"},         {10, "1"}};
    inBothForms({section("ENTITIES", entities)}, [](const ReadDrawing& drawn) {
        EXPECT_FALSE(drawn.entity<KdDbPoint>(0)->castShadows());
        EXPECT_TRUE(drawn.entity<KdDbPoint>(1)->castShadows());
    });
}

TEST(Trace, IsReadInItsFrame)
{
    const Groups trace = joined({{{0, "TRACE"}, {8, "0"}, {39, "2"}},
                                 point(10, "1", "2", "3"),
                                 point(11, "4", "5", "3"),
                                 point(12, "6", "7", "3"),
                                 point(13, "8", "9", "3"),
                                 point(210, "0", "0", "-1")});
    inBothForms({section("ENTITIES", trace)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbTrace>(0);
        KdGePoint3d corner;
        EXPECT_EQ(read->getPointAt(3, corner), eOk);
        EXPECT_EQ(corner, (KdGePoint3d{-8, 9, -3}));
        EXPECT_EQ(read->thickness(), 2);
    });
}

TEST(Image, IsReadWithItsFileAndItsClip)
{
    const Groups image = joined({{{0, "IMAGE"}, {5, "20"}, {100, "AcDbRasterImage"}},
                                 point(10, "1", "2", "3"),
                                 point(11, "0.5", "0", "0"),
                                 point(12, "0", "0.25", "0"),
                                 {{13, "300"},
                                  {23, "200"},
                                  {340, "31"},
                                  {70, "13"},
                                  {280, "1"},
                                  {281, "60"},
                                  {282, "40"},
                                  {283, "10"},
                                  {71, "2"},
                                  {91, "3"},
                                  {14, "1"},
                                  {24, "2"},
                                  {14, "3"},
                                  {24, "4"},
                                  {14, "5"},
                                  {24, "0"},
                                  {290, "1"}}});
    const Groups objects{{0, "DICTIONARY"},
                         {5, "30"},
                         {3, "ACAD_IMAGE_DICT"},
                         {350, "32"},
                         {0, "DICTIONARY"},
                         {5, "32"},
                         {3, "plan"},
                         {350, "31"},
                         {0, "IMAGEDEF"},
                         {5, "31"},
                         {1, "maps/plan.png"},
                         {10, "300"},
                         {20, "200"},
                         {11, "0.1"},
                         {21, "0.2"},
                         {280, "0"},
                         {281, "5"}};
    inBothForms(
        {section("ENTITIES", image), section("OBJECTS", objects)}, [](const ReadDrawing& drawn) {
            const auto* read = drawn.entity<KdDbRasterImage>(0);
            KdGePoint3d origin;
            KdGeVector3d u, v;
            read->getOrientation(origin, u, v);
            EXPECT_EQ(origin, (KdGePoint3d{1, 2, 3}));
            EXPECT_EQ(u, (KdGeVector3d{150, 0, 0}));
            EXPECT_EQ(v, (KdGeVector3d{0, 50, 0}));
            EXPECT_TRUE(read->isSetDisplayOpt(KdDbRasterImage::kTransparent));
            EXPECT_FALSE(read->isSetDisplayOpt(KdDbRasterImage::kShowUnAligned));
            EXPECT_EQ(read->brightness(), 60);
            EXPECT_EQ(read->contrast(), 40);
            EXPECT_EQ(read->fade(), 10);
            EXPECT_TRUE(read->isClipInverted());
            KdArray<KdGePoint3d> outline;
            EXPECT_EQ(read->getOutline(outline), eOk);
            ASSERT_EQ(outline.length(), 3);
            EXPECT_EQ(outline[1], (KdGePoint3d{1 + 3.5 * 0.5, 2 + 195.5 * 0.25, 3}));
            const OpenForRead<KdDbRasterImageDef> definition(read->imageDefId());
            ASSERT_TRUE(definition);
            EXPECT_EQ(definition->sourceFileName(), L"maps/plan.png");
            EXPECT_EQ(definition->size(), (KdGeVector2d{300, 200}));
            EXPECT_EQ(definition->resolutionMMPerPixel(), (KdGeVector2d{0.1, 0.2}));
            EXPECT_EQ(definition->resolutionUnits(), RasterImageDefMembers::ResolutionUnit::Inch);
            EXPECT_FALSE(definition->isLoaded());
            EXPECT_EQ(
                kddbDictionaryEntry(KdDbRasterImageDef::imageDictionary(*drawn.database), L"plan"),
                read->imageDefId());
        });
}

TEST(OleFrame, IsReadWithItsCorners)
{
    const Groups frame = joined({{{0, "OLE2FRAME"}, {100, "AcDbOle2Frame"}, {70, "2"}, {3, "OLE"}},
                                 point(10, "1", "9", "0"),
                                 point(11, "7", "4", "0"),
                                 {{71, "3"}, {72, "0"}, {90, "2"}, {310, "0102"}, {1, "OLE"}}});
    inBothForms({section("ENTITIES", frame)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbOle2Frame>(0);
        EXPECT_EQ(read->getType(), KdDbOleFrame::kStatic);
        EXPECT_EQ(read->location()[2], (KdGePoint3d{7, 4, 0}));
    });
}

const Groups kMlineStyles{{0, "DICTIONARY"}, {5, "30"},         {3, "ACAD_MLINESTYLE"},
                          {350, "32"},       {0, "DICTIONARY"}, {5, "32"},
                          {3, "WALL"},       {350, "31"},       {0, "MLINESTYLE"},
                          {5, "31"},         {2, "WALL"},       {3, "thick"},
                          {71, "2"},         {49, "0.5"},       {49, "-0.5"}};

Groups mline(const Groups& style)
{
    return joined({{{0, "MLINE"}, {100, "AcDbMline"}},
                   style,
                   {{40, "20"}, {70, "2"}, {71, "3"}, {72, "2"}},
                   point(10, "1", "2", "3"),
                   point(11, "1", "2", "3"),
                   point(12, "1", "0", "0"),
                   point(11, "4", "5", "6")});
}

TEST(Multiline, IsReadWithItsStyle)
{
    inBothForms(
        {section("ENTITIES", mline({{2, "WALL"}, {340, "31"}})), section("OBJECTS", kMlineStyles)},
        [](const ReadDrawing& drawn) {
            const auto* read = drawn.entity<KdDbMline>(0);
            EXPECT_EQ(read->scale(), 20);
            EXPECT_EQ(read->justification(), KdDbMline::kBottom);
            EXPECT_TRUE(read->closedMline());
            ASSERT_EQ(read->numVertices(), 2);
            KdGePoint3d vertex;
            EXPECT_EQ(read->getVertexAt(1, vertex), eOk);
            EXPECT_EQ(vertex, (KdGePoint3d{4, 5, 6}));
            const OpenForRead<KdDbMlineStyle> style(read->style());
            ASSERT_TRUE(style);
            EXPECT_EQ(style->description(), L"thick");
            EXPECT_EQ(style->offsets(), (std::vector<double>{0.5, -0.5}));
        });
}

TEST(Multiline, FindsItsStyleByNameWhereTheHandleLeadsNowhere)
{
    inBothForms(
        {section("ENTITIES", mline({{2, "wall"}, {340, "999"}})), section("OBJECTS", kMlineStyles)},
        [](const ReadDrawing& drawn) {
            EXPECT_EQ(drawn.entity<KdDbMline>(0)->style().handle(), 0x31u);
        });
}

Groups arcText(const char* start, const char* end)
{
    return joined({{{0, "ARCALIGNEDTEXT"},
                    {100, "AcDbArcAlignedText"},
                    {1, "Around"},
                    {2, "romans"},
                    {7, "Standard"}},
                   point(10, "1", "2", "3"),
                   {{40, "10"},
                    {41, "0.8"},
                    {42, "2.5"},
                    {43, "0.1"},
                    {44, "0.2"},
                    {45, "0.3"},
                    {46, "0.4"},
                    {50, start},
                    {51, end},
                    {70, "1"},
                    {71, "2"},
                    {72, "4"},
                    {73, "2"},
                    {74, "1"},
                    {75, "0"},
                    {76, "1"}},
                   point(210, "0", "0", "-1")});
}

TEST(ArcAlignedText, IsReadWithAllThatPlacesItsLetters)
{
    inBothForms({section("ENTITIES", arcText("0.5", "2.5"))}, [](const ReadDrawing& drawn) {
        const ArcTextData& read = drawn.entity<KdDbArcAlignedText>(0)->textData();
        EXPECT_EQ(read.text, L"Around");
        EXPECT_EQ(read.fontName, L"romans");
        EXPECT_EQ(read.center, (KdGePoint3d{1, 2, 3}));
        EXPECT_EQ(read.radius, 10.0);
        EXPECT_EQ(read.widthFactor, 0.8);
        EXPECT_EQ(read.height, 2.5);
        EXPECT_EQ(read.letterSpacing, 0.1);
        EXPECT_EQ(read.offset, 0.2);
        EXPECT_EQ(read.rightOffset, 0.3);
        EXPECT_EQ(read.leftOffset, 0.4);
        EXPECT_EQ(read.startAngle, 0.5);
        EXPECT_EQ(read.endAngle, 2.5);
        EXPECT_EQ(read.alignment, KdDb::kArcCenter);
        EXPECT_EQ(read.normal, (KdGeVector3d{0, 0, -1}));
        EXPECT_TRUE(read.reversed && read.inward && read.concave && read.bold && read.underlined);
        EXPECT_FALSE(read.italic);
    });
}

TEST(ArcAlignedText, MayHaveItsAnglesInDegrees)
{
    inBothForms({section("ENTITIES", arcText("45", "90"))}, [](const ReadDrawing& drawn) {
        const ArcTextData& read = drawn.entity<KdDbArcAlignedText>(0)->textData();
        EXPECT_DOUBLE_EQ(read.startAngle, kPi / 4);
        EXPECT_DOUBLE_EQ(read.endAngle, kPi / 2);
    });
}

TEST(RText, IsReadWithItsPlace)
{
    const Groups text = joined({{{0, "RTEXT"}, {100, "RText"}},
                                point(10, "1", "2", "3"),
                                {{50, "90"}, {40, "2.5"}, {70, "1"}, {1, "$(getvar,date)"}},
                                point(210, "0", "0", "1")});
    inBothForms({section("ENTITIES", text)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbRText>(0);
        EXPECT_EQ(read->contents(), L"$(getvar,date)");
        EXPECT_EQ(read->position(), (KdGePoint3d{1, 2, 3}));
        EXPECT_EQ(read->height(), 2.5);
        EXPECT_DOUBLE_EQ(read->rotation(), kPi / 2);
        EXPECT_TRUE(read->isExpression());
    });
}

TEST(Light, IsReadWithAnglesInRadians)
{
    const Groups light = joined({{{0, "LIGHT"},
                                  {100, "AcDbLight"},
                                  {90, "1"},
                                  {1, "Sun"},
                                  {70, "3"},
                                  {290, "0"},
                                  {63, "5"},
                                  {421, "66051"},
                                  {40, "1.5"}},
                                 point(10, "1", "2", "3"),
                                 point(11, "4", "5", "6"),
                                 {{50, "45"}, {51, "90"}, {293, "1"}, {91, "256"}}});
    inBothForms({section("ENTITIES", light)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbLight>(0);
        EXPECT_EQ(read->name(), L"Sun");
        EXPECT_EQ(read->lightType(), KdDbLight::kSpot);
        EXPECT_FALSE(read->isOn());
        EXPECT_EQ(read->lightColor().color(), 0xC2010203u);
        EXPECT_EQ(read->intensity(), 1.5);
        EXPECT_EQ(read->position(), (KdGePoint3d{1, 2, 3}));
        EXPECT_EQ(read->targetLocation(), (KdGePoint3d{4, 5, 6}));
        EXPECT_DOUBLE_EQ(read->hotspotAngle(), kPi / 4);
        EXPECT_DOUBLE_EQ(read->falloffAngle(), kPi / 2);
    });
}

TEST(Light, OfAnOldDrawingHasItsColourInOneWord)
{
    const Groups light{{0, "LIGHT"}, {100, "AcDbLight"}, {90, "1"}, {90, "-1023410171"}};
    inBothForms({section("ENTITIES", light)}, [](const ReadDrawing& drawn) {
        EXPECT_EQ(drawn.entity<KdDbLight>(0)->lightColor().colorIndex(), 5);
    });
}

Groups sectionPlane(const char* flag)
{
    return joined({{{0, "SECTIONOBJECT"},
                    {5, "20"},
                    {100, "AcDbEntity"},
                    {62, "3"},
                    {100, "AcDbSection"},
                    {90, "2"},
                    {91, "5"},
                    {1, "Cut"}},
                   point(10, "0", "0", "1"),
                   {{40, "5"}, {41, "15"}, {70, "70"}, {62, "9"}, {92, "2"}},
                   point(11, "1", "2", "3"),
                   point(11, "4", "5", "6"),
                   {{93, "0"},
                    {1001, "IsSlice"},
                    {1070, flag},
                    {1070, "1"},
                    {1001, "ThicknessDepth"},
                    {1040, "0.75"}}});
}

TEST(Section, IsReadWithItsSlice)
{
    for (const char* flag : {"0", "1"}) {
        inBothForms({section("ENTITIES", sectionPlane(flag))}, [flag](const ReadDrawing& drawn) {
            const auto* read = drawn.entity<KdDbSection>(0);
            EXPECT_EQ(read->getName(), L"Cut");
            EXPECT_EQ(read->state(), KdDbSection::kBoundary);
            EXPECT_EQ(read->isSlice(), *flag == '1');
            EXPECT_EQ(read->thicknessDepth(), 0.75);
            EXPECT_EQ(read->topPlane(), 5);
            EXPECT_EQ(read->bottomPlane(), 15);
            EXPECT_EQ(read->color().colorIndex(), 3); // not that of the section's own part
            ASSERT_EQ(read->numVertices(), 2);
            KdGePoint3d vertex;
            EXPECT_EQ(read->getVertex(1, vertex), eOk);
            EXPECT_EQ(vertex, (KdGePoint3d{4, 5, 6}));
            EXPECT_FALSE(read->isLiveSectionEnabled());
        });
    }
}

TEST(Section, IsLiveByTheManagerOfTheDrawing)
{
    for (const char* live : {"0", "1"}) {
        const Groups objects{{0, "DICTIONARY"},
                             {5, "30"},
                             {3, "ACAD_SECTION_MANAGER"},
                             {350, "31"},
                             {0, "SECTION_MANAGER"},
                             {5, "31"},
                             {330, "30"},
                             {100, "AcDbSectionManager"},
                             {70, live},
                             {90, "1"},
                             {330, "20"}};
        inBothForms({section("ENTITIES", sectionPlane("0")), section("OBJECTS", objects)},
                    [live](const ReadDrawing& drawn) {
                        EXPECT_EQ(drawn.entity<KdDbSection>(0)->isLiveSectionEnabled(),
                                  *live == '1');
                    });
    }
}

TEST(PointCloud, IsReadWithItsFile)
{
    const Groups cloud = joined({{{0, "ACDBPOINTCLOUDEX"}, {100, "AcDbPointCloudEx"}, {70, "1"}},
                                 point(10, "9", "9", "9"),
                                 point(11, "9", "9", "9"),
                                 point(12, "1", "2", "3"),
                                 point(210, "0", "500", "0"),
                                 {{290, "1"},
                                  {330, "31"},
                                  {360, "0"},
                                  {1, "Hall"},
                                  {291, "0"},
                                  {71, "3"},
                                  {1, "ramp"},
                                  {71, "9"},
                                  {295, "1"}}});
    const Groups objects{{0, "DICTIONARY"}, {5, "30"}, {0, "ACDBPOINTCLOUDDEFEX"},
                         {5, "31"},         {90, "1"}, {1, "scan.rcp"}};
    inBothForms({section("ENTITIES", cloud), section("OBJECTS", objects)},
                [](const ReadDrawing& drawn) {
                    const auto* read = drawn.entity<KdDbPointCloudEx>(0);
                    EXPECT_EQ(read->location(), (KdGePoint3d{1, 2, 3}));
                    EXPECT_EQ(read->scale(), 500);
                    EXPECT_DOUBLE_EQ(read->rotation(), kPi / 2);
                    EXPECT_EQ(read->getPointCloudName(), L"Hall");
                    EXPECT_EQ(read->getActiveFileName(), L"scan.rcp");
                    EXPECT_EQ(read->stylizationType(), 3);
                    EXPECT_TRUE(read->locked());
                    EXPECT_TRUE(read->showCropped());
                });
}

TEST(GlobeOfDrawing, IsReadWithItsMesh)
{
    const Groups globe = joined({{{0, "GEODATA"}, {5, "50"}, {100, "AcDbGeoData"}},
                                 point(10, "1", "2", "3"),
                                 point(11, "11.5", "48.25", "500"),
                                 {{40, "0.001"}, {41, "0.01"}},
                                 {{12, "0"}, {22, "2"}},
                                 {{13, "0"}, {23, "0"}, {14, "10"}, {24, "40"}},
                                 {{13, "4"}, {23, "0"}, {14, "12"}, {24, "40"}},
                                 {{13, "0"}, {23, "4"}, {14, "10"}, {24, "44"}},
                                 {{97, "0"}, {98, "1"}, {99, "2"}}});
    inBothForms({section("OBJECTS", globe)}, [](const ReadDrawing& drawn) {
        const auto* read = dynamic_cast<const KdDbGeoData*>(drawn.object(0x50));
        ASSERT_NE(read, nullptr);
        const KdGePoint3d place = read->toGlobe({1, 1, 103});
        EXPECT_NEAR(place.x, 10.5, 1e-12) << "by the mesh, which is more exact";
        EXPECT_NEAR(place.y, 41.0, 1e-12);
        EXPECT_NEAR(place.z, 501.0, 1e-12);
    });
}

TEST(Marker, IsReadWithItsText)
{
    const Groups marker =
        joined({{{0, "POSITIONMARKER"}, {100, "AcDbGeoPositionMarker"}, {90, "0"}},
                point(10, "1", "2", "3"),
                {{40, "1.5"},
                 {1, "benchmark"},
                 {40, "0.25"},
                 {290, "1"},
                 {280, "2"},
                 {290, "0"},
                 {101, "Embedded Object"}},
                point(10, "7", "8", "9"),
                {{40, "3"}, {1, "BM 1"}}});
    inBothForms({section("ENTITIES", marker)}, [](const ReadDrawing& drawn) {
        const auto* read = drawn.entity<KdDbGeoPositionMarker>(0);
        EXPECT_EQ(read->position(), (KdGePoint3d{1, 2, 3}));
        EXPECT_EQ(read->radius(), 1.5);
        EXPECT_EQ(read->landingGap(), 0.25);
        EXPECT_EQ(read->notes(), L"benchmark");
        EXPECT_EQ(read->textAlignmentType(), KdDbGeoPositionMarker::kRight);
        KdString contents;
        EXPECT_EQ(read->mtext().contents(contents), eOk);
        EXPECT_EQ(contents, L"BM 1");
        EXPECT_EQ(read->mtext().location(), (KdGePoint3d{7, 8, 9}));
        EXPECT_EQ(read->geoPosition(), KdGePoint3d());
    });
}

/// The text as drawings hold it: letters counted from the other end, in lines, of which long ones
/// go on under another code.
Groups masked(const std::string& text, bool mask)
{
    constexpr std::size_t kMost = 60;
    Groups groups;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        for (std::size_t at = 0; at == 0 || at < line.size(); at += kMost) {
            std::string piece;
            for (const char c : line.substr(at, kMost)) {
                const char stored = c == ' ' || !mask ? c : static_cast<char>(159 - c);
                piece += stored == '^' ? "^ " : std::string(1, stored);
            }
            groups.emplace_back(at == 0 ? 1 : 3, piece);
        }
    }
    return groups;
}

TEST(Region, FindsItsBodyInItsOwnRecord)
{
    std::string text = body_text::rectangle(3, 2);
    text.replace(text.find("Test"), 4, "TAst"); // the mask makes a caret of the A
    for (const bool mask : {true, false}) {
        const Groups region =
            joined({{{0, "REGION"}, {5, "20"}, {100, "AcDbModelerGeometry"}, {70, "1"}},
                    masked(text, mask),
                    {{1001, "ACAD"}, {1000, "no part of it"}}});
        inBothForms({header("AC1015"), section("ENTITIES", region)}, [](const ReadDrawing& drawn) {
            const auto* read = drawn.entity<KdDbRegion>(0);
            double area = 0.0;
            EXPECT_EQ(read->getArea(area), eOk);
            EXPECT_DOUBLE_EQ(area, 6);
        });
    }
}

std::string hexOf(const std::string& bytes)
{
    static constexpr char kDigits[] = "0123456789ABCDEF";
    std::string hex;
    for (const char c : bytes) {
        hex += kDigits[static_cast<unsigned char>(c) >> 4];
        hex += kDigits[static_cast<unsigned char>(c) & 15];
    }
    return hex;
}

/// A record of the section for bodies, its data in chunks.
Groups bodyRecord(const char* entity, const char* part, const std::string& data)
{
    constexpr std::size_t kChunk = 100;
    Groups groups{
        {0, "ACDSRECORD"}, {90, "1"}, {2, "AcDbDs::ID"}, {280, "10"},
        {320, entity},     {2, part}, {280, "15"},       {94, std::to_string(data.size())}};
    for (std::size_t at = 0; at < data.size(); at += kChunk)
        groups.emplace_back(310, hexOf(data.substr(at, kChunk)));
    return groups;
}

TEST(Region, FindsItsBodyInTheSectionForBodies)
{
    const Groups regions{
        {0, "REGION"}, {5, "20"}, {100, "AcDbModelerGeometry"}, {290, "1"}, {2, "{guid}"},
        {0, "REGION"}, {5, "21"}, {100, "AcDbModelerGeometry"}, {290, "1"}, {2, "{other}"}};
    const Groups bodies = joined({bodyRecord("20", "Thumbnail_Data", "no body"),
                                  bodyRecord("99", "ASM_Data", body_text::rectangle(9, 9)),
                                  bodyRecord("20", "ASM_Data", body_text::rectangle(3, 2))});
    inBothForms({header("AC1027"), section("ENTITIES", regions), section("ACDSDATA", bodies)},
                [](const ReadDrawing& drawn) {
                    double area = 0.0;
                    EXPECT_EQ(drawn.entity<KdDbRegion>(0)->getArea(area), eOk);
                    EXPECT_DOUBLE_EQ(area, 6);
                    EXPECT_EQ(drawn.entity<KdDbRegion>(1)->getArea(area), eNotApplicable);
                });
}

TEST(Region, HasNoBodyInADrawingWithoutThatSection)
{
    const Groups region{{0, "REGION"}, {100, "AcDbModelerGeometry"}, {290, "1"}, {2, "{guid}"}};
    inBothForms({header("AC1027"), section("ENTITIES", region)}, [](const ReadDrawing& drawn) {
        EXPECT_TRUE(drawn.entity<KdDbRegion>(0)->bodyData().empty());
    });
}

TEST(Solid, IsReadWithItsHistory)
{
    const Groups solid{{0, "3DSOLID"},       {5, "20"},  {100, "AcDbModelerGeometry"}, {290, "1"},
                       {100, "AcDb3dSolid"}, {350, "31"}};
    const Groups objects{{0, "DICTIONARY"}, {5, "30"},  {0, "ACSH_HISTORY_CLASS"},
                         {5, "31"},         {280, "0"}, {281, "1"}};
    inBothForms({section("ENTITIES", solid), section("OBJECTS", objects)},
                [](const ReadDrawing& drawn) {
                    EXPECT_TRUE(drawn.entity<KdDb3dSolid>(0)->recordHistory());
                    EXPECT_FALSE(drawn.entity<KdDb3dSolid>(0)->showHistory());
                });
}

TEST(Surface, IsReadWithItsIsolines)
{
    const Groups surface{{0, "REVOLVEDSURFACE"},
                         {100, "AcDbModelerGeometry"},
                         {70, "1"},
                         {100, "AcDbSurface"},
                         {71, "6"},
                         {72, "4"},
                         {100, "AcDbRevolvedSurface"},
                         {71, "9"},
                         {40, "3.14"}};
    inBothForms({section("ENTITIES", surface)}, [](const ReadDrawing& drawn) {
        EXPECT_EQ(drawn.entity<KdDbRevolvedSurface>(0)->uIsolineDensity(), 6);
        EXPECT_EQ(drawn.entity<KdDbRevolvedSurface>(0)->vIsolineDensity(), 4);
    });
}

} // namespace
