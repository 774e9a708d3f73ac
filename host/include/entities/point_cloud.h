/// Point clouds.
#pragma once

#include <entities/declare.h>
#include <geometry/point.h>

struct KW_EXPORT PointCloudDefExMembers : ObjectMembers
{
    KdString sourceFileName;
};

/// The file behind a point cloud.
class KW_EXPORT KdDbPointCloudDefEx : public KdDbObject
{
    KD_RX_DECLARE(KdDbPointCloudDefEx)
    KD_DB_MEMBERS(PointCloudDefExMembers)

    /// The path as the drawing has it.
    const KdString& sourceFileName() const { return data().sourceFileName; }
};

struct KW_EXPORT PointCloudExMembers : EntityMembers
{
    KdGePoint3d origin;                ///< WCS
    KdGeVector3d xAxis{1.0, 0.0, 0.0}; ///< WCS, as long as the cloud is scaled
    KdDbObjectId definition;
    KdString name;
    std::int16_t stylization = 0;
    bool locked = false;
    bool showCropped = false;
};

class KW_EXPORT KdDbPointCloudEx : public KdDbEntity
{
    KD_RX_DECLARE(KdDbPointCloudEx)
    KD_DB_MEMBERS(PointCloudExMembers)

    /// In WCS.
    KdGePoint3d location() const { return data().origin; }
    /// In radians, counter-clockwise from the world's X as seen from above.
    double rotation() const;
    /// Drawing units for a metre of the cloud.
    double scale() const { return data().xAxis.length(); }
    const KdString& getPointCloudName() const { return data().name; }
    /// The path of the file as the drawing has it; empty if its definition is not there.
    KdString getActiveFileName() const;
    /// The number by which the points are coloured: 1 as scanned, 2 as the object, 3 by normals.
    int stylizationType() const { return data().stylization; }
    bool showCropped() const { return data().showCropped; }
    bool locked() const { return data().locked; }
};
