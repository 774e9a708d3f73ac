/// Markers of places on the globe.
#pragma once

#include <memory>

#include <entities/declare.h>
#include <entities/geo_data.h>
#include <entities/mtext.h>

struct KW_EXPORT GeoPositionMarkerMembers : EntityMembers
{
    KdGePoint3d position; ///< WCS
    double radius = 0.0;
    double landingGap = 0.0;
    KdString notes;
    std::unique_ptr<KdDbMText> mtext = std::make_unique<KdDbMText>(); ///< never null
    std::int16_t textAlignment = 0;
};

class KW_EXPORT KdDbGeoPositionMarker : public KdDbEntity
{
    KD_RX_DECLARE(KdDbGeoPositionMarker)
    KD_DB_MEMBERS(GeoPositionMarkerMembers)

    /// The numbers are those of drawing files.
    enum TextAlignmentType
    {
        kLeft = 0,
        kCenter = 1,
        kRight = 2,
    };

    /// In WCS.
    KdGePoint3d position() const { return data().position; }
    double radius() const { return data().radius; }
    /// Between the text and its frame.
    double landingGap() const { return data().landingGap; }
    const KdString& notes() const { return data().notes; }
    /// The text beside the marker. It is no entity of the drawing but a part of this one.
    const KdDbMText& mtext() const { return *data().mtext; }
    /// A `TextAlignmentType`, or what else a damaged drawing holds.
    int textAlignmentType() const { return data().textAlignment; }
    /// Longitude and latitude in degrees and the height above sea level; the origin in a drawing
    /// that is not tied to the globe.
    KdGePoint3d geoPosition() const;
};
