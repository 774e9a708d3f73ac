/// Hatches, and polygons filled like them.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbHatch, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbMPolygon, KdDbEntity)
