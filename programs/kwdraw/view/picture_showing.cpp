#include "picture_showing.h"

#include "ground.h"
#include "view_zoom.h"

void paintGround(QPainter& painter, const ViewRequest& now)
{
    const bool isSheet = now.scene && now.scene->isSheet;
    const Ground ground = Ground::of(now.colors, isSheet);
    const bool hasEdge = isSheet && !now.scene->paper.isEmpty();
    painter.fillRect(QRectF(QPointF(0.0, 0.0), now.size), hasEdge ? ground.surround : ground.color);
}

void showPicture(QPainter& painter, const ViewPicture& picture, const ViewRequest& now)
{
    const ViewRequest& then = picture.source;
    if (picture.image.isNull() || then.scene != now.scene)
        return;
    const QPointF margin(then.margin, then.margin);
    const QPointF corner = (QPointF(picture.corner) - margin) / then.pixelRatio;
    const double zoom = then.place.unitsPerPixel / now.place.unitsPerPixel;
    const QPointF place =
        zoom == 1.0 && then.place == now.place && then.size == now.size
            ? corner
            : pixelAt(now.place, now.size, unitsAt(then.place, then.size, corner));
    const QSizeF size = QSizeF(picture.image.size()) / then.pixelRatio * zoom;

    // Only what is seen, for the numbers of a picture that is enlarged very much are too large.
    const QRectF shown = QRectF(place, size).intersected(QRectF(QPointF(0.0, 0.0), now.size));
    if (shown.isEmpty())
        return;
    const double toImage = then.pixelRatio / zoom;
    const QRectF part((shown.topLeft() - place) * toImage, shown.size() * toImage);
    painter.drawImage(shown, picture.image, part);
}

void paintFocus(QPainter& painter, const QRect& widget, const QColor& color)
{
    constexpr int kWidth = 3;
    QRegion frame(widget);
    frame -= widget.adjusted(kWidth, kWidth, -kWidth, -kWidth);
    for (const QRect& side : frame)
        painter.fillRect(side, color);
}

void paintBox(QPainter& painter, QPointF start, QPointF corner, bool isDark)
{
    const bool isWindow = corner.x() >= start.x();
    QColor color = isWindow ? (isDark ? QColor(0x5a, 0xa9, 0xff) : QColor(0x00, 0x5a, 0xc8))
                            : (isDark ? QColor(0x56, 0xd3, 0x64) : QColor(0x1a, 0x7f, 0x37));
    QPen pen(color, 1.0, isWindow ? Qt::SolidLine : Qt::DashLine);
    pen.setCosmetic(true);
    color.setAlpha(40);
    painter.setPen(pen);
    painter.setBrush(color);
    // Far corners, of a box that has left the view, come near enough to be painted.
    constexpr double kFar = 1e5;
    const auto near = [kFar](QPointF point) {
        return QPointF(qBound(-kFar, point.x(), kFar), qBound(-kFar, point.y(), kFar));
    };
    const QPoint half = near(start).toPoint();
    painter.drawRect(QRectF(QRect(half, near(corner).toPoint()).normalized()).translated(0.5, 0.5));
}
