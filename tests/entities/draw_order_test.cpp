// The order in which the entities of a block lie over each other.
#include <entities/draw_order.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <database/database.h>
#include <database/dictionary.h>
#include <entities/line.h>

namespace {

using testing::ElementsAre;
using Entries = std::vector<SortentsTableMembers::Entry>;

class DrawOrder : public testing::Test
{
  protected:
    KdDbObjectId addLine()
    {
        auto* line = new KdDbLine;
        KdDbBlockTableRecord* model = nullptr;
        EXPECT_EQ(kddbOpenObject(model, m_drawing.modelSpaceId(), KdDb::kForWrite), eOk);
        EXPECT_EQ(model->appendEntity(line), eOk);
        model->close();
        return line->objectId();
    }

    void addTable(const Entries& entries)
    {
        auto* dictionary = new KdDbDictionary;
        auto* table = new KdDbSortentsTable;
        table->edit().entries = entries;
        m_drawing.addObject(dictionary, m_drawing.modelSpaceId());
        m_drawing.addObject(table, dictionary->objectId());
        KdDbDictionary* opened = nullptr;
        ASSERT_EQ(kddbOpenObject(opened, dictionary->objectId(), KdDb::kForWrite), eOk);
        opened->setAt(L"ACAD_SORTENTS", table->objectId());
        opened->close();
        KdDbBlockTableRecord* model = nullptr;
        ASSERT_EQ(kddbOpenObject(model, m_drawing.modelSpaceId(), KdDb::kForWrite), eOk);
        model->edit().links.edit().extensionDictionary = dictionary->objectId();
        model->close();
    }

    std::vector<KdDbObjectId> order() const
    {
        const OpenForRead<KdDbBlockTableRecord> model(m_drawing.modelSpaceId());
        return kddbDrawOrder(*model);
    }

    KdDbDatabase m_drawing;
    const KdDbObjectId m_first = addLine();
    const KdDbObjectId m_second = addLine();
    const KdDbObjectId m_third = addLine();
};

TEST_F(DrawOrder, IsThatOfTheDrawingUnlessItSaysOtherwise)
{
    EXPECT_THAT(order(), ElementsAre(m_first, m_second, m_third));
}

TEST_F(DrawOrder, GoesByTheHandlesThatStandForTheOwnOnes)
{
    addTable({{m_first, m_third.handle()}, {m_third, m_first.handle()}});
    EXPECT_THAT(order(), ElementsAre(m_third, m_second, m_first));
}

TEST_F(DrawOrder, KeepsEntitiesOfOneHandleAsTheyAre)
{
    addTable({{m_first, m_third.handle()}});
    EXPECT_THAT(order(), ElementsAre(m_second, m_first, m_third));
}

TEST_F(DrawOrder, OfATableWithoutEntriesIsThatOfTheDrawing)
{
    addTable({});
    EXPECT_THAT(order(), ElementsAre(m_first, m_second, m_third));
}

} // namespace
