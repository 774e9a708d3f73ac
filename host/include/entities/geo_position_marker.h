/// Markers of places on the globe.
#pragma once

#include <entities/declare.h>

KD_DB_PLAIN_ENTITY(KdDbGeoPositionMarker, KdDbEntity)
