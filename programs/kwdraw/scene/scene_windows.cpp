#include <kwdraw/scene/scene_windows.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include <entities/viewport.h>

namespace {

/// The models that are seen through the windows of one sheet.
class Models
{
  public:
    Models(std::shared_ptr<const Scene> fromAbove, const MakeModel& make)
        : m_fromAbove(std::move(fromAbove)), m_make(make)
    {
    }

    /// Null only if making it was given up.
    std::shared_ptr<const Scene> seenAlong(const KdGeVector3d& direction)
    {
        if (direction.isEqualTo(KdGeVector3d::kZAxis))
            return m_fromAbove;
        for (const Made& made : m_made) {
            if (made.direction.isEqualTo(direction))
                return made.model;
        }
        m_made.push_back({direction, m_make(KdGeMatrix3d::worldToPlane(direction))});
        return m_made.back().model;
    }

  private:
    struct Made
    {
        KdGeVector3d direction;
        std::shared_ptr<const Scene> model;
    };

    std::shared_ptr<const Scene> m_fromAbove;
    const MakeModel& m_make;
    std::vector<Made> m_made;
};

KdGeVector3d directionOf(const KdDbViewport& viewport)
{
    const KdGeVector3d direction = viewport.viewDirection().normal();
    return direction.length() > 0.5 ? direction : KdGeVector3d::kZAxis;
}

/// From the model, flattened along the direction, to the sheet.
QTransform mapOf(const KdDbViewport& viewport, const KdGeVector3d& direction)
{
    const KdGePoint3d target = KdGeMatrix3d::worldToPlane(direction) * viewport.viewTarget();
    const double scale = viewport.customScale();
    const double c = std::cos(viewport.twistAngle());
    const double s = std::sin(viewport.twistAngle());
    const QTransform toView(c, s, -s, c, -target.x * c + target.y * s - viewport.viewCenter().x,
                            -target.x * s - target.y * c - viewport.viewCenter().y);
    const KdGePoint3d center = viewport.centerPoint();
    return toView * QTransform(scale, 0.0, 0.0, scale, center.x, center.y);
}

/// The inside of a path; its curves by so many corners that nobody sees them.
QPolygonF polygonOf(const Scene& scene, const SceneShape& shape)
{
    constexpr int kCornersOnCurve = 16;
    QPolygonF polygon;
    const QPointF* next = scene.points.data() + shape.firstPoint;
    bool hasBegun = false;
    for (std::uint32_t i = 0; i < shape.stepCount; ++i) {
        const PathStep step = scene.steps[shape.firstStep + i];
        if (step == PathStep::Close || (step == PathStep::Move && hasBegun))
            break; // a window has one edge
        hasBegun = true;
        if (step != PathStep::Cubic) {
            polygon << *next++;
            continue;
        }
        const QPointF start = polygon.last();
        for (int corner = 1; corner <= kCornersOnCurve; ++corner) {
            const double t = static_cast<double>(corner) / kCornersOnCurve;
            const double u = 1.0 - t;
            polygon << start * (u * u * u) + next[0] * (3.0 * u * u * t) +
                           next[1] * (3.0 * u * t * t) + next[2] * (t * t * t);
        }
        next += 3;
    }
    return polygon;
}

std::vector<std::uint32_t> frozenIn(const KdDbViewport& viewport, const Scene& scene)
{
    std::vector<std::uint32_t> frozen;
    for (std::uint32_t layer = 0; layer < scene.layers.size(); ++layer) {
        const auto& ids = viewport.frozenLayers();
        if (std::find(ids.begin(), ids.end(), scene.layers[layer].id) != ids.end())
            frozen.push_back(layer);
    }
    return frozen;
}

} // namespace

bool addWindows(Scene& sheet, const std::shared_ptr<const Scene>& model, bool scalesLinetypes,
                const MakeModel& makeModel)
{
    Models models(model, makeModel);
    for (std::uint32_t item = 0; item < sheet.items.size(); ++item) {
        const SceneItem& frame = sheet.items[item];
        if (frame.shapeCount == 0 || !frame.id.isKindOf(KdDbViewport::desc()))
            continue;
        const OpenForRead<KdDbViewport> viewport(frame.id);
        if (!viewport || !viewport->isOn() || !(viewport->customScale() > 0.0) || !model)
            continue;
        SceneWindow window;
        const KdGeVector3d direction = directionOf(*viewport);
        window.item = item;
        window.clip = polygonOf(sheet, sheet.shapesOf(frame).front());
        window.modelToSheet = mapOf(*viewport, direction);
        window.frozenLayers = frozenIn(*viewport, sheet);
        window.linetypesOfSheet = scalesLinetypes;
        window.model = models.seenAlong(direction);
        if (!window.model)
            return false;
        sheet.windows.push_back(std::move(window));
    }
    return true;
}
