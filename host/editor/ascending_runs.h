/// Finds the place of a member in a selection set whose members came in the order of memory.
#pragma once

#include <database/object_id.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <vector>

/// Knows a list of ids, which the caller passes to each call, as a few runs: in each the ids
/// ascend, and no id of another run lies between them. The entities of a drawing lie in memory in
/// its order, in a few large blocks, so what is gathered from it needs no table of all members.
class AscendingRuns
{
  public:
    using Cells = std::vector<KdDbObjectId>;

    /// Enters the id of the next place. False, with nothing changed, if it is in the list or
    /// belongs between others, or if there are too many runs already.
    bool append(KdDbObjectId id, std::size_t place)
    {
        if (m_last < id && (m_isOpenAbove || id < m_limit)) {
            m_last = id;
            return true;
        }
        return begin(place, id);
    }

    std::optional<std::size_t> find(const Cells& cells, KdDbObjectId id) const
    {
        for (std::size_t i = 0; i < m_runs.size(); ++i) {
            if (m_runs[i].first <= id && id <= lastOf(i))
                return findIn(cells, m_runs[i].begin, endOf(cells, i), id);
        }
        return {};
    }

    void clear() { *this = {}; }

  private:
    static constexpr std::size_t kMostRuns = 64;
    struct Run
    {
        std::size_t begin;
        KdDbObjectId first;
        KdDbObjectId last; ///< of the run that still grows: `m_last`
    };

    KdDbObjectId lastOf(std::size_t run) const
    {
        return run + 1 == m_runs.size() ? m_last : m_runs[run].last;
    }
    std::size_t endOf(const Cells& cells, std::size_t run) const
    {
        return run + 1 == m_runs.size() ? cells.size() : m_runs[run + 1].begin;
    }

    bool begin(std::size_t place, KdDbObjectId id)
    {
        if (m_runs.size() == kMostRuns)
            return false;
        for (std::size_t i = 0; i < m_runs.size(); ++i) {
            if (m_runs[i].first <= id && id <= lastOf(i))
                return false;
        }
        if (!m_runs.empty())
            m_runs.back().last = m_last;
        m_runs.push_back({place, id, id});
        m_last = id;
        m_isOpenAbove = true;
        for (const Run& run : m_runs) {
            if (id < run.first && (m_isOpenAbove || run.first < m_limit)) {
                m_limit = run.first;
                m_isOpenAbove = false;
            }
        }
        return true;
    }

    /// Members are looked for in the order of the list as a rule, so this begins where the last one
    /// was and takes longer steps as it goes on.
    std::optional<std::size_t> findIn(const Cells& cells, std::size_t begin, std::size_t end,
                                      KdDbObjectId id) const
    {
        const bool isBehind = m_found >= begin && m_found < end && cells[m_found] <= id;
        std::size_t from = isBehind ? m_found : begin;
        std::size_t step = 1;
        while (end - from > step && cells[from + step] <= id) {
            from += step;
            step *= 2;
        }
        const auto first = cells.begin() + static_cast<std::ptrdiff_t>(from);
        const auto last = first + static_cast<std::ptrdiff_t>(std::min(step, end - from));
        const auto place = std::lower_bound(first, last, id);
        if (place == last || *place != id)
            return {};
        m_found = static_cast<std::size_t>(place - cells.begin());
        return m_found;
    }

    std::vector<Run> m_runs; ///< in the order of their places
    KdDbObjectId m_last;
    KdDbObjectId m_limit;       ///< where the next run above begins
    bool m_isOpenAbove = false; ///< there is none
    mutable std::size_t m_found = 0;
};
