#include <database/database.h>

#include <cassert>

#include <database/dimension_style.h>

KdDbObject* KdDbDatabaseBuilder::make(const KdRxClass* rxClass, KdDbHandle handle,
                                      SourceRange source)
{
    const KdRxFactory& factory = rxClass->factory();
    assert(factory.construct && rxClass->isDerivedFrom(KdDbObject::desc()));
    void* storage = m_database.m_arena.allocate(factory.size, alignof(std::max_align_t));
    auto* object = static_cast<KdDbObject*>(factory.construct(storage));
    object->m_inArena = true;
    object->m_handle = handle;
    object->m_sourceOffset = source.offset;
    object->m_sourceLength = source.length;
    m_database.own(*object);
    if (handle != 0)
        m_database.noteHandle(*object);
    return object;
}

void KdDbDatabaseBuilder::setOwner(KdDbObject& object, KdDbObjectId owner)
{
    object.m_owner = owner;
}

void KdDbDatabaseBuilder::setHandle(KdDbObject& object, KdDbHandle handle)
{
    assert(object.m_handle == 0 && handle != 0);
    object.m_handle = handle;
    m_database.noteHandle(object);
}

void KdDbDatabaseBuilder::setSourceRange(KdDbObject& object, SourceRange source)
{
    object.m_sourceOffset = source.offset;
    object.m_sourceLength = source.length;
}

void KdDbDatabaseBuilder::setNamedObjectsDictionary(KdDbObjectId id)
{
    m_database.m_namedObjects = id;
}

void KdDbDatabaseBuilder::setSource(std::unique_ptr<KdDbMemberSource> source)
{
    m_database.m_source = std::move(source);
}

void KdDbDatabaseBuilder::reserve(std::size_t objects)
{
    m_database.m_objects.reserve(objects);
    m_database.m_byHandle.reserve(objects);
}

ObjectMembers& KdDbDatabaseBuilder::membersForFilling(KdDbObject& object)
{
    if (!object.m_members)
        object.m_members = object.makeMembers(object.m_inArena ? &m_database.m_arena : nullptr);
    return *object.m_members;
}

KdDbArena& KdDbDatabaseBuilder::addArena()
{
    return *m_database.m_moreArenas.emplace_back(std::make_unique<KdDbArena>());
}

template <class T>
T& KdDbDatabaseBuilder::findOrAddEntry(KdDbDictionary& dictionary, const wchar_t* name)
{
    KdDbObjectId id;
    T* existing = nullptr;
    if (dictionary.getAt(name, id) == eOk && kddbOpenObject(existing, id) == eOk) {
        existing->close();
        return *existing;
    }
    auto* added = new T;
    m_database.addObject(added, dictionary.objectId());
    enter(dictionary, name, added->objectId());
    return *added;
}

void KdDbDatabaseBuilder::enter(KdDbDictionary& dictionary, const wchar_t* name, KdDbObjectId id)
{
    dictionary.m_writer = true;
    dictionary.setAt(name, id);
    dictionary.m_writer = false;
}

KdDbDictionary& KdDbDatabaseBuilder::namedObjects()
{
    KdDbDictionary* named = nullptr;
    if (kddbOpenObject(named, m_database.m_namedObjects) == eOk) {
        named->close();
        return *named;
    }
    named = new KdDbDictionary;
    m_database.addObject(named, {});
    m_database.m_namedObjects = named->objectId();
    return *named;
}

void KdDbDatabaseBuilder::addStandardRecords()
{
    m_database.findOrAddRecord<KdDbLayerTable>(L"0");
    for (const wchar_t* name : {L"ByBlock", L"ByLayer", L"Continuous"})
        m_database.findOrAddRecord<KdDbLinetypeTable>(name);
    m_database.findOrAddRecord<KdDbTextStyleTable>(L"Standard");
    m_database.findOrAddRecord<KdDbDimStyleTable>(L"Standard");
    m_database.findOrAddRecord<KdDbRegAppTable>(L"ACAD");
}

void KdDbDatabaseBuilder::addLayout(KdDbDictionary& layouts, const wchar_t* blockName,
                                    const wchar_t* layoutName, int tabOrder)
{
    KdDbBlockTableRecord* block = nullptr;
    if (kddbOpenObject(block, m_database.findOrAddRecord<KdDbBlockTable>(blockName)) != eOk)
        return;
    if (!block->isLayout()) {
        auto& layout = findOrAddEntry<KdDbLayout>(layouts, layoutName);
        const bool isNew = layout.getLayoutName().isEmpty();
        auto& members = static_cast<LayoutMembers&>(membersForFilling(layout));
        if (isNew) {
            members.name = layoutName;
            members.tabOrder = tabOrder;
        }
        if (members.block.isNull())
            members.block = block->objectId();
        static_cast<BlockMembers&>(membersForFilling(*block)).layout = layout.objectId();
    }
    block->close();
}

void KdDbDatabaseBuilder::addPlotStyles(KdDbDictionary& named)
{
    KdDbObjectId existing;
    if (named.getAt(L"ACAD_PLOTSTYLENAME", existing) == eOk)
        return;
    auto* normal = new KdDbPlaceHolder;
    auto* styles = new KdDbDictionaryWithDefault;
    m_database.addObject(styles, named.objectId());
    m_database.addObject(normal, styles->objectId());
    auto& members = static_cast<DictionaryMembers&>(membersForFilling(*styles));
    members.defaultId = normal->objectId();
    members.entries.push_back({L"Normal", normal->objectId()});
    enter(named, L"ACAD_PLOTSTYLENAME", styles->objectId());
}

void KdDbDatabaseBuilder::finish()
{
    // The objects that follow come after those without a handle.
    std::size_t without = m_database.m_objects.size() - m_database.m_byHandle.size();
    for (std::size_t i = 0; without > 0; ++i) {
        KdDbObject& object = *m_database.m_objects[i];
        if (object.m_handle == 0) {
            --without;
            object.m_handle = m_database.m_nextHandle++;
            m_database.noteHandle(object);
        }
    }
    addStandardRecords();
    KdDbDictionary& named = namedObjects();
    KdDbDictionary& layouts = findOrAddEntry<KdDbDictionary>(named, L"ACAD_LAYOUT");
    addLayout(layouts, kModelSpaceName, L"Model", 0);
    addLayout(layouts, kPaperSpaceName, L"Layout1", 1);
    addPlotStyles(named);
}
