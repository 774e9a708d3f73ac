/// The one class of the object model: what stands for an entity.
#pragma once

#include <platform/object_model.h>

/// Made with one reference; deletes itself with the last.
class EntityObject final : public IOPMPropertyExtension, public IKdadBaseObject
{
  public:
    HRESULT QueryInterface(const IID& id, void** object) override;
    unsigned int AddRef() override { return ++m_references; }
    unsigned int Release() override;
    HRESULT GetDisplayName(int dispatchId, BSTR* name) override;
    HRESULT SetObjectId(const KdDbObjectId& id, KdDbObjectId owner, const wchar_t* name) override;

    IUnknown* unknown() { return static_cast<IOPMPropertyExtension*>(this); }

  private:
    ~EntityObject() = default;

    KdDbObjectId m_id;
    unsigned int m_references = 1;
};
