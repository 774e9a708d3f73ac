/// Curves that are made of segments, one behind the other. Segment i has the parameters from i to
/// i + 1.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include <geometry/curve.h>

/// Base of such curves: knows the parameters, and leaves the single segment to its children.
class KW_EXPORT KdGeSegmentChain3d : public KdGeCurve3d
{
  public:
    KdGeInterval interval() const override;
    KdGePoint3d evalPoint(double parameter) const override;
    double length(double from, double to, double tolerance) const override;
    KdGeVector3d areaVector() const override;

  protected:
    /// A part of a segment, in fractions of its parameters.
    struct Part
    {
        std::size_t segment;
        double from = 0.0;
        double to = 1.0;
    };

    virtual std::size_t segmentCount() const = 0;
    /// With no segments, what the only point is.
    virtual KdGePoint3d pointOf(std::size_t segment, double fraction) const = 0;
    virtual double lengthOf(const Part& part, double tolerance) const = 0;
    /// See `areaVector`, for the segment alone.
    virtual KdGeVector3d areaOf(std::size_t segment) const = 0;
};

/// Straight from point to point.
class KW_EXPORT KdGePolyline3d : public KdGeSegmentChain3d
{
  public:
    /// @param points  at least one
    explicit KdGePolyline3d(std::vector<KdGePoint3d> points) : m_points(std::move(points)) {}

    const std::vector<KdGePoint3d>& points() const { return m_points; }
    void addToExtents(KdGeExtents3d& extents) const override;

  protected:
    std::size_t segmentCount() const override;
    KdGePoint3d pointOf(std::size_t segment, double fraction) const override;
    double lengthOf(const Part& part, double tolerance) const override;
    KdGeVector3d areaOf(std::size_t segment) const override;

  private:
    std::vector<KdGePoint3d> m_points;
};

/// Curves of any bounded kind, each beginning where the one before it ends.
class KW_EXPORT KdGeCompositeCurve3d : public KdGeSegmentChain3d
{
  public:
    using Pieces = std::vector<std::unique_ptr<KdGeCurve3d>>;
    explicit KdGeCompositeCurve3d(Pieces pieces) : m_pieces(std::move(pieces)) {}

    const Pieces& pieces() const { return m_pieces; }
    void addToExtents(KdGeExtents3d& extents) const override;

  protected:
    std::size_t segmentCount() const override { return m_pieces.size(); }
    KdGePoint3d pointOf(std::size_t segment, double fraction) const override;
    double lengthOf(const Part& part, double tolerance) const override;
    KdGeVector3d areaOf(std::size_t segment) const override;

  private:
    Pieces m_pieces;
};
