// Builds the scenes of the drawings of a test collection that lies beside the sources. Where it is
// missing, these tests do not exist.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include <database/layout.h>
#include <entities/all.h>
#include <exchange/drawing_reader.h>

#include "support.h"

namespace fs = std::filesystem;
using namespace scene_test;

namespace {

fs::path collection()
{
    const char* stated = std::getenv("KW_SAMPLE_DRAWINGS");
    return stated ? fs::path(stated) : fs::path(KW_SOURCE_DIR) / "../shared/drawings";
}

std::vector<std::string> drawings()
{
    std::vector<std::string> names;
    std::error_code missing;
    for (fs::recursive_directory_iterator at(collection(), missing), end; at != end; ++at) {
        if (at->path().extension() == ".dxf")
            names.push_back(fs::relative(at->path(), collection()).string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

class SampleScene : public testing::TestWithParam<std::string>
{
  protected:
    void SetUp() override
    {
        ReadReport report;
        ASSERT_EQ(readDrawing(collection() / GetParam(), drawing, report), eOk);
        model = buildScene(*drawing, drawing->modelSpaceId(), nullptr, {});
        ASSERT_NE(model, nullptr);
    }

    static void expectSound(const Scene& scene)
    {
        for (const QPointF& point : scene.points)
            ASSERT_TRUE(std::isfinite(point.x()) && std::isfinite(point.y()));
        for (const SceneItem& item : scene.items) {
            ASSERT_LE(item.firstShape + item.shapeCount, scene.shapes.size());
            ASSERT_LT(item.layer, scene.layers.size());
            for (const SceneShape& shape : scene.shapesOf(item)) {
                ASSERT_FALSE(shape.box.isEmpty());
                ASSERT_TRUE(item.box.holds(shape.box));
                ASSERT_TRUE(std::isfinite(shape.box.width()) && std::isfinite(shape.box.height()));
                ASSERT_LE(shape.firstPoint + shape.pointCount, scene.points.size());
                ASSERT_LE(shape.firstStep + shape.stepCount, scene.steps.size());
                ASSERT_LT(shape.look, scene.looks.size());
                ASSERT_LT(shape.layer, scene.layers.size());
            }
        }
    }

    std::unique_ptr<KdDbDatabase> drawing;
    std::shared_ptr<const Scene> model;
};
GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(SampleScene);

TEST_P(SampleScene, IsSound)
{
    expectSound(*model);
    EXPECT_EQ(drawing->openCount(), 0);
}

TEST_P(SampleScene, HasSoundSheetsAndBlocks)
{
    for (const KdDbObjectId id : drawing->table<KdDbBlockTable>().recordIds()) {
        const auto scene = buildScene(*drawing, id, model, {});
        ASSERT_NE(scene, nullptr);
        expectSound(*scene);
        for (const SceneWindow& window : scene->windows) {
            EXPECT_GE(window.clip.size(), 3);
            EXPECT_TRUE(window.modelToSheet.isInvertible());
        }
    }
    EXPECT_EQ(drawing->openCount(), 0);
}

/// Kinds whose extents and shapes rest on the same points. Widths and arrowheads reach beyond the
/// extents, texts are measured in another font, edges of faces may be hidden, and a body's extents
/// count its faces.
bool isComparable(const KdDbEntity& entity)
{
    static const KdRxClass* const kKinds[] = {
        KdDbLine::desc(),   KdDbCircle::desc(), KdDbArc::desc(),   KdDbEllipse::desc(),
        KdDbSpline::desc(), KdDbSolid::desc(),  KdDbMline::desc(), KdDbTrace::desc(),
        KdDbPoint::desc(),  KdDbWipeout::desc()};
    if (std::ranges::find(kKinds, entity.isA()) != std::end(kKinds))
        return true;
    if (!entity.isKindOf(KdDbHatch::desc()))
        return false;
    const auto& hatch = static_cast<const KdDbHatch&>(entity);
    return hatch.isSolidFill() && hatch.hatchStyle() == HatchContent::Style::Normal;
}

double nearOf(const KdGeExtents3d& extents)
{
    return 1e-5 * std::max({extents.maxPoint.x - extents.minPoint.x,
                            extents.maxPoint.y - extents.minPoint.y,
                            std::abs(extents.maxPoint.x) * 1e-9, 1e-6});
}

void expectAt(const SceneItem& item, const KdGeExtents3d& extents)
{
    const double near = nearOf(extents);
    EXPECT_NEAR(item.box.left, extents.minPoint.x, near) << item.id.handle();
    EXPECT_NEAR(item.box.bottom, extents.minPoint.y, near) << item.id.handle();
    EXPECT_NEAR(item.box.right, extents.maxPoint.x, near) << item.id.handle();
    EXPECT_NEAR(item.box.top, extents.maxPoint.y, near) << item.id.handle();
}

void expectInside(const SceneItem& item, const KdGeExtents3d& extents)
{
    const double near = nearOf(extents);
    EXPECT_GE(item.box.left, extents.minPoint.x - near) << item.id.handle();
    EXPECT_GE(item.box.bottom, extents.minPoint.y - near) << item.id.handle();
    EXPECT_LE(item.box.right, extents.maxPoint.x + near) << item.id.handle();
    EXPECT_LE(item.box.top, extents.maxPoint.y + near) << item.id.handle();
}

TEST_P(SampleScene, HasItemsWhereTheirEntitiesAre)
{
    const KdDbHeaderVariables& header = drawing->header();
    for (const SceneItem& item : model->items) {
        const OpenForRead<KdDbEntity> entity(item.id);
        KdGeExtents3d extents;
        if (!entity || !isComparable(*entity) || entity->getGeomExtents(extents) != eOk ||
            item.shapeCount == 0 || header.real(L"PDSIZE") != 0.0)
            continue;
        if (entity->isKindOf(KdDbLine::desc()) &&
            static_cast<const KdDbLine&>(*entity).thickness() != 0.0)
            continue; // it is no part of what is seen from above
        if (entity->isKindOf(KdDbMline::desc()))
            expectInside(item, extents); // its ends may be cut off
        else
            expectAt(item, extents);
    }
}

INSTANTIATE_TEST_SUITE_P(Collection, SampleScene, testing::ValuesIn(drawings()),
                         [](const auto& row) {
                             std::string name = row.param;
                             std::ranges::replace_if(
                                 name, [](unsigned char c) { return !std::isalnum(c); }, '_');
                             return name;
                         });

} // namespace
