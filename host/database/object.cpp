#include <database/object.h>

#include <cassert>

#include <database/database.h>
#include <database/open_count.h>

const KdDbObjectId KdDbObjectId::kNull{};

KD_RX_DEFINE_ABSTRACT(KdDbObject, KdRxObject, L"AcDbObject")

namespace {
long long opensInUse = 0;
} // namespace

KdDbHandle KdDbObjectId::handle() const
{
    return m_object ? m_object->handle() : 0;
}

KdDbDatabase* KdDbObjectId::database() const
{
    return m_object ? m_object->database() : nullptr;
}

KdRxClass* KdDbObjectId::objectClass() const
{
    return m_object ? m_object->isA() : nullptr;
}

bool KdDbObjectId::isKindOf(const KdRxClass* rxClass) const
{
    return m_object && m_object->isKindOf(rxClass);
}

KdDbObjectId KdDbObjectId::ownerId() const
{
    return m_object ? m_object->ownerId() : kNull;
}

bool KdDbObjectId::isErased() const
{
    return m_object && m_object->isErased();
}

ObjectMembers::~ObjectMembers() = default;

KdDbObject::~KdDbObject()
{
    if (!m_members)
        return;
    if (m_inArena)
        m_members->~ObjectMembers();
    else
        delete m_members;
}

ObjectMembers* KdDbObject::makeMembers(KdDbArena* arena) const
{
    return kddbMakeMembers<ObjectMembers>(arena);
}

void* kddbAllocateMembers(KdDbArena* arena, std::size_t size, std::size_t alignment)
{
    return arena ? arena->allocate(size, alignment) : ::operator new(size);
}

void KdDbObject::loadMembers() const
{
    m_members = makeMembers(m_inArena ? &m_database->m_arena : nullptr);
    if (m_sourceLength > 0 && m_database && m_database->m_source)
        m_database->m_source->readMembers(*this, *m_members);
}

ObjectMembers& KdDbObject::editMembers()
{
    assert(isWriteEnabled());
    members();
    return *m_members;
}

KdErrorStatus KdDbObject::erase(bool erasing)
{
    if (!isWriteEnabled())
        return eNotOpenForWrite;
    m_erased = erasing;
    return eOk;
}

KdErrorStatus KdDbObject::close()
{
    if (m_writer)
        m_writer = false;
    else if (m_readers > 0)
        --m_readers;
    else
        return eNotOpenForRead;
    if (m_database) {
        --m_database->m_openCount;
        --opensInUse;
    }
    return eOk;
}

const resbuf* KdDbObject::extendedData(const wchar_t* application, const resbuf*& end) const
{
    if (!application) {
        end = nullptr;
        return members().extendedData.get();
    }
    constexpr short kApplicationName = 1001;
    const std::wstring_view wanted = application;
    const auto beginsWanted = [wanted](const resbuf& record) {
        const wchar_t* name = record.resval.rstring;
        return record.restype == kApplicationName && KdNameEqual()(name ? name : L"", wanted);
    };
    const resbuf* record = members().extendedData.get();
    while (record && !beginsWanted(*record))
        record = record->rbnext;
    const resbuf* first = record ? record->rbnext : nullptr;
    end = first;
    while (end && end->restype != kApplicationName)
        end = end->rbnext;
    if (first != end)
        return first;
    end = nullptr; // so that a walk from the one to the other ends at once
    return nullptr;
}

bool KdDbObject::isAnnotative() const
{
    // "AnnotativeData", {, the version, the flag, }
    constexpr short kInteger = 1070;
    const resbuf* end = nullptr;
    int integers = 0;
    for (const resbuf* record = extendedData(L"AcadAnnotative", end); record != end;
         record = record->rbnext) {
        if (record->restype == kInteger && ++integers == 2)
            return record->resval.rint == 1;
    }
    return false;
}

KdErrorStatus KdDbObject::getClassID(CLSID* classId) const
{
    return classId ? eNotApplicable : eInvalidInput;
}

KdErrorStatus kddbOpenKdDbObject(KdDbObject*& object, KdDbObjectId id, int mode, bool openErased)
{
    KdDbObject* wanted = id.m_object;
    if (!wanted)
        return eNullObjectId;
    if (wanted->m_erased && !openErased)
        return eWasErased;
    if (wanted->m_writer)
        return eWasOpenForWrite;
    if (mode == KdDb::kForWrite) {
        if (wanted->m_readers > 0)
            return eWasOpenForRead;
        wanted->m_writer = true;
    } else {
        ++wanted->m_readers;
    }
    if (wanted->m_database) {
        ++wanted->m_database->m_openCount;
        ++opensInUse;
    }
    object = wanted;
    return eOk;
}

long long kddbOpensInUse() noexcept
{
    return opensInUse;
}

namespace {
// The second half of an entity's name tells it from the name of a selection set.
constexpr long kEntityNameMark = 0x456E74;
} // namespace

KdErrorStatus kddbGetKdsName(kds_name name, KdDbObjectId id)
{
    if (id.isNull())
        return eNullObjectId;
    if (!name)
        return eInvalidInput;
    name[0] = reinterpret_cast<long>(id.m_object);
    name[1] = kEntityNameMark;
    return eOk;
}

KdErrorStatus kddbGetObjectId(KdDbObjectId& id, const kds_name name)
{
    if (!name || name[0] == 0 || name[1] != kEntityNameMark)
        return eInvalidInput;
    id = KdDbObjectId(reinterpret_cast<KdDbObject*>(name[0]));
    return eOk;
}
