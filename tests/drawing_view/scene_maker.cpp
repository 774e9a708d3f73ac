#include "scene_maker.h"

#include <cmath>

namespace {

/// Of a quarter of a circle of radius 1.
constexpr double kControl = 0.5522847498307936;
constexpr double kDegree = 3.14159265358979323846 / 180.0;

SceneBox boxOf(const QVector<QPointF>& points)
{
    SceneBox box;
    for (const QPointF point : points)
        box.add(point);
    return box;
}

} // namespace

KdDbObjectId madeId(std::size_t number)
{
    return KdDbObjectId(reinterpret_cast<KdDbObject*>((number + 1) * 16));
}

SceneMaker::SceneMaker() : m_scene(std::make_shared<Scene>())
{
    addLayer();
    foreground();
}

KdDbObjectId SceneMaker::item(std::uint32_t layer)
{
    SceneItem& item = m_scene->items.emplace_back();
    item.id = madeId(m_scene->items.size() - 1);
    item.layer = layer;
    item.firstShape = static_cast<std::uint32_t>(m_scene->shapes.size());
    return item.id;
}

std::uint32_t SceneMaker::addLayer(bool on, bool frozen)
{
    SceneLayer& layer = m_scene->layers.emplace_back();
    layer.on = on;
    layer.frozen = frozen;
    return static_cast<std::uint32_t>(m_scene->layers.size() - 1);
}

void SceneMaker::color(QRgb rgb)
{
    SceneLook look;
    look.color = rgb;
    this->look(look);
}

void SceneMaker::foreground()
{
    SceneLook look;
    look.isForeground = true;
    this->look(look);
}

void SceneMaker::look(const SceneLook& look)
{
    m_scene->looks.push_back(look);
}

void SceneMaker::dashes(std::vector<double> dashes)
{
    SceneLinetype& linetype = m_scene->linetypes.emplace_back();
    for (const double dash : dashes)
        linetype.length += std::abs(dash);
    linetype.dashes = std::move(dashes);
    SceneLook look = m_scene->looks.back();
    look.linetype = static_cast<std::int32_t>(m_scene->linetypes.size() - 1);
    this->look(look);
}

void SceneMaker::step(PathStep step, std::initializer_list<QPointF> points)
{
    m_scene->steps.push_back(step);
    m_scene->points.insert(m_scene->points.end(), points);
}

void SceneMaker::outline(const QPolygonF& points)
{
    for (int i = 0; i < points.size(); ++i)
        step(i == 0 ? PathStep::Move : PathStep::Line, {points[i]});
}

SceneShape& SceneMaker::add(SceneShape::Kind kind, const SceneBox& box)
{
    if (m_scene->items.empty())
        item();
    SceneShape& shape = m_scene->shapes.emplace_back();
    shape.kind = kind;
    shape.look = static_cast<std::uint32_t>(m_scene->looks.size() - 1);
    shape.layer = m_layer;
    shape.box = box;
    ++m_scene->items.back().shapeCount;
    m_scene->items.back().box.add(box);
    return shape;
}

/// Of all steps since the last path.
SceneShape& SceneMaker::addPath(SceneShape::Kind kind, const SceneBox& box)
{
    SceneShape& shape = add(kind, box);
    shape.firstStep = static_cast<std::uint32_t>(m_firstStep);
    shape.stepCount = static_cast<std::uint32_t>(m_scene->steps.size() - m_firstStep);
    shape.firstPoint = static_cast<std::uint32_t>(m_firstPoint);
    shape.pointCount = static_cast<std::uint32_t>(m_scene->points.size() - m_firstPoint);
    m_firstStep = m_scene->steps.size();
    m_firstPoint = m_scene->points.size();
    return shape;
}

void SceneMaker::line(QPointF from, QPointF to)
{
    polyline(QPolygonF(QVector<QPointF>{from, to}));
}

void SceneMaker::polyline(const QPolygonF& points)
{
    outline(points);
    addPath(SceneShape::Kind::Stroke, boxOf(points));
}

void SceneMaker::circle(QPointF center, double r)
{
    const double k = r * kControl;
    const auto at = [center](double x, double y) { return center + QPointF(x, y); };
    step(PathStep::Move, {at(r, 0.0)});
    step(PathStep::Cubic, {at(r, k), at(k, r), at(0.0, r)});
    step(PathStep::Cubic, {at(-k, r), at(-r, k), at(-r, 0.0)});
    step(PathStep::Cubic, {at(-r, -k), at(-k, -r), at(0.0, -r)});
    step(PathStep::Cubic, {at(k, -r), at(r, -k), at(r, 0.0)});
    addPath(SceneShape::Kind::Stroke, boxOf({at(-r, -r), at(r, r)}));
}

void SceneMaker::quarter(QPointF center, double r)
{
    const double k = r * kControl;
    step(PathStep::Move, {center + QPointF(r, 0.0)});
    step(PathStep::Cubic,
         {center + QPointF(r, k), center + QPointF(k, r), center + QPointF(0.0, r)});
    addPath(SceneShape::Kind::Stroke, boxOf({center, center + QPointF(r, r)}));
}

void SceneMaker::fill(const QPolygonF& points)
{
    fill(std::vector<QPolygonF>{points});
}

void SceneMaker::fill(const std::vector<QPolygonF>& outlines)
{
    SceneBox box;
    for (const QPolygonF& points : outlines) {
        outline(points);
        step(PathStep::Close, {});
        box.add(boxOf(points));
    }
    addPath(SceneShape::Kind::Fill, box);
}

void SceneMaker::gradient(const QPolygonF& points, const SceneGradient& gradient)
{
    outline(points);
    addPath(SceneShape::Kind::Gradient, boxOf(points)).index =
        static_cast<std::uint32_t>(m_scene->gradients.size());
    m_scene->gradients.push_back(gradient);
}

void SceneMaker::wipeout(const QPolygonF& points)
{
    outline(points);
    addPath(SceneShape::Kind::Wipeout, boxOf(points));
}

void SceneMaker::text(const QString& text, QPointF place, double height, double degrees)
{
    if (m_scene->fonts.empty())
        m_scene->fonts.push_back({QStringLiteral("DejaVu Sans"), false, false});
    SceneText made;
    made.text = text;
    made.advance = 0.85 * text.size();
    const double c = height * std::cos(degrees * kDegree);
    const double s = height * std::sin(degrees * kDegree);
    made.placement = QTransform(c, s, -s, c, place.x(), place.y());
    const QPolygonF frame = made.placement.map(
        QPolygonF({{0.0, -0.25}, {made.advance, -0.25}, {made.advance, 1.0}, {0.0, 1.0}}));
    add(SceneShape::Kind::Text, boxOf(frame)).index =
        static_cast<std::uint32_t>(m_scene->texts.size());
    m_scene->texts.push_back(made);
}

void SceneMaker::marker(QPointF place, int mode, double size)
{
    const double reach = size > 0.0 ? size / 2.0 : 0.0;
    const QPointF half(reach, reach);
    add(SceneShape::Kind::Marker, boxOf({place - half, place + half})).index =
        static_cast<std::uint32_t>(m_scene->markers.size());
    m_scene->markers.push_back({place, mode, size});
}

void SceneMaker::ray(QPointF base, QPointF direction, bool bothSides)
{
    const double length = std::hypot(direction.x(), direction.y());
    add(SceneShape::Kind::Ray, boxOf({base})).index =
        static_cast<std::uint32_t>(m_scene->rays.size());
    m_scene->rays.push_back({base, direction / length, bothSides});
}

void SceneMaker::image(const QImage& picture, QPointF corner, double width, double height)
{
    const QPolygonF frame({corner, corner + QPointF(width, 0.0), corner + QPointF(width, height),
                           corner + QPointF(0.0, height)});
    outline(frame);
    step(PathStep::Close, {});
    addPath(SceneShape::Kind::Image, boxOf(frame)).index =
        static_cast<std::uint32_t>(m_scene->images.size());
    m_scene->images.push_back(
        {picture, QTransform(width, 0.0, 0.0, height, corner.x(), corner.y())});
}

void SceneMaker::window(const QPolygonF& clip, const QTransform& modelToSheet,
                        std::shared_ptr<const Scene> model, std::vector<std::uint32_t> frozen)
{
    item();
    outline(clip);
    step(PathStep::Close, {});
    addPath(SceneShape::Kind::Stroke, boxOf(clip));
    SceneWindow window;
    window.item = static_cast<std::uint32_t>(m_scene->items.size() - 1);
    window.clip = clip;
    window.modelToSheet = modelToSheet;
    window.frozenLayers = std::move(frozen);
    window.model = std::move(model);
    m_scene->windows.push_back(window);
}

std::shared_ptr<const Scene> SceneMaker::finish()
{
    for (const SceneItem& item : m_scene->items)
        if (!item.box.isEmpty())
            m_scene->box.add(item.box);
    return m_scene;
}
