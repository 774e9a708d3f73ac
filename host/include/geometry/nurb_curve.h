/// Splines.
#pragma once

#include <array>
#include <memory>
#include <span>
#include <vector>

#include <geometry/curve.h>

/// A Bezier curve of degree 3, from the first control point to the last.
using KdGeCubic3d = std::array<KdGePoint3d, 4>;

/// A rational or plain B-spline curve. The parameter is that of its knots.
class KW_EXPORT KdGeNurbCurve3d : public KdGeCurve3d
{
  public:
    /// @param degree         from 1 to 25
    /// @param knots          not falling, as many as there are points, plus the degree, plus 1
    /// @param controlPoints  more than the degree
    /// @param weights        above 0, one for each control point; empty: all the same
    /// @return               null if these make no curve
    static std::unique_ptr<KdGeNurbCurve3d> create(int degree, std::span<const double> knots,
                                                   std::span<const KdGePoint3d> controlPoints,
                                                   std::span<const double> weights = {});
    ~KdGeNurbCurve3d() override;

    /// The part between two parameters, run through from the first one to the last, which may be
    /// lower. Null for a part without length.
    std::unique_ptr<KdGeNurbCurve3d> part(double first, double last) const;

    /// The curve as cubic pieces, one behind the other: a plain curve of a degree up to 3 exactly,
    /// any other one so that it is off by less than a ten-millionth of its size.
    std::vector<KdGeCubic3d> cubicPieces() const;

    KdGeInterval interval() const override;
    KdGePoint3d evalPoint(double parameter) const override;
    double length(double from, double to, double tolerance) const override;
    void addToExtents(KdGeExtents3d& extents) const override;
    KdGeVector3d areaVector() const override;

  private:
    struct Kernel;
    explicit KdGeNurbCurve3d(std::unique_ptr<Kernel> kernel);

    std::unique_ptr<Kernel> m_kernel;
};

/// Points through which a curve of degree 3 with steady curvature is to run.
struct KdGeFitData
{
    std::span<const KdGePoint3d> points;
    KdGeVector3d startTangent; ///< only the direction counts; no length: left free
    KdGeVector3d endTangent;
    bool closed = false; ///< the curve runs on from the last point to the first
};

/// What defines such a curve.
struct KdGeFitCurve
{
    std::vector<double> knots;
    std::vector<KdGePoint3d> controlPoints;
};

/// The curve through fit points; its parameter is the way from point to point. An end that is left
/// free has no curvature; in a closed curve it has that of the other end instead. Empty if there
/// are not two different points.
KW_EXPORT KdGeFitCurve kdgeInterpolate(const KdGeFitData& data);
