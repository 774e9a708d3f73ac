#include <entities/geo_position_marker.h>

KD_RX_DEFINE(KdDbGeoPositionMarker, KdDbEntity, L"AcDbGeoPositionMarker", L"POSITIONMARKER")
