/// Paths in the plane of a scene, and the Bezier curves in them.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include <kwdraw/scene/scene.h>

/// A Bezier curve by its ends and control points. A straight line has its control points on itself,
/// a third of its length apart.
using PlaneCubic = std::array<QPointF, 4>;

PlaneCubic straightCubic(QPointF start, QPointF end);
QPointF pointOn(const PlaneCubic& cubic, double t);
/// The part between two parameters from 0 to 1.
PlaneCubic partOf(const PlaneCubic& cubic, double from, double to);
/// Where a curve turns round along an axis.
struct CubicTurns
{
    std::array<double, 2> at{}; ///< between 0 and 1
    std::size_t count = 0;

    const double* begin() const { return at.data(); }
    const double* end() const { return at.data() + count; }
};
/// By the control values along the axis, the first turn first.
CubicTurns turnsOf(const std::array<double, 4>& controls);
double valueAt(const std::array<double, 4>& controls, double t);
/// Adds the parameters between 0 and 1 at which a function changes its sign that is given by its
/// control values, lowest first.
void addSignChanges(const std::array<double, 4>& controls, std::vector<double>& parameters);

/// A piece of a path.
struct PlanePiece
{
    PlaneCubic cubic;
    bool isStraight = true;
};

/// A path in the plane of a scene.
struct PlanePath
{
    std::vector<PathStep> steps;
    std::vector<QPointF> points;

    void moveTo(QPointF point);
    void lineTo(QPointF point);
    void close() { steps.push_back(PathStep::Close); }
    /// Goes on along a piece, from a new start unless it begins where the path has ended.
    void add(const PlanePiece& piece);
};

/// Calls `begin()` before each line of a path and `take(piece)` for each of its pieces.
/// @param closes  true to take lines that are open as if they were closed
template <class Begin, class Take>
void walkPieces(const PlanePath& path, bool closes, Begin begin, Take take)
{
    QPointF start;
    QPointF at;
    const QPointF* next = path.points.data();
    const auto goTo = [&](QPointF point) {
        take(PlanePiece{straightCubic(at, point), true});
        at = point;
    };
    for (const PathStep step : path.steps) {
        switch (step) {
        case PathStep::Move:
            if (closes && at != start)
                goTo(start);
            start = at = *next++;
            begin();
            break;
        case PathStep::Line:
            goTo(*next++);
            break;
        case PathStep::Cubic:
            take(PlanePiece{{at, next[0], next[1], next[2]}, false});
            at = next[2];
            next += 3;
            break;
        case PathStep::Close:
            if (at != start)
                goTo(start);
            break;
        }
    }
    if (closes && at != start)
        goTo(start);
}
