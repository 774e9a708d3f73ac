// Meshes.
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

void readSubDMesh(RecordReader& reader, SubDMeshMembers& mesh)
{
    bool isInFaces = false; // the numbers of edges behind them have the same code
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            mesh.vertices.push_back(reader.point());
            break;
        case 90:
            if (isInFaces)
                mesh.faces.push_back(reader.integer());
            break;
        case 91:
            if (mesh.vertices.empty())
                mesh.level = reader.integer();
            break;
        case 93:
            isInFaces = true;
            break;
        case 94:
            isInFaces = false;
            break;
        default:
            break;
        }
    }
}

void readFaceRecord(RecordReader& reader, FaceRecordMembers& face)
{
    constexpr int kFirstCorner = 71;
    while (reader.next()) {
        const int corner = reader.code() - kFirstCorner;
        if (corner >= 0 && corner < static_cast<int>(face.corners.size()))
            face.corners[static_cast<std::size_t>(corner)] = reader.shortInteger();
    }
}

constexpr MemberReaderRow kRows[] = {
    memberReader<KdDbFaceRecord, FaceRecordMembers, readFaceRecord>(),
    memberReader<KdDbSubDMesh, SubDMeshMembers, readSubDMesh>(),
    memberReader<KdDbPolygonMesh, PolygonMeshMembers, readPolygonMesh>(),
    memberReader<KdDbPolyFaceMesh, PolyFaceMeshMembers, readPolyFaceMesh>(),
};

} // namespace

std::span<const MemberReaderRow> meshReaders()
{
    return kRows;
}

} // namespace dxf
