#pragma once

#include <database/database.h>
#include <editor/units.h>

/// Calls `use` with the settings of the working database, or with initial ones where there is none.
template <class Use>
auto withWorkingHeader(Use use)
{
    if (const KdDbDatabase* database = kddbHostApplicationServices()->workingDatabase())
        return use(KdDbHeaderVar(database->header()));
    static const KdDbHeaderVariables initial;
    return use(KdDbHeaderVar(initial));
}
