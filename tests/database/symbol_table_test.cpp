#include <database/symbol_table.h>

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/line.h>

#include "support.h"

using database_test::setErased;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LayerTable : public testing::Test
{
  protected:
    KdDbObjectId add(const wchar_t* name)
    {
        return m_database.addRecord<KdDbLayerTable>(name)->objectId();
    }
    KdDbLayerTable& table() { return m_database.table<KdDbLayerTable>(); }

    std::vector<KdDbObjectId> walk(bool forward, bool skipErased)
    {
        KdDbSymbolTableIterator* walker = nullptr;
        EXPECT_EQ(table().newIterator(walker, forward, skipErased), eOk);
        const std::unique_ptr<KdDbSymbolTableIterator> owner(walker);
        std::vector<KdDbObjectId> ids;
        for (; !walker->done(); walker->step(forward, skipErased)) {
            ids.emplace_back();
            EXPECT_EQ(walker->getRecordId(ids.back()), eOk);
        }
        return ids;
    }

    KdDbDatabase m_database{KdDbDatabase::Content::Bare};
};

TEST_F(LayerTable, FindsNamesWithoutCase)
{
    const KdDbObjectId walls = add(L"Wände");
    KdDbObjectId found;
    EXPECT_EQ(table().getIdAt(L"WÄNDE", found), eOk);
    EXPECT_EQ(found, walls);
    EXPECT_TRUE(table().has(L"wände"));
    const OpenForRead<KdDbLayerTableRecord> record(found);
    KdString name;
    EXPECT_EQ(record->getName(name), eOk);
    EXPECT_EQ(name, L"Wände");
}

TEST_F(LayerTable, LeavesTheIdAloneWhereANameIsMissing)
{
    const KdDbObjectId before = add(L"there");
    KdDbObjectId id = before;
    EXPECT_EQ(table().getIdAt(L"missing", id), eKeyNotFound);
    EXPECT_EQ(table().getIdAt(L"", id), eKeyNotFound);
    EXPECT_EQ(table().getIdAt(nullptr, id), eKeyNotFound);
    EXPECT_EQ(id, before);
    EXPECT_FALSE(table().has(nullptr));
}

TEST_F(LayerTable, KeepsTheOrderInWhichRecordsCame)
{
    const KdDbObjectId b = add(L"b");
    const KdDbObjectId c = add(L"c");
    const KdDbObjectId a = add(L"a");
    EXPECT_EQ(table().count(), 3u);
    EXPECT_THAT(walk(true, true), ElementsAre(b, c, a));
    EXPECT_THAT(walk(false, true), ElementsAre(a, c, b));
}

TEST_F(LayerTable, KeepsASecondRecordOfANameBesides)
{
    const KdDbObjectId first = add(L"twice");
    auto* second = new KdDbLayerTableRecord;
    m_database.addObject(second, table().objectId());
    EXPECT_EQ(table().add(second->objectId(), L"TWICE"), eDuplicateKey);
    KdDbObjectId found;
    EXPECT_EQ(table().getIdAt(L"Twice", found), eOk);
    EXPECT_EQ(found, first);
    EXPECT_THAT(walk(true, true), ElementsAre(first, second->objectId()));
}

TEST_F(LayerTable, DoesNotFindErasedRecords)
{
    const KdDbObjectId erased = add(L"erased");
    setErased(erased);
    KdDbObjectId found;
    EXPECT_EQ(table().getIdAt(L"erased", found), eKeyNotFound);
    setErased(erased, false);
    EXPECT_EQ(table().getIdAt(L"erased", found), eOk);
}

TEST_F(LayerTable, GivesTheNameOfAnErasedRecordToANewOne)
{
    setErased(add(L"name"));
    const KdDbObjectId second = add(L"NAME");
    KdDbObjectId found;
    EXPECT_EQ(table().getIdAt(L"name", found), eOk);
    EXPECT_EQ(found, second);
    EXPECT_EQ(m_database.findOrAddRecord<KdDbLayerTable>(L"Name"), second);
}

TEST_F(LayerTable, IsWalkedPastErasedRecordsOnRequest)
{
    const KdDbObjectId first = add(L"1");
    const KdDbObjectId second = add(L"2");
    const KdDbObjectId third = add(L"3");
    const KdDbObjectId fourth = add(L"4");
    setErased(first);
    setErased(third);
    EXPECT_THAT(walk(true, true), ElementsAre(second, fourth));
    EXPECT_THAT(walk(false, true), ElementsAre(fourth, second));
    EXPECT_THAT(walk(true, false), ElementsAre(first, second, third, fourth));
    EXPECT_THAT(walk(false, false), ElementsAre(fourth, third, second, first));
    setErased(second);
    setErased(fourth);
    EXPECT_THAT(walk(true, true), IsEmpty());
    EXPECT_THAT(walk(false, true), IsEmpty());
}

TEST_F(LayerTable, IsWalkedWhenEmpty)
{
    for (const bool forward : {true, false}) {
        for (const bool skipErased : {true, false})
            EXPECT_THAT(walk(forward, skipErased), IsEmpty());
    }
}

TEST_F(LayerTable, EndsTheWalkAtBothEnds)
{
    const KdDbObjectId only = add(L"only");
    KdDbSymbolTableIterator walker(table(), true, true);
    KdDbObjectId id = only;
    for (const bool forward : {true, false}) {
        walker.start();
        walker.step(forward);
        EXPECT_TRUE(walker.done());
        walker.step(!forward);
        EXPECT_TRUE(walker.done());
        EXPECT_EQ(walker.getRecordId(id), eOutOfRange);
        EXPECT_EQ(id, only);
    }
    walker.start(false);
    EXPECT_FALSE(walker.done());
}

TEST_F(LayerTable, CanChangeTheDirectionOfAWalk)
{
    const KdDbObjectId first = add(L"1");
    setErased(add(L"2"));
    const KdDbObjectId third = add(L"3");
    KdDbSymbolTableIterator walker(table(), true, true);
    KdDbObjectId id;
    walker.step();
    EXPECT_EQ(walker.getRecordId(id), eOk);
    EXPECT_EQ(id, third);
    walker.step(false);
    EXPECT_EQ(walker.getRecordId(id), eOk);
    EXPECT_EQ(id, first);
}

TEST_F(LayerTable, MayGrowDuringAWalk)
{
    add(L"first");
    KdDbSymbolTableIterator walker(table(), true, true);
    int steps = 0;
    for (; !walker.done(); walker.step()) {
        if (++steps < 100)
            add(std::to_wstring(steps).c_str());
    }
    EXPECT_EQ(steps, 100);
}

TEST(SymbolTable, IsReachedByItsClass)
{
    KdDbDatabase database;
    KdDbLayerTable* layers = nullptr;
    ASSERT_EQ(database.getSymbolTable(layers, KdDb::kForRead), eOk);
    EXPECT_EQ(layers->isA(), KdDbLayerTable::desc());
    EXPECT_EQ(layers->objectId(), database.tableId(KdDbLayerTable::desc()));
    layers->close();
    EXPECT_TRUE(database.tableId(KdDbLine::desc()).isNull());
    EXPECT_TRUE(database.tableId(nullptr).isNull());
}

TEST(SymbolTable, OwnsItsRecords)
{
    KdDbDatabase database;
    const auto* style = database.addRecord<KdDbTextStyleTable>(L"Notes");
    EXPECT_EQ(style->ownerId(), database.tableId(KdDbTextStyleTable::desc()));
    EXPECT_EQ(style->name(), L"Notes");
    EXPECT_FALSE(style->isDependent());
}

} // namespace
