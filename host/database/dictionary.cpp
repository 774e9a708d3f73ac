#include <database/dictionary.h>

#include <algorithm>
#include <unordered_map>

KD_RX_DEFINE(KdDbDictionary, KdDbObject, L"AcDbDictionary", L"DICTIONARY")
KD_RX_DEFINE(KdDbDictionaryWithDefault, KdDbDictionary, L"AcDbDictionaryWithDefault",
             L"ACDBDICTIONARYWDFLT")
KD_RX_DEFINE(KdDbPlaceHolder, KdDbObject, L"AcDbPlaceHolder", L"ACDBPLACEHOLDER")

namespace {

using Entry = DictionaryMembers::Entry;

// Most dictionaries extend one entity and hold an entry or two, which are found faster in a row.
constexpr std::size_t kMostInRow = 16;

} // namespace

/// Finds the entries of a dictionary by name and by id. Of several alike the first counts.
class KdDbDictionaryIndex
{
  public:
    explicit KdDbDictionaryIndex(const std::vector<Entry>& entries)
        : m_first(entries.data()), m_count(entries.size())
    {
        m_byName.reserve(m_count);
        m_byId.reserve(m_count);
        for (const Entry& entry : entries) {
            m_byName.try_emplace(entry.name, &entry);
            m_byId.try_emplace(entry.id, &entry);
        }
    }

    /// False after entries were added or taken away.
    bool describes(const std::vector<Entry>& entries) const
    {
        return entries.data() == m_first && entries.size() == m_count;
    }

    const Entry* findName(std::wstring_view name) const { return find(m_byName, name); }
    const Entry* findId(KdDbObjectId id) const { return find(m_byId, id); }

  private:
    template <class Map, class Key>
    static const Entry* find(const Map& map, const Key& key)
    {
        const auto found = map.find(key);
        return found == map.end() ? nullptr : found->second;
    }

    const Entry* m_first;
    std::size_t m_count;
    std::unordered_map<KdString, const Entry*, KdNameHash, KdNameEqual> m_byName;
    std::unordered_map<KdDbObjectId, const Entry*> m_byId;
};

KdDbDictionary::KdDbDictionary() = default;
KdDbDictionary::~KdDbDictionary() = default;

DictionaryMembers& KdDbDictionary::edit()
{
    m_index.reset();
    return static_cast<DictionaryMembers&>(editMembers());
}

const KdDbDictionaryIndex* KdDbDictionary::index() const
{
    // While the dictionary is open for write, its entries may change under the index.
    if (numEntries() <= kMostInRow || isWriteEnabled())
        return nullptr;
    if (!m_index || !m_index->describes(entries()))
        m_index = std::make_unique<KdDbDictionaryIndex>(entries());
    return m_index.get();
}

const Entry* KdDbDictionary::findName(std::wstring_view name) const
{
    if (const KdDbDictionaryIndex* known = index())
        return known->findName(name);
    const KdNameEqual sameName;
    const auto found = std::find_if(entries().begin(), entries().end(),
                                    [&](const Entry& entry) { return sameName(entry.name, name); });
    return found == entries().end() ? nullptr : &*found;
}

const Entry* KdDbDictionary::findId(KdDbObjectId id) const
{
    if (const KdDbDictionaryIndex* known = index())
        return known->findId(id);
    const auto found = std::find_if(entries().begin(), entries().end(),
                                    [=](const Entry& entry) { return entry.id == id; });
    return found == entries().end() ? nullptr : &*found;
}

KdErrorStatus KdDbDictionary::getAt(const wchar_t* name, KdDbObjectId& id) const
{
    const Entry* entry = name ? findName(name) : nullptr;
    if (!entry)
        return eKeyNotFound;
    id = entry->id;
    return eOk;
}

KdErrorStatus KdDbDictionary::nameAt(KdDbObjectId id, KdString& name) const
{
    const Entry* entry = id.isNull() ? nullptr : findId(id);
    if (!entry)
        return eKeyNotFound;
    name = entry->name;
    return eOk;
}

KdErrorStatus KdDbDictionary::setAt(const KdString& name, KdDbObjectId id)
{
    if (!isWriteEnabled())
        return eNotOpenForWrite;
    auto& all = edit().entries;
    if (const Entry* entry = findName(name))
        all[static_cast<std::size_t>(entry - all.data())].id = id;
    else
        all.push_back({name, id});
    return eOk;
}

KdDbDictionaryIterator* KdDbDictionary::newIterator() const
{
    return new KdDbDictionaryIterator(*this);
}

KdDbObjectId kddbDictionaryEntry(KdDbObjectId dictionary, const wchar_t* name)
{
    KdDbObjectId found;
    if (!dictionary.isKindOf(KdDbDictionary::desc()))
        return found;
    if (const OpenForRead<KdDbDictionary> opened(dictionary); opened)
        opened->getAt(name, found);
    return found;
}

KdDbObjectId kddbExtensionEntry(const KdDbObject& object, const wchar_t* name)
{
    return kddbDictionaryEntry(object.extensionDictionary(), name);
}
