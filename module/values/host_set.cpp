#include <values/host_set.h>

#include <utility>

#include <database/entity.h>
#include <editor/selection_sets.h>

namespace {

// What a person could have selected in the current space.
constexpr int kSelectableInSpace = kKdedCurrentSpaceOnly | kKdedPickableOnly;

} // namespace

HostSet::HostSet() : m_status(kdedSSAdd(nullptr, nullptr, m_name)) {}

HostSet HostSet::ofMode(const wchar_t* mode)
{
    HostSet set{Unmade{}};
    set.m_status = kdedSSGet(mode, nullptr, nullptr, nullptr, set.m_name);
    return set;
}

HostSet HostSet::implied()
{
    return ofMode(L"I");
}

HostSet HostSet::promptedFor()
{
    return ofMode(nullptr);
}

HostSet HostSet::currentSpace()
{
    HostSet set{Unmade{}};
    set.m_status = kdedSSGetImpl(L"X", nullptr, nullptr, nullptr, set.m_name, kSelectableInSpace);
    // The host makes no set where it has nothing to offer; an outcome needs one all the same.
    return set.m_status == RTNORM ? std::move(set) : HostSet();
}

HostSet::~HostSet()
{
    free();
}

void HostSet::free()
{
    if (m_status == RTNORM)
        kdedSSFree(m_name);
    m_status = 0;
}

HostSet::HostSet(HostSet&& other) noexcept
    : m_name{other.m_name[0], other.m_name[1]}, m_status(std::exchange(other.m_status, 0))
{
}

HostSet& HostSet::operator=(HostSet&& other) noexcept
{
    if (this != &other) {
        free();
        m_name[0] = other.m_name[0];
        m_name[1] = other.m_name[1];
        m_status = std::exchange(other.m_status, 0);
    }
    return *this;
}

bool HostSet::add(KdDbObjectId id)
{
    kds_name entity;
    if (kddbGetKdsName(entity, id) != eOk)
        return false;
    addMember(entity);
    return true;
}

void HostSet::addMember(const kds_name member)
{
    kdedSSAdd(member, m_name, m_name);
}

bool HostSet::add(const KdDbEntity& entity)
{
    return add(entity.objectId());
}

void HostSet::remove(KdDbObjectId id)
{
    kds_name entity;
    if (kddbGetKdsName(entity, id) == eOk)
        kdedSSDel(entity, m_name);
}

void HostSet::addMembersOf(const long* set)
{
    forEachMember(set, [this](KdDbObjectId, const kds_name member) { addMember(member); });
}

void HostSet::removeMembersOf(const HostSet& other)
{
    forEachMember(other.name(),
                  [this](KdDbObjectId, const kds_name member) { kdedSSDel(member, m_name); });
}

long memberCount(const long* set)
{
    long count = 0;
    return set && kdedSSLength(set, &count) == RTNORM ? count : -1;
}

bool memberAt(const long* set, long index, kds_name name, KdDbObjectId& id)
{
    if (kdedSSName(set, index, name) != RTNORM)
        return false;
    if (kddbGetObjectId(id, name) != eOk)
        id = KdDbObjectId::kNull;
    return true;
}
