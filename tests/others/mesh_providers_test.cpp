#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

class MeshProviders : public LoneProviders
{
  protected:
    template <class Part>
    Part* addPart(KdDbEntity& owner, const KdGePoint3d& position)
    {
        auto* part = new Part;
        part->edit().position = position;
        drawing.addObject(part, owner.objectId());
        owner.appendPart(part->objectId());
        return part;
    }
};

TEST_F(MeshProviders, TellTheGridOfAPolygonMesh)
{
    auto* mesh = add<KdDbPolygonMesh>();
    change(mesh, [](PolygonMeshMembers& members) {
        members.mSize = 1;
        members.nSize = 3;
        members.mDensity = 6;
        members.nDensity = 7;
        members.mClosed = true;
        members.type = KdDb::kBezierMesh;
    });
    for (const double x : {1.0, 2.0, 3.0})
        addPart<KdDbPolygonMeshVertex>(*mesh, {x, 4, 5});
    expectProvider<KdDbPolygonMesh_Extension>(
        *mesh, {{77337, L"3D Visualization:Shadow display", false, "5005 Casts and receive shadows",
                 kShadowChoices},
                pointRow(77338, L"Geometry:Vertex", {"5009 1,4,5", "5009 2,4,5", "5009 3,4,5"}),
                {77339, L"Mesh:M Closed", false, "290 true"},
                {77340, L"Mesh:N Closed", false, "290 false"},
                {77341, L"Mesh:M Density", false, "5003 6"},
                {77342, L"Mesh:N Density", false, "5003 7"},
                {77343, L"Mesh:M Vertex count", true, "5003 1"},
                {77344, L"Mesh:N Vertex count", true, "5003 3"},
                {77345, L"Misc:Fit/Smooth", false, "5005 Bezier",
                 texts({"None", "Bezier", "Quadratic", "Cubic"})}});
}

TEST_F(MeshProviders, NameTheSmoothingOfAPolygonMesh)
{
    KdDbPolygonMesh mesh;
    KdDbPolygonMesh_Extension provider;
    const std::pair<int, const char*> kNames[] = {{0, "5005 None"},
                                                  {5, "5005 Quadratic"},
                                                  {6, "5005 Cubic"},
                                                  {8, "5005 Bezier"},
                                                  {7, "5005 "}};
    for (const auto& [type, name] : kNames) {
        mesh.edit().type = static_cast<KdDb::PolyMeshType>(type);
        EXPECT_THAT(ask(provider, &mesh, L"Misc:Fit/Smooth").chain, ElementsAre(name));
    }
}

TEST_F(MeshProviders, PassOverTheFacesOfAPolyfaceMesh)
{
    auto* mesh = add<KdDbPolyFaceMesh>();
    change(mesh, [](PolyFaceMeshMembers& members) {
        members.numVertices = 2;
        members.numFaces = 1;
    });
    addPart<KdDbPolyFaceMeshVertex>(*mesh, {1, 2, 3});
    addPart<KdDbFaceRecord>(*mesh, {9, 9, 9});
    addPart<KdDbPolyFaceMeshVertex>(*mesh, {4, 5, 6});
    expectProvider<KdDbPolyFaceMesh_Extension>(
        *mesh, {pointRow(77347, L"Geometry:Vertex", {"5009 1,2,3", "5009 4,5,6"}),
                {77348, L"Mesh:Number of vertices", true, "5003 2"},
                {77349, L"Mesh:Number of faces", true, "5003 1"}});
}

TEST_F(MeshProviders, GiveTheOriginForAMeshWithoutVertices)
{
    KdDbPolyFaceMesh mesh;
    KdDbPolyFaceMesh_Extension provider;
    EXPECT_THAT(ask(provider, &mesh, L"Geometry:Vertex").chain, ElementsAre("5009 0,0,0"));
}

} // namespace
