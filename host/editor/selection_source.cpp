#include "selection_source.h"

#include "session.h"

#include <editor/current_space.h>

#include <entities/viewport.h>

#include <algorithm>
#include <cwchar>
#include <utility>

namespace {

using Ids = std::vector<KdDbObjectId>;

constexpr std::int16_t kSheetViewportNumber = 1;

bool isSheetViewport(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDbViewport::desc()) &&
           static_cast<const KdDbViewport&>(entity).number() == kSheetViewportNumber;
}

void appendBlock(KdDbObjectId blockId, Ids& ids)
{
    const OpenForRead<KdDbBlockTableRecord> block(blockId);
    if (block)
        ids.insert(ids.end(), block->entityIds().begin(), block->entityIds().end());
}

void appendSet(const std::shared_ptr<const SelectionSet>& set, Ids& ids)
{
    if (set)
        set->forEach([&](KdDbObjectId id) { ids.push_back(id); });
}

int collectImplied(KdDbDatabase& database, int, Ids& ids)
{
    appendSet(EditorSession::instance().stateOf(database).pickfirst, ids);
    return RTNORM;
}

int collectPrevious(KdDbDatabase& database, int, Ids& ids)
{
    appendSet(EditorSession::instance().stateOf(database).previous, ids);
    return RTNORM;
}

int collectAll(KdDbDatabase& database, int flags, Ids& ids)
{
    if (flags & kKdedCurrentSpaceOnly) {
        appendBlock(kdedCurrentSpaceId(), ids);
        return RTNORM;
    }
    for (const KdDbObjectId blockId : database.table<KdDbBlockTable>().recordIds()) {
        const OpenForRead<KdDbBlockTableRecord> block(blockId);
        if (block && block->isLayout())
            appendBlock(blockId, ids);
    }
    return RTNORM;
}

int collectLast(KdDbDatabase&, int, Ids& ids)
{
    Ids all;
    appendBlock(kdedCurrentSpaceId(), all);
    const auto last =
        std::find_if(all.rbegin(), all.rend(), [](KdDbObjectId id) { return !id.isErased(); });
    if (last != all.rend())
        ids.push_back(*last);
    return RTNORM;
}

int collectFromPrompt(Ids& ids)
{
    // A copy, so that the program may change its prompt inside.
    const KdedSelectionPrompt prompt = EditorSession::instance().prompt;
    return prompt ? prompt(ids) : RTERROR;
}

struct ModeRow
{
    const wchar_t* mode;
    int (*collect)(KdDbDatabase& database, int flags, Ids& ids);
};

constexpr ModeRow kModes[] = {
    {L"I", collectImplied},
    {L"L", collectLast},
    {L"P", collectPrevious},
    {L"X", collectAll},
};

} // namespace

SelectionRules::SelectionRules(const KdDbDatabase& database, SelectionFilter filter, int flags)
    : m_database(database),
      m_filter(std::move(filter)),
      m_pickableOnly(flags & kKdedPickableOnly),
      m_currentSpaceOnly(flags & kKdedCurrentSpaceOnly)
{
    if (m_currentSpaceOnly)
        m_currentSpace = kdedCurrentSpaceId();
    if (!m_pickableOnly)
        return;
    for (const KdDbObjectId layerId : database.table<KdDbLayerTable>().recordIds()) {
        const OpenForRead<KdDbLayerTableRecord> layer(layerId);
        if (layer && layer->isFrozen())
            m_frozenLayers.insert(layerId);
    }
}

bool SelectionRules::accept(KdDbObjectId id) const
{
    if (id.database() != &m_database || id.isErased() ||
        !id.objectClass()->isDerivedFrom(KdDbEntity::desc()))
        return false;
    if (!m_pickableOnly && !m_currentSpaceOnly && m_filter.isEmpty())
        return true;
    const OpenForRead<KdDbEntity> entity(id);
    return entity && acceptContent(*entity);
}

bool SelectionRules::acceptContent(const KdDbEntity& entity) const
{
    if (m_currentSpaceOnly && entity.ownerId() != m_currentSpace)
        return false;
    if (m_pickableOnly && (m_frozenLayers.contains(entity.layerId()) || isSheetViewport(entity)))
        return false;
    return m_filter.accepts(entity);
}

int collectCandidates(const wchar_t* mode, KdDbDatabase& database, int flags, Ids& ids)
{
    if (!mode)
        return collectFromPrompt(ids);
    for (const ModeRow& row : kModes)
        if (std::wcscmp(row.mode, mode) == 0)
            return row.collect(database, flags, ids);
    return RTERROR;
}
