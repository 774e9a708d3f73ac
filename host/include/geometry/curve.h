/// What all curves in space can tell.
#pragma once

#include <geometry/extents.h>

/// The parameters of a curve; infinite to the side on which it has no end.
struct KW_EXPORT KdGeInterval
{
    double lower = 0.0;
    double upper = 0.0;

    double length() const { return upper - lower; }
    bool isBounded() const;
    /// The nearest parameter that the interval holds.
    double clamped(double parameter) const;
};

/// A curve is run through by a parameter; what it measures is the matter of each kind.
class KW_EXPORT KdGeCurve3d
{
  public:
    virtual ~KdGeCurve3d();

    virtual KdGeInterval interval() const = 0;
    virtual KdGePoint3d evalPoint(double parameter) const = 0;
    /// The length of the curve between two parameters, whichever comes first. What lies outside of
    /// the interval does not count.
    /// @param tolerance  the error that the caller bears with, in drawing units; kinds that know
    ///                   their length exactly, or better, take no notice
    virtual double length(double from, double to, double tolerance) const = 0;
    /// Widens a box until it holds the curve. A curve without end leaves the box alone.
    virtual void addToExtents(KdGeExtents3d& extents) const = 0;
    /// The area that the curve encloses once a straight line joins its ends, as a vector across its
    /// plane, which sees the curve run counter-clockwise. No length for straight curves.
    virtual KdGeVector3d areaVector() const;

    /// False, with the point untouched, if the curve has no such end.
    bool hasStartPoint(KdGePoint3d& point) const;
    bool hasEndPoint(KdGePoint3d& point) const;

  protected:
    KdGeCurve3d() = default;
    KdGeCurve3d(const KdGeCurve3d&) = default;
    KdGeCurve3d& operator=(const KdGeCurve3d&) = default;
};
