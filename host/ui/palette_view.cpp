#include "palette_view.h"

#include <database/color_palette.h>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int kCell = 23;
constexpr int kGap = 10; // between the three fields, and below them for the number
constexpr int kColumns = 24;
constexpr int kShades = 10;
constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr int kLastIndex = 255;
constexpr int kHueFieldHeight = kShades * kCell;
constexpr int kNamedTop = kHueFieldHeight + kGap;
constexpr int kTextTop = kNamedTop + kCell + kGap;

/// Pure shades get darker upwards from the middle, those mixed with white downwards.
int rowOfShade(int shade)
{
    return shade % 2 == 0 ? kShades / 2 - 1 - shade / 2 : kShades / 2 + shade / 2;
}

} // namespace

KdUiPaletteView::KdUiPaletteView(QWidget* parent) : QWidget(parent)
{
    setObjectName("palette");
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize KdUiPaletteView::sizeHint() const
{
    return {kColumns * kCell + 1, kTextTop + fontMetrics().height()};
}

QRect KdUiPaletteView::cellOf(int index) const
{
    int column = index - 1;
    int top = kNamedTop;
    if (index >= kFirstGrey) {
        column = kColumns - (kLastIndex - index) - 1;
    } else if (index >= kFirstHue) {
        column = (index - kFirstHue) / kShades;
        top = rowOfShade(index % kShades) * kCell;
    }
    return {column * kCell, top, kCell, kCell};
}

int KdUiPaletteView::indexAt(const QPoint& place) const
{
    for (int index = 1; index <= kLastIndex; ++index) {
        if (cellOf(index).contains(place))
            return index;
    }
    return 0;
}

void KdUiPaletteView::setIndex(int index)
{
    m_index = std::clamp(index, 1, kLastIndex);
    setAccessibleDescription(QString::number(m_index));
    update();
}

void KdUiPaletteView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int index = 1; index <= kLastIndex; ++index)
        painter.fillRect(cellOf(index).adjusted(1, 1, 0, 0),
                         QColor::fromRgb(kdcmPaletteRgb(index)));
    const QRect chosen = cellOf(m_index);
    painter.setPen(QPen(palette().color(QPalette::Window), 3));
    painter.drawRect(chosen);
    painter.setPen(
        QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), 2));
    painter.drawRect(chosen);
    painter.setPen(palette().color(QPalette::WindowText));
    const QRgb rgb = kdcmPaletteRgb(m_index);
    painter.drawText(QRect(0, kTextTop, width(), fontMetrics().height()), Qt::AlignLeft,
                     QStringLiteral("%1   (%2, %3, %4)")
                         .arg(m_index)
                         .arg(qRed(rgb))
                         .arg(qGreen(rgb))
                         .arg(qBlue(rgb)));
}

void KdUiPaletteView::moveTo(const QPoint& place)
{
    if (const int index = indexAt(place))
        setIndex(index);
}

void KdUiPaletteView::mousePressEvent(QMouseEvent* event)
{
    moveTo(event->pos());
}

void KdUiPaletteView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (indexAt(event->pos()) != 0)
        emit picked();
}

void KdUiPaletteView::keyPressEvent(QKeyEvent* event)
{
    const QPoint middle = cellOf(m_index).center();
    switch (event->key()) {
    case Qt::Key_Left:
        return moveTo(middle - QPoint(kCell, 0));
    case Qt::Key_Right:
        return moveTo(middle + QPoint(kCell, 0));
    case Qt::Key_Up:
        return moveTo(middle - QPoint(0, middle.y() > kNamedTop ? kCell + kGap : kCell));
    case Qt::Key_Down:
        return moveTo(middle +
                      QPoint(0, middle.y() + kCell > kHueFieldHeight ? kCell + kGap : kCell));
    default:
        QWidget::keyPressEvent(event);
    }
}
