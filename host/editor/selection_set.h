/// A selection set: entities in the order in which they were added.
#pragma once

#include "ascending_runs.h"
#include "live_cells.h"
#include "member_index.h"

#include <cstddef>
#include <optional>
#include <vector>

/// Adding, removing and testing a member take constant or logarithmic time on average, whatever the
/// order of calls; a member by its number takes constant time until something is removed and
/// logarithmic time then. All members belong to one drawing, which the first of them decides. The
/// set never looks into its members once they are added, so it may outlive their drawing.
class SelectionSet
{
  public:
    /// Adds a member at the end; one that is in already stays where it is. False, with nothing
    /// changed, for the null id and for an object of another drawing or of none.
    bool add(KdDbObjectId id);
    /// False if `id` is no member.
    bool remove(KdDbObjectId id);
    bool contains(KdDbObjectId id) const { return find(id).has_value(); }

    std::size_t size() const { return m_count; }
    /// The member of that number, counted from 0 in the order of adding. It must be below `size`.
    KdDbObjectId at(std::size_t number) const;
    /// Calls `visit` with each member in order. The set must not change meanwhile.
    template <class Visit>
    void forEach(Visit visit) const
    {
        for (std::size_t place = 0; place < m_cells.size(); ++place)
            if (isLive(place))
                visit(m_cells[place]);
    }

    /// The drawing of the members, past ones included; null for a set that never had one.
    const KdDbDatabase* database() const { return m_database; }

  private:
    bool isLive(std::size_t place) const { return m_removed.empty() || !m_removed[place]; }
    std::optional<std::size_t> find(KdDbObjectId id) const;
    bool enter(KdDbObjectId id);
    void dropRemovedCells();
    void indexAll();

    std::vector<KdDbObjectId> m_cells; ///< members and removed ones
    std::vector<bool> m_removed;       ///< by place; empty until something is removed
    /// Where the members are: in the runs as long as they ascend, otherwise in the index.
    bool m_ascends = true;
    AscendingRuns m_runs;
    MemberIndex m_index;
    mutable LiveCells m_live; ///< empty until a member is asked for by number among removed ones
    std::size_t m_count = 0;
    const KdDbDatabase* m_database = nullptr;
};
