/// Dimensions of angles and of arcs.
#pragma once

#include <entities/dimension.h>

struct KW_EXPORT TwoLineAngularDimensionMembers : DimensionMembers
{
    KdGePoint3d xLine1Start; ///< WCS, like all but the last
    KdGePoint3d xLine1End;
    KdGePoint3d xLine2Start;
    KdGePoint3d xLine2End;
    KdGePoint3d arcPoint; ///< OCS, on the dimension arc
};

/// Measures the angle between two lines in the sector of the arc point. `eInvalidInput` for lines
/// that do not meet.
class KW_EXPORT KdDb2LineAngularDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDb2LineAngularDimension)
    KD_DB_MEMBERS(TwoLineAngularDimensionMembers)

    KdGePoint3d xLine1Start() const { return data().xLine1Start; }
    KdGePoint3d xLine1End() const { return data().xLine1End; }
    KdGePoint3d xLine2Start() const { return data().xLine2Start; }
    KdGePoint3d xLine2End() const { return data().xLine2End; }
    KdGePoint3d arcPoint() const { return data().extrusion.toWorld(data().arcPoint); }

  protected:
    KdErrorStatus measure(double& value) const override;
    bool measuresAngle() const override;
};

struct KW_EXPORT ThreePointAngularDimensionMembers : DimensionMembers
{
    KdGePoint3d xLine1Point; ///< WCS, like all
    KdGePoint3d xLine2Point;
    KdGePoint3d centerPoint;
    KdGePoint3d arcPoint; ///< on the dimension arc
};

/// Measures the angle at a centre between the directions to two points, in the sector of the arc
/// point. `eInvalidInput` if one of them is the centre.
class KW_EXPORT KdDb3PointAngularDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDb3PointAngularDimension)
    KD_DB_MEMBERS(ThreePointAngularDimensionMembers)

    KdGePoint3d xLine1Point() const { return data().xLine1Point; }
    KdGePoint3d xLine2Point() const { return data().xLine2Point; }
    KdGePoint3d centerPoint() const { return data().centerPoint; }
    KdGePoint3d arcPoint() const { return data().arcPoint; }

  protected:
    KdErrorStatus measure(double& value) const override;
    bool measuresAngle() const override;
};

struct KW_EXPORT ArcDimensionMembers : ThreePointAngularDimensionMembers
{
    KdGePoint3d leader1Point;   ///< WCS
    KdGePoint3d leader2Point;   ///< WCS
    double arcStartParam = 0.0; ///< radians; where both are 0, the points give the arc
    double arcEndParam = 0.0;
    bool partial = false;
    bool leader = false;
};

/// Measures the length of an arc: the centre and the first point give its radius.
class KW_EXPORT KdDbArcDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbArcDimension)
    KD_DB_MEMBERS(ArcDimensionMembers)

    KdGePoint3d xLine1Point() const { return data().xLine1Point; }
    KdGePoint3d xLine2Point() const { return data().xLine2Point; }
    KdGePoint3d centerPoint() const { return data().centerPoint; }
    KdGePoint3d arcPoint() const { return data().arcPoint; }
    KdGePoint3d leader1Point() const { return data().leader1Point; }
    KdGePoint3d leader2Point() const { return data().leader2Point; }
    double arcStartParam() const { return data().arcStartParam; }
    double arcEndParam() const { return data().arcEndParam; }
    /// True if only a part of the arc is measured.
    bool isPartial() const { return data().partial; }
    bool hasLeader() const { return data().leader; }

  protected:
    KdErrorStatus measure(double& value) const override;
};
