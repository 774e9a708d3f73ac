#include <values/value_lists.h>

#include <algorithm>
#include <string>
#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/color.h>
#include <values/names.h>

#include "support.h"

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

std::vector<std::wstring> namesOf(const std::vector<listUnit>& list)
{
    std::vector<std::wstring> names;
    for (const listUnit& line : list)
        names.emplace_back(line.name.kwszPtr());
    return names;
}

/// An empty drawing with one record of its own and one of an external reference in three tables.
class TableLists : public testing::Test
{
  protected:
    TableLists()
    {
        kddbHostApplicationServices()->setWorkingDatabase(&m_drawing);
        add<KdDbLayerTable>();
        add<KdDbLinetypeTable>();
        add<KdDbTextStyleTable>();
    }
    ~TableLists() override
    {
        EXPECT_EQ(m_drawing.openCount(), 0);
        kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    }

    template <class Table>
    void add()
    {
        m_drawing.addRecord<Table>(L"second");
        addDependentRecord<Table>(m_drawing, L"XREF|third");
        m_drawing.addRecord<Table>(L"First");
    }

    template <class Table>
    void erase(const wchar_t* name)
    {
        KdDbObjectId id;
        ASSERT_EQ(m_drawing.table<Table>().getIdAt(name, id), eOk);
        KdDbObject* record = nullptr;
        ASSERT_EQ(kddbOpenObject(record, id, KdDb::kForWrite), eOk);
        EXPECT_EQ(record->erase(), eOk);
        record->close();
    }

    KdDbDatabase m_drawing{KdDbDatabase::Content::Bare};
    PropListFiller m_lists;
};

TEST(PropListFiller, BeginsEmpty)
{
    const PropListFiller lists;
    EXPECT_THAT(lists.layers, IsEmpty());
    EXPECT_THAT(lists.lineTypes, IsEmpty());
    EXPECT_THAT(lists.lineWeights, IsEmpty());
    EXPECT_THAT(lists.textStyles, IsEmpty());
}

TEST_F(TableLists, NameLayersInTableOrderWithoutExternalReferences)
{
    m_lists.fillLayer();
    EXPECT_THAT(namesOf(m_lists.layers), ElementsAre(L"second", L"First"));
    EXPECT_THAT(m_lists.lineTypes, IsEmpty());
}

TEST_F(TableLists, NameLinetypesInTableOrderWithoutExternalReferences)
{
    m_lists.fillLineType();
    EXPECT_THAT(namesOf(m_lists.lineTypes), ElementsAre(L"second", L"First"));
}

TEST_F(TableLists, NameTextStylesExternalReferencesIncluded)
{
    m_lists.fillTextStyle();
    EXPECT_THAT(namesOf(m_lists.textStyles), ElementsAre(L"second", L"XREF|third", L"First"));
}

TEST_F(TableLists, HaveNoKeys)
{
    m_lists.fillLayer();
    for (const listUnit& line : m_lists.layers)
        EXPECT_EQ(line.key, 0);
}

TEST_F(TableLists, PassOverErasedRecords)
{
    erase<KdDbTextStyleTable>(L"second");
    m_lists.fillTextStyle();
    EXPECT_THAT(namesOf(m_lists.textStyles), ElementsAre(L"XREF|third", L"First"));
}

TEST_F(TableLists, GrowWhenTheyAreFilledAgain)
{
    m_lists.fillLayer();
    m_lists.fillLayer();
    EXPECT_EQ(m_lists.layers.size(), 4u);
}

TEST_F(TableLists, StayAsTheyAreWhereTheTableCannotBeOpened)
{
    KdDbLayerTable* table = nullptr;
    ASSERT_EQ(m_drawing.getSymbolTable(table, KdDb::kForWrite), eOk);
    m_lists.fillLayer();
    EXPECT_THAT(m_lists.layers, IsEmpty());
    table->close();
}

TEST_F(TableLists, PassOverRecordsThatCannotBeOpened)
{
    KdDbObjectId id;
    ASSERT_EQ(m_drawing.table<KdDbLayerTable>().getIdAt(L"second", id), eOk);
    KdDbObject* record = nullptr;
    ASSERT_EQ(kddbOpenObject(record, id, KdDb::kForWrite), eOk);
    m_lists.fillLayer();
    EXPECT_THAT(namesOf(m_lists.layers), ElementsAre(L"First"));
    record->close();
}

using ListsWithoutDrawing = NoDrawingTest;

TEST_F(ListsWithoutDrawing, StayEmpty)
{
    PropListFiller lists;
    lists.fillLayer();
    lists.fillLineType();
    lists.fillTextStyle();
    EXPECT_THAT(lists.layers, IsEmpty());
    EXPECT_THAT(lists.lineTypes, IsEmpty());
    EXPECT_THAT(lists.textStyles, IsEmpty());
    KdString name = L"Continuous";
    EXPECT_TRUE(PropListUtil::findLineTypeIdByName(name).isNull());
}

TEST(PropListFiller, ListsTheFixedLineweights)
{
    PropListFiller lists;
    lists.fillLineWeight();
    std::vector<std::pair<int, std::wstring>> lines;
    for (const listUnit& line : lists.lineWeights)
        lines.emplace_back(line.key, line.name.kwszPtr());
    const std::vector<std::pair<int, std::wstring>> expected = {
        {0, L"0.00 mm"},   {5, L"0.05 mm"},   {9, L"0.09 mm"},   {13, L"0.13 mm"},
        {15, L"0.15 mm"},  {18, L"0.18 mm"},  {20, L"0.20 mm"},  {25, L"0.25 mm"},
        {30, L"0.30 mm"},  {35, L"0.35 mm"},  {40, L"0.40 mm"},  {50, L"0.50 mm"},
        {53, L"0.53 mm"},  {60, L"0.60 mm"},  {70, L"0.70 mm"},  {80, L"0.80 mm"},
        {90, L"0.90 mm"},  {100, L"1.00 mm"}, {106, L"1.06 mm"}, {120, L"1.20 mm"},
        {140, L"1.40 mm"}, {158, L"1.58 mm"}, {200, L"2.0 mm"},  {211, L"2.11 mm"},
        {-1, L"ByLayer"},  {-2, L"ByBlock"},  {-3, L"Default"}};
    EXPECT_EQ(expected.size(), 27u);
    EXPECT_EQ(lines, expected);
}

std::vector<listUnit> twoLines()
{
    return {{L"Standard", 3}, {L"standard", 4}, {L"Other", 3}};
}

TEST(PropListUtil, FindsAKeyByTheExactName)
{
    std::vector<listUnit> list = twoLines();
    KdString name = L"standard";
    EXPECT_EQ(PropListUtil::findByString(&list, name), 4);
    name = L"STANDARD";
    EXPECT_EQ(PropListUtil::findByString(&list, name), 0);
}

TEST(PropListUtil, FindsTheFirstNameOfAKey)
{
    std::vector<listUnit> list = twoLines();
    EXPECT_EQ(PropListUtil::findByKey(&list, 3), L"Standard");
    EXPECT_EQ(PropListUtil::findByKey(&list, 0), L"");
}

TEST(PropListUtil, FindsNothingWithoutAList)
{
    KdString name = L"Standard";
    EXPECT_EQ(PropListUtil::findByString(nullptr, name), 0);
    EXPECT_TRUE(PropListUtil::findByKey(nullptr, 3).isEmpty());
}

TEST(PropListUtil, ChainsTextsBehindTheTail)
{
    ResBuf* head = ResBuf::newRb(ResBuf::kNone);
    ResBuf* tail = head;
    tail = PropListUtil::addElementToArray(tail, L"one");
    ResBuf* const afterOne = tail;
    ResBuf* const two = PropListUtil::addElementToArray(tail, L"two");
    EXPECT_EQ(tail, afterOne) << "the caller's tail was moved";
    EXPECT_EQ(head->next(), afterOne);
    EXPECT_EQ(afterOne->next(), two);
    EXPECT_EQ(two->next(), nullptr);
    EXPECT_EQ(two->restype(), ResBuf::kString);
    EXPECT_EQ(afterOne->getString(), L"one");
    EXPECT_EQ(two->getString(), L"two");
    ResBuf::relRb(head);
}

TEST(PropListUtil, ChainsTheSevenStandardColors)
{
    ResBuf* head = ResBuf::newRb(ResBuf::kColor);
    ResBuf* const last = PropListUtil::addStandartColorList(head);
    std::vector<int> indices;
    for (const ResBuf* record = head->next(); record; record = record->next()) {
        EXPECT_EQ(record->restype(), ResBuf::kColor);
        EXPECT_EQ(static_cast<int>(record->getColor().colorMethod()), 195);
        indices.push_back(record->getColor().colorIndex());
    }
    EXPECT_THAT(indices, ElementsAre(1, 2, 3, 4, 5, 6, 7));
    EXPECT_EQ(last, head->last());
    ResBuf::relRb(head);
}

TEST_F(TableLists, FindLinetypesByTheExactName)
{
    KdDbObjectId expected;
    ASSERT_EQ(m_drawing.table<KdDbLinetypeTable>().getIdAt(L"First", expected), eOk);
    KdString name = L"First";
    EXPECT_EQ(PropListUtil::findLineTypeIdByName(name), expected);
    name = L"FIRST";
    EXPECT_TRUE(PropListUtil::findLineTypeIdByName(name).isNull());
}

TEST_F(TableLists, FindNoLinetypeOfAnExternalReference)
{
    KdString name = L"XREF|third";
    EXPECT_TRUE(PropListUtil::findLineTypeIdByName(name).isNull());
}

using ListsOfAStandardDrawing = DrawingTest;

TEST_F(ListsOfAStandardDrawing, HoldItsRecords)
{
    PropListFiller lists;
    lists.fillLayer();
    lists.fillTextStyle();
    EXPECT_THAT(namesOf(lists.layers), Contains(L"0"));
    EXPECT_THAT(namesOf(lists.textStyles), Contains(L"Standard"));
}

} // namespace
