#include <entities/spatial_filter.h>

#include <utility>

#include <database/dictionary.h>

KD_RX_DEFINE(KdDbSpatialFilter, KdDbObject, L"AcDbSpatialFilter", L"SPATIAL_FILTER")

KdDbObjectId KdDbSpatialFilter::filterOf(const KdDbObject& reference)
{
    const KdDbObjectId filters = kddbExtensionEntry(reference, L"ACAD_FILTER");
    const KdDbObjectId filter =
        filters.isNull() ? filters : kddbDictionaryEntry(filters, L"SPATIAL");
    return filter.isKindOf(desc()) ? filter : KdDbObjectId();
}

std::vector<KdGePoint3d> KdDbSpatialFilter::boundaryInBlock() const
{
    const SpatialFilterMembers& filter = data();
    std::vector<KdGePoint2d> corners = filter.boundary;
    if (corners.size() < 2)
        return {};
    if (corners.size() == 2) {
        const auto [one, other] = std::pair(corners[0], corners[1]);
        corners = {one, {other.x, one.y}, other, {one.x, other.y}};
    }
    const KdGeMatrix3d toBlock = filter.worldToBlock * filter.worldToBoundary.inverse();
    std::vector<KdGePoint3d> inBlock;
    inBlock.reserve(corners.size());
    for (const KdGePoint2d& corner : corners)
        inBlock.push_back(toBlock * KdGePoint3d{corner.x, corner.y, 0.0});
    return inBlock;
}
