#include <cmath>

#include <QDir>
#include <QImage>
#include <QTemporaryDir>

#include <entities/attribute.h>
#include <entities/fcf.h>
#include <entities/image.h>
#include <entities/leader.h>
#include <entities/light.h>
#include <entities/mleader.h>
#include <entities/ole_frame.h>
#include <entities/point.h>
#include <entities/proxy_entity.h>
#include <entities/section.h>
#include <entities/shape.h>
#include <entities/solid3d.h>
#include <entities/underlay.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;

class OtherScenes : public SceneTest
{
  protected:
    static void twoSteps(LeaderMembers& leader)
    {
        leader.vertices = {{0, 0, 0}, {10, 0, 0}, {20, 10, 0}};
        leader.dimension.overrides.set(KdDbDimVar::dimasz, 3.0);
    }
    static void fill(RasterImageMembers& image)
    {
        image.origin = {10, 20, 0};
        image.pixelU = {0.5, 0, 0};
        image.pixelV = {0, 0.5, 0};
        image.size = {8, 4};
        image.displayOptions = KdDbRasterImage::kShow;
    }
};

TEST_F(OtherScenes, PointsAreMarkersInTheFormOfTheDrawing)
{
    setHeader(L"PDMODE", std::int32_t{34});
    setHeader(L"PDSIZE", 4.0);
    const auto* point = add<KdDbPoint>([](PointMembers& members) { members.position = {1, 2, 3}; });
    const auto scene = build();
    ASSERT_THAT(scene->markers, SizeIs(1));
    EXPECT_EQ(scene->markers[0].mode, 34);
    EXPECT_EQ(scene->markers[0].size, 4.0);
    EXPECT_THAT(scene->markers[0].position, IsPoint(1, 2));
    EXPECT_THAT(itemOf(*scene, point)->box, IsBox(-1, 0, 3, 4));
}

TEST_F(OtherScenes, LeadersHaveAFilledArrowhead)
{
    const auto* leader = add<KdDbLeader>(twoSteps);
    const auto scene = build();
    const auto shapes = shapesOf(*scene, leader);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "MLL");
    EXPECT_EQ(shapes[1].kind, Kind::Fill);
    EXPECT_THAT(pointsOf(*scene, shapes[1]),
                ElementsAre(IsPoint(0, 0), IsPoint(3, -0.5), IsPoint(3, 0.5)));
}

TEST_F(OtherScenes, LeadersWithoutRoomOrHeadHaveNone)
{
    add<KdDbLeader>([](LeaderMembers& leader) {
        twoSteps(leader);
        leader.dimension.overrides.set(KdDbDimVar::dimasz, 6.0);
    });
    add<KdDbLeader>([](LeaderMembers& leader) {
        twoSteps(leader);
        leader.arrowHead = false;
    });
    EXPECT_THAT(build()->shapes, SizeIs(2));
}

TEST_F(OtherScenes, ArrowheadsMayBeBlocks)
{
    const KdDbObjectId arrow = addBlock(L"_TICK");
    addLine(arrow, {-0.5, -0.5, 0}, {0.5, 0.5, 0});
    const auto* leader = add<KdDbLeader>([&](LeaderMembers& members) {
        twoSteps(members);
        members.dimension.overrides.set(KdDbDimVar::dimldrblk, arrow);
        members.dimension.overrides.set(KdDbDimVar::dimclrd, kddbDimColor(1));
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, leader);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_THAT(shapes[1].box, IsBox(-1.5, -1.5, 1.5, 1.5));
    EXPECT_EQ(lookOf(*scene, shapes[0]).color, 0xFFFF0000);
}

TEST_F(OtherScenes, SplinedLeadersRunSmoothlyThroughTheirVertices)
{
    const auto* leader = add<KdDbLeader>([](LeaderMembers& members) {
        twoSteps(members);
        members.splined = true;
        members.arrowHead = false;
    });
    const auto scene = build();
    const auto shape = shapesOf(*scene, leader).at(0);
    EXPECT_EQ(stepsOf(*scene, shape), "MCC");
    EXPECT_THAT(pointsOf(*scene, shape)[3], IsPoint(10, 0));
    EXPECT_THAT(pointsOf(*scene, shape)[6], IsPoint(20, 10));
}

TEST_F(OtherScenes, MultileadersHaveLinesLandingAndText)
{
    const auto* leader = add<KdDbMLeader>([](MLeaderMembers& members) {
        members.content = KdDb::kMTextContent;
        members.text = std::make_unique<MTextData>();
        members.text->contents = L"NOTE";
        members.text->textHeight = 1.0;
        members.text->location = {13, 10, 0};
        members.lineColor = 0xC3000001;
        members.textColor = 0xC3000003;
        members.arrowSize = 2.0;
        members.scale = 2.0;
        MLeaderMembers::Branch& branch = members.branches.emplace_back();
        branch.lastPoint = {10, 10, 0};
        branch.direction = {1, 0, 0};
        branch.landingLength = 2.0;
        branch.lines.push_back({0, {{0, 10, 0}}});
        branch.lines.push_back({1, {{10, 0, 0}}});
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, leader);
    ASSERT_THAT(shapes, SizeIs(6)); // two lines with heads, the landing, the text
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(0, 10), IsPoint(10, 10)));
    EXPECT_NEAR(shapes[1].box.width(), 4.0, kNear);
    EXPECT_THAT(pointsOf(*scene, shapes[4]), ElementsAre(IsPoint(10, 10), IsPoint(12, 10)));
    EXPECT_EQ(lookOf(*scene, shapes[4]).color, 0xFFFF0000);
    EXPECT_EQ(shapes[5].kind, Kind::Text);
    EXPECT_EQ(lookOf(*scene, shapes[5]).color, 0xFF00FF00);
}

TEST_F(OtherScenes, MultileadersMayShowABlockWithItsAttributes)
{
    const KdDbObjectId tag = addBlock(L"TAG");
    addLine(tag, {-1, 0, 0}, {1, 0, 0});
    const auto* definition =
        addTo<KdDbAttributeDefinition>(tag, [](AttributeDefinitionMembers& members) {
            members.tag = L"NUMBER";
            members.height = 1.0;
        });
    const auto* leader = add<KdDbMLeader>([&](MLeaderMembers& members) {
        members.content = KdDb::kBlockContent;
        members.block = std::make_unique<MLeaderMembers::Block>();
        members.block->record = tag;
        members.block->position = {5, 5, 0};
        members.block->scale = {2, 2, 2};
        members.block->attributes.push_back({definition->objectId(), 0, 1.0, L"42"});
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, leader);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(3, 5), IsPoint(7, 5)));
    ASSERT_THAT(scene->texts, SizeIs(1));
    EXPECT_EQ(scene->texts[0].text, QStringLiteral("42"));
    EXPECT_EQ(scene->texts[0].placement.map(QPointF(0, 1)), QPointF(5, 7));
}

TEST_F(OtherScenes, ImagesShowTheirFrameWithoutAFile)
{
    const auto* image = add<KdDbRasterImage>([](RasterImageMembers& members) { fill(members); });
    const auto scene = build();
    ASSERT_THAT(scene->images, SizeIs(1));
    EXPECT_TRUE(scene->images[0].picture.isNull());
    EXPECT_EQ(scene->images[0].placement.map(QPointF(1, 1)), QPointF(14, 22));
    EXPECT_THAT(itemOf(*scene, image)->box, IsBox(10, 20, 14, 22));
    EXPECT_THAT(shapesOf(*scene, image), SizeIs(2));
}

TEST_F(OtherScenes, ImagesAreFoundBesideTheDrawing)
{
    const QTemporaryDir folder;
    QImage picture(8, 4, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(QDir(folder.path()).filePath(QStringLiteral("plan.png"))));
    auto* definition = new KdDbRasterImageDef;
    definition->edit().sourceFileName = L"C:\\Elsewhere\\plan.png";
    drawing.addObject(definition, {});
    add<KdDbRasterImage>([&](RasterImageMembers& members) {
        fill(members);
        members.definition = definition->objectId();
    });
    const auto scene = buildScene(drawing, modelId(), nullptr, {}, folder.path());
    ASSERT_THAT(scene->images, SizeIs(1));
    EXPECT_EQ(scene->images[0].picture.size(), QSize(8, 4));
    EXPECT_EQ(scene->images[0].picture.pixel(1, 1), qRgb(255, 0, 0));
}

TEST_F(OtherScenes, InvertedClippingLeavesAHole)
{
    const auto* image = add<KdDbRasterImage>([](RasterImageMembers& members) {
        fill(members);
        members.clipped = true;
        members.clipIsInverted = true;
        members.clipPolygon = {{1.5, 0.5}, {5.5, 2.5}};
    });
    const auto scene = build();
    const auto shape = shapesOf(*scene, image).at(0);
    EXPECT_EQ(shape.kind, Kind::Image);
    EXPECT_FALSE(holds(*scene, shape, {12, 21}));
    EXPECT_TRUE(holds(*scene, shape, {10.5, 21}));
}

TEST_F(OtherScenes, WipeoutsHideAndHaveAnEdge)
{
    const auto* wipeout = add<KdDbWipeout>([](RasterImageMembers& members) { fill(members); });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, wipeout);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_EQ(shapes[0].kind, Kind::Wipeout);
    EXPECT_EQ(shapes[1].kind, Kind::Stroke);
    EXPECT_THAT(shapes[0].box, IsBox(10, 20, 14, 22));
}

TEST_F(OtherScenes, ForeignContentHasAFrame)
{
    const auto* ole = add<KdDbOle2Frame>([](OleFrameMembers& members) {
        members.upperLeft = {0, 5, 0};
        members.lowerRight = {10, 0, 0};
    });
    const auto* page = add<KdDbPdfReference>([](UnderlayMembers& members) {
        members.position = {100, 0, 0};
        members.scale = {2, 2, 2};
        members.clipPolygon = {{0, 0}, {3, 4}};
    });
    const auto* whole = add<KdDbPdfReference>([](UnderlayMembers&) {});
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, ole)->box, IsBox(0, 0, 10, 5));
    EXPECT_THAT(itemOf(*scene, page)->box, IsBox(100, 0, 106, 8));
    EXPECT_THAT(shapesOf(*scene, whole), IsEmpty()); // how large it is stands in the page's file
}

TEST_F(OtherScenes, ShapesShowTheSquareTheyAreDrawnIn)
{
    const auto* shape = add<KdDbShape>([](ShapeMembers& members) {
        members.position = {1, 1, 0};
        members.size = 2;
        members.widthFactor = 1.5;
    });
    EXPECT_THAT(itemOf(*build(), shape)->box, IsBox(1, 1, 4, 3));
}

TEST_F(OtherScenes, SectionsAndLightsAreSigns)
{
    const auto* section = add<KdDbSection>([](SectionMembers& members) {
        members.vertices = {{0, 0, 0}, {5, 0, 0}, {5, 5, 0}};
    });
    add<KdDbLight>([](LightMembers& members) { members.position = {9, 9, 9}; });
    const auto scene = build();
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, section)[0]), "MLL");
    ASSERT_THAT(scene->markers, SizeIs(1));
    EXPECT_LT(scene->markers[0].size, 0.0); // of one size on the screen
}

TEST_F(OtherScenes, TolerancesAreDrawn)
{
    const auto* tolerance = add<KdDbFcf>([](FcfMembers& members) { members.text = L"0.1%%vA"; });
    const auto scene = build();
    EXPECT_FALSE(shapesOf(*scene, tolerance).empty());
}

TEST_F(OtherScenes, ProxiesAndEmptySolidsAreItemsWithoutShapes)
{
    add<KdDbProxyEntity>([](ProxyEntityMembers&) {});
    add<KdDb3dSolid>([](Solid3dMembers&) {});
    const auto scene = build();
    EXPECT_THAT(scene->items, SizeIs(2));
    EXPECT_THAT(scene->shapes, IsEmpty());
}

} // namespace
