#include <entities/block_reference.h>

#include <cmath>
#include <cwchar>

#include <database/class_ids.h>
#include <database/database.h>
#include <entities/assoc_array.h>

KD_RX_DEFINE(KdDbBlockReference, KdDbEntity, L"AcDbBlockReference", L"INSERT")
KD_RX_DEFINE(KdDbMInsertBlock, KdDbBlockReference, L"AcDbMInsertBlock", L"INSERT")
KD_RX_DEFINE(KdDbBlockRepresentationData, KdDbObject, L"AcDbBlockRepresentationData",
             L"ACDB_BLOCKREPRESENTATION_DATA")

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

/// What the reference itself keeps about the block that it began with.
KdDbObjectId originalInReference(const KdDbBlockReference& reference)
{
    const KdDbObjectId kept = kddbExtensionEntry(reference, L"AcDbBlockRepresentation");
    const OpenForRead<KdDbBlockRepresentationData> original(
        kddbDictionaryEntry(kept, L"AcDbRepData"));
    const KdDbObjectId block = original ? original->blockId() : KdDbObjectId();
    return block.isKindOf(KdDbBlockTableRecord::desc()) ? block : KdDbObjectId();
}

struct ArrayClassRow
{
    KdRxClass* (*parameters)();
    CLSID classId;
};

constexpr ArrayClassRow kArrayClasses[] = {
    {KdDbAssocArrayRectangularParameters::desc, CLSID_KdadAssocArrayRect},
    {KdDbAssocArrayPolarParameters::desc, CLSID_KdadAssocArrayPolar},
    {KdDbAssocArrayPathParameters::desc, CLSID_KdadAssocArrayPath},
};

} // namespace

KdGeMatrix3d KdDbBlockReference::blockTransform() const
{
    const BlockReferenceMembers& members = data();
    const OpenForRead<KdDbBlockTableRecord> block(members.block);
    const KdGePoint3d base = block ? block->origin() : KdGePoint3d();
    const double c = std::cos(members.rotation);
    const double s = std::sin(members.rotation);
    const KdGeMatrix3d scaled =
        KdGeMatrix3d::fromFrame(members.position, KdGeVector3d{c, s, 0.0} * members.scale.sx,
                                KdGeVector3d{-s, c, 0.0} * members.scale.sy,
                                KdGeVector3d{0.0, 0.0, 1.0} * members.scale.sz);
    const KdGeMatrix3d fromBase =
        KdGeMatrix3d::fromFrame({-base.x, -base.y, -base.z}, KdGeVector3d::kXAxis,
                                KdGeVector3d::kYAxis, KdGeVector3d::kZAxis);
    return members.extrusion.frame() * scaled * fromBase;
}

KdErrorStatus KdDbBlockReference::getClassID(CLSID* classId) const
{
    const KdDbAssocArrayParameters* array = kddbGetAssocArrayParametersConst(this);
    if (classId && array) {
        for (const ArrayClassRow& row : kArrayClasses) {
            if (array->isKindOf(row.parameters())) {
                *classId = row.classId;
                return eOk;
            }
        }
    }
    return KdDbEntity::getClassID(classId);
}

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
    const KdDbObjectId original = originalOfBlock(reference.blockTableRecord());
    return original.isNull() ? originalInReference(reference) : original;
}

KdDbObjectId kddbGetSmartBlkOriginalBtrId(KdDbObjectId)
{
    return {};
}

KdDbObjectId kddbGetSmartBlkOriginalBtrId(const KdDbBlockReference&)
{
    return {};
}
