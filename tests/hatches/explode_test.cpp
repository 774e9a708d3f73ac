#include <cmath>

#include <gtest/gtest.h>

#include <entities/circle.h>
#include <entities/line.h>

#include "support.h"

namespace {

using namespace hatch_test;

/// Lines along x, one unit apart, from the origin.
std::unique_ptr<KdDbHatch> ruled(std::initializer_list<HatchLoop> loops)
{
    auto hatch = hatchOf(loops);
    HatchContent& content = hatch->edit();
    content.solid = false;
    content.patternName = L"RULED";
    content.patternLines = {{0.0, {0, 0}, {0, 1}, {}}};
    return hatch;
}

struct Segment
{
    KdGePoint3d start;
    KdGePoint3d end;
};

void expectLines(const KdDbHatch& hatch, const std::vector<Segment>& expected)
{
    const Pieces pieces(hatch);
    ASSERT_EQ(pieces.status, eOk);
    ASSERT_EQ(pieces.size(), expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        SCOPED_TRACE(i);
        const auto& line = pieces.at<KdDbLine>(i);
        EXPECT_NEAR(line.startPoint().distanceTo(expected[i].start), 0, 1e-12);
        EXPECT_NEAR(line.endPoint().distanceTo(expected[i].end), 0, 1e-12);
    }
}

TEST(ExplodedPattern, IsLinesInsideTheBoundaryFromOneSideToTheOther)
{
    expectLines(*ruled({rectangle(1, 0.5, 4, 3.5)}),
                {{{1, 1, 0}, {4, 1, 0}}, {{1, 2, 0}, {4, 2, 0}}, {{1, 3, 0}, {4, 3, 0}}});
}

TEST(ExplodedPattern, LeavesHolesOut)
{
    expectLines(*ruled({rectangle(0, 0.5, 9, 2.5), rectangle(3, 1.5, 5, 2.25)}),
                {{{0, 1, 0}, {9, 1, 0}}, {{0, 2, 0}, {3, 2, 0}}, {{5, 2, 0}, {9, 2, 0}}});
}

TEST(ExplodedPattern, MeetsArcsAndEllipsesWhereTheyAre)
{
    const double half = std::sqrt(4 - 1);
    expectLines(*ruled({circle(5, 2, 2)}), {{{5 - half, 1, 0}, {5 + half, 1, 0}},
                                            {{3, 2, 0}, {7, 2, 0}},
                                            {{5 - half, 3, 0}, {5 + half, 3, 0}}});
    // x x / 16 + y y / 4 = 1
    const double wide = 4 * std::sqrt(1 - 0.25);
    expectLines(
        *ruled({ellipse({0, 0}, {0, -2}, 2.0)}),
        {{{-wide, -1, 0}, {wide, -1, 0}}, {{-4, 0, 0}, {4, 0, 0}}, {{-wide, 1, 0}, {wide, 1, 0}}});
}

TEST(ExplodedPattern, MeetsSplinesWhereTheyAre)
{
    // y = 4 t (1 - t), x = 4 t
    const HatchSplineEdge parabola{2, {0, 0, 0, 1, 1, 1}, {{0, 0}, {2, 4}, {4, 0}}, {}, {}};
    auto hatch = ruled({edges({parabola, HatchLineEdge{{4, 0}, {0, 0}}})});
    hatch->edit().patternLines = {{0.0, {0, 0.5}, {0, 1}, {}}};
    const double t = std::sqrt(1 - 0.25);
    const double high = std::sqrt(1 - 0.75);
    expectLines(*hatch, {{{2 - 2 * t, 0.5, 0}, {2 + 2 * t, 0.5, 0}},
                         {{2 - 2 * high, 1.5, 0}, {2 + 2 * high, 1.5, 0}}});
    // from above, the same curve from left to right: half as far from x = 1, 2 and 3 upwards
    hatch->edit().patternLines = {{kPi / 2, {1, 0}, {-1, 0}, {}}};
    expectLines(*hatch,
                {{{3, 0, 0}, {3, 1.5, 0}}, {{2, 0, 0}, {2, 2, 0}}, {{1, 0, 0}, {1, 1.5, 0}}});
}

TEST(ExplodedPattern, TurnsWithItsAngle)
{
    auto hatch = ruled({rectangle(0, 0, 2, 2)});
    // through the corner and half the diagonal to either side
    const double step = std::sqrt(0.5);
    hatch->edit().patternLines = {{kPi / 4, {0, 0}, {-step * step, step * step}, {}}};
    expectLines(*hatch, {{{1, 0, 0}, {2, 1, 0}}, {{0, 0, 0}, {2, 2, 0}}, {{0, 1, 0}, {1, 2, 0}}});
}

TEST(ExplodedPattern, IsCutIntoDashesThatShiftFromLineToLine)
{
    auto hatch = ruled({rectangle(0, 0.5, 4, 2.5)});
    hatch->edit().patternLines = {{0.0, {0, 0}, {0.5, 1}, {1, -0.5, 0, -0.5}}};
    expectLines(*hatch, {{{0, 1, 0}, {0, 1, 0}},
                         {{0.5, 1, 0}, {1.5, 1, 0}},
                         {{2, 1, 0}, {2, 1, 0}},
                         {{2.5, 1, 0}, {3.5, 1, 0}},
                         {{4, 1, 0}, {4, 1, 0}},
                         {{0.5, 2, 0}, {0.5, 2, 0}},
                         {{1, 2, 0}, {2, 2, 0}},
                         {{2.5, 2, 0}, {2.5, 2, 0}},
                         {{3, 2, 0}, {4, 2, 0}}});
}

TEST(ExplodedPattern, HasAllFamiliesOneAfterTheOther)
{
    auto hatch = ruled({rectangle(0.5, 0.5, 1.5, 1.5)});
    hatch->edit().patternLines.push_back({kPi / 2, {0, 0}, {-1, 0}, {}});
    expectLines(*hatch, {{{0.5, 1, 0}, {1.5, 1, 0}}, {{1, 0.5, 0}, {1, 1.5, 0}}});
}

TEST(ExplodedPattern, LiesInThePlaneOfTheHatch)
{
    auto hatch = ruled({rectangle(0, 0.5, 2, 1.5)});
    hatch->edit().extrusion.setDirection({1, 0, 0});
    hatch->edit().elevation = 5;
    expectLines(*hatch, {{{5, 0, 1}, {5, 2, 1}}});
}

TEST(ExplodedPattern, TakesOverTheGeneralProperties)
{
    auto hatch = ruled({rectangle(0, 0.5, 2, 1.5)});
    hatch->edit().lineweight = 35;
    const Pieces pieces(*hatch);
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_EQ(pieces.at<KdDbLine>(0).lineWeight(), 35);
}

TEST(ExplodedSolid, IsAHatchForEachAreaWithItsHoles)
{
    const auto hatch = hatchOf({rectangle(0, 0, 10, 10), rectangle(2, 2, 8, 8),
                                rectangle(3, 3, 7, 7), rectangle(20, 0, 21, 1)});
    const Pieces pieces(*hatch);
    ASSERT_EQ(pieces.size(), 3u);
    EXPECT_NEAR(areaOf(pieces.at<KdDbHatch>(0)), 64, 1e-9);
    EXPECT_NEAR(areaOf(pieces.at<KdDbHatch>(1)), 16, 1e-9);
    EXPECT_NEAR(areaOf(pieces.at<KdDbHatch>(2)), 1, 1e-9);
    EXPECT_EQ(pieces.at<KdDbHatch>(0).numLoops(), 2);
}

TEST(ExplodedSolid, NumbersTheLoopsThatHaveASize)
{
    const auto hatch = hatchOf({HatchLoop(), rectangle(0, 0, 2, 2)});
    const Pieces pieces(*hatch);
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_NEAR(areaOf(pieces.at<KdDbHatch>(0)), 4, 1e-9);
}

TEST(ExplodedGradient, StaysOne)
{
    const auto hatch = hatchOf({rectangle(0, 0, 2, 2)});
    hatch->edit().solid = false;
    hatch->edit().gradient = true;
    const Pieces pieces(*hatch);
    ASSERT_EQ(pieces.size(), 1u);
    EXPECT_TRUE(pieces.at<KdDbHatch>(0).isGradient());
}

TEST(ExplodedHatch, RefusesWhatCanNotBeDrawn)
{
    EXPECT_EQ(Pieces(KdDbHatch()).status, eNotApplicable);
    EXPECT_EQ(Pieces(*hatchOf({})).status, eNotApplicable);
    auto withoutLines = ruled({rectangle(0, 0, 1, 1)});
    withoutLines->edit().patternLines.clear();
    EXPECT_EQ(Pieces(*withoutLines).status, eNotApplicable);
    EXPECT_EQ(withoutLines->evaluateHatch(true), eNotApplicable);
    EXPECT_EQ(ruled({})->evaluateHatch(true), eNotApplicable);
    EXPECT_EQ(KdDbHatch().evaluateHatch(false), eNotApplicable);
}

struct DenseRow
{
    const char* name;
    HatchPatternLine family;
};

class DensePatterns : public testing::TestWithParam<DenseRow>
{
};

TEST_P(DensePatterns, AreRefusedAtOnce)
{
    auto hatch = ruled({rectangle(0, 0, 1, 1)});
    hatch->edit().patternLines = {GetParam().family};
    const Pieces pieces(*hatch);
    EXPECT_EQ(pieces.status, eOutOfRange);
    EXPECT_EQ(pieces.size(), 0u);
    EXPECT_EQ(hatch->evaluateHatch(false), eOutOfRange);
}

constexpr double kNothing = 1e-300;
constexpr double kInfinity = std::numeric_limits<double>::infinity();

const DenseRow kDense[] = {
    {"narrowLines", {0.0, {0, 0}, {0, 5e-7}, {}}},
    {"hardlyAnySpacing", {0.0, {0, 0}, {0, kNothing}, {}}},
    {"shortDashes", {0.0, {0, 0}, {0, 1}, {5e-7, -5e-7}}},
    {"hardlyAnyDashes", {0.0, {0, 0}, {0, 1}, {kNothing, -kNothing}}},
    {"manyDots", {0.0, {0, 0}, {0, 1e-4}, {0, -1e-3}}},
    {"noNumber", {0.0, {0, std::nan("")}, {0, 1}, {}}},
    {"infinitelyFar", {0.0, {0, kInfinity}, {0, 1}, {}}},
};
INSTANTIATE_TEST_SUITE_P(Rows, DensePatterns, testing::ValuesIn(kDense),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(HatchEvaluation, EstimatesByTheLinesAcrossTheWholeBox)
{
    auto hatch = ruled({rectangle(0, 0, 1, 1)});
    EXPECT_EQ(hatch->evaluateHatch(true), eOk);
    hatch->edit().patternLines = {{0.0, {0, 0}, {0, 1e-7}, {}}};
    EXPECT_EQ(hatch->evaluateHatch(true), eOutOfRange);
    hatch->edit().patternLines = {{0.0, {0, 0}, {0, 1}, {1e-7}}};
    EXPECT_EQ(hatch->evaluateHatch(true), eOk) << "dashes are not looked at";
}

TEST(ExplodedPattern, OfLinesWithoutSpacingIsTheOneLine)
{
    auto hatch = ruled({rectangle(0, -1, 3, 1)});
    hatch->edit().patternLines = {{0.0, {0, 0.5}, {0, 0}, {}}};
    expectLines(*hatch, {{{0, 0.5, 0}, {3, 0.5, 0}}});
    hatch->edit().patternLines = {{0.0, {0, 2}, {1, 0}, {}}};
    expectLines(*hatch, {});
}

TEST(HatchPattern, IsSetByName)
{
    auto hatch = ruled({rectangle(0, 0, 1, 1)});
    hatch->edit().gradient = true;
    ASSERT_EQ(hatch->setPattern(HatchContent::kPreDefined, L"solid"), eOk);
    EXPECT_TRUE(hatch->isSolidFill());
    EXPECT_TRUE(hatch->isHatch());
    EXPECT_EQ(hatch->patternName(), L"solid");
    ASSERT_EQ(hatch->setPattern(HatchContent::kCustomDefined, L"LINE"), eOk);
    EXPECT_FALSE(hatch->isSolidFill());
    EXPECT_EQ(hatch->patternType(), HatchContent::kCustomDefined);
    EXPECT_EQ(Pieces(*hatch).size(), 8u) << "from 0 to 0.875; at 1 the area has ended";
}

TEST(HatchPattern, RefusesWhatItDoesNotKnow)
{
    auto hatch = ruled({rectangle(0, 0, 1, 1)});
    EXPECT_EQ(hatch->setPattern(HatchContent::kPreDefined, L"NOSUCH"), eKeyNotFound);
    EXPECT_EQ(hatch->setPattern(HatchContent::kPreDefined, nullptr), eInvalidInput);
    EXPECT_EQ(hatch->setPattern(3, L"SOLID"), eInvalidInput);
    EXPECT_EQ(hatch->setPattern(-1, L"SOLID"), eInvalidInput);
    EXPECT_EQ(hatch->setPatternScale(0), eInvalidInput);
    EXPECT_EQ(hatch->setPatternScale(std::nan("")), eInvalidInput);
    EXPECT_EQ(hatch->patternName(), L"RULED");
}

TEST(HatchPattern, OfTheUsersOwnIsMadeOfAngleAndSpacing)
{
    auto hatch = ruled({rectangle(0.5, 0.5, 2.5, 2.5)});
    hatch->edit().patternAngle = kPi / 2;
    hatch->edit().patternSpace = 1.0;
    hatch->edit().doubled = true;
    ASSERT_EQ(hatch->setPattern(HatchContent::kUserDefined, L"MINE"), eOk);
    expectLines(*hatch, {{{2, 0.5, 0}, {2, 2.5, 0}},
                         {{1, 0.5, 0}, {1, 2.5, 0}},
                         {{2.5, 2, 0}, {0.5, 2, 0}},
                         {{2.5, 1, 0}, {0.5, 1, 0}}});
}

TEST(HatchPattern, GrowsWithItsScaleAboutItsOrigin)
{
    auto hatch = ruled({rectangle(0, 0, 4, 10)});
    HatchContent& content = hatch->edit();
    content.origin = {0, 1};
    content.patternLines = {{0.0, {0, 2}, {0, 2}, {1, -1}}};
    content.patternScale = 2.0;
    ASSERT_EQ(hatch->setPatternScale(6.0), eOk);
    EXPECT_EQ(hatch->patternScale(), 6.0);
    // the base moves to 1 + 3 and the spacing to 6
    expectLines(*hatch, {{{0, 4, 0}, {3, 4, 0}}});
}

TEST(HatchCopy, TakesOverWhatIsShownAndStaysByItself)
{
    const auto hatch = hatchOf({rectangle(0, 0, 2, 2)});
    hatch->edit().lineweight = 50;
    hatch->edit().elevation = 3;
    KdDbHatch copy;
    ASSERT_EQ(copy.copyFrom(hatch.get()), eOk);
    hatch->edit().loops.clear();
    EXPECT_EQ(areaOf(copy), 4);
    EXPECT_EQ(copy.lineWeight(), 50);
    EXPECT_EQ(copy.elevation(), 3);
    EXPECT_EQ(copy.copyFrom(&copy), eOk);
    EXPECT_EQ(areaOf(copy), 4);
}

TEST(HatchCopy, RefusesWhatIsNoHatch)
{
    const KdDbCircle circle;
    KdDbHatch copy;
    EXPECT_EQ(copy.copyFrom(&circle), eNotThatKindOfClass);
    EXPECT_EQ(copy.copyFrom(nullptr), eNotThatKindOfClass);
}

} // namespace
