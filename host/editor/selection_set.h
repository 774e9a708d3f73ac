/// A selection set: entities in the order in which they were added.
#pragma once

#include "live_cells.h"
#include "member_index.h"

#include <cstddef>
#include <vector>

/// Adding, removing and testing a member take constant time on average, whatever the order of
/// calls; a member by its number takes constant time until something is removed and logarithmic
/// time then. All members belong to one drawing, which the first of them decides. The set never
/// looks into its members once they are added, so it may outlive their drawing.
class SelectionSet
{
  public:
    /// Adds a member at the end; one that is in already stays where it is. False, with nothing
    /// changed, for the null id and for an object of another drawing or of none.
    bool add(KdDbObjectId id);
    /// False if `id` is no member.
    bool remove(KdDbObjectId id);
    bool contains(KdDbObjectId id) const { return m_index.find(m_cells, id).has_value(); }

    std::size_t size() const { return m_count; }
    /// The member of that number, counted from 0 in the order of adding. It must be below `size`.
    KdDbObjectId at(std::size_t number) const;
    /// Calls `visit` with each member in order. The set must not change meanwhile.
    template <class Visit>
    void forEach(Visit visit) const
    {
        for (const KdDbObjectId id : m_cells)
            if (!id.isNull())
                visit(id);
    }

    /// The drawing of the members, past ones included; null for a set that never had one.
    const KdDbDatabase* database() const { return m_database; }

  private:
    void removeEmptyCells();

    std::vector<KdDbObjectId> m_cells; ///< null where a member was removed
    MemberIndex m_index;
    mutable LiveCells m_live; ///< empty until a member is asked for by number among empty cells
    std::size_t m_count = 0;
    const KdDbDatabase* m_database = nullptr;
};
