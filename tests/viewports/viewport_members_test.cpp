#include <numbers>

#include <gtest/gtest.h>

#include <entities/viewport.h>
#include <exchange/made_drawing.h>

namespace {

Groups withMore(Groups groups, const Groups& more)
{
    groups.insert(groups.end(), more.begin(), more.end());
    return groups;
}

const Groups kHead{{0, "VIEWPORT"}, {5, "B1"}, {67, "1"}, {8, "0"}};
const Groups kWindow{{10, "5"}, {20, "6"}, {30, "0"}, {40, "20"}, {41, "10"}, {68, "2"}, {69, "3"}};

struct Drawn
{
    explicit Drawn(const Groups& more, const char* version = "AC1018")
        : drawing(readGroups(::drawing(
              {header(version), section("ENTITIES", withMore(withMore(kHead, kWindow), more))}))),
          viewport(drawing.entity<KdDbViewport>(0, kPaperSpaceName))
    {
    }

    ReadDrawing drawing;
    const KdDbViewport* viewport;
};

TEST(ViewportMembers, AreRead)
{
    const Drawn drawn({{45, "50"}, {90, "819264"}, {71, "1"}, {170, "3"}});
    ASSERT_NE(drawn.viewport, nullptr);
    EXPECT_EQ(drawn.viewport->centerPoint(), (KdGePoint3d{5, 6, 0}));
    EXPECT_EQ(drawn.viewport->width(), 20);
    EXPECT_EQ(drawn.viewport->height(), 10);
    EXPECT_EQ(drawn.viewport->customScale(), 0.2);
    EXPECT_TRUE(drawn.viewport->isOn());
    EXPECT_FALSE(drawn.viewport->isLocked());
    EXPECT_TRUE(drawn.viewport->isUcsSavedWithViewport());
    EXPECT_EQ(drawn.viewport->shadePlot(), 3);
}

TEST(ViewportMembers, TellWhatIsSeenOfTheModel)
{
    const Drawn drawn({{12, "7"},
                       {22, "8"},
                       {16, "0"},
                       {26, "-3"},
                       {36, "4"},
                       {17, "100"},
                       {27, "200"},
                       {37, "5"},
                       {45, "50"},
                       {51, "90"},
                       {90, "32769"}});
    ASSERT_NE(drawn.viewport, nullptr);
    EXPECT_EQ(drawn.viewport->viewCenter(), (KdGePoint2d{7, 8}));
    EXPECT_EQ(drawn.viewport->viewDirection(), (KdGeVector3d{0, -3, 4}));
    EXPECT_EQ(drawn.viewport->viewTarget(), (KdGePoint3d{100, 200, 5}));
    EXPECT_EQ(drawn.viewport->viewHeight(), 50);
    EXPECT_DOUBLE_EQ(drawn.viewport->twistAngle(), std::numbers::pi / 2.0);
    EXPECT_TRUE(drawn.viewport->isPerspectiveOn());
    const Drawn plain({});
    EXPECT_EQ(plain.viewport->viewDirection(), (KdGeVector3d{0, 0, 1}));
    EXPECT_FALSE(plain.viewport->isPerspectiveOn());
}

TEST(ViewportMembers, NameTheLayersThatAreFrozenInIt)
{
    const Groups tables = section("TABLES", {{0, "TABLE"},
                                             {2, "LAYER"},
                                             {0, "LAYER"},
                                             {5, "21"},
                                             {2, "A"},
                                             {70, "0"},
                                             {0, "LAYER"},
                                             {5, "22"},
                                             {2, "B"},
                                             {70, "0"},
                                             {0, "ENDTAB"}});
    const Groups frozen =
        withMore(withMore(kHead, kWindow), {{331, "21"}, {341, "22"}, {331, "999"}, {331, "B1"}});
    const ReadDrawing drawn =
        readGroups(drawing({header("AC1018"), tables, section("ENTITIES", frozen)}));
    const auto* viewport = drawn.entity<KdDbViewport>(0, kPaperSpaceName);
    ASSERT_NE(viewport, nullptr);
    ASSERT_EQ(viewport->frozenLayers().size(),
              2U); // what is not there, or no layer, does not count
    EXPECT_EQ(viewport->frozenLayers()[0].handle(), 0x21U);
    EXPECT_EQ(viewport->frozenLayers()[1].handle(), 0x22U);
}

TEST(ViewportMembers, TellByTheFlagsIfItIsLockedOrOff)
{
    EXPECT_TRUE(Drawn({{90, "16384"}}).viewport->isLocked());
    EXPECT_FALSE(Drawn({{90, "131072"}}).viewport->isOn());
    EXPECT_FALSE(Drawn({{71, "0"}}).viewport->isUcsSavedWithViewport());
}

TEST(ViewportMembers, TakeLinesHiddenInPrintForTheirShadePlotWhereNoneIsGiven)
{
    EXPECT_EQ(Drawn({{90, "2048"}}, "AC1015").viewport->shadePlot(), 2);
    EXPECT_EQ(Drawn({{90, "2048"}, {170, "0"}}).viewport->shadePlot(), 0);
}

/// What drawings up to R14 attach.
Groups view(const char* hidden, const char* name = "MVIEW")
{
    return {{1001, "ACAD"}, {1000, name}, {1002, "{"},    {1070, "16"},  {1010, "0"},
            {1020, "0"},    {1030, "0"},  {1010, "0"},    {1020, "0"},   {1030, "1"},
            {1040, "0"},    {1040, "40"}, {1040, "7"},    {1040, "8"},   {1040, "50"},
            {1040, "0"},    {1040, "0"},  {1070, "0"},    {1070, "100"}, {1070, "1"},
            {1070, "1"},    {1070, "0"},  {1070, "0"},    {1070, "0"},   {1070, "0"},
            {1040, "0"},    {1040, "0"},  {1040, "0"},    {1040, "1"},   {1040, "1"},
            {1040, "1"},    {1040, "1"},  {1070, hidden}, {1002, "{"},   {1003, "FROZEN"},
            {1002, "}"},    {1002, "}"}};
}

class OldViewports : public testing::TestWithParam<const char*>
{
};

TEST_P(OldViewports, HaveTheirViewInTheExtendedData)
{
    const Drawn drawn(view("0"), GetParam());
    ASSERT_NE(drawn.viewport, nullptr);
    EXPECT_EQ(drawn.viewport->viewCenter(), (KdGePoint2d{7, 8}));
    EXPECT_EQ(drawn.viewport->viewDirection(), (KdGeVector3d{0, 0, 1}));
    EXPECT_EQ(drawn.viewport->customScale(), 0.25);
    EXPECT_EQ(drawn.viewport->standardScale(), KdDbViewport::k1_4);
    EXPECT_EQ(drawn.viewport->shadePlot(), 0);
    EXPECT_EQ(Drawn(view("1"), GetParam()).viewport->shadePlot(), 2);
    EXPECT_EQ(Drawn(view("0", "OTHER"), GetParam()).viewport->customScale(), 0);
    EXPECT_EQ(Drawn({}, GetParam()).viewport->customScale(), 0);
}
INSTANTIATE_TEST_SUITE_P(Versions, OldViewports, testing::Values("AC1009", "AC1012", "AC1014"),
                         [](const auto& row) { return std::string(row.param); });

TEST(OldViewport, IsOnByItsStatus)
{
    EXPECT_TRUE(Drawn(view("0"), "AC1009").viewport->isOn());
    Groups off = view("0");
    off.insert(off.begin(), {68, "0"});
    EXPECT_FALSE(Drawn(off, "AC1009").viewport->isOn());
}

TEST(ViewportMembers, PreferTheViewOfTheirOwnGroups)
{
    const Drawn drawn(withMore({{45, "50"}}, view("1")));
    EXPECT_EQ(drawn.viewport->customScale(), 0.2);
}

} // namespace
