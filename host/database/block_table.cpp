#include <database/block_table.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbBlockTable, KdDbSymbolTable, L"AcDbBlockTable", L"TABLE")
KD_RX_DEFINE(KdDbBlockTableRecord, KdDbSymbolTableRecord, L"AcDbBlockTableRecord", L"BLOCK_RECORD")

KdErrorStatus KdDbBlockTableRecord::appendEntity(KdDbEntity* entity)
{
    if (!entity)
        return eNullObjectPointer;
    if (!database())
        return eNotInDatabase;
    const KdErrorStatus status = database()->addObject(entity, objectId());
    if (status != eOk)
        return status;
    adopt(entity->objectId());
    if (entity->layerId().isNull()) {
        const KdString current = database()->header().text(L"CLAYER");
        entity->setLayer(database()->findOrAddRecord<KdDbLayerTable>(current));
    }
    return eOk;
}

bool KdDbBlockTableRecord::hasAttributeDefinitions() const
{
    static const KdRxClass* const definitions = kdrxFindKdRxClass(L"AcDbAttributeDefinition");
    std::size_t& place = m_attributeDefinitionSearch;
    while (place < m_entities.size() &&
           (m_entities[place].isErased() || !m_entities[place].isKindOf(definitions)))
        ++place;
    return place < m_entities.size();
}

KdErrorStatus KdDbBlockTableRecord::newIterator(KdDbBlockTableRecordIterator*& iterator,
                                                bool atBeginning, bool skipErased) const
{
    iterator = new KdDbBlockTableRecordIterator(*this, atBeginning, skipErased);
    return eOk;
}

KdDbBlockTableRecordIterator::KdDbBlockTableRecordIterator(const KdDbBlockTableRecord& block,
                                                           bool atBeginning, bool skipErased)
    : KdDbIdIterator(block.entityIds(), atBeginning, skipErased)
{
}

KdErrorStatus KdDbBlockTableRecordIterator::getEntity(KdDbEntity*& entity, KdDb::OpenMode mode,
                                                      bool openErased) const
{
    KdDbObjectId id;
    const KdErrorStatus status = getEntityId(id);
    return status == eOk ? kddbOpenObject(entity, id, mode, openErased) : status;
}
