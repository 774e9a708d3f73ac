/// Meshes.
#pragma once

#include <utility>
#include <vector>

#include <entities/parts.h>
#include <entities/vertex.h>

namespace KdDb {
/// How a polygon mesh is smoothed; the numbers are those of drawing files.
enum PolyMeshType : std::uint8_t
{
    kPlainMesh = 0,
    kQuadraticMesh = 5,
    kCubicMesh = 6,
    kBezierMesh = 8,
};
} // namespace KdDb

struct KW_EXPORT PolygonMeshMembers : EntityMembers
{
    std::int16_t mSize = 0; ///< vertices in the M direction
    std::int16_t nSize = 0;
    std::int16_t mDensity = 0; ///< vertices of the smoothed mesh in the M direction
    std::int16_t nDensity = 0;
    KdDb::PolyMeshType type = KdDb::kPlainMesh;
    bool mClosed = false;
    bool nClosed = false;
};

/// A grid of vertices; its parts are `KdDbPolygonMeshVertex` objects, row by row.
class KW_EXPORT KdDbPolygonMesh : public KdDbOwnerOfParts<KdDbEntity>
{
    KD_RX_DECLARE(KdDbPolygonMesh)
    KD_DB_MEMBERS(PolygonMeshMembers)

    std::unique_ptr<KdDbObjectIterator> vertexIterator() const { return iteratorOverParts(); }
    KdDb::PolyMeshType polyMeshType() const { return data().type; }
    std::int16_t mSize() const { return data().mSize; }
    std::int16_t nSize() const { return data().nSize; }
    std::int16_t mSurfaceDensity() const { return data().mDensity; }
    std::int16_t nSurfaceDensity() const { return data().nDensity; }
    bool isMClosed() const { return data().mClosed; }
    bool isNClosed() const { return data().nClosed; }

    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

struct KW_EXPORT PolyFaceMeshMembers : EntityMembers
{
    std::int16_t numVertices = 0;
    std::int16_t numFaces = 0;
};

/// Faces over shared corners; its parts are `KdDbPolyFaceMeshVertex` objects, then `KdDbFaceRecord`
/// objects.
class KW_EXPORT KdDbPolyFaceMesh : public KdDbOwnerOfParts<KdDbEntity>
{
    KD_RX_DECLARE(KdDbPolyFaceMesh)
    KD_DB_MEMBERS(PolyFaceMeshMembers)

    std::unique_ptr<KdDbObjectIterator> vertexIterator() const { return iteratorOverParts(); }
    /// Opens a part; see `kddbOpenObject` for the failures.
    KdErrorStatus openVertex(KdDbVertex*& vertex, KdDbObjectId id,
                             KdDb::OpenMode mode = KdDb::kForRead) const;
    /// The counts as the drawing states them.
    std::int16_t numVertices() const { return data().numVertices; }
    std::int16_t numFaces() const { return data().numFaces; }

    KdErrorStatus getGeomExtents(KdGeExtents3d& extents) const override;
};

struct KW_EXPORT SubDMeshMembers : EntityMembers
{
    std::vector<KdGePoint3d> vertices; ///< WCS
    /// Of each face the number of its corners and then their places in `vertices`. Numbers come
    /// from the drawing as they are.
    std::vector<std::int32_t> faces;
    std::int32_t level = 0; ///< how often the faces are divided to make the mesh smooth
};

/// A mesh of subdivided faces.
class KW_EXPORT KdDbSubDMesh : public KdDbEntity
{
    KD_RX_DECLARE(KdDbSubDMesh)
    KD_DB_MEMBERS(SubDMeshMembers)

    const std::vector<KdGePoint3d>& vertices() const { return data().vertices; }
    /// The edges of the faces before they are divided, each once, as pairs of places in
    /// `vertices()`.
    std::vector<std::pair<std::uint32_t, std::uint32_t>> edges() const;
};
