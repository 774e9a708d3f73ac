#include <kwdraw/scene/plane_path.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

using Controls = std::array<double, 4>;

template <class Value>
Value between(const Value& start, const Value& end, double share)
{
    return start + (end - start) * share;
}

/// The blend of three values in a row of a Bezier curve's scheme, each with its own parameter. With
/// the ends of a part for parameters it gives the part's control points.
template <class Value>
Value blossom(const std::array<Value, 4>& c, double r, double s, double t)
{
    const Value a = between(c[0], c[1], r);
    const Value b = between(c[1], c[2], r);
    const Value d = between(c[2], c[3], r);
    return between(between(a, b, s), between(b, d, s), t);
}

/// Where the function, which only rises or only falls from `low` to `high`, is 0.
double zeroBetween(const Controls& c, double low, double high)
{
    constexpr int kHalvings = 54; // as many as a number has digits
    const bool rises = valueAt(c, high) > 0.0;
    for (int i = 0; i < kHalvings; ++i) {
        const double middle = (low + high) / 2.0;
        ((valueAt(c, middle) > 0.0) == rises ? high : low) = middle;
    }
    return (low + high) / 2.0;
}

} // namespace

PlaneCubic straightCubic(QPointF start, QPointF end)
{
    return {start, between(start, end, 1.0 / 3.0), between(start, end, 2.0 / 3.0), end};
}

QPointF pointOn(const PlaneCubic& cubic, double t)
{
    return blossom(cubic, t, t, t);
}

PlaneCubic partOf(const PlaneCubic& cubic, double from, double to)
{
    return {blossom(cubic, from, from, from), blossom(cubic, from, from, to),
            blossom(cubic, from, to, to), to < 1.0 ? blossom(cubic, to, to, to) : cubic[3]};
}

double valueAt(const Controls& controls, double t)
{
    return blossom(controls, t, t, t);
}

CubicTurns turnsOf(const Controls& c)
{
    const double a = c[3] - c[0] + 3.0 * (c[1] - c[2]);
    const double b = 2.0 * (c[0] - 2.0 * c[1] + c[2]);
    const double d = c[1] - c[0];
    const double root = b * b - 4.0 * a * d;
    CubicTurns turns;
    if (!(root >= 0.0))
        return turns;
    // This form of the solution bears an `a` of next to nothing.
    const double q = -0.5 * (b + std::copysign(std::sqrt(root), b));
    for (const auto& [over, under] : {std::pair(q, a), std::pair(d, q)}) {
        const double t = under != 0.0 ? over / under : -1.0;
        if (t > 0.0 && t < 1.0)
            turns.at[turns.count++] = t;
    }
    if (turns.count == 2 && turns.at[1] < turns.at[0])
        std::swap(turns.at[0], turns.at[1]);
    return turns;
}

void addSignChanges(const Controls& controls, std::vector<double>& parameters)
{
    const auto [least, most] = std::ranges::minmax(controls);
    if (!(least <= 0.0 && most >= 0.0))
        return;
    const CubicTurns turns = turnsOf(controls);
    double from = 0.0;
    for (std::size_t i = 0; i <= turns.count; ++i) {
        const double to = i < turns.count ? turns.at[i] : 1.0;
        const double before = valueAt(controls, from);
        const double behind = valueAt(controls, to);
        if ((before > 0.0 && behind < 0.0) || (before < 0.0 && behind > 0.0))
            parameters.push_back(zeroBetween(controls, from, to));
        else if (behind == 0.0 && to < 1.0)
            parameters.push_back(to);
        from = to;
    }
}

void PlanePath::moveTo(QPointF point)
{
    steps.push_back(PathStep::Move);
    points.push_back(point);
}

void PlanePath::lineTo(QPointF point)
{
    steps.push_back(PathStep::Line);
    points.push_back(point);
}

void PlanePath::add(const PlanePiece& piece)
{
    const auto& [start, control1, control2, end] = piece.cubic;
    if (steps.empty() || steps.back() == PathStep::Close || points.back() != start)
        moveTo(start);
    if (piece.isStraight)
        return lineTo(end);
    steps.push_back(PathStep::Cubic);
    points.insert(points.end(), {control1, control2, end});
}
