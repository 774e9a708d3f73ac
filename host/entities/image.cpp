#include <entities/image.h>

#include "corners.h"

KD_RX_DEFINE_ABSTRACT(KdDbImage, KdDbEntity, L"AcDbImage")
KD_RX_DEFINE(KdDbRasterImage, KdDbImage, L"AcDbRasterImage", L"IMAGE")
KD_RX_DEFINE(KdDbWipeout, KdDbRasterImage, L"AcDbWipeout", L"WIPEOUT")

namespace {

/// A rectangle, from two opposite corners, round.
std::vector<KdGePoint2d> rectangle(const KdGePoint2d& a, const KdGePoint2d& b)
{
    return {a, {b.x, a.y}, b, {a.x, b.y}};
}

/// The edge in pixels; see `RasterImageMembers::clipPolygon`.
std::vector<KdGePoint2d> edgeOf(const RasterImageMembers& image)
{
    std::vector<KdGePoint2d> polygon = image.clipPolygon;
    if (image.clipped && image.clipIsRectangle && polygon.size() == 2)
        return rectangle(polygon[0], polygon[1]);
    if (polygon.size() > 1 && polygon.front() == polygon.back())
        polygon.pop_back();
    if (image.clipped && !image.clipIsRectangle && polygon.size() > 2)
        return polygon;
    return rectangle({-0.5, -0.5}, {image.size.x - 0.5, image.size.y - 0.5});
}

} // namespace

void KdDbRasterImage::getOrientation(KdGePoint3d& origin, KdGeVector3d& u, KdGeVector3d& v) const
{
    origin = data().origin;
    u = data().pixelU * data().size.x;
    v = data().pixelV * data().size.y;
}

KdGePoint3d KdDbRasterImage::worldOf(const KdGePoint2d& pixel) const
{
    return data().origin + data().pixelU * (pixel.x + 0.5) +
           data().pixelV * (data().size.y - pixel.y - 0.5);
}

KdErrorStatus KdDbRasterImage::getOutline(KdArray<KdGePoint3d>& points) const
{
    for (const KdGePoint2d& pixel : edgeOf(data()))
        points.append(worldOf(pixel));
    return eOk;
}

KdErrorStatus KdDbRasterImage::getGeomExtents(KdGeExtents3d& extents) const
{
    std::vector<KdGePoint3d> corners;
    for (const KdGePoint2d& pixel : edgeOf(data()))
        corners.push_back(worldOf(pixel));
    return extentsOfPoints(corners, extents);
}
