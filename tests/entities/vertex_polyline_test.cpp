#include "support.h"

#include <entities/mesh.h>
#include <entities/vertex_polyline.h>

namespace {

using namespace entity_test;

TEST(Vertex2d, AnswersWhatItsRecordHolds)
{
    KdDb2dVertex vertex;
    EXPECT_EQ(vertex.vertexType(), 0);
    Vertex2dMembers& members = vertex.edit();
    members.position = {1, 2, 3};
    members.type = KdDb::kControlVertex;
    members.startWidth = 0.5;
    members.endWidth = 0.75;
    members.bulge = -1.0;
    members.tangent = 1.25;
    members.tangentGiven = true;
    EXPECT_EQ(vertex.position(), (KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(vertex.vertexType(), 1);
    EXPECT_EQ(vertex.startWidth(), 0.5);
    EXPECT_EQ(vertex.endWidth(), 0.75);
    EXPECT_EQ(vertex.bulge(), -1.0);
    EXPECT_EQ(vertex.tangent(), 1.25);
    EXPECT_TRUE(vertex.isTangentUsed());
}

template <class Vertex>
class SpatialVertex : public testing::Test
{
};
using SpatialVertices =
    testing::Types<KdDb3dPolylineVertex, KdDbPolygonMeshVertex, KdDbPolyFaceMeshVertex>;
TYPED_TEST_SUITE(SpatialVertex, SpatialVertices);

TYPED_TEST(SpatialVertex, KeepsItsPosition)
{
    TypeParam vertex;
    EXPECT_EQ(vertex.position(), KdGePoint3d());
    vertex.edit().position = {1, 2, 3};
    EXPECT_EQ(vertex.position(), (KdGePoint3d{1, 2, 3}));
}

TEST(Polyline2d, AnswersWhatItsRecordHolds)
{
    KdDb2dPolyline polyline;
    EXPECT_FALSE(polyline.isClosed());
    EXPECT_EQ(polyline.polyType(), 0);
    Polyline2dMembers& members = polyline.edit();
    members.closed = true;
    members.plinegen = true;
    members.type = KdDb::kCubic2dPolyline;
    members.elevation = 4.0;
    members.defaultStartWidth = 0.5;
    members.defaultEndWidth = 0.25;
    members.extrusion = {{0, 0, -2}, 1.5};
    EXPECT_TRUE(polyline.isClosed());
    EXPECT_TRUE(polyline.isLinetypeGenerationOn());
    EXPECT_EQ(polyline.polyType(), 3);
    EXPECT_EQ(polyline.elevation(), 4.0);
    EXPECT_EQ(polyline.defaultStartWidth(), 0.5);
    EXPECT_EQ(polyline.defaultEndWidth(), 0.25);
    EXPECT_EQ(polyline.thickness(), 1.5);
    EXPECT_THAT(polyline.normal(), IsNear(KdGeVector3d{0, 0, -1}));
}

TEST(Polyline3d, AnswersWhatItsRecordHolds)
{
    KdDb3dPolyline polyline;
    EXPECT_FALSE(polyline.isClosed());
    EXPECT_EQ(polyline.polyType(), 0);
    polyline.edit().closed = true;
    polyline.edit().type = KdDb::kCubic3dPolyline;
    EXPECT_TRUE(polyline.isClosed());
    EXPECT_EQ(polyline.polyType(), 2);
}

} // namespace
