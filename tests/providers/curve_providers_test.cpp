#include <providers/curve_providers.h>

#include <numbers>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr double kPi = std::numbers::pi;
constexpr std::size_t kGeneralKeys = 8;
constexpr const wchar_t* kNormal = L"Geometry:Normal";

struct ExpectedRow
{
    int id;
    const wchar_t* key;
    bool readOnly;
    const char* value;
    bool isTagged = false;
};

/// One curve of each kind, each value different from the others as far as the kind allows.
class CurveProviders : public ProviderTest
{
  protected:
    CurveProviders();

    /// The rows, those listed in their order, and their values, which no argument changes.
    template <class Provider>
    void expectRows(const KdDbEntity& entity, const std::vector<ExpectedRow>& expected,
                    std::size_t listedRows);

    template <class Provider>
    std::vector<std::wstring> ownKeys(const KdDbEntity* entity);

    double number(KdDbEntityPE& provider, const KdDbEntity& entity, const wchar_t* key)
    {
        ValueChain value;
        EXPECT_EQ(provider.PropertyValueGet(&entity, key, value.head(), false, false), 1);
        return value.head()->getDouble();
    }

    KdDbLine line;
    KdDbArc arc;
    KdDbCircle circle;
    KdDbEllipse ellipse;
    KdDbRay ray;
    KdDbXline xline;
};

CurveProviders::CurveProviders()
{
    line.edit().start = {1, 2, 3};
    line.edit().end = {4, 6, 15};
    line.edit().extrusion.setThickness(0.5);
    arc.edit().center = {10, 20, 5};
    arc.edit().radius = 2;
    arc.edit().startAngle = kPi / 2;
    arc.edit().endAngle = kPi;
    arc.edit().extrusion.setThickness(-1.5);
    circle.edit().center = {7, 8, 9};
    circle.edit().radius = 3;
    circle.edit().extrusion = {{0, 0, -1}, 2.5};
    ellipse.edit().center = {1, 2, 3};
    ellipse.edit().majorAxis = {0, 4, 0};
    ellipse.edit().radiusRatio = 0.5;
    ellipse.edit().startParam = kPi / 2;
    ellipse.edit().endParam = kPi;
    for (RayMembers* members : {&ray.edit(), &xline.edit()}) {
        members->basePoint = {1, 2, 3};
        members->direction = {0, 3, -4};
    }
}

template <class Provider>
std::vector<std::wstring> CurveProviders::ownKeys(const KdDbEntity* entity)
{
    Provider provider;
    const Listing listing = list(provider, entity);
    EXPECT_EQ(listing.status, 0);
    EXPECT_EQ(listing.flags.size(), listing.keys.size());
    EXPECT_EQ(listing.keys.at(kGeneralKeys - 1), L"\tGeneral:Hyperlink");
    return {listing.keys.begin() + kGeneralKeys, listing.keys.end()};
}

template <class Provider>
void CurveProviders::expectRows(const KdDbEntity& entity, const std::vector<ExpectedRow>& expected,
                                std::size_t listedRows)
{
    Provider provider;
    const Listing listing = list(provider, &entity);
    ASSERT_EQ(listing.keys.size(), kGeneralKeys + listedRows);
    ASSERT_EQ(Provider::rows().size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const ExpectedRow& row = expected[i];
        SCOPED_TRACE(row.id);
        EXPECT_EQ(Provider::rows()[i].key.id, row.id);
        EXPECT_STREQ(Provider::rows()[i].key.defaultText, row.key);
        if (i < listedRows) {
            EXPECT_EQ(listing.keys[kGeneralKeys + i], row.key);
            EXPECT_EQ(listing.flags[kGeneralKeys + i], row.readOnly);
        }
        for (const bool asDisplayText : {false, true}) {
            const Answer alone = ask(provider, &entity, row.key, asDisplayText, false);
            EXPECT_EQ(alone.status, 1);
            EXPECT_THAT(alone.chain, ElementsAre(row.value));
            std::vector<std::string> accompanied{row.value};
            if (row.isTagged)
                accompanied.emplace_back("280 0");
            EXPECT_EQ(ask(provider, &entity, row.key, asDisplayText, true).chain, accompanied);
        }
    }
}

TEST_F(CurveProviders, TellTheEndsOfALineAndWhatFollowsFromThem)
{
    expectRows<KdDbLine_Extension>(line,
                                   {{77357, L"\tGeneral:Thickness", false, "5001 0.5"},
                                    {77358, L"Geometry:\t\t\t\tStart", false, "5009 1,2,3"},
                                    {77361, L"Geometry:\t\t\tEnd", false, "5009 4,6,15"},
                                    {77364, L"Geometry:\t\tDelta", true, "5009 3,4,12"},
                                    {77367, L"Geometry:\tLength", true, "5001 13"},
                                    {77368, L"Geometry:Angle", true, "5004 0.927295"}},
                                   6);
}

TEST_F(CurveProviders, TellTheMeasuresOfAnArc)
{
    expectRows<KdDbArc_Extension>(arc,
                                  {{76619, L"\tGeneral:Thickness", false, "5001 -1.5"},
                                   {76620, L"Geometry:Start", true, "5009 10,22,5"},
                                   {76623, L"Geometry:Center", false, "5009 10,20,5"},
                                   {76626, L"Geometry:End", true, "5009 8,20,5"},
                                   {76629, L"Geometry:Radius", false, "5001 2"},
                                   {76630, L"Geometry:Start angle", false, "5004 1.5708"},
                                   {76631, L"Geometry:End angle", false, "5004 3.14159"},
                                   {76632, L"Geometry:Total angle", true, "5004 1.5708"},
                                   {76633, L"Geometry:Arc length", true, "5001 3.14159"},
                                   {76634, L"Geometry:Area", true, "5005 1.1416"},
                                   {76638, kNormal, true, "5009 0,0,1"}},
                                  10); // the normal is answered, but not listed
}

TEST_F(CurveProviders, TellTheMeasuresOfACircleMostOfWhichCanBeSet)
{
    expectRows<KdDbCircle_Extension>(circle,
                                     {{77097, L"\tGeneral:Thickness", false, "5001 2.5"},
                                      {77098, L"Geometry:Center", false, "5009 -7,8,-9"},
                                      {77101, L"Geometry:Radius", false, "5001 3"},
                                      {77102, L"Geometry:Diameter", false, "5001 6"},
                                      {77103, L"Geometry:Circumference", false, "5001 18.8496"},
                                      {77104, L"Geometry:Area", false, "5005 28.2743", true},
                                      {76638, kNormal, true, "5009 0,0,-1"}},
                                     7);
}

TEST_F(CurveProviders, TellTheMeasuresOfAnEllipse)
{
    expectRows<KdDbEllipse_Extension>(ellipse,
                                      {{77386, L"Geometry:Start", true, "5009 -1,2,3"},
                                       {77389, L"Geometry:Center", false, "5009 1,2,3"},
                                       {77392, L"Geometry:End", true, "5009 1,-2,3"},
                                       {77395, L"Geometry:Major radius", false, "5001 4"},
                                       {77396, L"Geometry:Minor radius", false, "5001 2"},
                                       {77397, L"Geometry:Radius ratio", false, "5001 0.5"},
                                       {77398, L"Geometry:Start angle", false, "5004 1.5708"},
                                       {77399, L"Geometry:End angle", false, "5004 3.14159"},
                                       {77400, L"Geometry:Major axis vector", true, "5009 0,4,0"},
                                       {77403, L"Geometry:Minor axis vector", true, "5009 -2,0,0"},
                                       {77406, L"Geometry:Area", true, "5005 2.2832"},
                                       {76638, kNormal, true, "5009 0,0,1"}},
                                      12);
}

TEST_F(CurveProviders, TellTheBaseAndTheDirectionOfARay)
{
    expectRows<KdDbRay_Extension>(ray,
                                  {{77315, L"Geometry:Basepoint", false, "5009 1,2,3"},
                                   {77318, L"Geometry:Second point", false, "5009 1,2.6,2.2"},
                                   {77321, L"Geometry:Direction vector", true, "5009 0,0.6,-0.8"}},
                                  3);
}

TEST_F(CurveProviders, TellTheSameOfAConstructionLineUnderIdsOfItsOwn)
{
    expectRows<KdDbXline_Extension>(
        xline,
        {{77437, L"Geometry:Basepoint", false, "5009 1,2,3"},
         {77440, L"Geometry:Second point", false, "5009 1,2.6,2.2"},
         {77443, L"Geometry:Direction vector", true, "5009 0,0.6,-0.8"}},
        3);
}

TEST_F(CurveProviders, ListTheNormalOfAnArcOnlyWhenItLeavesTheZAxis)
{
    EXPECT_EQ(ownKeys<KdDbArc_Extension>(&arc).size(), 10u);
    for (const KdGeVector3d direction : {KdGeVector3d{0, 0, -1}, {1, 0, 1}, {1e-9, 0, 1}}) {
        arc.edit().extrusion.setDirection(direction);
        const auto keys = ownKeys<KdDbArc_Extension>(&arc);
        EXPECT_EQ(keys.size(), 11u);
        EXPECT_EQ(keys.back(), kNormal);
    }
    arc.edit().extrusion.setDirection({1e-11, 0, 1});
    EXPECT_EQ(ownKeys<KdDbArc_Extension>(&arc).size(), 10u);
}

TEST_F(CurveProviders, DoNotListTheNormalForAnEntityThatIsNoArc)
{
    EXPECT_EQ(ownKeys<KdDbArc_Extension>(&circle).size(), 10u); // although the circle is tilted
}

TEST_F(CurveProviders, FlagTheNormalOfATiltedArcAsDerived)
{
    arc.edit().extrusion.setDirection({3, 0, 4});
    KdDbArc_Extension provider;
    EXPECT_TRUE(list(provider, &arc).flags.back());
    EXPECT_THAT(ask(provider, &arc, kNormal).chain, ElementsAre("5009 0.6,0,0.8"));
}

TEST_F(CurveProviders, ListWhatDoesNotDependOnTheEntityWithoutOne)
{
    EXPECT_EQ(ownKeys<KdDbLine_Extension>(nullptr).size(), 6u);
    EXPECT_EQ(ownKeys<KdDbArc_Extension>(nullptr).size(), 10u);
    EXPECT_EQ(ownKeys<KdDbCircle_Extension>(nullptr).back(), kNormal);
    EXPECT_EQ(ownKeys<KdDbEllipse_Extension>(nullptr).back(), kNormal);
}

struct LineCase
{
    const char* name;
    KdGePoint3d start;
    KdGePoint3d end;
    double length;
    double angle;
};

class LineMeasures : public CurveProviders, public testing::WithParamInterface<LineCase>
{
};

TEST_P(LineMeasures, AreTheLengthInSpaceAndTheAngleFromAbove)
{
    line.edit().start = GetParam().start;
    line.edit().end = GetParam().end;
    KdDbLine_Extension provider;
    EXPECT_DOUBLE_EQ(number(provider, line, L"Geometry:\tLength"), GetParam().length);
    EXPECT_DOUBLE_EQ(number(provider, line, L"Geometry:Angle"), GetParam().angle);
    line.edit().extrusion.setDirection({0, 0, -1}); // the line's normal plays no part
    EXPECT_DOUBLE_EQ(number(provider, line, L"Geometry:Angle"), GetParam().angle);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, LineMeasures,
    testing::Values(LineCase{"rising", {0, 0, 0}, {1, 1, 5}, 5.196152422706632, kPi / 4},
                    LineCase{"backwards", {1, 1, 0}, {0, 0, 0}, 1.4142135623730951, 5 * kPi / 4},
                    LineCase{"downwards", {2, 5, 0}, {2, 2, 0}, 3.0, 3 * kPi / 2},
                    LineCase{"leftwards", {5, 1, 0}, {2, 1, 4}, 5.0, kPi},
                    LineCase{"alongZ", {1, 1, 1}, {1, 1, 3}, 2.0, 0.0},
                    LineCase{"withoutLength", {1, 1, 1}, {1, 1, 1}, 0.0, 0.0}),
    [](const auto& row) { return row.param.name; });

TEST_F(CurveProviders, MeasureAnArcThroughTheXAxisInTheNextTurn)
{
    arc.edit().startAngle = 3 * kPi / 2;
    arc.edit().endAngle = kPi / 2;
    KdDbArc_Extension provider;
    EXPECT_DOUBLE_EQ(number(provider, arc, L"Geometry:Total angle"), kPi);
    EXPECT_DOUBLE_EQ(number(provider, arc, L"Geometry:Arc length"), 2 * kPi);
    EXPECT_DOUBLE_EQ(number(provider, arc, L"Geometry:End angle"), kPi / 2);
}

TEST_F(CurveProviders, MeasureACircleOfRadiusOne)
{
    circle.edit().radius = 1;
    KdDbCircle_Extension provider;
    EXPECT_EQ(number(provider, circle, L"Geometry:Circumference"), 6.283185307179586);
    EXPECT_EQ(number(provider, circle, L"Geometry:Diameter"), 2.0);
    EXPECT_THAT(ask(provider, &circle, L"Geometry:Area").chain, ElementsAre("5005 3.1416"));
}

TEST_F(CurveProviders, GiveAreasInTheUnitsOfTheDrawing)
{
    setHeader(L"LUPREC", 2);
    KdDbCircle_Extension circles;
    KdDbArc_Extension arcs;
    EXPECT_THAT(ask(circles, &circle, L"Geometry:Area").chain, ElementsAre("5005 28.27"));
    EXPECT_THAT(ask(arcs, &arc, L"Geometry:Area").chain, ElementsAre("5005 1.14"));
}

TEST_F(CurveProviders, GiveAnEmptyAreaWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    KdDbEllipse_Extension provider;
    EXPECT_THAT(ask(provider, &ellipse, L"Geometry:Area").chain, ElementsAre("5005 "));
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
}

template <class Provider>
class EachCurveProvider : public ProviderTest
{
};

using Providers = testing::Types<KdDbLine_Extension, KdDbArc_Extension, KdDbCircle_Extension,
                                 KdDbEllipse_Extension, KdDbRay_Extension, KdDbXline_Extension>;
TYPED_TEST_SUITE(EachCurveProvider, Providers);

TYPED_TEST(EachCurveProvider, AnswersNothingForOtherEntitiesOrNone)
{
    TypeParam provider;
    const KdDbSpline other;
    for (const KdDbEntity* entity : {static_cast<const KdDbEntity*>(&other), {}}) {
        for (const ResourceText& key :
             {TypeParam::rows()[0].key, {76540, L"\tGeneral:Linetype scale"}}) {
            const Answer given = ask(provider, entity, key.defaultText);
            EXPECT_EQ(given.status, 0);
            EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
        }
    }
}

TEST_F(CurveProviders, AnswerTheGeneralPropertiesThroughTheirBase)
{
    KdDbLine_Extension lines;
    KdDbXline_Extension xlines;
    for (const Answer& given : {ask(lines, &line, L"\tGeneral:Linetype scale", false, true),
                                ask(xlines, &xline, L"\tGeneral:Linetype scale", false, true)}) {
        EXPECT_EQ(given.status, 1);
        EXPECT_THAT(given.chain, ElementsAre("48 1", "280 0"));
    }
}

TEST_F(CurveProviders, DoNotKnowTheKeysOfOtherCurves)
{
    KdDbEllipse_Extension ellipses;
    KdDbLine_Extension lines;
    for (const Answer& given :
         {ask(ellipses, &ellipse, L"\tGeneral:Thickness"), ask(lines, &line, L"Geometry:Start")}) {
        EXPECT_EQ(given.status, 0);
        EXPECT_THAT(given.chain, ElementsAre("5000 nothing"));
    }
}

} // namespace
