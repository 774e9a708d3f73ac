#include <command/gathering.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <unordered_set>

#include <database/database.h>
#include <editor/selection_sets.h>
#include <editor/system_variables.h>
#include <entities/viewport.h>
#include <platform/main_app_service.h>
#include <platform/message_box.h>

#include <values/class_map.h>
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

/// Collects entities and the first one of each display name.
class TypeCollector
{
  public:
    TypeCollector(CandidateList& all, std::vector<KdDbEntity*>& types) : m_all(all), m_types(types)
    {
    }

    /// The entity's class must be known.
    void add(KdDbEntity& entity)
    {
        if (m_all.add(entity) < m_kindsSeen)
            return;
        m_kindsSeen = m_all.kinds().size();
        const std::wstring& name = m_all.kinds().back().displayName;
        if (!name.empty() && m_names.insert(name).second)
            m_types.push_back(&entity);
    }

  private:
    CandidateList& m_all;
    std::vector<KdDbEntity*>& m_types;
    std::size_t m_kindsSeen = 0;
    std::unordered_set<std::wstring> m_names; ///< those that an entity of `m_types` has
};

/// Tells the viewport that shows a sheet itself.
class SheetViewportTest
{
  public:
    bool operator()(const KdDbEntity& entity, const KdRxClass& rxClass)
    {
        Kind& kind = m_classes.at(&rxClass);
        if (kind == Kind::Unknown)
            kind = rxClass.isDerivedFrom(KdDbViewport::desc()) ? Kind::Viewport : Kind::Other;
        return kind == Kind::Viewport &&
               static_cast<const KdDbViewport&>(entity).number() == kSheetViewport;
    }

  private:
    enum class Kind : std::uint8_t
    {
        Unknown,
        Viewport,
        Other,
    };
    ClassMap<Kind> m_classes;
};

SpaceStatus gatherBlock(KdDbObjectId block, Candidates& candidates)
{
    const OpenForRead<KdDbBlockTableRecord> space(block);
    KdDbBlockTableRecordIterator* walker = nullptr;
    if (!space || space->newIterator(walker, true, true) != eOk || !walker)
        return SpaceStatus::Unreadable;
    const std::unique_ptr<KdDbBlockTableRecordIterator> iterator(walker);
    TypeCollector collector(candidates.allEntities, candidates.drawingTypeEntities);
    SheetViewportTest isSheetViewport;
    candidates.allEntities.reserve(space->entityIds().size());
    for (iterator->start(true, true); !iterator->done(); iterator->step(true, true)) {
        KdDbEntity* entity = nullptr;
        if (iterator->getEntity(entity, KdDb::kForRead) != eOk)
            continue;
        const KdRxClass* rxClass = entity->isA();
        if (rxClass && !isSheetViewport(*entity, *rxClass))
            collector.add(*entity);
        entity->close();
    }
    return candidates.drawingTypeEntities.empty() ? SpaceStatus::Empty : SpaceStatus::Ready;
}

/// What was gathered while the drawing is held.
struct Held
{
    bool isHolding = false;
    std::optional<KdDbObjectId> space; ///< none: nothing was gathered yet
    SpaceStatus status = SpaceStatus::Unreadable;
    Candidates found;
};
Held held;

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
    if (!held.isHolding)
        return gatherBlock(currentSpace(), candidates);
    const KdDbObjectId space = currentSpace();
    if (!held.space || *held.space != space) {
        held.found = {};
        held.status = gatherBlock(space, held.found);
        held.space = space;
    }
    candidates.allEntities = held.found.allEntities;
    candidates.drawingTypeEntities = held.found.drawingTypeEntities;
    return held.status;
}

void holdDrawing(bool hold)
{
    held = {};
    held.isHolding = hold;
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
