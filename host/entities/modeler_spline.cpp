#include "modeler_spline.h"

#include <algorithm>
#include <cmath>

namespace {

using Kind = ModelerToken::Kind;

constexpr std::size_t kHighestDegree = 25;
constexpr std::size_t kMostValues = std::size_t{1} << 24; // of a curve or surface; more is damage

/// Reads the values of a spline one after the other.
class SplineReader
{
  public:
    /// Stands behind the word that begins the first spline of the record; see `isGood`.
    SplineReader(const ModelerRecords& records, int record) : m_tokens(records.tokens(record))
    {
        ModelerToken token;
        while (m_tokens.next(token) && token.kind != Kind::RecordEnd) {
            if (token.kind != Kind::Word)
                continue;
            if (token.text == "ref" && m_tokens.next(token) && token.kind == Kind::Number)
                m_tokens = records.sharedPart(static_cast<int>(token.number));
            m_good = token.text == "nubs" || token.text == "nurbs";
            m_rational = token.text == "nurbs";
            if (m_good)
                return;
        }
    }

    bool isGood() const { return m_good; }
    bool isRational() const { return m_rational; }
    double number()
    {
        ModelerToken token;
        m_good = m_good && m_tokens.next(token) && token.kind == Kind::Number;
        return m_good ? token.number : 0.0;
    }
    std::size_t count(std::size_t most)
    {
        const double value = number();
        m_good = m_good && value >= 0.0 && value <= static_cast<double>(most);
        return m_good ? static_cast<std::size_t>(value) : 0;
    }
    void skip(int tokens)
    {
        ModelerToken token;
        for (; tokens > 0; --tokens)
            m_good = m_good && m_tokens.next(token);
    }
    /// `count` knots, each with the number of times that it stands.
    std::vector<double> knots(std::size_t count)
    {
        std::vector<double> result;
        for (; count > 0 && m_good; --count) {
            const double knot = number();
            result.insert(result.end(), this->count(kHighestDegree + 1), knot);
        }
        return result;
    }
    KdGePoint3d point()
    {
        const double x = number();
        const double y = number();
        return {x, y, number()};
    }

  private:
    ModelerTokens m_tokens;
    bool m_good = false;
    bool m_rational = false;
};

/// How many control points belong to knots of which the outer ones stand once less than usual.
std::size_t polesFor(const std::vector<double>& knots, std::size_t degree)
{
    return knots.size() + 1 > degree ? knots.size() + 1 - degree : 0;
}

} // namespace

std::optional<ModelerSpline> ModelerSpline::read(const ModelerRecords& records, int record,
                                                 const KdGeMatrix3d& frame)
{
    SplineReader reader(records, record);
    if (!reader.isGood())
        return {};
    ModelerSpline spline;
    spline.m_degree = reader.count(kHighestDegree);
    reader.skip(1); // open, closed or periodic
    spline.m_knots = reader.knots(reader.count(kMostValues));
    const std::size_t poles = polesFor(spline.m_knots, spline.m_degree);
    for (std::size_t i = 0; i < poles && reader.isGood(); ++i) {
        const KdGePoint3d point = frame * reader.point();
        const double weight = reader.isRational() ? reader.number() : 1.0;
        spline.m_poles.push_back({point.x * weight, point.y * weight, point.z * weight, weight});
    }
    if (!reader.isGood() || spline.m_degree < 1 || poles <= spline.m_degree ||
        !std::is_sorted(spline.m_knots.begin(), spline.m_knots.end()))
        return {};
    spline.m_knots.insert(spline.m_knots.begin(), spline.m_knots.front());
    spline.m_knots.push_back(spline.m_knots.back());
    return spline;
}

ModelerSpline::Pole ModelerSpline::mean(const Pole& a, const Pole& b, double share)
{
    return {std::lerp(a.x, b.x, share), std::lerp(a.y, b.y, share), std::lerp(a.z, b.z, share),
            std::lerp(a.weight, b.weight, share)};
}

/// The number of the knot at which the span begins that holds the parameter.
std::size_t ModelerSpline::spanOf(double parameter) const
{
    const auto first = m_knots.begin() + static_cast<std::ptrdiff_t>(m_degree);
    const auto last = m_knots.end() - static_cast<std::ptrdiff_t>(m_degree) - 1;
    const auto above = std::upper_bound(first, last, parameter);
    // At the very end the last span that has a length serves.
    const auto from = above == last ? std::lower_bound(first, last, *last) : above;
    return static_cast<std::size_t>(from - m_knots.begin()) - 1;
}

ModelerSpline::Place ModelerSpline::at(double parameter) const
{
    parameter = std::clamp(parameter, begin(), end());
    const std::size_t span = std::max(spanOf(parameter), m_degree);
    std::vector<Pole> poles(m_poles.begin() + static_cast<std::ptrdiff_t>(span - m_degree),
                            m_poles.begin() + static_cast<std::ptrdiff_t>(span + 1));
    Pole slope{};
    for (std::size_t level = 1; level <= m_degree; ++level) {
        if (level == m_degree) { // the two points that are left span the tangent
            const double width = m_knots[span + 1] - m_knots[span];
            const double factor = width > 0.0 ? static_cast<double>(m_degree) / width : 0.0;
            slope = {(poles[1].x - poles[0].x) * factor, (poles[1].y - poles[0].y) * factor,
                     (poles[1].z - poles[0].z) * factor,
                     (poles[1].weight - poles[0].weight) * factor};
        }
        for (std::size_t i = 0; i + level <= m_degree; ++i) {
            const double low = m_knots[span - m_degree + level + i];
            const double width = m_knots[span + 1 + i] - low;
            poles[i] = mean(poles[i], poles[i + 1], width > 0.0 ? (parameter - low) / width : 0.0);
        }
    }
    const Pole& p = poles[0];
    const double weight = p.weight != 0.0 ? p.weight : 1.0;
    const KdGePoint3d point{p.x / weight, p.y / weight, p.z / weight};
    return {point,
            {(slope.x - slope.weight * point.x) / weight,
             (slope.y - slope.weight * point.y) / weight,
             (slope.z - slope.weight * point.z) / weight}};
}

std::vector<double> ModelerSpline::cuts(double first, double last) const
{
    const auto [low, high] = std::minmax(first, last);
    std::vector<double> result{low};
    for (const double knot : m_knots) {
        if (knot > result.back() && knot < high)
            result.push_back(knot);
    }
    result.push_back(high);
    if (first > last)
        std::reverse(result.begin(), result.end());
    return result;
}

std::vector<KdGePoint3d> modelerSurfaceHull(const ModelerRecords& records, int record,
                                            const KdGeMatrix3d& frame)
{
    SplineReader reader(records, record);
    if (!reader.isGood())
        return {};
    const std::size_t degreeU = reader.count(kHighestDegree);
    const std::size_t degreeV = reader.count(kHighestDegree);
    // How the surface closes and where it narrows to a point, in both directions; a rational one
    // also tells in which direction it is rational.
    reader.skip(reader.isRational() ? 5 : 4);
    const std::size_t knotsU = reader.count(kMostValues);
    const std::size_t knotsV = reader.count(kMostValues);
    const std::size_t polesU = polesFor(reader.knots(knotsU), degreeU);
    const std::size_t polesV = polesFor(reader.knots(knotsV), degreeV);
    if (polesV > 0 && polesU > kMostValues / polesV)
        return {};
    std::vector<KdGePoint3d> hull;
    for (std::size_t i = 0; i < polesU * polesV && reader.isGood(); ++i) {
        hull.push_back(frame * reader.point());
        if (reader.isRational())
            reader.number();
    }
    return reader.isGood() ? hull : std::vector<KdGePoint3d>();
}
