#include <database/database.h>

#include <map>
#include <memory>

#include <gtest/gtest.h>

#include <entities/line.h>
#include <runtime/heap.h>

#include "support.h"

namespace {

/// Gives each line its place in the source as start point, and counts how often it was asked.
class CountingSource : public KdDbMemberSource
{
  public:
    explicit CountingSource(std::map<KdDbHandle, int>& reads) : m_reads(reads) {}

    void readMembers(const KdDbObject& object, ObjectMembers& members) override
    {
        ++m_reads[object.handle()];
        auto& line = static_cast<LineMembers&>(members);
        line.start.x = static_cast<double>(object.source().offset);
        line.seldom.edit().colorName = L"a name on the heap";
        line.extendedData = database_test::ExtendedData().text(1001, L"APP").number(3).take();
    }

  private:
    std::map<KdDbHandle, int>& m_reads;
};

class MembersFromASource : public testing::Test
{
  protected:
    MembersFromASource() { m_builder.setSource(std::make_unique<CountingSource>(m_reads)); }

    KdDbLine* line(KdDbHandle handle, SourceRange source)
    {
        return static_cast<KdDbLine*>(m_builder.make(KdDbLine::desc(), handle, source));
    }

    std::map<KdDbHandle, int> m_reads;
    KdDbDatabase m_database{KdDbDatabase::Content::Bare};
    KdDbDatabaseBuilder m_builder{m_database};
};

TEST_F(MembersFromASource, AreReadOnceAndOnFirstUse)
{
    const KdDbLine* first = line(1, {100, 10});
    const KdDbLine* second = line(2, {200, 10});
    EXPECT_EQ(first->objectId().objectClass(), KdDbLine::desc());
    EXPECT_TRUE(m_reads.empty());
    EXPECT_EQ(second->startPoint().x, 200.0);
    EXPECT_EQ(second->linetypeScale(), 1.0);
    EXPECT_EQ(second->startPoint().x, 200.0);
    EXPECT_EQ(m_reads, (std::map<KdDbHandle, int>{{2, 1}}));
    EXPECT_EQ(first->startPoint().x, 100.0);
    EXPECT_EQ(m_reads, (std::map<KdDbHandle, int>{{1, 1}, {2, 1}}));
}

TEST_F(MembersFromASource, AreReadBeforeTheyAreChanged)
{
    const KdDbObjectId id = line(1, {100, 10})->objectId();
    const database_test::OpenForWrite<KdDbLine> open(id);
    open->edit().end.x = 7.0;
    EXPECT_EQ(open->startPoint().x, 100.0);
    EXPECT_EQ(open->endPoint().x, 7.0);
    EXPECT_EQ(m_reads[1], 1);
}

TEST_F(MembersFromASource, AreNotReadForWhatDidNotComeFromIt)
{
    EXPECT_EQ(line(1, {})->startPoint().x, 0.0);
    EXPECT_TRUE(m_reads.empty());
}

TEST_F(MembersFromASource, AreNotReadOverWhatTheReaderFilled)
{
    KdDbLine* filled = line(1, {100, 10});
    static_cast<LineMembers&>(m_builder.membersForFilling(*filled)).start.x = 5.0;
    EXPECT_EQ(filled->startPoint().x, 5.0);
    EXPECT_TRUE(m_reads.empty());
}

TEST_F(MembersFromASource, AreNotNeededForTheLayer)
{
    const KdDbObjectId layer = m_database.addRecord<KdDbLayerTable>(L"Pipes")->objectId();
    KdDbLine* indexed = line(1, {100, 10});
    indexed->setLayer(layer);
    EXPECT_EQ(indexed->layer(), L"Pipes");
    EXPECT_TRUE(m_reads.empty());
}

TEST(MembersInTheArena, GiveBackWhatTheyHoldOnTheHeap)
{
    // The first one makes texts that all later ones share.
    const auto first = std::make_unique<KdDbDatabase>(KdDbDatabase::Content::Bare);
    const long long before = kdHeapBlocksInUse();
    std::map<KdDbHandle, int> reads;
    {
        KdDbDatabase database(KdDbDatabase::Content::Bare);
        KdDbDatabaseBuilder builder(database);
        builder.setSource(std::make_unique<CountingSource>(reads));
        for (KdDbHandle handle = 1; handle <= 100; ++handle) {
            const auto* made =
                static_cast<KdDbLine*>(builder.make(KdDbLine::desc(), handle, {handle, 1}));
            EXPECT_EQ(made->startPoint().x, static_cast<double>(handle));
        }
    }
    EXPECT_EQ(reads.size(), 100u);
    EXPECT_EQ(kdHeapBlocksInUse(), before);
}

} // namespace
