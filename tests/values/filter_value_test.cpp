#include <values/filter_value.h>

#include <cmath>
#include <numbers>

#include <editor/system_variables.h>

#include "support.h"

namespace {

/// A filter value that is freed at the end of its scope.
class Read
{
  public:
    Read(int kind, const wchar_t* text, int axis = 0) : m_value(readFilterValue(kind, axis, text))
    {
    }
    ~Read() { ResBuf::relRb(m_value.record); }
    Read(const Read&) = delete;
    Read& operator=(const Read&) = delete;

    FilterText outcome() const { return m_value.text; }
    int valueType() const { return m_value.valueType; }
    bool hasRecord() const { return m_value.record != nullptr; }
    int restype() const { return m_value.record->restype(); }
    const ResBuf& record() const { return *m_value.record; }
    std::wstring text() const { return std::wstring(m_value.record->getString().view()); }

  private:
    FilterValue m_value;
};

class FilterValues : public DrawingTest
{
  protected:
    ~FilterValues() override
    {
        setLineweightUnits(1);
        EXPECT_EQ(ResBuf::recordsInUse(), m_recordsBefore);
    }
    static void setLineweightUnits(short units)
    {
        resbuf value{};
        value.restype = RTSHORT;
        value.resval.rint = units;
        EXPECT_EQ(kdedSetVar(L"LWUNITS", &value), RTNORM);
    }

  private:
    CurrentResources m_texts{kEnglishTexts};
    long long m_recordsBefore = ResBuf::recordsInUse();
};

TEST_F(FilterValues, OfRealsAreDistances)
{
    for (const int kind : {ResBuf::kReal, ResBuf::kLinetypeScale}) {
        const Read read(kind, L"2.5");
        ASSERT_EQ(read.outcome(), FilterText::Read);
        EXPECT_EQ(read.restype(), kind);
        EXPECT_EQ(read.record().getDouble(), 2.5);
        EXPECT_EQ(read.valueType(), ResBuf::kReal);
    }
}

TEST_F(FilterValues, OfAnglesAreRadiansComparedAsReals)
{
    const Read read(ResBuf::kAngle, L"90");
    ASSERT_EQ(read.outcome(), FilterText::Read);
    EXPECT_EQ(read.restype(), ResBuf::kAngle);
    EXPECT_NEAR(read.record().getDouble(), std::numbers::pi / 2, 1e-12);
    EXPECT_EQ(read.valueType(), ResBuf::kReal);
}

TEST_F(FilterValues, OfNumbersThatCannotBeReadStayOneAndSaySo)
{
    for (const int kind : {ResBuf::kReal, ResBuf::kLinetypeScale, ResBuf::kAngle}) {
        const Read read(kind, L"rubbish");
        EXPECT_EQ(read.outcome(), FilterText::Unreadable);
        ASSERT_TRUE(read.hasRecord());
        EXPECT_EQ(read.record().getDouble(), 1.0);
    }
    const Read point(ResBuf::kPoint3d, L"rubbish", 2);
    EXPECT_EQ(point.outcome(), FilterText::Unreadable);
    ASSERT_TRUE(point.hasRecord());
    EXPECT_EQ(point.record().getPoint3d().y, 1.0);
}

TEST_F(FilterValues, OfFlatPointsAreOneCoordinate)
{
    const Read x(ResBuf::kPoint2d, L"3", 1);
    ASSERT_EQ(x.outcome(), FilterText::Read);
    EXPECT_EQ(x.restype(), ResBuf::kPoint2d);
    EXPECT_EQ(x.valueType(), ResBuf::kPoint2d);
    EXPECT_EQ(x.record().getPoint2d().x, 3.0);
    EXPECT_EQ(x.record().getPoint2d().y, 0.0);
    const Read y(ResBuf::kPoint2d, L"3", 2);
    EXPECT_EQ(y.record().getPoint2d().x, 0.0);
    EXPECT_EQ(y.record().getPoint2d().y, 3.0);
}

TEST_F(FilterValues, OfPointsAreOneCoordinate)
{
    const double expected[3][3] = {{4, 0, 0}, {0, 4, 0}, {0, 0, 4}};
    for (int axis = 1; axis <= 3; ++axis) {
        const Read read(ResBuf::kPoint3d, L"4", axis);
        ASSERT_EQ(read.outcome(), FilterText::Read);
        EXPECT_EQ(read.restype(), ResBuf::kPoint3d);
        EXPECT_EQ(read.valueType(), ResBuf::kPoint3d);
        const KdGePoint3d& point = read.record().getPoint3d();
        EXPECT_EQ(point.x, expected[axis - 1][0]);
        EXPECT_EQ(point.y, expected[axis - 1][1]);
        EXPECT_EQ(point.z, expected[axis - 1][2]);
    }
}

TEST_F(FilterValues, OfPointsNeedAnAxisThatThePointHas)
{
    const struct
    {
        int kind;
        int axis;
    } rows[] = {{ResBuf::kPoint2d, 0}, {ResBuf::kPoint2d, 3}, {ResBuf::kPoint2d, -1},
                {ResBuf::kPoint3d, 0}, {ResBuf::kPoint3d, 4}, {ResBuf::kPoint3d, -1}};
    for (const auto& row : rows) {
        const Read read(row.kind, L"4", row.axis);
        EXPECT_EQ(read.outcome(), FilterText::Unreadable);
        EXPECT_FALSE(read.hasRecord());
    }
}

TEST_F(FilterValues, OfIntegersFitTheirKind)
{
    const Read small(ResBuf::kInt8, L"300");
    EXPECT_EQ(small.valueType(), ResBuf::kInt8);
    EXPECT_EQ(small.record().getInt8(), 44); // cut to 8 bits
    const Read medium(ResBuf::kInt16, L"-7");
    EXPECT_EQ(medium.valueType(), ResBuf::kInt16);
    EXPECT_EQ(medium.record().getInt16(), -7);
    const Read large(ResBuf::kInt32, L"70000");
    EXPECT_EQ(large.valueType(), ResBuf::kInt32);
    EXPECT_EQ(large.record().getInt32(), 70000);
}

TEST_F(FilterValues, OfIntegersLeaveNothingOver)
{
    for (const int kind : {ResBuf::kInt8, ResBuf::kInt16, ResBuf::kInt32}) {
        for (const wchar_t* text : {L"12a", L"1.5", L"12 ", L"a", L" "}) {
            const Read read(kind, text);
            EXPECT_EQ(read.outcome(), FilterText::NotANumber);
            EXPECT_FALSE(read.hasRecord());
        }
    }
}

TEST_F(FilterValues, OfSwitchesAreTrueForThatWordAlone)
{
    const Read yes(ResBuf::kBool, L"true");
    EXPECT_EQ(yes.valueType(), ResBuf::kBool);
    EXPECT_TRUE(yes.record().getBool());
    const Read no(ResBuf::kBool, L"false");
    EXPECT_EQ(no.outcome(), FilterText::Read);
    EXPECT_FALSE(no.record().getBool());
    for (const wchar_t* text : {L"True", L"1", L"yes"}) {
        const Read other(ResBuf::kBool, text);
        ASSERT_EQ(other.outcome(), FilterText::Unreadable);
        EXPECT_FALSE(other.record().getBool());
    }
}

TEST_F(FilterValues, OfTransparencyAreCapitals)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* stored;
    } rows[] = {
        {L"bylayer", L"BYLAYER"}, {L"ByBlock", L"BYBLOCK"}, {L"49", L"49"}, {L"half", L"HALF"}};
    for (const auto& row : rows) {
        const Read read(ResBuf::kTransparencyText, row.text);
        const bool isHalf = KdString(row.text) == L"half";
        EXPECT_EQ(read.outcome(), isHalf ? FilterText::Unreadable : FilterText::Read);
        EXPECT_EQ(read.restype(), ResBuf::kTransparencyText);
        EXPECT_EQ(read.valueType(), ResBuf::kTransparencyText);
        EXPECT_EQ(read.text(), row.stored);
    }
}

TEST_F(FilterValues, OfTextsAreTheTextAsItIs)
{
    for (const wchar_t* text : {L"Pipe 7", L" ", L""}) {
        const Read read(ResBuf::kString, text);
        ASSERT_EQ(read.outcome(), FilterText::Read);
        EXPECT_EQ(read.restype(), ResBuf::kString);
        EXPECT_EQ(read.valueType(), ResBuf::kString);
        EXPECT_EQ(read.text(), text);
    }
}

TEST_F(FilterValues, OfPlotStylesAreComparedAsTexts)
{
    const Read choice(ResBuf::kPlotStyleChoice, L"Normal");
    EXPECT_EQ(choice.restype(), ResBuf::kString);
    EXPECT_EQ(choice.valueType(), ResBuf::kString);
    const Read named(ResBuf::kPlotStyleName, L"DOT");
    EXPECT_EQ(named.restype(), ResBuf::kPlotStyleName);
    EXPECT_EQ(named.valueType(), ResBuf::kString);
    EXPECT_EQ(named.text(), L"DOT");
}

TEST_F(FilterValues, OfLayersTakeTheSpellingOfTheDrawing)
{
    m_drawing.findOrAddRecord<KdDbLayerTable>(L"Pipes");
    const Read known(ResBuf::kLayerName, L"PIPES");
    EXPECT_EQ(known.restype(), ResBuf::kLayerName);
    EXPECT_EQ(known.valueType(), ResBuf::kString);
    EXPECT_EQ(known.text(), L"Pipes");
    EXPECT_EQ(Read(ResBuf::kLayerName, L"unknown").text(), L"unknown");
    EXPECT_EQ(Read(ResBuf::kLayerName, L"").text(), L"");
}

TEST_F(FilterValues, OfLinetypesTakeTheSpellingOfTheDrawing)
{
    const Read known(ResBuf::kLinetypeName, L"CONTINUOUS");
    EXPECT_EQ(known.restype(), ResBuf::kLinetypeName);
    EXPECT_EQ(known.valueType(), ResBuf::kString);
    EXPECT_EQ(known.text(), L"Continuous");
    EXPECT_EQ(Read(ResBuf::kLinetypeName, L"unknown").text(), L"unknown");
}

TEST_F(FilterValues, OfLayersStayAsTheyAreWithoutADrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(Read(ResBuf::kLayerName, L"pipes").text(), L"pipes");
    kddbHostApplicationServices()->setWorkingDatabase(&m_drawing);
}

TEST_F(FilterValues, OfLineweightsBecomeTheTextOfTheValue)
{
    setLineweightUnits(1);
    const struct
    {
        const wchar_t* text;
        const wchar_t* stored;
    } rows[] = {
        {L"bylayer", L"ByLayer"}, {L"BYBLOCK", L"ByBlock"}, {L"default", L"Default"},
        {L"0.25", L"0.25 mm"},    {L".5", L"0.50 mm"},      {L"2", L"2.00 mm"},
        {L"0.25 mm", L"0.25 mm"}, {L"0.5mm", L"0.50 mm"},   {L" 0.35 ", L"0.35 mm"},
    };
    for (const auto& row : rows) {
        const Read read(ResBuf::kLineweightName, row.text);
        EXPECT_EQ(read.restype(), ResBuf::kLineweightName);
        EXPECT_EQ(read.valueType(), ResBuf::kString);
        EXPECT_EQ(read.text(), row.stored);
    }
}

TEST_F(FilterValues, OfLineweightsInMillimetresBecomeInchesWhileThoseAreTheUnits)
{
    setLineweightUnits(0);
    EXPECT_EQ(Read(ResBuf::kLineweightName, L"0.25").text(), L"0.010\"");
}

TEST_F(FilterValues, OfLineweightsThatAreNoLengthStayAsTheyAre)
{
    for (const wchar_t* text : {L"thick", L"inf", L"nan", L"1e300", L"99999999999999999999",
                                L"-0.25", L"1.2.3", L".", L"mm", L"0x10", L"0.010\""})
        EXPECT_EQ(Read(ResBuf::kLineweightName, text).text(), text);
}

TEST_F(FilterValues, OfColorsAreIndexesWordsOrShares)
{
    const struct
    {
        const wchar_t* text;
        std::uint32_t word;
    } rows[] = {{L"1", 0xC3000001},       {L"255", 0xC30000FF},   {L"red", 0xC3000001},
                {L"ByLayer", 0xC0000000}, {L"256", 0xC0000000},   {L"byblock", 0xC1000000},
                {L"0", 0xC1000000},       {L"1,2,3", 0xC2010203}, {L"255,0,255", 0xC2FF00FF}};
    for (const auto& row : rows) {
        const Read read(ResBuf::kColor, row.text);
        ASSERT_EQ(read.outcome(), FilterText::Read) << KdString(row.text).length();
        EXPECT_EQ(read.restype(), ResBuf::kColor);
        EXPECT_EQ(read.valueType(), ResBuf::kColor);
        EXPECT_EQ(read.record().getColor().color(), row.word);
    }
}

TEST_F(FilterValues, OfColorsAreRefusedWhereTheTextIsNone)
{
    for (const wchar_t* text : {L"muddy", L"257", L"65537", L"256,0,0", L"1,2", L"1,2,3,4",
                                L"-1,0,0", L"1,2,3x", L"007", L"12a", L"red1"}) {
        const Read read(ResBuf::kColor, text);
        EXPECT_EQ(read.outcome(), FilterText::Unreadable);
        EXPECT_FALSE(read.hasRecord());
    }
}

TEST_F(FilterValues, OfNoTransparencyIsRefusedAndStillARecord)
{
    const Read read(ResBuf::kTransparencyText, L"");
    EXPECT_EQ(read.outcome(), FilterText::Unreadable);
    ASSERT_TRUE(read.hasRecord()); // the dialog goes on with it
    EXPECT_EQ(read.record().getString(), L"");
}

class EmptyFilterText : public FilterValues, public testing::WithParamInterface<int>
{
};

TEST_P(EmptyFilterText, IsNothingToCompareWith)
{
    const Read read(GetParam(), L"", 1);
    EXPECT_EQ(read.outcome(), FilterText::Empty);
    EXPECT_FALSE(read.hasRecord());
}

INSTANTIATE_TEST_SUITE_P(EachKind, EmptyFilterText,
                         testing::Values(5001, 48, 5004, 5002, 5009, 280, 5003, 5010, 290, 380, 440,
                                         370, 6, 5011));

TEST_F(FilterValues, OfKindsWithoutValuesAreRefused)
{
    for (const int kind : {5000, 61, 0, -1}) {
        const Read read(kind, L"1");
        EXPECT_EQ(read.outcome(), FilterText::Unreadable);
        EXPECT_FALSE(read.hasRecord());
    }
}

TEST_F(FilterValues, ThatCanNotBeReadCountAsOneOrAsFalse)
{
    for (const int kind :
         {ResBuf::kReal, ResBuf::kLinetypeScale, ResBuf::kPoint2d, ResBuf::kPoint3d})
        EXPECT_EQ(fallbackText(kind), KdString(L"1")) << kind;
    EXPECT_EQ(fallbackText(ResBuf::kAngle), KdString(L"1r")) << "a radian in any unit";
    EXPECT_EQ(fallbackText(ResBuf::kBool), KdString(L"false"));
    for (const int kind : {ResBuf::kInt8, ResBuf::kInt16, ResBuf::kInt32, ResBuf::kString,
                           ResBuf::kColor, ResBuf::kNone})
        EXPECT_EQ(fallbackText(kind), std::nullopt) << kind;
}

TEST_F(FilterValues, SayInTheirFallbackWhatIsComparedInTheirPlace)
{
    for (const int kind : {ResBuf::kReal, ResBuf::kLinetypeScale, ResBuf::kAngle}) {
        const Read unread(kind, L"no number");
        ASSERT_EQ(unread.outcome(), FilterText::Unreadable);
        const KdString fallback = fallbackText(kind).value_or(KdString());
        EXPECT_EQ(Read(kind, fallback.kwszPtr()).record().getDouble(), unread.record().getDouble())
            << kind;
    }
}

} // namespace
