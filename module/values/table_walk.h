/// Walking the records of a symbol table, as value lists do.
#pragma once

#include <memory>

#include <database/database.h>

/// What becomes of records that come from external references.
enum class Dependents
{
    Skip,
    Visit,
};

/// Whether a walk goes on.
enum class Walk
{
    Continue,
    Stop,
};

/// An iterator over the records of a table that are not erased, with the table closed again; null
/// if there is no database, or the table cannot be opened or walked.
template <class Table>
std::unique_ptr<KdDbSymbolTableIterator> recordsOf(KdDbDatabase* database)
{
    Table* table = nullptr;
    if (!database || database->getSymbolTable(table, KdDb::kForRead) != eOk)
        return nullptr;
    KdDbSymbolTableIterator* iterator = nullptr;
    table->newIterator(iterator, true, true);
    table->close();
    return std::unique_ptr<KdDbSymbolTableIterator>(iterator);
}

/// Calls `visit(record)`, which returns a `Walk`, for each record of a table in its order. The
/// record is open for read during the call and closed before the next one. Records that cannot be
/// opened are passed over.
/// @return false, with nothing visited, where `recordsOf` gives null
template <class Table, class Visit>
bool walkRecords(KdDbDatabase* database, Dependents dependents, Visit visit)
{
    const auto iterator = recordsOf<Table>(database);
    if (!iterator)
        return false;
    for (; !iterator->done(); iterator->step()) {
        KdDbObjectId id;
        iterator->getRecordId(id);
        const OpenForRead<typename Table::Record> record(id);
        if (!record || (dependents == Dependents::Skip && record->isDependent()))
            continue;
        if (visit(*record) == Walk::Stop)
            break;
    }
    return true;
}
