#include <kwdraw/scene/hatch_paths.h>

#include <algorithm>
#include <cmath>
#include <type_traits>

#include <kwdraw/scene/curve_paths.h>

namespace {

/// An edge that is ready to be drawn either way.
class Edge
{
  public:
    Edge(const HatchEdge& edge, const FlatFrame& frame) : m_edge(edge), m_frame(frame)
    {
        std::visit([this](const auto& kind) { prepare(kind); }, edge);
    }

    const KdGePoint3d& start() const { return m_start; }
    const KdGePoint3d& end() const { return m_end; }

    void addTo(ScenePath& path, bool backwards) const
    {
        if (const auto* arc = std::get_if<HatchArcEdge>(&m_edge))
            addArc(path, *arc, backwards);
        else if (m_pieces.empty())
            addPoints(path, backwards);
        else if (backwards)
            addCubicsBackwards(path, m_pieces);
        else
            addCubics(path, m_pieces);
    }

  private:
    void prepare(const HatchLineEdge& line) { setPoints({line.start, line.end}); }

    void prepare(const HatchArcEdge& arc)
    {
        m_start = pointOf(arc, arc.startParam);
        m_end = pointOf(arc, arc.endParam);
    }

    void prepare(const HatchSplineEdge& spline)
    {
        constexpr int kFitDegree = 3;
        auto curve = KdGeNurbCurve3d::create(spline.degree, spline.knots,
                                             placed(spline.controlPoints), spline.weights);
        if (!curve && spline.fitPoints.size() > 1) {
            const KdGeFitCurve fit = kdgeInterpolate({placed(spline.fitPoints), {}, {}, false});
            curve = KdGeNurbCurve3d::create(kFitDegree, fit.knots, fit.controlPoints);
        }
        if (!curve) // damaged; the polygon is near the curve
            return setPoints(spline.controlPoints);
        m_pieces = curve->cubicPieces();
        m_start = m_pieces.front()[0];
        m_end = m_pieces.back()[3];
    }

    std::vector<KdGePoint3d> placed(const std::vector<KdGePoint2d>& points) const
    {
        std::vector<KdGePoint3d> result;
        for (const KdGePoint2d& point : points)
            result.push_back(m_frame(point));
        return result;
    }

    void setPoints(const std::vector<KdGePoint2d>& points)
    {
        m_points = placed(points);
        if (m_points.empty())
            return;
        m_start = m_points.front();
        m_end = m_points.back();
    }

    static KdGeVector2d minorAxis(const HatchArcEdge& arc)
    {
        return {-arc.majorAxis.y * arc.radiusRatio, arc.majorAxis.x * arc.radiusRatio};
    }

    KdGePoint3d pointOf(const HatchArcEdge& arc, double t) const
    {
        return m_frame(arc.center) + m_frame(arc.majorAxis) * std::cos(t) +
               m_frame(minorAxis(arc)) * std::sin(t);
    }

    void addArc(ScenePath& path, const HatchArcEdge& arc, bool backwards) const
    {
        path.ellipseTo(m_frame(arc.center), m_frame(arc.majorAxis), m_frame(minorAxis(arc)),
                       backwards ? arc.endParam : arc.startParam,
                       backwards ? arc.startParam : arc.endParam);
    }

    void addPoints(ScenePath& path, bool backwards) const
    {
        for (std::size_t i = 1; i < m_points.size(); ++i)
            path.lineTo(m_points[backwards ? m_points.size() - 1 - i : i]);
    }

    const HatchEdge& m_edge;
    const FlatFrame& m_frame;
    KdGePoint3d m_start;
    KdGePoint3d m_end;
    std::vector<KdGePoint3d> m_points;
    std::vector<KdGeCubic3d> m_pieces;
};

/// True if the edge behind meets the start of this one rather than its end.
bool runsBackwards(const Edge& first, const Edge& next)
{
    const auto wayTo = [&next](const KdGePoint3d& point) {
        return std::min(point.distanceTo(next.start()), point.distanceTo(next.end()));
    };
    return wayTo(first.start()) < wayTo(first.end());
}

void addEdges(ScenePath& path, const FlatFrame& frame, const std::vector<HatchEdge>& edges)
{
    std::vector<Edge> ready;
    ready.reserve(edges.size());
    for (const HatchEdge& edge : edges)
        ready.emplace_back(edge, frame);
    if (ready.empty())
        return;
    bool backwards = ready.size() > 1 && runsBackwards(ready[0], ready[1]);
    path.moveTo(backwards ? ready[0].end() : ready[0].start());
    KdGePoint3d place;
    for (std::size_t i = 0; i < ready.size(); ++i) {
        const Edge& edge = ready[i];
        if (i > 0) {
            backwards = place.distanceTo(edge.end()) < place.distanceTo(edge.start());
            const KdGePoint3d& from = backwards ? edge.end() : edge.start();
            if (!from.isEqualTo(place))
                path.lineTo(from);
        }
        edge.addTo(path, backwards);
        place = backwards ? edge.start() : edge.end();
    }
    path.close();
}

void addCorners(ScenePath& path, const FlatFrame& frame, const std::vector<HatchVertex>& vertices)
{
    if (vertices.empty())
        return;
    path.moveTo(frame(vertices.front().point));
    for (std::size_t i = 0; i < vertices.size(); ++i) {
        const HatchVertex& next = vertices[(i + 1) % vertices.size()];
        addSegment(path, frame, {vertices[i].point, next.point, vertices[i].bulge});
    }
    path.close();
}

} // namespace

void addHatchLoop(ScenePath& path, const FlatFrame& frame, const HatchLoop& loop)
{
    if (loop.isPolyline())
        addCorners(path, frame, loop.vertices);
    else
        addEdges(path, frame, loop.edges);
}
