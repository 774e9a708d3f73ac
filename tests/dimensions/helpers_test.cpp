// The operations that the provider of all dimensions offers beside the protocol.
#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

/// What the switches say, told in words of their own: feet and inches repeat every four values from
/// 1 on, below that the remainder is negative and has its low bits from two's complement.
bool expectedSuppression(int value, int mask)
{
    if ((mask & 3) != 0) {
        const int steps = value - 1;
        const int remainder = steps - 4 * (steps / 4);
        return (remainder & mask) > 0;
    }
    return (mask & 12) != 0 && (value & mask) > 0;
}

TEST(ZeroSuppression, FollowsItsBitsForAllValuesAndMasks)
{
    KdDbDimension_Extension provider;
    for (int value = -128; value <= 127; ++value)
        for (int mask = -128; mask <= 127; ++mask)
            ASSERT_EQ(provider.isSuppressed(static_cast<signed char>(value),
                                            static_cast<signed char>(mask)),
                      expectedSuppression(value, mask))
                << value << ' ' << mask;
}

struct SuppressionCase
{
    signed char value;
    const char* masks; ///< 1, 2, 4, 8: 1 for true
};

TEST(ZeroSuppression, HasTheseAnswersForLowCodes)
{
    const SuppressionCase rows[] = {{0, "1100"}, {1, "0000"}, {2, "1000"}, {3, "0100"},
                                    {4, "1110"}, {8, "1101"}, {12, "1111"}};
    KdDbDimension_Extension provider;
    for (const SuppressionCase& row : rows)
        for (int bit = 0; bit < 4; ++bit)
            EXPECT_EQ(provider.isSuppressed(row.value, static_cast<signed char>(1 << bit)),
                      row.masks[bit] == '1')
                << int{row.value} << ' ' << bit;
    EXPECT_FALSE(provider.isSuppressed(12, 0));
    EXPECT_FALSE(provider.isSuppressed(12, 16));
}

/// A chain of 16-bit integers behind a name.
ResbufChain pairs(const std::vector<short>& numbers)
{
    ResbufChain head(kdutNewRb(1001));
    head->resval.rstring = kdutNewString(L"NAME");
    resbuf* tail = head.get();
    for (const short number : numbers) {
        tail = tail->rbnext = kdutNewRb(1070);
        tail->resval.rint = number;
    }
    return head;
}

TEST(ExtendedDataOfDimensions, IsSearchedByKeysAlone)
{
    KdDbDimension_Extension provider;
    const ResbufChain list = pairs({392, 5, 5, 7, 9, 11});
    ASSERT_TRUE(provider.findDimXdataValue(list.get(), 5));
    EXPECT_EQ(provider.findDimXdataValue(list.get(), 5)->resval.rint, 7);
    EXPECT_EQ(provider.findDimXdataValue(list.get(), 392)->resval.rint, 5);
    EXPECT_EQ(provider.findDimXdataValue(list.get(), 9)->resval.rint, 11);
    EXPECT_EQ(provider.findDimXdataValue(list.get(), 7), nullptr);
}

TEST(ExtendedDataOfDimensions, MayEndAtAnyPlace)
{
    KdDbDimension_Extension provider;
    EXPECT_EQ(provider.findDimXdataValue(nullptr, 1), nullptr);
    EXPECT_EQ(provider.findDimXdataValue(pairs({}).get(), 1), nullptr);
    EXPECT_EQ(provider.findDimXdataValue(pairs({1}).get(), 1), nullptr); // a key without a value
    EXPECT_EQ(provider.findDimXdataValue(pairs({2, 1, 3}).get(), 1), nullptr);
}

/// The kind of the records is of no account.
TEST(ExtendedDataOfDimensions, IsSearchedByKeysOfAnyKind)
{
    KdDbDimension_Extension provider;
    for (const int kind : {70, 1040, 1071, 5003}) {
        const ResbufChain list = pairs({7, 5, 392, 9});
        resbuf* key = list->rbnext->rbnext->rbnext;
        key->restype = static_cast<short>(kind);
        key->rbnext->restype = key->restype;
        EXPECT_EQ(provider.findDimXdataValue(list.get(), 392), key->rbnext) << kind;
    }
}

TEST(ToleranceAlignment, IsThatBeforeSignsWithoutAStyleOrItsData)
{
    KdDbDimension_Extension provider;
    KdDbDimStyleTableRecord style;
    EXPECT_EQ(provider.GetDimStylePSV_DIMTALN(nullptr), 0);
    EXPECT_EQ(provider.GetDimStylePSV_DIMTALN(&style), 0);
    ResbufChain data = pairs({392, 1});
    kdutDelString(data->resval.rstring);
    data->resval.rstring = kdutNewString(L"ACAD_DSTYLE_DIMTALN");
    style.edit().extendedData = std::move(data);
    EXPECT_EQ(provider.GetDimStylePSV_DIMTALN(&style), 1);
}

class AlternateTexts : public DimensionTest
{
};

TEST_F(AlternateTexts, AreRefusedForNoDimension)
{
    KdDbDimension_Extension provider;
    ValueChain chain;
    EXPECT_FALSE(provider.getAltPrefix(nullptr, chain.head()));
    EXPECT_FALSE(provider.getAltSuffix(nullptr, chain.head()));
    EXPECT_THAT(provider_test::inWords(chain.head()), ElementsAre("5000 nothing"));
}

TEST_F(AlternateTexts, ComeWithATag)
{
    set(KdDbDimVar::dimapost, KdString(L"(<>)"));
    KdDbDimension_Extension provider;
    ValueChain prefix;
    ValueChain suffix;
    EXPECT_TRUE(provider.getAltPrefix(&dimension(DimensionKind::Radial), prefix.head()));
    EXPECT_TRUE(provider.getAltSuffix(&dimension(DimensionKind::Radial), suffix.head()));
    EXPECT_THAT(provider_test::inWords(prefix.head()), ElementsAre("5005 (", "280 0"));
    EXPECT_THAT(provider_test::inWords(suffix.head()), ElementsAre("5005 )", "280 0"));
}

} // namespace
