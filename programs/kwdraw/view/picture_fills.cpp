#include "picture_fills.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "clipping.h"

namespace {

QBrush brushOf(QGradient gradient, const SceneGradient& colors)
{
    for (const SceneGradient::Stop& stop : colors.stops)
        gradient.setColorAt(stop.place, QColor::fromRgba(stop.color));
    return gradient;
}

/// The pixels of an image from `first` up to `end`, a little more than lie between the parts.
void cover(double from, double to, int size, int& first, int& end)
{
    first = static_cast<int>(std::clamp(std::floor(from * size) - 1.0, 0.0, double(size)));
    end = static_cast<int>(std::clamp(std::ceil(to * size) + 1.0, 0.0, double(size)));
}

} // namespace

QBrush gradientBrush(const SceneGradient& gradient, const PixelFrame& frame)
{
    QBrush brush = gradient.form == SceneGradient::Form::Radial
                       ? brushOf(QRadialGradient(QPointF(0.0, 0.0), 1.0), gradient)
                       : brushOf(QLinearGradient(0.0, 0.0, 1.0, 0.0), gradient);
    brush.setTransform(frame.within(gradient.placement).toTransform());
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
