#include <blocks/blocks_in_use.h>

#include <memory>
#include <unordered_set>

#include <database/database.h>
#include <editor/system_variables.h>

#include <values/names.h>

namespace {

bool isInSheet(const KdDbDatabase& database)
{
    constexpr short kSheetViewport = 1;
    resbuf viewport{};
    return kdedGetVar(L"CVPORT", &viewport) == RTNORM && viewport.resval.rint == kSheetViewport &&
           database.header().integer(L"TILEMODE") == 0;
}

KdDbObjectId shownSpace(KdDbDatabase& database)
{
    if (isInSheet(database)) {
        const KdDbLayoutManager* layouts = kddbHostApplicationServices()->layoutManager();
        return layouts ? layouts->getActiveLayoutBTRId(nullptr) : KdDbObjectId();
    }
    KdDbObjectId model;
    KdDbBlockTable* blocks = nullptr;
    if (database.getSymbolTable(blocks, KdDb::kForRead) == eOk) {
        blocks->getIdAt(kModelSpaceName, model);
        blocks->close();
    }
    return model;
}

/// Collects the names of blocks, looking at each block once.
class NameCollector
{
  public:
    explicit NameCollector(bool external) : m_external(external) {}

    void add(const KdDbBlockReference& reference)
    {
        const KdDbObjectId id = sourceBlockOf(reference);
        if (!m_seen.insert(id).second)
            return;
        const OpenForRead<KdDbBlockTableRecord> block(id);
        if (block && block->isFromExternalReference() == m_external)
            names.insert(block->name());
    }

    std::set<KdString> names;

  private:
    bool m_external;
    std::unordered_set<KdDbObjectId> m_seen;
};

} // namespace

std::set<KdString> namesOfBlocksInUse(const KdDbBlockReference& reference, bool external)
{
    NameCollector collector(external);
    if (!reference.database())
        return {};
    const OpenForRead<KdDbBlockTableRecord> space(shownSpace(*reference.database()));
    KdDbBlockTableRecordIterator* walker = nullptr;
    if (!space || space->newIterator(walker) != eOk)
        return {};
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walker);
    for (; !iterator->done(); iterator->step()) {
        KdDbObjectId id;
        iterator->getEntityId(id);
        if (const OpenForRead<KdDbBlockReference> shown(id); shown)
            collector.add(*shown);
    }
    return collector.names;
}
