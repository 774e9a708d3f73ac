#include <database/color.h>

#include <gtest/gtest.h>

namespace {

TEST(Color, IsByLayerAtFirst)
{
    const KdCmColor color;
    EXPECT_EQ(color.color(), 0xC0000000u);
    EXPECT_EQ(color.colorMethod(), KdCmColor::kByLayer);
    EXPECT_EQ(color.colorIndex(), KdCmColor::kIndexByLayer);
}

struct IndexRow
{
    const char* name;
    int index;
    KdCmColor::Method method;
    std::uint32_t word;
};

class ColorIndex : public testing::TestWithParam<IndexRow>
{
};

TEST_P(ColorIndex, SetsMethodAndWord)
{
    KdCmColor color;
    EXPECT_EQ(color.setColorIndex(GetParam().index), eOk);
    EXPECT_EQ(color.colorIndex(), GetParam().index);
    EXPECT_EQ(color.colorMethod(), GetParam().method);
    EXPECT_EQ(color.color(), GetParam().word);
}

INSTANTIATE_TEST_SUITE_P(All, ColorIndex,
                         testing::Values(IndexRow{"byBlock", 0, KdCmColor::kByBlock, 0xC1000000},
                                         IndexRow{"red", 1, KdCmColor::kByACI, 0xC3000001},
                                         IndexRow{"last", 255, KdCmColor::kByACI, 0xC30000FF},
                                         IndexRow{"byLayer", 256, KdCmColor::kByLayer, 0xC0000000}),
                         [](const auto& row) { return row.param.name; });

TEST(Color, RefusesOtherIndices)
{
    KdCmColor color(0xC3000005);
    for (const int wrong : {-1, 257, 1000}) {
        EXPECT_EQ(color.setColorIndex(wrong), eInvalidInput);
        EXPECT_EQ(color.color(), 0xC3000005u);
    }
}

TEST(Color, HoldsRedGreenAndBlue)
{
    KdCmColor color;
    color.setRGB(1, 128, 255);
    EXPECT_EQ(color.color(), 0xC20180FFu);
    EXPECT_EQ(color.colorMethod(), KdCmColor::kByColor);
    EXPECT_EQ(color.red(), 1);
    EXPECT_EQ(color.green(), 128);
    EXPECT_EQ(color.blue(), 255);
    EXPECT_EQ(color.colorIndex(), 0);
}

TEST(Color, DropsItsValueWithItsMethod)
{
    KdCmColor color(0xC2123456);
    EXPECT_EQ(color.setColorMethod(KdCmColor::kByACI), eOk);
    EXPECT_EQ(color.color(), 0xC3000007u);
    for (const KdCmColor::Method method :
         {KdCmColor::kByLayer, KdCmColor::kByBlock, KdCmColor::kByColor, KdCmColor::kNone}) {
        EXPECT_EQ(color.setColorMethod(method), eOk);
        EXPECT_EQ(color.color(), static_cast<std::uint32_t>(method) << 24);
    }
}

TEST(Color, RefusesNumbersThatAreNoMethod)
{
    KdCmColor color(0xC3000005);
    for (const int wrong : {0, 3, 0xC4, 0x1C3, -1}) {
        EXPECT_EQ(color.setColorMethod(wrong), eInvalidInput);
        EXPECT_EQ(color.color(), 0xC3000005u);
    }
}

TEST(Color, EqualsByItsWordAlone)
{
    KdCmColor named(0xC2123456);
    named.setNames(L"Sand", L"Book");
    EXPECT_EQ(named.colorName(), L"Sand");
    EXPECT_EQ(named.bookName(), L"Book");
    EXPECT_TRUE(named == KdCmColor(0xC2123456));
    EXPECT_FALSE(named == KdCmColor(0xC2123457));
    EXPECT_FALSE(KdCmColor(0xC3000001) == KdCmColor(0xC2000001));
}

struct TransparencyRow
{
    const char* name;
    std::uint32_t word;
    KdCmTransparency::Method method;
    int alpha;
};

class TransparencyWord : public testing::TestWithParam<TransparencyRow>
{
};

TEST_P(TransparencyWord, GivesMethodAndAlpha)
{
    const KdCmTransparency transparency = KdCmTransparency::fromWord(GetParam().word);
    EXPECT_EQ(transparency.method(), GetParam().method);
    EXPECT_EQ(transparency.alpha(), GetParam().alpha);
}

INSTANTIATE_TEST_SUITE_P(
    All, TransparencyWord,
    testing::Values(
        TransparencyRow{"byLayer", 0, KdCmTransparency::kByLayer, 255},
        TransparencyRow{"byBlock", 0x01000000, KdCmTransparency::kByBlock, 255},
        TransparencyRow{"clear", 0x02000000, KdCmTransparency::kByAlpha, 0},
        TransparencyRow{"half", 0x0200007F, KdCmTransparency::kByAlpha, 127},
        TransparencyRow{"opaque", 0x020000FF, KdCmTransparency::kByAlpha, 255},
        TransparencyRow{"alphaTooLarge", 0x02000100, KdCmTransparency::kErrorValue, 255},
        TransparencyRow{"byBlockWithAlpha", 0x01000001, KdCmTransparency::kErrorValue, 255},
        TransparencyRow{"alphaWithoutMethod", 0x7F, KdCmTransparency::kErrorValue, 255},
        TransparencyRow{"unknownMethod", 0x03000000, KdCmTransparency::kErrorValue, 255}),
    [](const auto& row) { return row.param.name; });

TEST(Transparency, IsComparedByMethodAndAlpha)
{
    KdCmTransparency one;
    KdCmTransparency two;
    EXPECT_EQ(one, two);
    one.setAlpha(10);
    EXPECT_EQ(one.method(), KdCmTransparency::kByAlpha);
    EXPECT_FALSE(one == two);
    two.setAlpha(10);
    EXPECT_EQ(one, two);
    two.setMethod(KdCmTransparency::kByBlock);
    EXPECT_FALSE(one == two);
}

} // namespace
