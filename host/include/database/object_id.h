/// Ids and handles of database objects.
#pragma once

#include <cstdint>
#include <functional>

#include <runtime/export.h>
#include <runtime/resbuf.h>
#include <runtime/status.h>

class KdDbDatabase;
class KdDbObject;
class KdRxClass;

/// The number that names an object inside its drawing file; 0 is none.
using KdDbHandle = std::uint64_t;

/// Names an object of a database as long as the database lives, open or closed, erased or not. A
/// plain value of one pointer's size.
class KW_EXPORT KdDbObjectId
{
  public:
    static const KdDbObjectId kNull;

    constexpr KdDbObjectId() = default;
    explicit constexpr KdDbObjectId(KdDbObject* object) : m_object(object) {}

    bool isNull() const { return m_object == nullptr; }
    KdDbHandle handle() const;
    KdDbDatabase* database() const;
    /// The runtime class of the object, without opening it; null for the null id.
    KdRxClass* objectClass() const;
    /// True if the object's class is `rxClass` or derives from it; false for the null id.
    bool isKindOf(const KdRxClass* rxClass) const;
    /// What owns the object, without opening it.
    KdDbObjectId ownerId() const;
    bool isErased() const;

    bool operator==(const KdDbObjectId&) const = default;
    auto operator<=>(const KdDbObjectId&) const = default;

  private:
    friend class KdDbObject;
    friend struct std::hash<KdDbObjectId>;
    friend KdErrorStatus kddbOpenKdDbObject(KdDbObject*&, KdDbObjectId, int, bool);
    friend KdErrorStatus kddbGetKdsName(kds_name, KdDbObjectId);

    KdDbObject* m_object = nullptr;
};

template <>
struct std::hash<KdDbObjectId>
{
    std::size_t operator()(KdDbObjectId id) const noexcept
    {
        // Objects lie 16 bytes apart or more, so the low bits say nothing.
        return reinterpret_cast<std::uintptr_t>(id.m_object) >> 4;
    }
};
