/// Polylines whose vertices are entities of their own.
#pragma once

#include <entities/curve.h>
#include <entities/extrusion.h>
#include <entities/parts.h>

namespace KdDb {
/// How a 2D polyline is smoothed.
enum Poly2dType : std::uint8_t
{
    kPlain2dPolyline = 0,
    kCurveFit2dPolyline = 1,
    kQuadratic2dPolyline = 2,
    kCubic2dPolyline = 3,
};
/// How a 3D polyline is smoothed.
enum Poly3dType : std::uint8_t
{
    kPlain3dPolyline = 0,
    kQuadratic3dPolyline = 1,
    kCubic3dPolyline = 2,
};
} // namespace KdDb

struct KW_EXPORT Polyline2dMembers : EntityMembers
{
    double elevation = 0.0; ///< OCS, z of all vertices
    double defaultStartWidth = 0.0;
    double defaultEndWidth = 0.0;
    Extrusion extrusion;
    KdDb::Poly2dType type = KdDb::kPlain2dPolyline;
    bool closed = false;
    bool plinegen = false;
};

/// A flat polyline; its parts are `KdDb2dVertex` objects.
class KW_EXPORT KdDb2dPolyline : public KdDbOwnerOfParts<KdDbCurve>
{
    KD_RX_DECLARE(KdDb2dPolyline)
    KD_DB_MEMBERS(Polyline2dMembers)

    /// Over all vertices, those added by smoothing included.
    std::unique_ptr<KdDbObjectIterator> vertexIterator() const { return iteratorOverParts(); }
    KdDb::Poly2dType polyType() const { return data().type; }
    bool isClosed() const override;
    /// True if linetype patterns run on across the vertices.
    bool isLinetypeGenerationOn() const { return data().plinegen; }
    /// Widths of vertices that give none.
    double defaultStartWidth() const { return data().defaultStartWidth; }
    double defaultEndWidth() const { return data().defaultEndWidth; }
    /// Height of the polyline's plane above the origin, along the normal.
    double elevation() const { return data().elevation; }
    double thickness() const { return data().extrusion.thickness(); }
    /// In WCS, of length 1.
    KdGeVector3d normal() const { return data().extrusion.normal(); }

    /// The vertices, those that are off a smoothed curve included, in WCS.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// The curve that is drawn: it runs through all vertices but the control points of a spline.
    /// The segment behind drawn vertex i has the parameters from i to i + 1.
    KdErrorStatus askGeometry(const Question& question) const override;
    KdGeVector3d sweep() const override { return data().extrusion.sweep(); }
};

struct KW_EXPORT Polyline3dMembers : EntityMembers
{
    KdDb::Poly3dType type = KdDb::kPlain3dPolyline;
    bool closed = false;
};

/// A polyline in space; its parts are `KdDb3dPolylineVertex` objects.
class KW_EXPORT KdDb3dPolyline : public KdDbOwnerOfParts<KdDbCurve>
{
    KD_RX_DECLARE(KdDb3dPolyline)
    KD_DB_MEMBERS(Polyline3dMembers)

    std::unique_ptr<KdDbObjectIterator> vertexIterator() const { return iteratorOverParts(); }
    KdDb::Poly3dType polyType() const { return data().type; }
    bool isClosed() const override;
    bool isPlanar() const override;
    /// The vertices, those that are off a smoothed curve included, in WCS.
    KdErrorStatus getGripPoints(KdArray<KdGePoint3d>& points) const override;

  protected:
    /// As for a 2D polyline.
    KdErrorStatus askGeometry(const Question& question) const override;

  private:
    std::vector<KdGePoint3d> drawnPoints() const;
};
