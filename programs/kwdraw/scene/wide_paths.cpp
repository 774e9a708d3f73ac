#include <kwdraw/scene/wide_paths.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/wide_dashes.h>

namespace {

KdGePoint2d moved(const KdGePoint2d& point, const KdGeVector2d& vector, double factor)
{
    return {point.x + vector.x * factor, point.y + vector.y * factor};
}

std::vector<WideSegment> segmentsOf(const FlatPolyline& polyline)
{
    std::vector<WideSegment> segments;
    const std::vector<FlatVertex>& vertices = polyline.vertices;
    const std::size_t count = vertices.size() - (polyline.closed ? 0 : 1);
    segments.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const FlatVertex& vertex = vertices[i];
        WideSegment& segment = segments.emplace_back();
        segment.line = {vertex.point, vertices[(i + 1) % vertices.size()].point, vertex.bulge};
        segment.startWidth = vertex.startWidth;
        segment.endWidth = vertex.endWidth;
        segment.startCut = leftOf(segment.line.startDirection());
        segment.endCut = leftOf(segment.line.endDirection());
    }
    return segments;
}

/// Cuts both along the bisector of the corner between them.
void join(WideSegment& before, WideSegment& behind)
{
    constexpr double kSharpest = 0.2; // a sharper corner would reach out far
    const bool meet = before.endWidth == behind.startWidth && behind.startWidth > 0.0;
    const KdGeVector2d both{before.endCut.x + behind.startCut.x,
                            before.endCut.y + behind.startCut.y};
    const double share = both.x * behind.startCut.x + both.y * behind.startCut.y;
    if (!meet || share < kSharpest || before.line.start == before.line.end ||
        behind.line.start == behind.line.end)
        return;
    before.endCut = {both.x / share, both.y / share};
    behind.startCut = before.endCut;
}

void joinAll(std::vector<WideSegment>& segments, bool closed)
{
    for (std::size_t i = 1; i < segments.size(); ++i)
        join(segments[i - 1], segments[i]);
    if (closed && segments.size() > 1)
        join(segments.back(), segments.front());
}

/// One edge of a wide arc, to the left by `side` times the half width. As it may get narrower it
/// is no arc itself.
std::vector<KdGeCubic3d> edgeOfArc(const WideSegment& segment, double side, const FlatFrame& frame)
{
    constexpr double kLongestPiece = std::numbers::pi / 12.0;
    const FlatSegment& line = segment.line;
    const double turn = line.turn();
    const int pieces = std::max(1, static_cast<int>(std::ceil(std::abs(turn) / kLongestPiece)));
    const double step = turn / pieces;
    const double reach = 4.0 / 3.0 * std::tan(step / 4.0);
    const double first = side * segment.startWidth / 2.0;
    const double rise = (side * segment.endWidth / 2.0 - first) / turn;
    const KdGePoint2d center = line.center();

    struct Place
    {
        KdGePoint2d point;
        KdGeVector2d velocity; ///< against the direction's angle
    };
    const auto placeAt = [&](double turned) {
        const double direction = line.startDirection() + turned;
        const double radius = line.signedRadius() - (first + rise * turned);
        const KdGeVector2d left = leftOf(direction);
        return Place{moved(center, left, -radius),
                     {left.y * radius + left.x * rise, -left.x * radius + left.y * rise}};
    };
    std::vector<KdGeCubic3d> edge;
    Place from = placeAt(0.0);
    for (int i = 1; i <= pieces; ++i) {
        const Place to = placeAt(step * i);
        edge.push_back({frame(from.point), frame(moved(from.point, from.velocity, reach)),
                        frame(moved(to.point, to.velocity, -reach)), frame(to.point)});
        from = to;
    }
    return edge;
}

void addOutline(ScenePath& path, const WideSegment& segment, const FlatFrame& frame)
{
    const double startHalf = segment.startWidth / 2.0;
    const double endHalf = segment.endWidth / 2.0;
    const FlatSegment& line = segment.line;
    const auto addEdge = [&](double side, bool backwards) {
        if (!line.isArc())
            return;
        const std::vector<KdGeCubic3d> edge = edgeOfArc(segment, side, frame);
        path.lineTo(backwards ? edge.back()[3] : edge.front()[0]);
        if (backwards)
            addCubicsBackwards(path, edge);
        else
            addCubics(path, edge);
    };
    path.moveTo(frame(moved(line.start, segment.startCut, startHalf)));
    addEdge(1.0, false);
    path.lineTo(frame(moved(line.end, segment.endCut, endHalf)));
    path.lineTo(frame(moved(line.end, segment.endCut, -endHalf)));
    addEdge(-1.0, true);
    path.lineTo(frame(moved(line.start, segment.startCut, -startHalf)));
    path.close();
}

/// The segments that are wide, or those that are not, each run of them as one line.
void addLines(ScenePath& path, const std::vector<WideSegment>& segments, const FlatFrame& frame,
              bool wide, bool apart)
{
    bool isOnPath = false;
    for (const WideSegment& segment : segments) {
        if (segment.isWide() != wide) {
            isOnPath = false;
            continue;
        }
        if (!isOnPath || apart)
            path.moveTo(frame(segment.line.start));
        addSegment(path, frame, segment.line);
        isOnPath = true;
    }
}

/// @param apart  true if the segments do not go on into each other
void fillWideSegments(const std::vector<WideSegment>& segments, const FlatFrame& frame, bool apart,
                      EntityWalk& walk)
{
    // The middle line is seen where the width is less than a pixel.
    SceneLook thin = walk.entityLook();
    thin.lineweight = 0;
    thin.linetype = -1;
    thin.linetypeScale = 1.0;
    walk.setPartLook(thin);
    ScenePath& middle = walk.newPath();
    addLines(middle, segments, frame, true, apart);
    walk.writer().stroke(middle);
    for (const WideSegment& segment : segments) {
        if (!segment.isWide())
            continue;
        ScenePath& outline = walk.newPath();
        addOutline(outline, segment, frame);
        if (walk.settings().fillsAreas && !segment.isDot())
            walk.writer().fill(outline);
        else
            walk.writer().stroke(outline);
    }
}

/// Fills the dashes of the linetype, or all where there are none or far too many.
void fillDashes(const std::vector<WideSegment>& segments, const FlatFrame& frame, bool runsOn,
                EntityWalk& walk)
{
    constexpr std::size_t kMostDashes = 20000;
    constexpr std::size_t kPointsOfDash = 8;
    const SceneLook& look = walk.entityLook();
    const SceneLinetype* linetype = walk.looks().dashesOf(look);
    if (!linetype)
        return fillWideSegments(segments, frame, false, walk);
    const std::size_t most = std::min(kMostDashes, walk.pointsLeft() / kPointsOfDash);
    const auto dashes = dashesAlong(segments, {linetype->dashes, look.linetypeScale, runsOn}, most);
    if (dashes)
        fillWideSegments(*dashes, frame, true, walk);
    else
        fillWideSegments(segments, frame, false, walk);
}

} // namespace

void drawFlatPolyline(const FlatPolyline& polyline, const FlatFrame& frame, EntityWalk& walk)
{
    if (polyline.vertices.empty())
        return;
    std::vector<WideSegment> segments = segmentsOf(polyline);
    const bool hasWide = std::ranges::any_of(segments, &WideSegment::isWide);
    const bool hasThin = !std::ranges::all_of(segments, &WideSegment::isWide);
    const bool apart = walk.entityLook().linetype >= 0 && !polyline.patternRunsOn;
    if (hasThin) {
        ScenePath& path = walk.newPath();
        addLines(path, segments, frame, false, apart);
        if (polyline.closed && !hasWide && !apart)
            path.close();
        walk.writer().stroke(path);
    }
    if (hasWide) {
        joinAll(segments, polyline.closed);
        fillDashes(segments, frame, polyline.patternRunsOn, walk);
    }
}
