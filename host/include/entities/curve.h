/// The base of everything that has a length.
#pragma once

#include <functional>

#include <entities/declare.h>
#include <geometry/curve.h>

/// A curve is run through by a parameter from start to end; what the parameter measures is the
/// matter of each kind. Every operation that gives something answers `eNotApplicable`, with the
/// output untouched, where a kind has no such thing. Points are in WCS.
class KW_EXPORT KdDbCurve : public KdDbEntity
{
    KD_RX_DECLARE(KdDbCurve)

    /// True if the curve runs back into its start. Here: false.
    virtual bool isClosed() const;
    /// Here: true, since most curves are flat.
    bool isPlanar() const override;

    virtual KdErrorStatus getStartParam(double& parameter) const;
    /// Not below the start, and one period of the parameter behind it if the curve is closed.
    virtual KdErrorStatus getEndParam(double& parameter) const;
    virtual KdErrorStatus getStartPoint(KdGePoint3d& point) const;
    /// The start of a closed curve.
    virtual KdErrorStatus getEndPoint(KdGePoint3d& point) const;
    /// `eInvalidInput` for a parameter that the curve does not reach.
    virtual KdErrorStatus getPointAtParam(double parameter, KdGePoint3d& point) const;
    /// The way along the curve from its start, in drawing units. `eInvalidInput` as above.
    virtual KdErrorStatus getDistAtParam(double parameter, double& distance) const;
    /// The area inside, in square drawing units; an open curve counts as closed by a straight line.
    virtual KdErrorStatus getArea(double& area) const;

    /// The box of the curve and, where it has a thickness, of all that it is drawn out to; widths
    /// do not count.
    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;

  protected:
    using Question = std::function<KdErrorStatus(const KdGeCurve3d&)>;
    /// What `question` answers about the curve's geometry, which is in WCS and has the entity's
    /// parameter; the operations above rest on it. `eNotApplicable`, without asking, if there is
    /// none, as here.
    virtual KdErrorStatus askGeometry(const Question& question) const;
    /// How far a flat curve is drawn out of its plane, and where to. Here: not at all.
    virtual KdGeVector3d sweep() const;
};

/// Measures the area inside of a curve.
class KW_EXPORT KdDbCurveArea
{
  public:
    /// @param curve  stays with the caller; may be null, which has no area
    explicit KdDbCurveArea(const KdDbCurve* curve) : m_curve(curve) {}

    /// See `KdDbCurve::getArea`.
    KdErrorStatus getArea(double& area) const;

  private:
    const KdDbCurve* m_curve;
};
