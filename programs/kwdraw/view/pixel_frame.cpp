#include "pixel_frame.h"

#include <algorithm>
#include <cmath>

double PixelFrame::scale() const
{
    return std::sqrt(std::abs(m_xx * m_yy - m_xy * m_yx));
}

SceneBox PixelFrame::unmapped(const ClipBox& box) const
{
    const double determinant = m_xx * m_yy - m_xy * m_yx;
    SceneBox units;
    if (determinant == 0.0)
        return {-1e300, -1e300, 1e300, 1e300};
    for (const QPointF corner : {QPointF(box.left, box.top), QPointF(box.right, box.top),
                                 QPointF(box.right, box.bottom), QPointF(box.left, box.bottom)}) {
        const QPointF pixel = corner - m_offset;
        units.add(m_origin + QPointF(m_yy * pixel.x() - m_yx * pixel.y(),
                                     m_xx * pixel.y() - m_xy * pixel.x()) /
                                 determinant);
    }
    return units;
}

ClipBox PixelFrame::mapped(const SceneBox& box) const
{
    SceneBox pixels;
    for (const QPointF corner : {QPointF(box.left, box.bottom), QPointF(box.right, box.bottom),
                                 QPointF(box.right, box.top), QPointF(box.left, box.top)})
        pixels.add(map(corner));
    return {pixels.left, pixels.bottom, pixels.right, pixels.top};
}

PixelFrame PixelFrame::within(const QTransform& toThis) const
{
    PixelFrame inner;
    const QPointF alongX = mapVector({toThis.m11(), toThis.m12()});
    const QPointF alongY = mapVector({toThis.m21(), toThis.m22()});
    inner.m_xx = alongX.x();
    inner.m_xy = alongX.y();
    inner.m_yx = alongY.x();
    inner.m_yy = alongY.y();
    const QPointF shift = m_origin - QPointF(toThis.dx(), toThis.dy());
    const double determinant = toThis.m11() * toThis.m22() - toThis.m12() * toThis.m21();
    if (determinant == 0.0 || !std::isfinite(determinant)) {
        inner.m_offset = m_offset - mapVector(shift);
        return inner;
    }
    inner.m_origin = QPointF(toThis.m22() * shift.x() - toThis.m21() * shift.y(),
                             toThis.m11() * shift.y() - toThis.m12() * shift.x()) /
                     determinant;
    inner.m_offset = m_offset;
    return inner;
}

QTransform PixelFrame::toTransform() const
{
    const QPointF zero = map({0.0, 0.0});
    return QTransform(m_xx, m_xy, m_yx, m_yy, zero.x(), zero.y());
}
