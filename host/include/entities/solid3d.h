/// Solids, bodies and regions.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDb3dSolid, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbBody, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbRegion, KdDbEntity)
