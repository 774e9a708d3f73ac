#include <gtest/gtest.h>

#include <database/header_variables.h>

#include <algorithm>
#include <cwchar>
#include <cwctype>
#include <numbers>
#include <set>
#include <string>

namespace {

std::wstring lowered(std::wstring text)
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [](wchar_t c) { return static_cast<wchar_t>(std::towlower(wint_t(c))); });
    return text;
}

TEST(HeaderVariables, AreFoundByTheirNames)
{
    int index = 0;
    for (const KdDbHeaderVariable& variable : KdDbHeaderVariables::all()) {
        EXPECT_EQ(KdDbHeaderVariables::indexOf(variable.name), index) << variable.name;
        EXPECT_EQ(KdDbHeaderVariables::indexOf(lowered(variable.name)), index) << variable.name;
        ++index;
    }
}

TEST(HeaderVariables, StandInTheTableOnceInUpperCase)
{
    std::set<std::wstring> names;
    for (const KdDbHeaderVariable& variable : KdDbHeaderVariables::all()) {
        EXPECT_TRUE(names.insert(variable.name).second) << variable.name;
        EXPECT_TRUE(std::none_of(variable.name, variable.name + std::wcslen(variable.name),
                                 [](wchar_t c) { return c >= L'a' && c <= L'z'; }))
            << variable.name;
    }
}

TEST(HeaderVariables, AreNotFoundByOtherNames)
{
    const std::wstring_view names[] = {L"",
                                       L"LUPRE",
                                       L"LUPRECX",
                                       L"$LUPREC",
                                       L" LUPREC",
                                       L"HANDSEED",
                                       L"ACADVER",
                                       L"LUPREC\u0130",
                                       std::wstring_view(L"LUPREC\0", 7),
                                       std::wstring_view(L"LUPREC\0X", 8)};
    for (const std::wstring_view name : names)
        EXPECT_EQ(KdDbHeaderVariables::indexOf(name), -1) << std::wstring(name);
}

TEST(HeaderVariables, HaveAKindThatTheirGroupCanHold)
{
    for (const KdDbHeaderVariable& variable : KdDbHeaderVariables::all()) {
        const int group = variable.group;
        std::size_t kind = 0;
        const bool isHandle = (group >= 320 && group < 370) || group == 390;
        if (group < 10 || isHandle)
            kind = 2;
        else if (group == 10)
            kind = 3;
        else if (group == 40 || group == 50)
            kind = 1;
        EXPECT_EQ(variable.initial.index(), kind) << variable.name;
    }
}

struct Row
{
    const char* label;
    const wchar_t* name;
    int group;
    KdDbHeaderValue initial;
};

class HeaderVariableRows : public testing::TestWithParam<Row>
{
};

TEST_P(HeaderVariableRows, HaveTheirGroupAndInitialValue)
{
    const Row& row = GetParam();
    const int index = KdDbHeaderVariables::indexOf(row.name);
    ASSERT_GE(index, 0);
    EXPECT_EQ(KdDbHeaderVariables::all()[static_cast<std::size_t>(index)].group, row.group);
    EXPECT_TRUE(KdDbHeaderVariables().value(index) == row.initial);
}

// clang-format off
const Row kRows[] = {
    {"linearUnits", L"LUNITS", 70, 2},
    {"linearPrecision", L"LUPREC", 70, 4},
    {"angularUnits", L"AUNITS", 70, 0},
    {"angularPrecision", L"AUPREC", 70, 0},
    {"angleBase", L"ANGBASE", 50, 0.0},
    {"angleDirection", L"ANGDIR", 70, 0},
    {"unitMode", L"UNITMODE", 70, 0},
    {"insertUnits", L"INSUNITS", 70, 0},
    {"tileMode", L"TILEMODE", 70, 1},
    {"plotStyleMode", L"PSTYLEMODE", 290, 1},
    {"currentLayer", L"CLAYER", 8, L"0"},
    {"currentLinetype", L"CELTYPE", 6, L"ByLayer"},
    {"currentColour", L"CECOLOR", 62, 256},
    {"currentLinetypeScale", L"CELTSCALE", 40, 1.0},
    {"currentLineweight", L"CELWEIGHT", 370, -1},
    {"currentTextStyle", L"TEXTSTYLE", 7, L"Standard"},
    {"currentDimensionStyle", L"DIMSTYLE", 2, L"Standard"},
    {"currentMultilineStyle", L"CMLSTYLE", 2, L"Standard"},
    {"ucsOrigin", L"UCSORG", 10, KdGePoint3d{0, 0, 0}},
    {"ucsXAxis", L"UCSXDIR", 10, KdGePoint3d{1, 0, 0}},
    {"ucsYAxis", L"UCSYDIR", 10, KdGePoint3d{0, 1, 0}},
    {"sheetUcsYAxis", L"PUCSYDIR", 10, KdGePoint3d{0, 1, 0}},
    {"emptyMinimum", L"EXTMIN", 10, KdGePoint3d{1e20, 1e20, 1e20}},
    {"emptyMaximum", L"PEXTMAX", 10, KdGePoint3d{-1e20, -1e20, -1e20}},
    {"dimensionScale", L"DIMSCALE", 40, 1.0},
    {"arrowSize", L"DIMASZ", 40, 0.18},
    {"extensionOffset", L"DIMEXO", 40, 0.0625},
    {"lineSpacing", L"DIMDLI", 40, 0.38},
    {"jogAngle", L"DIMJOGANG", 40, std::numbers::pi / 4},
    {"alternateFactor", L"DIMALTF", 40, 25.4},
    {"dimensionGap", L"DIMGAP", 40, 0.09},
    {"arrowName", L"DIMBLK", 1, L""},
    {"leaderArrowName", L"DIMLDRBLK", 1, L""},
    {"dimensionTextStyle", L"DIMTXSTY", 7, L"Standard"},
    {"dimensionLinetype", L"DIMLTYPE", 6, L""},
    {"textInsideHorizontal", L"DIMTIH", 70, 1},
    {"alternateUnits", L"DIMALTU", 70, 2},
    {"decimalSeparator", L"DIMDSEP", 70, 46},
    {"toleranceAlignment", L"DIMTOLJ", 70, 1},
    {"fit", L"DIMATFIT", 70, 3},
    {"dimensionLineweight", L"DIMLWD", 70, -2},
    {"associativity", L"DIMASSOC", 280, 2},
    {"textDirection", L"DIMTXTDIRECTION", 70, 0},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(HeaderVariables, HeaderVariableRows, testing::ValuesIn(kRows),
                         [](const auto& row) { return row.param.label; });

TEST(HeaderVariables, TakeAValueOfTheirKind)
{
    KdDbHeaderVariables variables;
    EXPECT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"LUPREC"), 7));
    EXPECT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"LTSCALE"), 2.5));
    EXPECT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"CLAYER"), KdString(L"PIPES")));
    EXPECT_TRUE(variables.setValue(KdDbHeaderVariables::indexOf(L"UCSORG"), KdGePoint3d{1, 2, 3}));
    EXPECT_EQ(variables.integer(L"luprec"), 7);
    EXPECT_EQ(variables.real(L"LTSCALE"), 2.5);
    EXPECT_EQ(variables.text(L"CLAYER"), L"PIPES");
    EXPECT_EQ(variables.point(L"UCSORG"), (KdGePoint3d{1, 2, 3}));
}

TEST(HeaderVariables, RefuseAValueOfAnotherKind)
{
    KdDbHeaderVariables variables;
    EXPECT_FALSE(variables.setValue(KdDbHeaderVariables::indexOf(L"LUPREC"), 7.0));
    EXPECT_FALSE(variables.setValue(KdDbHeaderVariables::indexOf(L"LTSCALE"), 2));
    EXPECT_EQ(variables.integer(L"LUPREC"), 4);
    EXPECT_EQ(variables.real(L"LTSCALE"), 1.0);
}

TEST(HeaderVariables, RefuseANumberThatNoneHas)
{
    KdDbHeaderVariables variables;
    EXPECT_FALSE(variables.setValue(-1, 7));
    EXPECT_FALSE(variables.setValue(static_cast<int>(KdDbHeaderVariables::all().size()), 7));
}

TEST(HeaderVariables, OfTwoDrawingsAreApart)
{
    KdDbHeaderVariables one;
    const KdDbHeaderVariables other;
    one.setValue(KdDbHeaderVariables::indexOf(L"LUPREC"), 7);
    EXPECT_EQ(other.integer(L"LUPREC"), 4);
}

} // namespace
