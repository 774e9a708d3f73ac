#include <database/color_palette.h>
#include <database/database.h>
#include <database/layer_filters.h>
#include <database/reserved_strings.h>

#include <gtest/gtest.h>

namespace {

struct PaletteRow
{
    const char* name;
    int index;
    std::uint32_t rgb;
};

class Palette : public testing::TestWithParam<PaletteRow>
{
};

TEST_P(Palette, HasTheColorOfTheIndex)
{
    EXPECT_EQ(kdcmPaletteRgb(GetParam().index), GetParam().rgb);
}

const PaletteRow kRows[] = {
    {"red", 1, 0xFF0000},
    {"yellow", 2, 0xFFFF00},
    {"foreground", 7, 0xFFFFFF},
    {"pureRed", 10, 0xFF0000},
    {"lightRed", 11, 0xFF7F7F},
    {"darkRed", 12, 0xA50000},
    {"orange", 30, 0xFF7F00},
    {"pureYellow", 50, 0xFFFF00},
    {"pureGreen", 90, 0x00FF00},
    {"pureCyan", 130, 0x00FFFF},
    {"pureBlue", 170, 0x0000FF},
    {"pureMagenta", 210, 0xFF00FF},
    {"darkestBlue", 178, 0x000026},
    {"darkGrey", 250, 0x333333},
    {"brightGrey", 255, 0xFFFFFF},
    {"byBlock", 0, 0},
    {"byLayer", 256, 0},
    {"negative", -1, 0},
};
INSTANTIATE_TEST_SUITE_P(Rows, Palette, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ReservedStrings, AreTheThreeWordsOfLineweights)
{
    EXPECT_STREQ(kddbGetReservedString(0, false), L"ByLayer");
    EXPECT_STREQ(kddbGetReservedString(1, false), L"ByBlock");
    EXPECT_STREQ(kddbGetReservedString(7, true), L"Default");
    EXPECT_STREQ(kddbGetReservedString(2, false), L"");
}

TEST(LayerFilters, HaveOneThatShowsAllLayers)
{
    const KdDbDatabase drawing;
    const KdLyLayerFilter* root = nullptr;
    const KdLyLayerFilter* current = nullptr;
    ASSERT_TRUE(kdlyGetLayerFilterManager(&drawing));
    EXPECT_EQ(kdlyGetLayerFilterManager(&drawing)->getFilters(root, current), eOk);
    EXPECT_EQ(root, current);
    EXPECT_EQ(root->name(), L"All");
    EXPECT_EQ(kdlyGetLayerFilterManager(nullptr), nullptr);
}

} // namespace
