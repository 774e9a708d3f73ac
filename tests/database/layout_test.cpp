#include <database/layout.h>

#include <gtest/gtest.h>

#include "support.h"

using database_test::OpenForWrite;

namespace {

class Layouts : public testing::Test
{
  protected:
    /// A further layout with a sheet of its own.
    KdDbObjectId addLayout(const wchar_t* name, const wchar_t* blockName)
    {
        const KdDbObjectId block = m_database.addRecord<KdDbBlockTable>(blockName)->objectId();
        const OpenForRead<KdDbDictionary> named(m_database.namedObjectsDictionaryId());
        KdDbObjectId layouts;
        EXPECT_EQ(named->getAt(L"ACAD_LAYOUT", layouts), eOk);
        auto* layout = new KdDbLayout;
        layout->edit().name = name;
        layout->edit().block = block;
        m_database.addObject(layout, layouts);
        EXPECT_EQ(OpenForWrite<KdDbDictionary>(layouts)->setAt(name, layout->objectId()), eOk);
        return block;
    }
    int tilemode() const { return m_database.header().integer(L"TILEMODE"); }

    KdDbDatabase m_database;
    KdDbLayoutManager m_manager;
};

TEST_F(Layouts, BeginWithTheModelActive)
{
    EXPECT_EQ(tilemode(), 1);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(&m_database), m_database.modelSpaceId());
}

TEST_F(Layouts, AreFoundByNameWithoutCase)
{
    EXPECT_EQ(m_manager.findBlock(L"MODEL", &m_database), m_database.modelSpaceId());
    EXPECT_EQ(m_manager.findBlock(L"layout1", &m_database), m_database.activeSheetId());
    const KdDbObjectId second = addLayout(L"Second", L"*Paper_Space0");
    EXPECT_EQ(m_manager.findBlock(L"second", &m_database), second);
    EXPECT_TRUE(m_manager.findBlock(L"missing", &m_database).isNull());
    EXPECT_TRUE(m_manager.findBlock(nullptr, &m_database).isNull());
}

TEST_F(Layouts, BecomeActiveByName)
{
    const KdDbObjectId first = m_database.activeSheetId();
    const KdDbObjectId second = addLayout(L"Second", L"*Paper_Space0");
    EXPECT_EQ(m_manager.setCurrentLayout(L"Second", &m_database), eOk);
    EXPECT_EQ(tilemode(), 0);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(&m_database), second);

    EXPECT_EQ(m_manager.setCurrentLayout(L"Model", &m_database), eOk);
    EXPECT_EQ(tilemode(), 1);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(&m_database), m_database.modelSpaceId());
    EXPECT_EQ(m_database.activeSheetId(), second);

    EXPECT_EQ(m_manager.setCurrentLayout(L"Layout1", &m_database), eOk);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(&m_database), first);
}

TEST_F(Layouts, StayAsTheyAreForAnUnknownName)
{
    EXPECT_EQ(m_manager.setCurrentLayout(L"missing", &m_database), eKeyNotFound);
    EXPECT_EQ(tilemode(), 1);
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(Layouts, AreThoseOfTheWorkingDatabaseByDefault)
{
    KdDbHostApplicationServices* services = kddbHostApplicationServices();
    services->setWorkingDatabase(&m_database);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(), m_database.modelSpaceId());
    EXPECT_EQ(m_manager.setCurrentLayout(L"Layout1"), eOk);
    EXPECT_EQ(m_manager.getActiveLayoutBTRId(), m_manager.findBlock(L"Layout1"));
    services->setWorkingDatabase(nullptr);
    EXPECT_TRUE(m_manager.getActiveLayoutBTRId().isNull());
    EXPECT_TRUE(m_manager.findBlock(L"Model").isNull());
    EXPECT_EQ(m_manager.setCurrentLayout(L"Model"), eKeyNotFound);
}

TEST(LayoutsOfABareDatabase, AreNotThere)
{
    const KdDbDatabase database(KdDbDatabase::Content::Bare);
    const KdDbLayoutManager manager;
    EXPECT_TRUE(manager.getActiveLayoutBTRId(&database).isNull());
    EXPECT_TRUE(manager.findBlock(L"Model", &database).isNull());
}

} // namespace
