#include <database/tables.h>

#include "support.h"

using namespace scene_test;
using testing::SizeIs;

namespace {

constexpr QRgb kRed = 0xFFFF0000;
constexpr QRgb kYellow = 0xFFFFFF00;
constexpr QRgb kGreen = 0xFF00FF00;
constexpr std::uint32_t kByBlock = 0xC1000000;
constexpr std::uint32_t kAciRed = 0xC3000001;
constexpr std::uint32_t kAciYellow = 0xC3000002;
constexpr std::uint32_t kAciGreen = 0xC3000003;

class LookScenes : public SceneTest
{
  protected:
    KdDbObjectId colored(const wchar_t* name, std::uint32_t color)
    {
        return addLayer(name, [color](LayerMembers& layer) { layer.color = color; });
    }
    KdDbLine* line(KdDbObjectId block, KdDbObjectId layer, std::uint32_t color = 0xC0000000)
    {
        auto* added = addTo<KdDbLine>(block, [&](LineMembers& members) {
            members.end = {1, 1, 0};
            members.color = color;
        });
        if (!layer.isNull())
            set(added, layer);
        return added;
    }
    static void set(KdDbEntity* entity, KdDbObjectId layer)
    {
        KdDbEntity* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, entity->objectId(), KdDb::kForWrite), eOk);
        opened->setLayer(layer);
        opened->close();
    }
    KdDbBlockReference* reference(KdDbObjectId space, KdDbObjectId block, KdDbObjectId layer,
                                  std::uint32_t color = 0xC0000000)
    {
        auto* added = addReference(
            space, block, [color](BlockReferenceMembers& members) { members.color = color; });
        if (!layer.isNull())
            set(added, layer);
        return added;
    }
    KdDbObjectId dashed()
    {
        auto* record = drawing.addRecord<KdDbLinetypeTable>(L"DASHED");
        change(record, [](LinetypeMembers& members) { members.dashes = {2.0, -1.0}; });
        return record->objectId();
    }
};

TEST_F(LookScenes, ColoursComeFromTheEntityOrItsLayer)
{
    const KdDbObjectId red = colored(L"RED", kAciRed);
    line(modelId(), red);
    line(modelId(), red, kAciYellow);
    line(modelId(), red, 0xC2102030);
    line(modelId(), red, 0xC3000007);
    line(modelId(), red, kByBlock); // nothing around it, so as the foreground
    const auto scene = build();
    ASSERT_THAT(scene->shapes, SizeIs(5));
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).color, kRed);
    EXPECT_FALSE(lookOf(*scene, scene->shapes[0]).isForeground);
    EXPECT_EQ(lookOf(*scene, scene->shapes[1]).color, kYellow);
    EXPECT_EQ(lookOf(*scene, scene->shapes[2]).color, 0xFF102030);
    EXPECT_TRUE(lookOf(*scene, scene->shapes[3]).isForeground);
    EXPECT_TRUE(lookOf(*scene, scene->shapes[4]).isForeground);
    EXPECT_EQ(layerOf(*scene, scene->shapes[0]), "RED");
}

TEST_F(LookScenes, EntitiesInBlocksOnLayerZeroTakeTheReferencesLayer)
{
    const KdDbObjectId red = colored(L"RED", kAciRed);
    const KdDbObjectId green = colored(L"GREEN", kAciGreen);
    const KdDbObjectId block = addBlock(L"B");
    line(block, {});
    line(block, green);
    reference(modelId(), block, red);
    const auto scene = build();
    ASSERT_THAT(scene->shapes, SizeIs(2));
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).color, kRed);
    EXPECT_EQ(layerOf(*scene, scene->shapes[0]), "RED");
    EXPECT_EQ(lookOf(*scene, scene->shapes[1]).color, kGreen);
    EXPECT_EQ(layerOf(*scene, scene->shapes[1]), "GREEN");
}

TEST_F(LookScenes, ByBlockGoesThroughNestedBlocks)
{
    const KdDbObjectId red = colored(L"RED", kAciRed);
    const KdDbObjectId inner = addBlock(L"INNER");
    const KdDbObjectId outer = addBlock(L"OUTER");
    line(inner, {}, kByBlock);
    line(inner, {});
    reference(outer, inner, {}, kByBlock);
    reference(outer, inner, red);
    reference(modelId(), outer, {}, kAciGreen);
    const auto scene = build();
    ASSERT_THAT(scene->shapes, SizeIs(4));
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).color, kGreen);  // through both
    EXPECT_TRUE(lookOf(*scene, scene->shapes[1]).isForeground); // by layer "0", all the way
    EXPECT_EQ(lookOf(*scene, scene->shapes[2]).color, kRed);    // from the inner reference
    EXPECT_EQ(lookOf(*scene, scene->shapes[3]).color, kRed);
    EXPECT_EQ(layerOf(*scene, scene->shapes[3]), "RED");
}

TEST_F(LookScenes, TransparencyIsTheAlphaOfTheColour)
{
    const KdDbObjectId layer =
        addLayer(L"GLASS", [](LayerMembers& members) { members.transparency = 0x02000080; });
    line(modelId(), layer, kAciRed);
    auto* own = line(modelId(), layer, kAciRed);
    change(own, [](LineMembers& members) { members.seldom.edit().transparency = 0x02000040; });
    const auto scene = build();
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).color, 0x80FF0000);
    EXPECT_EQ(lookOf(*scene, scene->shapes[1]).color, 0x40FF0000);
}

TEST_F(LookScenes, LineweightsAreResolved)
{
    const KdDbObjectId thick =
        addLayer(L"THICK", [](LayerMembers& members) { members.lineweight = 70; });
    const auto weighing = [&](std::int16_t weight, KdDbObjectId layer) {
        auto* added = add<KdDbLine>([&](LineMembers& members) {
            members.end = {1, 0, 0};
            members.lineweight = weight;
        });
        set(added, layer);
    };
    weighing(-1, thick);
    weighing(35, thick);
    weighing(-3, thick);
    weighing(-2, thick);
    weighing(30000, thick);
    const auto scene = build();
    const std::int16_t expected[] = {70, 35, 25, 25, 211};
    for (std::size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(lookOf(*scene, scene->shapes[i]).lineweight, expected[i]) << i;
}

TEST_F(LookScenes, LinetypesAreScaledByDrawingAndEntity)
{
    setHeader(L"LTSCALE", 5.0);
    const KdDbObjectId pattern = dashed();
    const KdDbObjectId layer =
        addLayer(L"DASHES", [&](LayerMembers& members) { members.linetype = pattern; });
    KdDbObjectId continuous;
    drawing.table<KdDbLinetypeTable>().getIdAt(L"Continuous", continuous);
    const auto typed = [&](KdDbObjectId linetype) {
        auto* added = add<KdDbLine>([&](LineMembers& members) {
            members.end = {1, 0, 0};
            members.linetype = linetype;
            members.seldom.edit().linetypeScale = 2.0;
        });
        set(added, layer);
    };
    typed({});
    typed(continuous);
    const auto scene = build();
    ASSERT_THAT(scene->linetypes, SizeIs(1)); // those without breaks are none
    EXPECT_EQ(scene->linetypes[0].dashes, (std::vector<double>{2.0, -1.0}));
    EXPECT_EQ(scene->linetypes[0].length, 3.0);
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).linetype, 0);
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).linetypeScale, 10.0);
    EXPECT_EQ(lookOf(*scene, scene->shapes[1]).linetype, -1);
}

TEST_F(LookScenes, InvisibleEntitiesAreNotThere)
{
    add<KdDbLine>([](LineMembers& members) { members.invisible = true; });
    EXPECT_THAT(build()->items, SizeIs(0));
}

TEST_F(LookScenes, HiddenLayersKeepTheirShapesAndStayOutOfTheBox)
{
    const KdDbObjectId frozen =
        addLayer(L"FROZEN", [](LayerMembers& members) { members.frozen = true; });
    const KdDbObjectId off = addLayer(L"OFF", [](LayerMembers& members) { members.off = true; });
    for (const KdDbObjectId layer : {frozen, off, KdDbObjectId()})
        line(modelId(), layer);
    addLine(modelId(), {0, 0, 0}, {-2, 1, 0});
    const auto scene = build();
    ASSERT_THAT(scene->shapes, SizeIs(4));
    EXPECT_TRUE(scene->layers[scene->shapes[0].layer].frozen);
    EXPECT_FALSE(scene->layers[scene->shapes[1].layer].on);
    EXPECT_THAT(scene->box, IsBox(-2, 0, 1, 1));
}

TEST_F(LookScenes, AFrozenReferenceHidesAllThatIsSeenThroughIt)
{
    const KdDbObjectId frozen =
        addLayer(L"FROZEN", [](LayerMembers& members) { members.frozen = true; });
    const KdDbObjectId red = colored(L"RED", kAciRed);
    const KdDbObjectId inner = addBlock(L"INNER");
    const KdDbObjectId outer = addBlock(L"OUTER");
    line(inner, red);
    reference(outer, inner, frozen);
    line(outer, red);
    reference(modelId(), outer, {});
    const auto scene = build();
    ASSERT_THAT(scene->shapes, SizeIs(2));
    EXPECT_EQ(layerOf(*scene, scene->shapes[0]), "FROZEN"); // comes back with that layer
    EXPECT_EQ(lookOf(*scene, scene->shapes[0]).color, kRed);
    EXPECT_EQ(layerOf(*scene, scene->shapes[1]), "RED");
}

TEST_F(LookScenes, AllLayersAreInEveryScene)
{
    colored(L"UNUSED", kAciRed);
    const auto scene = build();
    ASSERT_THAT(scene->layers, SizeIs(2));
    EXPECT_EQ(scene->layers[1].name, QStringLiteral("UNUSED"));
    EXPECT_EQ(scene->layers[1].color, kRed);
    EXPECT_EQ(scene->layers[1].id.isNull(), false);
}

} // namespace
