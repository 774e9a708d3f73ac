#include <kwdraw/document/pickfirst.h>

#include <database/object.h>
#include <editor/selection_sets.h>

namespace {

/// A selection set, freed at the end of its scope.
class ScopedSet
{
  public:
    ScopedSet() { kdedSSAdd(nullptr, nullptr, m_name); }
    ~ScopedSet() { kdedSSFree(m_name); }
    ScopedSet(const ScopedSet&) = delete;
    ScopedSet& operator=(const ScopedSet&) = delete;

    long* name() { return m_name; }
    void add(KdDbObjectId id)
    {
        kds_name entity;
        if (kddbGetKdsName(entity, id) == eOk)
            kdedSSAdd(entity, m_name, m_name);
    }

  private:
    kds_name m_name = {};
};

} // namespace

std::vector<KdDbObjectId> pickfirstIds()
{
    std::vector<KdDbObjectId> ids;
    kds_name set;
    if (kdedSSGetFirst(set) != RTNORM)
        return ids;
    kds_name entity;
    for (long i = 0; kdedSSName(set, i, entity) == RTNORM; ++i) {
        KdDbObjectId id;
        if (kddbGetObjectId(id, entity) == eOk)
            ids.push_back(id);
    }
    kdedSSFree(set);
    return ids;
}

void setPickfirst(const std::vector<KdDbObjectId>& ids)
{
    ScopedSet set;
    for (const KdDbObjectId id : ids)
        set.add(id);
    kdedSSSetFirst(set.name(), nullptr);
}
