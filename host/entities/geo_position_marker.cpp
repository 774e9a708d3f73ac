#include <entities/geo_position_marker.h>

#include <database/database.h>

KD_RX_DEFINE(KdDbGeoPositionMarker, KdDbEntity, L"AcDbGeoPositionMarker", L"POSITIONMARKER")

KdGePoint3d KdDbGeoPositionMarker::geoPosition() const
{
    if (!database())
        return {};
    const OpenForRead<KdDbGeoData> globe(KdDbGeoData::ofDrawing(*database()));
    return globe ? globe->toGlobe(position()) : KdGePoint3d();
}
