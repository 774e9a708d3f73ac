#include <editor/current_space.h>

#include <editor/system_variables.h>
#include <entities/block_elements.h>

#include <database/database.h>

#include "session.h"

namespace {

bool variableIs(const wchar_t* name, short value)
{
    resbuf record{};
    return kdedGetVar(name, &record) == RTNORM && record.resval.rint == value;
}

KdDbDatabase* workingDatabase()
{
    return kddbHostApplicationServices()->workingDatabase();
}

bool showsModel(const KdDbDatabase& database)
{
    return database.header().integer(L"TILEMODE") != 0;
}

void show(KdDbDatabase& database, KdDbObjectId sheet, bool model)
{
    database.setActiveSheet(sheet);
    database.header().setValue(KdDbHeaderVariables::indexOf(L"TILEMODE"), model ? 1 : 0);
}

bool isShown(const KdDbDatabase& database, KdDbObjectId sheet)
{
    return !showsModel(database) && database.activeSheetId() == sheet;
}

KdErrorStatus checkBlock(const KdDbDatabase& database, KdDbObjectId block)
{
    if (!block.isKindOf(KdDbBlockTableRecord::desc()))
        return eInvalidInput;
    if (block.database() != &database)
        return eWrongDatabase;
    const OpenForRead<KdDbBlockTableRecord> record(block);
    if (!record)
        return record.status();
    return record->isLayout() || record->isFromExternalReference() ? eNotApplicable : eOk;
}

/// Makes what shows the elements of a dynamic block's graph.
std::vector<KdDbObjectId> addElementEntities(KdDbBlockTableRecord& block, KdDbObjectId graphId)
{
    std::vector<KdDbObjectId> entities;
    const OpenForRead<KdDbEvalGraph> graph(graphId);
    if (!graph)
        return entities;
    for (const KdDbObjectId element : graph->elements()) {
        const KdRxClass* rxClass = kddbBlockElementEntityClass(element.objectClass());
        if (!rxClass)
            continue;
        auto* entity = static_cast<KdDbBlockElementEntity*>(rxClass->create());
        entity->edit().element = element;
        block.appendEntity(entity);
        entities.push_back(entity->objectId());
    }
    return entities;
}

void setErased(const std::vector<KdDbObjectId>& entities, bool erasing)
{
    for (const KdDbObjectId id : entities) {
        KdDbEntity* entity = nullptr;
        if (kddbOpenObject(entity, id, KdDb::kForWrite, true) == eOk) {
            entity->erase(erasing);
            entity->close();
        }
    }
}

KdErrorStatus bringElements(DrawingState& state, KdDbObjectId id)
{
    const auto known = state.elementEntities.find(id);
    if (known != state.elementEntities.end()) {
        setErased(known->second, false);
        return eOk;
    }
    const KdDbObjectId graph = KdDbEvalGraph::ofBlock(id);
    KdDbBlockTableRecord* block = nullptr;
    const KdErrorStatus status = kddbOpenObject(block, id, KdDb::kForWrite);
    if (status != eOk)
        return status;
    state.elementEntities[id] = addElementEntities(*block, graph);
    block->close();
    return eOk;
}

} // namespace

KdDbObjectId kdedCurrentSpaceId()
{
    KdDbHostApplicationServices* services = kddbHostApplicationServices();
    const KdDbDatabase* database = services->workingDatabase();
    if (!database)
        return {};
    if (!variableIs(L"TILEMODE", 0) || !variableIs(L"CVPORT", 1))
        return database->modelSpaceId();
    const KdDbLayoutManager* layouts = services->layoutManager();
    return layouts ? layouts->getActiveLayoutBTRId() : KdDbObjectId();
}

KdErrorStatus kdedOpenBlock(KdDbObjectId block)
{
    KdDbDatabase* database = workingDatabase();
    if (!database)
        return eNotInDatabase;
    KdErrorStatus status = checkBlock(*database, block);
    if (status != eOk)
        return status;
    kdedCloseBlock();
    DrawingState& state = EditorSession::instance().stateOf(*database);
    status = bringElements(state, block);
    if (status != eOk)
        return status;
    state.openBlock = {block, database->activeSheetId(), showsModel(*database)};
    show(*database, block, false);
    return eOk;
}

KdErrorStatus kdedCloseBlock()
{
    KdDbDatabase* database = workingDatabase();
    if (!database)
        return eNotApplicable;
    DrawingState& state = EditorSession::instance().stateOf(*database);
    if (!state.openBlock)
        return eNotApplicable;
    const DrawingState::OpenBlock open = *state.openBlock;
    state.openBlock.reset();
    setErased(state.elementEntities[open.block], true);
    if (isShown(*database, open.block))
        show(*database, open.sheetBefore, open.modelBefore);
    else if (database->activeSheetId() == open.block) // the user went to the model
        database->setActiveSheet(open.sheetBefore);
    return eOk;
}

KdDbObjectId kdedOpenBlockId()
{
    const KdDbDatabase* database = workingDatabase();
    if (!database)
        return {};
    const auto& open = EditorSession::instance().stateOf(*database).openBlock;
    return open && isShown(*database, open->block) ? open->block : KdDbObjectId();
}
