#include <entities/face.h>
#include <entities/spline.h>

#include "support.h"

using namespace provider_test;
using testing::ElementsAre;

namespace {

constexpr const wchar_t* kConstrain = L"Geometry:Constrain";

class HelixProvider : public CurveTest
{
  protected:
    HelixProvider()
    {
        HelixMembers& members = helix.edit();
        members.axisPoint = {1, 2, 3};
        members.startPoint = {1, 6, 3};
        members.topRadius = 1;
        members.turns = 2.5;
        members.turnHeight = 5;
        members.constraint = KdDb::kHelixTurnHeight;
    }

    std::vector<ExpectedRow> rows = {
        {77615, L"Geometry:Position", false, "5009 1,2,3"},
        {77616, kConstrain, false, "5005 TurnHeight", texts({"Height", "TurnHeight", "Turns"})},
        {77617, L"Geometry:Height", false, "5001 12.5"},
        {77618, L"Geometry:Turns", false, "5001 2.5"},
        {77619, L"Geometry:Turn Height", false, "5001 5"},
        {77620, L"Geometry:Base Radius", false, "5001 4"},
        {77621, L"Geometry:Top Radius", false, "5001 1"},
        {77622, L"Geometry:Twist", false, "290 true"},
        {77623, L"Geometry:Turn slope", true, "5001 0.31831"}, // 5 / (pi (4 + 1))
        {77624, L"Geometry:Total length", true, "5001 0"},
    };
    KdDbHelix helix;
    KdDbHelix_Extension provider;
};

TEST_F(HelixProvider, ListsTenKeys)
{
    expectListing<KdDbHelix_Extension>(&helix, rows);
    expectListing<KdDbHelix_Extension>(nullptr, rows);
}

TEST_F(HelixProvider, AnswersThemAll)
{
    expectTable<KdDbHelix_Extension>(helix, rows);
}

TEST_F(HelixProvider, NamesTheConstraint)
{
    const std::pair<short, const char*> names[] = {
        {0, "5005 Height"}, {1, "5005 TurnHeight"}, {2, "5005 Turns"}, {3, "5005 "}, {-1, "5005 "}};
    for (const auto& [number, name] : names) {
        helix.edit().constraint = number;
        EXPECT_THAT(ask(provider, &helix, kConstrain).chain, ElementsAre(name));
    }
}

TEST_F(HelixProvider, KnowsNoLengthOfASpline)
{
    HelixMembers& members = helix.edit();
    members.degree = 1;
    members.knots = {0, 0, 1, 1};
    members.controlPoints = {{0, 0, 0}, {3, 4, 0}};
    double length = 7.0;
    EXPECT_EQ(provider.getEntityTotalLength(&helix, length), 0);
    EXPECT_EQ(length, 7.0);
    EXPECT_THAT(ask(provider, &helix, L"Geometry:Total length").chain, ElementsAre("5001 0"));
}

TEST_F(HelixProvider, KnowsNoLengthWithoutAnEntity)
{
    double length = 7.0;
    EXPECT_EQ(provider.getEntityTotalLength(nullptr, length), 15);
    KdDbFace face; // which has an outline, but is no curve
    EXPECT_EQ(provider.getEntityTotalLength(&face, length), 0);
    EXPECT_EQ(length, 7.0);
}

TEST_F(HelixProvider, AsksItsOwnVirtualOperationForTheLength)
{
    class Measuring : public KdDbHelix_Extension
    {
        int getEntityTotalLength(const KdDbEntity*, double& length) const override
        {
            length = 12.25;
            return 0;
        }
    };
    Measuring measuring;
    EXPECT_THAT(ask(measuring, &helix, L"Geometry:Total length").chain, ElementsAre("5001 12.25"));
}

TEST_F(HelixProvider, RefusesWhatIsNoHelix)
{
    const KdDbSpline spline;
    expectRefusals<KdDbHelix_Extension>(helix, spline, L"Geometry:Turns");
    expectRefusals<KdDbHelix_Extension>(helix, spline, L"Geometry:Total length");
}

TEST_F(HelixProvider, DoesNotAnswerTheKeysOfASpline)
{
    EXPECT_THAT(ask(provider, &helix, L"Misc:Degree").chain, ElementsAre(kNothing));
}

} // namespace
