#include "shape_painter.h"

#include <QPen>

#include <algorithm>
#include <cmath>

#include "clipping.h"
#include "fill_path.h"
#include "markers.h"
#include "picture_fills.h"

namespace {

/// Shapes below this size are a dot.
constexpr double kDotPixels = 1.0;
/// Capital letters below this height are no letters.
constexpr double kTextPixels = 3.0;
constexpr double kInchesPerLineweight = 1.0 / 2540.0;
constexpr double kPixelsPerInch = 96.0;
/// How much of the ground shows through an area that is marked.
constexpr int kMarkedArea = 90;
/// Of broken lines, in widths of the line.
constexpr double kMarkDash = 2.5;
constexpr double kMarkGap = 1.5;
/// Lines wait for the painter until there are so many points.
constexpr std::size_t kRunsKept = 20000;

} // namespace

double thinnestPen(const PaintStyle& style)
{
    return std::max(1.0, std::round(style.pixelRatio));
}

double penWidth(const SceneLook& look, const PaintStyle& style)
{
    const double thinnest = thinnestPen(style);
    if (!style.lineweights)
        return thinnest;
    const double width = look.lineweight * kInchesPerLineweight * kPixelsPerInch * style.pixelRatio;
    // Pens of one pixel are painted much faster than those a little wider.
    return width < 1.25 * thinnest ? thinnest : width;
}

ShapePainter::ShapePainter(QPainter& painter, const PaintStyle& style, GlyphStore& glyphs)
    : m_painter(painter), m_style(style), m_glyphs(glyphs)
{
}

void ShapePainter::enter(const Scene& scene, const PixelFrame& frame, double dashScale)
{
    flush();
    m_scene = &scene;
    m_frame = frame;
    m_scale = frame.scale();
    m_dashScale = dashScale;
    m_pens.clear();
    for (const SceneLook& look : scene.looks)
        m_pens.push_back(penOf(look));
}

ShapePainter::Pen ShapePainter::penOf(const SceneLook& look) const
{
    const double width = penWidth(look, m_style);
    if (m_style.marked)
        return {m_style.marked->color, std::max(width, m_style.marked->leastWidth)};
    return {m_style.ground.painted(look), width};
}

void ShapePainter::usePen(const Pen& pen)
{
    if (pen == m_pen && m_runs.pointCount() < kRunsKept)
        return;
    flush();
    m_pen = pen;
}

void ShapePainter::flush()
{
    if (m_runs.isEmpty())
        return;
    QPen pen(m_pen.color, m_pen.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin);
    if (m_style.marked && m_style.marked->isBroken) {
        pen.setCapStyle(Qt::FlatCap);
        pen.setDashPattern({kMarkDash, kMarkGap});
    }
    m_painter.setPen(pen);
    m_lines.clear();
    for (std::size_t i = 0; i < m_runs.count(); ++i) {
        const std::span<const QPointF> run = m_runs.run(i);
        if (run.size() == 2)
            m_lines.emplace_back(run[0], run[1]);
        else
            m_painter.drawPolyline(run.data(), static_cast<int>(run.size()));
    }
    if (!m_lines.empty())
        m_painter.drawLines(m_lines.data(), static_cast<int>(m_lines.size()));
    m_runs.clear();
}

void ShapePainter::paint(const SceneShape& shape)
{
    if (paintSmall(shape))
        return;
    switch (shape.kind) {
    case SceneShape::Kind::Stroke:
        return paintStroke(shape);
    case SceneShape::Kind::Fill:
        return paintFill(shape, fillBrush(shape));
    case SceneShape::Kind::Gradient:
        return paintGradient(shape);
    case SceneShape::Kind::Text:
        return paintText(shape);
    case SceneShape::Kind::Image:
        return paintImage(shape);
    case SceneShape::Kind::Marker:
        return paintMarker(shape);
    case SceneShape::Kind::Ray:
        return paintRay(shape);
    case SceneShape::Kind::Wipeout:
        return paintFill(shape, m_style.marked ? fillBrush(shape) : QBrush(m_style.ground.color));
    }
}

QBrush ShapePainter::fillBrush(const SceneShape& shape) const
{
    QColor color = m_pens[shape.look].color;
    if (m_style.marked && m_style.marked->isBroken)
        return {color, Qt::BDiagPattern};
    if (m_style.marked)
        color.setAlpha(kMarkedArea);
    return color;
}

void ShapePainter::paintDot(QPointF pixel, const QColor& color)
{
    flush();
    if (!m_style.clip.contains(pixel))
        return;
    const int size = static_cast<int>(thinnestPen(m_style));
    const double half = (size - 1) / 2.0;
    m_painter.fillRect(QRect(static_cast<int>(std::floor(pixel.x() - half)),
                             static_cast<int>(std::floor(pixel.y() - half)), size, size),
                       color);
}

bool ShapePainter::paintSmall(const SceneShape& shape)
{
    if (shape.kind == SceneShape::Kind::Ray || shape.kind == SceneShape::Kind::Marker)
        return false;
    if (std::max(shape.box.width(), shape.box.height()) * m_scale >= kDotPixels)
        return false;
    if (shape.kind != SceneShape::Kind::Wipeout || m_style.marked)
        paintDot(m_frame.map(shape.box.center()), m_pens[shape.look].color);
    return true;
}

void ShapePainter::strokePath(const PathView& path, const PixelFrame& frame, const SceneLook& look)
{
    const double dashScale = look.linetypeScale * m_dashScale;
    const bool dashed =
        look.linetype >= 0 && static_cast<std::size_t>(look.linetype) < m_scene->linetypes.size() &&
        DashedLine::isVisible(m_scene->linetypes[static_cast<std::size_t>(look.linetype)],
                              dashScale);
    if (!dashed) {
        SolidLine line(m_runs, m_style.clip);
        return walkPath(path, frame, m_style.clip, line);
    }
    DashedLine line(m_runs, m_style.clip,
                    m_scene->linetypes[static_cast<std::size_t>(look.linetype)], dashScale);
    walkPath(path, frame, m_style.clip, line);
}

void ShapePainter::paintStroke(const SceneShape& shape)
{
    usePen(m_pens[shape.look]);
    strokePath(pathOf(*m_scene, shape), m_frame, m_scene->looks[shape.look]);
}

void ShapePainter::paintRay(const SceneShape& shape)
{
    usePen(m_pens[shape.look]);
    const SceneRay& ray = m_scene->rays[shape.index];
    const auto half = [&](QPointF direction) {
        const auto line =
            rayToEdge(m_frame.map(ray.base), m_frame.mapVector(direction), m_style.clip);
        if (!line)
            return;
        constexpr PathStep kSteps[] = {PathStep::Move, PathStep::Line};
        const QPointF points[] = {line->p1(), line->p2()};
        strokePath({kSteps, points}, PixelFrame::pixels(), m_scene->looks[shape.look]);
    };
    half(ray.direction);
    if (ray.bothSides)
        half(-ray.direction);
}

void ShapePainter::paintMarker(const SceneShape& shape)
{
    const SceneMarker& marker = m_scene->markers[shape.index];
    const double size = markerSize(marker, m_scale, m_style.viewHeight);
    const QPointF place = m_frame.map(marker.position);
    if (hasDot(marker.mode))
        paintDot(place, m_pens[shape.look].color);
    if (size < 2.0 * kDotPixels) {
        if (!markerPath(marker.mode).steps.empty())
            paintDot(place, m_pens[shape.look].color);
        return;
    }
    usePen(m_pens[shape.look]);
    SolidLine line(m_runs, m_style.clip);
    walkPath(markerPath(marker.mode), PixelFrame({0.0, 0.0}, size, place), m_style.clip, line);
}

void ShapePainter::paintText(const SceneShape& shape)
{
    const SceneText& text = m_scene->texts[shape.index];
    PixelFrame frame = m_frame.within(text.placement);
    const QPointF up = frame.mapVector({0.0, 1.0});
    if (std::hypot(up.x(), up.y()) < kTextPixels) {
        Pen thin{m_pens[shape.look].color, thinnestPen(m_style)};
        thin.color.setAlpha(thin.color.alpha() * 2 / 3);
        usePen(thin);
        constexpr PathStep kSteps[] = {PathStep::Move, PathStep::Line};
        const QPointF middle[] = {{0.0, 0.5}, {text.advance, 0.5}};
        SolidLine line(m_runs, m_style.clip);
        return walkPath({kSteps, middle}, frame, m_style.clip, line);
    }
    FillPath path(m_style.clip, Qt::WindingFill);
    walkText(text, m_scene->fonts[text.font], m_glyphs, frame, m_style.clip, path);
    flush();
    m_painter.fillPath(path.finished(), m_pens[shape.look].color);
}

void ShapePainter::paintFill(const SceneShape& shape, const QBrush& brush)
{
    flush();
    FillPath path(m_style.clip, Qt::OddEvenFill);
    walkPath(pathOf(*m_scene, shape), m_frame, m_style.clip, path);
    m_painter.fillPath(path.finished(), brush);
}

void ShapePainter::paintGradient(const SceneShape& shape)
{
    if (m_style.marked)
        return paintFill(shape, fillBrush(shape));
    paintFill(shape, gradientBrush(m_scene->gradients[shape.index], m_frame));
}

void ShapePainter::paintImage(const SceneShape& shape)
{
    const SceneImage& image = m_scene->images[shape.index];
    if (m_style.marked || image.picture.isNull()) {
        if (m_style.marked)
            paintFill(shape, fillBrush(shape));
        return paintStroke(shape);
    }
    flush();
    FillPath path(m_style.clip, Qt::OddEvenFill);
    walkPath(pathOf(*m_scene, shape), m_frame, m_style.clip, path);
    if (!path.finished().isEmpty())
        drawPicture(m_painter, image, m_frame, m_style.clip, path.finished());
}
