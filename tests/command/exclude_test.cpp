#include "support.h"

#include <entities/viewport.h>

using namespace command_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Exclude : public CommandTest
{
};

TEST_F(Exclude, OverTheWholeDrawingSelectsEverythingElseOfTheCurrentSpace)
{
    addOn(L"PIPES");
    const KdDbObjectId line = addOn(L"0")->objectId();
    const KdDbObjectId circle = addOn<KdDbCircle>(L"0")->objectId();
    add(sheet());
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").exclude();
    EXPECT_EQ(run(filter), 2);
    EXPECT_THAT(selection(), ElementsAre(line, circle));
}

TEST_F(Exclude, OverTheWholeDrawingTakesEntitiesOfOtherTypes)
{
    add<KdDbLine>(model());
    const KdDbObjectId circle = add<KdDbCircle>(model())->objectId();
    MadeFilter filter;
    filter.type(L"Line", L"AcDbLine").exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(circle));
}

TEST_F(Exclude, OverTheWholeDrawingLeavesWhatTheHostLeavesOfFrozenLayers)
{
    addOn(L"PIPES");
    addOn(L"ICE");
    const KdDbObjectId line = addOn(L"0")->objectId();
    freeze(L"ICE");
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(line));
}

TEST_F(Exclude, OverTheWholeDrawingClearsTheSelectionWhereTheHostHasNothingToOffer)
{
    const KdDbObjectId frozen = addOn(L"ICE")->objectId();
    freeze(L"ICE");
    select({frozen});
    MadeFilter filter;
    filter.exclude();
    EXPECT_EQ(run(filter), 0);
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_THAT(printed, ElementsAre(L"\n0 item(s) selected."));
}

TEST_F(Exclude, OverPickedEntitiesSelectsTheOthersAmongThem)
{
    KdDbEntity* pipe = addOn(L"PIPES");
    KdDbEntity* line = addOn(L"0");
    KdDbEntity* circle = addOn<KdDbCircle>(L"0");
    addOn(L"0");
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").overPicked({circle, pipe, line}).exclude();
    EXPECT_EQ(run(filter), 2);
    EXPECT_THAT(selection(), ElementsAre(circle->objectId(), line->objectId()));
}

TEST_F(Exclude, OverPickedEntitiesLeavesOutThoseOnFrozenLayers)
{
    KdDbEntity* frozen = addOn(L"ICE");
    KdDbEntity* line = addOn(L"0");
    freeze(L"ICE");
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").overPicked({frozen, line}).exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(line->objectId()));
}

TEST_F(Exclude, OverTheStartSelectsTheOthersOfTheImpliedSelection)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    const KdDbObjectId line = addOn(L"0")->objectId();
    addOn(L"0");
    select({pipe, line});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").overStart().exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(line));
}

TEST_F(Exclude, OverTheStartKeepsThoseOnFrozenLayers)
{
    const KdDbObjectId frozen = addOn(L"ICE")->objectId();
    const KdDbObjectId line = addOn(L"0")->objectId();
    freeze(L"ICE");
    select({frozen, line});
    MadeFilter filter;
    filter.overStart().exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(frozen));
}

TEST_F(Exclude, OverTheStartTakesTheChosenClassAloneWhateverItsDisplayName)
{
    const KdDbObjectId line = addOn<KdDbLine>(L"0")->objectId();
    const KdDbObjectId circle = addOn<KdDbCircle>(L"0")->objectId();
    select({line, circle});
    MadeFilter filter;
    filter.type(L"Centre Mark", L"AcDbCircle").overStart().exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(circle));
}

TEST_F(Exclude, OverTheStartKeepsWhatCannotBeOpened)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    const KdDbObjectId line = addOn(L"0")->objectId();
    select({pipe, line});
    KdDbEntity* busy = nullptr;
    ASSERT_EQ(kddbOpenObject(busy, line, KdDb::kForWrite), eOk);
    MadeFilter filter;
    filter.type(L"Circle", L"AcDbCircle").overStart().exclude();
    filter.isForeseen = false; // nobody can be shown it
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(line));
    busy->close();
}

TEST_F(Exclude, OverTheStartDoesNotConsultTheGivenSet)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    const KdDbObjectId line = addOn(L"0")->objectId();
    const KdDbObjectId selected = addOn<KdDbCircle>(L"0")->objectId();
    select({selected});
    GivenSet given({pipe, line});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").overStart().exclude();
    EXPECT_EQ(run(filter, given.name), 1);
    EXPECT_THAT(selection(), ElementsAre(selected));
}

TEST_F(Exclude, OverTheStartFindsNothingWhereOnlyASetWasGiven)
{
    const KdDbObjectId line = addOn(L"0")->objectId();
    GivenSet given({line});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").overStart().exclude();
    EXPECT_EQ(run(filter, given.name), 0);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(Exclude, TakesTheClipEntityOfAMatchedViewportOffTheCountThoughItIsOutOfTheResult)
{
    const KdDbObjectId clip = add<KdDbCircle>(model())->objectId();
    auto* viewport = add<KdDbViewport>(model());
    KdDbViewport* opened = nullptr;
    ASSERT_EQ(kddbOpenObject(opened, viewport->objectId(), KdDb::kForWrite), eOk);
    opened->edit().number = 2;
    opened->edit().clipEntity = clip;
    opened->close();
    const KdDbObjectId first = add(model())->objectId();
    const KdDbObjectId second = add(model())->objectId();
    MadeFilter filter;
    filter.type(L"Viewport", L"AcDbViewport").exclude();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(first, second));
    EXPECT_THAT(printed, ElementsAre(L"\n1 item(s) selected."));
}

} // namespace
