#include <numbers>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr double kPi = std::numbers::pi;

TEST_F(LoneProviders, ListSeventeenKeysOfALightAndAnswerTen)
{
    KdDbLight light;
    LightMembers& members = light.edit();
    members.name = L"Sun";
    members.type = KdDbLight::kSpot;
    members.position = {1, 2, 3};
    members.target = {4, 5, 6};
    members.intensity = 1.5;
    members.hotspotAngle = kPi / 4;
    members.falloffAngle = kPi / 2;
    members.lightColor = 0xC3000005;
    members.on = false;
    members.shadows = Shadows::Cast;
    std::vector<ExpectedRow> rows = {
        {77629, L"General:Name", false, "5005 Sun", tagged(0)},
        {77630, L"General:Type", true, "5005 Spot", texts({"Distant", "Point", "Spot"})},
        {77631, L"General:On\\of Status", false, "290 false"},
        {77632, L"General:Shadows", false, "290 false"},
        {77633, L"General:Hotspot angle", false, "5004 0.785398"},
        {77634, L"General:Falloff angle", false, "5004 1.5708"},
        {77635, L"General:Intensity factor", false, "5001 1.5"},
        {77636, L"General:Filter color", false, "5011 color 5"},
        {77643, L"Geometry:Position", false, "5009 1,2,3"},
        {77644, L"Geometry:Target", false, "5009 4,5,6"},
    };
    KdDbLight_Extension provider;
    for (const ExpectedRow& row : rows)
        expectValue(provider, light, row);
    const std::vector<ExpectedRow> unanswered = {
        {77646, L"Attenuation:Type", true, {}},
        {77647, L"Attenuation:Use limits", true, {}},
        {77648, L"Attenuation:Start limit offset", true, {}},
        {77649, L"Attenuation:End limit offset", true, {}},
        {77650, L"Rendered Shadow details:Type", true, {}},
        {77651, L"Rendered Shadow details:Map size", true, {}},
        {77652, L"Rendered Shadow details:Softness", true, {}},
    };
    for (const ExpectedRow& row : unanswered) {
        const Answer answer = ask(provider, &light, row.key, false, true);
        EXPECT_EQ(answer.status, 0);
        EXPECT_THAT(answer.chain, ElementsAre("5000 nothing"));
    }
    rows.insert(rows.end(), unanswered.begin(), unanswered.end());
    expectListing<KdDbLight_Extension>(&light, rows);
    for (std::size_t i = 0; i < rows.size(); ++i)
        EXPECT_EQ(KdDbLight_Extension::rows()[i].key.id, rows[i].id);
    const KdDbLine foreign;
    expectRefusals<KdDbLight_Extension>(light, foreign, L"General:Name");
}

TEST_F(LoneProviders, TakeALightOfNoTypeForADistantOne)
{
    KdDbLight light;
    KdDbLight_Extension provider;
    const std::pair<std::int16_t, const char*> kNames[] = {
        {1, "5005 Distant"}, {2, "5005 Point"}, {3, "5005 Spot"}, {0, "5005 Distant"}};
    for (const auto& [type, name] : kNames) {
        light.edit().type = type;
        EXPECT_THAT(ask(provider, &light, L"General:Type").chain, ElementsAre(name));
    }
}

TEST_F(LoneProviders, TellPlaceAndTypeOfAnOleFrame)
{
    KdDbOle2Frame frame;
    frame.edit().upperLeft = {1, 9, 2};
    frame.edit().lowerRight = {7, 4, 2};
    frame.edit().type = KdDbOleFrame::kEmbedded;
    expectProvider<KdDbOleFrame_Extension>(
        frame, {{77625, L"Geometry:Position", false, "5009 1,9,2"},
                {77626, L"Geometry:Width", false, "5001 6"},
                {77627, L"Geometry:Height", false, "5001 5"},
                {77628, L"Misc:Type", true, "5005 Embeded", texts({"Link", "Embeded", "Static"})}});
}

TEST_F(LoneProviders, DoNotOfferTheUnknownTypeOfAnOleFrame)
{
    KdDbOleFrame frame;
    KdDbOleFrame_Extension provider;
    const std::pair<std::int16_t, const char*> kNames[] = {
        {0, "5005 Unknown"}, {1, "5005 Link"}, {3, "5005 Static"}, {4, "5005 "}};
    for (const auto& [type, name] : kNames) {
        frame.edit().type = type;
        EXPECT_THAT(ask(provider, &frame, L"Misc:Type").chain, ElementsAre(name));
    }
}

TEST_F(LoneProviders, NameStyleAndAlignmentOfAMultiline)
{
    auto* style = addObject<KdDbMlineStyle>(L"ACAD_MLINESTYLE", L"WALL");
    auto* mline = add<KdDbMline>();
    change(mline, [&](MlineMembers& members) {
        members.scale = 20;
        members.style = style->objectId();
        members.justification = KdDbMline::kBottom;
    });
    expectProvider<KdDbMline_Extension>(*mline,
                                        {{77353, L"Misc:Mline scale", false, "5001 20"},
                                         {77355, L"Misc:Mline style", false, "5005 WALL"},
                                         {77356, L"Misc:Mline alignment", false, "5005 BUTTOM"}});
}

TEST_F(LoneProviders, NameAllAlignmentsOfAMultiline)
{
    KdDbMline mline;
    KdDbMline_Extension provider;
    const std::pair<std::int8_t, const char*> kNames[] = {
        {0, "5005 TOP"}, {1, "5005 ZERO"}, {2, "5005 BUTTOM"}, {3, "5005 "}};
    for (const auto& [justification, name] : kNames) {
        mline.edit().justification = justification;
        EXPECT_THAT(ask(provider, &mline, L"Misc:Mline alignment").chain, ElementsAre(name));
    }
    EXPECT_THAT(ask(provider, &mline, L"Misc:Mline style").chain, ElementsAre("5005 "));
}

class PointCloudProvider : public LoneProviders
{
  protected:
    PointCloudProvider() : cloud(add<KdDbPointCloudEx>())
    {
        auto* definition = addObject<KdDbPointCloudDefEx>(L"ACAD_POINTCLOUD_EX_DICT", L"scan");
        change(definition,
               [](PointCloudDefExMembers& members) { members.sourceFileName = L"scan.rcp"; });
        change(cloud, [&](PointCloudExMembers& members) {
            members.origin = {1, 2, 3};
            members.xAxis = {0, 500, 0};
            members.definition = definition->objectId();
            members.name = L"Hall";
            members.stylization = 2;
            members.locked = true;
        });
    }

    KdDbPointCloudEx* cloud;
    KdDbPointCloudEx_Extension provider;
};

TEST_F(PointCloudProvider, TellsTheScaleInDrawingUnitsToTheMetre)
{
    setVariable(L"INSUNITS", 4);
    expectProvider<KdDbPointCloudEx_Extension>(
        *cloud, {{78216, L"3D Visualization:Stylization", false, "5005 Object color",
                  texts({"Scan colors", "Object color", "Normal"})},
                 {78217, L"Geometry:Insertion point", false, "5009 1,2,3"},
                 {78218, L"Geometry:Rotation", false, "5004 1.5708"},
                 {78219, L"Geometry:Scale", false, "5001 0.5"},
                 {78220, L"Misc:Name", false, "5005 Hall"},
                 {78221, L"Misc:Saved path", true, "5005 scan.rcp"},
                 {78222, L"Misc:Show cropped", false, "290 false"},
                 {78223, L"Misc:Locked", false, "290 true"},
                 {78224, L"Misc:Unit", true, "5005 Meters"},
                 {78225, L"Misc:Unit factor", true, "5001 1000"}});
}

TEST_F(PointCloudProvider, FollowsTheUnitOfTheDrawing)
{
    setVariable(L"INSUNITS", 5);
    EXPECT_THAT(ask(provider, cloud, L"Misc:Unit factor").chain, ElementsAre("5001 100"));
    EXPECT_THAT(ask(provider, cloud, L"Geometry:Scale").chain, ElementsAre("5001 5"));
    kddbHostApplicationServices()->setWorkingDatabase(nullptr); // no variable: millimetres
    EXPECT_THAT(ask(provider, cloud, L"Misc:Unit factor").chain, ElementsAre("5001 1000"));
}

TEST_F(PointCloudProvider, LeavesTheScaleAloneForAUnitThatIsNotKnown)
{
    setHeader(L"INSUNITS", 99);
    EXPECT_THAT(ask(provider, cloud, L"Misc:Unit factor").chain, ElementsAre("5001 0"));
    EXPECT_THAT(ask(provider, cloud, L"Geometry:Scale").chain, ElementsAre("5001 500"));
}

TEST_F(LoneProviders, ListOnlyTheGeneralKeysOfAProxy)
{
    KdDbProxyEntity proxy;
    proxy.edit().shadows = Shadows::Ignore;
    const std::vector<ExpectedRow> hidden = {
        {77326, L"3D Visualization:Shadow display", false, "5005 Ignore shadows"}};
    expectTable<KdDbProxyEntity_Extension>(proxy, hidden);
    expectListing<KdDbProxyEntity_Extension>(&proxy, {});
    const KdDbLine foreign;
    expectRefusals<KdDbProxyEntity_Extension>(proxy, foreign, hidden.front().key);
}

TEST_F(LoneProviders, TellTextAndPlaceOfAMarker)
{
    auto* marker = add<KdDbGeoPositionMarker>();
    change(marker, [](GeoPositionMarkerMembers& members) {
        members.position = {300, 200, 50};
        members.radius = 1.5;
        members.landingGap = 0.25;
        members.notes = L"benchmark";
        members.textAlignment = KdDbGeoPositionMarker::kCenter;
        MTextMembers& text = members.mtext->edit();
        text.contents = L"BM 1";
        text.textHeight = 3;
        text.width = 20;
        text.direction = {0, 1, 0};
        text.frame = true;
    });
    auto* globe = new KdDbGeoData;
    drawing.addObject(globe, {});
    change(globe, [](GeoDataMembers& members) {
        members.designPoint = {300, 200, 40};
        members.referencePoint = {-71.5, 42.25, 7};
    });
    auto* dictionary = new KdDbDictionary;
    drawing.addObject(dictionary, drawing.modelSpaceId());
    enter(dictionary->objectId(), L"ACAD_GEOGRAPHICDATA", globe->objectId());
    KdDbBlockTableRecord* model = nullptr;
    ASSERT_EQ(kddbOpenObject(model, drawing.modelSpaceId(), KdDb::kForWrite), eOk);
    model->edit().links.edit().extensionDictionary = dictionary->objectId();
    model->close();
    expectProvider<KdDbGeoPositionMarker_Extension>(
        *marker,
        {{78313, L"Geometry:Position", false, "5009 300,200,50"},
         {78314, L"Geometry:Size", false, "5001 1.5"},
         {77082, L"Text:Contents", false, "5005 BM 1", tagged(1)},
         {77083, L"Text:Style", false, "5005 ", texts({"Standard"})},
         {77084, L"Text:Justify", false, "5005 Middle", texts({"Left", "Middle", "Right"})},
         {77085, L"Text:Direction", false, "5005 Horizontal",
          texts({"By Style", "Horizontal", "Vertical"})},
         {77091, L"Text:Defined width", false, "5001 20"},
         {77086, L"Text:Text height", false, "5001 3"},
         {77087, L"Text:Rotation", false, "5004 1.5708"},
         {77088, L"Text:Line space factor", false, "5001 1"},
         {77089, L"Text:Line space distance", false, "5001 5"},
         {77090, L"Text:Line space style", false, "5005 At least", texts({"At least", "Exactly"})},
         {77094, L"Text:Background mask", false, "290 false"},
         {77472, L"Text:Landing gap", false, "5001 0.25"},
         {77473, L"Text:Text frame", false, "290 true"},
         {78315, L"Position:Latitude", false, "5001 42.25"},
         {78316, L"Position:Longitude", false, "5001 -71.5"},
         {78317, L"Position:Elevation", false, "5001 17"},
         {78318, L"Misc:Description", false, "5005 benchmark"}});
}

} // namespace
