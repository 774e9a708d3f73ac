/// Dimensions of radii and diameters.
#pragma once

#include <entities/dimension.h>

struct KW_EXPORT DiametricDimensionMembers : DimensionMembers
{
    KdGePoint3d chordPoint;    ///< WCS, on the circle
    KdGePoint3d farChordPoint; ///< WCS, across from it
    double leaderLength = 0.0;
};

/// Measures the diameter of a circle.
class KW_EXPORT KdDbDiametricDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbDiametricDimension)
    KD_DB_MEMBERS(DiametricDimensionMembers)

    KdGePoint3d chordPoint() const { return data().chordPoint; }
    KdGePoint3d farChordPoint() const { return data().farChordPoint; }
    double leaderLength() const { return data().leaderLength; }

  protected:
    KdErrorStatus measure(double& value) const override;
};

struct KW_EXPORT RadialDimensionMembers : DimensionMembers
{
    KdGePoint3d center;     ///< WCS
    KdGePoint3d chordPoint; ///< WCS, on the circle
    double leaderLength = 0.0;
};

/// Measures the radius of a circle.
class KW_EXPORT KdDbRadialDimension : public KdDbDimension
{
    KD_RX_DECLARE(KdDbRadialDimension)
    KD_DB_MEMBERS(RadialDimensionMembers)

    KdGePoint3d center() const { return data().center; }
    KdGePoint3d chordPoint() const { return data().chordPoint; }
    double leaderLength() const { return data().leaderLength; }

  protected:
    KdErrorStatus measure(double& value) const override;
};

struct KW_EXPORT RadialDimensionLargeMembers : DimensionMembers
{
    KdGePoint3d center; ///< WCS, like all
    KdGePoint3d chordPoint;
    KdGePoint3d overrideCenter; ///< from where the dimension line is drawn
    KdGePoint3d jogPoint;
};

/// Measures a radius with a dimension line that has a jog, since the centre lies far off.
class KW_EXPORT KdDbRadialDimensionLarge : public KdDbDimension
{
    KD_RX_DECLARE(KdDbRadialDimensionLarge)
    KD_DB_MEMBERS(RadialDimensionLargeMembers)

    KdGePoint3d center() const { return data().center; }
    KdGePoint3d chordPoint() const { return data().chordPoint; }
    KdGePoint3d overrideCenter() const { return data().overrideCenter; }
    KdGePoint3d jogPoint() const { return data().jogPoint; }
    /// In radians: that of the style, unless the dimension sets its own.
    double jogAngle() const { return dimjogang(); }

  protected:
    KdErrorStatus measure(double& value) const override;
};
