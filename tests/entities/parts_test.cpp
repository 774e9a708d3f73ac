#include <initializer_list>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/attribute.h>
#include <entities/block_reference.h>
#include <entities/hatch.h>
#include <entities/mesh.h>
#include <entities/vertex_polyline.h>

namespace {

std::vector<KdDbObjectId> walk(KdDbObjectIterator& iterator)
{
    std::vector<KdDbObjectId> ids;
    for (; !iterator.done(); iterator.step())
        ids.push_back(iterator.objectId());
    return ids;
}

TEST(PartList, KeepsPartsInOrder)
{
    const KdDb2dVertex first;
    const KdDb2dVertex second;
    KdDb2dPolyline polyline;
    polyline.appendPart(first.objectId());
    polyline.appendPart(second.objectId());
    EXPECT_THAT(polyline.parts().ids(), testing::ElementsAre(first.objectId(), second.objectId()));
    EXPECT_TRUE(polyline.parts().sequenceEnd().isNull());
}

TEST(PartList, KeepsTheSequenceEndApart)
{
    const KdDbAttribute attribute;
    const KdDbSequenceEnd end;
    KdDbBlockReference reference;
    reference.appendPart(attribute.objectId());
    reference.appendPart(end.objectId());
    EXPECT_THAT(walk(*reference.attributeIterator()), testing::ElementsAre(attribute.objectId()));
    EXPECT_EQ(reference.parts().sequenceEnd(), end.objectId());
}

TEST(PartList, IgnoresTheNullId)
{
    KdDbBlockReference reference;
    reference.appendPart(KdDbObjectId());
    EXPECT_TRUE(reference.parts().ids().empty());
}

TEST(ObjectIterator, IsDoneAtOnceForAnEntityWithoutParts)
{
    const KdDbBlockReference reference;
    const auto iterator = reference.attributeIterator();
    EXPECT_TRUE(iterator->done());
    EXPECT_TRUE(iterator->objectId().isNull());
}

TEST(ObjectIterator, CanStartAgain)
{
    const KdDb3dPolylineVertex vertex;
    KdDb3dPolyline polyline;
    polyline.appendPart(vertex.objectId());
    const auto iterator = polyline.vertexIterator();
    EXPECT_EQ(walk(*iterator).size(), 1u);
    iterator->start();
    EXPECT_THAT(walk(*iterator), testing::ElementsAre(vertex.objectId()));
}

TEST(PartsOf, KnowsEachKindThatHasParts)
{
    const KdDbSequenceEnd end;
    KdDb2dPolyline flat;
    KdDb3dPolyline spatial;
    KdDbPolygonMesh grid;
    KdDbPolyFaceMesh faces;
    KdDbBlockReference reference;
    KdDbMInsertBlock grouped;
    for (KdDbEntity* entity :
         std::initializer_list<KdDbEntity*>{&flat, &spatial, &grid, &faces, &reference, &grouped}) {
        entity->appendPart(end.objectId());
        const KdDbPartList* parts = kddbPartsOf(*entity);
        ASSERT_NE(parts, nullptr);
        EXPECT_EQ(parts->sequenceEnd(), end.objectId());
    }
}

TEST(PartsOf, IsNullForAKindWithoutParts)
{
    EXPECT_EQ(kddbPartsOf(KdDbHatch()), nullptr);
}

} // namespace
