/// The space that the user works in. For the main thread.
#pragma once

#include <database/object_id.h>

/// The block table record of the current space of the working drawing: the active sheet while
/// "TILEMODE" is 0 and "CVPORT" is 1, otherwise the model, also in a viewport of a sheet. The null
/// id if there is no working database, or if the sheet is wanted and the program has no layouts.
KW_EXPORT KdDbObjectId kdedCurrentSpaceId();
