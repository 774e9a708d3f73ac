#include <database/hyperlink.h>

#include <database/entity.h>

KD_RX_DEFINE(KdDbEntityHyperlinkPE, KdRxObject, L"KdDbEntityHyperlinkPE", L"")

namespace {

constexpr const wchar_t* kApplication = L"PE_URL";
constexpr short kText = 1000;

// The address stands first; description and place follow inside braces.
KdDbHyperlink readLink(const resbuf* record, const resbuf* end)
{
    KdDbHyperlink link;
    KdString* const parts[] = {&link.name, &link.description, &link.subLocation};
    std::size_t next = 0;
    for (; record != end && next < std::size(parts); record = record->rbnext) {
        if (record->restype == kText)
            *parts[next++] = KdString(record->resval.rstring);
    }
    return link;
}

const struct AttachToEntities
{
    KdDbEntityHyperlinkPE extension;
    AttachToEntities() { KdDbEntity::desc()->addX(KdDbEntityHyperlinkPE::desc(), &extension); }
} kAttached;

} // namespace

KdErrorStatus KdDbEntityHyperlinkPE::hasHyperlink(const KdDbObject* object, bool& has, bool)
{
    if (!object)
        return eNullObjectPointer;
    const resbuf* end = nullptr;
    has = object->extendedData(kApplication, end) != nullptr;
    return eOk;
}

KdErrorStatus KdDbEntityHyperlinkPE::getHyperlinkCollection(const KdDbObject* object,
                                                            KdDbHyperlinkCollection*& collection,
                                                            bool, bool)
{
    if (!object)
        return eNullObjectPointer;
    const resbuf* end = nullptr;
    const resbuf* records = object->extendedData(kApplication, end);
    collection = nullptr;
    if (!records)
        return eOk;
    collection = new KdDbHyperlinkCollection;
    collection->addTail(readLink(records, end));
    return eOk;
}
