#include <database/database.h>

#include <memory>

#include <gtest/gtest.h>

#include <database/dimension_style.h>
#include <entities/line.h>

#include "support.h"

using database_test::addToModel;

namespace {

bool contains(const KdDbDictionary& dictionary, const wchar_t* name)
{
    KdDbObjectId id;
    return dictionary.getAt(name, id) == eOk && !id.isNull();
}

TEST(StandardDatabase, HasTheStandardRecords)
{
    const KdDbDatabase database;
    EXPECT_TRUE(database.table<KdDbLayerTable>().has(L"0"));
    EXPECT_TRUE(database.table<KdDbLinetypeTable>().has(L"ByLayer"));
    EXPECT_TRUE(database.table<KdDbLinetypeTable>().has(L"ByBlock"));
    EXPECT_TRUE(database.table<KdDbLinetypeTable>().has(L"Continuous"));
    EXPECT_TRUE(database.table<KdDbTextStyleTable>().has(L"Standard"));
    EXPECT_TRUE(database.table<KdDbDimStyleTable>().has(L"Standard"));
    EXPECT_TRUE(database.table<KdDbRegAppTable>().has(L"ACAD"));
    EXPECT_EQ(database.table<KdDbUCSTable>().count(), 0u);
    EXPECT_EQ(database.table<KdDbViewportTable>().count(), 0u);
}

TEST(StandardDatabase, HasTheModelAndOneSheet)
{
    const KdDbDatabase database;
    EXPECT_EQ(database.table<KdDbBlockTable>().count(), 2u);
    for (const KdDbObjectId id : {database.modelSpaceId(), database.activeSheetId()}) {
        const OpenForRead<KdDbBlockTableRecord> block(id);
        ASSERT_TRUE(block);
        EXPECT_TRUE(block->isLayout());
        const OpenForRead<KdDbLayout> layout(block->getLayoutId());
        ASSERT_TRUE(layout);
        EXPECT_EQ(layout->getBlockTableRecordId(), id);
        EXPECT_EQ(layout->getTabOrder(), id == database.modelSpaceId() ? 0 : 1);
    }
    EXPECT_NE(database.modelSpaceId(), database.activeSheetId());
}

TEST(StandardDatabase, HasTheDictionaries)
{
    KdDbDatabase database;
    const OpenForRead<KdDbDictionary> named(database.namedObjectsDictionaryId());
    ASSERT_TRUE(named);
    KdDbObjectId id;
    EXPECT_EQ(named->getAt(L"ACAD_LAYOUT", id), eOk);
    const OpenForRead<KdDbDictionary> layouts(id);
    EXPECT_EQ(layouts->numEntries(), 2u);
    EXPECT_TRUE(contains(*layouts, L"Model"));
    EXPECT_TRUE(contains(*layouts, L"Layout1"));
    KdDbDictionary* styles = nullptr;
    ASSERT_EQ(database.getPlotStyleNameDictionary(styles, KdDb::kForRead), eOk);
    EXPECT_TRUE(contains(*styles, L"Normal"));
    styles->close();
}

TEST(StandardDatabase, LeavesNothingOpen)
{
    const KdDbDatabase database;
    EXPECT_EQ(database.openCount(), 0);
    for (const KdDbObject* object : database.objects())
        EXPECT_FALSE(object->isReadEnabled());
}

TEST(StandardDatabase, FindsEachObjectByItsHandle)
{
    KdDbDatabase database;
    for (int i = 0; i < 10; ++i)
        addToModel<KdDbLine>(database);
    for (const KdDbObject* object : database.objects()) {
        ASSERT_NE(object->handle(), 0u);
        KdDbObjectId found;
        EXPECT_EQ(database.getObjectId(found, object->handle()), eOk);
        EXPECT_EQ(found, object->objectId());
    }
}

TEST(BareDatabase, HasTheEmptyTablesAlone)
{
    KdDbDatabase database(KdDbDatabase::Content::Bare);
    EXPECT_EQ(database.objects().size(), 8u);
    EXPECT_EQ(database.table<KdDbBlockTable>().count(), 0u);
    EXPECT_TRUE(database.modelSpaceId().isNull());
    EXPECT_TRUE(database.activeSheetId().isNull());
    EXPECT_TRUE(database.namedObjectsDictionaryId().isNull());
    KdDbDictionary* styles = nullptr;
    EXPECT_EQ(database.getPlotStyleNameDictionary(styles, KdDb::kForRead), eKeyNotFound);
    EXPECT_EQ(styles, nullptr);
}

TEST(Database, DoesNotKnowHandlesThatAreNotInUse)
{
    const KdDbDatabase database;
    const KdDbObjectId before = database.modelSpaceId();
    KdDbObjectId id = before;
    EXPECT_EQ(database.getObjectId(id, 0), eKeyNotFound);
    EXPECT_EQ(database.getObjectId(id, 0xFFFFFFFFFFFFFFFF), eKeyNotFound);
    EXPECT_EQ(id, before);
}

TEST(Database, TakesNewObjectsAlone)
{
    KdDbDatabase one;
    KdDbDatabase two;
    auto* line = new KdDbLine;
    EXPECT_EQ(one.addObject(nullptr, {}), eNullObjectPointer);
    EXPECT_EQ(one.addObject(line, {}), eOk);
    EXPECT_EQ(one.addObject(line, {}), eWrongDatabase);
    EXPECT_EQ(two.addObject(line, {}), eWrongDatabase);
    EXPECT_EQ(line->database(), &one);
}

TEST(Database, DestroysItsObjectsWithItself)
{
    static int alive = 0;
    class Counted : public KdDbLine
    {
      public:
        Counted() { ++alive; }
        ~Counted() override { --alive; }
    };
    {
        KdDbDatabase database;
        addToModel<Counted>(database);
        addToModel<Counted>(database);
        EXPECT_EQ(alive, 2);
    }
    EXPECT_EQ(alive, 0);
}

TEST(Database, FindsARecordOrAddsIt)
{
    KdDbDatabase database;
    const KdDbObjectId added = database.findOrAddRecord<KdDbLayerTable>(L"New");
    EXPECT_EQ(database.findOrAddRecord<KdDbLayerTable>(L"NEW"), added);
    EXPECT_EQ(added.objectClass(), KdDbLayerTableRecord::desc());
}

} // namespace
