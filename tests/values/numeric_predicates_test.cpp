#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <values/compare.h>

#include "support.h"

namespace {

constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

using LinearPrecision = DrawingTest;

TEST_F(LinearPrecision, GivesOneDisplayedUnit)
{
    const double expected[] = {1.0, 0.1, 0.01, 0.001, 1.0e-4, 1.0e-5, 1.0e-6, 1.0e-7, 1.0e-8};
    for (int digits = 0; digits <= 8; ++digits) {
        setInteger(L"LUPREC", digits);
        EXPECT_EQ(CompareDynamicEpsilon(0.5), expected[digits]) << digits;
    }
}

TEST_F(LinearPrecision, FallsBackWhenItSaysMinusOne)
{
    setInteger(L"LUPREC", -1);
    EXPECT_EQ(CompareDynamicEpsilon(0.5), 0.5);
}

using WithoutDrawing = NoDrawingTest;

TEST_F(WithoutDrawing, TheToleranceIsTheFallback)
{
    EXPECT_EQ(CompareDynamicEpsilon(0.25), 0.25);
}

TEST(RealEqual, TakesDifferencesUpToTheTolerance)
{
    EXPECT_TRUE(RealEqual(2.25, 2.0, 0.25));
    EXPECT_TRUE(RealEqual(1.75, 2.0, 0.25));
    EXPECT_FALSE(RealEqual(2.26, 2.0, 0.25));
    EXPECT_FALSE(RealEqual(1.74, 2.0, 0.25));
    EXPECT_TRUE(RealEqual(-2.25, -2.0, 0.25));
    EXPECT_FALSE(RealEqual(2.0, -2.0, 0.25));
}

TEST(RealEqual, TestsAgainstZeroWhenTheSecondIsAsGoodAsZero)
{
    EXPECT_FALSE(RealEqual(1.5e-8, 0.9e-8, 1.0e-8));
    EXPECT_TRUE(RealEqual(0.9e-8, 1.5e-8, 1.0e-8));
    EXPECT_TRUE(RealEqual(-0.25, 0.25, 0.25));
    EXPECT_TRUE(RealEqual(0.25, 0.25, 0.25));
}

TEST(RealEqual, FindsANanEqualExceptToZero)
{
    EXPECT_TRUE(RealEqual(kNan, 2.0, 0.25));
    EXPECT_TRUE(RealEqual(2.0, kNan, 0.25));
    EXPECT_TRUE(RealEqual(kNan, kNan, 0.25));
    EXPECT_FALSE(RealEqual(kNan, 0.0, 0.25));
}

TEST(RealEqual, TellsInfinitiesFromNumbers)
{
    EXPECT_FALSE(RealEqual(kInfinity, 2.0, 0.25));
    EXPECT_FALSE(RealEqual(2.0, kInfinity, 0.25));
    EXPECT_FALSE(RealEqual(kInfinity, 0.0, 0.25));
}

TEST(KdadRealEqual, ComparesTheRatio)
{
    EXPECT_TRUE(kdadRealEqual(1000.0, 1000.5, 0.001));
    EXPECT_FALSE(kdadRealEqual(1000.0, 1002.0, 0.001));
    EXPECT_TRUE(kdadRealEqual(-1000.0, -1000.5, 0.001));
    EXPECT_FALSE(kdadRealEqual(-1000.0, 1000.0, 0.001));
}

TEST(KdadRealEqual, TestsAgainstZeroWhenTheSecondIsAsGoodAsZero)
{
    EXPECT_TRUE(kdadRealEqual(0.25, 0.125, 0.25));
    EXPECT_FALSE(kdadRealEqual(0.3, 0.25, 0.25));
}

TEST(KdadRealEqual, IsFalseForANan)
{
    EXPECT_FALSE(kdadRealEqual(kNan, 1.0, 0.25));
    EXPECT_FALSE(kdadRealEqual(1.0, kNan, 0.25));
    EXPECT_FALSE(kdadRealEqual(kNan, 0.0, 0.25));
}

TEST(KdadIsZero, ReachesUpToTheToleranceOnBothSides)
{
    EXPECT_TRUE(kdadIsZero(0.0, 0.25));
    EXPECT_TRUE(kdadIsZero(0.25, 0.25));
    EXPECT_TRUE(kdadIsZero(-0.25, 0.25));
    EXPECT_FALSE(kdadIsZero(0.26, 0.25));
    EXPECT_FALSE(kdadIsZero(-0.26, 0.25));
}

TEST(KdadIsZero, IsFalseForANan)
{
    EXPECT_FALSE(kdadIsZero(kNan, 0.25));
}

TEST(ValidateDouble, TakesZerosAndNormalNumbers)
{
    for (const double value :
         {0.0, -0.0, 1.0, -1.0, 2.2250738585072014e-308, 1.7976931348623157e308})
        EXPECT_TRUE(validateDouble(value)) << value;
}

TEST(ValidateDouble, RefusesSubnormalNumbersInfinitiesAndNan)
{
    for (const double value :
         {5.0e-324, -5.0e-324, 2.2250738585072009e-308, kInfinity, -kInfinity, kNan, -kNan})
        EXPECT_FALSE(validateDouble(value)) << value;
}

} // namespace
