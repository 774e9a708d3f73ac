// Faces, solids and traces.
#include <entities/face.h>

#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kFirstCorner = 10;

/// Takes the group if it is a corner; one that is not there lies on the third.
bool takeCorner(RecordReader& reader, std::array<KdGePoint3d, kCornersOfFace>& corners)
{
    constexpr std::size_t kThird = 2;
    const int index = reader.code() - kFirstCorner;
    if (index < 0 || index >= kCornersOfFace)
        return false;
    corners[static_cast<std::size_t>(index)] = reader.point();
    if (index == kThird)
        corners[kThird + 1] = corners[kThird];
    return true;
}

void readFace(RecordReader& reader, FaceMembers& face)
{
    while (reader.next()) {
        if (reader.code() == 70)
            face.hiddenEdges = static_cast<std::uint8_t>(reader.integer());
        else
            takeCorner(reader, face.vertices);
    }
}

void readFilledFace(RecordReader& reader, FilledFaceMembers& face)
{
    while (reader.next()) {
        if (!takeCorner(reader, face.points))
            takeExtrusion(reader, face.extrusion);
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbFace, FaceMembers, readFace>()),
    beside(memberReader<KdDbSolid, FilledFaceMembers, readFilledFace>()),
    beside(memberReader<KdDbTrace, FilledFaceMembers, readFilledFace>()),
};

} // namespace

std::span<const MemberReaderRow> faceReaders()
{
    return kRows;
}

} // namespace dxf
