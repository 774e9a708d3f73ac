#include "selection_store.h"

#include <utility>

namespace {
// The second half of a set's name tells it from the name of an entity.
constexpr long kSetNameMark = 0x536574;
} // namespace

void SelectionStore::add(SelectionSet set, kds_name name)
{
    m_sets.emplace(++m_lastNumber, std::move(set));
    name[0] = m_lastNumber;
    name[1] = kSetNameMark;
}

SelectionSet* SelectionStore::find(const long* name)
{
    if (!name || name[1] != kSetNameMark)
        return nullptr;
    if (m_found && m_foundNumber == name[0])
        return m_found;
    const auto found = m_sets.find(name[0]);
    m_foundNumber = name[0];
    m_found = found == m_sets.end() ? nullptr : &found->second;
    return m_found;
}

bool SelectionStore::free(const long* name)
{
    if (!find(name))
        return false;
    m_found = nullptr;
    return m_sets.erase(name[0]) > 0;
}

void SelectionStore::freeAllOf(const KdDbDatabase& database)
{
    m_found = nullptr;
    std::erase_if(m_sets, [&](const auto& entry) { return entry.second.database() == &database; });
}
