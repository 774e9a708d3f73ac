/// The selection sets that commands hold by name.
#pragma once

#include "selection_set.h"

#include <memory>
#include <unordered_map>

#include <runtime/resbuf.h>

/// Owns the sets. No name is given out twice, so the name of a freed set finds nothing ever after.
class SelectionStore
{
  public:
    /// Takes a set over and writes its name.
    void add(SelectionSet set, kds_name name);
    /// The set of that name; null for the name of an entity, of a freed set, or none.
    SelectionSet* find(const long* name);
    bool free(const long* name);
    /// Frees all sets with members of that drawing.
    void freeAllOf(const KdDbDatabase& database);
    std::size_t size() const { return m_sets.size(); }

  private:
    std::unordered_map<long, SelectionSet> m_sets;
    long m_lastNumber = 0;
    /// What was found last; most calls are about the same set as the call before.
    long m_foundNumber = 0;
    SelectionSet* m_found = nullptr;
};
