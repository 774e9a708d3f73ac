// Paints all spaces of a drawing: paint_drawing <drawing> <folder> [width]
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>

#include <exchange/drawing_reader.h>
#include <kwdraw/scene/scene_builder.h>
#include <kwdraw/view/scene_painting.h>

namespace {

/// The whole scene, `width` pixels wide.
QImage pictureOf(const std::shared_ptr<const Scene>& scene, int width)
{
    constexpr double kRoom = 1.05;
    SceneBox box = scene->box;
    if (scene->isSheet && !scene->paper.isEmpty())
        box.add(scene->paper);
    const double height = width * 0.75;
    ViewRequest request;
    request.scene = scene;
    request.size = QSizeF(width, height);
    request.place.center = box.center();
    request.place.unitsPerPixel =
        std::max({box.width() / width, box.height() / height, 1e-12}) * kRoom;
    request.colors = ViewColors::Dark;
    SceneIndex::Models models;
    for (const SceneWindow& window : scene->windows)
        models.push_back(std::make_shared<SceneIndex>(window.model));
    GlyphStore glyphs;
    const std::atomic<bool> cancelled{false};
    return paintLayer(ViewLayer::Drawing, request, SceneIndex(scene, models), glyphs, cancelled)
        .image;
}

void paintSpace(const std::shared_ptr<const Scene>& scene, const QString& path, int width)
{
    std::printf("%s: %zu items, %zu shapes, %zu points, %g %g .. %g %g\n", qPrintable(path),
                scene->items.size(), scene->shapes.size(), scene->points.size(), scene->box.left,
                scene->box.bottom, scene->box.right, scene->box.top);
    if (!scene->box.isEmpty())
        pictureOf(scene, width).save(path);
}

} // namespace

int main(int argc, char** argv)
{
    const QGuiApplication application(argc, argv);
    if (argc < 3)
        return 2;
    std::unique_ptr<KdDbDatabase> database;
    ReadReport report;
    if (readDrawing(argv[1], database, report, {}) != eOk)
        return 3;
    const QFileInfo file(QString::fromLocal8Bit(argv[1]));
    const QDir folder(QString::fromLocal8Bit(argv[2]));
    const int width = argc > 3 ? std::atoi(argv[3]) : 1200;
    const auto model = buildScene(*database, database->modelSpaceId(), nullptr, {}, file.path());
    paintSpace(model, folder.filePath(file.completeBaseName() + QStringLiteral(".png")), width);
    for (const KdDbObjectId id : database->table<KdDbBlockTable>().recordIds()) {
        const OpenForRead<KdDbBlockTableRecord> block(id);
        if (!block || !block->isLayout() || id == database->modelSpaceId())
            continue;
        const QString name = QStringLiteral("%1-%2.png")
                                 .arg(file.completeBaseName())
                                 .arg(QString::number(id.handle(), 16));
        paintSpace(buildScene(*database, id, model, {}, file.path()), folder.filePath(name), width);
    }
    return 0;
}
