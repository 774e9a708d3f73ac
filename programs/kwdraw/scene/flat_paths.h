/// Paths of flat entities, which keep their points in a plane.
#pragma once

#include <geometry/matrix.h>
#include <kwdraw/scene/scene_writer.h>

/// From the plane of an entity to the frame in which shapes are given.
class FlatFrame
{
  public:
    FlatFrame(const KdGeVector3d& normal, double elevation)
        : m_toWorld(KdGeMatrix3d::planeToWorld(normal)), m_elevation(elevation)
    {
    }
    KdGePoint3d operator()(const KdGePoint2d& point) const
    {
        return m_toWorld * KdGePoint3d{point.x, point.y, m_elevation};
    }
    KdGeVector3d operator()(const KdGeVector2d& vector) const
    {
        return m_toWorld * KdGeVector3d{vector.x, vector.y, 0.0};
    }

  private:
    KdGeMatrix3d m_toWorld;
    double m_elevation;
};

/// A piece of a polyline: straight, or an arc that leaves and arrives in known directions.
struct FlatSegment
{
    KdGePoint2d start;
    KdGePoint2d end;
    double bulge = 0.0; ///< tan of a quarter of the arc's angle, negative for clockwise

    bool isArc() const;
    double turn() const;           ///< radians, negative for clockwise; 0 if straight
    double startDirection() const; ///< radians
    double endDirection() const { return startDirection() + turn(); }
    /// Radius of the arc, below 0 for clockwise.
    double signedRadius() const;
    /// Must be an arc.
    KdGePoint2d center() const;
    double length() const;
    /// From one part of its length, counted from 0 to 1, to another one.
    FlatSegment part(double from, double to) const;
};

/// Goes on along the segment from its start, where the path must be.
void addSegment(ScenePath& path, const FlatFrame& frame, const FlatSegment& segment);
