#include "session.h"
#include "working_drawing.h"

#include <gmock/gmock.h>

#include <optional>

using namespace editor_test;
using testing::ElementsAre;

namespace {

class Pickfirst : public WorkingDrawing
{
  protected:
    ~Pickfirst() override { kdedSetPickfirstHook({}); }

    static int select(const Ids& members)
    {
        const Name set = makeSet(members);
        const int status = kdedSSSetFirst(set.data(), nullptr);
        kdedSSFree(set.data());
        return status;
    }

    static Ids selected()
    {
        Name set{};
        return kdedSSGetFirst(set.data()) == RTNORM ? takeMembersOf(set) : Ids{};
    }

    KdDbObjectId first = addLine(model());
    KdDbObjectId second = addLine(model());
};

TEST_F(Pickfirst, IsEmptyAtFirst)
{
    Name set = {-7, -7};
    EXPECT_EQ(kdedSSGetFirst(set.data()), RTERROR);
    EXPECT_EQ(set, (Name{-7, -7}));
}

TEST_F(Pickfirst, KeepsTheOrderOfTheSet)
{
    EXPECT_EQ(select({second, first}), RTNORM);
    EXPECT_THAT(selected(), ElementsAre(second, first));
}

TEST_F(Pickfirst, IsACopyOfTheSet)
{
    Name set = makeSet({first});
    kdedSSSetFirst(set.data(), nullptr);
    kdedSSAdd(nameOf(second).data(), set.data(), set.data());
    kdedSSFree(set.data());
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(Pickfirst, GivesACopyOfItself)
{
    select({first});
    Name set{};
    kdedSSGetFirst(set.data());
    kdedSSDel(nameOf(first).data(), set.data());
    kdedSSFree(set.data());
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(Pickfirst, IsClearedByNull)
{
    select({first});
    EXPECT_EQ(kdedSSSetFirst(nullptr, nullptr), RTNORM);
    EXPECT_THAT(selected(), ElementsAre());
}

TEST_F(Pickfirst, IsClearedByAnEmptySet)
{
    select({first});
    EXPECT_EQ(select({}), RTNORM);
    EXPECT_THAT(selected(), ElementsAre());
}

TEST_F(Pickfirst, StaysAsItIsWhenTheSetIsGone)
{
    select({first});
    const Name freed = makeSet({second});
    kdedSSFree(freed.data());
    EXPECT_EQ(kdedSSSetFirst(freed.data(), nullptr), RTERROR);
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(Pickfirst, RefusesASetOfAnotherDrawing)
{
    KdDbDatabase other;
    select({first});
    EXPECT_EQ(select({addLine(other.modelSpaceId())}), RTERROR);
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(Pickfirst, RefusesASecondArgument)
{
    const Name set = makeSet({first});
    EXPECT_EQ(kdedSSSetFirst(set.data(), set.data()), RTERROR);
    kdedSSFree(set.data());
    EXPECT_THAT(selected(), ElementsAre());
}

TEST_F(Pickfirst, NeedsAWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    EXPECT_EQ(select({first}), RTERROR);
    EXPECT_EQ(kdedSSSetFirst(nullptr, nullptr), RTERROR);
}

TEST_F(Pickfirst, LeavesOutWhatIsErased)
{
    select({first, second});
    erase(first);
    EXPECT_THAT(selected(), ElementsAre(second));
}

TEST_F(Pickfirst, BelongsToItsDrawing)
{
    KdDbDatabase other;
    const KdDbObjectId elsewhere = addLine(other.modelSpaceId());
    select({first});
    kddbHostApplicationServices()->setWorkingDatabase(&other);
    EXPECT_THAT(selected(), ElementsAre());
    select({elsewhere});
    kddbHostApplicationServices()->setWorkingDatabase(&drawing);
    EXPECT_THAT(selected(), ElementsAre(first));
}

TEST_F(Pickfirst, GoesWithItsDrawing)
{
    std::optional<KdDbDatabase> other;
    kddbHostApplicationServices()->setWorkingDatabase(&other.emplace());
    ASSERT_EQ(select({addLine(other->modelSpaceId())}), RTNORM);
    other.reset();
    // The next drawing lies where the one before it lay.
    const DrawingState& state = EditorSession::instance().stateOf(other.emplace());
    EXPECT_EQ(state.pickfirst, nullptr);
    EXPECT_EQ(state.previous, nullptr);
    EXPECT_EQ(state.viewport, 0);
}

TEST_F(Pickfirst, TellsTheHookWithTheFlags)
{
    std::vector<int> told;
    kdedSetPickfirstHook([&](int flags) { told.push_back(flags); });
    const Name set = makeSet({first});
    kdedSSSetFirstInternal(set.data(), nullptr, kKdedIsCommandOutcome);
    kdedSSSetFirst(set.data(), nullptr);
    kdedSSFree(set.data());
    EXPECT_THAT(told, ElementsAre(2, 0));
}

TEST_F(Pickfirst, TellsTheHookWhenItIsCleared)
{
    Ids seen{first};
    kdedSetPickfirstHook([&](int) { seen = selected(); });
    select({});
    EXPECT_THAT(seen, ElementsAre());
}

TEST_F(Pickfirst, TellsTheHookNothingWhenItStays)
{
    int told = 0;
    kdedSetPickfirstHook([&](int) { ++told; });
    const Name stale = {1, 2};
    kdedSSSetFirst(stale.data(), nullptr);
    EXPECT_EQ(told, 0);
}

} // namespace
