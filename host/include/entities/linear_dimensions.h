/// Dimensions of distances between points.
#pragma once

#include <entities/dimension.h>

struct KW_EXPORT AlignedDimensionMembers : DimensionMembers
{
    KdGePoint3d xLine1Point;  ///< WCS, where the first extension line begins
    KdGePoint3d xLine2Point;  ///< WCS
    KdGePoint3d dimLinePoint; ///< WCS, on the dimension line
    double oblique = 0.0;     ///< radians, slant of the extension lines; 0: none
};

/// Measures the distance of two points.
class KW_EXPORT KdDbAlignedDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbAlignedDimension)
    KD_DB_MEMBERS(AlignedDimensionMembers)

    KdGePoint3d xLine1Point() const { return data().xLine1Point; }
    KdGePoint3d xLine2Point() const { return data().xLine2Point; }
    KdGePoint3d dimLinePoint() const { return data().dimLinePoint; }
    double oblique() const { return data().oblique; }

  protected:
    KdErrorStatus measure(double& value) const override;
};

struct KW_EXPORT RotatedDimensionMembers : AlignedDimensionMembers
{
    double rotation = 0.0; ///< radians in the object frame, direction of the dimension line
};

/// Measures the distance of two points along a direction.
class KW_EXPORT KdDbRotatedDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbRotatedDimension)
    KD_DB_MEMBERS(RotatedDimensionMembers)

    KdGePoint3d xLine1Point() const { return data().xLine1Point; }
    KdGePoint3d xLine2Point() const { return data().xLine2Point; }
    KdGePoint3d dimLinePoint() const { return data().dimLinePoint; }
    double oblique() const { return data().oblique; }
    double rotation() const { return data().rotation; }

  protected:
    KdErrorStatus measure(double& value) const override;
};

struct KW_EXPORT OrdinateDimensionMembers : DimensionMembers
{
    KdGePoint3d origin;         ///< WCS
    KdGePoint3d definingPoint;  ///< WCS, the feature
    KdGePoint3d leaderEndPoint; ///< WCS
    bool usesXAxis = false;
};

/// Measures how far a point lies from an origin, along the x or y axis of the user's frame.
class KW_EXPORT KdDbOrdinateDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbOrdinateDimension)
    KD_DB_MEMBERS(OrdinateDimensionMembers)

    KdGePoint3d origin() const { return data().origin; }
    KdGePoint3d definingPoint() const { return data().definingPoint; }
    KdGePoint3d leaderEndPoint() const { return data().leaderEndPoint; }
    bool isUsingXAxis() const { return data().usesXAxis; }
    bool isUsingYAxis() const { return !data().usesXAxis; }

  protected:
    KdErrorStatus measure(double& value) const override;
};
