#include <database/database.h>

#include <vector>

#include <gtest/gtest.h>

#include <entities/line.h>

#include "support.h"

namespace {

class Builder : public testing::Test
{
  protected:
    KdDbObject* line(KdDbHandle handle) { return m_builder.make(KdDbLine::desc(), handle, {}); }
    KdDbObjectId find(KdDbHandle handle) const
    {
        KdDbObjectId id;
        m_database.getObjectId(id, handle);
        return id;
    }

    KdDbDatabase m_database{KdDbDatabase::Content::Bare};
    KdDbDatabaseBuilder m_builder{m_database};
};

TEST_F(Builder, MakesObjectsOfTheClassInTheDatabase)
{
    const KdDbObject* made = m_builder.make(KdDbLine::desc(), 0x2A, {1000, 50});
    EXPECT_EQ(made->isA(), KdDbLine::desc());
    EXPECT_EQ(made->database(), &m_database);
    EXPECT_EQ(made->handle(), 0x2Au);
    EXPECT_EQ(made->source().offset, 1000u);
    EXPECT_EQ(made->source().length, 50u);
    EXPECT_TRUE(made->ownerId().isNull());
    EXPECT_EQ(m_database.objects().back(), made);
}

TEST_F(Builder, FindsHandlesInWhateverOrderTheyCame)
{
    const KdDbHandle handles[] = {0x50, 0x10, 0x30, 0xFF, 0x20};
    std::vector<KdDbObjectId> ids;
    for (const KdDbHandle handle : handles) {
        ids.push_back(line(handle)->objectId());
        EXPECT_EQ(find(handle), ids.back());
    }
    for (std::size_t i = 0; i < ids.size(); ++i)
        EXPECT_EQ(find(handles[i]), ids[i]);
    EXPECT_TRUE(find(0x11).isNull());
}

struct RunsOfHandles
{
    const char* name;
    std::vector<KdDbHandle> handles;
};

class BuilderOfRuns : public Builder, public testing::WithParamInterface<RunsOfHandles>
{
};

TEST_P(BuilderOfRuns, FindsEachHandleOnceAllHaveCome)
{
    std::vector<KdDbObjectId> ids;
    for (const KdDbHandle handle : GetParam().handles)
        ids.push_back(line(handle)->objectId());
    for (std::size_t i = 0; i < ids.size(); ++i)
        EXPECT_EQ(find(GetParam().handles[i]), ids[i]);
    EXPECT_TRUE(find(99).isNull());
}

INSTANTIATE_TEST_SUITE_P(
    All, BuilderOfRuns,
    testing::Values(RunsOfHandles{"none", {}}, RunsOfHandles{"one", {1, 2, 3}},
                    RunsOfHandles{"oneBelowTheOther", {11, 12, 13, 1, 2}},
                    RunsOfHandles{"oneAmidTheOther", {1, 2, 8, 9, 3, 4}},
                    RunsOfHandles{"oneThroughTheOther", {1, 3, 5, 7, 2, 4, 6, 8}},
                    RunsOfHandles{"oneBeginningInTheOther", {1, 3, 5, 4, 6, 7}},
                    RunsOfHandles{"three", {21, 22, 11, 12, 1, 2}},
                    RunsOfHandles{"fallingAlone", {5, 4, 3, 2, 1}}),
    [](const auto& row) { return row.param.name; });

TEST_F(Builder, FindsTheFirstOfADoubledHandleAlsoAtTheEndsOfRuns)
{
    const KdDbObject* ten = line(10);
    const KdDbObject* twenty = line(20);
    line(10);
    line(20);
    EXPECT_EQ(find(10), ten->objectId());
    EXPECT_EQ(find(20), twenty->objectId());
}

TEST_F(Builder, FindsTheFirstOfADoubledHandle)
{
    line(0x30);
    const KdDbObject* first = line(0x20);
    line(0x20);
    EXPECT_EQ(find(0x20), first->objectId());
}

TEST_F(Builder, HandsOutHandlesAboveAllThatAreInUse)
{
    KdDbObject* nameless = line(0);
    line(0x100);
    EXPECT_EQ(nameless->handle(), 0u);
    EXPECT_TRUE(find(0).isNull());
    m_builder.finish();
    EXPECT_GT(nameless->handle(), 0x100u);
    for (const KdDbObject* object : m_database.objects())
        EXPECT_EQ(find(object->handle()), object->objectId());
}

class BuilderWithALargeHandle : public Builder, public testing::WithParamInterface<KdDbHandle>
{
};

TEST_P(BuilderWithALargeHandle, GivesNewObjectsHandlesOfTheirOwn)
{
    line(GetParam());
    m_builder.finish();
    for (const KdDbObject* object : m_database.objects()) {
        EXPECT_NE(object->handle(), 0u);
        EXPECT_EQ(find(object->handle()), object->objectId());
    }
}

INSTANTIATE_TEST_SUITE_P(All, BuilderWithALargeHandle,
                         testing::Values(0x7FFFFFFFFFFFFFFF, 0x8000000000000000,
                                         0xFFFFFFFFFFFFFFFF));

TEST_F(Builder, SetsOwners)
{
    KdDbObject* owned = line(1);
    const KdDbObjectId layers = m_database.tableId(KdDbLayerTable::desc());
    m_builder.setOwner(*owned, layers);
    EXPECT_EQ(owned->ownerId(), layers);
}

TEST_F(Builder, AddsWhatEveryDrawingHas)
{
    m_builder.finish();
    const KdDbDatabase standard;
    EXPECT_EQ(m_database.objects().size(), standard.objects().size());
    EXPECT_TRUE(m_database.table<KdDbLayerTable>().has(L"0"));
    EXPECT_FALSE(m_database.modelSpaceId().isNull());
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(Builder, AddsNothingTwice)
{
    m_builder.finish();
    const std::size_t before = m_database.objects().size();
    m_builder.finish();
    EXPECT_EQ(m_database.objects().size(), before);
}

/// A drawing that brings some of the standard content itself.
class BuilderOfAFile : public Builder
{
  protected:
    BuilderOfAFile()
    {
        m_named = dictionary();
        m_builder.setNamedObjectsDictionary(m_named->objectId());
        m_layouts = dictionary();
        enter(*m_named, L"ACAD_LAYOUT", *m_layouts);
    }

    KdDbDictionary* dictionary()
    {
        return static_cast<KdDbDictionary*>(m_builder.make(KdDbDictionary::desc(), 0, {}));
    }
    void enter(KdDbDictionary& dictionary, const wchar_t* name, const KdDbObject& object)
    {
        auto& members = static_cast<DictionaryMembers&>(m_builder.membersForFilling(dictionary));
        members.entries.push_back({name, object.objectId()});
    }
    KdDbLayout* layout(const wchar_t* name, KdDbObjectId block)
    {
        auto* made = static_cast<KdDbLayout*>(m_builder.make(KdDbLayout::desc(), 0, {}));
        auto& members = static_cast<LayoutMembers&>(m_builder.membersForFilling(*made));
        members.name = name;
        members.block = block;
        members.tabOrder = 5;
        enter(*m_layouts, name, *made);
        return made;
    }
    KdDbObjectId layoutOf(KdDbObjectId block) const
    {
        return OpenForRead<KdDbBlockTableRecord>(block)->getLayoutId();
    }

    KdDbDictionary* m_named = nullptr;
    KdDbDictionary* m_layouts = nullptr;
};

TEST_F(BuilderOfAFile, KeepsItsDictionaries)
{
    m_builder.finish();
    EXPECT_EQ(m_database.namedObjectsDictionaryId(), m_named->objectId());
    EXPECT_EQ(m_named->numEntries(), 2u);
    EXPECT_EQ(m_layouts->numEntries(), 2u);
}

TEST_F(BuilderOfAFile, TiesALayoutWithoutBlockToItsSpace)
{
    const KdDbLayout* model = layout(L"Model", {});
    m_builder.finish();
    EXPECT_EQ(model->getBlockTableRecordId(), m_database.modelSpaceId());
    EXPECT_EQ(layoutOf(m_database.modelSpaceId()), model->objectId());
    EXPECT_EQ(model->getTabOrder(), 5);
}

TEST_F(BuilderOfAFile, KeepsTheLayoutThatANameHasAlready)
{
    const KdDbObjectId other = m_database.addRecord<KdDbBlockTable>(L"*Paper_Space7")->objectId();
    const KdDbLayout* first = layout(L"Layout1", other);
    m_builder.finish();
    KdDbObjectId found;
    EXPECT_EQ(m_layouts->getAt(L"Layout1", found), eOk);
    EXPECT_EQ(found, first->objectId());
    EXPECT_EQ(first->getBlockTableRecordId(), other);
    EXPECT_FALSE(layoutOf(m_database.activeSheetId()).isNull());
}

TEST_F(BuilderOfAFile, ReplacesAnEntryThatIsNoLayout)
{
    enter(*m_layouts, L"Model", *m_named);
    m_builder.finish();
    KdDbObjectId found;
    EXPECT_EQ(m_layouts->getAt(L"Model", found), eOk);
    EXPECT_EQ(found.objectClass(), KdDbLayout::desc());
}

TEST_F(BuilderOfAFile, KeepsItsPlotStyles)
{
    KdDbDictionary* styles = dictionary();
    enter(*m_named, L"ACAD_PLOTSTYLENAME", *styles);
    m_builder.finish();
    EXPECT_EQ(styles->numEntries(), 0u);
}

} // namespace
