#include "hatch_boundary.h"

#include <cmath>
#include <optional>

namespace {

using plane::Curve;

/// The first point of a boundary, for a place near all others.
std::optional<KdGePoint2d> anyPointOf(const HatchEdge& edge)
{
    if (const auto* line = std::get_if<HatchLineEdge>(&edge))
        return line->start;
    if (const auto* arc = std::get_if<HatchArcEdge>(&edge))
        return arc->center;
    const auto& spline = std::get<HatchSplineEdge>(edge);
    for (const auto* points : {&spline.controlPoints, &spline.fitPoints}) {
        if (!points->empty())
            return points->front();
    }
    return std::nullopt;
}

KdGePoint2d placeOf(const HatchContent& hatch)
{
    for (const HatchLoop& loop : hatch.loops) {
        if (!loop.vertices.empty())
            return loop.vertices[0].point;
        for (const HatchEdge& edge : loop.edges) {
            if (const auto point = anyPointOf(edge))
                return *point;
        }
    }
    return {};
}

/// Makes curves of the parts of one loop.
class CurveMaker
{
  public:
    explicit CurveMaker(const KdGePoint2d& origin) : m_origin(origin) {}

    std::vector<Curve> curvesOf(const HatchLoop& loop)
    {
        if (!loop.vertices.empty())
            addPolyline(loop.vertices);
        for (const HatchEdge& edge : loop.edges)
            std::visit([this](const auto& part) { add(part); }, edge);
        return std::move(m_curves);
    }

  private:
    KdGePoint2d local(const KdGePoint2d& point) const
    {
        return {point.x - m_origin.x, point.y - m_origin.y};
    }

    void addLine(const KdGePoint2d& start, const KdGePoint2d& end)
    {
        if (start != end)
            m_curves.emplace_back(plane::Line{start, end});
    }

    void addPolyline(const std::vector<HatchVertex>& vertices)
    {
        for (std::size_t i = 0; i < vertices.size(); ++i) {
            const HatchVertex& next = vertices[(i + 1) % vertices.size()];
            addSide(local(vertices[i].point), local(next.point), vertices[i].bulge);
        }
    }

    void addSide(const KdGePoint2d& start, const KdGePoint2d& end, double bulge)
    {
        constexpr double kStraight = 1e-12;
        if (std::abs(bulge) < kStraight || start == end)
            return addLine(start, end);
        // From the middle of the chord to the center, across the chord and in lengths of it.
        const double way = (1.0 - bulge * bulge) / (4.0 * bulge);
        const KdGeVector2d chord = end - start;
        const KdGeVector2d arm{chord.y * way - chord.x / 2.0, -chord.x * way - chord.y / 2.0};
        m_curves.emplace_back(plane::Arc{start, arm, {-arm.y, arm.x}, 0.0, 4.0 * std::atan(bulge)});
    }

    void add(const HatchLineEdge& edge) { addLine(local(edge.start), local(edge.end)); }

    void add(const HatchArcEdge& edge)
    {
        const KdGeVector2d& major = edge.majorAxis;
        const double ratio = edge.radiusRatio;
        m_curves.emplace_back(plane::Arc::around(local(edge.center), major,
                                                 {-major.y * ratio, major.x * ratio},
                                                 edge.startParam, edge.endParam));
    }

    std::vector<KdGePoint2d> local(const std::vector<KdGePoint2d>& points) const
    {
        std::vector<KdGePoint2d> result;
        for (const KdGePoint2d& point : points)
            result.push_back(local(point));
        return result;
    }

    void add(const HatchSplineEdge& edge)
    {
        const std::vector<KdGePoint2d> controlPoints = local(edge.controlPoints);
        auto shape =
            plane::SplineShape::create(edge.degree, edge.knots, controlPoints, edge.weights);
        if (!shape)
            shape = plane::SplineShape::through(local(edge.fitPoints));
        if (shape)
            m_curves.emplace_back(plane::Spline{shape, shape->first(), shape->last(), {}});
        else // damaged; the polygon is near the curve
            addPolygon(controlPoints);
    }

    void addPolygon(const std::vector<KdGePoint2d>& points)
    {
        for (std::size_t i = 1; i < points.size(); ++i)
            addLine(points[i - 1], points[i]);
    }

    KdGePoint2d m_origin;
    std::vector<Curve> m_curves;
};

} // namespace

HatchBoundary::HatchBoundary(const HatchContent& hatch)
    : m_origin(placeOf(hatch)), m_style(hatch.style)
{
    for (std::size_t i = 0; i < hatch.loops.size(); ++i) {
        std::vector<Curve> curves = CurveMaker(m_origin).curvesOf(hatch.loops[i]);
        if (curves.empty())
            continue;
        m_loops.emplace_back(std::move(curves));
        m_numbers.push_back(i);
        m_isTextBox.push_back(hatch.loops[i].isTextBox());
    }
}

std::vector<plane::Region> HatchBoundary::filledRegions() const
{
    using Style = HatchContent::Style;
    const std::vector<std::size_t> enclosing = plane::enclosingLoops(m_loops);

    // Parents are larger than their children, so walking up always ends.
    struct Place
    {
        std::size_t depth = 0;
        bool isInTextBox = false;
    };
    const auto placeOfLoop = [&](std::size_t loop) {
        Place place;
        for (; enclosing[loop] != loop; loop = enclosing[loop], ++place.depth)
            place.isInTextBox |= m_isTextBox[enclosing[loop]];
        return place;
    };
    const auto isFilled = [&](std::size_t loop) {
        const Place place = placeOfLoop(loop);
        const bool isOutermost = place.depth == 0;
        return !m_isTextBox[loop] && !place.isInTextBox &&
               (isOutermost || (m_style == Style::Normal && place.depth % 2 == 0));
    };

    std::vector<plane::Region> regions;
    std::vector<std::size_t> regionOf(m_loops.size(), m_loops.size());
    for (std::size_t loop = 0; loop < m_loops.size(); ++loop) {
        if (isFilled(loop)) {
            regionOf[loop] = regions.size();
            regions.push_back({loop, {}});
        }
    }
    for (std::size_t loop = 0; loop < m_loops.size() && m_style != Style::Ignore; ++loop) {
        const std::size_t region = regionOf[enclosing[loop]];
        if (enclosing[loop] != loop && region < regions.size())
            regions[region].holes.push_back(loop);
    }
    return regions;
}

double HatchBoundary::areaOf(const plane::Region& region) const
{
    double area = m_loops[region.outer].area();
    for (const std::size_t hole : region.holes)
        area -= m_loops[hole].area();
    return area;
}
