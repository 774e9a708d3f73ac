#include "modeler_measures.h"

#include "modeler_bulge.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace {

/// What an edge adds: its length, and half the area vector that it sweeps about an origin.
struct EdgeMeasures
{
    double length = 0.0;
    KdGeVector3d area;
};

/// The length of an ellipse's arc from its major axis on; `t` in radians.
double lengthFromMajorAxis(double major, double minor, double t)
{
    constexpr double kQuarter = std::numbers::pi / 2;
    if (minor > major) // the integral counts from the minor axis
        return lengthFromMajorAxis(minor, major, t - kQuarter) +
               lengthFromMajorAxis(minor, major, kQuarter);
    const double ratio = minor / major;
    const double modulus = std::sqrt(std::max(0.0, 1.0 - ratio * ratio));
    return major * (std::ellint_2(modulus, t + kQuarter) - std::ellint_2(modulus, kQuarter));
}

EdgeMeasures measure(const ModelerArc& arc, const KdGePoint3d& origin)
{
    const double end = arc.start + arc.sweep;
    const double major = arc.major.length();
    const double minor = arc.minor.length();
    const KdGeVector3d chord = arc.pointAt(end) - arc.pointAt(arc.start);
    return {std::abs(lengthFromMajorAxis(major, minor, end) -
                     lengthFromMajorAxis(major, minor, arc.start)),
            ((arc.center - origin).crossProduct(chord) +
             arc.major.crossProduct(arc.minor) * arc.sweep) *
                0.5};
}

/// By Gauss quadrature over each span, which is exact for the area of splines up to degree 10.
EdgeMeasures measure(const ModelerSplinePart& part, const KdGePoint3d& origin)
{
    constexpr struct
    {
        double place, weight;
    } kRule[] = {
        {0.1488743389816312, 0.2955242247147529}, {0.4333953941292472, 0.2692667193099963},
        {0.6794095682990244, 0.2190863625159820}, {0.8650633666889845, 0.1494513491505806},
        {0.9739065285171717, 0.0666713443086881},
    };
    EdgeMeasures result;
    const std::vector<double> cuts = part.spline.cuts(part.first, part.last);
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const double middle = (cuts[i - 1] + cuts[i]) / 2;
        const double half = (cuts[i] - cuts[i - 1]) / 2;
        for (const auto& [place, weight] : kRule) {
            for (const double side : {-1.0, 1.0}) {
                const auto at = part.spline.at(middle + side * place * half);
                result.length += at.derivative.length() * std::abs(half) * weight;
                result.area = result.area +
                              (at.point - origin).crossProduct(at.derivative) * (half * weight / 2);
            }
        }
    }
    return result;
}

EdgeMeasures measure(const ModelerEdge& edge, const KdGePoint3d& origin)
{
    if (edge.arc())
        return measure(*edge.arc(), origin);
    if (edge.spline())
        return measure(*edge.spline(), origin);
    return {edge.start.distanceTo(edge.end),
            (edge.start - origin).crossProduct(edge.end - origin) * 0.5};
}

using Coordinate = double KdGeVector3d::*;
constexpr Coordinate kCoordinates[] = {&KdGeVector3d::x, &KdGeVector3d::y, &KdGeVector3d::z};

/// The place between two others at which a coordinate turns back.
KdGePoint3d turningPoint(const ModelerSpline& spline, Coordinate coordinate, double low,
                         double high)
{
    constexpr int kHalvings = 48;
    const double before = spline.at(low).derivative.*coordinate;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (low + high) / 2;
        const double slope = spline.at(middle).derivative.*coordinate;
        (slope * before > 0.0 ? low : high) = middle;
    }
    return spline.at(low).point;
}

void addExtremes(const ModelerSplinePart& part, KdGeExtents3d& box)
{
    constexpr int kStepsOfSpan = 16;
    const std::vector<double> cuts = part.spline.cuts(part.first, part.last);
    for (std::size_t i = 1; i < cuts.size(); ++i) {
        const double step = (cuts[i] - cuts[i - 1]) / kStepsOfSpan;
        auto before = part.spline.at(cuts[i - 1]);
        for (int k = 1; k <= kStepsOfSpan; ++k) {
            const double place = cuts[i - 1] + step * k;
            const auto here = part.spline.at(place);
            box.addPoint(here.point);
            for (const Coordinate coordinate : kCoordinates) {
                if (before.derivative.*coordinate * here.derivative.*coordinate < 0.0)
                    box.addPoint(turningPoint(part.spline, coordinate, place - step, place));
            }
            before = here;
        }
    }
}

bool isInSweep(const ModelerArc& arc, double t)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const double from = arc.sweep < 0.0 ? arc.start + arc.sweep : arc.start;
    const double ahead = std::fmod(std::fmod(t - from, kTurn) + kTurn, kTurn);
    return ahead <= std::abs(arc.sweep);
}

void addExtremes(const ModelerArc& arc, KdGeExtents3d& box)
{
    for (const Coordinate coordinate : kCoordinates) {
        const double highest = std::atan2(arc.minor.*coordinate, arc.major.*coordinate);
        for (const double t : {highest, highest + std::numbers::pi}) {
            if (isInSweep(arc, t))
                box.addPoint(arc.pointAt(t));
        }
    }
}

void addEdge(const ModelerEdge& edge, KdGeExtents3d& box)
{
    box.addPoint(edge.start);
    box.addPoint(edge.end);
    if (edge.arc())
        addExtremes(*edge.arc(), box);
    else if (edge.spline())
        addExtremes(*edge.spline(), box);
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
        const KdGeVector3d& normal = face.surface.axis;
        double area = 0.0;
        for (const auto& loop : face.loops) {
            for (const ModelerFace::EdgeUse& use : loop) {
                // about a point of the plane, so that large coordinates cost no digits
                const EdgeMeasures edge = measure(body.edges[use.edge], face.surface.center);
                area += edge.area.dotProduct(normal) * (use.reversed ? -1.0 : 1.0);
                result.perimeter += edge.length;
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
    for (const ModelerEdge& edge : body.edges)
        addEdge(edge, box);
    for (const ModelerFace& face : body.faces)
        addBulge(body, face, box);
    return box;
}
