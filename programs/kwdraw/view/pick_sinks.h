/// What picking wants to know of the lines of a shape. See path_walk.h.
#pragma once

#include <QPointF>

#include "clipping.h"
#include "cubic.h"

/// How far a path is from the origin, and whether that lies in the path.
class NearestLine
{
  public:
    /// @param isArea  outlines are closed
    explicit NearestLine(bool isArea) : m_isArea(isArea) {}

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    void jumpTo(const Cubic& cubic) { lineTo(cubic.end); }
    void finish();

    double distance() const { return m_distance; }
    /// By the odd-even rule; false if the path is no area.
    bool isInside() const { return m_isArea && m_isInside; }

  private:
    bool m_isArea;
    bool m_isInside = false;
    double m_distance = 1e300;
    QPointF m_start;
    QPointF m_at;
};

/// Whether a path has a part in a box.
class TouchedBox
{
  public:
    TouchedBox(const ClipBox& box, bool isArea) : m_box(box), m_isArea(isArea) {}

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    void jumpTo(const Cubic& cubic) { m_at = cubic.end; }
    void finish();
    bool isTouched() const { return m_isTouched; }

  private:
    ClipBox m_box;
    bool m_isArea;
    bool m_isTouched = false;
    QPointF m_start;
    QPointF m_at;
};

/// Whether a path lies in a box with all its parts.
class HeldByBox
{
  public:
    explicit HeldByBox(const ClipBox& box) : m_box(box) {}

    void moveTo(QPointF point) { lineTo(point); }
    void lineTo(QPointF point) { m_isHeld = m_isHeld && m_box.contains(point); }
    void jumpTo(const Cubic&) { m_isHeld = false; }
    bool isHeld() const { return m_isHeld; }

  private:
    ClipBox m_box;
    bool m_isHeld = true;
};
