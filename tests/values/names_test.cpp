#include <values/names.h>

#include <clocale>
#include <memory>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <editor/system_variables.h>
#include <entities/block_reference.h>
#include <entities/line.h>
#include <plugin/res_buf.h>

#include "support.h"

namespace {

struct ColorCase
{
    const char* name;
    const wchar_t* text;
    short number;
};

class Color2NumberOf : public testing::TestWithParam<ColorCase>
{
};

// clang-format off
INSTANTIATE_TEST_SUITE_P(Texts, Color2NumberOf, testing::Values(
    ColorCase{"null", nullptr, 7}, ColorCase{"empty", L"", 7},
    ColorCase{"byBlock", L"BYBLOCK", 0}, ColorCase{"byBlockMixed", L"ByBlock", 0},
    ColorCase{"byBlockShort", L"byb", 0},
    ColorCase{"red", L"red", 1}, ColorCase{"redShort", L"r", 1},
    ColorCase{"yellow", L"Yellow", 2}, ColorCase{"yellowShort", L"yel", 2},
    ColorCase{"yellowLetter", L"Y", 2},
    ColorCase{"green", L"GREEN", 3}, ColorCase{"greenShort", L"gre", 3},
    ColorCase{"greenLetter", L"g", 3},
    ColorCase{"cyan", L"cyan", 4}, ColorCase{"cyanShort", L"cya", 4}, ColorCase{"cyanLetter", L"c", 4},
    ColorCase{"blue", L"Blue", 5}, ColorCase{"blueShort", L"blu", 5}, ColorCase{"blueLetter", L"b", 5},
    ColorCase{"magenta", L"Magenta", 6}, ColorCase{"magentaShort", L"mag", 6},
    ColorCase{"magentaLetter", L"M", 6},
    ColorCase{"white", L"white", 7}, ColorCase{"whiteShort", L"whi", 7},
    ColorCase{"whiteLetter", L"w", 7},
    ColorCase{"byLayer", L"ByLayer", 256}, ColorCase{"byLayerShort", L"byl", 256},
    ColorCase{"zero", L"0", 0}, ColorCase{"number", L"12", 12}, ColorCase{"highest", L"256", 256},
    ColorCase{"tooHigh", L"257", 7}, ColorCase{"negative", L"-1", 7},
    ColorCase{"numberBeforeText", L" 12 red", 12}, ColorCase{"unknownWord", L"orange", 0},
    ColorCase{"onlyTheLow16BitsCount", L"65537", 1},
    ColorCase{"enormous", L"99999999999999999999", 7}),
    [](const auto& row) { return row.param.name; });
// clang-format on

TEST_P(Color2NumberOf, IsTheIndexOfTheWordOrNumber)
{
    const CurrentResources english(kEnglishTexts);
    EXPECT_EQ(Color2Number(GetParam().text), GetParam().number);
}

TEST(Color2Number, FollowsTheLanguageBesideTheEnglishLiterals)
{
    const CurrentResources other(kOtherTexts); // 34492 is "Rot", and so is the short form of white
    Messages messages;
    EXPECT_EQ(Color2Number(L"rot"), 1);
    EXPECT_EQ(Color2Number(L"WHITE"), 7);
    EXPECT_EQ(Color2Number(L"red"), 1);
}

TEST(Color2Number, ComplainsOnlyAboutTheSpellingsItCameTo)
{
    const CurrentResources other(kOtherTexts);
    Messages messages;
    EXPECT_EQ(Color2Number(L"byblock"), 0);
    EXPECT_TRUE(messages.shown.empty());
    EXPECT_EQ(Color2Number(L"RED"), 1);
    EXPECT_THAT(messages.shown,
                testing::ElementsAre(
                    L"The string id 35492 \"byb\" was not found in the resource file.",
                    L"The string id 34341 \"BYBlock\" was not found in the resource file."));
}

TEST(Color2Number, KnowsTheDefaultSpellingsWhereTheLibraryLacksThem)
{
    const CurrentResources lacking(L"KrxOPMRes.dll");
    Messages messages;
    EXPECT_EQ(Color2Number(L"byl"), 256);
    EXPECT_EQ(Color2Number(L"y"), 2);
}

/// The units belong to the session, so each test puts them back.
class LineWeightName : public DrawingTest
{
  protected:
    ~LineWeightName() override { setUnits(1); }

    static void setUnits(short units)
    {
        resbuf value{};
        value.restype = RTSHORT;
        value.resval.rint = units;
        ASSERT_EQ(kdedSetVar(L"LWUNITS", &value), RTNORM);
    }

    static std::wstring nameOf(int weight)
    {
        KdString name;
        EXPECT_EQ(getLineWeightName(weight, name), 0);
        return name.kwszPtr();
    }
};

TEST_F(LineWeightName, IsInMillimetresWithTwoDecimals)
{
    setUnits(1);
    EXPECT_EQ(nameOf(0), L"0.00 mm");
    EXPECT_EQ(nameOf(5), L"0.05 mm");
    EXPECT_EQ(nameOf(25), L"0.25 mm");
    EXPECT_EQ(nameOf(200), L"2.00 mm");
    EXPECT_EQ(nameOf(211), L"2.11 mm");
}

TEST_F(LineWeightName, IsInInchesWithThreeDecimals)
{
    setUnits(0);
    EXPECT_EQ(nameOf(0), L"0.000\"");
    EXPECT_EQ(nameOf(25), L"0.010\"");  // 0.00984
    EXPECT_EQ(nameOf(211), L"0.083\""); // 0.08307
    EXPECT_EQ(nameOf(2540), L"1.000\"");
}

TEST_F(LineWeightName, IsAWordForTheWeightsThatAreNone)
{
    for (const short units : {short{0}, short{1}}) {
        setUnits(units);
        EXPECT_EQ(nameOf(-1), L"ByLayer");
        EXPECT_EQ(nameOf(-2), L"ByBlock");
        EXPECT_EQ(nameOf(-3), L"Default");
    }
}

TEST_F(LineWeightName, FormatsAnyOtherNumber)
{
    setUnits(1);
    EXPECT_EQ(nameOf(-4), L"-0.04 mm");
    EXPECT_EQ(nameOf(2147483647), L"21474836.47 mm");
}

using DefaultLineTypeName = DrawingTest;

TEST_F(DefaultLineTypeName, IsTheFirstOfTheTable)
{
    KdString first;
    const KdDbLinetypeTable& table = m_drawing.table<KdDbLinetypeTable>();
    {
        const OpenForRead<KdDbLinetypeTableRecord> record(table.recordIds().front());
        first = record->name();
    }
    KdString name;
    EXPECT_EQ(getDefaultLineTypeName(name), 0);
    EXPECT_EQ(name, first);
    EXPECT_FALSE(name.isEmpty());
}

TEST(DefaultLineTypeNameOfABareDrawing, PassesOverExternalReferences)
{
    KdDbDatabase drawing(KdDbDatabase::Content::Bare);
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    KdString name = L"as it was";
    EXPECT_EQ(getDefaultLineTypeName(name), 0);
    EXPECT_EQ(name, L"as it was");

    addDependentRecord<KdDbLinetypeTable>(drawing, L"XREF|DASHED");
    EXPECT_EQ(getDefaultLineTypeName(name), 0);
    EXPECT_EQ(name, L"as it was");

    drawing.addRecord<KdDbLinetypeTable>(L"DASHED");
    EXPECT_EQ(getDefaultLineTypeName(name), 0);
    EXPECT_EQ(name, L"DASHED");
    EXPECT_EQ(drawing.openCount(), 0);
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
}

using NamesWithoutDrawing = NoDrawingTest;

TEST_F(NamesWithoutDrawing, TheDefaultLinetypeHasTheStatusOfAMissingDatabase)
{
    KdString name = L"as it was";
    EXPECT_EQ(getDefaultLineTypeName(name), 124);
    EXPECT_EQ(name, L"as it was");
}

TEST_F(DefaultLineTypeName, IsNotToBeHadFromATableThatCannotBeOpened)
{
    KdDbLinetypeTable* table = nullptr;
    ASSERT_EQ(m_drawing.getSymbolTable(table, KdDb::kForWrite), eOk);
    KdString name = L"as it was";
    EXPECT_EQ(getDefaultLineTypeName(name), 15);
    EXPECT_EQ(name, L"as it was");
    table->close();
}

class BlockReferenceName : public DrawingTest
{
  protected:
    BlockReferenceName() : m_result(ResBuf::newRb(ResBuf::kNone)) {}
    ~BlockReferenceName() override { ResBuf::relRb(m_result); }

    KdDbBlockTableRecord* addBlock(const wchar_t* name)
    {
        return m_drawing.addRecord<KdDbBlockTable>(name);
    }

    KdDbBlockReference* addReference(KdDbObjectId block)
    {
        auto* reference = new KdDbBlockReference;
        reference->edit().block = block;
        m_drawing.addObject(reference, m_drawing.modelSpaceId());
        return reference;
    }

    ResBuf* m_result;
};

TEST_F(BlockReferenceName, IsThatOfTheBlock)
{
    KdDbBlockReference* const reference = addReference(addBlock(L"VALVE")->objectId());
    EXPECT_EQ(getBlockReferenceName(reference, m_result), 0);
    EXPECT_EQ(m_result->restype(), ResBuf::kString);
    EXPECT_EQ(m_result->getString(), L"VALVE");
}

TEST_F(BlockReferenceName, IsNotToBeHadFromOtherEntities)
{
    auto* line = new KdDbLine;
    m_drawing.addObject(line, m_drawing.modelSpaceId());
    EXPECT_EQ(getBlockReferenceName(line, m_result), 15);
    EXPECT_EQ(getBlockReferenceName(nullptr, m_result), 15);
    EXPECT_EQ(m_result->restype(), ResBuf::kNone);
}

TEST_F(BlockReferenceName, IsEmptyWhereTheDrawingLacksTheBlock)
{
    EXPECT_EQ(getBlockReferenceName(addReference(KdDbObjectId::kNull), m_result), 15);
    EXPECT_EQ(m_result->restype(), ResBuf::kString);
    EXPECT_TRUE(m_result->getString().isEmpty());
}

TEST_F(BlockReferenceName, IsNotThatOfAnythingButABlock)
{
    const KdDbObjectId layer = m_drawing.addRecord<KdDbLayerTable>(L"PIPES")->objectId();
    EXPECT_EQ(getBlockReferenceName(addReference(layer), m_result), 15);
}

} // namespace
