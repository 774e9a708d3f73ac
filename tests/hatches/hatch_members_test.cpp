#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <exchange/made_drawing.h>

#include "support.h"

namespace {

using namespace hatch_test;

Groups joined(std::initializer_list<Groups> parts)
{
    Groups all;
    for (const Groups& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

const Groups kHead{{0, "HATCH"}, {5, "A1"},     {100, "AcDbEntity"}, {8, "0"},   {100, "AcDbHatch"},
                   {10, "0"},    {20, "0"},     {30, "2.5"},         {210, "0"}, {220, "0"},
                   {230, "-1"},  {2, "ANSI31"}, {70, "0"},           {71, "1"}};
const Groups kSquare{{91, "1"}, {92, "3"}, {72, "1"}, {73, "1"}, {93, "3"},
                     {10, "0"}, {20, "0"}, {42, "1"}, {10, "4"}, {20, "0"},
                     {42, "0"}, {10, "4"}, {20, "3"}, {97, "1"}, {330, "A2"}};
const Groups kTail{{75, "1"}, {76, "1"},   {52, "30"},  {41, "2"},     {77, "1"},
                   {78, "1"}, {53, "75"},  {43, "1"},   {44, "2"},     {45, "-3"},
                   {46, "4"}, {79, "2"},   {49, "0.5"}, {49, "-0.25"}, {47, "0.1"},
                   {98, "2"}, {10, "1.5"}, {20, "1"},   {10, "7"},     {20, "8"}};

/// The first entity of a drawing with these groups, and a line of handle A2.
struct Drawn
{
    explicit Drawn(const Groups& groups, bool binary = false)
    {
        const Groups line{{0, "LINE"}, {5, "A2"}, {100, "AcDbEntity"}, {8, "0"}, {100, "AcDbLine"},
                          {10, "0"},   {20, "0"}, {11, "4"},           {21, "0"}};
        const Groups all =
            ::drawing({header("AC1027"), section("ENTITIES", joined({groups, line}))});
        drawing = readBytes(binary ? asBinary(all) : asText(all));
        hatch = drawing.entity<KdDbHatch>(0);
    }

    ReadDrawing drawing;
    const KdDbHatch* hatch;
};

/// The content of a hatch of the test's own, so that it may be looked at whole.
HatchContent contentOf(const Groups& groups)
{
    const Drawn drawn(groups);
    KdDbHatch copy;
    EXPECT_EQ(copy.copyFrom(drawn.hatch), eOk);
    return copy.edit();
}

const HatchLoop* loopOf(const HatchContent& content)
{
    return content.loops.size() == 1 ? &content.loops[0] : nullptr;
}

class HatchInEitherForm : public testing::TestWithParam<bool>
{
};

TEST_P(HatchInEitherForm, GivesItsPatternAndFlags)
{
    const Drawn drawn(joined({kHead, kSquare, kTail}), GetParam());
    const KdDbHatch& hatch = *drawn.hatch;
    EXPECT_EQ(hatch.elevation(), 2.5);
    EXPECT_EQ(hatch.normal(), (KdGeVector3d{0, 0, -1}));
    EXPECT_EQ(hatch.patternName(), L"ANSI31");
    EXPECT_EQ(hatch.patternType(), 1);
    EXPECT_EQ(hatch.hatchStyle(), HatchContent::Style::Outer);
    EXPECT_DOUBLE_EQ(hatch.patternAngle(), kPi / 6);
    EXPECT_EQ(hatch.patternScale(), 2);
    EXPECT_EQ(hatch.patternSpace(), 1);
    EXPECT_TRUE(hatch.patternDouble());
    EXPECT_TRUE(hatch.associative());
    EXPECT_FALSE(hatch.isSolidFill());
    EXPECT_TRUE(hatch.isHatch());
    EXPECT_EQ(hatch.numLoops(), 1);
    EXPECT_EQ(hatch.originPoint(), KdGePoint2d::kOrigin);
    EXPECT_DOUBLE_EQ(areaOf(hatch), 6 + 2 * kPi);
}
INSTANTIATE_TEST_SUITE_P(Forms, HatchInEitherForm, testing::Bool(),
                         [](const auto& row) { return row.param ? "binary" : "text"; });

TEST(HatchMembers, HoldThePolylineItsSourcesThePatternLinesAndTheSeeds)
{
    const HatchContent content = contentOf(joined({kHead, kSquare, kTail}));
    const HatchLoop* loop = loopOf(content);
    ASSERT_NE(loop, nullptr);
    EXPECT_EQ(loop->type, 3);
    ASSERT_EQ(loop->vertices.size(), 3u);
    EXPECT_EQ(loop->vertices[0].bulge, 1);
    EXPECT_EQ(loop->vertices[2].point, (KdGePoint2d{4, 3}));
    EXPECT_EQ(loop->sources.size(), 1u);
    ASSERT_EQ(content.patternLines.size(), 1u);
    const HatchPatternLine& line = content.patternLines[0];
    EXPECT_DOUBLE_EQ(line.angle, 75 * kPi / 180);
    EXPECT_EQ(line.base, (KdGePoint2d{1, 2}));
    EXPECT_EQ(line.offset, (KdGeVector2d{-3, 4}));
    EXPECT_THAT(line.dashes, testing::ElementsAre(0.5, -0.25));
    EXPECT_THAT(content.seeds, testing::ElementsAre(KdGePoint2d{1.5, 1}, KdGePoint2d{7, 8}));
}

TEST(HatchMembers, OfAUserDefinedPatternHoldTheSpacingWhereOthersHoldTheScale)
{
    const Drawn drawn(joined({kHead, kSquare, {{75, "0"}, {76, "0"}, {41, "2"}}}));
    EXPECT_EQ(drawn.hatch->patternSpace(), 2);
    EXPECT_EQ(drawn.hatch->patternScale(), 1);
}

TEST(HatchMembers, HoldTheOriginOfTheExtendedData)
{
    const Drawn drawn(joined({kHead,
                              kSquare,
                              kTail,
                              {{1001, "OTHER"},
                               {1010, "9"},
                               {1020, "9"},
                               {1030, "9"},
                               {1001, "acad"},
                               {1010, "3"},
                               {1020, "4"},
                               {1030, "0"}}}));
    EXPECT_EQ(drawn.hatch->originPoint(), (KdGePoint2d{3, 4}));
}

Groups edgeLoop(const Groups& edges)
{
    return joined({kHead, {{91, "1"}, {92, "1"}, {93, "99"}}, edges, {{97, "0"}, {75, "0"}}});
}

TEST(HatchEdges, OfALineAreReadBetweenItsEnds)
{
    const HatchContent content = contentOf(edgeLoop({{72, "1"},
                                                     {10, "1"},
                                                     {20, "2"},
                                                     {11, "3"},
                                                     {21, "4"},
                                                     {72, "1"},
                                                     {10, "3"},
                                                     {20, "4"},
                                                     {11, "5"},
                                                     {21, "6"}}));
    const HatchLoop* loop = loopOf(content);
    ASSERT_TRUE(loop && loop->edges.size() == 2);
    const auto& line = std::get<HatchLineEdge>(loop->edges[1]);
    EXPECT_EQ(line.start, (KdGePoint2d{3, 4}));
    EXPECT_EQ(line.end, (KdGePoint2d{5, 6}));
}

struct ArcRow
{
    const char* name;
    Groups edge;
    KdGeVector2d majorAxis;
    double ratio;
    double start;
    double end;
};

class HatchArcs : public testing::TestWithParam<ArcRow>
{
};

TEST_P(HatchArcs, RunTheWayTheDrawingSays)
{
    const HatchContent content = contentOf(edgeLoop(GetParam().edge));
    const HatchLoop* loop = loopOf(content);
    ASSERT_TRUE(loop && loop->edges.size() == 1);
    const auto& arc = std::get<HatchArcEdge>(loop->edges[0]);
    EXPECT_EQ(arc.center, (KdGePoint2d{1, 2}));
    EXPECT_EQ(arc.majorAxis, GetParam().majorAxis);
    EXPECT_EQ(arc.radiusRatio, GetParam().ratio);
    EXPECT_NEAR(arc.startParam, GetParam().start, 1e-12);
    EXPECT_NEAR(arc.endParam, GetParam().end, 1e-12);
}

Groups arcEdge(const char* start, const char* end, const char* counterClockwise)
{
    return {
        {72, "2"}, {10, "1"}, {20, "2"}, {40, "5"}, {50, start}, {51, end}, {73, counterClockwise}};
}

Groups ellipseEdge(const char* start, const char* end, const char* counterClockwise)
{
    return {{72, "3"},   {10, "1"}, {20, "2"},
            {11, "0"},   {21, "4"}, {40, "0.5"},
            {50, start}, {51, end}, {73, counterClockwise}};
}

/// The parameter at which an ellipse of that ratio is seen under an angle.
double seen(double angle, double ratio)
{
    return std::atan2(std::sin(angle) / ratio, std::cos(angle));
}

const ArcRow kArcs[] = {
    {"counterClockwise", arcEdge("30", "120", "1"), {5, 0}, 1, kPi / 6, kPi * 2 / 3},
    {"overTheStartOfTheTurn", arcEdge("300", "60", "1"), {5, 0}, 1, kPi * 5 / 3, kPi * 7 / 3},
    {"wholeCircle", arcEdge("0", "360", "1"), {5, 0}, 1, 0, 2 * kPi},
    {"twiceTheSameAngle", arcEdge("90", "90", "1"), {5, 0}, 1, kPi / 2, kPi * 5 / 2},
    {"manyTurns", arcEdge("0", "3690", "1"), {5, 0}, 1, 0, kPi / 2},
    // from -30 down to -120 degrees
    {"clockwise", arcEdge("30", "120", "0"), {5, 0}, 1, -kPi / 6, -kPi * 2 / 3},
    {"wholeCircleClockwise", arcEdge("0", "360", "0"), {5, 0}, 1, 0, -2 * kPi},
    {"ellipse", ellipseEdge("45", "90", "1"), {0, 4}, 0.5, seen(kPi / 4, 0.5), kPi / 2},
    {"ellipseOverHalfATurn",
     ellipseEdge("45", "225", "1"),
     {0, 4},
     0.5,
     seen(kPi / 4, 0.5),
     seen(kPi / 4, 0.5) + kPi},
    {"ellipseClockwise", ellipseEdge("45", "90", "0"), {0, 4}, 0.5, -seen(kPi / 4, 0.5), -kPi / 2},
    {"wholeEllipse", ellipseEdge("0", "360", "1"), {0, 4}, 0.5, 0, 2 * kPi},
};
INSTANTIATE_TEST_SUITE_P(Rows, HatchArcs, testing::ValuesIn(kArcs),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HatchEdges, OfASplineAreReadWithTheirWeightsAndFitPoints)
{
    const HatchContent content = contentOf(
        edgeLoop({{72, "4"}, {94, "2"},  {73, "1"}, {74, "0"},   {95, "6"}, {96, "3"}, {40, "0"},
                  {40, "0"}, {40, "0"},  {40, "1"}, {40, "1"},   {40, "1"}, {10, "0"}, {20, "0"},
                  {42, "1"}, {10, "1"},  {20, "2"}, {42, "0.5"}, {10, "2"}, {20, "0"}, {42, "1"},
                  {97, "2"}, {11, "0"},  {21, "0"}, {11, "2"},   {21, "0"}, {12, "1"}, {22, "1"},
                  {13, "1"}, {23, "-1"}, {72, "1"}, {10, "2"},   {20, "0"}, {11, "0"}, {21, "0"}}));
    const HatchLoop* loop = loopOf(content);
    ASSERT_TRUE(loop && loop->edges.size() == 2);
    const auto& spline = std::get<HatchSplineEdge>(loop->edges[0]);
    EXPECT_EQ(spline.degree, 2);
    EXPECT_THAT(spline.knots, testing::ElementsAre(0, 0, 0, 1, 1, 1));
    EXPECT_THAT(spline.controlPoints,
                testing::ElementsAre(KdGePoint2d{0, 0}, KdGePoint2d{1, 2}, KdGePoint2d{2, 0}));
    EXPECT_THAT(spline.weights, testing::ElementsAre(1, 0.5, 1));
    EXPECT_THAT(spline.fitPoints, testing::ElementsAre(KdGePoint2d{0, 0}, KdGePoint2d{2, 0}));
}

TEST(HatchEdges, OfASplineDropWeightsThatDoNotMatch)
{
    const HatchContent content = contentOf(
        edgeLoop({{72, "4"}, {94, "1"}, {10, "0"}, {20, "0"}, {42, "1"}, {10, "1"}, {20, "2"}}));
    const HatchLoop* loop = loopOf(content);
    ASSERT_TRUE(loop && loop->edges.size() == 1);
    EXPECT_TRUE(std::get<HatchSplineEdge>(loop->edges[0]).weights.empty());
}

const Groups kGradient{{450, "1"},        {451, "0"},       {460, "0.5"}, {461, "0.25"},
                       {452, "1"},        {462, "0.75"},    {453, "2"},   {463, "0"},
                       {63, "5"},         {421, "1122867"}, {463, "1"},   {63, "2"},
                       {470, "SPHERICAL"}};

TEST(HatchGradient, IsRead)
{
    Groups head = kHead;
    head[11].second = "SOLID,_O";
    const Drawn drawn(joined({head, kSquare, {{75, "1"}, {76, "1"}}, kGradient}));
    const KdDbHatch& hatch = *drawn.hatch;
    EXPECT_TRUE(hatch.isGradient());
    EXPECT_FALSE(hatch.isHatch());
    EXPECT_EQ(hatch.patternName(), L"SOLID");
    EXPECT_EQ(hatch.gradientName(), L"SPHERICAL");
    EXPECT_EQ(hatch.gradientAngle(), 0.5) << "radians, unlike the other angles";
    EXPECT_EQ(hatch.gradientShift(), 0.25F);
    EXPECT_TRUE(hatch.gradientOneColorMode());
    unsigned count = 0;
    const KdCmColor* colors = nullptr;
    const float* places = nullptr;
    ASSERT_EQ(hatch.getGradientColors(count, colors, places), eOk);
    ASSERT_EQ(count, 2u);
    EXPECT_EQ(colors[0].color(), 0xC2112233u);
    EXPECT_EQ(colors[1].colorIndex(), 2);
    EXPECT_EQ(places[1], 1.0F);
}

TEST(HatchGradient, IsNoneWhereOnlyItsGroupsStand)
{
    Groups gradient = kGradient;
    gradient[0].second = "0";
    const Drawn drawn(joined({kHead, kSquare, kTail, gradient}));
    EXPECT_TRUE(drawn.hatch->isHatch());
    EXPECT_EQ(drawn.hatch->patternName(), L"ANSI31");
}

TEST(HatchGradient, HasNoColorsUntilTheDrawingGivesSome)
{
    unsigned count = 9;
    const KdCmColor color;
    const KdCmColor* colors = &color;
    const float* places = nullptr;
    EXPECT_EQ(KdDbHatch().getGradientColors(count, colors, places), eOk);
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(colors, nullptr);
    EXPECT_EQ(places, nullptr);
}

struct DamageRow
{
    const char* name;
    Groups groups;
    int loops;
};

class DamagedHatches : public testing::TestWithParam<DamageRow>
{
};

TEST_P(DamagedHatches, AreReadAsFarAsTheyGo)
{
    const Drawn drawn(GetParam().groups);
    ASSERT_NE(drawn.hatch, nullptr);
    EXPECT_EQ(drawn.hatch->numLoops(), GetParam().loops);
    double area = 0.0;
    drawn.hatch->getArea(area);
    KdGeExtents3d box;
    drawn.hatch->getGeomExtents(box);
    const Pieces pieces(*drawn.hatch);
    EXPECT_GE(area, 0.0);
}

const DamageRow kDamages[] = {
    {"nothingButAHead", kHead, 0},
    {"absurdCounts",
     joined({kHead,
             {{91, "2000000000"},
              {92, "2"},
              {93, "2000000000"},
              {10, "0"},
              {20, "0"},
              {10, "1"},
              {20, "0"},
              {10, "0"},
              {20, "1"},
              {97, "2000000000"},
              {75, "0"},
              {78, "2000000000"},
              {98, "-1"}}}),
     1},
    {"endsInsideAnEdge", joined({kHead, {{91, "1"}, {92, "1"}, {93, "1"}, {72, "2"}, {10, "1"}}}),
     1},
    {"edgeWithoutLoop", joined({kHead, {{72, "1"}, {10, "1"}, {20, "1"}, {11, "2"}, {21, "2"}}}),
     0},
    {"unknownEdgeKind",
     joined({kHead,
             {{92, "1"},
              {72, "77"},
              {10, "1"},
              {20, "1"},
              {72, "1"},
              {10, "0"},
              {20, "0"},
              {11, "2"},
              {21, "2"},
              {75, "0"}}}),
     1},
    {"bulgeBeforeTheCorner", joined({kHead, {{92, "2"}, {42, "1"}, {10, "1"}, {20, "1"}}}), 1},
    {"dashBeforeTheLine", joined({kHead, {{75, "0"}, {49, "1"}, {463, "0"}, {63, "300"}}}), 0},
    {"arcWithoutRadius", edgeLoop({{72, "2"}, {10, "1"}, {20, "2"}}), 1},
    {"ellipseWithoutAxis", edgeLoop({{72, "3"}, {10, "1"}, {20, "2"}, {40, "0"}, {51, "360"}}), 1},
    {"hugeAngles", edgeLoop({{72, "2"}, {40, "1"}, {50, "1e300"}, {51, "-1e300"}}), 1},
    {"splineWithoutPoints", edgeLoop({{72, "4"}, {94, "3"}, {95, "2000000000"}}), 1},
    {"splineOfOnePlace",
     edgeLoop({{72, "4"},
               {94, "1"},
               {40, "0"},
               {40, "0"},
               {40, "1"},
               {40, "1"},
               {10, "5"},
               {20, "5"},
               {10, "5"},
               {20, "5"}}),
     1},
};
INSTANTIATE_TEST_SUITE_P(Rows, DamagedHatches, testing::ValuesIn(kDamages),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
