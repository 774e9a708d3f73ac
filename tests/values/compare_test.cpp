#include <values/compare.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/color.h>

#include "support.h"

namespace {

struct ChainDeleter
{
    void operator()(ResBuf* chain) const { ResBuf::relRb(chain); }
};
using Chain = std::unique_ptr<ResBuf, ChainDeleter>;

Chain text(int restype, const wchar_t* value)
{
    return Chain(ResBuf::newRb(restype, value));
}

Chain number(int restype, double value)
{
    Chain record(ResBuf::newRb(restype));
    record->setDouble(value);
    record->setInt32(static_cast<int>(value));
    record->setInt16(static_cast<short>(value));
    record->setInt8(static_cast<signed char>(value));
    record->setBool(value != 0.0);
    return record;
}

Chain color(std::uint32_t word)
{
    Chain record(ResBuf::newRb(ResBuf::kColor));
    record->setColor(KdCmColor(word));
    return record;
}

Chain points(int restype, const std::vector<KdGePoint3d>& coordinates)
{
    ResBuf head;
    ResBuf* tail = &head;
    for (const KdGePoint3d& point : coordinates) {
        tail = tail->setNext(ResBuf::newRb(restype));
        tail->setPoint2d({point.x, point.y});
        tail->setPoint3d(point);
    }
    return Chain(head.next());
}

constexpr const wchar_t* kOperators[] = {L"=", L"<>", L">", L"<", L"*"};

/// Linear precision 4, so that the tolerance of reals is 0.0001.
class ComparePropAtPrecision4 : public DrawingTest
{
  protected:
    ComparePropAtPrecision4() { setInteger(L"LUPREC", 4); }

    static bool compare(const Chain& value, const wchar_t* how, const Chain& filter, int valueType,
                        int axis = 0)
    {
        PropertyParameters parameters;
        parameters.operatorText = how;
        parameters.valueType = valueType;
        parameters.axis = axis;
        return CompareProp(value.get(), filter.get(), parameters);
    }

    /// The operators that the value satisfies, parted by blanks.
    static std::wstring satisfied(const Chain& value, const Chain& filter, int valueType,
                                  const std::vector<const wchar_t*>& operators, int axis = 0)
    {
        std::wstring list;
        for (const wchar_t* how : operators)
            if (compare(value, how, filter, valueType, axis))
                list += (list.empty() ? L"" : L" ") + std::wstring(how);
        return list;
    }

    /// A mistake of the caller: stops a debug build, and is false otherwise.
    static void expectRefusal(const Chain& value, const wchar_t* how, const Chain& filter,
                              int valueType, int axis = 0)
    {
        [[maybe_unused]] bool outcome = true;
        EXPECT_DEBUG_DEATH(outcome = compare(value, how, filter, valueType, axis),
                           "offer this operator|along an axis");
#ifdef NDEBUG
        EXPECT_FALSE(outcome);
#endif
    }
};

const std::vector<const wchar_t*> kOrder = {L"=", L"<>", L">", L"<"};
const std::vector<const wchar_t*> kEquality = {L"=", L"<>"};
const std::vector<const wchar_t*> kAll = {L"=", L"<>", L">", L"<", L"*"};

TEST_F(ComparePropAtPrecision4, TakesAnythingWithoutAnOperator)
{
    EXPECT_TRUE(compare(nullptr, L"", nullptr, ResBuf::kReal));
    EXPECT_TRUE(compare(nullptr, L"", nullptr, ResBuf::kNone));
    EXPECT_TRUE(
        compare(number(ResBuf::kReal, 1.0), L"", number(ResBuf::kReal, 2.0), ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, RefusesANullValue)
{
    for (const wchar_t* how : kOperators)
        EXPECT_FALSE(compare(nullptr, how, number(ResBuf::kReal, 0.0), ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, RefusesANullFilter)
{
    for (const wchar_t* how : kOperators)
        EXPECT_FALSE(compare(number(ResBuf::kReal, 0.0), how, nullptr, ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, KnowsNoComparisonForKindsThatTheDialogFolds)
{
    const int kinds[] = {
        ResBuf::kLayerName, ResBuf::kLinetypeScale, ResBuf::kNone, ResBuf::kPlotStyleChoice, 0, 62};
    for (const int kind : kinds)
        for (const wchar_t* how : kOperators)
            EXPECT_FALSE(
                compare(text(ResBuf::kLayerName, L"0"), how, text(ResBuf::kLayerName, L"0"), kind))
                << kind;
}

struct RealCase
{
    const char* name;
    int valueType;
    int restype;
    double value;
    double filter;
    const wchar_t* satisfied;
};

class CompareReals : public ComparePropAtPrecision4, public testing::WithParamInterface<RealCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, CompareReals, testing::Values(
    RealCase{"same", ResBuf::kReal, ResBuf::kReal, 2.0, 2.0, L"="},
    RealCase{"withinTheTolerance", ResBuf::kReal, ResBuf::kReal, 2.00005, 2.0, L"="},
    RealCase{"above", ResBuf::kReal, ResBuf::kReal, 2.0002, 2.0, L"<> >"},
    RealCase{"below", ResBuf::kReal, ResBuf::kReal, 1.9998, 2.0, L"<> <"},
    RealCase{"filterAsGoodAsZero", ResBuf::kReal, ResBuf::kReal, 0.00012, 0.00005, L"<>"},
    RealCase{"bothAsGoodAsZero", ResBuf::kReal, ResBuf::kReal, -0.0001, 0.0001, L"= <"},
    RealCase{"angle", ResBuf::kAngle, ResBuf::kAngle, 3.2, 3.1, L"<> >"},
    RealCase{"angleAsReal", ResBuf::kReal, ResBuf::kAngle, 3.1, 3.1, L"="},
    RealCase{"linetypeScaleAsReal", ResBuf::kReal, ResBuf::kLinetypeScale, 0.5, 1.0, L"<> <"},
    RealCase{"missingValueReadsAsZero", ResBuf::kReal, ResBuf::kNone, 0.0, 0.0, L"="}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(CompareReals, SatisfyTheOperatorsListed)
{
    const RealCase& row = GetParam();
    EXPECT_EQ(satisfied(number(row.restype, row.value), number(ResBuf::kReal, row.filter),
                        row.valueType, kOrder),
              row.satisfied);
}

TEST_F(ComparePropAtPrecision4, FollowsTheLinearPrecisionFromOneComparisonToTheNext)
{
    const Chain value = number(ResBuf::kReal, 2.9);
    const Chain filter = number(ResBuf::kReal, 2.0);
    setInteger(L"LUPREC", 0);
    EXPECT_TRUE(compare(value, L"=", filter, ResBuf::kReal));
    setInteger(L"LUPREC", 8);
    EXPECT_FALSE(compare(value, L"=", filter, ResBuf::kReal));
    EXPECT_FALSE(compare(number(ResBuf::kReal, 2.00000002), L"=", filter, ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, UsesASmallToleranceWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const Chain filter = number(ResBuf::kReal, 2.0);
    EXPECT_TRUE(compare(number(ResBuf::kReal, 2.000000005), L"=", filter, ResBuf::kReal));
    EXPECT_FALSE(compare(number(ResBuf::kReal, 2.00000002), L"=", filter, ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, TakesAGivenToleranceForTheLengthOfItsScope)
{
    const Chain value = number(ResBuf::kReal, 2.4);
    const Chain filter = number(ResBuf::kReal, 2.0);
    {
        const ScopedTolerance wide(0.5);
        EXPECT_TRUE(compare(value, L"=", filter, ResBuf::kReal));
        {
            const ScopedTolerance none(0.0);
            EXPECT_FALSE(compare(value, L"=", filter, ResBuf::kReal));
            EXPECT_EQ(CompareDynamicEpsilon(1.0), 0.0);
        }
        EXPECT_TRUE(compare(value, L"=", filter, ResBuf::kReal));
    }
    EXPECT_FALSE(compare(value, L"=", filter, ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, FindsANanEqualToEverythingButZero)
{
    const Chain nan = number(ResBuf::kReal, 0.0);
    nan->setDouble(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(satisfied(nan, number(ResBuf::kReal, 2.0), ResBuf::kReal, kOrder), L"=");
    EXPECT_EQ(satisfied(nan, number(ResBuf::kReal, 0.0), ResBuf::kReal, kOrder), L"<>");
}

struct IntegerCase
{
    const char* name;
    int kind;
    double value;
    double filter;
    const wchar_t* satisfied;
};

class CompareIntegers : public ComparePropAtPrecision4,
                        public testing::WithParamInterface<IntegerCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, CompareIntegers, testing::Values(
    IntegerCase{"int16Equal", ResBuf::kInt16, 7, 7, L"="},
    IntegerCase{"int16Above", ResBuf::kInt16, 8, 7, L"<> >"},
    IntegerCase{"int16Negative", ResBuf::kInt16, -1, 1, L"<> <"},
    IntegerCase{"int32Equal", ResBuf::kInt32, 70000, 70000, L"="},
    IntegerCase{"int32Above", ResBuf::kInt32, 70001, 70000, L"<> >"},
    IntegerCase{"int32Negative", ResBuf::kInt32, -70000, 70000, L"<> <"},
    IntegerCase{"int8Equal", ResBuf::kInt8, 5, 5, L"="},
    IntegerCase{"int8Above", ResBuf::kInt8, 5, -5, L"<> >"},
    IntegerCase{"int8Negative", ResBuf::kInt8, -1, 1, L"<> <"}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(CompareIntegers, SatisfyTheOperatorsListed)
{
    const auto& [name, kind, value, filter, expected] = GetParam();
    EXPECT_EQ(satisfied(number(kind, value), number(kind, filter), kind, kOrder), expected);
}

TEST_F(ComparePropAtPrecision4, ComparesBoolsForEqualityAlone)
{
    const Chain yes = number(ResBuf::kBool, 1);
    const Chain no = number(ResBuf::kBool, 0);
    EXPECT_EQ(satisfied(yes, yes, ResBuf::kBool, kEquality), L"=");
    EXPECT_EQ(satisfied(no, no, ResBuf::kBool, kEquality), L"=");
    EXPECT_EQ(satisfied(yes, no, ResBuf::kBool, kEquality), L"<>");
    EXPECT_EQ(satisfied(no, yes, ResBuf::kBool, kEquality), L"<>");
}

TEST_F(ComparePropAtPrecision4, ReadsAShortAsABool)
{
    const Chain yes = number(ResBuf::kBool, 1);
    EXPECT_TRUE(compare(number(ResBuf::kInt16, 7), L"=", yes, ResBuf::kBool));
    EXPECT_FALSE(compare(number(ResBuf::kInt16, 0), L"=", yes, ResBuf::kBool));
}

TEST_F(ComparePropAtPrecision4, ComparesColorsAsUnsignedWords)
{
    EXPECT_EQ(satisfied(color(0xC3000001), color(0xC3000001), ResBuf::kColor, kOrder), L"=");
    EXPECT_EQ(satisfied(color(0xC3000002), color(0xC3000001), ResBuf::kColor, kOrder), L"<> >");
    EXPECT_EQ(satisfied(color(0x00000001), color(0xC3000001), ResBuf::kColor, kOrder), L"<> <");
}

TEST_F(ComparePropAtPrecision4, TakesARecordOfAnotherKindForADefaultColor)
{
    EXPECT_TRUE(
        compare(number(ResBuf::kReal, 1), L"=", color(KdCmColor().color()), ResBuf::kColor));
}

class CompareTexts : public ComparePropAtPrecision4, public testing::WithParamInterface<int>
{
};

INSTANTIATE_TEST_SUITE_P(Kinds, CompareTexts,
                         testing::Values(ResBuf::kString, ResBuf::kLinetypeName,
                                         ResBuf::kLineweightName, ResBuf::kPlotStyleName),
                         testing::PrintToStringParamName());

TEST_P(CompareTexts, ComparesExactlyAndByPattern)
{
    const Chain filter = text(ResBuf::kString, L"Layer1");
    const std::vector<const wchar_t*> operators = {L"=", L"<>", L"*"};
    EXPECT_EQ(satisfied(text(ResBuf::kLayerName, L"Layer1"), filter, GetParam(), operators),
              L"= *");
    EXPECT_EQ(satisfied(text(ResBuf::kLayerName, L"layer1"), filter, GetParam(), operators), L"<>");
    EXPECT_EQ(satisfied(text(ResBuf::kLayerName, L"Layer12"), filter, GetParam(), operators),
              L"<>");
}

TEST_F(ComparePropAtPrecision4, TakesThePatternFromTheFilter)
{
    const Chain pattern = text(ResBuf::kString, L"PIPE*,*VALVE");
    EXPECT_TRUE(compare(text(ResBuf::kString, L"PIPES-2"), L"*", pattern, ResBuf::kString));
    EXPECT_TRUE(compare(text(ResBuf::kString, L"A-VALVE"), L"*", pattern, ResBuf::kString));
    EXPECT_FALSE(compare(text(ResBuf::kString, L"pipes"), L"*", pattern, ResBuf::kString));
    EXPECT_FALSE(compare(pattern, L"*", text(ResBuf::kString, L"PIPES-2"), ResBuf::kString));
}

TEST_F(ComparePropAtPrecision4, ReadsAMissingTextAsEmpty)
{
    const Chain missing = number(ResBuf::kNone, 0);
    EXPECT_TRUE(compare(missing, L"<>", text(ResBuf::kString, L"x"), ResBuf::kString));
    EXPECT_FALSE(compare(missing, L"<>", text(ResBuf::kString, L""), ResBuf::kString));
}

TEST_F(ComparePropAtPrecision4, FindsNothingButEmptyTextsUnderTheCodeWithoutRecords)
{
    EXPECT_TRUE(compare(text(61, L"a"), L"=", text(61, L"b"), 61));
    EXPECT_FALSE(compare(text(61, L"a"), L"<>", text(61, L"b"), 61));
}

TEST_F(ComparePropAtPrecision4, LooksAtTheHeadsAlone)
{
    Chain value = text(ResBuf::kString, L"a");
    value->setNext(ResBuf::newRb(ResBuf::kString, L"b"));
    EXPECT_FALSE(compare(value, L"=", text(ResBuf::kString, L"b"), ResBuf::kString));
    EXPECT_FALSE(compare(text(ResBuf::kString, L"b"), L"=", value, ResBuf::kString));
}

struct PointCase
{
    const char* name;
    int kind;
    int axis;
    std::vector<KdGePoint3d> points;
    KdGePoint3d filter;
    const wchar_t* satisfied;
};

class ComparePoints : public ComparePropAtPrecision4, public testing::WithParamInterface<PointCase>
{
};

const std::vector<KdGePoint3d> kTwoPoints = {{0, 0, 0}, {5, 0, 0}};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, ComparePoints, testing::Values(
    PointCase{"oneOfTwo", ResBuf::kPoint3d, 1, kTwoPoints, {5, 0, 0}, L"= <"},
    PointCase{"between", ResBuf::kPoint3d, 1, kTwoPoints, {1, 0, 0}, L"<> > <"},
    PointCase{"beyond", ResBuf::kPoint3d, 1, kTwoPoints, {7, 0, 0}, L"<> <"},
    PointCase{"before", ResBuf::kPoint3d, 1, kTwoPoints, {-1, 0, 0}, L"<> >"},
    PointCase{"alongY", ResBuf::kPoint3d, 2, {{1, 2, 3}}, {9, 2, 9}, L"="},
    PointCase{"alongZ", ResBuf::kPoint3d, 3, {{1, 2, 3}}, {9, 9, 3}, L"="},
    PointCase{"flatAlongX", ResBuf::kPoint2d, 1, {{1, 2, 0}}, {1, 9, 0}, L"="},
    PointCase{"flatAlongY", ResBuf::kPoint2d, 2, {{1, 2, 0}}, {9, 1, 0}, L"<> >"},
    PointCase{"flatChain", ResBuf::kPoint2d, 1, kTwoPoints, {1, 0, 0}, L"<> > <"},
    PointCase{"withinTheTolerance", ResBuf::kPoint3d, 1, {{2.00005, 0, 0}}, {2, 0, 0}, L"="},
    PointCase{"tinyFilterIsNoZero", ResBuf::kPoint3d, 1, {{0.00012, 0, 0}}, {0.00005, 0, 0}, L"="}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(ComparePoints, SatisfyTheOperatorsListed)
{
    const PointCase& row = GetParam();
    EXPECT_EQ(satisfied(points(row.kind, row.points), points(row.kind, {row.filter}), row.kind,
                        kAll, row.axis),
              row.satisfied);
}

TEST_F(ComparePropAtPrecision4, FindsPointsUnequalAtExactlyTheTolerance)
{
    setInteger(L"LUPREC", 0);
    const Chain filter = points(ResBuf::kPoint3d, {{2, 0, 0}});
    EXPECT_EQ(satisfied(points(ResBuf::kPoint3d, {{3, 0, 0}}), filter, ResBuf::kPoint3d, kAll, 1),
              L"<>");
    EXPECT_TRUE(compare(number(ResBuf::kReal, 3), L"=", number(ResBuf::kReal, 2), ResBuf::kReal));
}

TEST_F(ComparePropAtPrecision4, ReadsARecordOfAnotherKindAmongPointsAsTheOrigin)
{
    const Chain chain = points(ResBuf::kPoint3d, {{5, 5, 5}});
    chain->setNext(ResBuf::newRb(ResBuf::kInt8));
    const Chain origin = points(ResBuf::kPoint3d, {{0, 0, 0}});
    EXPECT_TRUE(compare(chain, L"=", origin, ResBuf::kPoint3d, 3));
}

TEST_F(ComparePropAtPrecision4, LooksAtTheHeadOfAFilterOfPoints)
{
    const Chain value = points(ResBuf::kPoint3d, {{5, 0, 0}});
    EXPECT_FALSE(compare(value, L"=", points(ResBuf::kPoint3d, kTwoPoints), ResBuf::kPoint3d, 1));
}

TEST_F(ComparePropAtPrecision4, NeverFindsANanPointEqual)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Chain value = points(ResBuf::kPoint3d, {{nan, 0, 0}});
    EXPECT_EQ(satisfied(value, points(ResBuf::kPoint3d, {{1, 0, 0}}), ResBuf::kPoint3d, kAll, 1),
              L"<>");
}

TEST_F(ComparePropAtPrecision4, FindsNoPointUnderAnUnknownOperator)
{
    const Chain point = points(ResBuf::kPoint3d, {{1, 0, 0}});
    EXPECT_FALSE(compare(point, L">=", point, ResBuf::kPoint3d, 1));
}

struct TransparencyCase
{
    const char* name;
    const wchar_t* value;
    const wchar_t* filter;
    const wchar_t* satisfied;
};

class CompareTransparencies : public ComparePropAtPrecision4,
                              public testing::WithParamInterface<TransparencyCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, CompareTransparencies, testing::Values(
    TransparencyCase{"sameNumber", L"40", L"40", L"= *"},
    TransparencyCase{"sameNumberWrittenOtherwise", L"40", L" 040%", L"= *"},
    TransparencyCase{"above", L"40", L"30", L"<> > *"},
    TransparencyCase{"below", L"30", L"40", L"<> < *"},
    TransparencyCase{"noNumberReadsAsZero", L"0", L"x", L"= *"},
    TransparencyCase{"byBlock", L"ByBlock", L"BYBLOCK", L"= *"},
    TransparencyCase{"byLayer", L"ByLayer", L"BYLAYER", L"= *"},
    TransparencyCase{"oneWordEach", L"ByLayer", L"BYBLOCK", L"<> *"},
    TransparencyCase{"otherWordEach", L"ByBlock", L"BYLAYER", L"<> *"},
    TransparencyCase{"numberAgainstWord", L"40", L"BYLAYER", L"<> *"},
    TransparencyCase{"wordAgainstNumber", L"ByBlock", L"40", L"<> *"},
    // Only the value is upper-cased, so such a filter is a number, 0, to a value in digits.
    TransparencyCase{"filterNotInCapitals", L"60", L"ByLayer", L"<> > *"},
    TransparencyCase{"zeroAgainstFilterNotInCapitals", L"0", L"ByLayer", L"= *"},
    TransparencyCase{"wordAgainstFilterNotInCapitals", L"ByLayer", L"ByLayer", L"= <> *"},
    TransparencyCase{"missingValue", L"", L"BYLAYER", L"<> *"}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(CompareTransparencies, SatisfyTheOperatorsListed)
{
    const int kind = ResBuf::kTransparencyText;
    EXPECT_EQ(satisfied(text(kind, GetParam().value), text(kind, GetParam().filter), kind, kAll),
              GetParam().satisfied);
}

TEST_F(ComparePropAtPrecision4, FindsNoTransparencyUnderAnUnknownOperator)
{
    const Chain record = text(ResBuf::kTransparencyText, L"40");
    EXPECT_FALSE(compare(record, L"==", record, ResBuf::kTransparencyText));
}

struct RefusedCase
{
    const char* name;
    int valueType;
    const wchar_t* how;
};

class RefusedOperator : public ComparePropAtPrecision4,
                        public testing::WithParamInterface<RefusedCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Cases, RefusedOperator, testing::Values(
    RefusedCase{"wildcardOnReal", ResBuf::kReal, L"*"},
    RefusedCase{"wildcardOnAngle", ResBuf::kAngle, L"*"},
    RefusedCase{"wildcardOnInt16", ResBuf::kInt16, L"*"},
    RefusedCase{"wildcardOnInt32", ResBuf::kInt32, L"*"},
    RefusedCase{"wildcardOnInt8", ResBuf::kInt8, L"*"},
    RefusedCase{"wildcardOnBool", ResBuf::kBool, L"*"},
    RefusedCase{"greaterOnBool", ResBuf::kBool, L">"},
    RefusedCase{"lessOnBool", ResBuf::kBool, L"<"},
    RefusedCase{"wildcardOnColor", ResBuf::kColor, L"*"},
    RefusedCase{"greaterOnString", ResBuf::kString, L">"},
    RefusedCase{"lessOnLinetypeName", ResBuf::kLinetypeName, L"<"},
    RefusedCase{"unknownOperatorOnReal", ResBuf::kReal, L"!="}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(RefusedOperator, IsAMistakeOfTheCallerAndSatisfiedByNothing)
{
    const Chain record(ResBuf::newRb(GetParam().valueType));
    expectRefusal(record, GetParam().how, record, GetParam().valueType);
}

TEST_F(ComparePropAtPrecision4, RefusesAPointWithoutAnAxis)
{
    const Chain point = points(ResBuf::kPoint3d, {{1, 2, 3}});
    expectRefusal(point, L"=", point, ResBuf::kPoint3d, 0);
    expectRefusal(point, L"=", point, ResBuf::kPoint3d, 4);
    expectRefusal(point, L"=", point, ResBuf::kPoint2d, 3);
    expectRefusal(point, L"=", point, ResBuf::kPoint2d, -1);
}

TEST(PropertyParameters, BeginWithoutKeyOperatorAndAxis)
{
    const PropertyParameters parameters;
    EXPECT_TRUE(parameters.propertyKey.isEmpty());
    EXPECT_TRUE(parameters.operatorText.isEmpty());
    EXPECT_EQ(parameters.valueType, 5000);
    EXPECT_EQ(parameters.axis, 0);
}

} // namespace
