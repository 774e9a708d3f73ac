#include "modeler_measures.h"

#include <cmath>

#include "modeler_bulge.h"

namespace {

double lengthOf(const ModelerEdge& edge)
{
    constexpr double kExact = 0.0;
    if (!edge.curve)
        return edge.start.distanceTo(edge.end);
    const KdGeInterval whole = edge.curve->interval();
    return edge.curve->length(whole.lower, whole.upper, kExact);
}

/// The area that the edge sweeps as seen from a point.
KdGeVector3d areaSwept(const ModelerEdge& edge, const KdGePoint3d& from)
{
    const KdGeVector3d ofChord = (edge.start - from).crossProduct(edge.end - from) * 0.5;
    return edge.curve ? ofChord + edge.curve->areaVector() : ofChord;
}

} // namespace

std::optional<PlaneMeasures> measurePlaneFaces(const ModelerBody& body)
{
    PlaneMeasures result;
    if (body.faces.empty())
        return {};
    for (const ModelerFace& face : body.faces) {
        if (face.surface.kind != ModelerSurface::Kind::Plane)
            return {};
        double area = 0.0; // holes run the other way and so count against it
        for (const auto& loop : face.loops) {
            for (const ModelerFace::EdgeUse& use : loop) {
                const ModelerEdge& edge = body.edges[use.edge];
                // about a point of the plane, so that large coordinates cost no digits
                const double swept =
                    areaSwept(edge, face.surface.center).dotProduct(face.surface.axis);
                area += use.reversed ? -swept : swept;
                result.perimeter += lengthOf(edge);
            }
        }
        result.area += std::abs(area);
    }
    const ModelerFace& first = body.faces.front();
    result.normal = first.reversed ? -first.surface.axis : first.surface.axis;
    return result;
}

KdGeExtents3d extentsOfBody(const ModelerBody& body)
{
    KdGeExtents3d box;
    for (const ModelerEdge& edge : body.edges) {
        box.addPoint(edge.start);
        box.addPoint(edge.end);
        if (edge.curve)
            edge.curve->addToExtents(box);
    }
    for (const ModelerFace& face : body.faces)
        addBulge(body, face, box);
    return box;
}
