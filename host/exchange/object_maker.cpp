#include "object_maker.h"

#include <string>

#include "group_values.h"

namespace dxf {

void StatedHandle::take(const Group& group)
{
    // Larger ones are damage, and would leave no room for handles above all others.
    constexpr KdDbHandle kMost = KdDbHandle{1} << 60;
    if (isThere)
        return;
    isThere = true;
    value = looseHandleOf(group);
    value = value < kMost ? value : 0;
}

KdDbObject* ObjectMaker::make(const KdRxClass* rxClass, const StatedHandle& handle,
                              SourceRange range)
{
    return m_builder.make(rxClass, usable(handle, range), range);
}

KdDbHandle ObjectMaker::usable(const StatedHandle& handle, SourceRange range)
{
    constexpr int kFirstWithHandles = 1012; // before, a drawing may do without
    if (handle.value != 0) {
        if (m_handles.insert(handle.value))
            return handle.value;
        m_source.findings.add(DrawingFinding::HandleIsDoubled, range.offset, {}, handle.value);
    } else if (handle.isThere) {
        m_source.findings.add(DrawingFinding::HandleIsZero, range.offset);
    } else if (range.length > 0 && m_source.version >= kFirstWithHandles) {
        m_source.findings.add(DrawingFinding::HandleIsMissing, range.offset);
    }
    return 0;
}

void ObjectMaker::identify(KdDbObject& object, const StatedHandle& handle, SourceRange range)
{
    m_builder.setSourceRange(object, range);
    if (const KdDbHandle used = usable(handle, range))
        m_builder.setHandle(object, used);
}

KdDbSymbolTableRecord* ObjectMaker::find(const KdDbSymbolTable& table, const KdString& name) const
{
    KdDbObjectId id;
    KdDbSymbolTableRecord* record = nullptr;
    if (table.getIdAt(name.kwszPtr(), id) == eOk && kddbOpenObject(record, id) == eOk)
        record->close();
    return record;
}

KdDbSymbolTableRecord* ObjectMaker::add(KdDbSymbolTable& table, const KdRxClass* recordClass,
                                        const KdString& name, const StatedHandle& handle,
                                        SourceRange range)
{
    auto* record = static_cast<KdDbSymbolTableRecord*>(make(recordClass, handle, range));
    members<SymbolTableRecordMembers>(*record).name = name;
    m_builder.setOwner(*record, table.objectId());
    table.add(record->objectId(), name);
    return record;
}

KdDbSymbolTableRecord* ObjectMaker::define(KdDbSymbolTable& table, const KdRxClass* recordClass,
                                           const KdString& name, const StatedHandle& handle,
                                           SourceRange range)
{
    KdDbSymbolTableRecord* existing = find(table, name);
    if (existing && m_undefined.erase(existing) > 0) {
        identify(*existing, handle, range);
        return existing;
    }
    // The active views all have one name, and shape files none.
    const bool mayRepeat = name.isEmpty() || recordClass == KdDbViewportTableRecord::desc();
    if (existing && !mayRepeat)
        m_source.findings.add(DrawingFinding::DoubledName, range.offset, name, handle.value);
    return add(table, recordClass, name, handle, range);
}

KdDbSymbolTableRecord* ObjectMaker::findOrMake(KdDbSymbolTable& table, const KdRxClass* recordClass,
                                               const KdString& name)
{
    KdDbSymbolTableRecord* record = find(table, name);
    if (!record) {
        record = add(table, recordClass, name, {}, {});
        m_undefined.insert(record);
    }
    return record;
}

void ObjectMaker::noteMissingOwners()
{
    for (const StatedOwner& stated : m_statedOwners) {
        KdDbObjectId owner;
        if (m_source.database.getObjectId(owner, stated.owner) != eOk)
            m_source.findings.add(DrawingFinding::OwnerIsMissing, stated.offset, {}, stated.handle);
    }
}

KdString ObjectMaker::freeName(const KdDbSymbolTable& table)
{
    KdString name;
    do
        name = KdString(L"Unnamed" + std::to_wstring(++m_namesGiven));
    while (table.has(name.kwszPtr()));
    return name;
}

} // namespace dxf
