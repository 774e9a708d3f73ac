#include "made_scene.h"

#include <cmath>
#include <map>

#include <drawing_view/scene_maker.h>

namespace {

/// Of ten entities six are lines, and one each a circle, a polyline, a text, an area.
void addEntity(SceneMaker& maker, long number, QPointF place)
{
    const double turn = static_cast<double>(number) * 0.7;
    const QPointF reach(8.0 * std::cos(turn), 8.0 * std::sin(turn));
    maker.item();
    switch (number % 10) {
    case 6:
        return maker.circle(place, 4.0);
    case 7:
        return maker.polyline(QPolygonF(
            {place, place + QPointF(5, 0), place + QPointF(5, 5), place + QPointF(0, 5), place}));
    case 8:
        return maker.text(QStringLiteral("Text %1").arg(number), place, 2.0, 15.0);
    case 9:
        return maker.fill(QPolygonF({place, place + QPointF(3, 0), place + QPointF(0, 3)}));
    default:
        return maker.line(place, place + reach);
    }
}

} // namespace

std::shared_ptr<const Scene> madeScene(long entities)
{
    static std::map<long, std::shared_ptr<const Scene>> made;
    auto& scene = made[entities];
    if (scene)
        return scene;
    SceneMaker maker;
    constexpr QRgb kColors[] = {0xFFFF4040, 0xFFFFFF40, 0xFF40FF40, 0xFF40FFFF, 0xFF6080FF};
    for (const QRgb color : kColors)
        maker.color(color);
    const long columns = std::lround(std::sqrt(static_cast<double>(entities) * 16.0 / 9.0));
    for (long i = 0; i < entities; ++i) {
        addEntity(maker, i,
                  QPointF(static_cast<double>(i % columns), static_cast<double>(i / columns)) *
                      10.0);
        maker.scene().shapes.back().look = static_cast<std::uint32_t>(i / 50 % 6);
    }
    scene = maker.finish();
    return scene;
}
