#include <database/database.h>

#include <algorithm>
#include <cassert>
#include <iterator>

#include <database/dimension_style.h>

KdDbMemberSource::~KdDbMemberSource() = default;

std::string_view KdDbMemberSource::bytes(SourceRange) const
{
    return {};
}

bool KdDbMemberSource::isIntact() const
{
    return true;
}

KdDbDatabase::KdDbDatabase(Content content)
{
    KdDbObject* const tables[] = {
        new KdDbBlockTable,    new KdDbLayerTable, new KdDbLinetypeTable, new KdDbTextStyleTable,
        new KdDbDimStyleTable, new KdDbUCSTable,   new KdDbViewportTable, new KdDbRegAppTable};
    for (KdDbObject* table : tables) {
        own(*table);
        m_tables.push_back(table);
    }
    if (content == Content::Standard)
        KdDbDatabaseBuilder(*this).finish();
}

KdDbDatabase::~KdDbDatabase()
{
    kddbHostApplicationServices()->sayGoodbye(*this);
    for (KdDbObject* object : m_objects) {
        if (object->m_inArena)
            object->~KdDbObject();
        else
            delete object;
    }
}

void KdDbDatabase::own(KdDbObject& object)
{
    object.m_database = this;
    m_objects.push_back(&object);
}

KdErrorStatus KdDbDatabase::addObject(KdDbObject* object, KdDbObjectId owner)
{
    if (!object)
        return eNullObjectPointer;
    if (object->m_database)
        return eWrongDatabase;
    own(*object);
    object->m_owner = owner;
    object->m_handle = m_nextHandle++;
    noteHandle(*object);
    return eOk;
}

void KdDbDatabase::noteHandle(KdDbObject& object)
{
    // A larger one is damage; counting on from there would soon leave no handle for new objects.
    constexpr KdDbHandle kMost = KdDbHandle{1} << 63;
    if (!m_byHandle.empty() && object.m_handle <= m_byHandle.back()->m_handle)
        m_handlesAreSorted = false;
    m_byHandle.push_back(&object);
    if (object.m_handle >= m_nextHandle && object.m_handle < kMost)
        m_nextHandle = object.m_handle + 1;
}

KdDbObject* KdDbDatabase::findTable(const KdRxClass* tableClass) const
{
    const auto found = std::find_if(m_tables.begin(), m_tables.end(), [=](const KdDbObject* table) {
        return table->isA() == tableClass;
    });
    return found == m_tables.end() ? nullptr : *found;
}

KdDbObjectId KdDbDatabase::tableId(const KdRxClass* tableClass) const
{
    return KdDbObjectId(findTable(tableClass));
}

KdDbObject& KdDbDatabase::tableObject(const KdRxClass* tableClass) const
{
    KdDbObject* table = findTable(tableClass);
    assert(table);
    return *table;
}

KdDbObjectId KdDbDatabase::modelSpaceId() const
{
    KdDbObjectId id;
    table<KdDbBlockTable>().getIdAt(kModelSpaceName, id);
    return id;
}

KdDbObjectId KdDbDatabase::activeSheetId() const
{
    if (!m_activeSheet.isNull())
        return m_activeSheet;
    KdDbObjectId id;
    table<KdDbBlockTable>().getIdAt(kPaperSpaceName, id);
    return id;
}

KdErrorStatus KdDbDatabase::openNamedDictionary(const wchar_t* name, KdDbDictionary*& dictionary,
                                                KdDb::OpenMode mode) const
{
    const KdDbObjectId id = kddbDictionaryEntry(m_namedObjects, name);
    return id.isNull() ? eKeyNotFound : kddbOpenObject(dictionary, id, mode);
}

KdErrorStatus KdDbDatabase::getPlotStyleNameDictionary(KdDbDictionary*& dictionary,
                                                       KdDb::OpenMode mode)
{
    return openNamedDictionary(L"ACAD_PLOTSTYLENAME", dictionary, mode);
}

KdErrorStatus KdDbDatabase::getMaterialDictionary(KdDbDictionary*& dictionary, KdDb::OpenMode mode)
{
    return openNamedDictionary(L"ACAD_MATERIAL", dictionary, mode);
}

namespace {

bool hasLesserHandle(const KdDbObject* a, const KdDbObject* b)
{
    return a->handle() < b->handle();
}

using Place = std::vector<KdDbObject*>::iterator;

/// Makes one run of two. Of equal handles the first stays in front. Mostly the one run lies below
/// the other, so few objects are looked at.
void mergeRuns(Place begin, Place middle, Place end)
{
    begin = std::upper_bound(begin, middle, *middle, hasLesserHandle);
    if (begin == middle)
        return;
    end = std::lower_bound(middle, end, *std::prev(middle), hasLesserHandle);
    if (hasLesserHandle(*std::prev(end), *begin))
        std::rotate(begin, middle, end);
    else
        std::inplace_merge(begin, middle, end, hasLesserHandle);
}

} // namespace

void KdDbDatabase::sortHandles() const
{
    // A file holds a few long ascending runs of handles, so whole runs are merged: neighbours
    // first, until one is left.
    std::vector<Place> ends;
    for (Place at = m_byHandle.begin(); at != m_byHandle.end();) {
        at = std::is_sorted_until(at, m_byHandle.end(), hasLesserHandle);
        ends.push_back(at);
    }
    while (ends.size() > 1) {
        std::vector<Place> merged;
        Place begin = m_byHandle.begin();
        for (std::size_t i = 0; i < ends.size(); i += 2) {
            const bool isAlone = i + 1 == ends.size();
            const Place end = isAlone ? ends[i] : ends[i + 1];
            if (!isAlone)
                mergeRuns(begin, ends[i], end);
            merged.push_back(end);
            begin = end;
        }
        ends.swap(merged);
    }
    m_handlesAreSorted = true;
}

KdErrorStatus KdDbDatabase::getObjectId(KdDbObjectId& id, KdDbHandle handle) const
{
    if (!m_handlesAreSorted)
        sortHandles();
    const auto found = std::lower_bound(
        m_byHandle.begin(), m_byHandle.end(), handle,
        [](const KdDbObject* object, KdDbHandle wanted) { return object->handle() < wanted; });
    if (found == m_byHandle.end() || (*found)->handle() != handle)
        return eKeyNotFound;
    id = (*found)->objectId();
    return eOk;
}
