#include <providers/viewport_provider.h>

#include <providers/support.h>

namespace {

using namespace provider_test;
using Filler = KdDbViewport_Extension::StandardScaleFiller;
using Type = KdDbViewport::StandardScaleType;

struct ScaleName
{
    const wchar_t* name;
    int type;
};

constexpr ScaleName kNames[] = {
    {L"100:1", 18},        {L"10:1", 17},
    {L"1:1", 2},           {L"1:10", 7},
    {L"1:100", 13},        {L"1/128\"= 1'", 19},
    {L"1:16", 8},          {L"1/16\"= 1'", 22},
    {L"1:2", 3},           {L"1:20", 9},
    {L"1/2\" = 1'", 28},   {L"1:30", 10},
    {L"1/32\"= 1'", 21},   {L"1:4", 4},
    {L"1:40", 11},         {L"1/4\" = 1'", 26},
    {L"1:50", 12},         {L"1/64\"= 1'", 20},
    {L"1:8", 6},           {L"1/8\" = 1'", 24},
    {L"1' = 1'", 34},      {L"1\" = 1'", 30},
    {L"2:1", 14},          {L"3/16\"= 1'", 25},
    {L"3/32\"= 1'", 23},   {L"3/4\" = 1'", 29},
    {L"3/8\" = 1'", 27},   {L"3\" = 1'", 32},
    {L"4:1", 15},          {L"6\" = 1'", 33},
    {L"8:1", 16},          {L"Scale is not a standard scale", 1},
    {L"Scaled to Fit", 0},
};

class StandardScaleFiller : public ProviderTest
{
  protected:
    Filler filler;
    KdDbViewport viewport;
};

TEST_F(StandardScaleFiller, WalksThroughAllNamesInOrder)
{
    KdString name;
    for (int round = 0; round < 2; ++round) {
        for (const ScaleName& row : kNames) {
            ASSERT_EQ(filler.getScaleName(name), 1);
            EXPECT_EQ(name, row.name);
        }
        name = L"untouched";
        EXPECT_EQ(filler.getScaleName(name), 0);
        EXPECT_EQ(filler.getScaleName(name), 0);
        EXPECT_EQ(name, L"untouched");
        filler.resetListName();
    }
}

TEST_F(StandardScaleFiller, FindsNamesAndTypes)
{
    for (const ScaleName& row : kNames) {
        KdString name;
        filler.findScaleNameByType(static_cast<Type>(row.type), name);
        EXPECT_EQ(name, row.name);
        Type type = KdDbViewport::k1_5;
        filler.findScaleTypeByName(type, row.name);
        EXPECT_EQ(type, row.type);
    }
}

TEST_F(StandardScaleFiller, ChangesNothingWithoutALine)
{
    for (const Type number : {KdDbViewport::k1_5, KdDbViewport::k1and1_2in_1ft}) {
        KdString name = L"untouched";
        filler.findScaleNameByType(number, name);
        EXPECT_EQ(name, L"untouched");
    }
    Type type = KdDbViewport::k1_5;
    filler.findScaleTypeByName(type, L"1:5");
    filler.findScaleTypeByName(type, L"scaled to fit");
    filler.findScaleTypeByName(type, L"1/2\"= 1'");
    EXPECT_EQ(type, KdDbViewport::k1_5);
}

TEST_F(StandardScaleFiller, KnowsTwoModes)
{
    Type type = KdDbViewport::k1_1;
    KdString name = L"2:1";
    for (const int mode : {2, -1}) {
        filler.FillScaleByInternalTable(mode, type, name);
        EXPECT_EQ(type, KdDbViewport::k1_1);
        EXPECT_EQ(name, L"2:1");
    }
    filler.FillScaleByInternalTable(1, type, name);
    EXPECT_EQ(type, KdDbViewport::k2_1);
    type = KdDbViewport::k4_1;
    filler.FillScaleByInternalTable(0, type, name);
    EXPECT_EQ(name, L"4:1");
}

TEST_F(StandardScaleFiller, LeavesARecordAloneForANullViewport)
{
    ValueChain value;
    EXPECT_EQ(filler.fillSTypeGetProps(nullptr, value.head()), 0);
    EXPECT_EQ(value.head()->restype(), ResBuf::kNone);
    EXPECT_EQ(filler.sTypeSetProps(nullptr, value.head()), 0);
}

TEST_F(StandardScaleFiller, SetsTheScaleByItsName)
{
    viewport.edit().height = 10;
    ValueChain value;
    value.head()->setRestype(ResBuf::kString);
    value.head()->setString(L"1:50");
    EXPECT_EQ(filler.sTypeSetProps(&viewport, value.head()), 1);
    EXPECT_DOUBLE_EQ(viewport.customScale(), 0.02);
    value.head()->setString(L"1:51");
    EXPECT_EQ(filler.sTypeSetProps(&viewport, value.head()), 1);
    EXPECT_DOUBLE_EQ(viewport.customScale(), 0.02);
}

TEST_F(StandardScaleFiller, GivesTheNameOfAViewportsScaleAndAllNamesBehindIt)
{
    viewport.edit().height = 10;
    viewport.edit().viewHeight = 20;
    KdString skipped;
    filler.getScaleName(skipped);
    ValueChain value;
    EXPECT_EQ(filler.fillSTypeGetProps(&viewport, value.head()), 1);
    const std::vector<std::string> words = inWords(value.head());
    ASSERT_EQ(words.size(), 34u);
    EXPECT_EQ(words[0], "5005 1:2");
    EXPECT_EQ(words[1], "5005 100:1");
    EXPECT_EQ(words[33], "5005 Scaled to Fit");
}

} // namespace
