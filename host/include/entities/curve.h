/// The base of everything that has a length.
#pragma once

#include <entities/declare.h>
#include <geometry/point.h>

/// A curve is run through by a parameter from start to end; what the parameter measures is the
/// matter of each kind. Every operation that gives something answers `eNotApplicable`, with the
/// output untouched, where a kind has no such thing. Points are in WCS.
class KW_EXPORT KdDbCurve : public KdDbEntity
{
    KD_RX_DECLARE(KdDbCurve)

    /// True if the curve runs back into its start. Here: false.
    virtual bool isClosed() const;

    virtual KdErrorStatus getStartParam(double& parameter) const;
    /// Not below the start, and one period of the parameter behind it if the curve is closed.
    virtual KdErrorStatus getEndParam(double& parameter) const;
    virtual KdErrorStatus getStartPoint(KdGePoint3d& point) const;
    virtual KdErrorStatus getEndPoint(KdGePoint3d& point) const;
    /// The area inside, in square drawing units; an open curve counts as closed by a straight line.
    virtual KdErrorStatus getArea(double& area) const;
};
