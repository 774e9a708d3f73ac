#include <entities/circle.h>
#include <entities/polyline.h>

#include <memory>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kVertex = L"Geometry:Vertex";
constexpr const wchar_t* kStartWidth = L"Start segment width";
constexpr const wchar_t* kEndWidth = L"End segment width";
constexpr const wchar_t* kGlobalWidth = L"Geometry:Global width";

/// A triangle with the sides 3, 4 and 5.
class PolylineProvider : public CurveTest
{
  protected:
    PolylineProvider()
    {
        polyline.reset(3);
        polyline.setPointAt(1, {3, 0});
        polyline.setPointAt(2, {3, 4});
        polyline.setConstantWidth(0.5);
        polyline.setClosed(true);
        polyline.setElevation(2);
        polyline.setThickness(-1.5);
    }

    std::vector<ExpectedRow> rows = {
        {77327, L"\tGeneral:Thickness", false, "5001 -1.5"},
        {77328, L"Misc:Closed", false, "290 true"},
        {77330, kGlobalWidth, false, "5001 0.5"},
        {77331, L"Geometry:Elevation", false, "5001 2"},
        {77332, L"Geometry:Area", true, "5001 6"},
        {77333, L"Geometry:Length", true, "5001 12"},
        {77335, L"Misc:Linetype generation", false, "290 false"},
        {77329, kVertex, false, "5002 0,0"},
        {78045, kStartWidth, false, "5001 0.5"},
        {78046, kEndWidth, false, "5001 0.5"},
    };
    KdDbPolyline polyline;
    KdDbPolyline_Extension provider;
};

TEST_F(PolylineProvider, ListsTenKeys)
{
    expectListing<KdDbPolyline_Extension>(&polyline, rows);
}

TEST_F(PolylineProvider, ListsNothingForANullEntityAndReturnsThree)
{
    const Listing listing = list(provider, nullptr);
    EXPECT_EQ(listing.status, 3);
    EXPECT_TRUE(listing.keys.empty());
    EXPECT_TRUE(listing.flags.empty());
    for (const wchar_t* key : {kVertex, kStartWidth, L"\tGeneral:Layer"}) {
        const Answer answer = ask(provider, nullptr, key);
        EXPECT_EQ(answer.status, 3);
        EXPECT_THAT(answer.chain, ElementsAre(kNothing));
    }
}

TEST_F(PolylineProvider, RefusesWhatIsNoPolyline)
{
    const KdDb2dPolyline other;
    for (const wchar_t* key : {L"Misc:Closed", kStartWidth, L"\tGeneral:Layer"}) {
        const Answer answer = ask(provider, &other, key);
        EXPECT_EQ(answer.status, 0);
        EXPECT_THAT(answer.chain, ElementsAre(kNothing));
    }
    EXPECT_EQ(ask(provider, &polyline, L"No:such key").status, 0);
    EXPECT_EQ(ask(provider, &polyline, L"\tGeneral:Layer").status, 1);
}

TEST_F(PolylineProvider, AnswersAllKeysOfOneValue)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(KdDbPolyline_Extension::rows()[i].key.id, rows[i].id);
        if (i < 7)
            expectValue(provider, polyline, rows[i]);
    }
    polyline.setPlinegen(true);
    EXPECT_THAT(ask(provider, &polyline, L"Misc:Linetype generation").chain,
                ElementsAre("290 true"));
}

TEST_F(PolylineProvider, ChainsItsVerticesInItsOwnPlane)
{
    polyline.setNormal({0, 0, -1});
    moveUserFrame();
    for (const bool withChoices : {false, true}) {
        const Answer answer = ask(provider, &polyline, kVertex, false, withChoices);
        EXPECT_EQ(answer.status, 1);
        EXPECT_THAT(answer.chain, ElementsAre("5002 0,0", "5002 3,0", "5002 3,4"));
    }
}

TEST_F(PolylineProvider, HasNoVertexRecordWithoutVertices)
{
    const Answer answer = ask(provider, std::make_unique<KdDbPolyline>().get(), kVertex);
    EXPECT_EQ(answer.status, 1);
    EXPECT_THAT(answer.chain, ElementsAre(kNothing));
}

TEST_F(PolylineProvider, ReportsTheFirstSegmentsWidthsWithTheStatusZero)
{
    polyline.setWidthsAt(0, 1.0, 2.0);
    polyline.setWidthsAt(2, 7.0, 8.0);
    const Answer start = ask(provider, &polyline, kStartWidth, true, true);
    EXPECT_EQ(start.status, 0);
    EXPECT_THAT(start.chain, ElementsAre("5001 1"));
    const Answer end = ask(provider, &polyline, kEndWidth);
    EXPECT_EQ(end.status, 0);
    EXPECT_THAT(end.chain, ElementsAre("5001 2"));
}

TEST_F(PolylineProvider, HasNoSegmentWidthsWithoutVertices)
{
    const KdDbPolyline empty;
    const Answer answer = ask(provider, &empty, kEndWidth);
    EXPECT_EQ(answer.status, eOutOfRange);
    EXPECT_THAT(answer.chain, ElementsAre(kNothing));
}

TEST_F(PolylineProvider, HasTheGlobalWidthZeroOnceWidthsDiffer)
{
    polyline.setWidthsAt(1, 1.0, 2.0);
    EXPECT_THAT(ask(provider, &polyline, kGlobalWidth).chain, ElementsAre("5001 0"));
}

TEST_F(PolylineProvider, MeasuresBulges)
{
    polyline.setClosed(false);
    polyline.reset(2);
    polyline.setPointAt(1, {2, 0});
    polyline.setBulgeAt(0, 1);
    EXPECT_THAT(ask(provider, &polyline, L"Geometry:Area").chain, ElementsAre("5001 1.5708"));
    EXPECT_THAT(ask(provider, &polyline, L"Geometry:Length").chain, ElementsAre("5001 3.14159"));
}

/// An open right angle with sides of 3 and 4.
class Polyline2dProvider : public CurveTest
{
  protected:
    Polyline2dProvider()
    {
        first = add2dVertex(polyline, {0, 0, 0});
        second = add2dVertex(polyline, {3, 0, 0});
        third = add2dVertex(polyline, {3, 4, 0});
        change(polyline, [](Polyline2dMembers& members) {
            members.elevation = 2;
            members.extrusion.setThickness(1.5);
        });
    }
    void setType(KdDb::Poly2dType type)
    {
        change(polyline, [type](Polyline2dMembers& members) { members.type = type; });
    }
    std::vector<std::string> chain(const wchar_t* key)
    {
        const Answer answer = ask(provider, polyline, key);
        EXPECT_EQ(answer.status, 1);
        return answer.chain;
    }

    std::vector<ExpectedRow> rows = {
        {76544, L"\tGeneral:Thickness", false, "5001 1.5"},
        {76546, kVertex, false, "5002 0,0"},
        {76547, kGlobalWidth, false, "5001 0"},
        {76548, L"Geometry:Elevation", false, "5001 2"},
        {76549, L"Geometry:Area", true, "5001 6"},
        {76550, L"Geometry:Length", true, "5001 7"},
        {76551, L"Misc:Fit/Smooth", false, "5005 None",
         texts({"None", "Curve fit", "Quadratic", "Cubic"})},
        {76552, L"Misc:Closed", false, "290 false"},
        {76553, L"Misc:Linetype generation", false, "290 false"},
        {78045, kStartWidth, false, "5001 0"},
        {78046, kEndWidth, false, "5001 0"},
    };
    KdDb2dPolyline* polyline = add<KdDb2dPolyline>();
    KdDb2dVertex* first = nullptr;
    KdDb2dVertex* second = nullptr;
    KdDb2dVertex* third = nullptr;
    KdDb2dPolyline_Extension provider;
};

TEST_F(Polyline2dProvider, ListsElevenKeys)
{
    expectListing<KdDb2dPolyline_Extension>(polyline, rows);
    expectListing<KdDb2dPolyline_Extension>(nullptr, rows);
    setType(KdDb::kCubic2dPolyline);
    expectListing<KdDb2dPolyline_Extension>(polyline, rows);
}

TEST_F(Polyline2dProvider, AnswersAllKeysOfOneValue)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(KdDb2dPolyline_Extension::rows()[i].key.id, rows[i].id);
        if (rows[i].key != kVertex)
            expectValue(provider, *polyline, rows[i]);
    }
    change(polyline, [](Polyline2dMembers& members) {
        members.closed = true;
        members.plinegen = true;
    });
    EXPECT_THAT(chain(L"Misc:Closed"), ElementsAre("290 true"));
    EXPECT_THAT(chain(L"Misc:Linetype generation"), ElementsAre("290 true"));
    EXPECT_THAT(chain(L"Geometry:Length"), ElementsAre("5001 12"));
}

TEST_F(Polyline2dProvider, NamesTheWayOfSmoothing)
{
    const std::pair<int, const char*> names[] = {{0, "5005 None"},
                                                 {1, "5005 Curve fit"},
                                                 {2, "5005 Quadratic"},
                                                 {3, "5005 Cubic"},
                                                 {4, "5005 "}};
    for (const auto& [type, name] : names) {
        setType(static_cast<KdDb::Poly2dType>(type));
        EXPECT_THAT(chain(L"Misc:Fit/Smooth"), ElementsAre(name));
    }
}

TEST_F(Polyline2dProvider, ChainsItsVerticesInTheUsersFrame)
{
    EXPECT_THAT(chain(kVertex), ElementsAre("5002 0,0", "5002 3,0", "5002 3,4"));
    moveUserFrame();
    EXPECT_THAT(chain(kVertex), ElementsAre("5002 -20,10", "5002 -20,7", "5002 -16,7"));
}

TEST_F(Polyline2dProvider, ReportsTheControlVerticesOfACubicSplineAndAllOfAQuadraticOne)
{
    add2dVertex(polyline, {5, 5, 0}, KdDb::kControlVertex);
    add2dVertex(polyline, {6, 6, 0}, KdDb::kSplineFitVertex);
    setType(KdDb::kCubic2dPolyline);
    EXPECT_THAT(chain(kVertex), ElementsAre("5002 5,5"));
    setType(KdDb::kQuadratic2dPolyline);
    EXPECT_EQ(chain(kVertex).size(), 5u);
}

TEST_F(Polyline2dProvider, LeavesTheRecordAloneWithoutVertices)
{
    polyline = add<KdDb2dPolyline>();
    EXPECT_THAT(chain(kVertex), ElementsAre(kNothing));
    EXPECT_THAT(chain(kStartWidth), ElementsAre(kNothing));
    EXPECT_THAT(chain(kGlobalWidth), ElementsAre("5001 0"));
    EXPECT_THAT(chain(L"Geometry:Length"), ElementsAre("5001 0"));
}

TEST_F(Polyline2dProvider, HasAGlobalWidthIfAllVerticesShareIt)
{
    for (KdDb2dVertex* vertex : {first, second, third})
        setWidths(vertex, 2, 2);
    EXPECT_THAT(chain(kGlobalWidth), ElementsAre("5001 2"));
    setWidths(third, 2, 1);
    EXPECT_THAT(chain(kGlobalWidth), ElementsAre("5001 0"));
    setWidths(third, 3, 3);
    EXPECT_THAT(chain(kGlobalWidth), ElementsAre("5001 0"));
}

TEST_F(Polyline2dProvider, TapersAlreadyAtTheFirstVertex)
{
    setWidths(first, 2, 0);
    EXPECT_THAT(chain(kGlobalWidth), ElementsAre("5001 0"));
}

TEST_F(Polyline2dProvider, ReadsTheEndWidthOfACurveFitFromTheSecondVertex)
{
    setWidths(first, 1, 2);
    setWidths(second, 3, 4);
    EXPECT_THAT(chain(kStartWidth), ElementsAre("5001 1"));
    EXPECT_THAT(chain(kEndWidth), ElementsAre("5001 2"));
    setType(KdDb::kCurveFit2dPolyline);
    EXPECT_THAT(chain(kStartWidth), ElementsAre("5001 1"));
    EXPECT_THAT(chain(kEndWidth), ElementsAre("5001 4"));
}

TEST_F(Polyline2dProvider, HasNoSegmentWidthsOnceItIsASpline)
{
    for (const auto type : {KdDb::kQuadratic2dPolyline, KdDb::kCubic2dPolyline}) {
        setType(type);
        EXPECT_THAT(chain(kStartWidth), ElementsAre(kNothing));
        EXPECT_THAT(chain(kEndWidth), ElementsAre(kNothing));
    }
}

TEST_F(Polyline2dProvider, RefusesWhatIsNo2dPolyline)
{
    const KdDb3dPolyline other;
    expectRefusals<KdDb2dPolyline_Extension>(*polyline, other, L"Misc:Closed");
}

class Polyline3dProvider : public CurveTest
{
  protected:
    Polyline3dProvider()
    {
        addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 0});
        addVertex<KdDb3dPolylineVertex>(polyline, {2, 3, 6});
    }
    void setType(KdDb::Poly3dType type)
    {
        change(polyline, [type](Polyline3dMembers& members) { members.type = type; });
    }
    std::vector<std::string> chain(const wchar_t* key)
    {
        const Answer answer = ask(provider, polyline, key);
        EXPECT_EQ(answer.status, 1);
        return answer.chain;
    }

    std::vector<ExpectedRow> rows = {
        {76613, kVertex, false, "5009 0,0,0"},
        {76614, L"Geometry:Length", true, "5001 7"},
        {76615, L"Misc:Fit/Smooth", false, "5005 None", texts({"None", "Quadratic", "Cubic"})},
        {76616, L"Misc:Closed", false, "290 false"},
    };
    KdDb3dPolyline* polyline = add<KdDb3dPolyline>();
    KdDb3dPolyline_Extension provider;
};

TEST_F(Polyline3dProvider, ListsFourKeys)
{
    expectListing<KdDb3dPolyline_Extension>(polyline, rows);
    expectListing<KdDb3dPolyline_Extension>(nullptr, rows);
}

TEST_F(Polyline3dProvider, AnswersAllKeysOfOneValue)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        EXPECT_EQ(KdDb3dPolyline_Extension::rows()[i].key.id, rows[i].id);
        if (rows[i].key != kVertex)
            expectValue(provider, *polyline, rows[i]);
    }
    change(polyline, [](Polyline3dMembers& members) { members.closed = true; });
    EXPECT_THAT(chain(L"Misc:Closed"), ElementsAre("290 true"));
    EXPECT_THAT(chain(L"Geometry:Length"), ElementsAre("5001 14"));
}

TEST_F(Polyline3dProvider, NamesTheWayOfSmoothing)
{
    const std::pair<int, const char*> names[] = {
        {0, "5005 None"}, {1, "5005 Quadratic"}, {2, "5005 Cubic"}, {3, "5005 "}};
    for (const auto& [type, name] : names) {
        setType(static_cast<KdDb::Poly3dType>(type));
        EXPECT_THAT(chain(L"Misc:Fit/Smooth"), ElementsAre(name));
    }
}

TEST_F(Polyline3dProvider, ChainsItsVerticesInTheUsersFrame)
{
    addVertex<KdDb3dPolylineVertex>(polyline, {9, 9, 9}, KdDb::kControlVertex);
    EXPECT_THAT(chain(kVertex), ElementsAre("5009 0,0,0", "5009 2,3,6", "5009 9,9,9"));
    moveUserFrame();
    EXPECT_THAT(chain(kVertex), ElementsAre("5009 -20,10,-30", "5009 -17,8,-24", "5009 -11,1,-21"));
}

TEST_F(Polyline3dProvider, SkipsPartsOfOtherKinds)
{
    addVertex<KdDb2dVertex>(polyline, {9, 9, 9});
    EXPECT_EQ(chain(kVertex).size(), 2u);
}

TEST_F(Polyline3dProvider, HasRecordsWithoutValuesIfThereAreNoVertices)
{
    polyline = add<KdDb3dPolyline>();
    EXPECT_THAT(chain(kVertex), ElementsAre("5009 0,0,0"));
    EXPECT_THAT(chain(L"Geometry:Length"), ElementsAre("5001 0"));
}

TEST_F(Polyline3dProvider, MeasuresASplineAlongItsComputedVertices)
{
    polyline = add<KdDb3dPolyline>();
    setType(KdDb::kCubic3dPolyline);
    addVertex<KdDb3dPolylineVertex>(polyline, {9, 9, 9}, KdDb::kControlVertex);
    addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 0}, KdDb::kSplineFitVertex);
    addVertex<KdDb3dPolylineVertex>(polyline, {0, 0, 5}, KdDb::kSplineFitVertex);
    EXPECT_THAT(chain(L"Geometry:Length"), ElementsAre("5001 5"));
}

TEST_F(Polyline3dProvider, RefusesWhatIsNo3dPolyline)
{
    const KdDb2dPolyline other;
    expectRefusals<KdDb3dPolyline_Extension>(*polyline, other, L"Misc:Closed");
}

} // namespace
