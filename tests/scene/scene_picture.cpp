#include "scene_picture.h"

#include <algorithm>
#include <cmath>

#include <QPainter>
#include <QPainterPath>

namespace {

class Painting
{
  public:
    Painting(QPainter& painter, const Scene& scene, const QTransform& map)
        : m_painter(painter), m_scene(scene), m_map(map)
    {
    }

    void paintAll(const std::vector<std::uint32_t>& frozen)
    {
        for (const SceneItem& item : m_scene.items) {
            if (m_scene.layers[item.layer].frozen || isIn(frozen, item.layer))
                continue;
            for (const SceneShape& shape : m_scene.shapesOf(item)) {
                const SceneLayer& layer = m_scene.layers[shape.layer];
                if (layer.on && !layer.frozen && !isIn(frozen, shape.layer))
                    paint(shape);
            }
        }
    }

  private:
    static bool isIn(const std::vector<std::uint32_t>& row, std::uint32_t value)
    {
        return std::find(row.begin(), row.end(), value) != row.end();
    }

    QPainterPath pathOf(const SceneShape& shape) const
    {
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        const QPointF* p = m_scene.points.data() + shape.firstPoint;
        for (std::uint32_t i = 0; i < shape.stepCount; ++i) {
            switch (m_scene.steps[shape.firstStep + i]) {
            case PathStep::Move:
                path.moveTo(m_map.map(*p++));
                break;
            case PathStep::Line:
                path.lineTo(m_map.map(*p++));
                break;
            case PathStep::Cubic:
                path.cubicTo(m_map.map(p[0]), m_map.map(p[1]), m_map.map(p[2]));
                p += 3;
                break;
            case PathStep::Close:
                path.closeSubpath();
                break;
            }
        }
        return path;
    }

    QPen penOf(const SceneLook& look, const QColor& color) const
    {
        QPen pen(color, 1.0);
        pen.setCosmetic(true);
        if (look.linetype < 0)
            return pen;
        QVector<qreal> dashes;
        const double scale = look.linetypeScale * std::sqrt(std::abs(m_map.determinant()));
        const std::vector<double>& pattern =
            m_scene.linetypes[static_cast<std::size_t>(look.linetype)].dashes;
        for (const double dash : pattern)
            dashes << std::max(1.0, std::abs(dash) * scale);
        if (dashes.size() % 2 == 0 && pattern.front() > 0.0)
            pen.setDashPattern(dashes);
        return pen;
    }

    void paint(const SceneShape& shape)
    {
        const SceneLook& look = m_scene.looks[shape.look];
        const QColor color = QColor::fromRgba(look.color);
        switch (shape.kind) {
        case SceneShape::Kind::Stroke:
            m_painter.strokePath(pathOf(shape), penOf(look, color));
            break;
        case SceneShape::Kind::Fill:
            m_painter.fillPath(pathOf(shape), color);
            break;
        case SceneShape::Kind::Gradient: {
            const SceneGradient& gradient = m_scene.gradients[shape.index];
            const QPainterPath path = pathOf(shape);
            QLinearGradient brush(path.boundingRect().bottomLeft(), path.boundingRect().topRight());
            brush.setColorAt(0.0, QColor::fromRgba(gradient.first));
            brush.setColorAt(1.0, QColor::fromRgba(gradient.second));
            m_painter.fillPath(path, brush);
            break;
        }
        case SceneShape::Kind::Wipeout:
            m_painter.fillPath(pathOf(shape), QColor(24, 28, 34));
            break;
        case SceneShape::Kind::Text:
            paintText(m_scene.texts[shape.index], color);
            break;
        case SceneShape::Kind::Marker:
            m_painter.setPen(color);
            m_painter.drawEllipse(m_map.map(m_scene.markers[shape.index].position), 2.0, 2.0);
            break;
        case SceneShape::Kind::Ray: {
            const SceneRay& ray = m_scene.rays[shape.index];
            const QPointF reach = ray.direction * 1e5;
            m_painter.setPen(QPen(color, 1.0));
            m_painter.drawLine(m_map.map(ray.bothSides ? ray.base - reach : ray.base),
                               m_map.map(ray.base + reach));
            break;
        }
        case SceneShape::Kind::Image:
            paintImage(m_scene.images[shape.index]);
            break;
        }
    }

    void paintText(const SceneText& text, const QColor& color)
    {
        constexpr double kSize = 100.0;
        const SceneFont& font = m_scene.fonts[text.font];
        QFont used(font.family, 10, font.bold ? QFont::Bold : QFont::Normal, font.italic);
        used.setPixelSize(static_cast<int>(kSize));
        const double scale = 1.0 / QFontMetricsF(used).capHeight();
        QPainterPath path;
        path.addText(0.0, 0.0, used, text.text);
        m_painter.fillPath(
            (QTransform::fromScale(scale, -scale) * text.placement * m_map).map(path), color);
    }

    void paintImage(const SceneImage& image)
    {
        if (image.picture.isNull())
            return;
        const QSize size = image.picture.size();
        m_painter.save();
        m_painter.setTransform(QTransform(1.0 / size.width(), 0, 0, -1.0 / size.height(), 0, 1) *
                               image.placement * m_map);
        m_painter.drawImage(0, 0, image.picture);
        m_painter.restore();
    }

    QPainter& m_painter;
    const Scene& m_scene;
    QTransform m_map;
};

} // namespace

QImage pictureOf(const Scene& scene, int width)
{
    constexpr double kRoom = 1.05;
    const double across = std::max({scene.box.width(), scene.box.height(), 1e-9}) * kRoom;
    const double scale = width / across;
    QImage picture(width, std::max(1, static_cast<int>(scene.box.height() * kRoom * scale)),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(QColor(24, 28, 34));
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = scene.box.center();
    const QTransform map(scale, 0.0, 0.0, -scale, picture.width() / 2.0 - center.x() * scale,
                         picture.height() / 2.0 + center.y() * scale);
    Painting(painter, scene, map).paintAll({});
    for (const SceneWindow& window : scene.windows) {
        painter.save();
        QPainterPath clip;
        clip.addPolygon(map.map(window.clip));
        painter.setClipPath(clip);
        Painting(painter, *window.model, window.modelToSheet * map).paintAll(window.frozenLayers);
        painter.restore();
    }
    return picture;
}
