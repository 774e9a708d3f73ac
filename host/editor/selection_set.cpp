#include "selection_set.h"

#include <cassert>

bool SelectionSet::add(KdDbObjectId id)
{
    const KdDbDatabase* database = id.database();
    if (!database || (m_database && m_database != database))
        return false;
    m_cells.push_back(id);
    if (!m_index.insert(m_cells, m_cells.size() - 1)) {
        m_cells.pop_back();
        return true;
    }
    m_database = database;
    if (!m_live.isEmpty())
        m_live.append(true);
    ++m_count;
    return true;
}

bool SelectionSet::remove(KdDbObjectId id)
{
    const auto place = m_index.find(m_cells, id);
    if (!place)
        return false;
    m_index.erase(m_cells, id);
    m_cells[*place] = KdDbObjectId::kNull;
    if (!m_live.isEmpty())
        m_live.remove(*place);
    --m_count;
    constexpr std::size_t kFewEnough = 64;
    if (m_cells.size() > 2 * m_count + kFewEnough)
        removeEmptyCells();
    return true;
}

KdDbObjectId SelectionSet::at(std::size_t number) const
{
    assert(number < m_count);
    if (m_count == m_cells.size())
        return m_cells[number];
    if (m_live.isEmpty())
        for (const KdDbObjectId id : m_cells)
            m_live.append(!id.isNull());
    auto [block, before] = m_live.find(number);
    std::size_t place = block * LiveCells::kBlock;
    while (m_cells[place].isNull() || before-- > 0)
        ++place;
    return m_cells[place];
}

/// Waits until half of the cells are empty, so the work is paid for by the removals before it.
void SelectionSet::removeEmptyCells()
{
    std::erase(m_cells, KdDbObjectId::kNull);
    m_live.clear();
    m_index.clear();
    for (std::size_t place = 0; place < m_cells.size(); ++place)
        m_index.insert(m_cells, place);
}
