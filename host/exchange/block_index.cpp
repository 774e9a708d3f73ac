#include "block_index.h"

#include "group_values.h"

namespace dxf {
namespace {

constexpr int kAnonymous = 1;
constexpr int kExternalReference = 4;
constexpr int kOverlay = 8;
constexpr int kDependent = 16;
constexpr int kResolved = 32;

/// The model and the sheets: only these may hold what stands in the ENTITIES section.
bool isSpace(const KdDbBlockTableRecord& record)
{
    for (const wchar_t* space : {kModelSpaceName, kPaperSpaceName}) {
        const std::wstring_view name = space;
        if (record.name().substr(0, name.size()).compareNoCase(space) == 0)
            return true;
    }
    return false;
}

} // namespace

KdString standardBlockName(const KdString& name, int version)
{
    constexpr int kLastWithOldNames = 1009;
    if (version > kLastWithOldNames)
        return name;
    if (name.compareNoCase(L"$MODEL_SPACE") == 0)
        return kModelSpaceName;
    return name.compareNoCase(L"$PAPER_SPACE") == 0 ? KdString(kPaperSpaceName) : name;
}

struct BlockIndex::Head
{
    std::uint64_t offset = 0;
    KdDbHandle owner = 0;
    KdString name;
    KdString path;
    KdString comments;
    double origin[3] = {};
    int flags = 0;
};

void BlockIndex::addHandle(KdDbHandle handle, KdDbBlockTableRecord& record)
{
    if (handle != 0)
        m_byHandle.try_emplace(handle, &record);
}

KdDbBlockTableRecord* BlockIndex::byHandle(KdDbHandle handle) const
{
    const auto found = m_byHandle.find(handle);
    return found == m_byHandle.end() ? nullptr : found->second;
}

BlockIndex::Head BlockIndex::readHead(RecordCursor& cursor) const
{
    Head head;
    head.offset = cursor.offset();
    const TextDecoder& decoder = m_source.decoder;
    bool inExtendedData = false;
    while (cursor.nextInRecord()) {
        const Group& group = cursor.group();
        inExtendedData = inExtendedData || group.code == 1001;
        switch (inExtendedData ? -1 : group.code) {
        case 1:
            head.path = decoder.decode(group.text);
            break;
        case 2:
            head.name = standardBlockName(decoder.decode(group.text), m_source.version);
            break;
        case 4:
            head.comments = decoder.decode(group.text);
            break;
        case 10:
        case 20:
        case 30:
            realOf(group, head.origin[group.code / 10 - 1]);
            break;
        case 70:
            head.flags = static_cast<int>(looseIntegerOf(group));
            break;
        case 330:
            head.owner = head.owner != 0 ? head.owner : looseHandleOf(group);
            break;
        default:
            break;
        }
    }
    return head;
}

KdDbBlockTableRecord& BlockIndex::recordOf(const Head& head)
{
    auto& table = m_source.database.table<KdDbBlockTable>();
    KdDbBlockTableRecord* const owner = byHandle(head.owner);
    KdString name = head.name;
    if (name.isEmpty()) {
        m_source.findings.add(DrawingFinding::MissingName, head.offset);
        if (owner && !m_begun.contains(owner))
            return *owner;
        name = m_maker.freeName(table);
    }
    auto& named = *m_maker.findOrMake<KdDbBlockTable>(name);
    if (!m_begun.contains(&named))
        return named;
    if (owner && !m_begun.contains(owner))
        return *owner;
    m_source.findings.add(DrawingFinding::DoubledName, head.offset, name);
    return static_cast<KdDbBlockTableRecord&>(
        *m_maker.add(table, KdDbBlockTableRecord::desc(), name, {}, {}));
}

void BlockIndex::begin(RecordCursor& cursor)
{
    const Head head = readHead(cursor);
    KdDbBlockTableRecord& record = recordOf(head);
    m_begun.insert(&record);
    m_open = &record;
    auto& members = m_maker.members<BlockMembers>(record);
    members.origin = {head.origin[0], head.origin[1], head.origin[2]};
    members.comments = head.comments;
    members.path = head.path;
    members.anonymous = (head.flags & kAnonymous) != 0;
    members.externalReference = (head.flags & kExternalReference) != 0;
    members.overlay = (head.flags & kOverlay) != 0;
    members.referenceResolved = (head.flags & kResolved) != 0;
    members.dependent = (head.flags & kDependent) != 0;
}

KdDbBlockTableRecord& BlockIndex::space(KdDbBlockTableRecord*& slot, const wchar_t* name)
{
    if (!slot)
        slot = m_maker.findOrMake<KdDbBlockTable>(name);
    return *slot;
}

KdDbBlockTableRecord& BlockIndex::blockOf(const StatedOwner& stated, bool paper)
{
    if (m_open)
        return *m_open;
    if (stated.owner != m_lastOwner) {
        KdDbBlockTableRecord* const record = byHandle(stated.owner);
        m_lastOwner = stated.owner;
        m_lastSpace = record && isSpace(*record) ? record : nullptr;
        if (!record && stated.owner != 0)
            m_maker.checkOwnerLater(stated); // once for each run of entities
    }
    if (m_lastSpace && stated.owner != 0)
        return *m_lastSpace;
    return paper ? space(m_paper, kPaperSpaceName) : space(m_model, kModelSpaceName);
}

} // namespace dxf
