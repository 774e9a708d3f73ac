#include <database/symbol_table.h>

KD_RX_DEFINE_ABSTRACT(KdDbSymbolTableRecord, KdDbObject, L"AcDbSymbolTableRecord")
KD_RX_DEFINE_ABSTRACT(KdDbSymbolTable, KdDbObject, L"AcDbSymbolTable")

KdErrorStatus KdDbSymbolTableRecord::getName(KdString& name) const
{
    name = data().name;
    return eOk;
}

KdDbSymbolTableIterator::KdDbSymbolTableIterator(const KdDbSymbolTable& table, bool atBeginning,
                                                 bool skipErased)
    : KdDbIdIterator(table.recordIds(), atBeginning, skipErased)
{
}

KdErrorStatus KdDbSymbolTable::getIdAt(const wchar_t* name, KdDbObjectId& id) const
{
    const auto found = name ? m_byName.find(std::wstring_view(name)) : m_byName.end();
    if (found == m_byName.end() || found->second.isErased())
        return eKeyNotFound;
    id = found->second;
    return eOk;
}

bool KdDbSymbolTable::has(const wchar_t* name) const
{
    KdDbObjectId id;
    return getIdAt(name, id) == eOk;
}

KdErrorStatus KdDbSymbolTable::newIterator(KdDbSymbolTableIterator*& iterator, bool atBeginning,
                                           bool skipErased) const
{
    iterator = new KdDbSymbolTableIterator(*this, atBeginning, skipErased);
    return eOk;
}

KdErrorStatus KdDbSymbolTable::add(KdDbObjectId record, const KdString& name)
{
    m_records.push_back(record);
    const auto [holder, isNew] = m_byName.try_emplace(name, record);
    if (!isNew && !holder->second.isErased())
        return eDuplicateKey;
    holder->second = record;
    return eOk;
}
