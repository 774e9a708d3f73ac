// Meshes by the edges of their faces.
#include <cstdlib>
#include <vector>

#include <entities/mesh.h>
#include <kwdraw/scene/curve_paths.h>
#include <kwdraw/scene/entity_shapes.h>

namespace {

/// Vertices in rows, some of which may be missing in a damaged drawing.
struct Grid
{
    std::vector<KdGePoint3d> points;
    std::size_t rows = 0;
    std::size_t columns = 0;
    bool rowsClose = false;    ///< the last row is followed by the first one
    bool columnsClose = false; ///< the same of columns

    bool isWhole() const { return rows > 0 && columns > 0 && points.size() >= rows * columns; }
};

Grid gridOf(const KdDbPolygonMesh& mesh)
{
    const bool isSmooth = mesh.polyMeshType() != KdDb::kPlainMesh;
    const auto size = [](std::int16_t count) {
        return static_cast<std::size_t>(count > 0 ? count : 0);
    };
    Grid grid{{},
              size(isSmooth ? mesh.mSurfaceDensity() : mesh.mSize()),
              size(isSmooth ? mesh.nSurfaceDensity() : mesh.nSize()),
              mesh.isMClosed(),
              mesh.isNClosed()};
    for (const KdDbObjectId id : mesh.parts().ids()) {
        const OpenForRead<KdDbPolygonMeshVertex> vertex(id);
        if (vertex && !(isSmooth && vertex->vertexType() == KdDb::kControlVertex))
            grid.points.push_back(vertex->position());
    }
    return grid;
}

void drawPolygonMesh(const KdDbPolygonMesh& mesh, EntityWalk& walk)
{
    const Grid grid = gridOf(mesh);
    if (!grid.isWhole())
        return;
    ScenePath& path = walk.newPath();
    for (std::size_t row = 0; row < grid.rows; ++row)
        addPolygon(path, std::span(grid.points).subspan(row * grid.columns, grid.columns),
                   grid.columnsClose);
    for (std::size_t column = 0; column < grid.columns; ++column) {
        path.moveTo(grid.points[column]);
        for (std::size_t row = 1; row < grid.rows; ++row)
            path.lineTo(grid.points[row * grid.columns + column]);
        if (grid.rowsClose)
            path.close();
    }
    walk.writer().stroke(path);
}

void addFace(ScenePath& path, const KdDbFaceRecord& face, std::span<const KdGePoint3d> points)
{
    const auto cornerAt = [&](std::size_t i) {
        return static_cast<std::size_t>(std::abs(face.corners()[i]));
    };
    std::size_t count = 0;
    while (count < face.corners().size() && cornerAt(count) != 0)
        ++count;
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t from = cornerAt(i);
        const std::size_t to = cornerAt((i + 1) % count);
        if (face.corners()[i] < 0 || from > points.size() || to > points.size())
            continue;
        path.moveTo(points[from - 1]);
        path.lineTo(points[to - 1]);
    }
}

void drawPolyFaceMesh(const KdDbPolyFaceMesh& mesh, EntityWalk& walk)
{
    std::vector<KdGePoint3d> points;
    ScenePath& path = walk.newPath();
    for (const KdDbObjectId id : mesh.parts().ids()) {
        if (id.isKindOf(KdDbPolyFaceMeshVertex::desc())) {
            const OpenForRead<KdDbPolyFaceMeshVertex> corner(id);
            points.push_back(corner ? corner->position() : KdGePoint3d());
        } else if (const OpenForRead<KdDbFaceRecord> face(id); face) {
            addFace(path, *face, points); // faces stand behind the corners
        }
    }
    walk.writer().stroke(path);
}

void drawSubDMesh(const KdDbSubDMesh& mesh, EntityWalk& walk)
{
    ScenePath& path = walk.newPath();
    for (const auto& [from, to] : mesh.edges()) {
        path.moveTo(mesh.vertices()[from]);
        path.lineTo(mesh.vertices()[to]);
    }
    walk.writer().stroke(path);
}

constexpr ShapeRow kRows[] = {
    shapeRow<KdDbPolyFaceMesh, drawPolyFaceMesh>(),
    shapeRow<KdDbPolygonMesh, drawPolygonMesh>(),
    shapeRow<KdDbSubDMesh, drawSubDMesh>(),
};

} // namespace

std::span<const ShapeRow> meshShapes()
{
    return kRows;
}
