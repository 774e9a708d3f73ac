/// Dictionaries: named objects in order.
#pragma once

#include <memory>
#include <vector>

#include <database/object.h>

class KdDbDictionaryIndex;
class KdDbDictionaryIterator;

struct KW_EXPORT DictionaryMembers : ObjectMembers
{
    struct Entry
    {
        KdString name;
        KdDbObjectId id;
    };
    std::vector<Entry> entries;
    KdDbObjectId defaultId; ///< for a dictionary with a default
};

/// Keys are compared without case.
class KW_EXPORT KdDbDictionary : public KdDbObject
{
    KD_RX_DECLARE(KdDbDictionary)
    KD_DB_MEMBERS_TO_READ(DictionaryMembers)

    KdDbDictionary();
    ~KdDbDictionary() override;

    DictionaryMembers& edit();

    std::size_t numEntries() const { return data().entries.size(); }
    const std::vector<DictionaryMembers::Entry>& entries() const { return data().entries; }
    /// `eKeyNotFound` if there is no such key, `id` untouched.
    KdErrorStatus getAt(const wchar_t* name, KdDbObjectId& id) const;
    /// The key under which an object stands; `eKeyNotFound` if it does not.
    KdErrorStatus nameAt(KdDbObjectId id, KdString& name) const;
    /// Enters an object of the database, or replaces what stands under the key. The dictionary
    /// must be open for write.
    KdErrorStatus setAt(const KdString& name, KdDbObjectId id);
    /// A new iterator in the dictionary's order, owned by the caller.
    KdDbDictionaryIterator* newIterator() const;

  private:
    const KdDbDictionaryIndex* index() const;
    const DictionaryMembers::Entry* findName(std::wstring_view name) const;
    const DictionaryMembers::Entry* findId(KdDbObjectId id) const;

    /// Of large dictionaries alone, and made when something is first looked up.
    mutable std::unique_ptr<KdDbDictionaryIndex> m_index;
};

/// The object under a key of a dictionary; the null id if there is no such dictionary or key.
KW_EXPORT KdDbObjectId kddbDictionaryEntry(KdDbObjectId dictionary, const wchar_t* name);
/// The object under a key of the dictionary that extends `object`, in the same way.
KW_EXPORT KdDbObjectId kddbExtensionEntry(const KdDbObject& object, const wchar_t* name);

class KW_EXPORT KdDbDictionaryWithDefault : public KdDbDictionary
{
    KD_RX_DECLARE(KdDbDictionaryWithDefault)

    KdDbObjectId defaultId() const { return data().defaultId; }
};

/// Walks the entries of a dictionary, which must not change meanwhile.
class KW_EXPORT KdDbDictionaryIterator
{
  public:
    explicit KdDbDictionaryIterator(const KdDbDictionary& dictionary)
        : m_entries(dictionary.entries())
    {
    }
    bool done() const { return m_index >= m_entries.size(); }
    void next() { ++m_index; }
    const KdString& name() const { return m_entries[m_index].name; }
    KdDbObjectId objectId() const { return m_entries[m_index].id; }

  private:
    const std::vector<DictionaryMembers::Entry>& m_entries;
    std::size_t m_index = 0;
};

/// Stands for a named plot style.
class KW_EXPORT KdDbPlaceHolder : public KdDbObject
{
    KD_RX_DECLARE(KdDbPlaceHolder)
};
