/// From drawing units to pixels.
#pragma once

#include <QPointF>
#include <QTransform>

#include <kwdraw/scene/scene.h>

/// A part of a picture in pixels, y downwards. Bounds belong to it.
struct ClipBox
{
    double left = 0.0;
    double top = 0.0;
    double right = 0.0;
    double bottom = 0.0;

    bool contains(QPointF point) const
    {
        return point.x() >= left && point.x() <= right && point.y() >= top && point.y() <= bottom;
    }
};

/// An affine map. It takes its origin off before it multiplies, so that places far from zero keep
/// their digits at any zoom.
class PixelFrame
{
  public:
    PixelFrame() = default;
    /// Shows `center` at `pixel`, y upwards becoming y downwards.
    PixelFrame(QPointF center, double pixelsPerUnit, QPointF pixel)
        : m_origin(center), m_xx(pixelsPerUnit), m_yy(-pixelsPerUnit), m_offset(pixel)
    {
    }

    /// The frame of things that are in pixels already.
    static PixelFrame pixels() { return {}; }

    QPointF map(QPointF point) const
    {
        const double x = point.x() - m_origin.x();
        const double y = point.y() - m_origin.y();
        return {m_xx * x + m_yx * y + m_offset.x(), m_xy * x + m_yy * y + m_offset.y()};
    }
    /// The same for a direction.
    QPointF mapVector(QPointF vector) const
    {
        return {m_xx * vector.x() + m_yx * vector.y(), m_xy * vector.x() + m_yy * vector.y()};
    }
    /// Pixels for one unit.
    double scale() const;
    /// The box in units around a box of pixels; everything if the frame is flat.
    SceneBox unmapped(const ClipBox& box) const;
    /// The box of pixels around a box of units.
    ClipBox mapped(const SceneBox& box) const;
    /// The frame for things that are given in a frame of their own.
    PixelFrame within(const QTransform& toThis) const;
    /// The same map for `QPainter`, as far as its numbers reach.
    QTransform toTransform() const;

  private:
    QPointF m_origin;
    double m_xx = 1.0;
    double m_xy = 0.0;
    double m_yx = 0.0;
    double m_yy = 1.0;
    QPointF m_offset;
};
