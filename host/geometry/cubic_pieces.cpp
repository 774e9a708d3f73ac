#include "cubic_pieces.h"

#include <algorithm>

#include <Bnd_Box.hxx>
#include <Geom_BSplineCurve.hxx>

namespace geometry {
namespace {

/// A smooth piece of a curve, between two knots.
class Span
{
  public:
    Span(const Geom_BSplineCurve& curve, int firstKnot) : m_curve(curve), m_firstKnot(firstKnot) {}

    gp_XYZ pointAt(double parameter) const
    {
        gp_Pnt point;
        m_curve.LocalD0(parameter, m_firstKnot, m_firstKnot + 1, point);
        return point.XYZ();
    }

    /// The cubic with the curve's points and derivatives at both ends. If the piece is a polynomial
    /// of degree 3 there is no other one, so then it is the piece itself.
    std::array<gp_XYZ, 4> cubic(double from, double to) const
    {
        gp_Pnt start;
        gp_Pnt end;
        gp_Vec leaving;
        gp_Vec arriving;
        m_curve.LocalD1(from, m_firstKnot, m_firstKnot + 1, start, leaving);
        m_curve.LocalD1(to, m_firstKnot, m_firstKnot + 1, end, arriving);
        const double third = (to - from) / 3.0;
        return {start.XYZ(), start.XYZ() + leaving.XYZ() * third,
                end.XYZ() - arriving.XYZ() * third, end.XYZ()};
    }

  private:
    const Geom_BSplineCurve& m_curve;
    int m_firstKnot;
};

gp_XYZ pointOf(const std::array<gp_XYZ, 4>& c, double t)
{
    const double s = 1.0 - t;
    return c[0] * (s * s * s) + c[1] * (3.0 * s * s * t) + c[2] * (3.0 * s * t * t) +
           c[3] * (t * t * t);
}

class Fitting
{
  public:
    Fitting(const Geom_BSplineCurve& curve, std::vector<KdGeCubic3d>& pieces) : m_pieces(pieces)
    {
        constexpr int kExactDegree = 3;
        m_isExact = !curve.IsRational() && curve.Degree() <= kExactDegree;
        Bnd_Box hull;
        for (int i = 1; i <= curve.NbPoles(); ++i)
            hull.Add(curve.Pole(i));
        constexpr double kPartOfSize = 5e-8;
        m_tolerance = kPartOfSize * std::sqrt(hull.SquareExtent());
    }

    /// Appends the piece between two parameters, in halves as often as it takes.
    void append(const Span& span, double from, double to, int halvings = 0)
    {
        constexpr int kMostHalvings = 12; // each makes it 16 times as good
        const std::array<gp_XYZ, 4> cubic = span.cubic(from, to);
        if (m_isExact || halvings == kMostHalvings || fits(span, cubic, from, to)) {
            KdGeCubic3d& piece = m_pieces.emplace_back();
            std::ranges::transform(cubic, piece.begin(), [](const gp_XYZ& point) {
                return KdGePoint3d{point.X(), point.Y(), point.Z()};
            });
            return;
        }
        const double middle = (from + to) / 2.0;
        append(span, from, middle, halvings + 1);
        append(span, middle, to, halvings + 1);
    }

  private:
    bool fits(const Span& span, const std::array<gp_XYZ, 4>& cubic, double from, double to) const
    {
        return std::ranges::all_of(std::array{0.25, 0.5, 0.75}, [&](double t) {
            const gp_XYZ off = span.pointAt(from + t * (to - from)) - pointOf(cubic, t);
            return off.Modulus() <= m_tolerance;
        });
    }

    std::vector<KdGeCubic3d>& m_pieces;
    double m_tolerance = 0.0;
    bool m_isExact = false;
};

} // namespace

std::vector<KdGeCubic3d> cubicPieces(const Geom_BSplineCurve& curve)
{
    std::vector<KdGeCubic3d> pieces;
    Fitting fitting(curve, pieces);
    for (int knot = curve.FirstUKnotIndex(); knot < curve.LastUKnotIndex(); ++knot)
        fitting.append(Span(curve, knot), curve.Knot(knot), curve.Knot(knot + 1));
    return pieces;
}

} // namespace geometry
