#include "support.h"

#include <QPainterPath>

std::ostream& operator<<(std::ostream& stream, const QPointF& point)
{
    return stream << '(' << point.x() << ", " << point.y() << ')';
}

std::ostream& operator<<(std::ostream& stream, const SceneBox& box)
{
    return stream << box.left << ' ' << box.bottom << " .. " << box.right << ' ' << box.top;
}

namespace scene_test {

void SceneTest::append(KdDbObjectId block, KdDbEntity* entity)
{
    KdDbBlockTableRecord* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, block, KdDb::kForWrite), eOk);
    ASSERT_EQ(record->appendEntity(entity), eOk);
    record->close();
}

KdDbLine* SceneTest::addLine(KdDbObjectId block, const KdGePoint3d& start, const KdGePoint3d& end)
{
    return addTo<KdDbLine>(block, [&](LineMembers& line) {
        line.start = start;
        line.end = end;
    });
}

KdDbObjectId SceneTest::addBlock(const wchar_t* name)
{
    return drawing.addRecord<KdDbBlockTable>(name)->objectId();
}

KdDbBlockReference* SceneTest::addReference(KdDbObjectId space, KdDbObjectId block,
                                            const KdGePoint3d& position)
{
    return addReference(space, block,
                        [&](BlockReferenceMembers& reference) { reference.position = position; });
}

std::shared_ptr<const Scene> SceneTest::buildOf(KdDbObjectId space,
                                                std::shared_ptr<const Scene> model) const
{
    auto scene = buildScene(drawing, space, std::move(model), {});
    EXPECT_NE(scene, nullptr);
    EXPECT_EQ(drawing.openCount(), 0);
    return scene ? scene : std::make_shared<Scene>();
}

void SceneTest::setHeader(const wchar_t* variable, KdDbHeaderValue value)
{
    ASSERT_TRUE(
        drawing.header().setValue(KdDbHeaderVariables::indexOf(variable), std::move(value)));
}

std::vector<SceneShape> shapesOf(const Scene& scene)
{
    return scene.shapes;
}

const SceneItem* itemOf(const Scene& scene, const KdDbEntity* entity)
{
    for (const SceneItem& item : scene.items) {
        if (item.id == entity->objectId())
            return &item;
    }
    return nullptr;
}

std::vector<SceneShape> shapesOf(const Scene& scene, const KdDbEntity* entity)
{
    const SceneItem* item = itemOf(scene, entity);
    if (!item)
        return {};
    const auto shapes = scene.shapesOf(*item);
    return {shapes.begin(), shapes.end()};
}

const SceneLook& lookOf(const Scene& scene, const SceneShape& shape)
{
    return scene.looks[shape.look];
}

std::string layerOf(const Scene& scene, const SceneShape& shape)
{
    return scene.layers[shape.layer].name.toStdString();
}

std::vector<QPointF> pointsOf(const Scene& scene, const SceneShape& shape)
{
    const auto first = scene.points.begin() + shape.firstPoint;
    return {first, first + shape.pointCount};
}

std::string stepsOf(const Scene& scene, const SceneShape& shape)
{
    std::string letters;
    for (std::uint32_t i = 0; i < shape.stepCount; ++i)
        letters.push_back("ZMLC"[static_cast<int>(scene.steps[shape.firstStep + i])]);
    return letters;
}

std::vector<QPointF> pointsAlong(const Scene& scene, const SceneShape& shape, int count)
{
    std::vector<QPointF> points;
    const QPointF* next = scene.points.data() + shape.firstPoint;
    for (const char step : stepsOf(scene, shape)) {
        if (step == 'Z')
            continue;
        if (step != 'C') {
            points.push_back(*next++);
            continue;
        }
        const QPointF start = next[-1];
        for (int i = 1; i <= count; ++i) {
            const double t = static_cast<double>(i) / count;
            const double u = 1.0 - t;
            points.push_back(start * (u * u * u) + next[0] * (3 * u * u * t) +
                             next[1] * (3 * u * t * t) + next[2] * (t * t * t));
        }
        next += 3;
    }
    return points;
}

bool holds(const Scene& scene, const SceneShape& shape, QPointF point)
{
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    const QPointF* next = scene.points.data() + shape.firstPoint;
    for (const char step : stepsOf(scene, shape)) {
        if (step == 'M')
            path.moveTo(*next++);
        else if (step == 'L')
            path.lineTo(*next++);
        else if (step == 'Z')
            path.closeSubpath();
        else {
            path.cubicTo(next[0], next[1], next[2]);
            next += 3;
        }
    }
    return path.contains(point);
}

} // namespace scene_test
