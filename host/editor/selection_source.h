/// Where the members of a new selection set come from.
#pragma once

#include "selection_filter.h"

#include <database/database.h>

#include <unordered_set>

/// The rules by which one selection takes or leaves an entity: it must be of the drawing and not
/// erased, and keep the filter and the flags. Holds for as long as the drawing's layers and current
/// space stay as they are.
class SelectionRules
{
  public:
    SelectionRules(const KdDbDatabase& database, SelectionFilter filter, int flags);
    bool accept(KdDbObjectId id) const;

  private:
    bool acceptContent(const KdDbEntity& entity) const;

    const KdDbDatabase& m_database;
    SelectionFilter m_filter;
    bool m_pickableOnly;
    bool m_currentSpaceOnly;
    KdDbObjectId m_currentSpace;
    std::unordered_set<KdDbObjectId> m_frozenLayers;
};

/// Writes the entities that `mode` stands for to `ids`, before any rule is applied.
/// @param flags  as for `kdedSSGetImpl`; spaces that the rules would leave out need not be walked
/// @return       `RTNORM`, or what `kdedSSGetImpl` is to return
int collectCandidates(const wchar_t* mode, KdDbDatabase& database, int flags,
                      std::vector<KdDbObjectId>& ids);
