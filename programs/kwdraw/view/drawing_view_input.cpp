// Mouse and keys of the view.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <utility>

#include "drawing_view_state.h"

namespace {

/// Pixels that a line may be away from the cursor.
constexpr double kAperture = 5.0;
constexpr double kZoomStep = 1.25;
constexpr double kDegreesPerStep = 15.0;
/// Wheel steps that follow within these milliseconds are one zoom to go back from.
constexpr qint64 kOneZoom = 700;
/// An arrow key moves by this part of the view.
constexpr double kArrowStep = 0.1;

std::vector<KdDbObjectId> idsOf(const Scene& scene, const std::vector<std::uint32_t>& items)
{
    std::vector<KdDbObjectId> ids;
    ids.reserve(items.size());
    for (const std::uint32_t item : items)
        ids.push_back(scene.items[item].id);
    return ids;
}

QPointF arrow(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return {-1.0, 0.0};
    case Qt::Key_Right:
        return {1.0, 0.0};
    case Qt::Key_Up:
        return {0.0, 1.0};
    case Qt::Key_Down:
        return {0.0, -1.0};
    default:
        return {};
    }
}

} // namespace

void DrawingView::beginZoomWindow()
{
    cancelBox();
    m_state->isZoomWindow = true;
    forgetHover();
}

bool DrawingView::isDrawingBox() const
{
    return m_state->gesture == Gesture::DraggedBox || m_state->gesture == Gesture::ClickedBox;
}

bool DrawingView::cancelBox()
{
    const bool hadOne = isDrawingBox() || m_state->isZoomWindow;
    if (isDrawingBox())
        m_state->gesture = Gesture::None;
    m_state->isZoomWindow = false;
    update();
    return hadOne;
}

void DrawingView::wheelEvent(QWheelEvent* event)
{
    const double steps = event->angleDelta().y() / 8.0 / kDegreesPerStep;
    if (steps != 0.0)
        zoomInSteps(event->position(), std::pow(kZoomStep, steps));
    event->accept();
}

void DrawingView::zoomInSteps(QPointF pixel, double factor)
{
    if (!m_state->lastStep.isValid() || m_state->lastStep.elapsed() > kOneZoom)
        m_state->history.remember(place());
    m_state->lastStep.start();
    // Where the zoom ends, the drawing must not slide along below the cursor.
    ViewPlace zoomed = zoomedAt(place(), size(), pixel, factor);
    const double nearest = limited(zoomed, m_state->drawing).unitsPerPixel;
    if (nearest != zoomed.unitsPerPixel)
        zoomed = zoomedAt(place(), size(), pixel, place().unitsPerPixel / nearest);
    setPlace(zoomed);
}

void DrawingView::mousePressEvent(QMouseEvent* event)
{
    m_state->cursor = event->localPos();
    if (event->button() == Qt::LeftButton)
        pressLeft(event->localPos(), event->modifiers().testFlag(Qt::ShiftModifier));
    else if (event->button() == Qt::MiddleButton && m_state->gesture == Gesture::None) {
        m_state->gesture = Gesture::Panning;
        m_state->pressed = event->localPos();
        setCursor(Qt::ClosedHandCursor);
    }
}

void DrawingView::pressLeft(QPointF pixel, bool takeAway)
{
    if (m_state->gesture == Gesture::ClickedBox) {
        m_state->takesAway = takeAway;
        return finishBox(pixel);
    }
    if (m_state->gesture != Gesture::None)
        return;
    m_state->gesture = Gesture::Pressed;
    m_state->pressed = pixel;
    m_state->boxStart = unitsAt(pixel);
    m_state->takesAway = takeAway;
}

void DrawingView::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF pixel = event->localPos();
    m_state->cursor = pixel;
    m_state->isInside = true;
    if (m_state->gesture == Gesture::Panning) {
        const QPointF moved = pixel - m_state->pressed;
        m_state->pressed = pixel;
        const double units = place().unitsPerPixel;
        setPlace({place().center + QPointF(-moved.x(), moved.y()) * units, units});
    } else if (m_state->gesture == Gesture::Pressed) {
        dragLeft(pixel);
    } else if (m_state->gesture == Gesture::None && !m_state->hoverTimer.isActive()) {
        m_state->hoverTimer.start();
    }
    if (isDrawingBox())
        update();
    emit cursorMoved(unitsAt(pixel));
}

void DrawingView::dragLeft(QPointF pixel)
{
    if ((pixel - m_state->pressed).manhattanLength() < QApplication::startDragDistance())
        return;
    const SceneIndex* index = m_state->index();
    const bool onItem = index && !m_state->isZoomWindow &&
                        itemAt(*index, m_state->boxStart, kAperture, m_state->pickView());
    if (onItem)
        return;
    forgetHover();
    m_state->gesture = Gesture::DraggedBox;
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event)
{
    m_state->cursor = event->localPos();
    if (event->button() == Qt::LeftButton) {
        releaseLeft();
    } else if (event->button() == Qt::MiddleButton && m_state->gesture == Gesture::Panning) {
        m_state->gesture = Gesture::None;
        setCursor(Qt::CrossCursor);
    } else if (event->button() == Qt::RightButton && !cancelBox()) {
        emit rightClicked(event->globalPos());
    }
}

void DrawingView::releaseLeft()
{
    if (m_state->gesture == Gesture::DraggedBox)
        return finishBox(m_state->cursor);
    if (m_state->gesture != Gesture::Pressed)
        return;
    m_state->gesture = Gesture::None;
    if (m_state->isZoomWindow) {
        m_state->gesture = Gesture::ClickedBox;
        return update();
    }
    pickAtPress();
}

void DrawingView::pickAtPress()
{
    const QPointF start = m_state->boxStart;
    m_state->withIndex([this, start, takeAway = m_state->takesAway] {
        const auto item = itemAt(*m_state->index(), start, kAperture, m_state->pickView());
        if (item) {
            emit picked({scene()->items[*item].id}, takeAway);
        } else if (m_state->gesture == Gesture::None) {
            forgetHover();
            m_state->boxStart = start;
            m_state->gesture = Gesture::ClickedBox;
            update();
        }
    });
}

void DrawingView::finishBox(QPointF pixel)
{
    m_state->gesture = Gesture::None;
    update();
    if (!std::exchange(m_state->isZoomWindow, false))
        return pickBox(pixel);
    SceneBox box;
    box.add(m_state->boxStart);
    box.add(unitsAt(pixel));
    if (box.width() > 0.0 && box.height() > 0.0)
        zoomAndRemember(placeAround(box, size(), 0.0));
}

void DrawingView::pickBox(QPointF pixel)
{
    const QPointF corner = unitsAt(pixel);
    const BoxRule rule = corner.x() >= m_state->boxStart.x() ? BoxRule::Window : BoxRule::Crossing;
    SceneBox box;
    box.add(m_state->boxStart);
    box.add(corner);
    m_state->withIndex([this, box, rule, takeAway = m_state->takesAway] {
        const auto items = itemsIn(*m_state->index(), box, rule, m_state->pickView());
        if (!items.empty())
            emit picked(idsOf(*scene(), items), takeAway);
    });
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::MiddleButton)
        zoomToExtents();
    else
        mousePressEvent(event);
}

void DrawingView::keyPressEvent(QKeyEvent* event)
{
    const QPointF step = arrow(event->key());
    if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)
        zoomInSteps(rect().center(), kZoomStep);
    else if (event->key() == Qt::Key_Minus)
        zoomInSteps(rect().center(), 1.0 / kZoomStep);
    else if (!step.isNull())
        setPlace({place().center + QPointF(step.x() * width(), step.y() * height()) *
                                       (kArrowStep * place().unitsPerPixel),
                  place().unitsPerPixel});
    else if (event->key() != Qt::Key_Escape || !cancelBox())
        QWidget::keyPressEvent(event);
}

void DrawingView::leaveEvent(QEvent*)
{
    m_state->isInside = false;
    m_state->hoverTimer.stop();
    forgetHover();
}

void DrawingView::hover()
{
    const SceneIndex* index = m_state->index();
    const bool free =
        m_state->gesture == Gesture::None && !m_state->isZoomWindow && m_state->isInside;
    const auto item = index && free
                          ? itemAt(*index, unitsAt(m_state->cursor), kAperture, m_state->pickView())
                          : std::nullopt;
    if (item == m_state->request.hovered)
        return;
    m_state->request.hovered = item;
    refresh();
}

void DrawingView::forgetHover()
{
    if (!m_state->request.hovered)
        return;
    m_state->request.hovered.reset();
    refresh();
}
