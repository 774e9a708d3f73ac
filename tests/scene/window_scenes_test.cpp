#include <cmath>
#include <numbers>

#include <entities/circle.h>
#include <entities/viewport.h>

#include "support.h"

using namespace scene_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class WindowScenes : public SceneTest
{
  protected:
    WindowScenes()
    {
        line = addLine(modelId(), {100, 200, 0}, {110, 200, 30});
        model = build();
    }
    /// A window of 40 by 20 about (50, 30) that shows the model at half size, (100, 200) in its
    /// middle.
    template <class Adjust>
    KdDbViewport* addViewport(Adjust adjust)
    {
        return addTo<KdDbViewport>(sheetId(), [&](ViewportMembers& members) {
            members.center = {50, 30, 0};
            members.width = 40;
            members.height = 20;
            members.viewHeight = 40;
            members.viewCenter = {100, 200};
            members.number = 2;
            adjust(members);
        });
    }
    static void nothing(ViewportMembers&) {}

    const KdDbLine* line;
    std::shared_ptr<const Scene> model;
};

TEST_F(WindowScenes, MapTheModelToTheSheet)
{
    const auto* viewport = addViewport(nothing);
    const auto sheet = buildOf(sheetId(), model);
    ASSERT_THAT(sheet->windows, SizeIs(1));
    const SceneWindow& window = sheet->windows[0];
    EXPECT_EQ(window.model, model);
    EXPECT_EQ(sheet->items[window.item].id, viewport->objectId());
    EXPECT_EQ(window.modelToSheet.map(QPointF(100, 200)), QPointF(50, 30));
    EXPECT_EQ(window.modelToSheet.map(QPointF(110, 204)), QPointF(55, 32));
    EXPECT_THAT(window.clip,
                ElementsAre(IsPoint(30, 20), IsPoint(70, 20), IsPoint(70, 40), IsPoint(30, 40)));
    EXPECT_THAT(itemOf(*sheet, viewport)->box, IsBox(30, 20, 70, 40));
}

TEST_F(WindowScenes, ATwistTurnsWhatIsShown)
{
    addViewport([](ViewportMembers& members) {
        members.twist = std::numbers::pi / 2.0;
        members.viewCenter = {-200, 100}; // the same place, in axes that are turned
    });
    const auto sheet = buildOf(sheetId(), model);
    const QTransform& map = sheet->windows.at(0).modelToSheet;
    EXPECT_THAT(map.map(QPointF(100, 200)), IsPoint(50, 30));
    EXPECT_THAT(map.map(QPointF(110, 200)), IsPoint(50, 35));
}

TEST_F(WindowScenes, TheTargetIsTheOriginOfTheView)
{
    addViewport([](ViewportMembers& members) {
        members.viewTarget = {90, 190, 0};
        members.viewCenter = {10, 10};
    });
    EXPECT_THAT(buildOf(sheetId(), model)->windows.at(0).modelToSheet.map(QPointF(100, 200)),
                IsPoint(50, 30));
}

TEST_F(WindowScenes, OtherDirectionsSeeAModelOfTheirOwn)
{
    const auto fromFront = [](ViewportMembers& members) {
        members.viewDirection = {0, -3, 0};
        members.viewCenter = {100, 0};
    };
    addViewport(fromFront);
    addViewport(fromFront);
    addViewport(nothing);
    const auto sheet = buildOf(sheetId(), model);
    ASSERT_THAT(sheet->windows, SizeIs(3));
    const SceneWindow& window = sheet->windows[0];
    EXPECT_NE(window.model, model);
    EXPECT_EQ(window.model, sheet->windows[1].model);
    EXPECT_EQ(sheet->windows[2].model, model);
    // Seen from the front, x runs to the right and z upwards.
    const auto points = pointsOf(*window.model, window.model->shapes.at(0));
    EXPECT_THAT(points, ElementsAre(IsPoint(100, 0), IsPoint(110, 30)));
    EXPECT_THAT(window.modelToSheet.map(points[1]), IsPoint(55, 45));
}

TEST_F(WindowScenes, LayersMayBeFrozenInOneWindow)
{
    const KdDbObjectId layer = addLayer(L"L", [](LayerMembers&) {});
    addViewport([&](ViewportMembers& members) { members.frozenLayers = {layer}; });
    addViewport(nothing);
    const auto sheet = buildOf(sheetId(), build());
    EXPECT_THAT(sheet->windows.at(0).frozenLayers, ElementsAre(1U));
    EXPECT_EQ(sheet->layers[1].id, layer);
    EXPECT_THAT(sheet->windows.at(1).frozenLayers, IsEmpty());
}

TEST_F(WindowScenes, AnEntityMayCutTheWindow)
{
    const auto* circle = addTo<KdDbCircle>(sheetId(), [](CircleMembers& members) {
        members.center = {50, 30, 0};
        members.radius = 10;
    });
    const auto* viewport =
        addViewport([&](ViewportMembers& members) { members.clipEntity = circle->objectId(); });
    const auto sheet = buildOf(sheetId(), model);
    const QPolygonF& clip = sheet->windows.at(0).clip;
    EXPECT_GT(clip.size(), 100);
    for (const QPointF& corner : clip)
        EXPECT_NEAR(std::hypot(corner.x() - 50, corner.y() - 30), 10.0, 1e-5);
    EXPECT_THAT(itemOf(*sheet, viewport)->box, IsBox(40, 20, 60, 40));
}

TEST_F(WindowScenes, SheetsOwnViewportsAndThoseThatAreOffAreNoWindows)
{
    const auto* own = addViewport([](ViewportMembers& members) { members.number = 1; });
    const auto* off = addViewport([](ViewportMembers& members) { members.on = false; });
    addViewport([](ViewportMembers& members) { members.viewHeight = 0; });
    const auto sheet = buildOf(sheetId(), model);
    EXPECT_THAT(sheet->windows, IsEmpty());
    EXPECT_THAT(shapesOf(*sheet, own), IsEmpty());
    EXPECT_THAT(shapesOf(*sheet, off), SizeIs(1));
}

TEST_F(WindowScenes, WithoutAModelThereAreFramesAlone)
{
    addViewport([](ViewportMembers& members) { members.viewDirection = {1, 1, 1}; });
    const auto sheet = buildOf(sheetId());
    EXPECT_THAT(sheet->windows, IsEmpty());
    EXPECT_THAT(sheet->shapes, SizeIs(1));
}

TEST_F(WindowScenes, TheLayoutSaysWhetherLinetypesAreThoseOfTheSheet)
{
    addViewport(nothing);
    const OpenForRead<KdDbBlockTableRecord> sheet(sheetId());
    KdDbLayout* layout = nullptr;
    ASSERT_EQ(kddbOpenObject(layout, sheet->getLayoutId(), KdDb::kForWrite), eOk);
    for (const int flags : {0, 1}) {
        layout->edit().layoutFlags = flags;
        KdDbLayout* const open = layout;
        open->close();
        const auto scene = buildScene(drawing, sheetId(), model, {});
        EXPECT_EQ(scene->windows.at(0).linetypesOfSheet, flags == 1);
        ASSERT_EQ(kddbOpenObject(layout, sheet->getLayoutId(), KdDb::kForWrite), eOk);
    }
    layout->close();
}

} // namespace
