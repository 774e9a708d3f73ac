// Multilines.
#include <algorithm>
#include <numbers>

#include <entities/mline.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

using Lines = std::vector<std::vector<KdGePoint3d>>;

/// The lines from the rightmost to the leftmost.
Lines sorted(Lines lines, const std::vector<double>& offsets)
{
    std::vector<std::size_t> order(lines.size());
    for (std::size_t i = 0; i < order.size(); ++i)
        order[i] = i;
    std::ranges::sort(order, {}, [&](std::size_t i) { return offsets[i]; });
    Lines result;
    for (const std::size_t i : order)
        result.push_back(std::move(lines[i]));
    return result;
}

/// What the style puts at one end.
struct Caps
{
    bool square;
    bool round;
    bool inner;
};

/// Half a circle between the ends of two lines, away from the path.
void addHalfCircle(ScenePath& path, const KdGePoint3d& right, const KdGePoint3d& left,
                   const KdGeVector3d& away)
{
    const KdGeVector3d across = (left - right) * 0.5;
    const KdGePoint3d middle = right + across;
    path.moveTo(right);
    path.ellipseTo(middle, -across, away * across.length(), 0.0, std::numbers::pi);
}

void addCaps(ScenePath& path, const Lines& lines, std::size_t vertex, const KdGeVector3d& away,
             const Caps& caps)
{
    const std::size_t last = lines.size() - 1;
    if (caps.square) {
        path.moveTo(lines.front()[vertex]);
        path.lineTo(lines.back()[vertex]);
    }
    if (caps.round)
        addHalfCircle(path, lines.front()[vertex], lines.back()[vertex], away);
    for (std::size_t i = 1; caps.inner && i < last - i; ++i)
        addHalfCircle(path, lines[i][vertex], lines[last - i][vertex], away);
}

void drawCaps(const KdDbMline& mline, const KdDbMlineStyle& style, const Lines& lines,
              EntityWalk& walk)
{
    using Flag = KdDbMlineStyle::Flag;
    ScenePath& path = walk.newPath();
    const std::size_t end = lines.front().size() - 1;
    const auto wayFrom = [&](std::size_t from, std::size_t to) {
        return (lines.front()[to] - lines.front()[from]).normal();
    };
    if (!mline.closedMline() && !mline.suppressStartCaps())
        addCaps(path, lines, 0, wayFrom(1, 0),
                {style.has(Flag::kStartSquareCap), style.has(Flag::kStartRoundCap),
                 style.has(Flag::kStartInnerArcs)});
    if (!mline.closedMline() && !mline.suppressEndCaps())
        addCaps(path, lines, end, wayFrom(end - 1, end),
                {style.has(Flag::kEndSquareCap), style.has(Flag::kEndRoundCap),
                 style.has(Flag::kEndInnerArcs)});
    for (std::size_t i = 0; style.has(Flag::kShowsMiters) && i <= end; ++i) {
        if (!mline.closedMline() && (i == 0 || i == end))
            continue;
        path.moveTo(lines.front()[i]);
        path.lineTo(lines.back()[i]);
    }
    walk.writer().stroke(path);
}

void fillBetween(const KdDbMline& mline, const KdDbMlineStyle& style, const Lines& lines,
                 EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    if (mline.closedMline()) {
        addPolygon(path, lines.front(), true);
        addPolygon(path, lines.back(), true);
    } else {
        std::vector<KdGePoint3d> edge = lines.front();
        edge.insert(edge.end(), lines.back().rbegin(), lines.back().rend());
        addPolygon(path, edge, true);
    }
    walk.setPartColor(style.fillColor());
    walk.writer().fill(path);
    walk.resetPartLook();
}

/// An element that leaves a trait to the layer takes it from the multiline.
void takeElementLook(const KdDbMlineStyle& style, std::size_t element, EntityWalk& walk)
{
    if (style.colorOf(element).colorMethod() != KdCmColor::kByLayer)
        walk.setPartColor(style.colorOf(element));
    if (!style.linetypeOf(element).isNull())
        walk.setPartLinetype(style.linetypeOf(element));
}

void drawMline(const KdDbMline& mline, EntityWalk& walk)
{
    const OpenForRead<KdDbMlineStyle> style(mline.style());
    const Lines lines = mline.elementLines();
    if (!style || lines.empty())
        return;
    const Lines across = sorted(lines, style->offsets());
    if (style->has(KdDbMlineStyle::kFilled) && walk.settings().fillsAreas)
        fillBetween(mline, *style, across, walk);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        takeElementLook(*style, i, walk);
        ScenePath& path = walk.newPath();
        addPolygon(path, lines[i], mline.closedMline());
        walk.writer().stroke(path);
        walk.resetPartLook();
    }
    drawCaps(mline, *style, across, walk);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbMline, drawMline>(),
};

} // namespace

std::span<const ShapeRow> mlineShapes()
{
    return kRows;
}
