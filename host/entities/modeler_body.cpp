#include "modeler_body.h"

#include <cmath>
#include <unordered_map>

#include <geometry/arcs.h>

#include "modeler_spline.h"

namespace {

KdGePoint3d pointOf(const ModelerFields& fields, std::size_t first)
{
    const auto& numbers = fields.numbers;
    return first + 3 <= numbers.size()
               ? KdGePoint3d{numbers[first], numbers[first + 1], numbers[first + 2]}
               : KdGePoint3d{};
}

double numberOf(const ModelerFields& fields, std::size_t index)
{
    return index < fields.numbers.size() ? fields.numbers[index] : 0.0;
}

class BodyReader
{
  public:
    explicit BodyReader(std::string data) : m_records(std::move(data)) {}
    ModelerBody read();

  private:
    void readFrame();
    KdGePoint3d vertexPoint(int vertex) const;
    KdGeVector3d vectorOf(const ModelerFields& fields, std::size_t first) const
    {
        return m_frame * pointOf(fields, first).asVector();
    }
    void readEdge(int record);
    std::optional<ModelerArc> readArc(int curve, const ModelerEdge& edge, bool reversed,
                                      bool whole) const;
    std::unique_ptr<KdGeCurve3d> readSpline(int curve, const ModelerEdge& edge,
                                            const ModelerFields& fields) const;
    void readFace(int record);
    ModelerSurface readSurface(int record) const;
    void readLoops(int loop, ModelerFace& face);
    bool isNew(int record);

    ModelerRecords m_records;
    KdGeMatrix3d m_frame;
    double m_scale = 1.0;
    ModelerBody m_body;
    std::unordered_map<int, std::size_t> m_edges; ///< by record
    std::vector<bool> m_visited;
};

ModelerBody BodyReader::read()
{
    readFrame();
    m_visited.resize(static_cast<std::size_t>(m_records.count()));
    for (int record = 0; record < m_records.count(); ++record) {
        if (m_records.isKind(record, "edge"))
            readEdge(record);
    }
    for (int record = 0; record < m_records.count(); ++record) {
        if (m_records.isKind(record, "face"))
            readFace(record);
    }
    return std::move(m_body);
}

/// A body may be moved, turned and scaled as a whole.
void BodyReader::readFrame()
{
    int body = 0;
    while (body < m_records.count() && !m_records.isKind(body, "body"))
        ++body;
    const int transform = m_records.fields(body).reference(2);
    if (!m_records.isKind(transform, "transform"))
        return;
    const ModelerFields fields = m_records.fields(transform);
    constexpr std::size_t kNumbers = 13; // three axes, the offset, the scale
    if (fields.numbers.size() < kNumbers)
        return;
    m_scale = fields.numbers[12];
    m_frame = KdGeMatrix3d::fromFrame(pointOf(fields, 9), pointOf(fields, 0).asVector() * m_scale,
                                      pointOf(fields, 3).asVector() * m_scale,
                                      pointOf(fields, 6).asVector() * m_scale);
}

KdGePoint3d BodyReader::vertexPoint(int vertex) const
{
    return m_frame * pointOf(m_records.fields(m_records.fields(vertex).reference(1)), 0);
}

void BodyReader::readEdge(int record)
{
    const ModelerFields fields = m_records.fields(record);
    ModelerEdge edge;
    edge.start = vertexPoint(fields.reference(0));
    edge.end = vertexPoint(fields.reference(1));
    const int curve = fields.reference(3);
    const std::string_view kind = m_records.name(curve);
    if (kind == "ellipse") {
        const bool whole = fields.reference(0) == fields.reference(1);
        edge.arc = readArc(curve, edge, fields.isReversed(), whole);
        if (const auto& arc = edge.arc)
            edge.curve = std::make_unique<KdGeEllipArc3d>(arc->center, arc->major, arc->minor,
                                                          arc->major.length(), arc->minor.length(),
                                                          arc->start, arc->end);
    } else if (kind == "intcurve") {
        edge.curve = readSpline(curve, edge, fields);
    }
    m_edges.emplace(record, m_body.edges.size());
    m_body.edges.push_back(std::move(edge));
}

/// The minor axis is turned round where the edge runs against its curve.
std::optional<ModelerArc> BodyReader::readArc(int curve, const ModelerEdge& edge, bool reversed,
                                              bool whole) const
{
    const ModelerFields fields = m_records.fields(curve);
    ModelerArc arc;
    arc.center = m_frame * pointOf(fields, 0);
    arc.major = vectorOf(fields, 6);
    const double ratio = reversed ? -numberOf(fields, 9) : numberOf(fields, 9);
    arc.minor = vectorOf(fields, 3).normal().crossProduct(arc.major) * ratio;
    const double majorSquare = arc.major.dotProduct(arc.major);
    const double minorSquare = arc.minor.dotProduct(arc.minor);
    if (!(majorSquare > 0.0) || !(minorSquare > 0.0))
        return {};
    const auto angleOf = [&](const KdGePoint3d& point) {
        const KdGeVector3d arm = point - arc.center;
        return std::atan2(arm.dotProduct(arc.minor) / minorSquare,
                          arm.dotProduct(arc.major) / majorSquare);
    };
    arc.start = angleOf(edge.start);
    arc.end = whole ? arc.start : angleOf(edge.end);
    if (arc.end <= arc.start)
        arc.end += KdGe::kTurn;
    return arc;
}

/// An edge runs over the whole of its curve unless it says otherwise. Which way is told by the
/// points at its ends.
std::unique_ptr<KdGeCurve3d> BodyReader::readSpline(int curve, const ModelerEdge& edge,
                                                    const ModelerFields& fields) const
{
    const auto whole = readModelerCurve(m_records, curve, m_frame);
    if (!whole)
        return nullptr;
    double first = whole->interval().lower;
    double last = whole->interval().upper;
    if (fields.numbers.size() >= 2) {
        const bool turned = fields.isReversed() != m_records.fields(curve).isReversed();
        first = turned ? -fields.numbers[0] : fields.numbers[0];
        last = turned ? -fields.numbers[1] : fields.numbers[1];
    }
    const double toFirst = whole->evalPoint(first).distanceTo(edge.start);
    const double toLast = whole->evalPoint(last).distanceTo(edge.start);
    if (toLast < toFirst)
        std::swap(first, last);
    return whole->part(first, last);
}

void BodyReader::readFace(int record)
{
    const ModelerFields fields = m_records.fields(record);
    ModelerFace face;
    face.surface = readSurface(fields.reference(4));
    face.reversed = fields.isReversed();
    readLoops(fields.reference(1), face);
    m_body.faces.push_back(std::move(face));
}

ModelerSurface BodyReader::readSurface(int record) const
{
    ModelerSurface surface;
    const ModelerFields fields = m_records.fields(record);
    const std::string_view kind = m_records.name(record);
    surface.center = m_frame * pointOf(fields, 0);
    surface.axis = vectorOf(fields, 3).normal();
    if (kind == "plane") {
        surface.kind = ModelerSurface::Kind::Plane;
    } else if (kind == "cone") {
        surface.kind = ModelerSurface::Kind::Cone;
    } else if (kind == "sphere") {
        surface.kind = ModelerSurface::Kind::Sphere;
        surface.radius = numberOf(fields, 3) * m_scale;
    } else if (kind == "torus") {
        surface.kind = ModelerSurface::Kind::Torus;
        surface.radius = numberOf(fields, 6) * m_scale;
        surface.minorRadius = numberOf(fields, 7) * m_scale;
    } else if (kind == "spline") {
        surface.kind = ModelerSurface::Kind::Free;
        surface.hull = readModelerSurface(m_records, record, m_frame);
    }
    return surface;
}

/// In a damaged body loops may run into each other; so each record serves once.
bool BodyReader::isNew(int record)
{
    const auto index = static_cast<std::size_t>(record);
    if (record < 0 || index >= m_visited.size() || m_visited[index])
        return false;
    m_visited[index] = true;
    return true;
}

void BodyReader::readLoops(int loop, ModelerFace& face)
{
    while (m_records.isKind(loop, "loop") && isNew(loop)) {
        const ModelerFields loopFields = m_records.fields(loop);
        std::vector<ModelerFace::EdgeUse> uses;
        int coedge = loopFields.reference(1);
        while (m_records.isKind(coedge, "coedge") && isNew(coedge)) {
            const ModelerFields fields = m_records.fields(coedge);
            const auto edge = m_edges.find(fields.reference(3));
            if (edge != m_edges.end())
                uses.push_back({edge->second, fields.isReversed()});
            coedge = fields.reference(0);
        }
        face.loops.push_back(std::move(uses));
        loop = loopFields.reference(0);
    }
}

} // namespace

KdGePoint3d ModelerArc::pointAt(double t) const
{
    return center + major * std::cos(t) + minor * std::sin(t);
}

KdGeVector3d ModelerArc::tangentAt(double t) const
{
    return minor * std::cos(t) + -(major * std::sin(t));
}

ModelerBody readModelerBody(std::string data)
{
    return BodyReader(std::move(data)).read();
}
