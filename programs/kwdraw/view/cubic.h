/// A Bezier curve of four points.
#pragma once

#include <QPointF>

#include <utility>

#include "pixel_frame.h"

struct Cubic
{
    QPointF start;
    QPointF control1;
    QPointF control2;
    QPointF end;

    QPointF at(double t) const;
    std::pair<Cubic, Cubic> halves() const;
    /// Certain if true: the curve stays inside the box of its points.
    bool misses(const ClipBox& box) const;
    /// Into how many lines to cut it so that none leaves it by more than `tolerance`.
    double pieces(double tolerance) const;
    double length() const;
};
