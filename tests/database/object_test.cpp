#include <database/object.h>

#include <gtest/gtest.h>

#include <entities/circle.h>
#include <entities/line.h>

#include "support.h"

using database_test::addToModel;
using database_test::ExtendedData;
using database_test::setErased;

namespace {

class OpenedObject : public testing::Test
{
  protected:
    void TearDown() override { EXPECT_EQ(m_database.openCount(), 0); }

    KdErrorStatus open(KdDb::OpenMode mode, bool openErased = false)
    {
        return kddbOpenObject(m_opened, m_id, mode, openErased);
    }

    KdDbDatabase m_database;
    KdDbLine* m_line = addToModel<KdDbLine>(m_database);
    KdDbObjectId m_id = m_line->objectId();
    KdDbLine* m_opened = nullptr;
};

TEST_F(OpenedObject, MayBeReadByMany)
{
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_EQ(m_opened, m_line);
    EXPECT_EQ(m_database.openCount(), 2);
    EXPECT_TRUE(m_line->isReadEnabled());
    EXPECT_FALSE(m_line->isWriteEnabled());
    EXPECT_EQ(m_line->close(), eOk);
    EXPECT_TRUE(m_line->isReadEnabled());
    EXPECT_EQ(m_line->close(), eOk);
    EXPECT_FALSE(m_line->isReadEnabled());
}

TEST_F(OpenedObject, MayBeReadByMoreThanSixteenBitsCount)
{
    constexpr int kReaders = 70'000;
    for (int i = 0; i < kReaders; ++i)
        ASSERT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_TRUE(m_line->isReadEnabled());
    EXPECT_EQ(open(KdDb::kForWrite), eWasOpenForRead);
    for (int i = 0; i < kReaders; ++i)
        ASSERT_EQ(m_line->close(), eOk);
    EXPECT_EQ(m_line->close(), eNotOpenForRead);
}

TEST_F(OpenedObject, IsWrittenByOneAlone)
{
    EXPECT_EQ(open(KdDb::kForWrite), eOk);
    EXPECT_TRUE(m_line->isWriteEnabled());
    EXPECT_TRUE(m_line->isReadEnabled());
    m_opened = nullptr;
    EXPECT_EQ(open(KdDb::kForWrite), eWasOpenForWrite);
    EXPECT_EQ(open(KdDb::kForRead), eWasOpenForWrite);
    EXPECT_EQ(m_opened, nullptr);
    EXPECT_EQ(m_line->close(), eOk);
    EXPECT_FALSE(m_line->isWriteEnabled());
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_EQ(m_line->close(), eOk);
}

TEST_F(OpenedObject, IsNotWrittenWhileOthersRead)
{
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    m_opened = nullptr;
    EXPECT_EQ(open(KdDb::kForWrite), eWasOpenForRead);
    EXPECT_EQ(m_opened, nullptr);
    EXPECT_EQ(m_database.openCount(), 1);
    m_line->close();
}

TEST_F(OpenedObject, CannotBeClosedTwice)
{
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_EQ(m_line->close(), eOk);
    EXPECT_EQ(m_line->close(), eNotOpenForRead);
    EXPECT_EQ(m_database.openCount(), 0);
}

TEST_F(OpenedObject, IsErasedWhileOpenForWriteAlone)
{
    EXPECT_EQ(m_line->erase(), eNotOpenForWrite);
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    EXPECT_EQ(m_line->erase(), eNotOpenForWrite);
    m_line->close();
    EXPECT_FALSE(m_id.isErased());
    setErased(m_id);
    EXPECT_TRUE(m_id.isErased());
}

TEST_F(OpenedObject, OpensErasedOnRequestAlone)
{
    setErased(m_id);
    EXPECT_EQ(open(KdDb::kForRead), eWasErased);
    EXPECT_EQ(open(KdDb::kForWrite), eWasErased);
    EXPECT_EQ(m_opened, nullptr);
    EXPECT_EQ(open(KdDb::kForRead, true), eOk);
    EXPECT_TRUE(m_opened->isErased());
    m_opened->close();
    setErased(m_id, false);
    EXPECT_EQ(open(KdDb::kForRead), eOk);
    m_opened->close();
}

TEST_F(OpenedObject, IsOfTheClassAskedFor)
{
    KdDbCircle* circle = nullptr;
    EXPECT_EQ(kddbOpenObject(circle, m_id), eNotThatKindOfClass);
    EXPECT_EQ(circle, nullptr);
    KdDbEntity* entity = nullptr;
    EXPECT_EQ(kddbOpenObject(entity, m_id), eOk);
    EXPECT_EQ(entity, m_line);
    entity->close();
}

TEST_F(OpenedObject, HasAnIdThatIsNotNull)
{
    EXPECT_EQ(kddbOpenObject(m_opened, KdDbObjectId()), eNullObjectId);
    EXPECT_EQ(m_opened, nullptr);
}

TEST_F(OpenedObject, IsHeldByAScope)
{
    {
        const OpenForRead<KdDbLine> line(m_id);
        ASSERT_TRUE(line);
        EXPECT_EQ(line.get(), m_line);
        EXPECT_EQ(line.status(), eOk);
        EXPECT_EQ(m_database.openCount(), 1);
    }
    EXPECT_EQ(m_database.openCount(), 0);
    const OpenForRead<KdDbCircle> circle(m_id);
    EXPECT_FALSE(circle);
    EXPECT_EQ(circle.status(), eNotThatKindOfClass);
}

TEST(ObjectId, TellsWhatItNames)
{
    KdDbDatabase database;
    const KdDbLine* line = addToModel<KdDbLine>(database);
    const KdDbObjectId id = line->objectId();
    EXPECT_FALSE(id.isNull());
    EXPECT_EQ(id.handle(), line->handle());
    EXPECT_EQ(id.database(), &database);
    EXPECT_EQ(id.objectClass(), KdDbLine::desc());
    EXPECT_EQ(id.ownerId(), database.modelSpaceId());
    EXPECT_TRUE(id.isKindOf(KdDbEntity::desc()));
    EXPECT_FALSE(id.isKindOf(KdDbCircle::desc()));
    EXPECT_EQ(id, line->objectId());
    EXPECT_NE(id, database.modelSpaceId());
}

TEST(ObjectId, NamesNothingWhenNull)
{
    const KdDbObjectId null;
    EXPECT_TRUE(null.isNull());
    EXPECT_EQ(null, KdDbObjectId::kNull);
    EXPECT_EQ(null.handle(), 0u);
    EXPECT_EQ(null.database(), nullptr);
    EXPECT_EQ(null.objectClass(), nullptr);
    EXPECT_EQ(null.ownerId(), null);
    EXPECT_FALSE(null.isKindOf(KdDbObject::desc()));
    EXPECT_FALSE(null.isErased());
}

TEST(EntityName, LeadsBackToItsId)
{
    KdDbDatabase database;
    const KdDbObjectId id = addToModel<KdDbLine>(database)->objectId();
    kds_name name = {0, 0};
    EXPECT_EQ(kddbGetKdsName(name, id), eOk);
    KdDbObjectId back;
    EXPECT_EQ(kddbGetObjectId(back, name), eOk);
    EXPECT_EQ(back, id);
}

TEST(EntityName, IsNotMadeForTheNullId)
{
    kds_name name = {11, 12};
    EXPECT_EQ(kddbGetKdsName(name, {}), eNullObjectId);
    EXPECT_EQ(name[0], 11);
    EXPECT_EQ(name[1], 12);
}

TEST(EntityName, OfAnotherKindIsRefused)
{
    KdDbDatabase database;
    const KdDbObjectId before = database.modelSpaceId();
    KdDbObjectId id = before;
    const kds_name empty = {0, 0};
    kds_name spoilt = {0, 0};
    EXPECT_EQ(kddbGetKdsName(spoilt, before), eOk);
    ++spoilt[1];
    EXPECT_EQ(kddbGetObjectId(id, empty), eInvalidInput);
    EXPECT_EQ(kddbGetObjectId(id, spoilt), eInvalidInput);
    EXPECT_EQ(kddbGetObjectId(id, nullptr), eInvalidInput);
    EXPECT_EQ(kddbGetKdsName(nullptr, before), eInvalidInput);
    EXPECT_EQ(id, before);
}

class ObjectExtendedData : public testing::Test
{
  protected:
    void SetUp() override
    {
        m_line.edit().extendedData = ExtendedData()
                                         .text(1001, L"First")
                                         .number(1)
                                         .number(2)
                                         .text(1001, L"Empty")
                                         .text(1001, L"Last")
                                         .text(1000, L"value")
                                         .take();
    }

    KdDbLine m_line;
    const resbuf* m_end = nullptr;
};

TEST_F(ObjectExtendedData, OfOneApplicationEndsWhereTheNextBegins)
{
    const resbuf* first = m_line.extendedData(L"First", m_end);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->resval.rint, 1);
    EXPECT_EQ(first->rbnext->resval.rint, 2);
    EXPECT_EQ(first->rbnext->rbnext, m_end);
    EXPECT_EQ(m_end->restype, 1001);
}

TEST_F(ObjectExtendedData, OfTheLastApplicationEndsWithTheChain)
{
    const resbuf* first = m_line.extendedData(L"Last", m_end);
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->resval.rstring, L"value");
    EXPECT_EQ(first->rbnext, m_end);
    EXPECT_EQ(m_end, nullptr);
}

TEST_F(ObjectExtendedData, OfAllApplicationsIsTheWholeChain)
{
    const resbuf* first = m_line.extendedData(nullptr, m_end);
    ASSERT_NE(first, nullptr);
    EXPECT_STREQ(first->resval.rstring, L"First");
    EXPECT_EQ(m_end, nullptr);
    EXPECT_EQ(KdDbLine().extendedData(nullptr, m_end), nullptr);
}

TEST_F(ObjectExtendedData, IsFoundWithoutCase)
{
    EXPECT_NE(m_line.extendedData(L"FIRST", m_end), nullptr);
}

TEST_F(ObjectExtendedData, IsNullWhereThereIsNone)
{
    EXPECT_EQ(m_line.extendedData(L"Missing", m_end), nullptr);
    EXPECT_EQ(m_line.extendedData(L"Empty", m_end), nullptr);
    EXPECT_EQ(m_line.extendedData(L"value", m_end), nullptr);
    EXPECT_EQ(KdDbLine().extendedData(L"First", m_end), nullptr);
}

ResbufChain annotativeData(short flag)
{
    return ExtendedData()
        .text(1001, L"AcadAnnotative")
        .text(1000, L"AnnotativeData")
        .text(1002, L"{")
        .number(1)
        .number(flag)
        .text(1002, L"}")
        .take();
}

TEST(ObjectAnnotative, FollowsTheSecondNumberOfItsExtendedData)
{
    KdDbLine line;
    EXPECT_FALSE(line.isAnnotative());
    line.edit().extendedData = annotativeData(1);
    EXPECT_TRUE(line.isAnnotative());
    line.edit().extendedData = annotativeData(0);
    EXPECT_FALSE(line.isAnnotative());
}

TEST(ObjectAnnotative, IsFalseWhereTheDataBreakOff)
{
    KdDbLine line;
    line.edit().extendedData = ExtendedData().text(1001, L"AcadAnnotative").number(1).take();
    EXPECT_FALSE(line.isAnnotative());
}

TEST(ObjectReactors, AreNoneUnlessGiven)
{
    KdDbLine line;
    EXPECT_TRUE(line.reactors().empty());
    line.edit().links.edit().reactors = {line.objectId()};
    ASSERT_EQ(line.reactors().size(), 1u);
    EXPECT_EQ(line.reactors()[0], line.objectId());
}

TEST(ObjectOutsideADatabase, CanBeChangedWithoutOpening)
{
    KdDbLine line;
    EXPECT_TRUE(line.isWriteEnabled());
    EXPECT_EQ(line.database(), nullptr);
    EXPECT_EQ(line.handle(), 0u);
    EXPECT_TRUE(line.ownerId().isNull());
    EXPECT_EQ(line.erase(), eOk);
    line.edit().seldom.edit().linetypeScale = 2.0;
    EXPECT_EQ(line.linetypeScale(), 2.0);
    EXPECT_EQ(line.close(), eNotOpenForRead);
}

} // namespace
