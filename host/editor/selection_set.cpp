#include "selection_set.h"

#include <cassert>

bool SelectionSet::add(KdDbObjectId id)
{
    const KdDbDatabase* database = id.database();
    if (!database || (m_database && m_database != database))
        return false;
    if (!enter(id))
        return true;
    m_database = database;
    if (!m_removed.empty())
        m_removed.push_back(false);
    if (!m_live.isEmpty())
        m_live.append(true);
    ++m_count;
    return true;
}

/// Puts the id behind all others. False if it is a member already.
bool SelectionSet::enter(KdDbObjectId id)
{
    if (m_ascends && m_runs.append(id, m_cells.size())) {
        m_cells.push_back(id);
        return true;
    }
    if (m_ascends) {
        if (contains(id))
            return false;
        dropRemovedCells();
        m_ascends = false;
        indexAll();
    }
    m_cells.push_back(id);
    if (m_index.insert(m_cells, m_cells.size() - 1))
        return true;
    m_cells.pop_back();
    return false;
}

bool SelectionSet::remove(KdDbObjectId id)
{
    const auto place = find(id);
    if (!place)
        return false;
    if (!m_ascends)
        m_index.erase(m_cells, id);
    m_removed.resize(m_cells.size());
    m_removed[*place] = true;
    if (!m_live.isEmpty())
        m_live.remove(*place);
    --m_count;
    constexpr std::size_t kFewEnough = 64;
    if (m_cells.size() > 2 * m_count + kFewEnough) {
        // Half of the cells are empty, so this is paid for by the removals before it.
        dropRemovedCells();
        indexAll();
    }
    return true;
}

std::optional<std::size_t> SelectionSet::find(KdDbObjectId id) const
{
    if (!m_ascends)
        return m_index.find(m_cells, id);
    const auto place = m_runs.find(m_cells, id);
    return place && isLive(*place) ? place : std::nullopt;
}

KdDbObjectId SelectionSet::at(std::size_t number) const
{
    assert(number < m_count);
    if (m_count == m_cells.size())
        return m_cells[number];
    if (m_live.isEmpty())
        for (std::size_t place = 0; place < m_cells.size(); ++place)
            m_live.append(isLive(place));
    auto [block, before] = m_live.find(number);
    std::size_t place = block * LiveCells::kBlock;
    while (!isLive(place) || before-- > 0)
        ++place;
    return m_cells[place];
}

void SelectionSet::dropRemovedCells()
{
    std::size_t kept = 0;
    for (std::size_t place = 0; place < m_cells.size(); ++place)
        if (isLive(place))
            m_cells[kept++] = m_cells[place];
    m_cells.resize(kept);
    m_removed.clear();
    m_live.clear();
}

void SelectionSet::indexAll()
{
    m_runs.clear();
    m_index.clear();
    // What ascended in runs need not do so when some of it is gone.
    for (std::size_t place = 0; m_ascends && place < m_cells.size(); ++place)
        m_ascends = m_runs.append(m_cells[place], place);
    if (m_ascends)
        return;
    m_runs.clear();
    for (std::size_t place = 0; place < m_cells.size(); ++place)
        m_index.insert(m_cells, place);
}
