#include <cmath>
#include <numbers>

#include <entities/attribute.h>
#include <entities/circle.h>
#include <entities/draw_order.h>
#include <entities/linear_dimensions.h>
#include <entities/point.h>
#include <entities/table.h>
#include <kwdraw/scene/scene_builder.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

using Kind = SceneShape::Kind;

class BlockScenes : public SceneTest
{
  protected:
    BlockScenes() { addLine(block, {0, 0, 0}, {2, 1, 0}); }

    KdDbAttribute* addAttribute(KdDbBlockReference* reference, const wchar_t* text)
    {
        return addPart<KdDbAttribute>(reference, [text](AttributeMembers& attribute) {
            attribute.text = text;
            attribute.height = 1.0;
            attribute.position = {100, 100, 0};
        });
    }

    KdDbObjectId block = addBlock(L"B");
};

TEST_F(BlockScenes, ReferencesPlaceTheContents)
{
    const auto* reference = addReference(modelId(), block, [](BlockReferenceMembers& members) {
        members.position = {10, 20, 0};
        members.scale = {2, 3, 1};
        members.rotation = std::numbers::pi / 2.0;
    });
    const auto scene = build();
    const auto shapes = shapesOf(*scene, reference);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_THAT(pointsOf(*scene, shapes[0]), ElementsAre(IsPoint(10, 20), IsPoint(7, 24)));
    EXPECT_THAT(itemOf(*scene, reference)->box, IsBox(7, 20, 10, 24));
}

TEST_F(BlockScenes, ReferencesCountFromTheBasePoint)
{
    KdDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, block, KdDb::kForWrite), eOk);
    record->edit().origin = {2, 1, 0};
    record->close();
    const auto* reference = addReference(modelId(), block, KdGePoint3d{10, 20, 0});
    EXPECT_THAT(itemOf(*build(), reference)->box, IsBox(8, 19, 10, 20));
}

TEST_F(BlockScenes, MirroredReferencesMirrorArcs)
{
    const KdDbObjectId round = addBlock(L"ROUND");
    addTo<KdDbArc>(round, [](ArcMembers& arc) {
        arc.radius = 1.0;
        arc.endAngle = std::numbers::pi / 2.0;
    });
    const auto* mirrored = addReference(modelId(), round, [](BlockReferenceMembers& members) {
        members.scale = {-1, 1, 1};
    });
    const auto* turned = addReference(modelId(), round, [](BlockReferenceMembers& members) {
        members.extrusion.setDirection({0, 0, -1});
        members.position = {10, 0, 0}; // in the object frame, whose x axis runs backwards
    });
    const auto scene = build();
    EXPECT_THAT(itemOf(*scene, mirrored)->box, IsBox(-1, 0, 0, 1));
    EXPECT_THAT(itemOf(*scene, turned)->box, IsBox(-11, 0, -10, 1));
}

TEST_F(BlockScenes, ReferencesNest)
{
    const KdDbObjectId outer = addBlock(L"OUTER");
    addReference(outer, block, KdGePoint3d{5, 0, 0});
    addReference(outer, block, KdGePoint3d{0, 5, 0});
    const auto* reference = addReference(modelId(), outer, [](BlockReferenceMembers& members) {
        members.scale = {10, 10, 10};
    });
    const auto scene = build();
    EXPECT_THAT(shapesOf(*scene, reference), SizeIs(2));
    EXPECT_THAT(itemOf(*scene, reference)->box, IsBox(0, 0, 70, 60));
}

TEST_F(BlockScenes, ReferencesThatLeadIntoThemselvesShowNothing)
{
    const KdDbObjectId other = addBlock(L"OTHER");
    addReference(block, other, KdGePoint3d{});
    addReference(other, block, KdGePoint3d{});
    addReference(block, block, KdGePoint3d{});
    const auto* reference = addReference(modelId(), block, KdGePoint3d{});
    const auto scene = build();
    EXPECT_THAT(shapesOf(*scene, reference), SizeIs(1));
}

TEST_F(BlockScenes, DeepNestingEnds)
{
    KdDbObjectId previous = block;
    for (int i = 0; i < 1000; ++i) {
        const KdDbObjectId next = addBlock((L"D" + std::to_wstring(i)).c_str());
        addReference(next, previous, KdGePoint3d{});
        previous = next;
    }
    addReference(modelId(), previous, KdGePoint3d{});
    EXPECT_THAT(build()->shapes, IsEmpty()); // the line is too deep down
}

TEST_F(BlockScenes, TooMuchContentIsShownAsBoxes)
{
    KdDbObjectId previous = block;
    for (int i = 0; i < 40; ++i) { // two to the power of forty lines
        const KdDbObjectId next = addBlock((L"D" + std::to_wstring(i)).c_str());
        addReference(next, previous, KdGePoint3d{});
        addReference(next, previous, KdGePoint3d{});
        previous = next;
    }
    addReference(modelId(), previous, KdGePoint3d{});
    const auto* after = addReference(modelId(), block, KdGePoint3d{50, 50, 0});
    const auto* line = addLine(modelId(), {0, 0, 0}, {1, 1, 0});
    constexpr std::uint64_t kMostPoints = 20'000;
    const auto scene = buildScene(drawing, modelId(), nullptr, {}, {}, kMostPoints);
    EXPECT_LT(scene->points.size(), kMostPoints * 5 / 4);
    const auto shapes = shapesOf(*scene, after);
    ASSERT_THAT(shapes, SizeIs(1));
    EXPECT_EQ(stepsOf(*scene, shapes[0]), "MLLLZ");
    EXPECT_THAT(itemOf(*scene, after)->box, IsBox(50, 50, 52, 51));
    EXPECT_EQ(stepsOf(*scene, shapesOf(*scene, line)[0]), "ML"); // the space's own are all there
}

TEST_F(BlockScenes, GridsRepeatBlockAndAttributes)
{
    auto* grid = addTo<KdDbMInsertBlock>(modelId(), [&](MInsertBlockMembers& members) {
        members.block = block;
        members.columns = 3;
        members.rows = 2;
        members.columnSpacing = 10;
        members.rowSpacing = 20;
        members.rotation = std::numbers::pi / 2.0;
    });
    addAttribute(grid, L"X");
    const auto scene = build();
    const auto shapes = shapesOf(*scene, grid);
    ASSERT_THAT(shapes, SizeIs(12));
    EXPECT_THAT(pointsOf(*scene, shapes[2])[0], IsPoint(0, 10));  // the next column
    EXPECT_THAT(pointsOf(*scene, shapes[6])[0], IsPoint(-20, 0)); // the next row
    EXPECT_EQ(scene->texts.size(), 6U);
}

TEST_F(BlockScenes, AbsurdGridsEnd)
{
    addTo<KdDbMInsertBlock>(modelId(), [&](MInsertBlockMembers& members) {
        members.block = addBlock(L"EMPTY");
        members.columns = 65535;
        members.rows = 65535;
    });
    EXPECT_THAT(build()->shapes, IsEmpty());
}

TEST_F(BlockScenes, MissingAndExternalBlocksShowNothing)
{
    const KdDbObjectId external = addBlock(L"XREF");
    KdDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, external, KdDb::kForWrite), eOk);
    record->edit().externalReference = true;
    record->close();
    addLine(external, {0, 0, 0}, {1, 1, 0});
    addReference(modelId(), external, KdGePoint3d{});
    addReference(modelId(), KdDbObjectId(), KdGePoint3d{});
    const auto scene = build();
    EXPECT_THAT(scene->items, SizeIs(2));
    EXPECT_THAT(scene->shapes, IsEmpty());
    EXPECT_TRUE(scene->box.isEmpty());
}

TEST_F(BlockScenes, AttributesShowUnlessTheyAreInvisible)
{
    auto* reference = addReference(modelId(), block, KdGePoint3d{});
    addAttribute(reference, L"SEEN");
    KdDbAttribute* hidden = addAttribute(reference, L"HIDDEN");
    change(hidden, [](AttributeMembers& members) { members.mode.invisible = true; });
    const auto texts = [&] { return build()->texts; };
    ASSERT_THAT(texts(), SizeIs(1));
    EXPECT_EQ(texts()[0].text, QStringLiteral("SEEN"));
    setHeader(L"ATTMODE", std::int32_t{2});
    EXPECT_THAT(texts(), SizeIs(2));
    setHeader(L"ATTMODE", std::int32_t{0});
    EXPECT_THAT(texts(), IsEmpty());
}

TEST_F(BlockScenes, DefinitionsShowTheirTagsInTheirOwnBlockAlone)
{
    const auto define = [&](const wchar_t* tag, bool constant) {
        addTo<KdDbAttributeDefinition>(block, [&](AttributeDefinitionMembers& definition) {
            definition.tag = tag;
            definition.text = L"VALUE";
            definition.height = 1.0;
            definition.mode.constant = constant;
        });
    };
    define(L"TAG", false);
    define(L"FIXED", true);
    addReference(modelId(), block, KdGePoint3d{});
    const auto inBlock = buildOf(block);
    ASSERT_THAT(inBlock->texts, SizeIs(2));
    EXPECT_EQ(inBlock->texts[0].text, QStringLiteral("TAG"));
    EXPECT_EQ(inBlock->texts[1].text, QStringLiteral("VALUE"));
    const auto inModel = build();
    ASSERT_THAT(inModel->texts, SizeIs(1));
    EXPECT_EQ(inModel->texts[0].text, QStringLiteral("VALUE"));
}

TEST_F(BlockScenes, DimensionsShowTheirBlockInTheWorld)
{
    const auto* dimension = add<KdDbAlignedDimension>([&](auto& members) {
        members.block = block;
        members.color = 0xC3000001;
        members.textPosition = {7, 7, 0};
    });
    const auto* bare = add<KdDbAlignedDimension>([](auto&) {});
    const auto scene = build();
    ASSERT_THAT(shapesOf(*scene, dimension), SizeIs(1));
    EXPECT_THAT(itemOf(*scene, dimension)->box, IsBox(0, 0, 2, 1));
    EXPECT_THAT(shapesOf(*scene, bare), IsEmpty());
}

TEST_F(BlockScenes, TablesShowTheirBlock)
{
    auto* table = new KdDbTable;
    table->edit().block = block;
    table->edit().position = {5, 5, 0};
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, modelId(), KdDb::kForWrite), eOk);
    model->appendEntity(table);
    model->close();
    EXPECT_THAT(itemOf(*build(), table)->box, IsBox(5, 5, 7, 6));
}

TEST_F(BlockScenes, ItemsStandInDrawOrder)
{
    const auto* first = addLine(modelId(), {0, 0, 0}, {1, 0, 0});
    const auto* second = addLine(modelId(), {0, 0, 0}, {2, 0, 0});
    const auto* third = addLine(modelId(), {0, 0, 0}, {3, 0, 0});
    auto* order = new KdDbSortentsTable;
    order->edit().entries = {{first->objectId(), third->handle()},
                             {third->objectId(), first->handle()}};
    drawing.addObject(order, {});
    auto* extension = new KdDbDictionary;
    extension->edit().entries.push_back({L"ACAD_SORTENTS", order->objectId()});
    drawing.addObject(extension, modelId());
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, modelId(), KdDb::kForWrite), eOk);
    model->edit().links.edit().extensionDictionary = extension->objectId();
    model->close();
    const auto scene = build();
    ASSERT_THAT(scene->items, SizeIs(3));
    EXPECT_EQ(scene->items[0].id, third->objectId());
    EXPECT_EQ(scene->items[1].id, second->objectId());
    EXPECT_EQ(scene->items[2].id, first->objectId());
}

TEST_F(BlockScenes, ABuildCanBeGivenUp)
{
    int calls = 0;
    const auto giveUp = [&calls](double part) {
        ++calls;
        EXPECT_GE(part, 0.0);
        EXPECT_LE(part, 1.0);
        return false;
    };
    addLine(modelId(), {0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(buildScene(drawing, modelId(), nullptr, giveUp), nullptr);
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(drawing.openCount(), 0);
}

TEST_F(BlockScenes, WhatIsNoBlockHasNoScene)
{
    KdDbObjectId layer;
    ASSERT_EQ(drawing.table<KdDbLayerTable>().getIdAt(L"0", layer), eOk);
    EXPECT_EQ(buildScene(drawing, layer, nullptr, {}), nullptr);
    EXPECT_EQ(buildScene(drawing, {}, nullptr, {}), nullptr);
}

} // namespace
