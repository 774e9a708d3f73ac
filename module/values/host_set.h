/// A selection set of the host, held for the length of a scope.
#pragma once

#include <database/object_id.h>

class KdDbEntity;

/// Owns one set and frees it. Sets keep the order in which members came in.
class HostSet
{
  public:
    /// An empty set.
    HostSet();
    /// The implied selection. Without one the set is empty and `status` says so.
    static HostSet implied();
    /// What the user picks at the host's prompt. Empty, and `status` says so, if that is nothing.
    static HostSet promptedFor();
    /// Everything of the current space that a run over the whole drawing may meet; may be empty.
    static HostSet currentSpace();
    ~HostSet();
    HostSet(HostSet&& other) noexcept;
    HostSet& operator=(HostSet&& other) noexcept;

    /// What the host said when it made the set; `RTNORM` is success.
    int status() const { return m_status; }
    /// The host's name of the set.
    const long* name() const { return m_name; }

    /// Adds an object, unless it is a member already. False if the host has no name for it.
    bool add(KdDbObjectId id);
    bool add(const KdDbEntity& entity);
    void addMember(const kds_name member);
    void remove(KdDbObjectId id);
    /// Adds every member of another set by its name, in order.
    void addMembersOf(const long* set);
    void removeMembersOf(const HostSet& other);

  private:
    struct Unmade
    {
    };
    explicit HostSet(Unmade) {}
    static HostSet ofMode(const wchar_t* mode);
    void free();

    kds_name m_name = {0, 0};
    int m_status = 0;
};

/// The number of members, or -1 if the host can't tell.
long memberCount(const long* set);

/// Calls `visit(id, entityName)` for each member in order, with the null id where the name stands
/// for no object.
template <class Visit>
void forEachMember(const long* set, Visit visit);

/// The name and id of one member; false if the host does not give it.
bool memberAt(const long* set, long index, kds_name name, KdDbObjectId& id);

template <class Visit>
void forEachMember(const long* set, Visit visit)
{
    const long count = memberCount(set);
    for (long index = 0; index < count; ++index) {
        kds_name name;
        KdDbObjectId id;
        if (memberAt(set, index, name, id))
            visit(id, name);
    }
}
