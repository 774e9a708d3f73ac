#include "pick.h"

#include <algorithm>
#include <cmath>

#include "layer_filter.h"
#include "markers.h"
#include "path_walk.h"
#include "pick_sinks.h"
#include "picture_fills.h"

namespace {

using Kind = SceneShape::Kind;
using Rank = SceneIndex::Rank;

/// Lines that differ by less are equally near to a person.
constexpr double kSamePixels = 0.25;

/// Shapes that are picked in their inside. A wipeout is not: it looks like empty ground.
bool isArea(Kind kind)
{
    return kind == Kind::Fill || kind == Kind::Gradient || kind == Kind::Image;
}

/// Walks what of a shape can be met: a text is its frame.
template <class Sink>
void walkShape(const Scene& scene, const SceneShape& shape, const PixelFrame& frame,
               const ClipBox& box, double viewHeight, Sink& sink)
{
    constexpr PathStep kLine[] = {PathStep::Move, PathStep::Line};
    constexpr PathStep kFrame[] = {PathStep::Move, PathStep::Line, PathStep::Line, PathStep::Line,
                                   PathStep::Close};
    if (shape.kind == Kind::Text) {
        const SceneText& text = scene.texts[shape.index];
        const QPointF corners[] = {
            {0.0, 0.0}, {text.advance, 0.0}, {text.advance, 1.0}, {0.0, 1.0}};
        walkPath({kFrame, corners}, frame.within(text.placement), box, sink);
    } else if (shape.kind == Kind::Marker) {
        const SceneMarker& marker = scene.markers[shape.index];
        const double size = markerSize(marker, frame.scale(), viewHeight);
        const QPointF place = frame.map(marker.position);
        const QPointF dot[] = {place, place};
        if (hasDot(marker.mode))
            walkPath({kLine, dot}, PixelFrame::pixels(), box, sink);
        walkPath(markerPath(marker.mode), PixelFrame({0.0, 0.0}, size, place), box, sink);
    } else if (shape.kind == Kind::Ray) {
        const SceneRay& ray = scene.rays[shape.index];
        for (const double side : {1.0, -1.0}) {
            const auto line =
                rayToEdge(frame.map(ray.base), frame.mapVector(side * ray.direction), box);
            if (!line || (side < 0.0 && !ray.bothSides))
                continue;
            const QPointF ends[] = {line->p1(), line->p2()};
            walkPath({kLine, ends}, PixelFrame::pixels(), box, sink);
        }
    } else {
        walkPath(pathOf(scene, shape), frame, box, sink);
    }
}

struct Hit
{
    Rank rank = 0;
    double distance = 0.0;
};

/// The last painted of the nearest.
std::optional<Hit> best(const std::vector<Hit>& hits)
{
    std::optional<Hit> chosen;
    double nearest = 1e300;
    for (const Hit& hit : hits)
        nearest = std::min(nearest, hit.distance);
    for (const Hit& hit : hits)
        if (hit.distance <= nearest + kSamePixels && (!chosen || hit.rank > chosen->rank))
            chosen = hit;
    return chosen;
}

/// Tells which shapes of one item meet or lie in a box.
class BoxTest
{
  public:
    BoxTest(const Scene& scene, const SceneBox& box, const PickView& view)
        : m_scene(scene),
          m_box(box),
          m_frame(box.center(), 1.0 / view.unitsPerPixel, {}),
          m_pixels(m_frame.mapped(box)),
          m_viewHeight(view.viewHeight)
    {
    }

    bool touches(const SceneShape& shape) const
    {
        if (shape.kind == Kind::Marker && touchesPlace(shape))
            return true;
        if (shape.kind != Kind::Marker && shape.kind != Kind::Ray && m_box.holds(shape.box))
            return true;
        const bool area = isArea(shape.kind) || shape.kind == Kind::Text;
        TouchedBox touched(m_pixels, area);
        walkShape(m_scene, shape, m_frame, m_pixels, m_viewHeight, touched);
        touched.finish();
        return touched.isTouched() || (area && holdsCenter(shape));
    }

    bool holds(const SceneShape& shape) const
    {
        if (shape.kind == Kind::Ray)
            return false;
        if (shape.kind == Kind::Marker)
            return touchesPlace(shape);
        if (m_box.holds(shape.box))
            return true;
        HeldByBox held(m_pixels);
        walkShape(m_scene, shape, m_frame, m_pixels, m_viewHeight, held);
        return held.isHeld();
    }

  private:
    bool touchesPlace(const SceneShape& shape) const
    {
        const SceneMarker& marker = m_scene.markers[shape.index];
        return (hasDot(marker.mode) || !markerPath(marker.mode).steps.empty()) &&
               m_pixels.contains(m_frame.map(marker.position));
    }

    bool holdsCenter(const SceneShape& shape) const
    {
        NearestLine line(true);
        walkShape(m_scene, shape, m_frame, m_pixels, m_viewHeight, line);
        line.finish();
        return line.isInside();
    }

    const Scene& m_scene;
    SceneBox m_box;
    PixelFrame m_frame;
    ClipBox m_pixels;
    double m_viewHeight;
};

bool holdsItem(const BoxTest& test, const Scene& scene, const SceneItem& item,
               const LayerFilter& filter)
{
    return std::ranges::all_of(scene.shapesOf(item), [&](const SceneShape& shape) {
        return !filter.shows(shape) || test.holds(shape);
    });
}

} // namespace

std::optional<std::uint32_t> itemAt(const SceneIndex& index, QPointF place, double aperture,
                                    const PickView& view)
{
    const Scene& scene = *index.scene();
    const LayerFilter filter(scene, view.layers);
    const PixelFrame frame(place, 1.0 / view.unitsPerPixel, {});
    const ClipBox around{-aperture, -aperture, aperture, aperture};
    std::vector<Hit> lines;
    std::vector<Hit> areas;
    index.find(frame.unmapped(around), view.viewHeight * view.unitsPerPixel, [&](Rank rank) {
        const SceneShape& shape = index.shape(rank);
        if (!filter.shows(index.item(rank), shape))
            return;
        const bool isText = shape.kind == Kind::Text;
        NearestLine nearest(isText || isArea(shape.kind));
        walkShape(scene, shape, frame, around, view.viewHeight, nearest);
        nearest.finish();
        const double distance = nearest.isInside() ? 0.0 : nearest.distance();
        if (distance <= aperture)
            (isArea(shape.kind) ? areas : lines).push_back({rank, distance});
    });
    const auto chosen = best(lines.empty() ? areas : lines);
    if (!chosen)
        return {};
    return index.entry(chosen->rank).item;
}

std::vector<std::uint32_t> itemsIn(const SceneIndex& index, const SceneBox& box, BoxRule rule,
                                   const PickView& view)
{
    const Scene& scene = *index.scene();
    const LayerFilter filter(scene, view.layers);
    const BoxTest test(scene, box, view);
    std::vector<bool> found(scene.items.size());
    index.find(box, view.viewHeight * view.unitsPerPixel, [&](Rank rank) {
        const std::uint32_t item = index.entry(rank).item;
        const SceneShape& shape = index.shape(rank);
        if (found[item] || !filter.shows(scene.items[item], shape))
            return;
        found[item] = rule == BoxRule::Window || test.touches(shape);
    });
    std::vector<std::uint32_t> items;
    for (std::uint32_t item = 0; item < found.size(); ++item)
        if (found[item] &&
            (rule == BoxRule::Crossing || holdsItem(test, scene, scene.items[item], filter)))
            items.push_back(item);
    return items;
}
