#include <platform/com.h>

#include "entity_object.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <iterator>

namespace {

thread_local unsigned int initializations = 0;

/// The classes that stand for entities; one kind of object serves them all.
constexpr CLSID kEntityClasses[] = {CLSID_KdadEntity, CLSID_KdadAssocArrayRect,
                                    CLSID_KdadAssocArrayPolar, CLSID_KdadAssocArrayPath};

bool isEntityClass(const CLSID& classId)
{
    return std::find(std::begin(kEntityClasses), std::end(kEntityClasses), classId) !=
           std::end(kEntityClasses);
}

HRESULT createInstance(const CLSID& classId, IUnknown* outer, unsigned int context, const IID& id,
                       void** object)
{
    if (initializations == 0)
        return CO_E_NOTINITIALIZED;
    if (outer)
        return CLASS_E_NOAGGREGATION;
    if (!isEntityClass(classId) || !(context & CLSCTX_INPROC_SERVER))
        return REGDB_E_CLASSNOTREG;
    auto* created = new EntityObject;
    const HRESULT result = created->QueryInterface(id, object);
    created->Release();
    return result;
}

} // namespace

BSTR SysAllocString(const wchar_t* text)
{
    if (!text)
        return nullptr;
    const std::size_t size = (std::wcslen(text) + 1) * sizeof(wchar_t);
    auto* copy = static_cast<BSTR>(std::malloc(size));
    return copy ? std::wcscpy(copy, text) : nullptr;
}

void SysFreeString(BSTR text)
{
    std::free(text);
}

HRESULT CoInitialize(void* reserved)
{
    if (reserved)
        return E_INVALIDARG;
    ++initializations;
    return S_OK;
}

void CoUninitialize()
{
    if (initializations > 0)
        --initializations;
}

HRESULT CoCreateInstance(const CLSID& classId, IUnknown* outer, unsigned int context, const IID& id,
                         void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    return createInstance(classId, outer, context, id, object);
}
