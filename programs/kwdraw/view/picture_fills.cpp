#include "picture_fills.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "clipping.h"

namespace {

QGradientStops stopsOf(const SceneGradient& gradient)
{
    const QColor first = QColor::fromRgba(gradient.inverted ? gradient.second : gradient.first);
    const QColor second = QColor::fromRgba(gradient.inverted ? gradient.first : gradient.second);
    if (gradient.form == SceneGradient::Form::Cylinder)
        return {{0.0, first}, {0.5, second}, {1.0, first}};
    return {{0.0, first}, {1.0, second}};
}

/// The pixels of an image from `first` up to `end`, a little more than lie between the parts.
void cover(double from, double to, int size, int& first, int& end)
{
    first = static_cast<int>(std::clamp(std::floor(from * size) - 1.0, 0.0, double(size)));
    end = static_cast<int>(std::clamp(std::ceil(to * size) + 1.0, 0.0, double(size)));
}

} // namespace

QBrush gradientBrush(const SceneGradient& gradient, const SceneBox& box, const PixelFrame& frame)
{
    const QPointF along(std::cos(gradient.angle), std::sin(gradient.angle));
    // One that is not centred has its light from the upper left.
    const QPointF shift =
        gradient.centered ? QPointF() : QPointF(-box.width() / 4.0, box.height() / 4.0);
    const QPointF center = box.center() + shift;
    if (gradient.form == SceneGradient::Form::Radial) {
        const double radius = std::hypot(box.width(), box.height()) / 2.0 * frame.scale();
        QRadialGradient brush(frame.map(center), radius);
        brush.setStops(stopsOf(gradient));
        return brush;
    }
    const double reach =
        (std::abs(along.x()) * box.width() + std::abs(along.y()) * box.height()) / 2.0;
    QLinearGradient brush(frame.map(center - along * reach), frame.map(center + along * reach));
    brush.setStops(stopsOf(gradient));
    return brush;
}

void drawPicture(QPainter& painter, const SceneImage& image, const PixelFrame& frame,
                 const ClipBox& clip, const QPainterPath& shown)
{
    const PixelFrame unitSquare = frame.within(image.placement);
    const SceneBox visible = unitSquare.unmapped(clip);
    int left = 0;
    int right = 0;
    int top = 0;
    int bottom = 0;
    cover(visible.left, visible.right, image.picture.width(), left, right);
    cover(1.0 - visible.top, 1.0 - visible.bottom, image.picture.height(), top, bottom);
    if (right <= left || bottom <= top)
        return;

    // The image counts its rows from the top. The part begins near the picture, so that its place
    // is a small number at any zoom.
    const double width = image.picture.width();
    const double height = image.picture.height();
    const QTransform partToUnit(1.0 / width, 0.0, 0.0, -1.0 / height, left / width,
                                1.0 - top / height);
    const QRect part(left, top, right - left, bottom - top);
    painter.save();
    painter.setClipPath(shown, Qt::IntersectClip);
    painter.setTransform(unitSquare.within(partToUnit).toTransform());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(QPoint(0, 0), part.size()), image.picture, part);
    painter.restore();
}

std::optional<QLineF> rayToEdge(QPointF base, QPointF direction, const ClipBox& box)
{
    const LinePart part =
        linePart(base, direction, box, {0.0, std::numeric_limits<double>::infinity()});
    if (part.isEmpty() || !std::isfinite(part.to))
        return {};
    return QLineF(base, base + direction * part.to);
}
