#include "view_fixture.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMouseEvent>
#include <QPalette>
#include <QWheelEvent>

#include <cstdlib>

#include <support/application.h>

namespace {

[[maybe_unused]] const auto* const kApplication =
    testing::AddGlobalTestEnvironment(new ApplicationAround<QApplication>);

void send(QWidget& view, QEvent::Type type, QPoint pixel, Qt::MouseButton button,
          Qt::MouseButtons buttons, Qt::KeyboardModifiers modifiers)
{
    QMouseEvent event(type, pixel, view.mapToGlobal(pixel), button, buttons, modifiers);
    QApplication::sendEvent(&view, &event);
}

} // namespace

void useTheme(bool isDark)
{
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Window,
                     isDark ? QColor(0x2b, 0x2f, 0x35) : QColor(0xf0, 0xf0, 0xf0));
    QApplication::setPalette(palette);
}

bool waitUntil(const std::function<bool()>& condition)
{
    return QTest::qWaitFor(condition, 10'000);
}

int difference(QRgb first, QRgb second)
{
    return std::abs(qRed(first) - qRed(second)) + std::abs(qGreen(first) - qGreen(second)) +
           std::abs(qBlue(first) - qBlue(second));
}

ViewTest::ViewTest()
{
    useTheme(true);
    view = std::make_unique<DrawingView>();
    view->resize(400, 300);
    view->show();
    QObject::connect(view.get(), &DrawingView::picked, [this](const auto& ids, bool takeAway) {
        picks.push_back({ids, takeAway});
    });
    QObject::connect(view.get(), &DrawingView::cursorMoved,
                     [this](QPointF place) { cursors.push_back(place); });
    QObject::connect(view.get(), &DrawingView::rightClicked, [this](QPoint) { ++rightClicks; });
    QObject::connect(view.get(), &DrawingView::placeChanged, [this] { ++placeChanges; });
}

ViewTest::~ViewTest()
{
    view.reset();
}

void ViewTest::show(std::shared_ptr<const Scene> scene)
{
    view->setScene(std::move(scene));
    look();
    waitForIndex();
}

void ViewTest::look(QPointF corner)
{
    view->setPlace({corner + QPointF(200.0, 150.0), 1.0});
}

QPoint ViewTest::at(double x, double y)
{
    return {static_cast<int>(x), static_cast<int>(300.0 - y)};
}

QRgb ViewTest::colorAt(double x, double y)
{
    return view->renderedPicture().pixel(at(x, y));
}

QRgb ViewTest::strongestNear(double x, double y, int reach, QRgb ground)
{
    const QImage picture = view->renderedPicture();
    QRgb strongest = ground;
    for (int dx = -reach; dx <= reach; ++dx)
        for (int dy = -reach; dy <= reach; ++dy) {
            const QRgb color = picture.pixel(at(x, y) + QPoint(dx, dy));
            if (difference(color, ground) > difference(strongest, ground))
                strongest = color;
        }
    return strongest;
}

void ViewTest::waitForIndex()
{
    view->renderedPicture();
}

void ViewTest::press(QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    send(*view, QEvent::MouseButtonPress, pixel, button, button, modifiers);
}

void ViewTest::moveTo(QPoint pixel, Qt::MouseButtons buttons)
{
    send(*view, QEvent::MouseMove, pixel, Qt::NoButton, buttons, Qt::NoModifier);
}

void ViewTest::release(QPoint pixel, Qt::MouseButton button)
{
    send(*view, QEvent::MouseButtonRelease, pixel, button, Qt::NoButton, Qt::NoModifier);
}

void ViewTest::click(QPoint pixel, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    press(pixel, button, modifiers);
    release(pixel, button);
}

void ViewTest::drag(QPoint from, QPoint to, Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    press(from, button, modifiers);
    moveTo((from + to) / 2, button);
    moveTo(to, button);
    release(to, button);
}

void ViewTest::wheel(QPoint pixel, int steps)
{
    QWheelEvent event(pixel, view->mapToGlobal(pixel), QPoint(), QPoint(0, 120 * steps),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(view.get(), &event);
}
