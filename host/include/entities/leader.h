/// Leaders.
#pragma once

#include <entities/curve.h>

KD_DB_PLAIN_ENTITY(KdDbLeader, KdDbCurve)
