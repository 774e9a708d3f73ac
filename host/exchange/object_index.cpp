#include "object_index.h"

#include <limits>

#include "group_values.h"
#include "proxy_object.h"

namespace dxf {

ObjectIndex::ObjectIndex(DrawingSource& source, ObjectMaker& maker)
    : m_source(source),
      m_maker(maker),
      m_classes(KdDbObject::desc(), KdDbProxyObject::desc(),
                {KdDbEntity::desc(), KdDbSymbolTable::desc(), KdDbSymbolTableRecord::desc()})
{
}

void ObjectIndex::read(RecordCursor& cursor)
{
    for (; !cursor.atSectionEnd(); cursor.report())
        readObject(cursor);
}

void ObjectIndex::readObject(RecordCursor& cursor)
{
    const std::uint64_t begin = cursor.offset();
    const ClassEntry& entry = m_classes.find(cursor.name());
    StatedHandle handle;
    KdDbHandle owner = 0;
    bool inApplicationGroup = false;
    while (cursor.nextInRecord() && cursor.group().code != 100) {
        const Group& group = cursor.group();
        if (group.code == 5)
            handle.take(group);
        else if (group.code == 102)
            inApplicationGroup = group.text.starts_with('{');
        else if (group.code == 330 && !inApplicationGroup && owner == 0)
            owner = looseHandleOf(group);
    }
    cursor.toRecord();
    KdDbObject* object =
        m_maker.make(entry.decide({}), handle, cursor.rangeFrom(begin, m_source.findings));
    m_pending.push_back({object, owner});
    if (!m_hasRoot && object->isKindOf(KdDbDictionary::desc())) {
        m_maker.builder().setNamedObjectsDictionary(object->objectId());
        m_hasRoot = true;
    }
    if (object->isKindOf(KdDbLayout::desc()))
        m_layouts.push_back(static_cast<const KdDbLayout*>(object));
}

void ObjectIndex::tie()
{
    for (const Pending& pending : m_pending) {
        KdDbObjectId owner;
        if (pending.owner == 0)
            continue;
        if (m_source.database.getObjectId(owner, pending.owner) == eOk)
            m_maker.builder().setOwner(*pending.object, owner);
        else
            m_maker.checkOwnerLater(
                {pending.owner, pending.object->source().offset, pending.object->handle()});
    }
    for (const KdDbLayout* layout : m_layouts)
        tieLayout(*layout);
    chooseActiveSheet();
}

void ObjectIndex::chooseActiveSheet()
{
    // The active layout's block has the plain name. Where it is missing, the first layout serves.
    KdDbDatabase& database = m_source.database;
    KdDbObjectId sheet;
    int least = std::numeric_limits<int>::max();
    if (database.table<KdDbBlockTable>().getIdAt(kPaperSpaceName, sheet) != eOk) {
        for (const KdDbLayout* layout : m_layouts) {
            const KdDbObjectId block = layout->getBlockTableRecordId();
            const bool isSheet = !block.isNull() && block != database.modelSpaceId();
            if (isSheet && layout->getTabOrder() < least) {
                least = layout->getTabOrder();
                sheet = block;
            }
        }
    }
    database.setActiveSheet(sheet);
}

void ObjectIndex::tieLayout(const KdDbLayout& layout)
{
    const OpenForRead<KdDbBlockTableRecord> block(layout.getBlockTableRecordId());
    if (!block)
        return;
    auto& members = m_maker.members<BlockMembers>(const_cast<KdDbBlockTableRecord&>(*block));
    if (members.layout.isNull())
        members.layout = layout.objectId();
}

} // namespace dxf
