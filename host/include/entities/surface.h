/// Surfaces.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbSurface, KdDbEntity)
KD_DB_PLAIN_ENTITY(KdDbExtrudedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbLoftedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbPlaneSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbRevolvedSurface, KdDbSurface)
KD_DB_PLAIN_ENTITY(KdDbSweptSurface, KdDbSurface)
