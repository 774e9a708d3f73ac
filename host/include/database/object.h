/// The base of everything that lives in a drawing database.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include <database/object_id.h>
#include <runtime/guid.h>
#include <runtime/kd_rare.h>
#include <runtime/kd_string.h>
#include <runtime/rx_class.h>

class KdDbArena;

namespace KdDb {
enum OpenMode
{
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2,
};
}

struct ResbufDeleter
{
    void operator()(resbuf* chain) const { kdutRelRb(chain); }
};
using ResbufChain = std::unique_ptr<resbuf, ResbufDeleter>;

/// The data behind an object, apart from what tells where it belongs. Every class that has data of
/// its own derives a record from that of its parent; drawing readers fill the records.
struct KW_EXPORT ObjectMembers
{
    virtual ~ObjectMembers();

    /// What most objects lack.
    struct Links
    {
        KdDbObjectId extensionDictionary;
        /// Who wants to hear of changes, such as the dependencies of associative objects.
        std::vector<KdDbObjectId> reactors;
    };

    /// All extended data of the object: each application begins with a 1001 record.
    ResbufChain extendedData;
    KdRare<Links> links;
};

/// Where an object stands in the drawing file it came from. `length` 0: it did not come from a
/// file.
struct SourceRange
{
    std::uint64_t offset = 0;
    std::uint32_t length = 0;
};

/// Base of all database objects. An object that came from a file is at first only known by class,
/// handle, owner and place in the file; its members are read when one is first asked for. A closed
/// object stays valid in memory as long as its database lives, and reading it stays allowed.
class KW_EXPORT KdDbObject : public KdRxObject
{
    KD_RX_DECLARE(KdDbObject)

    ~KdDbObject() override;
    KdDbObject(const KdDbObject&) = delete;
    KdDbObject& operator=(const KdDbObject&) = delete;

    KdDbObjectId objectId() const { return KdDbObjectId(const_cast<KdDbObject*>(this)); }
    KdDbHandle handle() const { return m_handle; }
    KdDbDatabase* database() const { return m_database; }
    KdDbObjectId ownerId() const { return m_owner; }
    SourceRange source() const { return {m_sourceOffset, m_sourceLength}; }

    bool isErased() const { return m_erased; }
    /// Marks the object as erased, or takes the mark back. It must be open for write.
    KdErrorStatus erase(bool erasing = true);

    /// Ends one open. `eNotOpenForRead` if the object was not open.
    KdErrorStatus close();
    bool isReadEnabled() const { return m_readers > 0 || m_writer; }
    bool isWriteEnabled() const { return m_writer || !m_database; }

    /// Id of the dictionary that extends this object, or the null id.
    KdDbObjectId extensionDictionary() const { return members().links->extensionDictionary; }
    /// The records of one application's extended data behind its 1001 record, up to the next
    /// application's. The application's name is compared without case; null stands for all
    /// applications, and then the 1001 records are there, too. The chain belongs to the object;
    /// `end` receives the first record that no longer counts. Both are null if there are none.
    const resbuf* extendedData(const wchar_t* application, const resbuf*& end) const;
    /// The objects that want to hear of changes to this one.
    std::span<const KdDbObjectId> reactors() const { return members().links->reactors; }
    /// True if the annotation scale decides the object's size. Here: what its extended data says.
    virtual bool isAnnotative() const;
    /// The class id under which an object model knows the object; see database/class_ids.h. Here,
    /// and for all that no object model shows: `eNotApplicable`, `classId` untouched. A null
    /// `classId` gives `eInvalidInput`.
    virtual KdErrorStatus getClassID(CLSID* classId) const;

  protected:
    KdDbObject() = default;

    const ObjectMembers& members() const
    {
        if (!m_members)
            loadMembers();
        return *m_members;
    }
    /// The members for change: the object must be open for write or not yet in a database.
    ObjectMembers& editMembers();
    /// A new record of this class's kind, in `arena`, or on the heap when that is null.
    virtual ObjectMembers* makeMembers(KdDbArena* arena) const;

  private:
    friend class KdDbDatabase;
    friend class KdDbDatabaseBuilder;
    friend KdErrorStatus kddbOpenKdDbObject(KdDbObject*&, KdDbObjectId, int, bool);

    void loadMembers() const;

    KdDbDatabase* m_database = nullptr;
    KdDbHandle m_handle = 0;
    KdDbObjectId m_owner;
    mutable ObjectMembers* m_members = nullptr;
    std::uint64_t m_sourceOffset = 0;
    std::uint32_t m_sourceLength = 0;
    std::uint32_t m_readers : 29 = 0; // one word with the flags, so that objects stay small
    bool m_writer : 1 = false;
    bool m_erased : 1 = false;
    bool m_inArena : 1 = false;
};

/// Inside a class with data of its own: ties it to its record. Adds `data()` for reading, `edit()`
/// for change, and leaves the access level at public.
#define KD_DB_MEMBERS(Members)                                                                     \
  public:                                                                                          \
    Members& edit()                                                                                \
    {                                                                                              \
        return static_cast<Members&>(editMembers());                                               \
    }                                                                                              \
    KD_DB_MEMBERS_TO_READ(Members)

/// The same without `edit()`, for a class that has to notice changes.
#define KD_DB_MEMBERS_TO_READ(Members)                                                             \
  protected:                                                                                       \
    const Members& data() const                                                                    \
    {                                                                                              \
        return static_cast<const Members&>(members());                                             \
    }                                                                                              \
    ObjectMembers* makeMembers(KdDbArena* arena) const override                                    \
    {                                                                                              \
        return kddbMakeMembers<Members>(arena);                                                    \
    }                                                                                              \
                                                                                                   \
  public:

KW_EXPORT void* kddbAllocateMembers(KdDbArena* arena, std::size_t size, std::size_t alignment);

template <class Members>
Members* kddbMakeMembers(KdDbArena* arena)
{
    return new (kddbAllocateMembers(arena, sizeof(Members), alignof(Members))) Members;
}

/// Opens an object. For read, any number of openers; for write, one alone. Fails with
/// `eNullObjectId`, `eWasErased` (unless `openErased`), `eWasOpenForWrite` or `eWasOpenForRead`,
/// leaving `object` untouched. Every success is to be ended by `close()`.
KW_EXPORT KdErrorStatus kddbOpenKdDbObject(KdDbObject*& object, KdDbObjectId id, int mode,
                                           bool openErased);

/// The same for an object of a known class; `eNotThatKindOfClass` if it is of another.
template <class T>
KdErrorStatus kddbOpenObject(T*& object, KdDbObjectId id, KdDb::OpenMode mode = KdDb::kForRead,
                             bool openErased = false)
{
    if (!id.isNull() && !id.isKindOf(T::desc()))
        return eNotThatKindOfClass;
    KdDbObject* opened = nullptr;
    const KdErrorStatus status = kddbOpenKdDbObject(opened, id, mode, openErased);
    if (status == eOk)
        object = static_cast<T*>(opened);
    return status;
}

/// Holds an object open for read for the length of a scope.
template <class T>
class OpenForRead
{
  public:
    explicit OpenForRead(KdDbObjectId id) : m_status(kddbOpenObject(m_object, id)) {}
    ~OpenForRead()
    {
        if (m_object)
            m_object->close();
    }
    OpenForRead(const OpenForRead&) = delete;
    OpenForRead& operator=(const OpenForRead&) = delete;

    explicit operator bool() const { return m_object != nullptr; }
    const T* operator->() const { return m_object; }
    const T& operator*() const { return *m_object; }
    const T* get() const { return m_object; }
    KdErrorStatus status() const { return m_status; }

  private:
    T* m_object = nullptr;
    KdErrorStatus m_status;
};

/// The entity name of an object, for selection sets and prompts. Returns 0 on success, otherwise a
/// `KdErrorStatus` with `name` untouched.
KW_EXPORT KdErrorStatus kddbGetKdsName(kds_name name, KdDbObjectId id);
/// The reverse.
KW_EXPORT KdErrorStatus kddbGetObjectId(KdDbObjectId& id, const kds_name name);
