// Block references whose contents are cut along a boundary.
#include <cmath>
#include <numbers>

#include <entities/attribute.h>
#include <entities/circle.h>
#include <entities/hatch.h>
#include <entities/image.h>
#include <entities/point.h>
#include <entities/ray.h>
#include <entities/spatial_filter.h>
#include <entities/text.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;
constexpr double kPi = std::numbers::pi;

class ClipScenes : public SceneTest
{
  protected:
    KdDbDictionary* addDictionary(KdDbObjectId owner)
    {
        auto* dictionary = new KdDbDictionary;
        drawing.addObject(dictionary, owner);
        return dictionary;
    }

    /// Cuts a reference along a boundary in world coordinates.
    template <class Fill>
    void cut(KdDbBlockReference* reference, Fill fill)
    {
        auto* extension = addDictionary(reference->objectId());
        auto* filters = addDictionary(extension->objectId());
        auto* filter = new KdDbSpatialFilter;
        fill(filter->edit());
        drawing.addObject(filter, filters->objectId());
        change(extension, [&](DictionaryMembers& members) {
            members.entries.push_back({L"ACAD_FILTER", filters->objectId()});
        });
        change(filters, [&](DictionaryMembers& members) {
            members.entries.push_back({L"SPATIAL", filter->objectId()});
        });
        change(reference, [&](BlockReferenceMembers& members) {
            members.links.edit().extensionDictionary = extension->objectId();
        });
    }
    void cut(KdDbBlockReference* reference, std::vector<KdGePoint2d> boundary)
    {
        cut(reference, [&](SpatialFilterMembers& filter) { filter.boundary = boundary; });
    }

    KdDbBlockReference* reference(const KdGePoint3d& position = {})
    {
        return addReference(modelId(), block, position);
    }
    void addSquare()
    {
        addTo<KdDbHatch>(block, [](HatchMembers& hatch) {
            hatch.solid = true;
            HatchLoop loop;
            loop.type = HatchLoop::kPolyline;
            loop.vertices = {{{0, 0}}, {{10, 0}}, {{10, 10}}, {{0, 10}}};
            hatch.loops = {loop};
        });
    }

    KdDbObjectId block = addBlock(L"B");
};

TEST_F(ClipScenes, RectanglesOfTwoCornersCutLines)
{
    addLine(block, {0, 2, 0}, {10, 2, 0});
    addLine(block, {0, 9, 0}, {10, 9, 0});
    addLine(block, {4, 1, 0}, {5, 2, 0});
    auto* cutOne = reference();
    cut(cutOne, {{3, 5}, {6, 0}});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, cutOne);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(3, 2), IsPoint(6, 2)));
    EXPECT_THAT(pointsOf(*scene, shapes[1]), ElementsAre(IsPoint(4, 1), IsPoint(5, 2)));
    EXPECT_THAT(itemOf(*scene, cutOne)->box, IsBox(3, 1, 6, 2));
    EXPECT_THAT(scene->box, IsBox(3, 1, 6, 2));
}

TEST_F(ClipScenes, BoundariesMoveWithTheirReference)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    auto* moved = addReference(modelId(), block, [](BlockReferenceMembers& members) {
        members.position = {100, 50, 0};
        members.scale = {2, 2, 2};
        members.rotation = kPi / 2.0;
    });
    // Drawn around the places 3 to 6 of the line when it stood at (20, 5) without scale.
    cut(moved, [](SpatialFilterMembers& filter) {
        filter.boundary = {{23, 4}, {26, 6}};
        filter.worldToBlock.entry[0][3] = -20;
        filter.worldToBlock.entry[1][3] = -5;
    });
    const auto scene = build();
    const auto shape = shapesOf(*scene, moved).at(0);
    EXPECT_THAT(pointsOf(*scene, shape), ElementsAre(IsPoint(100, 56), IsPoint(100, 62)));
}

TEST_F(ClipScenes, BoundariesHaveAFrameOfTheirOwn)
{
    addLine(block, {0, 1, 0}, {10, 1, 0});
    auto* turned = reference();
    cut(turned, [](SpatialFilterMembers& filter) {
        filter.boundary = {{0, -2}, {5, -4}}; // x along the world's y, y against its x
        filter.worldToBoundary =
            KdGeMatrix3d::fromFrame({0, 0, 0}, {0, -1, 0}, {1, 0, 0}, KdGeVector3d::kZAxis);
    });
    const auto scene = build();
    EXPECT_THAT(pointsOf(*scene, shapesOf(*scene, turned).at(0)),
                ElementsAre(IsPoint(2, 1), IsPoint(4, 1)));
}

TEST_F(ClipScenes, PolygonsWithDentsLeaveSeveralPiecesOfALine)
{
    addLine(block, {-5, 5, 0}, {15, 5, 0});
    auto* cutOne = reference();
    // A U, with its dent from 4 to 6 down to 3.
    cut(cutOne, {{0, 0}, {10, 0}, {10, 10}, {6, 10}, {6, 3}, {4, 3}, {4, 10}, {0, 10}});
    const auto scene = build();
    const auto shape = shapesOf(*scene, cutOne).at(0);
    EXPECT_EQ(stepsOf(*scene, shape), "MLML");
    EXPECT_THAT(pointsOf(*scene, shape),
                ElementsAre(IsPoint(0, 5), IsPoint(4, 5), IsPoint(6, 5), IsPoint(10, 5)));
}

TEST_F(ClipScenes, CurvesStayCurvesWhereTheyAreCut)
{
    addTo<KdDbCircle>(block, [](CircleMembers& circle) { circle.radius = 5.0; });
    auto* cutOne = reference();
    cut(cutOne, {{3, -9}, {9, 9}}); // leaves the cap between (3, -4) and (3, 4)
    const auto scene = build();
    const auto shape = shapesOf(*scene, cutOne).at(0);
    EXPECT_NEAR(shape.box.left, 3.0, kNear);
    EXPECT_NEAR(shape.box.top, 4.0, 1e-5);
    EXPECT_NEAR(shape.box.bottom, -4.0, 1e-5);
    for (const QPointF& point : pointsAlong(*scene, shape, 8)) {
        EXPECT_NEAR(std::hypot(point.x(), point.y()), 5.0, 1e-4);
        EXPECT_GE(point.x(), 3.0 - kNear);
    }
    EXPECT_EQ(stepsOf(*scene, shape).find('L'), std::string::npos);
}

TEST_F(ClipScenes, FillsAreCutAlongTheBoundary)
{
    addSquare();
    auto* cutOne = reference();
    cut(cutOne, {{-5, 5}, {5, -5}, {15, 5}, {5, 15}}); // a square on its corner
    const auto scene = build();
    const auto shape = shapesOf(*scene, cutOne).at(0);
    EXPECT_EQ(shape.kind, Kind::Fill);
    EXPECT_THAT(shape.box, IsBox(0, 0, 10, 10)); // only touches the sides
    auto* small = reference();
    cut(small, {{2, 5}, {5, 2}, {8, 5}, {5, 8}});
    const auto again = build();
    const auto diamond = shapesOf(*again, small).at(0);
    EXPECT_THAT(diamond.box, IsBox(2, 2, 8, 8));
    EXPECT_TRUE(holds(*again, diamond, {5, 5}));
    EXPECT_FALSE(holds(*again, diamond, {3, 3}));
}

TEST_F(ClipScenes, FillsInBoundariesWithDentsKeepToTheInside)
{
    addSquare();
    auto* cutOne = reference();
    cut(cutOne, {{1, 1}, {9, 1}, {9, 9}, {6, 9}, {6, 3}, {4, 3}, {4, 9}, {1, 9}});
    const auto scene = build();
    const auto shape = shapesOf(*scene, cutOne).at(0);
    EXPECT_THAT(shape.box, IsBox(1, 1, 9, 9));
    EXPECT_TRUE(holds(*scene, shape, {2, 8}));
    EXPECT_TRUE(holds(*scene, shape, {8, 8}));
    EXPECT_TRUE(holds(*scene, shape, {5, 2}));
    EXPECT_FALSE(holds(*scene, shape, {5, 6}));
}

TEST_F(ClipScenes, InvertedBoundariesRunAroundWhatTheyHide)
{
    addSquare();
    addLine(block, {0, 5, 0}, {10, 5, 0});
    auto* cutOne = reference();
    // Around the hole from 3 to 6, over a slit to the outer edge, and back.
    cut(cutOne, {{3, 3},
                 {0, 3},
                 {0, 0},
                 {10, 0},
                 {10, 10},
                 {0, 10},
                 {0, 3},
                 {3, 3},
                 {3, 6},
                 {6, 6},
                 {6, 3}});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, cutOne);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_FALSE(holds(*scene, shapes[0], {4.5, 4.5}));
    EXPECT_TRUE(holds(*scene, shapes[0], {1, 4.5}));
    EXPECT_TRUE(holds(*scene, shapes[0], {8, 4.5}));
    EXPECT_TRUE(holds(*scene, shapes[0], {4.5, 8}));
    EXPECT_THAT(pointsOf(*scene, shapes[1]),
                ElementsAre(IsPoint(0, 5), IsPoint(3, 5), IsPoint(6, 5), IsPoint(10, 5)));
}

TEST_F(ClipScenes, BoundariesThatAreOffCutNothing)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    auto* whole = reference();
    cut(whole, [](SpatialFilterMembers& filter) {
        filter.boundary = {{3, -1}, {6, 1}};
        filter.enabled = false;
    });
    EXPECT_THAT(itemOf(*build(), whole)->box, IsBox(0, 0, 10, 0));
}

TEST_F(ClipScenes, BoundariesWithoutAnAreaCutNothing)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    const std::vector<std::vector<KdGePoint2d>> boundaries{
        {}, {{3, 0}}, {{3, 0}, {6, 0}}, {{3, 0}, {5, 0}, {6, 0}}, {{NAN, 0}, {6, 5}}};
    for (const auto& boundary : boundaries)
        cut(reference(), boundary);
    const auto scene = build();
    ASSERT_THAT(scene->items, SizeIs(boundaries.size()));
    for (const SceneItem& item : scene->items)
        EXPECT_THAT(item.box, IsBox(0, 0, 10, 0));
}

TEST_F(ClipScenes, BoundariesCutInsideOfEachOther)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    const KdDbObjectId outer = addBlock(L"OUTER");
    cut(addReference(outer, block, KdGePoint3d{}), {{2, -1}, {6, 1}});
    auto* both = addReference(modelId(), outer, KdGePoint3d{});
    cut(both, {{4, -1}, {9, 1}});
    addLine(modelId(), {0, 3, 0}, {10, 3, 0}); // and nothing behind it
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, both)->box, IsBox(4, 0, 6, 0));
    EXPECT_THAT(scene->box, IsBox(0, 0, 10, 3));
}

TEST_F(ClipScenes, TextsAreWholeCutOrHidden)
{
    const auto addText = [&](double x, const wchar_t* text) {
        addTo<KdDbText>(block, [&](TextMembers& members) {
            members.text = text;
            members.height = 1.0;
            members.position = {x, 0, 0};
        });
    };
    addText(0, L"I");
    addText(10, L"HHHHHHHH");
    addText(30, L"I");
    auto* cutOne = reference();
    cut(cutOne, {{-1, -1}, {12.1, 0.5}});
    auto* wide = reference();
    cut(wide, {{-1, -1}, {5, 5}});
    const auto scene = build();
    EXPECT_EQ(shapesOf(*scene, wide).at(0).kind, Kind::Text);
    EXPECT_THAT(shapesOf(*scene, wide), SizeIs(1));
    const auto shapes = shapesOf(*scene, cutOne);
    ASSERT_GE(shapes.size(), 3U); // of the first text its lower half, of the second some letters
    for (const SceneShape& shape : shapes) {
        EXPECT_EQ(shape.kind, Kind::Fill);
        EXPECT_NEAR(shape.box.top, 0.5, kNear);
        EXPECT_LE(shape.box.right, 12.1 + kNear);
    }
    EXPECT_GT(itemOf(*scene, cutOne)->box.right, 11.5);
}

TEST_F(ClipScenes, ImagesShowThroughTheBoundary)
{
    addTo<KdDbRasterImage>(block, [](RasterImageMembers& image) {
        image.pixelU = {1, 0, 0};
        image.pixelV = {0, 1, 0};
        image.size = {8, 4};
        image.displayOptions = 1;
    });
    auto* cutOne = reference();
    cut(cutOne, {{2, 1}, {20, 20}});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, cutOne);
    ASSERT_THAT(shapes, SizeIs(2)); // the picture and its frame
    EXPECT_EQ(shapes[0].kind, Kind::Image);
    EXPECT_THAT(shapes[0].box, IsBox(2, 1, 8, 4));
    EXPECT_THAT(scene->images[0].placement.map(QPointF(1, 1)), IsPoint(8, 4));
    EXPECT_EQ(stepsOf(*scene, shapes[1]), "MLL"); // what is cut has no frame
}

TEST_F(ClipScenes, PointsAndRaysEndAtTheBoundary)
{
    addTo<KdDbPoint>(block, [](PointMembers& point) { point.position = {1, 1, 0}; });
    addTo<KdDbPoint>(block, [](PointMembers& point) { point.position = {7, 1, 0}; });
    addTo<KdDbRay>(block, [](RayMembers& ray) {
        ray.basePoint = {2, 2, 0};
        ray.direction = {1, 0, 0};
    });
    addTo<KdDbXline>(block, [](RayMembers& ray) {
        ray.basePoint = {-50, 3, 0};
        ray.direction = {1, 0, 0};
    });
    auto* cutOne = reference();
    cut(cutOne, {{0, 0}, {5, 5}});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, cutOne);
    ASSERT_THAT(shapes, SizeIs(3));
    EXPECT_EQ(shapes[0].kind, Kind::Marker);
    EXPECT_THAT(pointsOf(*scene, shapes[1]), ElementsAre(IsPoint(2, 2), IsPoint(5, 2)));
    EXPECT_THAT(pointsOf(*scene, shapes[2]), ElementsAre(IsPoint(0, 3), IsPoint(5, 3)));
}

TEST_F(ClipScenes, AttributesAreNoContentsOfTheBlock)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    auto* cutOne = reference();
    addPart<KdDbAttribute>(cutOne, [](AttributeMembers& attribute) {
        attribute.text = L"A";
        attribute.height = 1.0;
        attribute.position = {100, 100, 0};
    });
    cut(cutOne, {{3, -1}, {6, 1}});
    const auto scene = build();
    ASSERT_THAT(shapesOf(*scene, cutOne), SizeIs(2));
    EXPECT_EQ(shapesOf(*scene, cutOne)[1].kind, Kind::Text);
}

TEST_F(ClipScenes, GridsCutEachOfTheirPlaces)
{
    addLine(block, {0, 0, 0}, {10, 0, 0});
    auto* grid = addTo<KdDbMInsertBlock>(modelId(), [&](MInsertBlockMembers& members) {
        members.block = block;
        members.columns = 2;
        members.columnSpacing = 100;
    });
    cut(grid, {{3, -1}, {6, 1}});
    const auto scene = build();
    const auto shapes = shapesOf(*scene, grid);
    ASSERT_THAT(shapes, SizeIs(2));
    EXPECT_THAT(shapes[1].box, IsBox(103, 0, 106, 0));
}

TEST_F(ClipScenes, VeryManyCornersCutAsTheirBox)
{
    addLine(block, {-10, 0, 0}, {10, 0, 0});
    std::vector<KdGePoint2d> round;
    for (int i = 0; i < 2000; ++i)
        round.push_back({5.0 * std::cos(i * kPi / 1000.0), 5.0 * std::sin(i * kPi / 1000.0)});
    auto* cutOne = reference();
    cut(cutOne, round);
    EXPECT_THAT(itemOf(*build(), cutOne)->box, IsBox(-5, 0, 5, 0));
}

} // namespace
