#include <cmath>
#include <cstdint>
#include <numbers>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <entities/all.h>

namespace {

using testing::ElementsAre;
using testing::Pair;

/// A drawing whose entities are added by what they hold.
class Extents : public testing::Test
{
  protected:
    template <class Entity, class Fill>
    Entity* add(KdDbObjectId block, Fill fill)
    {
        auto* entity = new Entity;
        fill(entity->edit());
        KdDbBlockTableRecord* record = nullptr;
        EXPECT_EQ(kddbOpenObject(record, block, KdDb::kForWrite), eOk);
        record->appendEntity(entity);
        record->close();
        return entity;
    }
    void addLine(KdDbObjectId block, const KdGePoint3d& start, const KdGePoint3d& end)
    {
        add<KdDbLine>(block, [&](LineMembers& line) {
            line.start = start;
            line.end = end;
        });
    }
    KdDbObjectId addBlock(const wchar_t* name)
    {
        return drawing.addRecord<KdDbBlockTable>(name)->objectId();
    }
    KdDbObjectId addStyle(std::vector<double> offsets)
    {
        auto* style = new KdDbMlineStyle;
        style->edit().offsets = std::move(offsets);
        drawing.addObject(style, {});
        return style->objectId();
    }
    KdDbMline* addMline(KdDbObjectId style, int justification, bool closed = false)
    {
        return add<KdDbMline>(drawing.modelSpaceId(), [&](MlineMembers& mline) {
            mline.style = style;
            mline.scale = 10.0;
            mline.vertices = {{0, 0, 0}, {100, 0, 0}, {100, 100, 0}};
            mline.justification = static_cast<std::int8_t>(justification);
            mline.closed = closed;
        });
    }

    KdDbDatabase drawing;
    KdGeExtents3d box;
};

TEST_F(Extents, OfADimensionAreThoseOfItsBlockInTheWorld)
{
    const KdDbObjectId block = addBlock(L"*D1");
    addLine(block, {10, 20, 0}, {30, 20, 5});
    const KdDbObjectId arrow = addBlock(L"_ARROW");
    addLine(arrow, {-1, -1, 0}, {0, 1, 0});
    add<KdDbBlockReference>(block, [&](BlockReferenceMembers& reference) {
        reference.block = arrow;
        reference.position = {30, 20, 0};
        reference.scale = {4, 4, 4};
    });
    const auto* dimension = add<KdDbAlignedDimension>(
        drawing.modelSpaceId(), [&](auto& members) { members.block = block; });
    ASSERT_EQ(dimension->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{10, 16, 0}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{30, 24, 5}));
}

TEST_F(Extents, OfADimensionWithoutABlockAreNone)
{
    const auto* dimension = add<KdDbAlignedDimension>(drawing.modelSpaceId(), [](auto&) {});
    EXPECT_EQ(dimension->getGeomExtents(box), eNotApplicable);
    const KdDbObjectId empty = addBlock(L"*D2");
    const auto* other = add<KdDbAlignedDimension>(drawing.modelSpaceId(),
                                                  [&](auto& members) { members.block = empty; });
    EXPECT_EQ(other->getGeomExtents(box), eNotApplicable);
    EXPECT_TRUE(box.isEmpty());
}

TEST_F(Extents, OfADimensionWhoseBlockHoldsItselfEnd)
{
    const KdDbObjectId block = addBlock(L"*D3");
    addLine(block, {0, 0, 0}, {1, 0, 0});
    add<KdDbBlockReference>(block,
                            [&](BlockReferenceMembers& reference) { reference.block = block; });
    const auto* dimension = add<KdDbAlignedDimension>(
        drawing.modelSpaceId(), [&](auto& members) { members.block = block; });
    ASSERT_EQ(dimension->getGeomExtents(box), eOk);
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{1, 0, 0}));
}

TEST_F(Extents, OfADimensionInItsOwnBlockEnd)
{
    const KdDbObjectId block = addBlock(L"*D4");
    addLine(block, {0, 0, 0}, {1, 0, 0});
    const KdDbAlignedDimension* dimension = nullptr;
    for (int i = 0; i < 20; ++i) // each of which would look at all the others
        dimension = add<KdDbAlignedDimension>(block, [&](auto& members) { members.block = block; });
    ASSERT_EQ(dimension->getGeomExtents(box), eOk);
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{1, 0, 0}));
}

TEST_F(Extents, OfAMultilineHoldAllItsLines)
{
    const KdDbObjectId style = addStyle({0.5, -0.5});
    ASSERT_EQ(addMline(style, KdDbMline::kZero)->getGeomExtents(box), eOk);
    EXPECT_EQ(box.minPoint, (KdGePoint3d{0, -5, 0}));
    EXPECT_EQ(box.maxPoint, (KdGePoint3d{105, 100, 0}));
    EXPECT_EQ(addMline({}, KdDbMline::kZero)->getGeomExtents(box), eNotApplicable);
}

TEST_F(Extents, LinesOfAMultilineMeetOnTheBisector)
{
    const auto lines = addMline(addStyle({0.5, -0.5}), KdDbMline::kZero)->elementLines();
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_THAT(lines[0],
                ElementsAre(KdGePoint3d{0, 5, 0}, KdGePoint3d{95, 5, 0}, KdGePoint3d{95, 100, 0}));
    EXPECT_THAT(lines[1], ElementsAre(KdGePoint3d{0, -5, 0}, KdGePoint3d{105, -5, 0},
                                      KdGePoint3d{105, 100, 0}));
}

TEST_F(Extents, JustificationShiftsTheLinesOfAMultiline)
{
    const KdDbObjectId style = addStyle({0.5, -0.5});
    const auto heights = [&](int justification) {
        const auto lines = addMline(style, justification)->elementLines();
        return std::pair(lines[0][0].y, lines[1][0].y);
    };
    EXPECT_THAT(heights(KdDbMline::kTop), Pair(0.0, -10.0));
    EXPECT_THAT(heights(KdDbMline::kBottom), Pair(10.0, 0.0));
}

TEST_F(Extents, ClosedMultilinesTurnAtTheirFirstVertexAsWell)
{
    const auto lines = addMline(addStyle({0.0, 0.5}), KdDbMline::kZero, true)->elementLines();
    // Between the way down to the first vertex, at 45 degrees, and the way to the right.
    const KdGePoint3d& first = lines[1][0];
    EXPECT_NEAR(first.y, 5.0, 1e-9);
    EXPECT_NEAR(first.x, 5.0 + 5.0 * std::sqrt(2.0), 1e-9);
}

TEST_F(Extents, EndsOfAMultilineAreSlantedByTheStyle)
{
    const KdDbObjectId style = addStyle({0.5, -0.5});
    KdDbMlineStyle* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, style, KdDb::kForWrite), eOk);
    opened->edit().startAngle = std::numbers::pi / 4.0;
    opened->edit().endAngle = std::numbers::pi * 3.0 / 4.0;
    opened->close();
    const auto lines = addMline(style, KdDbMline::kZero)->elementLines();
    // The first segment runs along x, the last one along y; the lines are 5 beside them.
    EXPECT_NEAR(lines[0].front().x, 5.0, 1e-9);
    EXPECT_NEAR(lines[1].front().x, -5.0, 1e-9);
    EXPECT_NEAR(lines[0].back().y, 95.0, 1e-9);
    EXPECT_NEAR(lines[1].back().y, 105.0, 1e-9);
}

TEST(SubDMesh, HasEachEdgeOfItsFacesOnce)
{
    KdDbSubDMesh mesh;
    mesh.edit().vertices.resize(4);
    mesh.edit().faces = {3, 0, 1, 2, 3, 2, 1, 3};
    EXPECT_THAT(mesh.edges(),
                ElementsAre(Pair(0U, 1U), Pair(0U, 2U), Pair(1U, 2U), Pair(1U, 3U), Pair(2U, 3U)));
}

TEST(SubDMesh, BearsFacesThatAreNone)
{
    KdDbSubDMesh mesh;
    mesh.edit().vertices.resize(2);
    for (const std::vector<std::int32_t>& faces :
         {std::vector<std::int32_t>{3, 0, 1}, {-5, 0, 1}, {2147483647, 0}, {2, 0, 77}, {0, 0, 0}}) {
        mesh.edit().faces = faces;
        EXPECT_THAT(mesh.edges(), testing::IsEmpty());
    }
}

} // namespace
