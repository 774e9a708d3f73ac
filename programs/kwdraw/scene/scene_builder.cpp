#include <kwdraw/scene/scene_builder.h>

#include <cmath>
#include <utility>

#include <database/database.h>
#include <kwdraw/scene/entity_walk.h>
#include <kwdraw/scene/scene_windows.h>

namespace {

/// Shapes on layers that are off do not count, nor what is hidden with a frozen layer.
SceneBox visibleBox(const Scene& scene)
{
    SceneBox box;
    for (const SceneItem& item : scene.items) {
        if (scene.layers[item.layer].frozen)
            continue;
        for (const SceneShape& shape : scene.shapesOf(item)) {
            const SceneLayer& layer = scene.layers[shape.layer];
            if (layer.on && !layer.frozen && shape.kind != SceneShape::Kind::Ray)
                box.add(shape.box);
        }
    }
    return box;
}

/// What does not change while a scene and those in its windows are built.
struct Order
{
    const KdDbDatabase& database;
    const std::function<bool(double)>& progress;
    const QString& folder;
    std::uint64_t mostPoints;
};

std::shared_ptr<Scene> buildFlat(const Order& order, KdDbObjectId space,
                                 const KdGeMatrix3d& toScene)
{
    if (!space.isKindOf(KdDbBlockTableRecord::desc()))
        return nullptr;
    const OpenForRead<KdDbBlockTableRecord> record(space);
    if (!record)
        return nullptr;
    auto scene = std::make_shared<Scene>();
    EntityWalk walk(order.database, *scene, toScene, order.folder, order.mostPoints);
    if (!walk.drawSpace(*record, order.progress))
        return nullptr;
    scene->box = visibleBox(*scene);
    return scene;
}

/// True for a sheet whose linetypes are the same in all its windows.
bool scalesLinetypes(const KdDbDatabase& database, KdDbObjectId sheet)
{
    const OpenForRead<KdDbBlockTableRecord> record(sheet);
    const OpenForRead<KdDbLayout> layout(record ? record->getLayoutId() : KdDbObjectId());
    return layout ? layout->scalesLinetypesBySheet() : database.header().integer(L"PSLTSCALE") != 0;
}

/// A sheet has its origin in the lower left corner of what can be printed on.
SceneBox paperOf(const LayoutMembers& plot)
{
    constexpr int kInches = 0;
    constexpr double kAlike = 0.01;
    const bool turned = plot.rotation % 2 != 0;
    const double millimetres = turned ? plot.paperHeight : plot.paperWidth;
    // Some sheets say inches and have their limits, which are those of the paper, in millimetres.
    const double limits = plot.limitsMaximum.x - plot.limitsMinimum.x;
    const bool isMetric = std::abs(limits - millimetres) <= kAlike * millimetres;
    const double unit = plot.units == kInches && !isMetric ? 1.0 / 25.4 : 1.0;
    const double width = millimetres * unit;
    const double height = (turned ? plot.paperWidth : plot.paperHeight) * unit;
    if (!(width > 0.0 && height > 0.0))
        return {};
    const double left = -(turned ? plot.bottomMargin : plot.leftMargin) * unit;
    const double bottom = -(turned ? plot.leftMargin : plot.bottomMargin) * unit;
    return {left, bottom, left + width, bottom + height};
}

void addPaper(Scene& scene, KdDbObjectId sheet)
{
    const OpenForRead<KdDbBlockTableRecord> record(sheet);
    const OpenForRead<KdDbLayout> layout(record ? record->getLayoutId() : KdDbObjectId());
    if (!layout)
        return;
    scene.isSheet = true;
    scene.paper = paperOf(layout->settings());
}

} // namespace

std::shared_ptr<const Scene> buildScene(const KdDbDatabase& database, KdDbObjectId space,
                                        std::shared_ptr<const Scene> model,
                                        const std::function<bool(double)>& progress,
                                        const QString& folder, std::uint64_t mostPoints)
{
    const Order order{database, progress, folder, mostPoints};
    const std::shared_ptr<Scene> scene = buildFlat(order, space, KdGeMatrix3d());
    if (!scene)
        return nullptr;
    if (space != database.modelSpaceId())
        addPaper(*scene, space);
    const auto makeModel = [&](const KdGeMatrix3d& toScene) {
        return buildFlat(order, database.modelSpaceId(), toScene);
    };
    if (!addWindows(*scene, model, scalesLinetypes(database, space), makeModel))
        return nullptr;
    return scene;
}
