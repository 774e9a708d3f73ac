#include <values/operators.h>

#include <optional>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <plugin/res_buf.h>

using testing::ElementsAre;

namespace {

using enum Operators;

class OperatorsOfNames : public testing::TestWithParam<int>
{
};
TEST_P(OperatorsOfNames, AreEqualityAndSelectAll)
{
    EXPECT_THAT(operatorsOf(GetParam()), ElementsAre(Equals, NotEqual, SelectAll));
}
INSTANTIATE_TEST_SUITE_P(EachKind, OperatorsOfNames, testing::Values(5000, 8, 6, 380, 370));

class OperatorsOfNumbers : public testing::TestWithParam<int>
{
};
TEST_P(OperatorsOfNumbers, AreEqualityOrderAndSelectAll)
{
    EXPECT_THAT(operatorsOf(GetParam()),
                ElementsAre(Equals, NotEqual, GreaterThan, LessThan, SelectAll));
}
INSTANTIATE_TEST_SUITE_P(EachKind, OperatorsOfNumbers,
                         testing::Values(5011, 48, 5001, 5004, 280, 5003, 5010, 5002, 5009, 441));

class OperatorsOfOtherKinds : public testing::TestWithParam<int>
{
};
TEST_P(OperatorsOfOtherKinds, AreThoseOfAnEmptyRecord)
{
    EXPECT_THAT(operatorsOf(GetParam()), ElementsAre(Equals, NotEqual, SelectAll));
}
INSTANTIATE_TEST_SUITE_P(EachKind, OperatorsOfOtherKinds, testing::Values(290, 440, 0, -1, 61));

TEST(OperatorsOfTexts, AreEqualitySelectAllAndWildcards)
{
    EXPECT_THAT(operatorsOf(ResBuf::kString),
                ElementsAre(Equals, NotEqual, SelectAll, WildcardMatch));
}

TEST(OperatorTexts, AreThoseThatComparisonsKnow)
{
    EXPECT_STREQ(operatorText(Equals), L"=");
    EXPECT_STREQ(operatorText(NotEqual), L"<>");
    EXPECT_STREQ(operatorText(GreaterThan), L">");
    EXPECT_STREQ(operatorText(LessThan), L"<");
    EXPECT_STREQ(operatorText(WildcardMatch), L"*");
}

TEST(OperatorTexts, OfSelectAllIsEmpty)
{
    EXPECT_STREQ(operatorText(SelectAll), L"");
}

TEST(OperatorTexts, AreReadBack)
{
    for (const Operators op : {Equals, NotEqual, GreaterThan, LessThan, SelectAll, WildcardMatch})
        EXPECT_EQ(operatorOf(operatorText(op)), op);
}

TEST(OperatorTexts, AreReadWholeOrNotAtAll)
{
    for (const wchar_t* text : {L"==", L"< ", L"<=", L"!", L"= Equals"})
        EXPECT_EQ(operatorOf(text), std::nullopt);
}

TEST(OperatorNumbers, AreThoseOfTheDialogsList)
{
    EXPECT_EQ(static_cast<int>(Equals), 0);
    EXPECT_EQ(static_cast<int>(NotEqual), 1);
    EXPECT_EQ(static_cast<int>(GreaterThan), 2);
    EXPECT_EQ(static_cast<int>(LessThan), 3);
    EXPECT_EQ(static_cast<int>(SelectAll), 4);
    EXPECT_EQ(static_cast<int>(WildcardMatch), 5);
}

} // namespace
