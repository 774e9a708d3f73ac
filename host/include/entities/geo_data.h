/// How a drawing lies on the globe.
#pragma once

#include <vector>

#include <database/object.h>
#include <geometry/point.h>

class KdDbDatabase;

struct KW_EXPORT GeoDataMembers : ObjectMembers
{
    KdGePoint3d designPoint;    ///< WCS
    KdGePoint3d referencePoint; ///< the same place: longitude and latitude in degrees, height
    KdGeVector2d north{0.0, 1.0};
    double horizontalUnitScale = 1.0; ///< metres for one drawing unit
    double verticalUnitScale = 1.0;
    /// Corners of triangles in the drawing and, one by one, on the globe in degrees. Where there
    /// are such, they are more exact than the reference point.
    std::vector<KdGePoint2d> meshInDrawing;
    std::vector<KdGePoint2d> meshOnGlobe;
    std::vector<std::int32_t> meshFaces; ///< three corners each, counted from 0
};

class KW_EXPORT KdDbGeoData : public KdDbObject
{
    KD_RX_DECLARE(KdDbGeoData)
    KD_DB_MEMBERS(GeoDataMembers)

    /// The one of a drawing; the null id if the drawing is not tied to the globe.
    static KdDbObjectId ofDrawing(const KdDbDatabase& database);

    /// Longitude and latitude in degrees and the height above sea level of a point in WCS.
    KdGePoint3d toGlobe(const KdGePoint3d& point) const;
};
