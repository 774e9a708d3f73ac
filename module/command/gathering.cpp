#include <command/gathering.h>

#include <algorithm>
#include <map>
#include <memory>

#include <database/database.h>
#include <editor/selection_sets.h>
#include <editor/system_variables.h>
#include <entities/viewport.h>
#include <platform/main_app_service.h>
#include <platform/message_box.h>

#include <values/display_name.h>
#include <values/globals.h>
#include <values/resource_string.h>

namespace {

constexpr int kSheetViewport = 1;

int integerVariable(const wchar_t* name)
{
    resbuf value{};
    return kdedGetVar(name, &value) == RTNORM ? value.resval.rint : 0;
}

KdDbObjectId modelSpace(KdDbDatabase& database)
{
    KdDbBlockTable* blocks = nullptr;
    if (database.getSymbolTable(blocks, KdDb::kForRead) != eOk)
        return {};
    KdDbObjectId id;
    blocks->getIdAt(kModelSpaceName, id);
    blocks->close();
    return id;
}

bool isSheetViewport(const KdDbEntity& entity)
{
    return entity.isKindOf(KdDbViewport::desc()) &&
           static_cast<const KdDbViewport&>(entity).number() == kSheetViewport;
}

/// Collects entities and the first one of each display name.
class TypeCollector
{
  public:
    TypeCollector(std::vector<KdDbEntity*>& all, std::vector<KdDbEntity*>& types)
        : m_all(all), m_types(types)
    {
    }

    void add(KdDbEntity& entity)
    {
        const std::wstring& name = m_names.of(entity);
        // Looked up before it is entered, because entering allocates even for a name that is there.
        if (!name.empty() && !m_seen.contains(name)) {
            m_seen.emplace(name, 1);
            m_types.push_back(&entity);
        }
        m_all.push_back(&entity);
    }

  private:
    std::vector<KdDbEntity*>& m_all;
    std::vector<KdDbEntity*>& m_types;
    DisplayNames m_names;
    std::map<std::wstring, int> m_seen;
};

} // namespace

void gatherMembers(const long* set, Candidates& candidates)
{
    TypeCollector collector(candidates.selectionEntities, candidates.selectionTypeEntities);
    const long count = memberCount(set);
    for (long index = 0; index < count; ++index) {
        kds_name name;
        KdDbObjectId id;
        if (!memberAt(set, index, name, id))
            continue;
        kdedSSFree(name); // hosts may keep something for a name, this one does not
        const OpenForRead<KdDbEntity> entity(id);
        if (!entity || !entity->isA())
            continue;
        collector.add(const_cast<KdDbEntity&>(*entity));
        if (index == 0)
            candidates.firstMember = entity.get();
    }
}

KdDbObjectId currentSpace()
{
    KdDbHostApplicationServices* services = kddbHostApplicationServices();
    KdDbDatabase* database = services->workingDatabase();
    if (!database)
        return {};
    const bool showsModel = integerVariable(L"TILEMODE") != 0;
    const bool inSheet = integerVariable(L"CVPORT") == kSheetViewport;
    integerVariable(L"GRIPS"); // read at the start of each run; nothing depends on it
    if (showsModel || !inSheet)
        return modelSpace(*database);
    KdDbLayoutManager* layouts = services->layoutManager();
    return layouts ? layouts->getActiveLayoutBTRId(nullptr) : KdDbObjectId();
}

SpaceStatus gatherSpace(Candidates& candidates)
{
    const OpenForRead<KdDbBlockTableRecord> space(currentSpace());
    KdDbBlockTableRecordIterator* walker = nullptr;
    if (!space || space->newIterator(walker, true, true) != eOk || !walker)
        return SpaceStatus::Unreadable;
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walker);
    TypeCollector collector(candidates.allEntities, candidates.drawingTypeEntities);
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        KdDbEntity* entity = nullptr;
        if (iterator->getEntity(entity, KdDb::kForRead) != eOk)
            continue;
        if (!isSheetViewport(*entity) && entity->isA())
            collector.add(*entity);
        entity->close();
    }
    return candidates.drawingTypeEntities.empty() ? SpaceStatus::Empty : SpaceStatus::Ready;
}

void tellNoObjects()
{
    __ResourceString text(78041, L"There are no objects in the current drawing.");
    MessageBoxW(kdsw_kdadMainWnd(), text, GetOemProductName(), 0);
    kwdrawMainAppService()->focusDrawing();
}

void gatherSelection(const long* ss, Candidates& candidates)
{
    if (ss && memberCount(ss) > 0) {
        HostSet start;
        start.addMembersOf(ss);
        candidates.given = ss;
        gatherMembers(start.name(), candidates);
        return;
    }
    const HostSet start = HostSet::implied();
    if (start.status() == RTNORM)
        gatherMembers(start.name(), candidates);
}

void rememberColorOfStart(const Candidates& candidates)
{
    if (!candidates.firstMember)
        return;
    const KdCmColor color = candidates.firstMember->color();
    if (std::find(gComboValues.begin(), gComboValues.end(), color) == gComboValues.end())
        gComboValues.push_back(color);
}
