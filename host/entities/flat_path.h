// The curve of a flat polyline.
#pragma once

#include <span>

#include <entities/extrusion.h>
#include <geometry/chains.h>

/// Lines and arcs between the vertices of a polyline, looked at where they are stored. They must
/// outlive the path.
class FlatPath : public KdGeSegmentChain3d
{
  public:
    struct Content
    {
        std::span<const KdGePoint2d> points; ///< object frame; at least one
        std::span<const double> bulges;      ///< of the segments behind the points; missing: 0
        double elevation = 0.0;
        bool closed = false;
    };

    FlatPath(const Content& content, const Extrusion& extrusion);

    void addToExtents(KdGeExtents3d& extents) const override;

  protected:
    std::size_t segmentCount() const override;
    KdGePoint3d pointOf(std::size_t segment, double fraction) const override;
    double lengthOf(const Part& part, double tolerance) const override;
    KdGeVector3d areaOf(std::size_t segment) const override;

  private:
    /// A segment in the object frame.
    struct Segment
    {
        KdGePoint2d start;
        KdGePoint2d end;
        double bulge;

        bool isArc() const;
    };

    Segment segmentAt(std::size_t index) const;
    KdGePoint3d toWorld(const KdGePoint2d& point) const;

    Content m_content;
    KdGeMatrix3d m_frame;
};
