#include <geometry/plane.h>

#include <algorithm>
#include <cmath>

const KdGePlane KdGePlane::kXYPlane{};

namespace {

/// The longest of the vectors that `make` makes of the points.
template <class Make>
KdGeVector3d longest(std::span<const KdGePoint3d> points, Make make)
{
    KdGeVector3d result;
    double length = 0.0;
    for (const KdGePoint3d& point : points) {
        const KdGeVector3d candidate = make(point);
        if (candidate.length() > length) {
            result = candidate;
            length = candidate.length();
        }
    }
    return result;
}

} // namespace

bool kdgeLieInOnePlane(std::span<const KdGePoint3d> points)
{
    if (points.size() < 4)
        return true;
    constexpr double kRounding = 1e-9; // of the size of the whole
    const KdGePoint3d& first = points.front();
    const KdGeVector3d longestWay = longest(points, [&](const auto& p) { return p - first; });
    const KdGeVector3d along = longestWay.normal();
    const KdGeVector3d normal =
        longest(points, [&](const auto& p) { return along.crossProduct(p - first); }).normal();
    const double tolerance =
        std::max(KdGeContext::gTol.equalPoint, kRounding * longestWay.length());
    return std::ranges::all_of(points, [&](const KdGePoint3d& point) {
        return std::abs((point - first).dotProduct(normal)) <= tolerance;
    });
}
