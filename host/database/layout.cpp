#include <database/layout.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbPlotSettings, KdDbObject, L"AcDbPlotSettings", L"PLOTSETTINGS")
KD_RX_DEFINE(KdDbLayout, KdDbPlotSettings, L"AcDbLayout", L"LAYOUT")

KdDbObjectId KdDbLayout::lastActiveViewportId() const
{
    KdDbObjectId id;
    if (database() && data().lastActiveViewport != 0)
        database()->getObjectId(id, data().lastActiveViewport);
    return id;
}

namespace {

const KdDbDatabase* orWorking(const KdDbDatabase* database)
{
    return database ? database : kddbHostApplicationServices()->workingDatabase();
}

bool showsModel(const KdDbDatabase& database)
{
    return database.header().integer(L"TILEMODE") != 0;
}

} // namespace

KdDbObjectId KdDbLayoutManager::getActiveLayoutBTRId(const KdDbDatabase* database) const
{
    const KdDbDatabase* drawing = orWorking(database);
    if (!drawing)
        return {};
    return showsModel(*drawing) ? drawing->modelSpaceId() : drawing->activeSheetId();
}

KdDbObjectId KdDbLayoutManager::findBlock(const wchar_t* layoutName,
                                          const KdDbDatabase* database) const
{
    const KdDbDatabase* drawing = orWorking(database);
    if (!drawing)
        return {};
    const OpenForRead<KdDbDictionary> named(drawing->namedObjectsDictionaryId());
    KdDbObjectId id;
    if (!named || named->getAt(L"ACAD_LAYOUT", id) != eOk)
        return {};
    const OpenForRead<KdDbDictionary> layouts(id);
    if (!layouts || layouts->getAt(layoutName, id) != eOk)
        return {};
    const OpenForRead<KdDbLayout> layout(id);
    return layout ? layout->getBlockTableRecordId() : KdDbObjectId();
}

KdErrorStatus KdDbLayoutManager::setCurrentLayout(const wchar_t* name, KdDbDatabase* database)
{
    KdDbDatabase* drawing = database ? database : kddbHostApplicationServices()->workingDatabase();
    const KdDbObjectId block = findBlock(name, drawing);
    if (block.isNull())
        return eKeyNotFound;
    const bool isModel = block == drawing->modelSpaceId();
    if (!isModel)
        drawing->setActiveSheet(block);
    drawing->header().setValue(KdDbHeaderVariables::indexOf(L"TILEMODE"), isModel ? 1 : 0);
    return eOk;
}
