#include <values/class_descriptor.h>

KdRxClass* findDescriptor(KdRxClass*& descriptor, const wchar_t* name)
{
    if (!descriptor)
        descriptor = kdrxFindKdRxClass(name);
    return descriptor;
}

void registerDescriptor(KdRxClass*& descriptor, const ClassDescription& description)
{
    if (descriptor) {
        const KdRxClass* registered = kdrxFindKdRxClass(description.name);
        if (registered && registered != descriptor)
            kdrx_abort(L"Class mismatch");
        if (registered)
            return;
    }
    descriptor = newKdRxClass(description.name, description.parentName, description.proxyFlags,
                              description.pseudoConstructor, nullptr, nullptr);
}
