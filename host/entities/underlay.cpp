#include <entities/underlay.h>

#include <cmath>

KD_RX_DEFINE_ABSTRACT(KdDbUnderlayReference, KdDbEntity, L"AcDbUnderlayReference")
KD_RX_DEFINE(KdDbDgnReference, KdDbUnderlayReference, L"AcDbDgnReference", L"DGNUNDERLAY")
KD_RX_DEFINE(KdDbDwfReference, KdDbUnderlayReference, L"AcDbDwfReference", L"DWFUNDERLAY")
KD_RX_DEFINE(KdDbPdfReference, KdDbUnderlayReference, L"AcDbPdfReference", L"PDFUNDERLAY")

KdErrorStatus KdDbUnderlayReference::getOutline(KdArray<KdGePoint3d>& points) const
{
    const UnderlayMembers& page = data();
    std::vector<KdGePoint2d> corners = page.clipPolygon;
    constexpr std::size_t kRectangle = 2;
    if (corners.size() == kRectangle)
        corners = {
            corners[0], {corners[1].x, corners[0].y}, corners[1], {corners[0].x, corners[1].y}};
    if (corners.size() <= kRectangle)
        return eNotApplicable;
    const double c = std::cos(page.rotation);
    const double s = std::sin(page.rotation);
    for (const KdGePoint2d& corner : corners) {
        const double x = corner.x * page.scale.sx;
        const double y = corner.y * page.scale.sy;
        const KdGeVector3d offset{x * c - y * s, x * s + y * c, 0.0};
        points.append(page.extrusion.toWorld(page.position + offset));
    }
    return eOk;
}
