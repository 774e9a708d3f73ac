// What the tests of scenes share.
#pragma once

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <entities/block_reference.h>
#include <entities/line.h>
#include <kwdraw/scene/scene_builder.h>

std::ostream& operator<<(std::ostream& stream, const QPointF& point);
std::ostream& operator<<(std::ostream& stream, const SceneBox& box);

namespace scene_test {

constexpr double kNear = 1e-9;

/// A drawing that is made in memory.
class SceneTest : public testing::Test
{
  protected:
    KdDbObjectId modelId() const { return drawing.modelSpaceId(); }
    KdDbObjectId sheetId() const { return drawing.activeSheetId(); }

    /// A new entity of the model with its members set by `fill`.
    template <class Entity, class Fill>
    Entity* add(Fill fill)
    {
        return addTo<Entity>(modelId(), fill);
    }
    template <class Entity, class Fill>
    Entity* addTo(KdDbObjectId block, Fill fill)
    {
        auto* entity = new Entity;
        fill(entity->edit());
        append(block, entity);
        return entity;
    }
    KdDbLine* addLine(KdDbObjectId block, const KdGePoint3d& start, const KdGePoint3d& end);
    /// A new entity that belongs to another one.
    template <class Part, class Fill>
    Part* addPart(KdDbEntity* owner, Fill fill)
    {
        auto* part = new Part;
        fill(part->edit());
        drawing.addObject(part, owner->objectId());
        owner->appendPart(part->objectId());
        return part;
    }

    /// Changes the members of an object of the drawing.
    template <class Object, class Change>
    static void change(Object* object, Change apply)
    {
        Object* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, object->objectId(), KdDb::kForWrite), eOk);
        apply(opened->edit());
        opened->close();
    }

    template <class Fill>
    KdDbObjectId addLayer(const wchar_t* name, Fill fill)
    {
        auto* layer = drawing.addRecord<KdDbLayerTable>(name);
        change(layer, fill);
        return layer->objectId();
    }
    KdDbObjectId addBlock(const wchar_t* name);
    template <class Fill>
    KdDbBlockReference* addReference(KdDbObjectId space, KdDbObjectId block, Fill fill)
    {
        return addTo<KdDbBlockReference>(space, [&](BlockReferenceMembers& reference) {
            reference.block = block;
            fill(reference);
        });
    }
    KdDbBlockReference* addReference(KdDbObjectId space, KdDbObjectId block,
                                     const KdGePoint3d& position);

    std::shared_ptr<const Scene> build() const { return buildOf(modelId()); }
    std::shared_ptr<const Scene> buildOf(KdDbObjectId space,
                                         std::shared_ptr<const Scene> model = nullptr) const;
    void setHeader(const wchar_t* variable, KdDbHeaderValue value);

    KdDbDatabase drawing;

  private:
    void append(KdDbObjectId block, KdDbEntity* entity);
};

/// All shapes of the scene, or those of one item.
std::vector<SceneShape> shapesOf(const Scene& scene);
std::vector<SceneShape> shapesOf(const Scene& scene, const KdDbEntity* entity);
const SceneItem* itemOf(const Scene& scene, const KdDbEntity* entity);
const SceneLook& lookOf(const Scene& scene, const SceneShape& shape);
std::string layerOf(const Scene& scene, const SceneShape& shape);
std::vector<QPointF> pointsOf(const Scene& scene, const SceneShape& shape);
/// The path's steps as letters: M, L, C, Z.
std::string stepsOf(const Scene& scene, const SceneShape& shape);
/// Points on a path, `count` on each piece.
std::vector<QPointF> pointsAlong(const Scene& scene, const SceneShape& shape, int count);
/// True if a point is inside of a filled shape.
bool holds(const Scene& scene, const SceneShape& shape, QPointF point);

MATCHER_P2(IsPoint, x, y, "")
{
    return std::abs(arg.x() - x) < 1e-9 && std::abs(arg.y() - y) < 1e-9;
}
MATCHER_P4(IsBox, left, bottom, right, top, "")
{
    return std::abs(arg.left - left) < 1e-9 && std::abs(arg.bottom - bottom) < 1e-9 &&
           std::abs(arg.right - right) < 1e-9 && std::abs(arg.top - top) < 1e-9;
}

} // namespace scene_test
