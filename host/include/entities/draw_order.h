/// The order in which entities lie over each other.
#pragma once

#include <vector>

#include <database/block_table.h>

struct KW_EXPORT SortentsTableMembers : ObjectMembers
{
    struct Entry
    {
        KdDbObjectId entity;
        KdDbHandle sortHandle = 0; ///< takes the place of the entity's own handle
    };
    std::vector<Entry> entries;
};

/// Stands in the extension dictionary of a block whose entities are not drawn in the order of their
/// handles.
class KW_EXPORT KdDbSortentsTable : public KdDbObject
{
    KD_RX_DECLARE(KdDbSortentsTable)
    KD_DB_MEMBERS(SortentsTableMembers)

    const std::vector<SortentsTableMembers::Entry>& entries() const { return data().entries; }
};

/// The entities of a block, the lowest first.
KW_EXPORT std::vector<KdDbObjectId> kddbDrawOrder(const KdDbBlockTableRecord& block);
