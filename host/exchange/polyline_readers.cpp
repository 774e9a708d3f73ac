// Polylines of all forms and their vertices.
#include <entities/polyline.h>
#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include "extrusion_reader.h"
#include "member_readers.h"

namespace dxf {
namespace {

constexpr int kClosed = 1;
constexpr int kCurveFit = 2;
constexpr int kSplineFit = 4;
constexpr int kPlinegen = 128;
constexpr int kQuadratic = 5; ///< smoothing, group 75
constexpr int kCubic = 6;

bool takeVertexOf(RecordReader& reader, PolylineMembers& polyline)
{
    switch (reader.code()) {
    case 10:
        polyline.addVertex(reader.point2d());
        return true;
    case 40:
        polyline.setLastStartWidth(reader.real());
        return true;
    case 41:
        polyline.setLastEndWidth(reader.real());
        return true;
    case 42:
        polyline.setLastBulge(reader.real());
        return true;
    default:
        return false;
    }
}

constexpr std::uint32_t kLeastBytesOfVertex = 10;

void readPolyline(RecordReader& reader, PolylineMembers& polyline)
{
    while (reader.next()) {
        switch (reader.code()) {
        case 90:
            polyline.points.reserve(reader.statedCount(kLeastBytesOfVertex));
            break;
        case 38:
            polyline.elevation = reader.real();
            break;
        case 43:
            polyline.constantWidth = reader.real();
            break;
        case 70: {
            const int flags = reader.integer();
            polyline.closed = (flags & kClosed) != 0;
            polyline.plinegen = (flags & kPlinegen) != 0;
            break;
        }
        default:
            if (!takeVertexOf(reader, polyline))
                takeExtrusion(reader, polyline.extrusion);
        }
    }
    if (reader.elevation() != 0.0) // written without subclass markers
        polyline.elevation = reader.elevation();
}

KdDb::Poly2dType poly2dType(int flags, int smoothing)
{
    if (flags & kSplineFit)
        return smoothing == kCubic ? KdDb::kCubic2dPolyline : KdDb::kQuadratic2dPolyline;
    return flags & kCurveFit ? KdDb::kCurveFit2dPolyline : KdDb::kPlain2dPolyline;
}

void read2dPolyline(RecordReader& reader, Polyline2dMembers& polyline)
{
    int flags = 0;
    int smoothing = kQuadratic;
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            polyline.elevation = reader.point().z;
            break;
        case 40:
            polyline.defaultStartWidth = reader.real();
            break;
        case 41:
            polyline.defaultEndWidth = reader.real();
            break;
        case 70:
            flags = reader.integer();
            break;
        case 75:
            smoothing = reader.integer();
            break;
        default:
            takeExtrusion(reader, polyline.extrusion);
        }
    }
    if (reader.elevation() != 0.0) // of the oldest drawings, which give no point
        polyline.elevation = reader.elevation();
    polyline.closed = (flags & kClosed) != 0;
    polyline.plinegen = (flags & kPlinegen) != 0;
    polyline.type = poly2dType(flags, smoothing);
}

void read3dPolyline(RecordReader& reader, Polyline3dMembers& polyline)
{
    int flags = 0;
    int smoothing = kQuadratic;
    while (reader.next()) {
        if (reader.code() == 70)
            flags = reader.integer();
        else if (reader.code() == 75)
            smoothing = reader.integer();
    }
    polyline.closed = (flags & kClosed) != 0;
    if (flags & kSplineFit)
        polyline.type = smoothing == kCubic ? KdDb::kCubic3dPolyline : KdDb::kQuadratic3dPolyline;
}

constexpr int kAddedByCurveFit = 1;
constexpr int kTangentGiven = 2;
constexpr int kAddedBySplineFit = 8;
constexpr int kControlPoint = 16;

KdDb::VertexType vertexType(int flags)
{
    if (flags & kControlPoint)
        return KdDb::kControlVertex;
    if (flags & kAddedBySplineFit)
        return KdDb::kSplineFitVertex;
    return flags & kAddedByCurveFit ? KdDb::kCurveFitVertex : KdDb::kPlainVertex;
}

void readVertex(RecordReader& reader, VertexMembers& vertex)
{
    while (reader.next()) {
        if (reader.code() == 10)
            vertex.position = reader.point();
        else if (reader.code() == 70)
            vertex.type = vertexType(reader.integer());
    }
}

/// A vertex without widths has those of its polyline, each by itself.
void takeDefaultWidths(const KdDbObject& vertex, Vertex2dMembers& members)
{
    const OpenForRead<KdDb2dPolyline> polyline(vertex.ownerId());
    if (!polyline)
        return;
    members.startWidth = polyline->defaultStartWidth();
    members.endWidth = polyline->defaultEndWidth();
}

void read2dVertex(RecordReader& reader, Vertex2dMembers& vertex)
{
    takeDefaultWidths(reader.object(), vertex);
    while (reader.next()) {
        switch (reader.code()) {
        case 10:
            vertex.position = reader.point();
            break;
        case 40:
            vertex.startWidth = reader.real();
            break;
        case 41:
            vertex.endWidth = reader.real();
            break;
        case 42:
            vertex.bulge = reader.real();
            break;
        case 50:
            vertex.tangent = reader.angle();
            break;
        case 70: {
            const int flags = reader.integer();
            vertex.type = vertexType(flags);
            vertex.tangentGiven = (flags & kTangentGiven) != 0;
            break;
        }
        default:
            break;
        }
    }
}

constexpr MemberReaderRow kRows[] = {
    beside(memberReader<KdDbPolyline, PolylineMembers, readPolyline>()),
    beside(memberReader<KdDb2dPolyline, Polyline2dMembers, read2dPolyline>()),
    beside(memberReader<KdDb3dPolyline, Polyline3dMembers, read3dPolyline>()),
    beside(memberReader<KdDbVertex, VertexMembers, readVertex>()),
    memberReader<KdDb2dVertex, Vertex2dMembers, read2dVertex>(),
};

} // namespace

std::span<const MemberReaderRow> polylineReaders()
{
    return kRows;
}

} // namespace dxf
