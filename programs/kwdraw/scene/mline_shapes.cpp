// Multilines.
#include <algorithm>
#include <numbers>
#include <utility>

#include <entities/mline.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>
#include <kwdraw/scene/mline_cuts.h>

namespace {

using Lines = std::vector<MlineLine>;

/// The lines from the rightmost to the leftmost.
Lines linesAcross(const KdDbMline& mline, const std::vector<double>& offsets)
{
    Lines lines;
    for (std::vector<KdGePoint3d>& points : mline.elementLines())
        lines.push_back({lines.size(), std::move(points)});
    std::ranges::stable_sort(lines, {},
                             [&](const MlineLine& line) { return offsets[line.element]; });
    return lines;
}

/// What the style puts at one end.
struct Caps
{
    bool square;
    bool round;
    bool inner;
};

Caps startCaps(const KdDbMlineStyle& style)
{
    using Flag = KdDbMlineStyle::Flag;
    return {style.has(Flag::kStartSquareCap), style.has(Flag::kStartRoundCap),
            style.has(Flag::kStartInnerArcs)};
}

Caps endCaps(const KdDbMlineStyle& style)
{
    using Flag = KdDbMlineStyle::Flag;
    return {style.has(Flag::kEndSquareCap), style.has(Flag::kEndRoundCap),
            style.has(Flag::kEndInnerArcs)};
}

/// Goes on with half a circle between the ends of two lines, or a part of it.
/// @param away  of length 1, across the line between them
void addArcBetween(ScenePath& path, const KdGePoint3d& from, const KdGePoint3d& to,
                   const KdGeVector3d& away, double start, double end)
{
    const KdGeVector3d half = (to - from) * 0.5;
    path.ellipseTo(from + half, -half, away * half.length(), start, end);
}

/// An element that leaves a trait to the layer takes it from the multiline.
void takeElementLook(const KdDbMlineStyle& style, std::size_t element, EntityWalk& walk)
{
    walk.resetPartLook();
    if (style.colorOf(element).colorMethod() != KdCmColor::kByLayer)
        walk.setPartColor(style.colorOf(element));
    if (!style.linetypeOf(element).isNull())
        walk.setPartLinetype(style.linetypeOf(element));
}

/// Draws what lies between the points of two lines at a vertex, each half with the look of the
/// line that it is nearer to.
/// @param add  adds one half: from which point, to which middle or end
template <class Add>
void drawHalves(const KdDbMlineStyle& style, const MlineLine& right, const MlineLine& left,
                EntityWalk& walk, Add add)
{
    for (const bool isRight : {true, false}) {
        takeElementLook(style, (isRight ? right : left).element, walk);
        ScenePath& path = walk.newPath();
        add(path, isRight);
        walk.writer().stroke(path);
    }
    walk.resetPartLook();
}

void drawStraight(const KdDbMlineStyle& style, const Lines& lines, std::size_t vertex,
                  EntityWalk& walk)
{
    const KdGePoint3d& right = lines.front().points[vertex];
    const KdGePoint3d& left = lines.back().points[vertex];
    drawHalves(style, lines.front(), lines.back(), walk, [&](ScenePath& path, bool isRight) {
        path.moveTo(isRight ? right : left);
        path.lineTo(right + (left - right) * 0.5);
    });
}

void drawArc(const KdDbMlineStyle& style, const MlineLine& right, const MlineLine& left,
             std::size_t vertex, const KdGeVector3d& away, EntityWalk& walk)
{
    constexpr double kHalf = std::numbers::pi / 2.0;
    const KdGePoint3d& from = right.points[vertex];
    const KdGePoint3d& to = left.points[vertex];
    drawHalves(style, right, left, walk, [&](ScenePath& path, bool isRight) {
        addArcBetween(path, from, to, away, isRight ? 0.0 : kHalf, isRight ? kHalf : 2.0 * kHalf);
    });
}

/// An end of the multiline.
struct End
{
    std::size_t vertex;
    Caps caps;
    KdGeVector3d away; ///< across the line of the ends, of length 1
};

std::vector<End> endsOf(const KdDbMline& mline, const KdDbMlineStyle& style, const Lines& lines)
{
    std::vector<End> ends;
    const auto add = [&](std::size_t vertex, const Caps& caps, double side) {
        const KdGeVector3d across = lines.back().points[vertex] - lines.front().points[vertex];
        ends.push_back({vertex, caps, mline.normal().crossProduct(across).normal() * side});
    };
    if (mline.closedMline())
        return ends;
    if (!mline.suppressStartCaps())
        add(0, startCaps(style), 1.0);
    if (!mline.suppressEndCaps())
        add(lines.front().points.size() - 1, endCaps(style), -1.0);
    return ends;
}

void drawCaps(const KdDbMlineStyle& style, const Lines& lines, const End& end, EntityWalk& walk)
{
    const std::size_t last = lines.size() - 1;
    if (end.caps.square)
        drawStraight(style, lines, end.vertex, walk);
    if (end.caps.round && last > 0)
        drawArc(style, lines.front(), lines.back(), end.vertex, end.away, walk);
    for (std::size_t i = 1; end.caps.inner && i < last - i; ++i)
        drawArc(style, lines[i], lines[last - i], end.vertex, end.away, walk);
}

void drawMiters(const KdDbMline& mline, const KdDbMlineStyle& style, const Lines& lines,
                EntityWalk& walk)
{
    const std::size_t end = lines.front().points.size() - 1;
    for (std::size_t i = 0; i <= end; ++i) {
        if (mline.closedMline() || (i != 0 && i != end))
            drawStraight(style, lines, i, walk);
    }
}

/// The outline of an open multiline, bulged where its ends are round.
void addOutline(ScenePath& path, const Lines& lines, const std::vector<End>& ends)
{
    constexpr double kHalfTurn = std::numbers::pi;
    const std::vector<KdGePoint3d>& right = lines.front().points;
    const std::vector<KdGePoint3d>& left = lines.back().points;
    const auto goRound = [&](std::size_t vertex, const KdGePoint3d& from, const KdGePoint3d& to) {
        for (const End& end : ends) {
            if (end.vertex == vertex && end.caps.round)
                addArcBetween(path, from, to, end.away, 0.0, kHalfTurn);
        }
    };
    addPolygon(path, right, false);
    goRound(right.size() - 1, right.back(), left.back());
    for (auto point = left.rbegin(); point != left.rend(); ++point)
        path.lineTo(*point);
    goRound(0, left.front(), right.front());
    path.close();
}

void fillBetween(const KdDbMline& mline, const KdDbMlineStyle& style, const Lines& lines,
                 const std::vector<End>& ends, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    if (mline.closedMline()) {
        addPolygon(path, lines.front().points, true);
        addPolygon(path, lines.back().points, true);
    } else {
        addOutline(path, lines, ends);
    }
    addFillGaps(path, mline, lines.front(), lines.back());
    walk.setPartColor(style.fillColor());
    walk.writer().fill(path);
    walk.resetPartLook();
}

void drawLine(const KdDbMline& mline, const KdDbMlineStyle& style, const MlineLine& line,
              EntityWalk& walk)
{
    takeElementLook(style, line.element, walk);
    ScenePath& path = walk.newPath();
    if (mline.hasCuts())
        addCutLine(path, mline, line);
    else
        addPolygon(path, line.points, mline.closedMline());
    walk.writer().stroke(path);
    walk.resetPartLook();
}

void drawMline(const KdDbMline& mline, EntityWalk& walk)
{
    const OpenForRead<KdDbMlineStyle> style(mline.style());
    if (!style)
        return;
    const Lines lines = linesAcross(mline, style->offsets());
    if (lines.empty())
        return;
    const std::vector<End> ends = endsOf(mline, *style, lines);
    if (style->has(KdDbMlineStyle::kFilled) && walk.settings().fillsAreas)
        fillBetween(mline, *style, lines, ends, walk);
    for (const MlineLine& line : lines)
        drawLine(mline, *style, line, walk);
    for (const End& end : ends)
        drawCaps(*style, lines, end, walk);
    if (style->has(KdDbMlineStyle::kShowsMiters))
        drawMiters(mline, *style, lines, walk);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbMline, drawMline>(),
};

} // namespace

std::span<const ShapeRow> mlineShapes()
{
    return kRows;
}
