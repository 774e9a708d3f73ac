#include <entities/draw_order.h>

#include <algorithm>
#include <unordered_map>
#include <utility>

#include <database/dictionary.h>

KD_RX_DEFINE(KdDbSortentsTable, KdDbObject, L"AcDbSortentsTable", L"SORTENTSTABLE")

std::vector<KdDbObjectId> kddbDrawOrder(const KdDbBlockTableRecord& block)
{
    const KdDbObjectId tableId = kddbExtensionEntry(block, L"ACAD_SORTENTS");
    if (!tableId.isKindOf(KdDbSortentsTable::desc()))
        return block.entityIds();
    const OpenForRead<KdDbSortentsTable> table(tableId);
    if (!table || table->entries().empty())
        return block.entityIds();

    std::unordered_map<KdDbObjectId, KdDbHandle> handles;
    for (const SortentsTableMembers::Entry& entry : table->entries())
        handles[entry.entity] = entry.sortHandle;
    std::vector<std::pair<KdDbHandle, KdDbObjectId>> keyed;
    for (const KdDbObjectId id : block.entityIds()) {
        const auto given = handles.find(id);
        keyed.emplace_back(given == handles.end() ? id.handle() : given->second, id);
    }
    std::ranges::stable_sort(keyed, {}, &std::pair<KdDbHandle, KdDbObjectId>::first);
    std::vector<KdDbObjectId> ids;
    for (const auto& [handle, id] : keyed)
        ids.push_back(id);
    return ids;
}
