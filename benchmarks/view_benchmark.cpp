// Measures what the drawing view does with many entities: pictures, frames of the window, picks.
#include <QApplication>
#include <QPalette>
#include <QWheelEvent>

#include <benchmark/benchmark.h>

#include <cmath>
#include <memory>
#include <vector>

#include <kwdraw/view/drawing_view.h>
#include <kwdraw/view/pick.h>
#include <kwdraw/view/scene_painting.h>

#include "made_scene.h"

namespace {

ViewRequest requestFor(const std::shared_ptr<const Scene>& scene)
{
    ViewRequest request;
    request.scene = scene;
    request.size = {1920, 1080};
    request.margin = 160;
    request.colors = ViewColors::Dark;
    request.place = {scene->box.center(), scene->box.width() / 1900.0};
    return request;
}

PickView pickView(const ViewRequest& request)
{
    return {request.place.unitsPerPixel, request.size.height(), {}};
}

long entities(const benchmark::State& state)
{
    return static_cast<long>(state.range(0));
}

void makeIndex(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(SceneIndex(scene).size());
}

void paintWhole(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    const SceneIndex index(scene);
    const ViewRequest request = requestFor(scene);
    GlyphStore glyphs;
    const std::atomic<bool> cancelled = false;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            paintLayer(ViewLayer::Drawing, request, index, glyphs, cancelled).image.bits());
}

/// A tenth of the drawing in each direction fills the view.
void paintNear(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    const SceneIndex index(scene);
    ViewRequest request = requestFor(scene);
    request.place.unitsPerPixel /= 10.0;
    GlyphStore glyphs;
    const std::atomic<bool> cancelled = false;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            paintLayer(ViewLayer::Drawing, request, index, glyphs, cancelled).image.bits());
}

void highlightAll(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    const SceneIndex index(scene);
    ViewRequest request = requestFor(scene);
    std::vector<KdDbObjectId> ids;
    for (const SceneItem& item : scene->items)
        ids.push_back(item.id);
    request.highlighted = std::make_shared<const std::vector<KdDbObjectId>>(ids);
    GlyphStore glyphs;
    const std::atomic<bool> cancelled = false;
    for (auto _ : state)
        benchmark::DoNotOptimize(
            paintLayer(ViewLayer::Marks, request, index, glyphs, cancelled).image.bits());
}

void pickPoint(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    const SceneIndex index(scene);
    const ViewRequest request = requestFor(scene);
    const QPointF steps(scene->box.width() / 1000.0, scene->box.height() / 1000.0);
    QPointF place(scene->box.left, scene->box.bottom);
    for (auto _ : state) {
        place += steps;
        if (place.x() > scene->box.right)
            place = {scene->box.left, scene->box.bottom};
        benchmark::DoNotOptimize(itemAt(index, place, 5.0, pickView(request)));
    }
}

void pickCrossing(benchmark::State& state)
{
    const auto scene = madeScene(entities(state));
    const SceneIndex index(scene);
    SceneBox box = scene->box; // half of the drawing
    box.left = box.center().x();
    for (auto _ : state)
        benchmark::DoNotOptimize(
            itemsIn(index, box, BoxRule::Crossing, pickView(requestFor(scene))).size());
}

/// What the window does for a step of the wheel and the frame that follows, at each of which the
/// painting thread is busy.
void zoomFrame(benchmark::State& state)
{
    DrawingView view;
    view.resize(1920, 1080);
    view.show();
    view.setScene(madeScene(entities(state)));
    view.renderedPicture();
    QApplication::processEvents();
    int direction = 1;
    for (auto _ : state) {
        QWheelEvent event(QPointF(500, 400), QPointF(500, 400), {}, {0, 120 * direction},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&view, &event);
        view.repaint();
        QApplication::processEvents();
        direction = -direction;
    }
}

void panFrame(benchmark::State& state)
{
    DrawingView view;
    view.resize(1920, 1080);
    view.show();
    view.setScene(madeScene(entities(state)));
    view.renderedPicture();
    ViewPlace place = view.place();
    double step = 3.0;
    for (auto _ : state) {
        place.center.rx() += step * place.unitsPerPixel;
        step = std::abs(place.center.x() - view.scene()->box.center().x()) >
                       100.0 * place.unitsPerPixel
                   ? -step
                   : step;
        view.setPlace(place);
        view.repaint();
        QApplication::processEvents();
    }
}

} // namespace

// clang-format off
BENCHMARK(makeIndex)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintWhole)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(paintNear)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(highlightAll)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(pickPoint)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMicrosecond);
BENCHMARK(pickCrossing)->Arg(100'000)->Arg(1'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(zoomFrame)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(100);
BENCHMARK(panFrame)->Arg(100'000)->Unit(benchmark::kMillisecond)->Iterations(100);
// clang-format on

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
