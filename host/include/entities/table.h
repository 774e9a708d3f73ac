/// Tables.
#pragma once

#include <entities/block_reference.h>

/// A table; the block that it refers to holds what it looks like.
KD_DB_PLAIN_ENTITY(KdDbTable, KdDbBlockReference)
