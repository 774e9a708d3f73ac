#include "support.h"

#include <values/globals.h>

#include "../entities/body_text.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

class SolidProviders : public LoneProviders
{
  protected:
    /// A box of 2 x 3 x 4 from (1, 1, 1) on, as far as its extents are asked for.
    static void makeBox(KdDb3dSolid& solid)
    {
        solid.edit().bodyData = [] { return body_text::edgeOfBox({1, 1, 1}, {3, 4, 5}); };
    }
    ~SolidProviders() override { g_bIsIni3DSolidProp = false; }

    KdDb3dSolid_Extension ofSolids;
};

const std::vector<ExpectedRow> kListedOfSolid = {
    {76618, L"3D Visualization:Shadow display", false, "5005 Receive shadows", kShadowChoices},
    {77564, L"Geometry:Position", false, "5009 2,2.5,3"},
    {77565, L"Geometry:Length", true, "5001 2"},
    {77566, L"Geometry:Width", true, "5001 3"},
    {77567, L"Geometry:Height", true, "5001 4"},
};

TEST_F(SolidProviders, TellTheBoxAroundASolid)
{
    KdDb3dSolid solid;
    const KdDbBody foreign;
    makeBox(solid);
    solid.edit().shadows = Shadows::Receive;
    std::vector<ExpectedRow> rows = kListedOfSolid;
    rows.insert(rows.end(), {{77563, L"Geometry:Solid type", false, "5005 Box"},
                             {77568, L"Geometry:Rotation", false, "5001 0"},
                             {77569, L"Solid history:History", false, "290 false"},
                             {77570, L"Solid history:Show history", false, "290 false"}});
    expectTable<KdDb3dSolid_Extension>(solid, rows);
    expectListing<KdDb3dSolid_Extension>(&solid, kListedOfSolid);
    expectRefusals<KdDb3dSolid_Extension>(solid, foreign, L"Geometry:Length");
}

TEST_F(SolidProviders, DoNotMeasureASolidWhileTheDialogGathers)
{
    KdDb3dSolid solid;
    solid.edit().bodyData = []() -> std::string {
        ADD_FAILURE() << "the solid was touched";
        return {};
    };
    g_bIsIni3DSolidProp = true;
    EXPECT_THAT(ask(ofSolids, &solid, L"Geometry:Position").chain, ElementsAre("5009 0,0,0"));
    for (const wchar_t* key : {L"Geometry:Length", L"Geometry:Width", L"Geometry:Height"})
        EXPECT_THAT(ask(ofSolids, &solid, key).chain, ElementsAre("5001 0"));
    makeBox(solid);
    g_bIsIni3DSolidProp = false;
    EXPECT_THAT(ask(ofSolids, &solid, L"Geometry:Position").chain, ElementsAre("5009 2,2.5,3"));
}

TEST_F(SolidProviders, GiveNoSizeToASolidWithoutABody)
{
    KdDb3dSolid solid;
    EXPECT_THAT(ask(ofSolids, &solid, L"Geometry:Position").chain, ElementsAre("5009 0,0,0"));
    EXPECT_THAT(ask(ofSolids, &solid, L"Geometry:Length").chain, ElementsAre("5001 0"));
}

TEST_F(SolidProviders, ReadTheHistoryOfASolid)
{
    auto* solid = add<KdDb3dSolid>();
    auto* history = new KdDbShHistory;
    history->edit().show = true;
    drawing.addObject(history, solid->objectId());
    change(solid, [&](Solid3dMembers& members) { members.history = history->objectId(); });
    EXPECT_THAT(ask(ofSolids, solid, L"Solid history:History").chain, ElementsAre("290 false"));
    EXPECT_THAT(ask(ofSolids, solid, L"Solid history:Show history").chain, ElementsAre("290 true"));
}

TEST_F(SolidProviders, TellAreaPerimeterAndNormalOfARegion)
{
    KdDbRegion region;
    region.edit().bodyData = [] { return body_text::rectangle(3, 2, -1); };
    expectProvider<KdDbRegion_Extension>(region,
                                         {{77573, L"3D Visualization:Shadow display", false,
                                           "5005 Casts and receive shadows", kShadowChoices},
                                          {77574, L"Geometry:Area", true, "5001 6"},
                                          {77575, L"Geometry:Perimeter", true, "5001 10"},
                                          {76638, L"Geometry:Normal", true, "5009 0,0,-1"}});
}

TEST_F(SolidProviders, TellOnlyTheKindOfMostValuesOfARevolvedSurface)
{
    KdDbRevolvedSurface surface;
    surface.edit().uIsolines = 6;
    surface.edit().vIsolines = 4;
    expectProvider<KdDbRevolvedSurface_Extension>(
        surface, {{77998, L"3D Visualization:Shadow display", false,
                   "5005 Casts and receive shadows", kShadowChoices},
                  {77999, L"Geometry:Surface Type", true, "5005 Revolve"},
                  {78000, L"Geometry:Angle of revolution", false, "5004 0"},
                  {78001, L"Geometry:Axis position", false, "5009 0,0,0"},
                  {78002, L"Geometry:Axis direction", true, "5009 0,0,0"},
                  {78003, L"Geometry:U isolines", false, "5003 6"},
                  {78004, L"Geometry:V isolines", false, "5003 4"}});
}

} // namespace
