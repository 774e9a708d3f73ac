/// What a view puts on the screen.
#pragma once

#include <QPainter>

#include "view_request.h"

/// What is seen until there is a picture.
void paintGround(QPainter& painter, const ViewRequest& now);

/// Draws a picture that was made for one place moved and scaled to where it belongs now; nothing if
/// it shows another scene.
void showPicture(QPainter& painter, const ViewPicture& picture, const ViewRequest& now);

/// A thick frame along the inner edge of a widget that has the keys.
void paintFocus(QPainter& painter, const QRect& widget, const QColor& color);

/// A box that the user draws from `start` to `corner`: a window to the right, a crossing to the
/// left.
void paintBox(QPainter& painter, QPointF start, QPointF corner, bool isDark);
