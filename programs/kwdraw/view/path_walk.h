/// Walks the paths of a scene as lines of pixels.
///
/// A sink takes them: `moveTo(point)`, `lineTo(point)`, and `jumpTo(cubic)` for a curve that lies
/// outside of the box, of which only the end, and perhaps the length, matters.
#pragma once

#include <algorithm>
#include <span>

#include <kwdraw/scene/scene.h>

#include "cubic.h"
#include "pixel_frame.h"

struct PathView
{
    std::span<const PathStep> steps;
    std::span<const QPointF> points;
};

inline PathView pathOf(const Scene& scene, const SceneShape& shape)
{
    return {std::span(scene.steps).subspan(shape.firstStep, shape.stepCount),
            std::span(scene.points).subspan(shape.firstPoint, shape.pointCount)};
}

inline std::size_t pointsOf(PathStep step)
{
    return step == PathStep::Cubic ? 3 : step == PathStep::Close ? 0 : 1;
}

/// Pixels that a flattened curve may leave the true one.
inline constexpr double kFlatness = 0.1;

template <class Sink>
void flattenCubic(const Cubic& cubic, const ClipBox& box, Sink& sink, int depth = 0)
{
    // Deep enough for curves of more pixels than numbers have digits.
    constexpr int kDepth = 40;
    constexpr double kPieces = 12.0;
    if (cubic.misses(box))
        return sink.jumpTo(cubic);
    const double pieces = cubic.pieces(kFlatness);
    if (pieces > kPieces && depth < kDepth) {
        const auto [first, second] = cubic.halves();
        flattenCubic(first, box, sink, depth + 1);
        return flattenCubic(second, box, sink, depth + 1);
    }
    const int count = static_cast<int>(std::min(pieces, kPieces));
    for (int i = 1; i < count; ++i)
        sink.lineTo(cubic.at(i / static_cast<double>(count)));
    sink.lineTo(cubic.end);
}

/// Stops where the path ends too early.
template <class Sink>
void walkPath(const PathView& path, const PixelFrame& frame, const ClipBox& box, Sink& sink)
{
    QPointF start;
    QPointF at;
    std::size_t next = 0;
    for (const PathStep step : path.steps) {
        const std::size_t taken = pointsOf(step);
        if (next + taken > path.points.size())
            return;
        const QPointF* points = path.points.data() + next;
        next += taken;
        switch (step) {
        case PathStep::Move:
            start = at = frame.map(points[0]);
            sink.moveTo(at);
            break;
        case PathStep::Line:
            at = frame.map(points[0]);
            sink.lineTo(at);
            break;
        case PathStep::Cubic: {
            const Cubic cubic{at, frame.map(points[0]), frame.map(points[1]), frame.map(points[2])};
            at = cubic.end;
            flattenCubic(cubic, box, sink);
            break;
        }
        case PathStep::Close:
            at = start;
            sink.lineTo(at);
            break;
        }
    }
}
