#include "plane_curve.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>
#include <utility>

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

KdGePoint2d pointAt(const Line& line, double t)
{
    if (t == 1.0)
        return line.end;
    const KdGeVector2d way = line.end - line.start;
    return {line.start.x + way.x * t, line.start.y + way.y * t};
}

KdGePoint2d pointAt(const Arc& arc, double t)
{
    // The differences of the cosines and of the sines, as products that lose no digits.
    const double middle = (t + arc.from) / 2.0;
    const double chord = 2.0 * std::sin((t - arc.from) / 2.0);
    const double c = -std::sin(middle) * chord;
    const double s = std::cos(middle) * chord;
    return {arc.start.x + arc.major.x * c + arc.minor.x * s,
            arc.start.y + arc.major.y * c + arc.minor.y * s};
}

KdGePoint2d pointAt(const Spline& spline, double t)
{
    return spline.turn(spline.shape->pointAt(t));
}

KdGePoint2d pointAt(const Curve& curve, double t)
{
    return std::visit([t](const auto& part) { return pointAt(part, t); }, curve);
}

/// The parameters of the ends, in the order in which the curve runs.
std::pair<double, double> parametersOf(const Curve& curve)
{
    return std::visit(Each{[](const Line&) { return std::pair(0.0, 1.0); },
                           [](const auto& round) { return std::pair(round.from, round.to); }},
                      curve);
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

// Calls `take` with the parameters between the ends at which a curve turns against `direction`.

template <class Take>
void forEachTurningPoint(const Line&, const KdGeVector2d&, Take)
{
}

template <class Take>
void forEachTurningPoint(const Arc& arc, const KdGeVector2d& direction, Take take)
{
    const double first = std::min(arc.from, arc.to);
    const double last = std::max(arc.from, arc.to);
    const double farthest = std::atan2(dot(direction, arc.minor), dot(direction, arc.major));
    constexpr int kMost = 4; // an arc is at most one turn
    double n = std::ceil((first - farthest) / kPi);
    for (int i = 0; i < kMost; ++i, ++n) {
        const double t = farthest + n * kPi;
        if (t > first && t < last)
            take(t);
    }
}

/// Where `height` is largest between two parameters, given that it has one such place there.
template <class Height>
double highestPlace(Height height, double low, double high)
{
    const double golden = (std::sqrt(5.0) - 1.0) / 2.0;
    constexpr int kSteps = 45; // to 1e-9 of the way; the height then has all its digits
    double left = high - golden * (high - low);
    double right = low + golden * (high - low);
    double leftHeight = height(left);
    double rightHeight = height(right);
    for (int step = 0; step < kSteps; ++step) {
        if (leftHeight > rightHeight) {
            high = std::exchange(right, left);
            rightHeight = leftHeight;
            left = high - golden * (high - low);
            leftHeight = height(left);
        } else {
            low = std::exchange(left, right);
            leftHeight = rightHeight;
            right = low + golden * (high - low);
            rightHeight = height(right);
        }
    }
    return (low + high) / 2.0;
}

template <class Take>
void forEachTurningPoint(const Spline& spline, const KdGeVector2d& direction, Take take)
{
    const auto height = [&](double t) { return dot(direction, asVector(pointAt(spline, t))); };
    const std::span<const double> grid = spline.shape->grid();
    double before = height(grid[0]);
    double here = height(grid[1]);
    for (std::size_t i = 1; i + 1 < grid.size(); ++i) {
        const double after = height(grid[i + 1]);
        const double side = here > before ? 1.0 : -1.0;
        if (here != before && side * (after - here) <= 0.0)
            take(
                highestPlace([&](double t) { return side * height(t); }, grid[i - 1], grid[i + 1]));
        before = here;
        here = after;
    }
}

template <class Take>
void forEachTurningPoint(const Curve& curve, const KdGeVector2d& direction, Take take)
{
    std::visit([&](const auto& part) { forEachTurningPoint(part, direction, take); }, curve);
}

// Where a curve has some y. The parameters are those of the lower and of the higher end of a part
// on which y only rises.

double xAt(const Line& line, double y, double, double)
{
    const KdGeVector2d way = line.end - line.start;
    return line.start.x + way.x * ((y - line.start.y) / way.y);
}

/// By approach from both ends.
template <class Part>
double xBetween(const Part& part, double y, double low, double high)
{
    constexpr int kMostSteps = 100;
    double lowGap = pointAt(part, low).y - y;
    double highGap = pointAt(part, high).y - y;
    KdGePoint2d point = pointAt(part, low);
    for (int step = 0; step < kMostSteps && lowGap < 0.0 && highGap > 0.0; ++step) {
        const double middle = low + (high - low) * (lowGap / (lowGap - highGap));
        if (middle == low || middle == high)
            break;
        point = pointAt(part, middle);
        const double gap = point.y - y;
        // The end that stays counts half from then on, so that it comes close, too.
        if (gap > 0.0) {
            high = middle;
            highGap = gap;
            lowGap /= 2.0;
        } else {
            low = middle;
            lowGap = gap;
            highGap /= 2.0;
        }
    }
    return point.x;
}

double xAt(const Arc& arc, double y, double low, double high)
{
    constexpr double kFlat = 0.01;
    if (std::abs(arc.to - arc.from) < kFlat)
        return xBetween(arc, y, low, high);
    const double center =
        arc.start.y - arc.major.y * std::cos(arc.from) - arc.minor.y * std::sin(arc.from);
    const double farthest = std::atan2(arc.minor.y, arc.major.y);
    const double reach = std::hypot(arc.major.y, arc.minor.y);
    const double half = std::floor(((low + high) / 2.0 - farthest) / kPi);
    const double height = std::clamp((y - center) / reach, -1.0, 1.0);
    const bool falls = high < low; // y, as the parameter rises
    const double t = farthest + half * kPi + std::acos(falls ? height : -height);
    return pointAt(arc, std::clamp(t, std::min(low, high), std::max(low, high))).x;
}

double xAt(const Spline& spline, double y, double low, double high)
{
    return xBetween(spline, y, low, high);
}

} // namespace

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

Turn Turn::then(const Turn& next) const
{
    const KdGeVector2d result = next(KdGeVector2d{cosine, sine});
    Turn both;
    both.cosine = result.x;
    both.sine = result.y;
    return both;
}

Arc Arc::around(const KdGePoint2d& center, const KdGeVector2d& major, const KdGeVector2d& minor,
                double from, double to)
{
    const double c = std::cos(from);
    const double s = std::sin(from);
    const KdGePoint2d start{center.x + major.x * c + minor.x * s,
                            center.y + major.y * c + minor.y * s};
    return {start, major, minor, from, to};
}

KdGePoint2d startOf(const Curve& curve)
{
    return pointAt(curve, parametersOf(curve).first);
}

KdGePoint2d endOf(const Curve& curve)
{
    return pointAt(curve, parametersOf(curve).second);
}

KdGePoint2d middleOf(const Curve& curve)
{
    const auto [from, to] = parametersOf(curve);
    return pointAt(curve, (from + to) / 2.0);
}

Curve reversed(const Curve& curve)
{
    return std::visit(
        Each{[](const Line& line) -> Curve {
                 return Line{line.end, line.start};
             },
             [](const Arc& arc) -> Curve {
                 return Arc{pointAt(arc, arc.to), arc.major, arc.minor, arc.to, arc.from};
             },
             [](Spline spline) -> Curve {
                 std::swap(spline.from, spline.to);
                 return spline;
             }},
        curve);
}

Curve turned(const Curve& curve, const Turn& turn)
{
    return std::visit(
        Each{[&](const Line& line) -> Curve {
                 return Line{turn(line.start), turn(line.end)};
             },
             [&](const Arc& arc) -> Curve {
                 return Arc{turn(arc.start), turn(arc.major), turn(arc.minor), arc.from, arc.to};
             },
             [&](Spline spline) -> Curve {
                 spline.turn = spline.turn.then(turn);
                 return spline;
             }},
        curve);
}

double areaTerm(const Curve& curve)
{
    const double chord = cross(asVector(startOf(curve)), asVector(endOf(curve))) / 2.0;
    return chord + std::visit(Each{[](const Line&) { return 0.0; },
                                   [](const Arc& arc) {
                                       const double sector = cross(arc.major, arc.minor) / 2.0;
                                       return sector * lessSine(arc.to - arc.from);
                                   },
                                   [](const Spline& spline) {
                                       const double area = spline.shape->area();
                                       return spline.from < spline.to ? area : -area;
                                   }},
                              curve);
}

void Range::add(double value)
{
    low = std::min(low, value);
    high = std::max(high, value);
}

void addRange(const Curve& curve, const KdGeVector2d& direction, Range& range)
{
    const auto add = [&](const KdGePoint2d& point) { range.add(dot(direction, asVector(point))); };
    add(startOf(curve));
    add(endOf(curve));
    forEachTurningPoint(curve, direction, [&](double t) { add(pointAt(curve, t)); });
}

MonotonePart::MonotonePart(const Curve& curve, double from, double to)
    : m_curve(&curve),
      m_lowParameter(from),
      m_highParameter(to),
      m_low(pointAt(curve, from)),
      m_high(pointAt(curve, to))
{
    if (m_low.y <= m_high.y)
        return;
    std::swap(m_low, m_high);
    std::swap(m_lowParameter, m_highParameter);
}

double MonotonePart::xAt(double y) const
{
    if (y <= m_low.y)
        return m_low.x;
    if (y >= m_high.y)
        return m_high.x;
    return std::visit(
        [&](const auto& part) { return plane::xAt(part, y, m_lowParameter, m_highParameter); },
        *m_curve);
}

void appendMonotoneParts(const Curve& curve, std::vector<MonotonePart>& parts)
{
    const auto [from, to] = parametersOf(curve);
    std::vector<double> cuts{from, to};
    forEachTurningPoint(curve, {0.0, 1.0}, [&](double t) { cuts.push_back(t); });
    std::ranges::sort(cuts);
    for (std::size_t i = 1; i < cuts.size(); ++i)
        parts.emplace_back(curve, cuts[i - 1], cuts[i]);
}

} // namespace plane
