/// Lightweight polylines: flat, with all vertices in one entity.
#pragma once

#include <vector>

#include <entities/curve.h>
#include <entities/extrusion.h>

/// Bulges and widths belong to the segment behind their vertex. Their lists end with the last
/// vertex that differs from the rule, so that a plain polyline keeps points alone.
struct KW_EXPORT PolylineMembers : EntityMembers
{
    struct Widths
    {
        double start = 0.0;
        double end = 0.0;
        bool operator==(const Widths&) const = default;
    };

    std::vector<KdGePoint2d> points; ///< OCS, x and y
    std::vector<double> bulges;      ///< tan of a quarter of the arc's angle; beyond the end: 0
    std::vector<Widths> widths;      ///< beyond the end: `constantWidth`
    double constantWidth = 0.0;      ///< to be set before the first vertex is added
    double elevation = 0.0;          ///< OCS, z
    Extrusion extrusion;
    bool closed = false;
    bool plinegen = false;

    void addVertex(const KdGePoint2d& point) { points.push_back(point); }
    /// The three below are about the vertex added last, and do nothing before the first one.
    void setLastBulge(double bulge);
    void setLastStartWidth(double width) { setLastWidth(&Widths::start, width); }
    void setLastEndWidth(double width) { setLastWidth(&Widths::end, width); }

    double bulgeAt(std::size_t vertex) const;
    Widths widthsAt(std::size_t vertex) const;

  private:
    void setLastWidth(double Widths::*side, double width);
};

class KW_EXPORT KdDbPolyline : public KdDbCurve
{
    KD_RX_DECLARE(KdDbPolyline)
    KD_DB_MEMBERS(PolylineMembers)

    unsigned int numVerts() const { return static_cast<unsigned int>(data().points.size()); }
    /// Reads of one vertex, counted from 0. `eOutOfRange` if there is none, the outputs untouched.
    /// The 2D point is in the object frame, the 3D point in WCS.
    KdErrorStatus getPointAt(unsigned int index, KdGePoint2d& point) const;
    KdErrorStatus getPointAt(unsigned int index, KdGePoint3d& point) const;
    /// tan of a quarter of the angle of the arc behind the vertex, negative for clockwise; 0 for a
    /// straight segment.
    KdErrorStatus getBulgeAt(unsigned int index, double& bulge) const;
    KdErrorStatus getWidthsAt(unsigned int index, double& startWidth, double& endWidth) const;
    /// The width that all segments have at both ends; `eInvalidInput` if they differ, `width`
    /// untouched.
    KdErrorStatus getConstantWidth(double& width) const;

    /// Makes the polyline have that many vertices, all in the origin, without bulges and widths.
    void reset(unsigned int vertexCount);
    /// Changes of one vertex, counted from 0. `eOutOfRange` if there is none.
    KdErrorStatus setPointAt(unsigned int index, const KdGePoint2d& point);
    KdErrorStatus setBulgeAt(unsigned int index, double bulge);
    KdErrorStatus setWidthsAt(unsigned int index, double startWidth, double endWidth);
    /// Gives all segments that width at both ends.
    void setConstantWidth(double width);
    void setClosed(bool closed) { edit().closed = closed; }
    void setPlinegen(bool plinegen) { edit().plinegen = plinegen; }
    void setElevation(double elevation) { edit().elevation = elevation; }
    void setThickness(double thickness) { edit().extrusion.setThickness(thickness); }
    /// @param normal  in WCS, of any length but 0
    void setNormal(const KdGeVector3d& normal) { edit().extrusion.setDirection(normal); }

    bool isClosed() const override;
    /// True if linetype patterns run on across the vertices.
    bool hasPlinegen() const { return data().plinegen; }
    /// Height of the polyline's plane above the origin, along the normal.
    double elevation() const { return data().elevation; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The vertices, in WCS.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// Segment i has the parameters from i to i + 1.
    KdErrorStatus askGeometry(const Question& question) const override;
    KdGeVector3d sweep() const override { return data().extrusion.sweep(); }
};
