/// Icons that are drawn when they are shown.
#pragma once

#include <functional>

#include <QColor>
#include <QIcon>
#include <QSize>

class QPainter;

/// Draws into an area of the size it is drawn for, from (0, 0); `ink` contrasts with the ground.
using SamplePainter = std::function<void(QPainter& painter, const QColor& ink)>;

/// An icon that is sharp at any scale and follows the palette.
QIcon sampleIcon(const QSize& drawnFor, SamplePainter paint);
