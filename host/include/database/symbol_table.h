/// Symbol tables: named records in the order in which they were added.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <database/id_iterator.h>
#include <database/object.h>

struct KW_EXPORT SymbolTableRecordMembers : ObjectMembers
{
    KdString name;
    bool dependent = false; ///< belongs to an external reference
};

class KW_EXPORT KdDbSymbolTableRecord : public KdDbObject
{
    KD_RX_DECLARE(KdDbSymbolTableRecord)
    KD_DB_MEMBERS(SymbolTableRecordMembers)

    KdErrorStatus getName(KdString& name) const;
    const KdString& name() const { return data().name; }
    /// True for a record that comes from an external reference.
    bool isDependent() const { return data().dependent; }
};

class KdDbSymbolTable;

/// Walks a table's records in order. The table may be closed meanwhile.
class KW_EXPORT KdDbSymbolTableIterator : public KdDbIdIterator
{
  public:
    KdDbSymbolTableIterator(const KdDbSymbolTable& table, bool atBeginning, bool skipErased);

    KdErrorStatus getRecordId(KdDbObjectId& id) const { return currentId(id); }
};

/// Names are compared without case.
class KW_EXPORT KdDbSymbolTable : public KdDbObject
{
    KD_RX_DECLARE(KdDbSymbolTable)

    /// `eKeyNotFound` if there is no record of that name, `id` untouched.
    KdErrorStatus getIdAt(const wchar_t* name, KdDbObjectId& id) const;
    bool has(const wchar_t* name) const;
    std::size_t count() const { return m_records.size(); }
    const std::vector<KdDbObjectId>& recordIds() const { return m_records; }

    /// A new iterator, owned by the caller.
    KdErrorStatus newIterator(KdDbSymbolTableIterator*& iterator, bool atBeginning = true,
                              bool skipErased = true) const;

    /// Adds a record that already belongs to the database. A second record of one name stays
    /// reachable by id and by iteration alone, and the status is then `eDuplicateKey`. An erased
    /// record gives its name up to the new one.
    KdErrorStatus add(KdDbObjectId record, const KdString& name);

  private:
    std::vector<KdDbObjectId> m_records;
    std::unordered_map<KdString, KdDbObjectId, KdNameHash, KdNameEqual> m_byName;
};

/// A table whose records are of one class.
#define KD_DB_SYMBOL_TABLE(Table, RecordClass)                                                     \
    class KW_EXPORT Table : public KdDbSymbolTable                                                 \
    {                                                                                              \
        KD_RX_DECLARE(Table)                                                                       \
        using Record = RecordClass;                                                                \
    };
