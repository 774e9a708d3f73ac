// Boxes around the contents of blocks.
#pragma once

#include <database/entity.h>

/// The box around all that a block draws, in its own frame. References and dimensions in it count
/// by the boxes of what they show. `eNotApplicable` if there is no such block or nothing with a
/// size in it, `extents` untouched.
KdErrorStatus extentsOfBlock(KdDbObjectId block, KdGeExtents3d& extents);
