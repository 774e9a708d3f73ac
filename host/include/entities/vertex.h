/// The parts of polylines and meshes.
#pragma once

#include <array>

#include <entities/declare.h>
#include <geometry/point.h>

namespace KdDb {
/// What a vertex of a smoothed polyline is there for.
enum VertexType : std::uint8_t
{
    kPlainVertex = 0,
    kControlVertex = 1,   ///< given by the user, off the smoothed curve
    kSplineFitVertex = 2, ///< computed, on the spline
    kCurveFitVertex = 3,  ///< computed, on the curve of arcs
};
} // namespace KdDb

struct KW_EXPORT VertexMembers : EntityMembers
{
    /// In the frame of the entity that owns the vertex: OCS for 2D polylines, WCS for all others.
    KdGePoint3d position;
    KdDb::VertexType type = KdDb::kPlainVertex;
};

/// Base of all vertices.
class KW_EXPORT KdDbVertex : public KdDbEntity
{
    KD_RX_DECLARE(KdDbVertex)
    KD_DB_MEMBERS(VertexMembers)
};

struct KW_EXPORT Vertex2dMembers : VertexMembers
{
    double startWidth = 0.0; ///< of the segment behind the vertex
    double endWidth = 0.0;
    double bulge = 0.0;   ///< tan of a quarter of the arc's angle, negative for clockwise
    double tangent = 0.0; ///< direction for curve fitting, radians in the object frame
    bool tangentGiven = false;
};

/// A vertex of a 2D polyline.
class KW_EXPORT KdDb2dVertex : public KdDbVertex
{
    KD_RX_DECLARE(KdDb2dVertex)
    KD_DB_MEMBERS(Vertex2dMembers)

    /// In the object frame of the polyline.
    KdGePoint3d position() const { return data().position; }
    KdDb::VertexType vertexType() const { return data().type; }
    double startWidth() const { return data().startWidth; }
    double endWidth() const { return data().endWidth; }
    double bulge() const { return data().bulge; }
    /// Radians in the object frame; it counts only if `isTangentUsed()`.
    double tangent() const { return data().tangent; }
    bool isTangentUsed() const { return data().tangentGiven; }
};

/// A vertex of a 3D polyline.
class KW_EXPORT KdDb3dPolylineVertex : public KdDbVertex
{
    KD_RX_DECLARE(KdDb3dPolylineVertex)

    /// In WCS.
    KdGePoint3d position() const { return data().position; }
    KdDb::VertexType vertexType() const { return data().type; }
};

/// A vertex of a polygon mesh; a smoothed mesh holds its control vertices and the computed ones.
class KW_EXPORT KdDbPolygonMeshVertex : public KdDbVertex
{
    KD_RX_DECLARE(KdDbPolygonMeshVertex)

    /// In WCS.
    KdGePoint3d position() const { return data().position; }
    KdDb::VertexType vertexType() const { return data().type; }
};

/// A corner that the faces of a polyface mesh refer to.
class KW_EXPORT KdDbPolyFaceMeshVertex : public KdDbVertex
{
    KD_RX_DECLARE(KdDbPolyFaceMeshVertex)

    /// In WCS.
    KdGePoint3d position() const { return data().position; }
};

struct KW_EXPORT FaceRecordMembers : VertexMembers
{
    /// The numbers of the corners among those of the mesh, from 1; below 0 if the edge behind the
    /// corner is not drawn, 0 where there is no further one.
    std::array<std::int16_t, 4> corners{};
};

/// A face of a polyface mesh.
class KW_EXPORT KdDbFaceRecord : public KdDbVertex
{
    KD_RX_DECLARE(KdDbFaceRecord)
    KD_DB_MEMBERS(FaceRecordMembers)

    /// See `FaceRecordMembers`.
    const std::array<std::int16_t, 4>& corners() const { return data().corners; }
};

/// Marks the end of an entity's parts in a drawing file.
KD_DB_PLAIN_ENTITY(KdDbSequenceEnd, KdDbEntity)
