#include <entities/vertex.h>
#include <entities/vertex_polyline.h>

#include <algorithm>
#include <memory>
#include <vector>

#include <geometry/linear_curves.h>
#include <geometry/plane.h>

#include <providers/curve_geometry.h>
#include <values/compare.h>

namespace {

/// One segment of a polyline.
struct Segment
{
    KdGePoint2d flatStart; ///< object frame
    KdGePoint2d flatEnd;
    KdGePoint3d start; ///< WCS
    KdGePoint3d end;
    double bulge = 0.0;
};

Segment segmentOf(const KdDbPolyline& polyline, unsigned int from, unsigned int to)
{
    Segment segment;
    polyline.getPointAt(from, segment.flatStart);
    polyline.getPointAt(to, segment.flatEnd);
    polyline.getPointAt(from, segment.start);
    polyline.getPointAt(to, segment.end);
    polyline.getBulgeAt(from, segment.bulge);
    return segment;
}

std::unique_ptr<KdGeCurve3d> arcOf(const KdDbPolyline& polyline, const Segment& segment)
{
    const KdGeCircArc2d flat(segment.flatStart, segment.flatEnd, segment.bulge, false);
    const double reference = flat.refVec().angle();
    KdDbArc arc;
    ArcMembers& members = arc.edit();
    members.center = {flat.center().x, flat.center().y, polyline.elevation()};
    members.radius = flat.radius();
    members.startAngle = reference + (flat.isClockWise() ? -flat.endAng() : flat.startAng());
    members.endAngle = reference + (flat.isClockWise() ? -flat.startAng() : flat.endAng());
    members.extrusion = {polyline.normal(), polyline.thickness()};
    std::unique_ptr<KdGeCircArc3d> curve(circArc3d(arc));
    constexpr KdGeTol kSamePoint{.equalPoint = 1e-6};
    KdGePoint3d start;
    curve->hasStartPoint(start);
    if (!start.isEqualTo(segment.start, kSamePoint))
        curve->reverseParam(); // the segment runs clockwise
    return curve;
}

void appendSegment(const KdDbPolyline& polyline, const Segment& segment,
                   KdGeCompositeCurve3d::Pieces& pieces)
{
    constexpr double kNoBulge = 5e-6;
    if (segment.start.isEqualTo(segment.end))
        return;
    if (kdadIsZero(segment.bulge, kNoBulge))
        pieces.push_back(std::make_unique<KdGeLineSeg3d>(segment.start, segment.end));
    else
        pieces.push_back(arcOf(polyline, segment));
}

/// What the vertices of a 2D polyline tell.
struct VertexData
{
    std::vector<KdGePoint2d> points;
    std::vector<double> bulges;
    std::vector<PolylineMembers::Widths> widths;
    bool hasExtendedData = false;

    bool hasBulges() const
    {
        return std::ranges::any_of(bulges, [](double bulge) { return bulge != 0.0; });
    }
    bool haveOneWidth() const
    {
        return std::ranges::all_of(widths, [this](const PolylineMembers::Widths& width) {
            return width.start == width.end && width == widths.front();
        });
    }
};

VertexData gather(const KdDb2dPolyline& polyline)
{
    VertexData data;
    const auto iterator = polyline.vertexIterator();
    for (; !iterator->done(); iterator->step()) {
        const OpenForRead<KdDb2dVertex> vertex(iterator->objectId());
        if (!vertex || vertex->vertexType() == KdDb::kControlVertex)
            continue;
        const resbuf* end = nullptr;
        data.hasExtendedData |= vertex->extendedData(nullptr, end) != nullptr;
        data.points.push_back(vertex->position().convert2d(KdGePlane::kXYPlane));
        data.bulges.push_back(vertex->bulge());
        data.widths.push_back({vertex->startWidth(), vertex->endWidth()});
    }
    return data;
}

void takeProperties(KdDbPolyline& lightweight, const KdDb2dPolyline& source)
{
    lightweight.setPropertiesFrom(source);
    lightweight.setClosed(source.isClosed());
    lightweight.setPlinegen(source.isLinetypeGenerationOn());
    lightweight.setElevation(source.elevation());
    lightweight.setThickness(source.thickness());
    lightweight.setNormal(source.normal());
    const resbuf* end = nullptr;
    const resbuf* first = source.extendedData(nullptr, end);
    lightweight.edit().extendedData = ResbufChain(kdutCopyRb(first, end));
}

void takeVertices(KdDbPolyline& lightweight, const VertexData& data)
{
    const bool hasBulges = data.hasBulges();
    const bool hasOneWidth = data.haveOneWidth();
    if (hasOneWidth && !data.widths.empty())
        lightweight.setConstantWidth(data.widths.front().start);
    for (unsigned int i = 0; i < data.points.size(); ++i) {
        lightweight.setPointAt(i, data.points[i]);
        if (hasBulges)
            lightweight.setBulgeAt(i, data.bulges[i]);
        if (!hasOneWidth)
            lightweight.setWidthsAt(i, data.widths[i].start, data.widths[i].end);
    }
}

} // namespace

KdGeCompositeCurve3d* compositeCurve3d(const KdDbPolyline& polyline)
{
    const unsigned int count = polyline.numVerts();
    if (count <= 1)
        return nullptr;
    KdGeCompositeCurve3d::Pieces pieces;
    for (unsigned int i = 0; i + 1 < count; ++i)
        appendSegment(polyline, segmentOf(polyline, i, i + 1), pieces);
    if (polyline.isClosed())
        appendSegment(polyline, segmentOf(polyline, count - 1, 0), pieces);
    return new KdGeCompositeCurve3d(std::move(pieces));
}

int lwPlineFrom2DPline(KdDbCurve*& lightweight, KdDbCurve*& source, bool ignoreVertexXData)
{
    constexpr int kDone = 0;
    constexpr int kVertexHasExtendedData = 2;
    constexpr int kWrongClass = 3;
    if (!lightweight || lightweight->isA() != KdDbPolyline::desc() || !source ||
        source->isA() != KdDb2dPolyline::desc())
        return kWrongClass;
    const auto& from = static_cast<const KdDb2dPolyline&>(*source);
    auto& to = static_cast<KdDbPolyline&>(*lightweight);
    const VertexData data = gather(from);
    if (data.hasExtendedData && !ignoreVertexXData)
        return kVertexHasExtendedData;
    to.reset(static_cast<unsigned int>(data.points.size()));
    takeProperties(to, from);
    takeVertices(to, data);
    return kDone;
}
