#include <entities/mline.h>

#include <algorithm>
#include <cmath>
#include <utility>

#include "corners.h"

KD_RX_DEFINE(KdDbMline, KdDbEntity, L"AcDbMline", L"MLINE")

namespace {

/// What is to be added to all offsets so that the path runs where the justification says.
double shiftOf(int justification, const std::vector<double>& offsets)
{
    if (justification == KdDbMline::kTop)
        return -*std::ranges::max_element(offsets);
    if (justification == KdDbMline::kBottom)
        return -*std::ranges::min_element(offsets);
    return 0.0;
}

/// The directions of the path's pieces, as many as it has. A piece without length goes on in the
/// direction of the one before.
std::vector<KdGeVector3d> directionsOf(const std::vector<KdGePoint3d>& path, bool closed)
{
    std::vector<KdGeVector3d> directions;
    const std::size_t pieces = closed ? path.size() : path.size() - 1;
    for (std::size_t i = 0; i < pieces; ++i) {
        const KdGeVector3d way = path[(i + 1) % path.size()] - path[i];
        const bool hasLength = way.length() > KdGeContext::gTol.equalPoint;
        directions.push_back(hasLength || directions.empty() ? way.normal() : directions.back());
    }
    return directions;
}

/// From an end of the path to the point that a line in the distance 1 to the left of it has there.
KdGeVector3d miterOfEnd(const KdGeVector3d& left, const KdGeVector3d& direction, double angle)
{
    constexpr double kFlat = 1e-3; // a flatter end leads nowhere
    const double rise = std::sin(angle);
    return std::abs(rise) > kFlat ? left + direction * (std::cos(angle) / rise) : left;
}

/// From each vertex to the point that a line in the distance 1 to the left of the path has there.
std::vector<KdGeVector3d> mitersOf(const MlineMembers& mline, const KdDbMlineStyle& style)
{
    const std::vector<KdGeVector3d> directions = directionsOf(mline.vertices, mline.closed);
    const KdGeVector3d normal = mline.normal.normal();
    std::vector<KdGeVector3d> miters;
    for (std::size_t i = 0; i < mline.vertices.size(); ++i) {
        const std::size_t last = directions.size() - 1;
        const std::size_t before = i > 0 ? i - 1 : (mline.closed ? last : 0);
        const KdGeVector3d arriving = normal.crossProduct(directions[before]);
        const KdGeVector3d leaving = normal.crossProduct(directions[std::min(i, last)]);
        const KdGeVector3d both = arriving + leaving;
        constexpr double kTurnsBack = 1e-3; // the miter of a sharper corner leads nowhere
        const double share = both.dotProduct(leaving);
        miters.push_back(share > kTurnsBack ? both * (1.0 / share) : leaving);
    }
    if (!mline.closed) {
        miters.front() = miterOfEnd(normal.crossProduct(directions.front()), directions.front(),
                                    style.startAngle());
        miters.back() =
            miterOfEnd(normal.crossProduct(directions.back()), directions.back(), style.endAngle());
    }
    return miters;
}

const MlineCut* findCut(const std::vector<MlineCut>& cuts, std::size_t vertex, std::size_t line)
{
    const auto found =
        std::ranges::lower_bound(cuts, std::pair(vertex, line), {}, [](const MlineCut& cut) {
            return std::pair(cut.vertex, cut.line);
        });
    const bool isThere = found != cuts.end() && found->vertex == vertex && found->line == line;
    return isThere ? &*found : nullptr;
}

} // namespace

std::vector<std::vector<KdGePoint3d>> KdDbMline::elementLines() const
{
    const MlineMembers& mline = data();
    const OpenForRead<KdDbMlineStyle> style(mline.style);
    constexpr std::size_t kFewest = 2;
    if (!style || style->offsets().empty() || mline.vertices.size() < kFewest)
        return {};
    const std::vector<KdGeVector3d> miters = mitersOf(mline, *style);
    const double shift = shiftOf(mline.justification, style->offsets());
    std::vector<std::vector<KdGePoint3d>> lines;
    for (const double offset : style->offsets()) {
        std::vector<KdGePoint3d>& line = lines.emplace_back();
        for (std::size_t i = 0; i < miters.size(); ++i)
            line.push_back(mline.vertices[i] + miters[i] * ((offset + shift) * mline.scale));
    }
    return lines;
}

const MlineCut* KdDbMline::lineCut(std::size_t vertex, std::size_t line) const
{
    return findCut(data().lineCuts, vertex, line);
}

const MlineCut* KdDbMline::fillCut(std::size_t vertex, std::size_t line) const
{
    return findCut(data().fillCuts, vertex, line);
}

KdErrorStatus KdDbMline::getGeomExtents(KdGeExtents3d& extents) const
{
    std::vector<KdGePoint3d> points;
    for (const std::vector<KdGePoint3d>& line : elementLines())
        points.insert(points.end(), line.begin(), line.end());
    return extentsOfPoints(points, extents);
}

KdErrorStatus KdDbMline::getVertexAt(int index, KdGePoint3d& vertex) const
{
    return elementAt(data().vertices, index, vertex);
}
