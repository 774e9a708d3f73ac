/// The space that the user works in. For the main thread.
#pragma once

#include <database/object_id.h>

/// The block table record of the current space of the working drawing: the active sheet while
/// "TILEMODE" is 0 and "CVPORT" is 1, otherwise the model, also in a viewport of a sheet. The null
/// id if there is no working database, or if the sheet is wanted and the program has no layouts.
KW_EXPORT KdDbObjectId kdedCurrentSpaceId();

/// Opens a block definition: it becomes the current space, in the place of a sheet, until it is
/// closed or another layout is made current. The parameters, actions, grips and constraints of a
/// dynamic block are entities of the space meanwhile. A block that is open is closed first.
/// @return `eNotInDatabase` without a working database, `eInvalidInput` if `block` names no block,
///         `eWrongDatabase` for one of another drawing, `eNotApplicable` for the model, a sheet or
///         an external reference, `eWasErased`, `eWasOpenForRead` or `eWasOpenForWrite` if the
///         block can't be written to. Nothing new is shown then.
KW_EXPORT KdErrorStatus kdedOpenBlock(KdDbObjectId block);
/// Closes the block that is open and shows what was shown before, unless the user has gone
/// elsewhere. `eNotApplicable` if none is open.
KW_EXPORT KdErrorStatus kdedCloseBlock();
/// The block of the working drawing that is open; the null id if none is.
KW_EXPORT KdDbObjectId kdedOpenBlockId();
