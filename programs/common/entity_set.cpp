#include <common/entity_set.h>

#include <database/object.h>
#include <editor/selection_sets.h>

EntitySet::EntitySet(const std::vector<KdDbObjectId>& entities)
{
    kdedSSAdd(nullptr, nullptr, m_name);
    for (const KdDbObjectId id : entities) {
        kds_name member;
        if (kddbGetKdsName(member, id) == eOk)
            kdedSSAdd(member, m_name, m_name);
    }
}

EntitySet::~EntitySet()
{
    kdedSSFree(m_name);
}

std::vector<KdDbObjectId> pickfirstEntities()
{
    std::vector<KdDbObjectId> ids;
    kds_name set;
    long length = 0;
    if (kdedSSGetFirst(set) != RTNORM)
        return ids;
    kdedSSLength(set, &length);
    ids.reserve(static_cast<std::size_t>(length));
    for (long i = 0; i < length; ++i) {
        kds_name member;
        KdDbObjectId id;
        if (kdedSSName(set, i, member) == RTNORM && kddbGetObjectId(id, member) == eOk)
            ids.push_back(id);
    }
    kdedSSFree(set);
    return ids;
}

void setPickfirstEntities(const std::vector<KdDbObjectId>& entities)
{
    EntitySet set(entities);
    kdedSSSetFirst(set.name(), nullptr);
}
