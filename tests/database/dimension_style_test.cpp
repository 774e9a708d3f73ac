#include <database/dimension_style.h>

#include <set>

#include <gtest/gtest.h>

#include "support.h"

using database_test::ExtendedData;
using database_test::OpenForWrite;

namespace {

using Var = KdDbDimVar;

TEST(DimensionVariables, HaveNamesAndCodesOfTheirOwn)
{
    std::set<std::wstring> names;
    std::set<int> codes;
    for (const KdDbDimVariable& variable : kddbDimVariables()) {
        EXPECT_TRUE(names.insert(variable.name).second) << variable.name;
        EXPECT_TRUE(variable.code == 0 || codes.insert(variable.code).second) << variable.code;
    }
    EXPECT_EQ(names.size(), 78u);
}

TEST(DimensionVariables, AreFoundByTheirCodes)
{
    EXPECT_EQ(kddbDimVariableOfCode(41), Var::dimasz);
    EXPECT_EQ(kddbDimVariableOfCode(372), Var::dimlwe);
    EXPECT_EQ(kddbDimVariableOfCode(0), std::nullopt);
    EXPECT_EQ(kddbDimVariableOfCode(270), std::nullopt);
}

TEST(DimensionVariables, AreVariablesOfTheHeaderToo)
{
    for (const KdDbDimVariable& variable : kddbDimVariables())
        EXPECT_GE(KdDbHeaderVariables::indexOf(variable.name), 0) << variable.name;
    const KdDbHeaderVariables header;
    EXPECT_EQ(header.real(L"DIMASZ"), 0.18);
    EXPECT_EQ(header.integer(L"DIMDSEP"), '.');
    EXPECT_EQ(header.text(L"DIMTXSTY"), L"Standard");
    EXPECT_EQ(header.text(L"DIMBLK"), L"");
}

TEST(DimensionColor, IsGivenByIndexOrAsAWord)
{
    const auto color = [](int number) {
        return kddbDimValueAs<KdDbDimKind::Color>(kddbDimColor(number));
    };
    EXPECT_EQ(color(0).colorMethod(), KdCmColor::kByBlock);
    EXPECT_EQ(color(5).colorIndex(), 5);
    EXPECT_EQ(color(256).colorMethod(), KdCmColor::kByLayer);
    EXPECT_EQ(color(257).colorMethod(), KdCmColor::kByLayer);
    EXPECT_EQ(color(-1056964608).colorMethod(), KdCmColor::kByBlock);
    EXPECT_EQ(color(-1023410171).colorIndex(), 5);
    EXPECT_EQ(color(-1036634547).color(), 0xC236364Du);
}

TEST(DimensionValues, AreKeptInAnyOrder)
{
    KdDbDimValues values;
    EXPECT_FALSE(values.has(Var::dimasz));
    values.set(Var::dimlwe, std::int32_t{5}); // in the second half of the marks
    values.set(Var::dimpost, KdString(L"<>mm"));
    values.set(Var::dimasz, 2.5);
    values.set(Var::dimaltmzs, KdString(L"in")); // the last one
    values.set(Var::dimasz, 3.5);
    EXPECT_EQ(values.count(), 4u);
    EXPECT_EQ(std::get<double>(*values.find(Var::dimasz)), 3.5);
    EXPECT_EQ(std::get<std::int32_t>(*values.find(Var::dimlwe)), 5);
    EXPECT_EQ(std::get<KdString>(*values.find(Var::dimpost)), L"<>mm");
    EXPECT_EQ(std::get<KdString>(*values.find(Var::dimaltmzs)), L"in");
    EXPECT_FALSE(values.has(Var::dimscale));
}

TEST(DimensionStyle, BeginsWithTheInitialValues)
{
    const KdDbDimStyleTableRecord style;
    EXPECT_EQ(style.dimasz(), 0.18);
    EXPECT_EQ(style.dimtih(), true);
    EXPECT_EQ(style.dimse1(), false);
    EXPECT_EQ(style.dimdsep(), '.');
    EXPECT_EQ(style.dimlwd(), -2);
    EXPECT_EQ(style.dimclrd().colorMethod(), KdCmColor::kByBlock);
    EXPECT_EQ(style.dimpost(), L"");
    EXPECT_TRUE(style.dimblk().isNull());
    EXPECT_EQ(style.dimmzf(), 100.0);
}

TEST(DimensionStyle, UsesTheStandardTextStyleUnlessItNamesAnother)
{
    KdDbDatabase drawing;
    const auto* style = drawing.addRecord<KdDbDimStyleTable>(L"A");
    KdDbObjectId standard;
    drawing.table<KdDbTextStyleTable>().getIdAt(L"Standard", standard);
    EXPECT_EQ(style->dimtxsty(), standard);
    const KdDbObjectId notes = drawing.findOrAddRecord<KdDbTextStyleTable>(L"NOTES");
    OpenForWrite<KdDbDimStyleTableRecord>(style->objectId())
        ->edit()
        .variables.set(Var::dimtxsty, notes);
    EXPECT_EQ(style->dimtxsty(), notes);
}

TEST(UseOfADimensionStyle, GivesItsOwnValueThenThatOfTheStyle)
{
    KdDbDatabase drawing;
    auto* style = drawing.addRecord<KdDbDimStyleTable>(L"A");
    OpenForWrite<KdDbDimStyleTableRecord>(style->objectId())
        ->edit()
        .variables.set(Var::dimasz, 2.0);
    DimensionStyleUse use;
    const auto size = [&use] { return std::get<double>(use.variable(Var::dimasz)); };
    EXPECT_EQ(size(), 0.18);
    use.style = style->objectId();
    EXPECT_EQ(size(), 2.0);
    use.overrides.set(Var::dimasz, 3.0);
    EXPECT_EQ(size(), 3.0);
    EXPECT_EQ(drawing.openCount(), 0);
}

TEST(UseOfADimensionStyle, TakesAnyOtherObjectForNoStyle)
{
    KdDbDatabase drawing;
    DimensionStyleUse use;
    use.style = drawing.modelSpaceId();
    EXPECT_EQ(std::get<double>(use.variable(Var::dimasz)), 0.18);
}

TEST(ExtendedDataOfADimensionStyle, IsGivenForOneApplicationAlone)
{
    KdDbDimStyleTableRecord style;
    style.edit().extendedData = ExtendedData()
                                    .text(1001, L"FIRST")
                                    .number(1)
                                    .text(1001, L"SECOND")
                                    .number(2)
                                    .text(1000, L"two")
                                    .text(1001, L"THIRD")
                                    .number(3)
                                    .take();
    const resbuf* list = style.xData(L"second");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->restype, 1001);
    ASSERT_TRUE(list->rbnext && list->rbnext->rbnext);
    EXPECT_EQ(list->rbnext->resval.rint, 2);
    EXPECT_STREQ(list->rbnext->rbnext->resval.rstring, L"two");
    EXPECT_EQ(list->rbnext->rbnext->rbnext, nullptr);
    EXPECT_EQ(style.xData(L"SECOND"), list); // made once
    EXPECT_EQ(style.xData(L"FOURTH"), nullptr);
    EXPECT_EQ(style.xData(nullptr), nullptr);
}

TEST(ExtendedDataOfADimensionStyle, IsReadAnewAfterAChange)
{
    KdDbDimStyleTableRecord style;
    style.edit().extendedData = ExtendedData().text(1001, L"A").number(1).take();
    EXPECT_EQ(style.xData(L"A")->rbnext->resval.rint, 1);
    style.edit().extendedData = ExtendedData().text(1001, L"A").number(7).take();
    EXPECT_EQ(style.xData(L"A")->rbnext->resval.rint, 7);
}

TEST(ArrowName, IsThatOfTheBlockWithoutTheUnderscoreOfStandardOnes)
{
    KdDbDatabase drawing;
    const auto name = [&drawing](const wchar_t* block) {
        return KdDmUtil::arrowName(drawing.findOrAddRecord<KdDbBlockTable>(block));
    };
    EXPECT_EQ(name(L"_Open30"), L"Open30");
    EXPECT_EQ(name(L"_MINE"), L"_MINE");
    EXPECT_EQ(name(L"Arrow"), L"Arrow");
    EXPECT_EQ(KdDmUtil::arrowName({}), L"CLOSEDFILLED");
    EXPECT_EQ(KdDmUtil::arrowName(drawing.namedObjectsDictionaryId()), L"");
}

} // namespace
