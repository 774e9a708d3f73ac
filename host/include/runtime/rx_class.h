/// Runtime classes: names, inheritance, making objects by class, protocol extensions.
#pragma once

#include <cstddef>
#include <new>
#include <string>
#include <string_view>
#include <vector>

#include <runtime/rx_object.h>

/// How objects of a class are made. `construct` builds one in `size` bytes of suitable storage.
struct KdRxFactory
{
    std::size_t size = 0;
    KdRxObject* (*construct)(void* storage) = nullptr;
};

/// Describes one runtime class. Made by `newKdRxClass`, `KD_RX_DEFINE` and their like, and known by
/// name from then on. A descriptor stays in memory until the process ends, so that a pointer to it
/// never dangles; after `deleteKdRxClass` it is only not found by name any more.
class KW_EXPORT KdRxClass : public KdRxObject
{
  public:
    static KdRxClass* desc();
    KdRxClass* isA() const override;

    /// The class name used inside drawing files, such as "AcDbLine".
    const wchar_t* name() const { return m_name.c_str(); }
    /// The entity's name in DXF, such as "LINE"; empty where a class has none.
    const wchar_t* dxfName() const { return m_dxfName.c_str(); }
    /// The application that brought the class; empty for the platform's own.
    const wchar_t* appName() const { return m_appName.c_str(); }
    KdRxClass* myParent() const { return m_parent; }
    int proxyFlags() const { return m_proxyFlags; }

    /// True for the class itself and for everything below `ancestor`; false for null.
    bool isDerivedFrom(const KdRxClass* ancestor) const
    {
        const KdRxClass* current = this;
        while (current && current != ancestor)
            current = current->m_parent;
        return current && ancestor;
    }

    /// A new object of the class, owned by the caller; null for an abstract class.
    KdRxObject* create() const;
    /// How to build an object in storage of one's own; `construct` is null for a class without it.
    const KdRxFactory& factory() const { return m_factory; }

    /// Attaches `extension` (not owned) under `protocol`. Classes below inherit it unless they have
    /// one of their own. Returns what stood there before, or null.
    KdRxObject* addX(const KdRxClass* protocol, KdRxObject* extension);
    /// Takes the extension under `protocol` off this class and returns it, or null if there was
    /// none.
    KdRxObject* delX(const KdRxClass* protocol);
    /// The extension attached to this very class, or null.
    KdRxObject* getX(const KdRxClass* protocol) const;
    /// The extension of this class or of its nearest ancestor that has one, or null. Remembers the
    /// answer until any class gains or loses an extension, so it costs constant time when repeated.
    KdRxObject* queryX(const KdRxClass* protocol) const;

  private:
    friend class KdRxClassRegistry;
    struct Extension
    {
        const KdRxClass* protocol;
        KdRxObject* object;
    };

    KdRxClass() = default;
    KdRxObject* findInherited(const KdRxClass* protocol) const;

    std::wstring m_name;
    std::wstring m_dxfName;
    std::wstring m_appName;
    KdRxClass* m_parent = nullptr;
    int m_proxyFlags = 0;
    KdRxObject* (*m_pseudoConstructor)() = nullptr;
    KdRxFactory m_factory;
    std::vector<Extension> m_own;
    mutable std::vector<Extension> m_remembered;
    mutable unsigned long long m_rememberedAt = 0;
};

/// Registers a class. A null `dxfName` or `appName` counts as empty, a null `pseudoConstructor`
/// makes the class abstract. Returns the class already known under `name` if there is one, and null
/// if `name` is null or empty, no class is called `parentName`, or that class derives from a
/// deleted one of this very name.
KW_EXPORT KdRxClass* newKdRxClass(const wchar_t* name, const wchar_t* parentName, int proxyFlags,
                                  KdRxObject* (*pseudoConstructor)(), const wchar_t* dxfName,
                                  const wchar_t* appName);

/// The class of that name, compared exactly, or null.
KW_EXPORT KdRxClass* kdrxFindKdRxClass(const wchar_t* name);

/// Forgets a class made by `newKdRxClass`: it loses its extensions, no class answers through it as
/// a protocol any more, and its name is free. The platform's own classes and null are left alone.
KW_EXPORT void deleteKdRxClass(KdRxClass* rxClass);

/// All classes registered at the moment, in the order of their registration.
KW_EXPORT std::vector<KdRxClass*> kdrxAllClasses();

/// Ends the process with `message` on standard error: for faults that leave no way on.
[[noreturn]] KW_EXPORT void kdrx_abort(const wchar_t* message);

namespace kdrx {

/// What `KD_RX_DEFINE` tells of a class of the platform.
struct ClassDefinition
{
    const wchar_t* name;
    const wchar_t* dxfName;
    KdRxClass* parent;
    KdRxFactory factory;
};
KW_EXPORT KdRxClass* definePlatformClass(const ClassDefinition& definition);

template <class T>
constexpr KdRxFactory factoryOf()
{
    return {sizeof(T), [](void* storage) -> KdRxObject* { return new (storage) T; }};
}

} // namespace kdrx

/// Inside a class: declares `desc()` and `isA()`. Leaves the access level at public.
#define KD_RX_DECLARE(Class)                                                                       \
  public:                                                                                          \
    static KdRxClass* desc();                                                                      \
    KdRxClass* isA() const override                                                                \
    {                                                                                              \
        return desc();                                                                             \
    }

/// In a source file: gives the class its names and its parent. The class exists at load time.
#define KD_RX_DEFINE_WITH(Class, Parent, name, dxfName, factory)                                   \
    KdRxClass* Class::desc()                                                                       \
    {                                                                                              \
        static KdRxClass* const rxClass =                                                          \
            kdrx::definePlatformClass({name, dxfName, Parent::desc(), factory});                   \
        return rxClass;                                                                            \
    }                                                                                              \
    [[maybe_unused]] static KdRxClass* const k##Class##IsDefined = Class::desc();

#define KD_RX_DEFINE(Class, Parent, name, dxfName)                                                 \
    KD_RX_DEFINE_WITH(Class, Parent, name, dxfName, kdrx::factoryOf<Class>())
#define KD_RX_DEFINE_ABSTRACT(Class, Parent, name)                                                 \
    KD_RX_DEFINE_WITH(Class, Parent, name, L"", KdRxFactory{})
