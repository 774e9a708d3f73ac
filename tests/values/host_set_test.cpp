// The module's own selection sets, and the names of members that they give.
#include <values/host_set.h>

#include <utility>
#include <vector>

#include <editor/selection_sets.h>
#include <entities/circle.h>

#include "support.h"

namespace {

class HostSets : public DrawingTest
{
  protected:
    KdDbObjectId add()
    {
        auto* circle = new KdDbCircle;
        EXPECT_EQ(m_drawing.addObject(circle, m_drawing.modelSpaceId()), eOk);
        return circle->objectId();
    }

    static std::vector<KdDbObjectId> membersOf(const HostSet& set)
    {
        std::vector<KdDbObjectId> ids;
        forEachMember(set.name(), [&](KdDbObjectId id, const long*) { ids.push_back(id); });
        return ids;
    }
};

TEST_F(HostSets, KeepTheOrderOfAddingAndEachMemberOnce)
{
    const KdDbObjectId first = add();
    const KdDbObjectId second = add();
    HostSet set;
    EXPECT_EQ(set.status(), RTNORM);
    EXPECT_TRUE(set.add(second));
    EXPECT_TRUE(set.add(first));
    EXPECT_TRUE(set.add(second));
    EXPECT_EQ(membersOf(set), (std::vector{second, first}));
    set.remove(second);
    EXPECT_EQ(membersOf(set), std::vector{first});
}

TEST_F(HostSets, TakeNothingThatHasNoName)
{
    HostSet set;
    EXPECT_FALSE(set.add(KdDbObjectId::kNull));
    set.remove(KdDbObjectId::kNull);
    EXPECT_EQ(memberCount(set.name()), 0);
}

TEST_F(HostSets, MoveWithTheirMembers)
{
    const KdDbObjectId id = add();
    HostSet first;
    first.add(id);
    HostSet second;
    second = std::move(first);
    EXPECT_EQ(membersOf(second), std::vector{id});
    HostSet& itself = second;
    second = std::move(itself);
    EXPECT_EQ(membersOf(second), std::vector{id});
}

TEST_F(HostSets, GiveNoMemberBehindTheLast)
{
    HostSet set;
    set.add(add());
    kds_name name = {0, 0};
    KdDbObjectId id;
    EXPECT_TRUE(memberAt(set.name(), 0, name, id));
    EXPECT_FALSE(memberAt(set.name(), 1, name, id));
    EXPECT_FALSE(memberAt(set.name(), -1, name, id));
}

TEST_F(HostSets, ThatAreNoneHaveNoMembersToCount)
{
    EXPECT_EQ(memberCount(nullptr), -1);
    const kds_name unknown = {0, 0};
    EXPECT_EQ(memberCount(unknown), -1);
    forEachMember(nullptr, [](KdDbObjectId, const long*) { FAIL() << "there is no member"; });
}

TEST_F(HostSets, ThatTheUserIsAskedForAreNoneWithoutAProgramThatAsks)
{
    const HostSet set = HostSet::promptedFor();
    EXPECT_NE(set.status(), RTNORM);
    EXPECT_EQ(memberCount(set.name()), -1);
}

} // namespace
