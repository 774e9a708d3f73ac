#include <editor/current_space.h>

#include <editor/system_variables.h>

#include <database/database.h>

namespace {

bool variableIs(const wchar_t* name, short value)
{
    resbuf record{};
    return kdedGetVar(name, &record) == RTNORM && record.resval.rint == value;
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
