/// Finds what of a scene lies in a box.
#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

#include <kwdraw/scene/scene.h>

/// An R-tree over the shapes of a scene, packed once and never changed, so any thread may ask.
/// Shapes go by their rank: their number in the order in which the scene is painted.
class SceneIndex
{
  public:
    using Rank = std::uint32_t;
    struct Entry
    {
        std::uint32_t item = 0;
        std::uint32_t shape = 0;
    };
    /// The models that the windows of a sheet show, in the order of `Scene::windows`.
    using Models = std::vector<std::shared_ptr<const SceneIndex>>;

    /// @param scene  not null
    explicit SceneIndex(std::shared_ptr<const Scene> scene, Models models = {});

    const std::shared_ptr<const Scene>& scene() const { return m_scene; }
    const Models& models() const { return m_models; }

    std::size_t size() const { return m_entries.size(); }
    const Entry& entry(Rank rank) const { return m_entries[rank]; }
    const SceneShape& shape(Rank rank) const { return m_scene->shapes[m_entries[rank].shape]; }
    const SceneItem& item(Rank rank) const { return m_scene->items[m_entries[rank].item]; }
    /// The first rank of an item; the others follow it.
    Rank firstRank(std::uint32_t item) const { return m_firstRanks[item]; }
    /// Numbers of the items with these ids, ascending.
    std::vector<std::uint32_t> itemsOf(const std::vector<KdDbObjectId>& ids) const;

    /// Calls `found(rank)` for all shapes whose boxes meet `box`, and for all that have no end, in
    /// no order.
    /// @param viewHeight  drawing units; some markers go by it in size
    template <class Found>
    void find(const SceneBox& box, double viewHeight, Found&& found) const;
    /// The same ranks ascending.
    void find(const SceneBox& box, double viewHeight, std::vector<Rank>& ranks) const;

  private:
    static constexpr std::size_t kFanOut = 16;
    using Level = std::vector<SceneBox>;

    void listEntries();
    void pack();
    template <class Found>
    void descend(std::size_t level, std::size_t node, const SceneBox& box, Found&& found) const;

    std::shared_ptr<const Scene> m_scene;
    Models m_models;
    std::vector<Entry> m_entries;
    std::vector<Rank> m_firstRanks;
    std::vector<Rank> m_leaves; ///< near ones together
    std::vector<SceneBox> m_leafBoxes;
    std::vector<Level> m_levels; ///< boxes around 16 of the level below; the last has one node
    std::vector<Rank> m_endless;
    double m_viewMarker = 0.0; ///< size of the largest one, as a part of the view's height
    std::vector<std::pair<KdDbObjectId, std::uint32_t>> m_ids; ///< sorted
};

template <class Found>
void SceneIndex::descend(std::size_t level, std::size_t node, const SceneBox& box,
                         Found&& found) const
{
    const std::size_t below = level == 0 ? m_leaves.size() : m_levels[level - 1].size();
    const std::size_t end = std::min(below, (node + 1) * kFanOut);
    for (std::size_t child = node * kFanOut; child < end; ++child) {
        const SceneBox& childBox = level == 0 ? m_leafBoxes[child] : m_levels[level - 1][child];
        const bool meets = childBox.left <= box.right && box.left <= childBox.right &&
                           childBox.bottom <= box.top && box.bottom <= childBox.top;
        if (!meets)
            continue;
        if (level == 0)
            found(m_leaves[child]);
        else
            descend(level - 1, child, box, found);
    }
}

template <class Found>
void SceneIndex::find(const SceneBox& box, double viewHeight, Found&& found) const
{
    const double more = m_viewMarker * viewHeight;
    const SceneBox wide{box.left - more, box.bottom - more, box.right + more, box.top + more};
    if (!m_levels.empty())
        descend(m_levels.size() - 1, 0, wide, found);
    for (const Rank rank : m_endless)
        found(rank);
}
