/// A view in a window, with what it tells.
#pragma once

#include <QImage>
#include <QTest>

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include <kwdraw/view/drawing_view.h>

#include "scene_maker.h"

inline constexpr QRgb kDarkGround = 0xFF1F2328;
inline constexpr QRgb kLightGround = 0xFFFFFFFF;
inline constexpr QRgb kRed = 0xFFFF0000;
inline constexpr QRgb kGreen = 0xFF00FF00;

/// Whether windows are dark; the application's palette.
void useTheme(bool isDark);

/// Handles events until it comes true; false if it does not in ten seconds.
bool waitUntil(const std::function<bool()>& condition);

/// How far colours are apart: the sum over red, green and blue.
int difference(QRgb first, QRgb second);

class ViewTest : public testing::Test
{
  protected:
    struct Pick
    {
        std::vector<KdDbObjectId> ids;
        bool takeAway = false;
    };

    /// 400 x 300, so with `look` a unit is a pixel and the origin lies in the lower left corner.
    ViewTest();
    ~ViewTest() override;

    void show(std::shared_ptr<const Scene> scene);
    /// Makes one unit one pixel, with this point in the lower left corner.
    void look(QPointF corner = {});
    /// The pixel of a point with `look()` in force.
    static QPoint at(double x, double y);
    /// The colour there in the picture that is painted in full.
    QRgb colorAt(double x, double y);
    /// Of all pixels within `reach` of the point, the one farthest from the ground's colour.
    QRgb strongestNear(double x, double y, int reach, QRgb ground);
    /// Waits until picks are answered at once.
    void waitForIndex();

    void press(QPoint pixel, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void moveTo(QPoint pixel, Qt::MouseButtons buttons = Qt::NoButton);
    void release(QPoint pixel, Qt::MouseButton button = Qt::LeftButton);
    void click(QPoint pixel, Qt::MouseButton button = Qt::LeftButton,
               Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton,
              Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    void wheel(QPoint pixel, int steps);

    std::unique_ptr<DrawingView> view;
    std::vector<Pick> picks;
    std::vector<QPointF> cursors;
    int rightClicks = 0;
    int placeChanges = 0;
};
