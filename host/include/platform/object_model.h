/// The object model of entities, as far as it tells the display name of their type.
#pragma once

#include <database/class_ids.h>
#include <database/entity.h>

#include <platform/com.h>

/// The number under which an object is asked for the display name of its type.
constexpr int DISPID_OBJECT_TYPE_NAME = 1025;

/// Display names of an object and its properties.
class IOPMPropertyExtension : public IUnknown
{
  public:
    /// Gives the display name behind a number. That of a type follows from the entity's class; only
    /// a block reference to which something reacts may have another. `name` is owned by the caller
    /// and freed with `SysFreeString`. On a failure `name` becomes null: `DISP_E_MEMBERNOTFOUND`
    /// for any number but `DISPID_OBJECT_TYPE_NAME`, `E_FAIL` if the object is bound to no entity
    /// or to an erased one.
    virtual HRESULT GetDisplayName(int dispatchId, BSTR* name) = 0;

  protected:
    ~IOPMPropertyExtension() = default;
};

/// The side of an object that ties it to a database object.
class IKdadBaseObject : public IUnknown
{
  public:
    /// Binds the object to an entity. `owner` and `name` are for objects that are yet to be added
    /// to a drawing, which this object model does not do; they are ignored. `E_INVALIDARG` if `id`
    /// names no entity; then the binding stays as it is.
    virtual HRESULT SetObjectId(const KdDbObjectId& id, KdDbObjectId owner,
                                const wchar_t* name) = 0;

  protected:
    ~IKdadBaseObject() = default;
};

constexpr IID IID_IOPMPropertyExtension = {
    0x5C3A1E70, 0x8D42, 0x4F6B, {0x9B, 0x17, 0x2E, 0x60, 0xA4, 0xC9, 0x35, 0xD8}};
constexpr IID IID_IKdadBaseObject = {
    0x71E90B24, 0x3A5F, 0x4C08, {0x86, 0xD3, 0xF4, 0x1B, 0x7C, 0x52, 0x0E, 0x99}};

/// The class id of an object in the object model; `eNotApplicable` for what is no entity, with
/// `classId` untouched.
KW_EXPORT KdErrorStatus kddbGetClassID(const KdDbObject& object, CLSID& classId);

namespace KwComUtil {

/// Gives the object of the object model that stands for an entity, one reference owned by the
/// caller. `E_INVALIDARG` and null if `id` names no entity or an erased one.
KW_EXPORT HRESULT KwAuGetIUnknownOfObject(IUnknown** unknown, const KdDbObjectId& id);

} // namespace KwComUtil
