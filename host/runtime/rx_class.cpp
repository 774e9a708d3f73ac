#include <runtime/rx_class.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <unordered_map>

#include <runtime/utf8.h>

/// Knows the classes by name. Retired descriptors stay in memory and serve again when a class of
/// their name comes back.
class KdRxClassRegistry
{
  public:
    static KdRxClassRegistry& instance()
    {
        // Never destroyed: objects with runtime classes may outlive every static.
        static auto* const registry = new KdRxClassRegistry;
        return *registry;
    }

    KdRxClass* find(const std::wstring& name) const
    {
        const auto found = m_byName.find(name);
        return found != m_byName.end() && found->second.registered ? found->second.rxClass.get()
                                                                   : nullptr;
    }

    /// Null if `parent` derives from the retired class of that name, which would be a circle.
    KdRxClass* add(const std::wstring& name, KdRxClass* parent, bool ofPlatform)
    {
        Entry& entry = m_byName[name];
        if (!entry.rxClass)
            entry.rxClass.reset(new KdRxClass);
        KdRxClass* rxClass = entry.rxClass.get();
        if (parent && parent->isDerivedFrom(rxClass))
            return nullptr;
        // A library that is loaded again defines its classes again.
        if (!entry.registered)
            m_inOrder.push_back(rxClass);
        entry.registered = true;
        entry.ofPlatform = ofPlatform;
        rxClass->m_name = name;
        rxClass->m_parent = parent;
        extensionsChanged();
        return rxClass;
    }

    void remove(KdRxClass* rxClass)
    {
        const auto found = m_byName.find(rxClass->m_name);
        if (found == m_byName.end() || found->second.rxClass.get() != rxClass ||
            !found->second.registered || found->second.ofPlatform)
            return;
        found->second.registered = false;
        rxClass->m_own.clear();
        std::erase(m_inOrder, rxClass);
        for (KdRxClass* other : m_inOrder)
            other->delX(rxClass);
        extensionsChanged();
    }

    const std::vector<KdRxClass*>& inOrder() const { return m_inOrder; }

    unsigned long long extensionsState() const { return m_extensionsState; }
    void extensionsChanged() { ++m_extensionsState; }

    static void setDetails(KdRxClass& rxClass, const wchar_t* dxfName, const wchar_t* appName,
                           int proxyFlags, KdRxObject* (*pseudoConstructor)(),
                           const KdRxFactory& factory)
    {
        rxClass.m_dxfName = dxfName ? dxfName : L"";
        rxClass.m_appName = appName ? appName : L"";
        rxClass.m_proxyFlags = proxyFlags;
        rxClass.m_pseudoConstructor = pseudoConstructor;
        rxClass.m_factory = factory;
    }

  private:
    struct Entry
    {
        std::unique_ptr<KdRxClass> rxClass;
        bool registered = false;
        bool ofPlatform = false;
    };

    std::unordered_map<std::wstring, Entry> m_byName;
    std::vector<KdRxClass*> m_inOrder;
    unsigned long long m_extensionsState = 1;
};

KD_RX_DEFINE_ABSTRACT(KdRxClass, KdRxObject, L"KdRxClass")

KdRxClass* KdRxClass::isA() const
{
    return desc();
}

KdRxObject* KdRxClass::create() const
{
    if (m_pseudoConstructor)
        return m_pseudoConstructor();
    if (m_factory.construct)
        return m_factory.construct(::operator new(m_factory.size));
    return nullptr;
}

namespace {

template <class Extensions>
auto findExtension(Extensions& extensions, const KdRxClass* protocol)
{
    return std::find_if(extensions.begin(), extensions.end(),
                        [=](const auto& extension) { return extension.protocol == protocol; });
}

} // namespace

KdRxObject* KdRxClass::addX(const KdRxClass* protocol, KdRxObject* extension)
{
    KdRxObject* previous = delX(protocol);
    m_own.push_back({protocol, extension});
    return previous;
}

KdRxObject* KdRxClass::delX(const KdRxClass* protocol)
{
    KdRxClassRegistry::instance().extensionsChanged();
    const auto found = findExtension(m_own, protocol);
    if (found == m_own.end())
        return nullptr;
    KdRxObject* previous = found->object;
    m_own.erase(found);
    return previous;
}

KdRxObject* KdRxClass::getX(const KdRxClass* protocol) const
{
    const auto found = findExtension(m_own, protocol);
    return found == m_own.end() ? nullptr : found->object;
}

KdRxObject* KdRxClass::queryX(const KdRxClass* protocol) const
{
    const unsigned long long state = KdRxClassRegistry::instance().extensionsState();
    if (m_rememberedAt != state) {
        m_remembered.clear();
        m_rememberedAt = state;
    }
    const auto found = findExtension(m_remembered, protocol);
    if (found != m_remembered.end())
        return found->object;
    return m_remembered.emplace_back(Extension{protocol, findInherited(protocol)}).object;
}

KdRxObject* KdRxClass::findInherited(const KdRxClass* protocol) const
{
    for (const KdRxClass* current = this; current; current = current->m_parent) {
        if (KdRxObject* extension = current->getX(protocol))
            return extension;
    }
    return nullptr;
}

KdRxClass* newKdRxClass(const wchar_t* name, const wchar_t* parentName, int proxyFlags,
                        KdRxObject* (*pseudoConstructor)(), const wchar_t* dxfName,
                        const wchar_t* appName)
{
    KdRxClass* parent = kdrxFindKdRxClass(parentName);
    if (!name || !*name || !parent)
        return nullptr;
    if (KdRxClass* existing = kdrxFindKdRxClass(name))
        return existing;
    KdRxClass* rxClass = KdRxClassRegistry::instance().add(name, parent, false);
    if (!rxClass)
        return nullptr;
    KdRxClassRegistry::setDetails(*rxClass, dxfName, appName, proxyFlags, pseudoConstructor, {});
    return rxClass;
}

KdRxClass* kdrxFindKdRxClass(const wchar_t* name)
{
    return name ? KdRxClassRegistry::instance().find(name) : nullptr;
}

void deleteKdRxClass(KdRxClass* rxClass)
{
    if (rxClass)
        KdRxClassRegistry::instance().remove(rxClass);
}

std::vector<KdRxClass*> kdrxAllClasses()
{
    return KdRxClassRegistry::instance().inOrder();
}

void kdrx_abort(const wchar_t* message)
{
    // Not as wide text: that fails for characters which the locale of the process lacks.
    std::fprintf(stderr, "%s\n", kdToUtf8(message ? message : L"").c_str());
    std::fflush(stderr);
    std::abort();
}

KdRxClass* kdrx::definePlatformClass(const ClassDefinition& definition)
{
    KdRxClassRegistry& registry = KdRxClassRegistry::instance();
    KdRxClass* rxClass = registry.add(definition.name, definition.parent, true);
    KdRxClassRegistry::setDetails(*rxClass, definition.dxfName, nullptr, 0, nullptr,
                                  definition.factory);
    return rxClass;
}
