/// A soft border around what is marked.
#pragma once

#include <QColor>
#include <QImage>

/// Puts a translucent border of this colour under all that is painted in the picture. Takes as long
/// as the picture is large, however much is in it.
/// @param picture  ARGB32, premultiplied
void addHalo(QImage& picture, const QColor& color, double pixelRatio);
