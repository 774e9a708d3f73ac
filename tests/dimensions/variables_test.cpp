// The variables of dimensions that their providers pass on as they are.
#include "support.h"

using namespace dimension_test;
using testing::ElementsAre;

namespace {

/// A variable, its value, and the answer to a key that shows it, in its typed form.
struct VariableCase
{
    const char* name;
    KdDbDimVar variable;
    KdDbDimValue value;
    const wchar_t* key;
    const char* answer;
    const char* display = nullptr; ///< the answer for display, where it differs
};

std::int32_t number(int value)
{
    return value;
}

using Var = KdDbDimVar;

// clang-format off
const VariableCase kVariableCases[] = {
    {"arrowSize", Var::dimasz, 2.5, L"Lines & Arrows:Arrow size", "5001 2.5"},
    {"lineLineweight", Var::dimlwd, number(25), L"Lines & Arrows:Dim line lineweight", "370 0.25 mm", "5005 0.25 mm"},
    {"lineColor", Var::dimclrd, kddbDimColor(3), L"Lines & Arrows:Dim line color", "5011 color 3"},
    {"textColor", Var::dimclrt, kddbDimColor(4), L"Text:Text color", "5011 color 4"},
    {"textHeight", Var::dimtxt, 3.25, L"Text:Text height", "5001 3.25"},
    {"textOffset", Var::dimgap, -0.75, L"Text:Text offset", "5001 -0.75"},
    {"textOutside", Var::dimtoh, number(0), L"Text:Text outside align", "290 false"},
    {"textInside", Var::dimtih, number(1), L"Text:Text inside align", "290 true"},
    {"lineForced", Var::dimtofl, number(1), L"Fit:Dim line forced", "290 true"},
    {"scale", Var::dimscale, 50.0, L"Fit:Dim scale overall", "5001 50"},
    {"fitInside", Var::dimtix, number(1), L"Fit:Text inside", "290 true"},
    {"leadingZeros", Var::dimzin, number(4), L"Primary units:Suppress leading zeros", "290 true"},
    {"trailingZeros", Var::dimzin, number(8), L"Primary units:Suppress trailing zeros", "290 true"},
    {"noTrailingZeros", Var::dimzin, number(4), L"Primary units:Suppress trailing zeros", "290 false"},
    {"lowerLimit", Var::dimtm, 0.125, L"Tolerances:Tolerance limit lower", "5001 0.125"},
    {"upperLimit", Var::dimtp, 0.375, L"Tolerances:Tolerance limit upper", "5001 0.375"},
    {"tolerancePrecision", Var::dimtdec, number(6), L"Tolerances:Tolerance precision", "5003 6"},
    {"toleranceLeadingZeros", Var::dimtzin, number(4), L"Tolerances:Tolerance suppress leading zeros", "290 true"},
    {"toleranceTrailingZeros", Var::dimtzin, number(12), L"Tolerances:Tolerance suppress trailing zeros", "290 true"},
    {"toleranceHeight", Var::dimtfac, 0.5, L"Tolerances:Tolerance text height", "5001 0.5"},
    {"centerMarkSize", Var::dimcen, -0.09, L"Lines & Arrows:Center mark size", "5001 -0.09"},
    {"secondLineAsOnly", Var::dimsd2, number(1), L"Lines & Arrows:Dim line", "290 true"},
    {"extensionLineweight", Var::dimlwe, number(-1), L"Lines & Arrows:Ext line lineweight", "370 ByLayer", "5005 ByLayer"},
    {"extensionWeight", Var::dimlwe, number(-3), L"Lines & Arrows:Ext line weight", "370 Default", "5005 Default"},
    {"hideFirst", Var::dimsd1, number(1), L"Lines & Arrows:Hide Dim line 1", "290 true"},
    {"hideSecond", Var::dimsd2, number(1), L"Lines & Arrows:Hide Dim line 2", "290 true"},
    {"onlyExtension", Var::dimse1, number(1), L"Lines & Arrows:Ext line", "290 true"},
    {"lineExtension", Var::dimdle, 0.4, L"Lines & Arrows:Dim line ext", "5001 0.4"},
    {"maskFirst", Var::dimse1, number(1), L"Lines & Arrows:Mask Ext line 1", "290 true"},
    {"maskSecond", Var::dimse2, number(1), L"Lines & Arrows:Mask Ext line 2", "290 true"},
    {"fixedIsNeverRead", Var::dimfxlon, number(1), L"Lines & Arrows:Ext line fixed", "290 false"},
    {"fixedLengthIsNeverRead", Var::dimfxl, 7.0, L"Lines & Arrows:Ext line fixed length", "5001 0"},
    {"extensionColor", Var::dimclre, kddbDimColor(5), L"Lines & Arrows:Ext line color", "5011 color 5"},
    {"extensionBeyond", Var::dimexe, 1.25, L"Lines & Arrows:Ext line ext", "5001 1.25"},
    {"extensionOffset", Var::dimexo, 0.625, L"Lines & Arrows:Ext line offset", "5001 0.625"},
    {"jogAngle", Var::dimjogang, 0.5, L"Lines & Arrows:Jog angle", "5001 0.5"},
    {"jogAngleAsAngle", Var::dimjogang, 0.5, L"Geometry:Jog Angle", "5004 0.5"},
    {"lineInside", Var::dimsoxd, number(1), L"Fit:Dim line inside", "290 true"},
    {"anglePrecision", Var::dimadec, number(3), L"Primary units:Angle precision", "5003 3"},
    {"roundoff", Var::dimrnd, 0.25, L"Primary units:Dim roundoff", "5001 0.25"},
    {"linearScale", Var::dimlfac, 2.0, L"Primary units:Dim scale linear", "5001 2"},
    {"zeroFeet", Var::dimzin, number(3), L"Primary units:Suppress zero feet", "290 true"},
    {"zeroInches", Var::dimzin, number(2), L"Primary units:Suppress zero inches", "290 true"},
    {"noZeroInches", Var::dimzin, number(3), L"Primary units:Suppress zero inches", "290 false"},
    {"precision", Var::dimdec, number(5), L"Primary units:precision", "5003 5"},
    {"subUnitsFactor", Var::dimmzf, 10.0, L"Primary units:Sub-units factor", "5001 10"},
    {"alternatePrecision", Var::dimaltd, number(7), L"Alternate units:Alt precision", "5003 7"},
    {"alternateRound", Var::dimaltrnd, 0.5, L"Alternate units:Alt round", "5001 0.5"},
    {"alternateFactor", Var::dimaltf, 0.03937, L"Alternate units:Alt scale factor", "5001 0.03937"},
    {"alternateLeading", Var::dimaltz, number(4), L"Alternate units:Alt suppress leading zeros", "290 true"},
    {"alternateTrailing", Var::dimaltz, number(8), L"Alternate units:Alt suppress trailing zeros", "290 true"},
    {"alternateFeet", Var::dimaltz, number(3), L"Alternate units:Alt suppress zero feet", "290 true"},
    {"alternateInches", Var::dimaltz, number(2), L"Alternate units:Alt suppress zero inches", "290 true"},
    {"alternateSubUnitsFactor", Var::dimaltmzf, 12.0, L"Alternate units:Alt sub-units factor", "5001 12"},
    {"toleranceFeet", Var::dimtzin, number(3), L"Tolerances:Tolerance suppress zero feet", "290 true"},
    {"toleranceInches", Var::dimtzin, number(2), L"Tolerances:Tolerance suppress zero inches", "290 true"},
    {"alternateTolerancePrecision", Var::dimalttd, number(1), L"Tolerances:Alt tolerance precision", "5003 1"},
    {"alternateToleranceLeading", Var::dimalttz, number(4), L"Tolerances:Alt tolerance suppress leading zeros", "290 true"},
    {"alternateToleranceTrailing", Var::dimalttz, number(8), L"Tolerances:Alt tolerance suppress trailing zeros", "290 true"},
    {"alternateToleranceFeet", Var::dimalttz, number(3), L"Tolerances:Alt tolerance suppress zero feet", "290 true"},
    {"alternateToleranceInches", Var::dimalttz, number(2), L"Tolerances:Alt tolerance suppress zero inches", "290 true"},
};
// clang-format on

class VariableOfDimension : public DimensionTest, public testing::WithParamInterface<VariableCase>
{
};

TEST_P(VariableOfDimension, IsAnsweredByEveryKindThatListsIt)
{
    const VariableCase& row = GetParam();
    set(row.variable, row.value);
    int kinds = 0;
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.name);
        const bool listed = isListed(kind.number, row.key);
        kinds += listed;
        const Answer plain = answer(kind.number, row.key);
        EXPECT_EQ(plain.status, listed ? 1 : 0);
        EXPECT_THAT(plain.chain, ElementsAre(listed ? row.answer : "5000 nothing"));
        EXPECT_EQ(answer(kind.number, row.key, false, true).chain, plain.chain);
        const char* display = row.display ? row.display : row.answer;
        EXPECT_THAT(answer(kind.number, row.key, true).chain,
                    ElementsAre(listed ? display : "5000 nothing"));
    }
    EXPECT_GT(kinds, 0);
}

INSTANTIATE_TEST_SUITE_P(, VariableOfDimension, testing::ValuesIn(kVariableCases),
                         [](const auto& row) { return std::string(row.param.name); });

} // namespace
