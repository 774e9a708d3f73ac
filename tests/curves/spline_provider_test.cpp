#include <entities/spline.h>

#include <entities/circle.h>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kControlPoint = L"Data Points:Control point";
constexpr const wchar_t* kFitPoint = L"Data Points:Fit Point";

/// y = x (6 - x) / 6 at the height 7, as a curve of degree 2; the area under it is 6.
class SplineProvider : public CurveTest
{
  protected:
    SplineProvider()
    {
        SplineMembers& members = spline.edit();
        members.degree = 2;
        members.knots = {0, 0, 0, 1, 1, 1};
        members.controlPoints = {{0, 0, 7}, {3, 3, 7}, {6, 0, 7}};
        members.fitTolerance = 0.25;
    }

    std::vector<ExpectedRow> rows() const
    {
        return {{77284, L"Data Points:Number of control points", true, "5003 3"},
                {77285, kControlPoint, false, "5009 0,0,7", {}},
                {77286, L"Data Points:Number of fit points", true, "5003 0"},
                {77287, kFitPoint, false, "5009 0,0,0"},
                {77288, L"Misc:Degree", true, "5003 2"},
                {77289, L"Misc:Closed", true, "290 false"},
                {77290, L"Misc:Planar", true, "290 true"},
                {77291, L"Misc:Start tangent vector", true, "5009 0,0,0"},
                {77294, L"Misc:End tangent vector", true, "5009 0,0,0"},
                {77297, L"Misc:Fit tolerance", false, "5001 0.25"},
                {77298, L"Misc:Area", true, "5005 6.0000"}};
    }

    KdDbSpline spline;
    KdDbSpline_Extension provider;
};

TEST_F(SplineProvider, ListsElevenKeys)
{
    expectListing<KdDbSpline_Extension>(&spline, rows());
    expectListing<KdDbSpline_Extension>(nullptr, rows());
}

TEST_F(SplineProvider, AnswersAllKeysOfOneValue)
{
    for (std::size_t i = 0; i < rows().size(); ++i) {
        const ExpectedRow row = rows()[i];
        EXPECT_EQ(KdDbSpline_Extension::rows()[i].key.id, row.id);
        if (row.key != kControlPoint && row.key != kFitPoint)
            expectValue(provider, spline, row);
    }
}

TEST_F(SplineProvider, GivesEachControlPointItsWeightOrNone)
{
    for (const bool asDisplayText : {false, true}) {
        for (const bool withChoices : {false, true}) {
            const Answer answer = ask(provider, &spline, kControlPoint, asDisplayText, withChoices);
            EXPECT_EQ(answer.status, 1);
            EXPECT_THAT(answer.chain, ElementsAre("5009 0,0,7", "5001 -1", "5009 3,3,7", "5001 -1",
                                                  "5009 6,0,7", "5001 -1"));
        }
    }
    spline.edit().weights = {1, 0.5, 2};
    EXPECT_THAT(
        ask(provider, &spline, kControlPoint).chain,
        ElementsAre("5009 0,0,7", "5001 1", "5009 3,3,7", "5001 0.5", "5009 6,0,7", "5001 2"));
}

TEST_F(SplineProvider, GivesAsManyFitPointsAsThereAreControlPoints)
{
    EXPECT_THAT(ask(provider, &spline, kFitPoint, true, true).chain,
                ElementsAre("5009 0,0,0", "5009 0,0,0", "5009 0,0,0"));
    spline.edit().fitPoints = {{1, 1, 7}, {2, 2, 7}};
    EXPECT_THAT(ask(provider, &spline, kFitPoint).chain,
                ElementsAre("5009 1,1,7", "5009 2,2,7", "5009 2,2,7"));
    spline.edit().fitPoints = {{1, 1, 7}, {2, 2, 7}, {3, 3, 7}, {4, 4, 7}};
    EXPECT_THAT(ask(provider, &spline, kFitPoint).chain,
                ElementsAre("5009 1,1,7", "5009 2,2,7", "5009 3,3,7"));
    EXPECT_THAT(ask(provider, &spline, L"Data Points:Number of fit points").chain,
                ElementsAre("5003 4"));
}

TEST_F(SplineProvider, TellsTangentsAndFlags)
{
    SplineMembers& members = spline.edit();
    members.startTangent = {0, 1, 0};
    members.endTangent = {0.6, 0, 0.8};
    members.closed = true;
    EXPECT_THAT(ask(provider, &spline, L"Misc:Start tangent vector").chain,
                ElementsAre("5009 0,1,0"));
    EXPECT_THAT(ask(provider, &spline, L"Misc:End tangent vector").chain,
                ElementsAre("5009 0.6,0,0.8"));
    EXPECT_THAT(ask(provider, &spline, L"Misc:Closed").chain, ElementsAre("290 true"));
}

TEST_F(SplineProvider, TellsTheAreaOfACurveInSpaceAsNone)
{
    SplineMembers& members = spline.edit();
    members.degree = 3;
    members.knots = {0, 0, 0, 0, 1, 1, 1, 1};
    members.controlPoints = {{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {1, 1, 1}};
    EXPECT_THAT(ask(provider, &spline, L"Misc:Planar").chain, ElementsAre("290 false"));
    EXPECT_THAT(ask(provider, &spline, L"Misc:Area").chain, ElementsAre("5005 0.0000"));
}

TEST_F(SplineProvider, HasADashForTheAreaWithoutADrawingToGiveUnits)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_THAT(ask(provider, &spline, L"Misc:Area").chain, ElementsAre("5005 -"));
}

TEST_F(SplineProvider, AnswersAlsoForASplineWithoutAnything)
{
    const KdDbSpline empty;
    EXPECT_THAT(ask(provider, &empty, kControlPoint).chain, ElementsAre("5009 0,0,0", "5001 -1"));
    EXPECT_THAT(ask(provider, &empty, kFitPoint).chain, ElementsAre("5009 0,0,0"));
    EXPECT_THAT(ask(provider, &empty, L"Data Points:Number of control points").chain,
                ElementsAre("5003 0"));
}

TEST_F(SplineProvider, RefusesWhatIsNoSpline)
{
    const KdDbCircle circle;
    expectRefusals<KdDbSpline_Extension>(spline, circle, L"Misc:Degree");
}

} // namespace
