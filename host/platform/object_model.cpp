#include <platform/object_model.h>

#include "display_names.h"
#include "entity_object.h"

HRESULT EntityObject::QueryInterface(const IID& id, void** object)
{
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (id == IID_IUnknown)
        *object = unknown();
    else if (id == IID_IOPMPropertyExtension)
        *object = static_cast<IOPMPropertyExtension*>(this);
    else if (id == IID_IKdadBaseObject)
        *object = static_cast<IKdadBaseObject*>(this);
    else
        return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

unsigned int EntityObject::Release()
{
    const unsigned int left = --m_references;
    if (left == 0)
        delete this;
    return left;
}

HRESULT EntityObject::GetDisplayName(int dispatchId, BSTR* name)
{
    if (!name)
        return E_POINTER;
    *name = nullptr;
    if (dispatchId != DISPID_OBJECT_TYPE_NAME)
        return DISP_E_MEMBERNOTFOUND;
    if (m_id.isNull() || m_id.isErased())
        return E_FAIL;
    *name = typeDisplayName(m_id);
    return *name ? S_OK : E_FAIL;
}

HRESULT EntityObject::SetObjectId(const KdDbObjectId& id, KdDbObjectId, const wchar_t*)
{
    const KdRxClass* rxClass = id.objectClass();
    if (!rxClass || !rxClass->isDerivedFrom(KdDbEntity::desc()))
        return E_INVALIDARG;
    m_id = id;
    return S_OK;
}

KdErrorStatus kddbGetClassID(const KdDbObject& object, CLSID& classId)
{
    return object.getClassID(&classId);
}

HRESULT KwComUtil::KwAuGetIUnknownOfObject(IUnknown** unknown, const KdDbObjectId& id)
{
    if (!unknown)
        return E_POINTER;
    *unknown = nullptr;
    if (id.isNull() || id.isErased())
        return E_INVALIDARG;
    auto* object = new EntityObject;
    const HRESULT result = object->SetObjectId(id, KdDbObjectId::kNull, nullptr);
    if (result == S_OK)
        *unknown = object->unknown();
    else
        object->Release();
    return result;
}
