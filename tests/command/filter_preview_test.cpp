#include "support.h"

#include <command/entry.h>
#include <command/filter_preview.h>

using namespace command_test;
using std::chrono::milliseconds;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// What previews come to at their end is held against each run of the other tests of this program.
class Preview : public CommandTest
{
  protected:
    void gather()
    {
        ASSERT_EQ(gatherSpace(m_candidates), SpaceStatus::Ready);
        gatherSelection(nullptr, m_candidates);
    }
    FilterPreview of(const MadeFilter& filter)
    {
        return FilterPreview(m_candidates, filter.picked, filter.parameters);
    }

  private:
    Candidates m_candidates;
};

TEST_F(Preview, TestsAFewCandidatesWithNoTimeAtAll)
{
    constexpr int kCount = 100;
    for (int i = 0; i < kCount; ++i)
        addOn(L"PIPES");
    gather();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES");
    FilterPreview preview = of(filter);
    EXPECT_EQ(preview.part(), 0.0);
    preview.goOn(milliseconds(0));
    EXPECT_FALSE(preview.isDone());
    EXPECT_GT(preview.matches(), 0);
    EXPECT_LT(preview.matches(), kCount);
    EXPECT_NEAR(preview.part(), static_cast<double>(preview.matches()) / kCount, 1e-12);
}

TEST_F(Preview, ComesToItsEndInPieces)
{
    Ids wanted;
    for (int i = 0; i < 100; ++i)
        wanted.push_back(addOn(i % 2 ? L"PIPES" : L"0")->objectId());
    for (std::size_t i = 0; i < 50; ++i)
        wanted.erase(wanted.begin() + static_cast<std::ptrdiff_t>(i));
    gather();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES");
    FilterPreview preview = of(filter);
    int pieces = 0;
    for (; !preview.isDone(); ++pieces)
        preview.goOn(milliseconds(0));
    EXPECT_GT(pieces, 1);
    EXPECT_EQ(preview.ids(), wanted);
    EXPECT_EQ(preview.part(), 1.0);
}

TEST_F(Preview, IsDoneAtOnceWithTimeEnough)
{
    const KdDbObjectId line = addOn(L"PIPES")->objectId();
    gather();
    MadeFilter filter;
    FilterPreview preview = of(filter.layer(L"=", L"PIPES"));
    preview.goOn(milliseconds(1000));
    EXPECT_TRUE(preview.isDone());
    EXPECT_THAT(preview.ids(), ElementsAre(line));
}

TEST_F(Preview, ChangesNothingAndTellsNothing)
{
    const KdDbObjectId line = addOn(L"0")->objectId();
    addOn(L"PIPES");
    select({line});
    gather();
    MadeFilter filter;
    FilterPreview preview = of(filter.layer(L"=", L"PIPES"));
    preview.goOn(milliseconds(1000));
    EXPECT_EQ(preview.matches(), 1);
    EXPECT_THAT(selection(), ElementsAre(line));
    EXPECT_THAT(printed, IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(Preview, EndsAtAnEntityWithoutAProvider)
{
    addOn(L"0");
    gather();
    QSelectUnInit();
    MadeFilter filter;
    FilterPreview preview = of(filter.layer(L"=", L"0"));
    preview.goOn(milliseconds(1000));
    EXPECT_TRUE(preview.isDone());
    EXPECT_TRUE(preview.isAbandoned());
    QSelectInit();
}

} // namespace
