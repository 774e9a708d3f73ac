/// Finds the place of a member in a selection set.
#pragma once

#include <database/object_id.h>

#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

/// A hash table of places in a list of ids, which the caller passes to each call. It keeps four
/// bytes a place and nothing else, so that a million members cost no million allocations.
class MemberIndex
{
  public:
    using Cells = std::vector<KdDbObjectId>;

    std::optional<std::size_t> find(const Cells& cells, KdDbObjectId id) const
    {
        if (m_slots.empty())
            return {};
        const std::size_t slot = slotOf(cells, id);
        if (m_slots[slot] == kFree)
            return {};
        return m_slots[slot] - 1;
    }

    /// Enters the id at `place`; false if it is in the index already.
    bool insert(const Cells& cells, std::size_t place)
    {
        if ((m_count + 1) * 4 > m_slots.size() * 3)
            grow(cells);
        std::uint32_t& slot = m_slots[slotOf(cells, cells[place])];
        if (slot != kFree)
            return false;
        slot = static_cast<std::uint32_t>(place + 1);
        ++m_count;
        return true;
    }

    /// Takes out an id that is in the index; the cells must still hold it.
    void erase(const Cells& cells, KdDbObjectId id)
    {
        // What follows in the same run moves up, so that no trace of the removed one is left.
        std::size_t hole = slotOf(cells, id);
        for (std::size_t slot = after(hole); m_slots[slot] != kFree; slot = after(slot)) {
            const std::size_t home = homeOf(cells[m_slots[slot] - 1]);
            if (((slot - home) & mask()) >= ((slot - hole) & mask())) {
                m_slots[hole] = m_slots[slot];
                hole = slot;
            }
        }
        m_slots[hole] = kFree;
        --m_count;
    }

    void clear()
    {
        m_slots.clear();
        m_count = 0;
    }

  private:
    static constexpr std::uint32_t kFree = 0;
    static constexpr std::size_t kFewest = 16;

    std::size_t mask() const { return m_slots.size() - 1; }
    std::size_t after(std::size_t slot) const { return (slot + 1) & mask(); }

    std::size_t homeOf(KdDbObjectId id) const
    {
        // Ids that follow each other in memory are spread over the table by the golden ratio.
        const std::uint64_t spread = std::hash<KdDbObjectId>()(id) * 0x9E3779B97F4A7C15ull;
        return spread >> (64 - std::bit_width(mask()));
    }

    std::size_t slotOf(const Cells& cells, KdDbObjectId id) const
    {
        std::size_t slot = homeOf(id);
        while (m_slots[slot] != kFree && cells[m_slots[slot] - 1] != id)
            slot = after(slot);
        return slot;
    }

    void grow(const Cells& cells)
    {
        std::vector<std::uint32_t> old(m_slots.empty() ? kFewest : m_slots.size() * 2, kFree);
        old.swap(m_slots);
        for (const std::uint32_t place : old)
            if (place != kFree)
                m_slots[slotOf(cells, cells[place - 1])] = place;
    }

    std::vector<std::uint32_t> m_slots; ///< place + 1; their number is a power of two
    std::size_t m_count = 0;
};
