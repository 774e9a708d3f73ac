/// Splines, and helices, which are splines with a rule of their own.
#pragma once

#include <span>
#include <vector>

#include <entities/curve.h>

struct KW_EXPORT SplineMembers : EntityMembers
{
    std::vector<double> knots;
    std::vector<KdGePoint3d> controlPoints; ///< WCS
    std::vector<double> weights;            ///< one for each control point; empty: all 1
    std::vector<KdGePoint3d> fitPoints;     ///< WCS
    KdGeVector3d startTangent;              ///< WCS; without length: not given
    KdGeVector3d endTangent;
    KdGeVector3d normal{0.0, 0.0, 1.0}; ///< WCS, of any length; counts for a planar spline only
    double knotTolerance = 1e-7;
    double controlPointTolerance = 1e-7;
    double fitTolerance = 1e-10;
    std::int16_t degree = 3;
    bool closed = false;
    bool periodic = false;
    bool planar = false;

    /// Makes knots and control points from the fit points if there are no control points.
    void fitCurve();
};

/// What defines the curve of a spline. The lists are those of the spline and live as long as it
/// stays unchanged.
struct KdDbNurbsData
{
    int degree = 0;
    bool rational = false;
    bool closed = false;
    bool periodic = false;
    std::span<const double> knots;
    std::span<const KdGePoint3d> controlPoints; ///< WCS
    std::span<const double> weights;            ///< empty: all the same
    double knotTolerance = 0.0;
    double controlPointTolerance = 0.0;
};

class KW_EXPORT KdDbSpline : public KdDbCurve
{
    KD_RX_DECLARE(KdDbSpline)
    KD_DB_MEMBERS(SplineMembers)

    int degree() const { return data().degree; }
    KdDbNurbsData getNurbsData() const;
    int numControlPoints() const { return static_cast<int>(data().controlPoints.size()); }
    /// In WCS, counted from 0. `eOutOfRange` if there is none, `point` untouched.
    KdErrorStatus getControlPointAt(int index, KdGePoint3d& point) const;
    /// 1 where the spline gives none.
    double weightAt(int index) const;

    int numFitPoints() const { return static_cast<int>(data().fitPoints.size()); }
    /// In WCS, counted from 0. `eOutOfRange` if there is none, `point` untouched.
    KdErrorStatus getFitPointAt(int index, KdGePoint3d& point) const;
    /// Directions at the ends, in WCS, as the drawing has them; no length for one that is not
    /// given. `eNotApplicable` if neither is, the outputs untouched.
    KdErrorStatus getFitTangents(KdGeVector3d& start, KdGeVector3d& end) const;
    /// How far the curve may pass by its fit points.
    double fitTolerance() const { return data().fitTolerance; }

    bool isClosed() const override;
    bool isPlanar() const override;
    /// Across the plane of a planar spline; in WCS, of length 1.
    KdGeVector3d normal() const { return data().normal.normal(); }
    /// The fit points, or the control points if there are none.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The parameter is that of the knots. There is no geometry if knots, control points and
    /// weights do not fit each other.
    KdErrorStatus askGeometry(const Question& question) const override;
};

namespace KdDb {
/// Which of its measures a helix keeps when another one is changed.
enum HelixConstraint : std::int16_t
{
    kHelixHeight = 0,
    kHelixTurnHeight = 1,
    kHelixTurns = 2,
};
} // namespace KdDb

struct KW_EXPORT HelixMembers : SplineMembers
{
    KdGePoint3d axisPoint;            ///< WCS, at the height of the start
    KdGePoint3d startPoint;           ///< WCS
    KdGeVector3d axis{0.0, 0.0, 1.0}; ///< WCS, of any length
    double topRadius = 0.0;
    double turns = 0.0;
    double turnHeight = 0.0;
    std::int16_t constraint = KdDb::kHelixHeight; ///< may be none of the three in a damaged drawing
    bool rightHanded = true;
};

/// The rule and the spline stand side by side in a drawing; points, lengths and extents are those
/// of the spline.
class KW_EXPORT KdDbHelix : public KdDbSpline
{
    KD_RX_DECLARE(KdDbHelix)
    KD_DB_MEMBERS(HelixMembers)

    /// The middle of the first turn, in WCS.
    KdGePoint3d position() const { return data().axisPoint; }
    /// In WCS, of length 1.
    KdGeVector3d axisVector() const { return data().axis.normal(); }
    double baseRadius() const { return data().axisPoint.distanceTo(data().startPoint); }
    double topRadius() const { return data().topRadius; }
    double turns() const { return data().turns; }
    double turnHeight() const { return data().turnHeight; }
    double height() const { return turns() * turnHeight(); }
    /// How steeply it rises: the height of a turn against its way around, at the middle of base and
    /// top radius; 0 without a radius.
    double turnSlope() const;
    /// A `KdDb::HelixConstraint`, or another number as the drawing has it.
    int constrain() const { return data().constraint; }
    /// True if it turns counter-clockwise as it rises.
    bool twist() const { return data().rightHanded; }
};
