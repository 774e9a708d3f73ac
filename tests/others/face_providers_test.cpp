#include "support.h"

using namespace provider_test;

namespace {

class FaceProviders : public LoneProviders
{
  protected:
    static void fill(FilledFaceMembers& members)
    {
        members.points = {{{1, 2, 9}, {5, 2, 9}, {1, 7, 9}, {6, 8, 9}}};
        members.extrusion.setThickness(2.5);
    }

    const std::vector<std::string> corners = {"5002 1,2", "5002 5,2", "5002 1,7", "5002 6,8"};
};

TEST_F(FaceProviders, TellThicknessAndPositionOfAPoint)
{
    KdDbPoint point;
    point.edit().position = {1, 2, 3};
    point.edit().extrusion.setThickness(-4.5);
    expectProvider<KdDbPoint_Extension>(point,
                                        {{77350, L"\tGeneral:Thickness", false, "5001 -4.5"},
                                         {77351, L"Geometry:Position", false, "5009 1,2,3"}});
}

TEST_F(FaceProviders, TellShadowsAndFourCornersOfASolid)
{
    KdDbSolid solid;
    fill(solid.edit());
    solid.edit().shadows = Shadows::Cast;
    expectProvider<KdDbSolid_Extension>(solid, {{77300, L"\tGeneral:Thickness", false, "5001 2.5"},
                                                {77302, L"3D Visualization:Shadow display", false,
                                                 "5005 Casts shadows", kShadowChoices},
                                                pointRow(77303, L"Geometry:Vertex", corners),
                                                {77304, L"Geometry:Elevation", false, "5001 9"}});
}

TEST_F(FaceProviders, TellTheSameOfATraceButItsShadows)
{
    KdDbTrace trace;
    fill(trace.edit());
    expectProvider<KdDbTrace_Extension>(trace, {{77199, L"\tGeneral:Thickness", false, "5001 2.5"},
                                                pointRow(77201, L"Geometry:Vertex", corners),
                                                {77202, L"Geometry:Elevation", false, "5001 9"}});
}

TEST_F(FaceProviders, TakeTheCornersOfASolidIntoTheWorld)
{
    KdDbSolid solid;
    fill(solid.edit());
    solid.edit().extrusion.setDirection({0, 0, -1});
    KdDbSolid_Extension provider;
    EXPECT_EQ(ask(provider, &solid, L"Geometry:Vertex").chain.front(), "5002 -1,2");
    EXPECT_EQ(ask(provider, &solid, L"Geometry:Elevation").chain.front(), "5001 -9");
}

TEST_F(FaceProviders, TellWhichEdgesOfAFaceAreSeen)
{
    KdDbFace face;
    face.edit().vertices = {{{1, 2, 3}, {4, 2, 3}, {4, 6, 5}, {1, 6, 5}}};
    face.edit().hiddenEdges = 2 | 8;
    expectProvider<KdDbFace_Extension>(
        face, {{77380, L"Geometry:Edge 1", false, "290 true"},
               {77381, L"Geometry:Edge 2", false, "290 false"},
               {77382, L"Geometry:Edge 3", false, "290 true"},
               {77383, L"Geometry:Edge 4", false, "290 false"},
               pointRow(77384, L"Geometry:Vertex",
                        {"5009 1,2,3", "5009 4,2,3", "5009 4,6,5", "5009 1,6,5"})});
}

struct ShadowRow
{
    const char* name;
    EntityMembers::Shadows shadows;
    const char* text;
    const char* ofFaces;
};

class ShadowNames : public LoneProviders, public testing::WithParamInterface<ShadowRow>
{
};

TEST_P(ShadowNames, FollowTheFlagsOfTheEntity)
{
    KdDb3dSolid solid;
    solid.edit().shadows = GetParam().shadows;
    KdDb3dSolid_Extension provider;
    EXPECT_EQ(ask(provider, &solid, L"3D Visualization:Shadow display").chain.front(),
              std::string("5005 ") + GetParam().text);
}

TEST_P(ShadowNames, HaveASecondSpellingWhereTheLibraryHasNone)
{
    KdDb3dSolid solid;
    KdDbSolid face;
    KdDbRevolvedSurface surface;
    solid.edit().shadows = GetParam().shadows;
    face.edit().shadows = GetParam().shadows;
    surface.edit().shadows = GetParam().shadows;
    RestorePreviousResource(); // no library, so the default texts stand in
    KdDb3dSolid_Extension ofSolids;
    KdDbSolid_Extension ofFaces;
    KdDbRevolvedSurface_Extension ofSurfaces;
    const wchar_t* key = L"3D Visualization:Shadow display";
    EXPECT_EQ(ask(ofSolids, &solid, key).chain.front(), std::string("5005 ") + GetParam().text);
    EXPECT_EQ(ask(ofFaces, &face, key).chain.front(), std::string("5005 ") + GetParam().ofFaces);
    EXPECT_EQ(ask(ofSurfaces, &surface, key).chain.front(),
              std::string("5005 ") + GetParam().ofFaces);
    EXPECT_FALSE(messages.shown.empty()); // each missing text is told of
    messages.shown.clear();
    EXPECT_TRUE(SetCurrentResourceName(L"KwQselectUtilRes.dll"));
}

INSTANTIATE_TEST_SUITE_P(All, ShadowNames,
                         testing::Values(ShadowRow{"both", EntityMembers::Shadows::CastAndReceive,
                                                   "Casts and receive shadows",
                                                   "Casts and Recives shadows"},
                                         ShadowRow{"cast", EntityMembers::Shadows::Cast,
                                                   "Casts shadows", "Casts shadows"},
                                         ShadowRow{"receive", EntityMembers::Shadows::Receive,
                                                   "Receive shadows", "Receives shadows"},
                                         ShadowRow{"none", EntityMembers::Shadows::Ignore,
                                                   "Ignore shadows", "Ignore shadows"}),
                         [](const auto& row) { return row.param.name; });

} // namespace
