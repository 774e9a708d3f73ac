#include <entities/spatial_filter.h>

#include <algorithm>
#include <string_view>

#include <database/dictionary.h>
#include <database/xrecord.h>

KD_RX_DEFINE(KdDbSpatialFilter, KdDbObject, L"AcDbSpatialFilter", L"SPATIAL_FILTER")

namespace {

using Polygon = std::vector<KdGePoint2d>;

/// With all four corners if it is a rectangle of two.
Polygon completed(Polygon corners)
{
    if (corners.size() != 2)
        return corners;
    const KdGePoint2d one = corners[0];
    const KdGePoint2d other = corners[1];
    return {one, {other.x, one.y}, other, {one.x, other.y}};
}

/// What a record beside a filter tells of a boundary that hides its inside.
struct InvertedClip
{
    Polygon hidden;
    Polygon boundary; ///< of the filter, as it was made to show the same in a simpler way
};

InvertedClip invertedClipOf(const KdDbSpatialFilter& filter)
{
    constexpr short kMarker = 102;
    constexpr short kPoint = 10;
    InvertedClip clip;
    const OpenForRead<KdDbXrecord> record(kddbExtensionEntry(filter, L"ACAD_XREC_ROUNDTRIP"));
    if (!record)
        return clip;
    Polygon* polygon = nullptr;
    for (const resbuf* group = record->groups(); group; group = group->rbnext) {
        if (group->restype == kMarker) {
            const std::wstring_view name(group->resval.rstring);
            polygon = name == L"ACAD_INVERTEDCLIP_ROUNDTRIP"           ? &clip.hidden
                      : name == L"ACAD_INVERTEDCLIP_ROUNDTRIP_COMPARE" ? &clip.boundary
                                                                       : nullptr;
        } else if (group->restype == kPoint && polygon) {
            polygon->push_back({group->resval.rpoint[0], group->resval.rpoint[1]});
        }
    }
    return clip;
}

/// A polygon with a hole, in one line that goes over to the hole and back.
Polygon withHole(const Polygon& hole, const Polygon& around)
{
    const auto [left, right] = std::ranges::minmax(around, {}, &KdGePoint2d::x);
    const auto [bottom, top] = std::ranges::minmax(around, {}, &KdGePoint2d::y);
    Polygon corners = hole;
    corners.push_back(hole.front());
    const KdGePoint2d first{left.x, bottom.y};
    corners.insert(corners.end(),
                   {first, {right.x, bottom.y}, {right.x, top.y}, {left.x, top.y}, first});
    return corners;
}

} // namespace

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
    if (filter.boundary.size() < 2)
        return {};
    const InvertedClip inverted = invertedClipOf(*this);
    // A program that knows nothing of the record may have changed the boundary.
    const bool isInverted = inverted.hidden.size() > 1 && inverted.boundary == filter.boundary;
    const Polygon corners = isInverted ? withHole(completed(inverted.hidden), filter.boundary)
                                       : completed(filter.boundary);
    const KdGeMatrix3d toBlock = filter.worldToBlock * filter.worldToBoundary.inverse();
    std::vector<KdGePoint3d> inBlock;
    inBlock.reserve(corners.size());
    for (const KdGePoint2d& corner : corners)
        inBlock.push_back(toBlock * KdGePoint3d{corner.x, corner.y, 0.0});
    return inBlock;
}
