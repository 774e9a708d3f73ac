#include <entities/block_reference.h>

#include <cwchar>

#include <database/database.h>

KD_RX_DEFINE(KdDbBlockReference, KdDbEntity, L"AcDbBlockReference", L"INSERT")
KD_RX_DEFINE(KdDbMInsertBlock, KdDbBlockReference, L"AcDbMInsertBlock", L"INSERT")

namespace {

/// Group code of a handle in extended data.
constexpr short kHandleCode = 1005;

/// The handle that a text spells in hexadecimal digits; 0 if it is anything else.
KdDbHandle parseHandle(const wchar_t* text)
{
    constexpr const wchar_t* kDigits = L"0123456789abcdefABCDEF";
    constexpr std::size_t kMostDigits = 2 * sizeof(KdDbHandle);
    if (!text || std::wcslen(text) > kMostDigits || text[std::wcsspn(text, kDigits)] != L'\0')
        return 0;
    return std::wcstoull(text, nullptr, 16);
}

/// The first handle in an application's extended data; 0 if there is none.
KdDbHandle handleInExtendedData(const KdDbObject& object, const wchar_t* application)
{
    const resbuf* end = nullptr;
    const resbuf* record = object.extendedData(application, end);
    while (record && record != end && record->restype != kHandleCode)
        record = record->rbnext;
    return record && record != end ? parseHandle(record->resval.rstring) : 0;
}

KdDbObjectId originalOfBlock(KdDbObjectId block)
{
    const OpenForRead<KdDbBlockTableRecord> copy(block);
    if (!copy)
        return {};
    const KdDbHandle handle = handleInExtendedData(*copy, L"AcDbBlockRepBTag");
    KdDbObjectId original;
    if (handle == 0 || block.database()->getObjectId(original, handle) != eOk ||
        !original.objectClass()->isDerivedFrom(KdDbBlockTableRecord::desc()))
        return {};
    return original;
}

} // namespace

KdDbObjectId kddbGetEnhancedBlkOriginalBtrId(KdDbObjectId id)
{
    if (id.isNull())
        return {};
    if (id.objectClass()->isDerivedFrom(KdDbBlockReference::desc())) {
        const OpenForRead<KdDbBlockReference> reference(id);
        return reference ? kddbGetEnhancedBlkOriginalBtrId(*reference) : KdDbObjectId();
    }
    return originalOfBlock(id);
}

KdDbObjectId kddbGetEnhancedBlkOriginalBtrId(const KdDbBlockReference& reference)
{
    return originalOfBlock(reference.blockTableRecord());
}

KdDbObjectId kddbGetSmartBlkOriginalBtrId(KdDbObjectId)
{
    return {};
}

KdDbObjectId kddbGetSmartBlkOriginalBtrId(const KdDbBlockReference&)
{
    return {};
}
