/// Arcs of circles and ellipses. Angles are in radians.
#pragma once

#include <geometry/curve.h>
#include <geometry/turn.h>

/// A circular arc in the plane. Its parameter is the angle from the reference direction, against
/// the clock, or with it for a clockwise arc.
class KW_EXPORT KdGeCircArc2d
{
  public:
    /// The arc between two points. Its reference direction points from the centre to the start.
    /// @param bulge      tan of a quarter of the arc's angle, negative for clockwise; not 0
    /// @param asSagitta  the bulge is the height of the arc over its chord instead
    KdGeCircArc2d(const KdGePoint2d& start, const KdGePoint2d& end, double bulge, bool asSagitta);

    KdGePoint2d center() const { return m_center; }
    double radius() const { return m_radius; }
    KdGeVector2d refVec() const { return m_reference; }
    double startAng() const { return 0.0; }
    double endAng() const { return m_angle; }
    bool isClockWise() const { return m_clockwise; }
    double length() const { return m_radius * m_angle; }
    KdGePoint2d evalPoint(double parameter) const;

  private:
    KdGePoint2d m_center;
    KdGeVector2d m_reference; ///< of length 1
    double m_radius;
    double m_angle;
    bool m_clockwise;
};

/// What arcs of circles and ellipses share: the parameter t runs through
/// centre + first axis * cos t + second axis * sin t.
class KW_EXPORT KdGeRoundArc3d : public KdGeCurve3d
{
  public:
    KdGeInterval interval() const override { return m_interval; }
    KdGePoint3d evalPoint(double parameter) const override;
    void addToExtents(KdGeExtents3d& extents) const override;
    KdGeVector3d areaVector() const override;

    KdGePoint3d center() const { return m_center; }

  protected:
    /// An end below the start lies in the next turn.
    KdGeRoundArc3d(const KdGePoint3d& center, const KdGeVector3d& firstAxis,
                   const KdGeVector3d& secondAxis, double start, double end)
        : m_center(center),
          m_first(firstAxis),
          m_second(secondAxis),
          m_interval{start, KdGe::endOfTurn(start, end)}
    {
    }

    KdGePoint3d m_center;
    KdGeVector3d m_first;
    KdGeVector3d m_second;
    KdGeInterval m_interval;
};

/// The parameter is the angle from the reference direction, about the normal.
class KW_EXPORT KdGeCircArc3d : public KdGeRoundArc3d
{
  public:
    /// The whole circle; its reference direction follows from the arbitrary axis rule.
    KdGeCircArc3d(const KdGePoint3d& center, const KdGeVector3d& normal, double radius);
    /// @param normal, reference  of any length, across each other
    KdGeCircArc3d(const KdGePoint3d& center, const KdGeVector3d& normal,
                  const KdGeVector3d& reference, double radius, double startAngle, double endAngle);

    double radius() const { return m_radius; }
    KdGeVector3d normal() const { return m_normal; }
    KdGeVector3d refVec() const { return m_first.normal(); }
    double startAng() const { return m_interval.lower; }
    double endAng() const { return m_interval.upper; }
    double length(double from, double to, double tolerance) const override;
    /// Lets the arc run the other way: the normal turns round, and the angles change their signs.
    void reverseParam();

  private:
    KdGeVector3d m_normal;
    double m_radius;
};

/// The parameter is no angle but a circle's, squeezed along the minor axis.
class KW_EXPORT KdGeEllipArc3d : public KdGeRoundArc3d
{
  public:
    /// @param majorAxis, minorAxis  directions of any length, across each other
    KdGeEllipArc3d(const KdGePoint3d& center, const KdGeVector3d& majorAxis,
                   const KdGeVector3d& minorAxis, double majorRadius, double minorRadius,
                   double startParam = 0.0, double endParam = KdGe::kTurn);

    double majorRadius() const { return m_first.length(); }
    double minorRadius() const { return m_second.length(); }
    double length(double from, double to, double tolerance) const override;
};
