#include "scene_index.h"

#include <bit>
#include <cmath>

#include "markers.h"

namespace {

/// Position along a curve that fills a square of 65536 cells a side and keeps neighbours together.
std::uint32_t hilbert(std::uint32_t x, std::uint32_t y)
{
    std::uint32_t position = 0;
    for (std::uint32_t side = 1u << 15; side > 0; side >>= 1) {
        const std::uint32_t right = (x & side) ? 1u : 0u;
        const std::uint32_t upper = (y & side) ? 1u : 0u;
        position += side * side * ((3u * right) ^ upper);
        if (upper)
            continue;
        if (right) {
            x = 0xFFFFu - x;
            y = 0xFFFFu - y;
        }
        std::swap(x, y);
    }
    return position;
}

/// The cell of a coordinate; whatever is no number is in the first.
std::uint32_t cell(double value, double least, double span)
{
    const double part = (value - least) / span;
    return part > 0.0 ? static_cast<std::uint32_t>(std::min(part, 1.0) * 65535.0) : 0u;
}

bool isFinite(const SceneBox& box)
{
    return std::isfinite(box.left) && std::isfinite(box.bottom) && std::isfinite(box.right) &&
           std::isfinite(box.top);
}

/// The box of all that may be painted of a shape in drawing units.
SceneBox reachOf(const Scene& scene, const SceneShape& shape)
{
    if (shape.kind != SceneShape::Kind::Marker)
        return shape.box;
    const SceneMarker& marker = scene.markers[shape.index];
    const double size = std::max(0.0, marker.size) * kMarkerReach;
    return {marker.position.x() - size, marker.position.y() - size, marker.position.x() + size,
            marker.position.y() + size};
}

SceneBox boxAround(const std::vector<SceneBox>& boxes, std::size_t first, std::size_t end)
{
    SceneBox around;
    for (std::size_t i = first; i < end; ++i)
        around.add(boxes[i]);
    return around;
}

} // namespace

SceneIndex::SceneIndex(std::shared_ptr<const Scene> scene, Models models)
    : m_scene(std::move(scene)), m_models(std::move(models))
{
    m_viewMarker = largestViewMarker(*m_scene) * kMarkerReach;
    listEntries();
    pack();
    m_ids.reserve(m_scene->items.size());
    for (std::uint32_t i = 0; i < m_scene->items.size(); ++i)
        m_ids.emplace_back(m_scene->items[i].id, i);
    std::sort(m_ids.begin(), m_ids.end());
}

void SceneIndex::listEntries()
{
    m_entries.reserve(m_scene->shapes.size());
    m_firstRanks.reserve(m_scene->items.size());
    for (std::uint32_t i = 0; i < m_scene->items.size(); ++i) {
        const SceneItem& item = m_scene->items[i];
        m_firstRanks.push_back(static_cast<Rank>(m_entries.size()));
        for (std::uint32_t shape = 0; shape < item.shapeCount; ++shape)
            m_entries.push_back({i, item.firstShape + shape});
    }
}

void SceneIndex::pack()
{
    std::vector<SceneBox> boxes(m_entries.size());
    SceneBox all;
    for (Rank rank = 0; rank < m_entries.size(); ++rank) {
        const SceneShape& packed = shape(rank);
        boxes[rank] = reachOf(*m_scene, packed);
        if (packed.kind == SceneShape::Kind::Ray) {
            m_endless.push_back(rank);
            continue;
        }
        if (boxes[rank].isEmpty() || !isFinite(boxes[rank]))
            continue;
        m_leaves.push_back(rank);
        all.add(boxes[rank]);
    }

    std::vector<std::pair<std::uint32_t, Rank>> places;
    places.reserve(m_leaves.size());
    for (const Rank rank : m_leaves) {
        const QPointF center = boxes[rank].center();
        places.emplace_back(hilbert(cell(center.x(), all.left, all.width()),
                                    cell(center.y(), all.bottom, all.height())),
                            rank);
    }
    std::sort(places.begin(), places.end());
    m_leafBoxes.reserve(places.size());
    for (std::size_t i = 0; i < places.size(); ++i) {
        m_leaves[i] = places[i].second;
        m_leafBoxes.push_back(boxes[places[i].second]);
    }

    const Level* below = &m_leafBoxes;
    while (!below->empty() && (below->size() > 1 || m_levels.empty())) {
        Level level;
        for (std::size_t first = 0; first < below->size(); first += kFanOut)
            level.push_back(boxAround(*below, first, std::min(below->size(), first + kFanOut)));
        m_levels.push_back(std::move(level));
        below = &m_levels.back();
    }
}

std::vector<std::uint32_t> SceneIndex::itemsOf(const std::vector<KdDbObjectId>& ids) const
{
    std::vector<std::uint32_t> items;
    for (const KdDbObjectId id : ids) {
        auto place = std::lower_bound(m_ids.begin(), m_ids.end(), std::pair(id, 0u));
        for (; place != m_ids.end() && place->first == id; ++place)
            items.push_back(place->second);
    }
    std::sort(items.begin(), items.end());
    items.erase(std::unique(items.begin(), items.end()), items.end());
    return items;
}

void SceneIndex::find(const SceneBox& box, double viewHeight, std::vector<Rank>& ranks) const
{
    ranks.clear();
    std::vector<std::uint64_t> bits((m_entries.size() + 63) / 64);
    find(box, viewHeight, [&bits](Rank rank) { bits[rank / 64] |= 1ull << (rank % 64); });
    for (std::size_t word = 0; word < bits.size(); ++word)
        for (std::uint64_t left = bits[word]; left != 0; left &= left - 1)
            ranks.push_back(
                static_cast<Rank>(word * 64 + static_cast<std::size_t>(std::countr_zero(left))));
}
