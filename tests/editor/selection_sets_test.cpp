#include "working_drawing.h"

#include <gmock/gmock.h>

#include <memory>

using namespace editor_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr Name kUntouched = {-7, -7};

class SelectionSets : public WorkingDrawing
{
  protected:
    KdDbObjectId first = addLine(model());
    KdDbObjectId second = addLine(model());
};

TEST_F(SelectionSets, AreMadeEmptyFromNothing)
{
    Name set = kUntouched;
    EXPECT_EQ(kdedSSAdd(nullptr, nullptr, set.data()), RTNORM);
    EXPECT_THAT(takeMembersOf(set), IsEmpty());
}

TEST_F(SelectionSets, AreMadeOfOneEntity)
{
    Name set = kUntouched;
    EXPECT_EQ(kdedSSAdd(nameOf(first).data(), nullptr, set.data()), RTNORM);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first));
}

TEST_F(SelectionSets, TakeAnEntityInPlace)
{
    const Name set = makeSet({second});
    Name out = kUntouched;
    EXPECT_EQ(kdedSSAdd(nameOf(first).data(), set.data(), out.data()), RTNORM);
    EXPECT_EQ(out, set);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(second, first));
}

TEST_F(SelectionSets, TakeAnEntityOnce)
{
    const Name set = makeSet({first, second, first});
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first, second));
}

TEST_F(SelectionSets, RefuseToBeWrittenNowhere)
{
    EXPECT_EQ(kdedSSAdd(nullptr, nullptr, nullptr), RTERROR);
}

TEST_F(SelectionSets, RefuseNoEntityForASet)
{
    Name set = makeSet({first});
    EXPECT_EQ(kdedSSAdd(nullptr, set.data(), set.data()), RTERROR);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first));
}

TEST_F(SelectionSets, RefuseASetAsMember)
{
    const Name set = makeSet({first});
    Name out = kUntouched;
    EXPECT_EQ(kdedSSAdd(set.data(), nullptr, out.data()), RTERROR);
    EXPECT_EQ(out, kUntouched);
    kdedSSFree(set.data());
}

TEST_F(SelectionSets, RefuseAnEntityInPlaceOfASet)
{
    Name out = kUntouched;
    EXPECT_EQ(kdedSSAdd(nameOf(first).data(), nameOf(second).data(), out.data()), RTERROR);
    EXPECT_EQ(out, kUntouched);
}

TEST_F(SelectionSets, RefuseAnEntityOfAnotherDrawing)
{
    KdDbDatabase other;
    Name set = makeSet({first});
    const Name stranger = nameOf(addLine(other.modelSpaceId()));
    EXPECT_EQ(kdedSSAdd(stranger.data(), set.data(), set.data()), RTERROR);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first));
}

TEST_F(SelectionSets, LoseAnEntityByItsName)
{
    const Name set = makeSet({first, second});
    EXPECT_EQ(kdedSSDel(nameOf(first).data(), set.data()), RTNORM);
    EXPECT_EQ(kdedSSDel(nameOf(first).data(), set.data()), RTERROR);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(second));
}

TEST_F(SelectionSets, TellTheirMembers)
{
    const Name set = makeSet({first});
    EXPECT_EQ(kdedSSMemb(nameOf(first).data(), set.data()), RTNORM);
    EXPECT_EQ(kdedSSMemb(nameOf(second).data(), set.data()), RTERROR);
    EXPECT_EQ(kdedSSMemb(nullptr, set.data()), RTERROR);
    kdedSSFree(set.data());
}

TEST_F(SelectionSets, NameNoMemberOutOfRange)
{
    const Name set = makeSet({first});
    Name name = kUntouched;
    EXPECT_EQ(kdedSSName(set.data(), 1, name.data()), RTERROR);
    EXPECT_EQ(kdedSSName(set.data(), -1, name.data()), RTERROR);
    EXPECT_EQ(name, kUntouched);
    kdedSSFree(set.data());
}

TEST_F(SelectionSets, RefuseNullWhereAResultGoes)
{
    const Name set = makeSet({first});
    EXPECT_EQ(kdedSSName(set.data(), 0, nullptr), RTERROR);
    EXPECT_EQ(kdedSSLength(set.data(), nullptr), RTERROR);
    kdedSSFree(set.data());
}

TEST_F(SelectionSets, RefuseNoSet)
{
    long length = -1;
    Name name = kUntouched;
    EXPECT_EQ(kdedSSLength(nullptr, &length), RTERROR);
    EXPECT_EQ(length, -1);
    EXPECT_EQ(kdedSSName(nullptr, 0, name.data()), RTERROR);
    EXPECT_EQ(kdedSSDel(nameOf(first).data(), nullptr), RTERROR);
    EXPECT_EQ(kdedSSMemb(nameOf(first).data(), nullptr), RTERROR);
    EXPECT_EQ(kdedSSFree(nullptr), RTERROR);
}

TEST_F(SelectionSets, AreNotFreedByTheNameOfAnEntity)
{
    const Name set = makeSet({first});
    EXPECT_EQ(kdedSSFree(nameOf(first).data()), RTERROR);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first));
}

TEST_F(SelectionSets, AreFreedOnce)
{
    const Name set = makeSet({first});
    EXPECT_EQ(kdedSSFree(set.data()), RTNORM);
    EXPECT_EQ(kdedSSFree(set.data()), RTERROR);
}

TEST_F(SelectionSets, AreRefusedByTheNameOfAFreedOne)
{
    const Name freed = makeSet({first});
    kdedSSFree(freed.data());
    const Name next = makeSet({second});
    long length = -1;
    Name out = kUntouched;
    EXPECT_EQ(kdedSSLength(freed.data(), &length), RTERROR);
    EXPECT_EQ(kdedSSAdd(nameOf(first).data(), freed.data(), out.data()), RTERROR);
    EXPECT_THAT(takeMembersOf(next), ElementsAre(second));
}

TEST_F(SelectionSets, AreCounted)
{
    const long before = kdedSelectionSetsInUse();
    const Name one = makeSet();
    const Name two = makeSet({first});
    EXPECT_EQ(kdedSelectionSetsInUse(), before + 2);
    kdedSSFree(one.data());
    kdedSSFree(two.data());
    EXPECT_EQ(kdedSelectionSetsInUse(), before);
}

TEST_F(SelectionSets, KeepErasedMembers)
{
    const Name set = makeSet({first, second});
    erase(first);
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first, second));
}

TEST_F(SelectionSets, GoWithTheDrawingOfTheirMembers)
{
    auto other = std::make_unique<KdDbDatabase>();
    const Name gone = makeSet({addLine(other->modelSpaceId())});
    const Name kept = makeSet({first});
    other.reset();
    EXPECT_EQ(kdedSSFree(gone.data()), RTERROR);
    EXPECT_THAT(takeMembersOf(kept), ElementsAre(first));
}

TEST_F(SelectionSets, NeedNoWorkingDrawing)
{
    kddbHostApplicationServices()->setWorkingDatabase(nullptr);
    const Name set = makeSet({first});
    EXPECT_THAT(takeMembersOf(set), ElementsAre(first));
}

} // namespace
