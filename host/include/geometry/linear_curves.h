/// Straight curves. Their parameter is the distance along them.
#pragma once

#include <geometry/curve.h>

/// From a point to another one.
class KW_EXPORT KdGeLineSeg3d : public KdGeCurve3d
{
  public:
    KdGeLineSeg3d(const KdGePoint3d& start, const KdGePoint3d& end) : m_start(start), m_end(end) {}

    KdGeInterval interval() const override;
    KdGePoint3d evalPoint(double parameter) const override;
    double length(double from, double to, double tolerance) const override;
    void addToExtents(KdGeExtents3d& extents) const override;

  private:
    KdGePoint3d m_start;
    KdGePoint3d m_end;
};

/// Through a point both ways, without end.
class KW_EXPORT KdGeLine3d : public KdGeCurve3d
{
  public:
    /// @param direction  of any length
    KdGeLine3d(const KdGePoint3d& point, const KdGeVector3d& direction)
        : m_point(point), m_direction(direction.normal())
    {
    }
    KdGeLine3d(const KdGePoint3d& point, const KdGePoint3d& other)
        : KdGeLine3d(point, other - point)
    {
    }

    KdGeInterval interval() const override;
    KdGePoint3d evalPoint(double parameter) const override;
    double length(double from, double to, double tolerance) const override;
    void addToExtents(KdGeExtents3d&) const override {}

  private:
    KdGePoint3d m_point;
    KdGeVector3d m_direction;
};

/// From a point on, without end.
class KW_EXPORT KdGeRay3d : public KdGeLine3d
{
  public:
    using KdGeLine3d::KdGeLine3d;
    KdGeInterval interval() const override;
};
