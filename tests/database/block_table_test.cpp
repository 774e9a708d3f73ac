#include <database/block_table.h>

#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <entities/line.h>

#include "support.h"

using database_test::addToModel;
using database_test::setErased;

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Model : public testing::Test
{
  protected:
    KdDbObjectId add() { return addToModel<KdDbLine>(m_database)->objectId(); }

    std::vector<KdDbObjectId> walk(bool forward, bool skipErased)
    {
        const OpenForRead<KdDbBlockTableRecord> model(m_database.modelSpaceId());
        KdDbBlockTableRecordIterator* walker = nullptr;
        EXPECT_EQ(model->newIterator(walker, forward, skipErased), eOk);
        const std::unique_ptr<KdDbBlockTableRecordIterator> owner(walker);
        std::vector<KdDbObjectId> ids;
        for (; !walker->done(); walker->step(forward, skipErased)) {
            ids.emplace_back();
            EXPECT_EQ(walker->getEntityId(ids.back()), eOk);
        }
        return ids;
    }

    KdDbDatabase m_database;
};

TEST_F(Model, KeepsItsEntitiesInOrder)
{
    const KdDbObjectId first = add();
    const KdDbObjectId second = add();
    EXPECT_THAT(walk(true, true), ElementsAre(first, second));
    EXPECT_THAT(walk(false, true), ElementsAre(second, first));
    const OpenForRead<KdDbBlockTableRecord> model(m_database.modelSpaceId());
    EXPECT_THAT(model->entityIds(), ElementsAre(first, second));
}

TEST_F(Model, IsWalkedWhenEmpty)
{
    EXPECT_THAT(walk(true, true), IsEmpty());
    EXPECT_THAT(walk(false, false), IsEmpty());
}

TEST_F(Model, IsWalkedPastErasedEntitiesOnRequest)
{
    const KdDbObjectId first = add();
    const KdDbObjectId second = add();
    setErased(first);
    EXPECT_THAT(walk(true, true), ElementsAre(second));
    EXPECT_THAT(walk(false, true), ElementsAre(second));
    EXPECT_THAT(walk(true, false), ElementsAre(first, second));
}

TEST_F(Model, OpensTheEntityAtTheWalkersPlace)
{
    const KdDbObjectId id = add();
    const OpenForRead<KdDbBlockTableRecord> model(m_database.modelSpaceId());
    KdDbBlockTableRecordIterator walker(*model, true, true);
    KdDbEntity* entity = nullptr;
    EXPECT_EQ(walker.getEntity(entity), eOk);
    ASSERT_NE(entity, nullptr);
    EXPECT_EQ(entity->objectId(), id);
    EXPECT_TRUE(entity->isReadEnabled());
    KdDbEntity* other = nullptr;
    EXPECT_EQ(walker.getEntity(other, KdDb::kForWrite), eWasOpenForRead);
    entity->close();
    EXPECT_EQ(walker.getEntity(other, KdDb::kForWrite), eOk);
    EXPECT_TRUE(other->isWriteEnabled());
    other->close();
}

TEST_F(Model, OpensErasedEntitiesOnRequestAlone)
{
    setErased(add());
    const OpenForRead<KdDbBlockTableRecord> model(m_database.modelSpaceId());
    KdDbBlockTableRecordIterator walker(*model, true, false);
    KdDbEntity* entity = nullptr;
    EXPECT_EQ(walker.getEntity(entity), eWasErased);
    EXPECT_EQ(walker.getEntity(entity, KdDb::kForRead, true), eOk);
    entity->close();
    walker.step();
    entity = nullptr;
    EXPECT_EQ(walker.getEntity(entity), eOutOfRange);
    EXPECT_EQ(entity, nullptr);
}

TEST_F(Model, TakesAnEntityOver)
{
    const auto* line = addToModel<KdDbLine>(m_database);
    EXPECT_EQ(line->database(), &m_database);
    EXPECT_EQ(line->ownerId(), m_database.modelSpaceId());
    EXPECT_NE(line->handle(), 0u);
}

TEST_F(Model, PutsAnEntityWithoutLayerOnTheCurrentOne)
{
    EXPECT_EQ(addToModel<KdDbLine>(m_database)->layer(), L"0");
    m_database.header().setValue(KdDbHeaderVariables::indexOf(L"CLAYER"), KdString(L"Pipes"));
    EXPECT_EQ(addToModel<KdDbLine>(m_database)->layer(), L"Pipes");
}

TEST_F(Model, LeavesAnEntityOnTheLayerItHas)
{
    auto* line = new KdDbLine;
    line->setLayer(m_database.addRecord<KdDbLayerTable>(L"Own")->objectId());
    const database_test::OpenForWrite<KdDbBlockTableRecord> model(m_database.modelSpaceId());
    EXPECT_EQ(model->appendEntity(line), eOk);
    EXPECT_EQ(line->layer(), L"Own");
}

TEST_F(Model, RefusesWhatItCannotOwn)
{
    const database_test::OpenForWrite<KdDbBlockTableRecord> model(m_database.modelSpaceId());
    EXPECT_EQ(model->appendEntity(nullptr), eNullObjectPointer);

    KdDbDatabase other;
    auto* foreign = new KdDbLine;
    EXPECT_EQ(other.addObject(foreign, {}), eOk);
    EXPECT_EQ(model->appendEntity(foreign), eWrongDatabase);
    EXPECT_TRUE(foreign->layerId().isNull());
    EXPECT_THAT(model->entityIds(), IsEmpty());
}

TEST(Block, WithoutDatabaseLeavesTheEntityToItsCaller)
{
    KdDbBlockTableRecord block;
    KdDbLine line;
    EXPECT_EQ(block.appendEntity(&line), eNotInDatabase);
    EXPECT_EQ(line.database(), nullptr);
    EXPECT_THAT(block.entityIds(), IsEmpty());
}

TEST(Block, TellsWhatItsDefinitionSays)
{
    KdDbDatabase database;
    auto* block = database.addRecord<KdDbBlockTable>(L"Valve");
    const database_test::OpenForWrite<KdDbBlockTableRecord> open(block->objectId());
    BlockMembers& members = open->edit();
    members.origin = {1.0, 2.0, 3.0};
    members.comments = L"a valve";
    members.insertUnits = 4;
    members.anonymous = true;
    EXPECT_EQ(block->origin(), (KdGePoint3d{1.0, 2.0, 3.0}));
    EXPECT_EQ(block->comments(), L"a valve");
    EXPECT_EQ(block->blockInsertUnits(), 4);
    EXPECT_TRUE(block->isAnonymous());
    EXPECT_FALSE(block->isLayout());
    EXPECT_FALSE(block->isFromExternalReference());
}

} // namespace
