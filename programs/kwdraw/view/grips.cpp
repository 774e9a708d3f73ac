#include "grips.h"

#include "path_walk.h"

namespace {

/// Longer paths have so many ends that their grips would hide them.
constexpr std::uint32_t kMostSteps = 12;

std::vector<QPointF> endsOf(const PathView& path)
{
    std::vector<QPointF> ends;
    std::size_t next = 0;
    for (const PathStep step : path.steps) {
        next += pointsOf(step);
        if (next > path.points.size())
            break;
        if (step != PathStep::Close)
            ends.push_back(path.points[next - 1]);
    }
    return ends;
}

} // namespace

std::vector<QPointF> gripsOf(const Scene& scene, const SceneItem& item)
{
    if (item.shapeCount == 1) {
        const SceneShape& shape = scene.shapesOf(item).front();
        if (shape.kind == SceneShape::Kind::Stroke && shape.stepCount <= kMostSteps)
            return endsOf(pathOf(scene, shape));
    }
    const SceneBox& box = item.box;
    if (box.isEmpty())
        return {};
    return {
        {box.left, box.bottom}, {box.right, box.bottom}, {box.right, box.top}, {box.left, box.top}};
}

void paintGrip(QPainter& painter, QPointF pixel, const QColor& color, const QColor& edge,
               double pixelRatio)
{
    const double half = kGripReach * pixelRatio;
    const QRectF square(pixel.x() - half, pixel.y() - half, 2.0 * half, 2.0 * half);
    const QRectF inside = square.adjusted(pixelRatio, pixelRatio, -pixelRatio, -pixelRatio);
    painter.fillRect(square, edge);
    painter.fillRect(inside, color);
}
