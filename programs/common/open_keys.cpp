#include <common/open_keys.h>

#include <set>

#include <entities/attribute.h>
#include <entities/dyn_block_reference.h>
#include <platform/resources.h>

namespace {

constexpr unsigned int kAttributeCategory = 77571;
constexpr unsigned int kDynamicCategory = 77676;

/// The category by which the module knows such keys, in the language of its texts.
std::wstring category(unsigned int id)
{
    constexpr int kLongest = 64;
    wchar_t text[kLongest] = {};
    LoadStringW(LoadResourceDll(L"KwQselectUtilRes.dll"), id, text, kLongest);
    return text;
}

/// Asks the references of a type, one after the other, for keys that are new.
class Collector
{
  public:
    Collector(const Module& module, std::vector<PropertyEntry>& properties)
        : m_module(module), m_properties(properties)
    {
    }

    void take(KdDbObjectId id)
    {
        const OpenForRead<KdDbBlockReference> reference(id);
        if (reference)
            take(*reference);
    }

  private:
    void take(const KdDbBlockReference& reference)
    {
        const auto attributes = reference.attributeIterator();
        for (; !attributes->done(); attributes->step()) {
            if (const OpenForRead<KdDbAttribute> attribute(attributes->objectId()); attribute)
                add(reference, m_attributes, attribute->tag());
        }
        KdDbDynBlockReferencePropertyArray dynamic;
        KdDbDynBlockReference(reference).getBlockProperties(dynamic);
        for (int i = 0; i < dynamic.length(); ++i) {
            if (dynamic[i].show())
                add(reference, m_dynamics, dynamic[i].propertyName());
        }
    }

    void add(const KdDbBlockReference& reference, const std::wstring& prefix, const KdString& name)
    {
        const std::wstring key = prefix + name.kwszPtr();
        if (m_seen.contains(key))
            return;
        PropertyEntry property = propertyOf(m_module, reference.objectId(), key);
        if (property.values.empty()) // this one does not have it, another may
            return;
        m_seen.insert(key);
        m_properties.push_back(std::move(property));
    }

    const Module& m_module;
    std::vector<PropertyEntry>& m_properties;
    const std::wstring m_attributes = category(kAttributeCategory) + L":";
    const std::wstring m_dynamics = category(kDynamicCategory) + L":";
    std::set<std::wstring> m_seen;
};

struct TypeSearch
{
    const TypeEntry& type;
    Collector& collector;
};

void takeIfOfType(void* context, const quick_select::Entity& entity)
{
    auto& search = *static_cast<TypeSearch*>(context);
    if (search.type.className == entity.className && search.type.displayName == entity.displayName)
        search.collector.take(entity.id);
}

} // namespace

void appendOpenKeys(const Module& module, const TypeEntry& type,
                    std::vector<PropertyEntry>& properties)
{
    if (!type.example.isKindOf(KdDbBlockReference::desc()))
        return;
    Collector collector(module, properties);
    TypeSearch search{type, collector};
    module.listEntities(nullptr, takeIfOfType, &search);
}

void appendOpenKeysOf(const Module& module, KdDbObjectId entity,
                      std::vector<PropertyEntry>& properties)
{
    if (entity.isKindOf(KdDbBlockReference::desc()))
        Collector(module, properties).take(entity);
}
