// Meshes whose vertices are entities of their own.
#include <entities/mesh.h>

#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kClosedInM = 1;
constexpr int kClosedInN = 32;

void readPolygonMesh(RecordReader& reader, PolygonMeshMembers& mesh)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 70: {
            const int flags = reader.integer();
            mesh.mClosed = (flags & kClosedInM) != 0;
            mesh.nClosed = (flags & kClosedInN) != 0;
            break;
        }
        case 71:
            mesh.mSize = reader.shortInteger();
            break;
        case 72:
            mesh.nSize = reader.shortInteger();
            break;
        case 73:
            mesh.mDensity = reader.shortInteger();
            break;
        case 74:
            mesh.nDensity = reader.shortInteger();
            break;
        case 75:
            mesh.type = static_cast<KdDb::PolyMeshType>(reader.integer());
            break;
        default:
            break;
        }
    }
}

void readPolyFaceMesh(RecordReader& reader, PolyFaceMeshMembers& mesh)
{
    while (reader.next()) {
        if (reader.code() == 71)
            mesh.numVertices = reader.shortInteger();
        else if (reader.code() == 72)
            mesh.numFaces = reader.shortInteger();
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbPolygonMesh, PolygonMeshMembers, readPolygonMesh>(),
    memberReader<KdDbPolyFaceMesh, PolyFaceMeshMembers, readPolyFaceMesh>(),
};

} // namespace

std::span<const MemberReaderRow> meshReaders()
{
    return kRows;
}

} // namespace dxf
