#include <gtest/gtest.h>

#include <entities/all.h>

namespace {

// A drawing may hold millions of entities, so their sizes are part of the design.
static_assert(sizeof(KdDbEntity) <= 64);
static_assert(sizeof(KdDbLine) == sizeof(KdDbEntity));
static_assert(sizeof(KdDbLine) + sizeof(LineMembers) <= 256);
static_assert(sizeof(KdDbCircle) + sizeof(CircleMembers) <= 256);
static_assert(sizeof(KdDbArc) + sizeof(ArcMembers) <= 256);
static_assert(sizeof(KdDbEllipse) + sizeof(EllipseMembers) <= 256);
static_assert(sizeof(KdDbRay) + sizeof(RayMembers) <= 256);
static_assert(sizeof(KdDbPoint) + sizeof(PointMembers) <= 256);
static_assert(sizeof(KdDbBlockReference) <= 72);
static_assert(sizeof(KdDbBlockReference) + sizeof(BlockReferenceMembers) <= 256);
static_assert(sizeof(KdDb2dVertex) + sizeof(Vertex2dMembers) <= 256);
static_assert(sizeof(KdDbText) + sizeof(TextMembers) <= 320);
static_assert(sizeof(KdDbPolyline) + sizeof(PolylineMembers) <= 320);

TEST(EntitySizes, OfClassesWithoutDataOfTheirOwnAreThoseOfAnEntity)
{
    for (const KdRxClass* rxClass : {KdDbHatch::desc(), KdDbMText::desc(), KdDbSpline::desc()})
        EXPECT_EQ(rxClass->factory().size, sizeof(KdDbEntity));
}

} // namespace
