/// The calls and types around object models: interfaces by id, owned texts, objects by class id.
#pragma once

#include <cstdint>

#include <runtime/export.h>
#include <runtime/guid.h>

/// 0 is success, values below 0 are failures.
using HRESULT = std::int32_t;

constexpr HRESULT S_OK = 0;
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);
constexpr HRESULT DISP_E_MEMBERNOTFOUND = static_cast<HRESULT>(0x80020003);
constexpr HRESULT CLASS_E_NOAGGREGATION = static_cast<HRESULT>(0x80040110);
constexpr HRESULT REGDB_E_CLASSNOTREG = static_cast<HRESULT>(0x80040154);
constexpr HRESULT CO_E_NOTINITIALIZED = static_cast<HRESULT>(0x800401F0);

/// Objects that live in the caller's process, the only ones there are.
constexpr unsigned int CLSCTX_INPROC_SERVER = 1;

/// The root of all interfaces; the order of the operations is fixed. Whoever holds a pointer that
/// `QueryInterface` or a creating call gave owns one reference and gives it back with `Release`.
class IUnknown
{
  public:
    /// Gives the object under another interface. `E_NOINTERFACE` and null if it has none of that
    /// id.
    virtual HRESULT QueryInterface(const IID& id, void** object) = 0;
    /// Both return the number of references that there are then.
    virtual unsigned int AddRef() = 0;
    virtual unsigned int Release() = 0;

  protected:
    ~IUnknown() = default;
};

constexpr IID IID_IUnknown = {
    0x00000000, 0x0000, 0x0000, {0xC0, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x46}};

/// A text that an object model gives to its caller.
using BSTR = wchar_t*;

/// A copy of `text`, owned by the caller; null for null and when memory is exhausted.
KW_EXPORT BSTR SysAllocString(const wchar_t* text);
/// Frees such a copy; null is allowed.
KW_EXPORT void SysFreeString(BSTR text);

/// Begins the use of object models on this thread; such calls may be nested, and each is ended by
/// `CoUninitialize`. `reserved` must be null, otherwise `E_INVALIDARG`.
KW_EXPORT HRESULT CoInitialize(void* reserved);
KW_EXPORT void CoUninitialize();

/// Makes an object by its class id.
/// @param outer    must be null: `CLASS_E_NOAGGREGATION` otherwise
/// @param context  `CLSCTX_INPROC_SERVER` must be among its bits
/// @param object   receives the object under the interface `id`, or null on any failure
/// @return         `REGDB_E_CLASSNOTREG` for an unknown class or another context,
///                 `CO_E_NOTINITIALIZED` outside `CoInitialize`, else what `QueryInterface` says
KW_EXPORT HRESULT CoCreateInstance(const CLSID& classId, IUnknown* outer, unsigned int context,
                                   const IID& id, void** object);
