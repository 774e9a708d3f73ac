#include <entities/geo_data.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <optional>

#include <database/database.h>

KD_RX_DEFINE(KdDbGeoData, KdDbObject, L"AcDbGeoData", L"GEODATA")

namespace {

constexpr double kRadian = std::numbers::pi / 180.0;

using Weights = std::array<double, 3>;
using Corners = std::array<KdGePoint2d, 3>;

double cross(const KdGeVector2d& a, const KdGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

/// How much each corner of a triangle counts at a point; all above 0 inside of it. Nothing for a
/// triangle without area.
std::optional<Weights> weightsAt(const Corners& triangle, const KdGePoint2d& point)
{
    const auto& [a, b, c] = triangle;
    const double area = cross(b - a, c - a);
    if (area == 0.0)
        return {};
    return Weights{cross(b - point, c - point) / area, cross(c - point, a - point) / area,
                   cross(a - point, b - point) / area};
}

/// The corners of one face out of a list of points; nothing if it lacks one.
std::optional<Corners> cornersOf(const std::vector<KdGePoint2d>& points, const std::int32_t* face)
{
    Corners corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        if (face[i] < 0 || static_cast<std::size_t>(face[i]) >= points.size())
            return {};
        corners[i] = points[static_cast<std::size_t>(face[i])];
    }
    return corners;
}

/// By the triangle that holds the point, or the one that it lies the least beside.
std::optional<KdGePoint2d> byMesh(const GeoDataMembers& data, const KdGePoint2d& point)
{
    std::optional<KdGePoint2d> result;
    double best = 0.0;
    for (std::size_t i = 0; i + 3 <= data.meshFaces.size(); i += 3) {
        const auto here = cornersOf(data.meshInDrawing, &data.meshFaces[i]);
        const auto there = cornersOf(data.meshOnGlobe, &data.meshFaces[i]);
        const auto weights = here && there ? weightsAt(*here, point) : std::nullopt;
        if (!weights)
            continue;
        const double lowest = *std::min_element(weights->begin(), weights->end());
        if (result && lowest <= best)
            continue;
        best = lowest;
        const auto& [u, v, w] = *weights;
        const auto& [a, b, c] = *there;
        result = KdGePoint2d{u * a.x + v * b.x + w * c.x, u * a.y + v * b.y + w * c.y};
    }
    return result;
}

/// On the plane that touches the ellipsoid at the reference point.
KdGePoint2d byReference(const GeoDataMembers& data, const KdGePoint3d& point)
{
    constexpr double kEquatorRadius = 6378137.0; // WGS 84
    constexpr double kEccentricitySquare = 0.00669437999014;
    const KdGePoint3d& origin = data.referencePoint;
    const double size = data.north.length() > 0.0 ? data.north.length() : 1.0;
    const double x = (point.x - data.designPoint.x) * data.horizontalUnitScale;
    const double y = (point.y - data.designPoint.y) * data.horizontalUnitScale;
    const double northward = (x * data.north.x + y * data.north.y) / size;
    const double eastward = (x * data.north.y - y * data.north.x) / size;
    const double latitude = origin.y * kRadian;
    const double flat = 1.0 - kEccentricitySquare * std::sin(latitude) * std::sin(latitude);
    const double across = kEquatorRadius / std::sqrt(flat);
    const double along = across * (1.0 - kEccentricitySquare) / flat;
    return {origin.x + eastward / (across * std::cos(latitude)) / kRadian,
            origin.y + northward / along / kRadian};
}

} // namespace

KdDbObjectId KdDbGeoData::ofDrawing(const KdDbDatabase& database)
{
    const OpenForRead<KdDbBlockTableRecord> model(database.modelSpaceId());
    return model ? kddbExtensionEntry(*model, L"ACAD_GEOGRAPHICDATA") : KdDbObjectId();
}

KdGePoint3d KdDbGeoData::toGlobe(const KdGePoint3d& point) const
{
    const auto meshed = byMesh(data(), {point.x, point.y});
    const KdGePoint2d place = meshed ? *meshed : byReference(data(), point);
    const double height = (point.z - data().designPoint.z) * data().verticalUnitScale;
    return {place.x, place.y, data().referencePoint.z + height};
}
