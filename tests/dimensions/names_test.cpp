// Every name that the providers of dimensions show for a number, and the choices.
#include <dimensions/dimension_kind_names.h>

#include "support.h"

using namespace dimension_test;

namespace {

struct NamesCase
{
    const char* name;
    const wchar_t* key;
    KdDbDimVar variable;
    int first; ///< number of the first name
    Words names;
};

const NamesCase kNamesCases[] = {
    {"verticalPosition",
     L"Text:Text pos vert",
     KdDbDimVar::dimtad,
     0,
     {"Center", "Above", "Outside", "JIS", "Below"}},
    {"fit",
     L"Fit:Fit",
     KdDbDimVar::dimatfit,
     0,
     {"Moves text and arrows outside extension lines",
      "Moves arrows, then text, outside extension lines",
      "Moves text, then arrows, outside extension lines", "Moves text or arrows for best fit"}},
    {"movement",
     L"Fit:Text movement",
     KdDbDimVar::dimtmove,
     0,
     {"Moving dimension text moves the dimension line", "Moving dimension text adds a leader",
      "Moving dimension text does not append a leader"}},
    {"tolerancePosition",
     L"Tolerances:Tolerance pos vert",
     KdDbDimVar::dimtolj,
     0,
     {"Bottom", "Middle", "Top"}},
    {"fractions",
     L"Text:Fractional type",
     KdDbDimVar::dimfrac,
     0,
     {"Horizontal Stacked", "Diagonal Stacked", "Not Stacked"}},
    {"horizontalPosition",
     L"Text:Text pos hor",
     KdDbDimVar::dimjust,
     0,
     {"Centered above the dimension line", "By the first extension line",
      "By the second extension line",
      "Above the dimension line, parallel to the first extension line",
      "Above the dimension line, parallel to the second extension line"}},
    {"units",
     L"Primary units:Dim units",
     KdDbDimVar::dimlunit,
     1,
     {"Scientific", "Decimal", "Engineering", "Architectural (stacked)", "Fractional (stacked)",
      "Microsoft Windows Desktop"}},
    {"alternateUnits",
     L"Alternate units:Alt format",
     KdDbDimVar::dimaltu,
     1,
     {"Scientific", "Decimal", "Engineering", "Architectural (stacked)", "Fractional (stacked)",
      "Architectural", "Fractional", "Microsoft Windows Desktop"}},
    {"angles",
     L"Primary units:Angle format",
     KdDbDimVar::dimaunit,
     0,
     {"Decimal Degrees", "Degrees-Minutes-Seconds", "Gradians", "Radians", "Surveyor's Units"}},
    {"arcSymbol",
     L"Text:Arc length symbol",
     KdDbDimVar::dimarcsym,
     0,
     {"Before the dimension text", "Above the dimension text", "Not displayed"}},
};

Words asTexts(const Words& names)
{
    Words texts;
    for (const std::string& name : names)
        texts.push_back("5005 " + name);
    return texts;
}

class NamesOfDimension : public DimensionTest, public testing::WithParamInterface<NamesCase>
{
};

TEST_P(NamesOfDimension, AreShownForTheirNumbersByEveryKindThatListsThem)
{
    const NamesCase& row = GetParam();
    const int last = row.first + static_cast<int>(row.names.size()) - 1;
    for (int number = row.first - 1; number <= last + 1; ++number) {
        set(row.variable, number);
        const bool isNamed = number >= row.first && number <= last;
        const Words expected{
            "5005 " + (isNamed ? row.names[static_cast<std::size_t>(number - row.first)] : "")};
        for (const Kind& kind : kKinds) {
            if (!isListed(kind.number, row.key))
                continue;
            SCOPED_TRACE(kind.name);
            for (const bool asDisplayText : {false, true}) {
                const Answer given = answer(kind.number, row.key, asDisplayText);
                EXPECT_EQ(given.status, 1);
                EXPECT_EQ(given.chain, expected);
                Words withChoices = expected;
                for (const std::string& text : asTexts(row.names))
                    withChoices.push_back(text);
                EXPECT_EQ(answer(kind.number, row.key, asDisplayText, true).chain, withChoices);
            }
        }
    }
}

INSTANTIATE_TEST_SUITE_P(, NamesOfDimension, testing::ValuesIn(kNamesCases),
                         [](const auto& row) { return std::string(row.param.name); });

class NamesOfDimensions : public DimensionTest
{
  protected:
    void expectName(const std::vector<DimensionKind>& kinds, const wchar_t* key,
                    const std::string& name, const Words& choices)
    {
        for (const DimensionKind kind : kinds) {
            SCOPED_TRACE(kindOf(kind).name);
            EXPECT_TRUE(isListed(kind, key));
            Words expected{"5005 " + name};
            EXPECT_EQ(answer(kind, key).chain, expected);
            for (const std::string& text : asTexts(choices))
                expected.push_back(text);
            EXPECT_EQ(answer(kind, key, false, true).chain, expected);
        }
    }
};

TEST_F(NamesOfDimensions, TellTheCenterMarkByTheSignOfItsSize)
{
    const std::vector<DimensionKind> kinds{DimensionKind::Radial, DimensionKind::RadialLarge,
                                           DimensionKind::Diametric};
    const Words choices{"Line", "None", "Mark"};
    for (const auto& [size, name] :
         {std::pair<double, const char*>{-0.09, "Line"}, {0.0, "None"}, {2.5, "Mark"}}) {
        set(KdDbDimVar::dimcen, size);
        expectName(kinds, L"Lines & Arrows:Center mark", name, choices);
    }
}

TEST_F(NamesOfDimensions, CallEveryDirectionButOneLeftToRight)
{
    for (const int direction : {-1, 0, 1, 2}) {
        set(KdDbDimVar::dimtxtdirection, direction);
        expectName({DimensionKind::TwoLine}, L"Text:Text direction",
                   direction == 1 ? "Right to Left" : "Left to Right",
                   {"Left to Right", "Right to Left"});
    }
}

struct IdCase
{
    const KindNames* names;
    std::vector<int> ids; ///< rotated, aligned, arc, two lines, three points, radial, large, ...
};

// The texts of one property are alike in English, so their numbers are looked at here.
TEST_F(NamesOfDimensions, HaveNumbersOfTheirOwnForEachKind)
{
    const IdCase rows[] = {
        {&kFractions, {77912, 77747, 77769, 0, 0, 77875, 77895, 77812, 77855}},
        {&kHorizontalPositions, {77915, 77750, 77772, 77938, 77737, 0, 0, 0, 0}},
        {&kUnits, {77920, 77755, 77780, 0, 0, 77878, 77898, 77815, 77858}},
        {&kAlternateUnits, {77926, 77761, 77786, 0, 0, 77884, 77904, 77821, 77864}},
        {&kAngleForms, {0, 0, 0, 77722, 77742, 0, 0, 0, 0}},
        {&kArcSymbols, {0, 0, 77777, 0, 0, 0, 0, 0, 0}},
        {&kCenterMarks, {0, 0, 0, 0, 0, 77872, 77892, 77809, 0}},
    };
    for (const IdCase& row : rows)
        EXPECT_EQ(std::vector<int>(row.names->firstIds.begin(), row.names->firstIds.end()),
                  row.ids);
    EXPECT_EQ(kHorizontalPositions.brokenKind, DimensionKind::TwoLine);
    EXPECT_EQ(kHorizontalPositions.secondId, 77718);
}

TEST_F(NamesOfDimensions, AlignTolerancesAsTheStyleSays)
{
    const auto alignInStyle = [this](short alignment) {
        KdDbDimStyleTableRecord* record = nullptr;
        ASSERT_EQ(kddbOpenObject(record, style, KdDb::kForWrite), eOk);
        resbuf* head = kdutNewRb(1001);
        head->resval.rstring = kdutNewString(L"ACAD_DSTYLE_DIMTALN");
        head->rbnext = kdutNewRb(1070);
        head->rbnext->resval.rint = 392;
        head->rbnext->rbnext = kdutNewRb(1070);
        head->rbnext->rbnext->resval.rint = alignment;
        record->edit().extendedData.reset(head);
        record->close();
    };
    const wchar_t* key = L"Tolerances:Tolerance alignment";
    const Words choices{"Align plus/minus sign", "Align decimal point"};
    std::vector<DimensionKind> all;
    for (const Kind& kind : kKinds)
        all.push_back(kind.number);
    expectName(all, key, "Align plus/minus sign", choices);
    alignInStyle(1);
    expectName(all, key, "Align decimal point", choices);
    alignInStyle(0);
    expectName(all, key, "Align plus/minus sign", choices);
    alignInStyle(2);
    expectName(all, key, "", choices);
}

TEST_F(NamesOfDimensions, LeaveTheAlignmentOfTolerancesEmptyWithoutAStyle)
{
    const wchar_t* key = L"Tolerances:Tolerance alignment";
    const Words expected{"5005 ", "5005 Align plus/minus sign", "5005 Align decimal point"};
    eraseStyle();
    EXPECT_EQ(answerOfAll(key, false, true).status, 1);
    EXPECT_EQ(answerOfAll(key, false, true).chain, expected);
    changeAs<KdDbAlignedDimension>(DimensionKind::Aligned,
                                   [](auto& members) { members.dimension.style = {}; });
    EXPECT_EQ(answerOfAll(key, false, true).status, 0);
    EXPECT_EQ(answerOfAll(key, false, true).chain, expected);
}

TEST_F(NamesOfDimensions, AlignTolerancesBySignsWhereTheStyleIsSomethingElse)
{
    changeAs<KdDbAlignedDimension>(DimensionKind::Aligned, [&](auto& members) {
        members.dimension.style = block(L"NO STYLE");
    });
    const Answer given = answerOfAll(L"Tolerances:Tolerance alignment");
    EXPECT_EQ(given.status, 1);
    EXPECT_EQ(given.chain, Words{"5005 Align plus/minus sign"});
}

} // namespace
