/// Leaders of both kinds.
#pragma once

#include <entities/curve.h>

KD_DB_PLAIN_ENTITY(KdDbLeader, KdDbCurve)
KD_DB_PLAIN_ENTITY(KdDbMLeader, KdDbEntity)
