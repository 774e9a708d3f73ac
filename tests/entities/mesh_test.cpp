#include <gtest/gtest.h>

#include <database/database.h>
#include <entities/hatch.h>
#include <entities/mesh.h>

namespace {

TEST(PolygonMesh, AnswersWhatItsRecordHolds)
{
    KdDbPolygonMesh mesh;
    PolygonMeshMembers& members = mesh.edit();
    members.mSize = 3;
    members.nSize = 4;
    members.mDensity = 6;
    members.nDensity = 7;
    members.type = KdDb::kBezierMesh;
    members.nClosed = true;
    EXPECT_EQ(mesh.mSize(), 3);
    EXPECT_EQ(mesh.nSize(), 4);
    EXPECT_EQ(mesh.mSurfaceDensity(), 6);
    EXPECT_EQ(mesh.nSurfaceDensity(), 7);
    EXPECT_EQ(mesh.polyMeshType(), 8);
    EXPECT_FALSE(mesh.isMClosed());
    EXPECT_TRUE(mesh.isNClosed());
}

TEST(PolyFaceMesh, AnswersWhatItsRecordHolds)
{
    KdDbPolyFaceMesh mesh;
    mesh.edit().numVertices = 8;
    mesh.edit().numFaces = 6;
    EXPECT_EQ(mesh.numVertices(), 8);
    EXPECT_EQ(mesh.numFaces(), 6);
}

class OpenedVertex : public testing::Test
{
  protected:
    template <class Entity>
    Entity& add()
    {
        auto* entity = new Entity;
        EXPECT_EQ(m_database.addObject(entity, m_database.modelSpaceId()), eOk);
        return *entity;
    }

    KdDbDatabase m_database;
    KdDbPolyFaceMesh& m_mesh = add<KdDbPolyFaceMesh>();
};

TEST_F(OpenedVertex, IsAnyVertexOfAPolyFaceMesh)
{
    const KdDbFaceRecord& face = add<KdDbFaceRecord>();
    KdDbVertex* vertex = nullptr;
    ASSERT_EQ(m_mesh.openVertex(vertex, face.objectId()), eOk);
    EXPECT_EQ(vertex, &face);
    EXPECT_EQ(vertex->close(), eOk);
}

TEST_F(OpenedVertex, IsRefusedForWhatIsNoVertex)
{
    const KdDbHatch& hatch = add<KdDbHatch>();
    KdDbVertex* vertex = nullptr;
    EXPECT_EQ(m_mesh.openVertex(vertex, hatch.objectId()), eNotThatKindOfClass);
    EXPECT_EQ(m_mesh.openVertex(vertex, KdDbObjectId()), eNullObjectId);
    EXPECT_EQ(vertex, nullptr);
}

} // namespace
