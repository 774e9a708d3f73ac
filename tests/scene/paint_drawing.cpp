// Paints a drawing: paint_drawing <drawing> <picture.png> [width] [layout]
#include <chrono>
#include <cstdio>
#include <cstdlib>

#include <QFileInfo>
#include <QGuiApplication>

#include <exchange/drawing_reader.h>
#include <kwdraw/scene/scene_builder.h>

#include "scene_picture.h"

namespace {

double secondsSince(std::chrono::steady_clock::time_point start)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

KdDbObjectId spaceOf(const KdDbDatabase& database, const char* layout)
{
    if (!layout)
        return database.modelSpaceId();
    return KdDbLayoutManager().findBlock(QString::fromUtf8(layout).toStdWString().c_str(),
                                         &database);
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
    const QString folder = QFileInfo(QString::fromLocal8Bit(argv[1])).path();
    const auto start = std::chrono::steady_clock::now();
    const auto model = buildScene(*database, database->modelSpaceId(), nullptr, {}, folder);
    const KdDbObjectId space = spaceOf(*database, argc > 4 ? argv[4] : nullptr);
    const auto scene = argc > 4 ? buildScene(*database, space, model, {}, folder) : model;
    if (!scene)
        return 3;
    std::printf("%s: %zu items, %zu shapes, %zu points, %zu windows, %.3f s, %g %g .. %g %g\n",
                argv[1], scene->items.size(), scene->shapes.size(), scene->points.size(),
                scene->windows.size(), secondsSince(start), scene->box.left, scene->box.bottom,
                scene->box.right, scene->box.top);
    pictureOf(*scene, argc > 3 ? std::atoi(argv[3]) : 1200).save(QString::fromLocal8Bit(argv[2]));
    return 0;
}
