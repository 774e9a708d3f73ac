#include "grips.h"

#include "path_walk.h"

namespace {

/// Longer paths have so many ends that their grips would hide them.
constexpr std::uint32_t kMostSteps = 12;

std::vector<Grip> endsOf(const PathView& path)
{
    std::vector<Grip> ends;
    std::size_t next = 0;
    for (const PathStep step : path.steps) {
        next += pointsOf(step);
        if (next > path.points.size())
            break;
        if (step != PathStep::Close)
            ends.push_back({path.points[next - 1], {}});
    }
    return ends;
}

} // namespace

std::vector<Grip> gripsOf(const Scene& scene, const SceneItem& item)
{
    if (item.shapeCount == 1) {
        const SceneShape& shape = scene.shapesOf(item).front();
        if (shape.kind == SceneShape::Kind::Stroke && shape.stepCount <= kMostSteps)
            return endsOf(pathOf(scene, shape));
    }
    const SceneBox& box = item.box;
    if (box.isEmpty())
        return {};
    return {{{box.left, box.bottom}, {-1.0, 1.0}},
            {{box.right, box.bottom}, {1.0, 1.0}},
            {{box.right, box.top}, {1.0, -1.0}},
            {{box.left, box.top}, {-1.0, -1.0}}};
}

void paintGrip(QPainter& painter, QPointF pixel, const QColor& color, const QColor& edge,
               double pixelRatio)
{
    const double half = kGripReach * pixelRatio;
    const QPointF corner = (pixel - QPointF(half, half)).toPoint(); // so that edges are sharp
    const QRectF square(corner, QSizeF(2.0 * half, 2.0 * half));
    const QRectF inside = square.adjusted(pixelRatio, pixelRatio, -pixelRatio, -pixelRatio);
    painter.fillRect(square, edge);
    painter.fillRect(inside, color);
}
