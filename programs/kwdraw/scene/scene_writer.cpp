#include <kwdraw/scene/scene_writer.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

#include <kwdraw/scene/curve_box.h>
#include <kwdraw/texts/font_metrics.h>
#include <kwdraw/texts/letter_outlines.h>

namespace {

/// Comparisons with what is no number leave a box as empty as it was.
bool isFinite(const SceneBox& box)
{
    return box.left <= box.right && box.bottom <= box.top && std::isfinite(box.width()) &&
           std::isfinite(box.height());
}

SceneBox boxOfFrame(const QTransform& placement, double left, double bottom, double right,
                    double top)
{
    SceneBox box;
    for (const QPointF corner :
         {QPointF(left, bottom), QPointF(right, bottom), QPointF(right, top), QPointF(left, top)})
        box.add(placement.map(corner));
    return box;
}

} // namespace

std::size_t SceneWriter::LookHash::operator()(const SceneLook& look) const
{
    std::size_t hash = look.color;
    const auto mix = [&hash](std::size_t value) { hash = hash * 0x9E3779B97F4A7C15U + value; };
    mix(look.isForeground);
    mix(static_cast<std::size_t>(look.lineweight));
    mix(static_cast<std::size_t>(look.linetype));
    mix(std::hash<double>()(look.linetypeScale));
    return hash;
}

void SceneWriter::beginItem(KdDbObjectId id, std::uint32_t layer)
{
    SceneItem& item = m_scene.items.emplace_back();
    item.id = id;
    item.layer = layer;
    item.firstShape = static_cast<std::uint32_t>(m_scene.shapes.size());
}

void SceneWriter::endItem()
{
    SceneItem& item = m_scene.items.back();
    item.shapeCount = static_cast<std::uint32_t>(m_scene.shapes.size()) - item.firstShape;
    for (const SceneShape& shape : m_scene.shapesOf(item))
        item.box.add(shape.box);
}

void SceneWriter::setLook(const SceneLook& look, std::uint32_t layer)
{
    m_layer = layer;
    if (look == m_look && m_lookIndex != kNoLook)
        return;
    m_look = look;
    const auto next = static_cast<std::uint32_t>(m_scene.looks.size());
    const auto [entry, isNew] = m_looks.try_emplace(look, next);
    if (isNew)
        m_scene.looks.push_back(look);
    m_lookIndex = entry->second;
}

QPointF SceneWriter::placed(const KdGePoint3d& point) const
{
    const auto& [x, y, z, last] = m_frame.entry;
    return {x[0] * point.x + x[1] * point.y + x[2] * point.z + x[3],
            y[0] * point.x + y[1] * point.y + y[2] * point.z + y[3]};
}

QTransform SceneWriter::placed(const KdGeMatrix3d& placement) const
{
    const KdGeMatrix3d map = m_frame * placement;
    const auto& [x, y, z, last] = map.entry;
    return {x[0], y[0], x[1], y[1], x[3], y[3]};
}

SceneShape& SceneWriter::addShape(SceneShape::Kind kind, const SceneBox& box)
{
    if (m_lookIndex == kNoLook)
        setLook(m_look, m_layer);
    SceneShape& shape = m_scene.shapes.emplace_back();
    shape.kind = kind;
    shape.look = m_lookIndex;
    shape.layer = m_layer;
    shape.box = box;
    return shape;
}

SceneShape* SceneWriter::addPlain(SceneShape::Kind kind, const SceneBox& box)
{
    return isFinite(box) ? &addShape(kind, box) : nullptr;
}

void SceneWriter::pushClip(std::span<const KdGePoint3d> corners)
{
    std::vector<QPointF> inScene;
    inScene.reserve(corners.size());
    for (const KdGePoint3d& corner : corners)
        inScene.push_back(placed(corner));
    m_clips.push(std::move(inScene));
}

SceneShape* SceneWriter::addPath(SceneShape::Kind kind, const ScenePath& path)
{
    m_path.steps.assign(path.steps().begin(), path.steps().end());
    m_path.points.clear();
    for (const KdGePoint3d& point : path.points())
        m_path.points.push_back(placed(point));
    return m_clips.isEmpty() ? addPath(kind, m_path) : addClipped(kind, m_path);
}

SceneShape* SceneWriter::addClipped(SceneShape::Kind kind, const PlanePath& path)
{
    const SceneBox box = boxOfPath(path.steps, path.points);
    if (!isFinite(box))
        return nullptr;
    switch (m_clips.visiblePart(box)) {
    case ClipArea::Part::None:
        return nullptr;
    case ClipArea::Part::Some:
        return addPath(kind, kind == SceneShape::Kind::Stroke ? m_clips.cutLine(path)
                                                              : m_clips.cutFill(path));
    case ClipArea::Part::All:
        break;
    }
    return addPath(kind, path);
}

SceneShape* SceneWriter::addPath(SceneShape::Kind kind, const PlanePath& path)
{
    const SceneBox box = boxOfPath(path.steps, path.points);
    if (path.steps.empty() || !isFinite(box))
        return nullptr;
    SceneShape& shape = addShape(kind, box);
    shape.firstPoint = static_cast<std::uint32_t>(m_scene.points.size());
    shape.pointCount = static_cast<std::uint32_t>(path.points.size());
    shape.firstStep = static_cast<std::uint32_t>(m_scene.steps.size());
    shape.stepCount = static_cast<std::uint32_t>(path.steps.size());
    m_scene.points.insert(m_scene.points.end(), path.points.begin(), path.points.end());
    m_scene.steps.insert(m_scene.steps.end(), path.steps.begin(), path.steps.end());
    return &shape;
}

void SceneWriter::stroke(const ScenePath& path)
{
    addPath(SceneShape::Kind::Stroke, path);
}

void SceneWriter::fill(const ScenePath& path)
{
    addPath(SceneShape::Kind::Fill, path);
}

void SceneWriter::fill(const ScenePath& path, const SceneGradient& gradient,
                       const KdGeMatrix3d& placement)
{
    SceneShape* shape = addPath(SceneShape::Kind::Gradient, path);
    if (!shape)
        return;
    shape->index = static_cast<std::uint32_t>(m_scene.gradients.size());
    m_scene.gradients.push_back(gradient);
    m_scene.gradients.back().placement = placed(placement);
}

void SceneWriter::wipeout(const ScenePath& path)
{
    addPath(SceneShape::Kind::Wipeout, path);
}

std::uint32_t SceneWriter::indexOf(const SceneFont& font)
{
    // A drawing has a handful of fonts.
    const auto known = std::find(m_scene.fonts.begin(), m_scene.fonts.end(), font);
    const auto index = static_cast<std::uint32_t>(known - m_scene.fonts.begin());
    if (known == m_scene.fonts.end())
        m_scene.fonts.push_back(font);
    return index;
}

void SceneWriter::text(const QString& text, const SceneFont& font, const KdGeMatrix3d& placement)
{
    const QTransform map = placed(placement);
    const double advance = advanceOf(font, text);
    const SceneBox box = boxOfFrame(map, 0.0, -descentOf(font), advance, 1.0);
    if (text.isEmpty() || !isFinite(box))
        return;
    const ClipArea::Part seen = m_clips.visiblePart(box);
    if (seen == ClipArea::Part::Some)
        return fillLetters(text, font, map);
    if (seen == ClipArea::Part::None)
        return;
    SceneShape& shape = addShape(SceneShape::Kind::Text, box);
    shape.index = static_cast<std::uint32_t>(m_scene.texts.size());
    m_scene.texts.push_back({text, indexOf(font), map, advance});
}

/// The letters as shapes, which can be cut.
void SceneWriter::fillLetters(const QString& text, const SceneFont& font, const QTransform& map)
{
    if (needsShaping(text))
        return fillOutline(outlineOf(font, text), map);
    double at = 0.0;
    for (const uint letter : text.toUcs4()) {
        const LetterOutline outline = outlineOf(font, QString::fromUcs4(&letter, 1));
        fillOutline(outline, QTransform::fromTranslate(at, 0.0) * map);
        at += outline.advance;
    }
}

void SceneWriter::fillOutline(const LetterOutline& outline, const QTransform& map)
{
    m_path.steps = outline.steps;
    m_path.points.clear();
    for (const QPointF& point : outline.points)
        m_path.points.push_back(map.map(point));
    addClipped(SceneShape::Kind::Fill, m_path);
}

void SceneWriter::image(const QImage& picture, const KdGeMatrix3d& placement,
                        const ScenePath& shown)
{
    const QTransform map = placed(placement);
    if (!isFinite(boxOfFrame(map, 0.0, 0.0, 1.0, 1.0)))
        return;
    SceneShape* shape = addPath(SceneShape::Kind::Image, shown);
    if (!shape)
        return;
    shape->index = static_cast<std::uint32_t>(m_scene.images.size());
    m_scene.images.push_back({picture, map});
}

void SceneWriter::marker(const KdGePoint3d& position, int mode, double size)
{
    const QPointF place = placed(position);
    const double reach = size > 0.0 ? size / 2.0 : 0.0;
    const SceneBox box{place.x() - reach, place.y() - reach, place.x() + reach, place.y() + reach};
    if (!m_clips.holds(place))
        return;
    SceneShape* shape = addPlain(SceneShape::Kind::Marker, box);
    if (!shape)
        return;
    shape->index = static_cast<std::uint32_t>(m_scene.markers.size());
    m_scene.markers.push_back({place, mode, size});
}

void SceneWriter::ray(const KdGePoint3d& base, const KdGeVector3d& direction, bool bothSides)
{
    const QPointF place = placed(base);
    const QPointF toward = placed(base + direction.normal()) - place;
    const double length = std::hypot(toward.x(), toward.y());
    constexpr double kNoLength = 1e-9;
    if (!(length > kNoLength))
        return;
    if (!m_clips.isEmpty()) {
        addPath(SceneShape::Kind::Stroke, m_clips.cutRay(place, toward / length, bothSides));
        return;
    }
    SceneShape* shape =
        addPlain(SceneShape::Kind::Ray, {place.x(), place.y(), place.x(), place.y()});
    if (!shape)
        return;
    shape->index = static_cast<std::uint32_t>(m_scene.rays.size());
    m_scene.rays.push_back({place, toward / length, bothSides});
}
