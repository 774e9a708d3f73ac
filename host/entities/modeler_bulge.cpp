#include "modeler_bulge.h"

#include <cmath>
#include <numbers>

#include <geometry/matrix.h>

namespace {

constexpr KdGeVector3d kDirections[] = {{1, 0, 0},  {-1, 0, 0}, {0, 1, 0},
                                        {0, -1, 0}, {0, 0, 1},  {0, 0, -1}};

/// An arc at the edge of a face.
struct Border
{
    const ModelerArc& arc;
    KdGePoint3d point;   ///< in the middle of the arc
    KdGeVector3d inward; ///< along the surface into the face, of any length
};

/// The direction in which a surface looks at one of its points.
KdGeVector3d normalAt(const ModelerSurface& surface, const KdGePoint3d& point)
{
    KdGeVector3d arm = point - surface.center;
    double turned = surface.radius;
    if (surface.kind == ModelerSurface::Kind::Torus) {
        const KdGeVector3d flat = arm + surface.axis * -arm.dotProduct(surface.axis);
        arm = point - (surface.center + flat.normal() * surface.radius);
        turned = surface.minorRadius;
    }
    return turned < 0.0 ? -arm : arm;
}

std::vector<Border> bordersOf(const ModelerBody& body, const ModelerFace& face)
{
    std::vector<Border> borders;
    for (const auto& loop : face.loops) {
        for (const ModelerFace::EdgeUse& use : loop) {
            const auto& arc = body.edges[use.edge].arc;
            if (!arc)
                continue;
            const double middle = (arc->start + arc->end) / 2;
            const KdGePoint3d point = arc->pointAt(middle);
            const KdGeVector3d along = arc->tangentAt(middle) * (use.reversed ? -1.0 : 1.0);
            const KdGeVector3d outward =
                normalAt(face.surface, point) * (face.reversed ? -1.0 : 1.0);
            borders.push_back({*arc, point, outward.crossProduct(along)});
        }
    }
    return borders;
}

/// A piece of a sphere lies on one side of each circle that bounds it.
bool isInside(const std::vector<Border>& borders, const KdGePoint3d& point)
{
    for (const Border& border : borders) {
        const KdGeVector3d across = border.arc.normal();
        if (across.dotProduct(border.inward) * across.dotProduct(point - border.point) < 0.0)
            return false;
    }
    return true;
}

void addSphere(const ModelerSurface& sphere, const std::vector<Border>& borders, KdGeExtents3d& box)
{
    for (const KdGeVector3d& direction : kDirections) {
        const KdGePoint3d extreme = sphere.center + direction * std::abs(sphere.radius);
        if (isInside(borders, extreme))
            box.addPoint(extreme);
    }
}

/// The angles at which a face begins and ends, in one of the two senses of a torus.
class AngleLimits
{
  public:
    bool isEmpty() const { return m_limits.empty(); }
    void add(double angle, bool opens) { m_limits.push_back({angle, opens}); }
    /// Whether the last limit before the angle opens the face.
    bool contains(double angle) const
    {
        constexpr double kTurn = 2.0 * std::numbers::pi;
        double nearest = kTurn;
        bool inside = true;
        for (const Limit& limit : m_limits) {
            const double behind = std::fmod(std::fmod(angle - limit.angle, kTurn) + kTurn, kTurn);
            if (behind < nearest) {
                nearest = behind;
                inside = limit.opens;
            }
        }
        return inside;
    }

  private:
    struct Limit
    {
        double angle;
        bool opens;
    };
    std::vector<Limit> m_limits;
};

/// A torus with the piece that its circles leave of it.
class TorusPiece
{
  public:
    TorusPiece(const ModelerSurface& torus, const std::vector<Border>& borders);
    void addExtreme(const KdGeVector3d& direction, KdGeExtents3d& box) const;

  private:
    /// The part of a vector across the axis.
    KdGeVector3d flat(const KdGeVector3d& vector) const
    {
        return vector + m_torus.axis * -vector.dotProduct(m_torus.axis);
    }
    double angleAround(const KdGeVector3d& vector) const
    {
        return std::atan2(vector.dotProduct(m_y), vector.dotProduct(m_x));
    }
    /// Round the tube, from its outermost line towards the axis' end.
    double angleOfTube(double outward, double upward) const { return std::atan2(upward, outward); }

    const ModelerSurface& m_torus;
    KdGeVector3d m_x;
    KdGeVector3d m_y;
    AngleLimits m_around;
    AngleLimits m_tube;
};

TorusPiece::TorusPiece(const ModelerSurface& torus, const std::vector<Border>& borders)
    : m_torus(torus)
{
    const KdGeMatrix3d frame = KdGeMatrix3d::planeToWorld(torus.axis);
    m_x = frame * KdGeVector3d::kXAxis;
    m_y = frame * KdGeVector3d::kYAxis;
    constexpr double kParallel = 0.9;
    for (const Border& border : borders) {
        const KdGeVector3d arm = border.point - torus.center;
        const KdGeVector3d outward = flat(arm).normal();
        if (std::abs(border.arc.normal().dotProduct(torus.axis)) > kParallel) {
            const double out = flat(arm).length() - torus.radius;
            const double up = arm.dotProduct(torus.axis);
            const KdGeVector3d ahead = torus.axis * out + outward * -up;
            m_tube.add(angleOfTube(out, up), ahead.dotProduct(border.inward) > 0.0);
        } else {
            const KdGeVector3d ahead = torus.axis.crossProduct(outward);
            m_around.add(angleAround(outward), ahead.dotProduct(border.inward) > 0.0);
        }
    }
}

void TorusPiece::addExtreme(const KdGeVector3d& direction, KdGeExtents3d& box) const
{
    constexpr double kAlongAxis = 1e-9;
    const KdGeVector3d across = flat(direction);
    const bool isAlongAxis = across.length() < kAlongAxis;
    // Along the axis a whole circle is extreme. The arcs that bound a piece reach it, too.
    if (isAlongAxis && !m_around.isEmpty())
        return;
    const KdGeVector3d outward = isAlongAxis ? KdGeVector3d{} : across.normal();
    const double tube =
        angleOfTube(direction.dotProduct(outward), direction.dotProduct(m_torus.axis));
    if (m_tube.contains(tube) && m_around.contains(angleAround(outward)))
        box.addPoint(m_torus.center + outward * m_torus.radius +
                     direction * std::abs(m_torus.minorRadius));
}

} // namespace

void addBulge(const ModelerBody& body, const ModelerFace& face, KdGeExtents3d& box)
{
    switch (face.surface.kind) {
    case ModelerSurface::Kind::Sphere:
        addSphere(face.surface, bordersOf(body, face), box);
        break;
    case ModelerSurface::Kind::Torus: {
        const TorusPiece piece(face.surface, bordersOf(body, face));
        for (const KdGeVector3d& direction : kDirections)
            piece.addExtreme(direction, box);
        break;
    }
    case ModelerSurface::Kind::Free:
        for (const KdGePoint3d& corner : face.surface.hull)
            box.addPoint(corner);
        break;
    default:
        break;
    }
}
