#include "plane_curve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace plane {
namespace {

constexpr double kPi = std::numbers::pi;

template <class... Functions>
struct Each : Functions...
{
    using Functions::operator()...;
};
template <class... Functions>
Each(Functions...) -> Each<Functions...>;

double cross(const KdGeVector2d& a, const KdGeVector2d& b)
{
    return a.x * b.y - a.y * b.x;
}

double dot(const KdGeVector2d& a, const KdGeVector2d& b)
{
    return a.x * b.x + a.y * b.y;
}

KdGeVector2d asVector(const KdGePoint2d& point)
{
    return {point.x, point.y};
}

/// A line runs from 0 to 1, an arc from its first parameter to its last.
KdGePoint2d pointAt(const Line& line, double t)
{
    if (t == 1.0)
        return line.end;
    const KdGeVector2d way = line.end - line.start;
    return {line.start.x + way.x * t, line.start.y + way.y * t};
}

KdGePoint2d pointAt(const Arc& arc, double t)
{
    const double c = std::cos(t);
    const double s = std::sin(t);
    return {arc.center.x + arc.major.x * c + arc.minor.x * s,
            arc.center.y + arc.major.y * c + arc.minor.y * s};
}

KdGePoint2d pointAt(const Curve& curve, double t)
{
    return std::visit([t](const auto& c) { return pointAt(c, t); }, curve);
}

double firstOf(const Curve& curve)
{
    const auto* arc = std::get_if<Arc>(&curve);
    return arc ? arc->from : 0.0;
}

double lastOf(const Curve& curve)
{
    const auto* arc = std::get_if<Arc>(&curve);
    return arc ? arc->to : 1.0;
}

/// x - sin x without the loss that small angles bring.
double lessSine(double x)
{
    constexpr double kSmall = 0.3;
    if (std::abs(x) > kSmall)
        return x - std::sin(x);
    double term = x * x * x / 6.0;
    double sum = 0.0;
    for (int n = 4; sum + term != sum; n += 2) {
        sum += term;
        term *= -x * x / (n * (n + 1));
    }
    return sum;
}

/// Calls `take` with the parameters between the ends at which an arc turns against `direction`.
template <class Take>
void forEachTurningPoint(const Arc& arc, const KdGeVector2d& direction, Take take)
{
    const double first = std::min(arc.from, arc.to);
    const double last = std::max(arc.from, arc.to);
    const double farthest = std::atan2(dot(direction, arc.minor), dot(direction, arc.major));
    // A drawing may name any angle, but an arc is at most one turn.
    constexpr int kMost = 4;
    double n = std::ceil((first - farthest) / kPi);
    for (int i = 0; i < kMost; ++i, ++n) {
        const double t = farthest + n * kPi;
        if (t > first && t < last)
            take(t);
    }
}

double xAt(const Line& line, double y)
{
    const KdGeVector2d way = line.end - line.start;
    return line.start.x + way.x * ((y - line.start.y) / way.y);
}

/// On the part of an arc between two turning points.
double xAt(const Arc& arc, double y, double first, double last)
{
    const double farthest = std::atan2(arc.minor.y, arc.major.y);
    const double reach = std::hypot(arc.major.y, arc.minor.y);
    const double middle = (first + last) / 2.0 - farthest;
    const double half = std::floor(middle / kPi); // even: y falls with the parameter
    const double height = std::clamp((y - arc.center.y) / reach, -1.0, 1.0);
    const bool falls = std::fmod(half, 2.0) == 0.0;
    const double t = farthest + half * kPi + std::acos(falls ? height : -height);
    return pointAt(arc, std::clamp(t, std::min(first, last), std::max(first, last))).x;
}

} // namespace

KdGePoint2d startOf(const Curve& curve)
{
    return pointAt(curve, firstOf(curve));
}

KdGePoint2d endOf(const Curve& curve)
{
    return pointAt(curve, lastOf(curve));
}

KdGePoint2d middleOf(const Curve& curve)
{
    return pointAt(curve, (firstOf(curve) + lastOf(curve)) / 2.0);
}

Curve reversed(const Curve& curve)
{
    return std::visit(Each{[](const Line& line) -> Curve {
                               return Line{line.end, line.start};
                           },
                           [](Arc arc) -> Curve {
                               std::swap(arc.from, arc.to);
                               return arc;
                           }},
                      curve);
}

Turn::Turn(double angle) : cosine(std::cos(angle)), sine(std::sin(angle)) {}

KdGePoint2d Turn::operator()(const KdGePoint2d& point) const
{
    const KdGeVector2d result = (*this)(asVector(point));
    return {result.x, result.y};
}

KdGeVector2d Turn::operator()(const KdGeVector2d& vector) const
{
    return {vector.x * cosine - vector.y * sine, vector.x * sine + vector.y * cosine};
}

Curve turned(const Curve& curve, const Turn& turn)
{
    return std::visit(
        Each{[&](const Line& line) -> Curve {
                 return Line{turn(line.start), turn(line.end)};
             },
             [&](const Arc& arc) -> Curve {
                 return Arc{turn(arc.center), turn(arc.major), turn(arc.minor), arc.from, arc.to};
             }},
        curve);
}

double areaTerm(const Curve& curve)
{
    const double chord = cross(asVector(startOf(curve)), asVector(endOf(curve)));
    const auto* arc = std::get_if<Arc>(&curve);
    const double segment = arc ? cross(arc->major, arc->minor) * lessSine(arc->to - arc->from) : 0;
    return (chord + segment) / 2.0;
}

void Range::add(double value)
{
    low = std::min(low, value);
    high = std::max(high, value);
}

void addRange(const Curve& curve, const KdGeVector2d& direction, Range& range)
{
    range.add(dot(direction, asVector(startOf(curve))));
    range.add(dot(direction, asVector(endOf(curve))));
    if (const auto* arc = std::get_if<Arc>(&curve))
        forEachTurningPoint(*arc, direction, [&](double t) {
            range.add(dot(direction, asVector(pointAt(*arc, t))));
        });
}

MonotonePart::MonotonePart(const Curve& curve, double from, double to)
    : m_curve(&curve),
      m_first(from),
      m_last(to),
      m_low(pointAt(curve, from)),
      m_high(pointAt(curve, to))
{
    if (m_low.y <= m_high.y)
        return;
    std::swap(m_low, m_high);
    std::swap(m_first, m_last);
}

double MonotonePart::xAt(double y) const
{
    if (y <= m_low.y)
        return m_low.x;
    if (y >= m_high.y)
        return m_high.x;
    return std::visit(Each{[&](const Line& line) { return plane::xAt(line, y); },
                           [&](const Arc& arc) { return plane::xAt(arc, y, m_first, m_last); }},
                      *m_curve);
}

void appendMonotoneParts(const Curve& curve, std::vector<MonotonePart>& parts)
{
    std::vector<double> cuts{firstOf(curve), lastOf(curve)};
    if (const auto* arc = std::get_if<Arc>(&curve))
        forEachTurningPoint(*arc, {0.0, 1.0}, [&](double t) { cuts.push_back(t); });
    std::ranges::sort(cuts);
    for (std::size_t i = 1; i < cuts.size(); ++i)
        parts.emplace_back(curve, cuts[i - 1], cuts[i]);
}

} // namespace plane
