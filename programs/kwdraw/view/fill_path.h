/// The inside of a path in pixels.
#pragma once

#include <QPainterPath>

#include <vector>

#include "path_walk.h"

/// Gathers closed outlines and cuts them at the bounds of the picture. See path_walk.h.
class FillPath
{
  public:
    FillPath(const ClipBox& box, Qt::FillRule rule) : m_box(box) { m_path.setFillRule(rule); }

    void moveTo(QPointF point);
    void lineTo(QPointF point) { m_outline.push_back(point); }
    void jumpTo(const Cubic& cubic) { m_outline.push_back(cubic.end); }
    /// Ends the last outline; empty if nothing of the path lies in the picture.
    const QPainterPath& finished();

  private:
    void closeOutline();

    ClipBox m_box;
    QPainterPath m_path;
    std::vector<QPointF> m_outline;
};
