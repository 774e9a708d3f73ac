#include "support.h"

#include <editor/display.h>

#include <command/selection_run.h>

using namespace command_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// Notes the order in which the display and the pickfirst selection are told of an outcome.
class HandOver : public CommandTest
{
  protected:
    HandOver()
        : m_previousDisplay(kdedSetUpdateDisplayHook([this] { told.emplace_back("display"); })),
          m_previousPickfirst(kdedSetPickfirstHook(
              [this](int flags) { told.push_back("pickfirst " + std::to_string(flags)); }))
    {
    }
    ~HandOver() override
    {
        kdedSetUpdateDisplayHook(m_previousDisplay);
        kdedSetPickfirstHook(m_previousPickfirst);
    }

    std::vector<std::string> told;

  private:
    std::function<void()> m_previousDisplay;
    KdedPickfirstHook m_previousPickfirst;
};

TEST_F(HandOver, ReplacesTheSelection)
{
    const KdDbObjectId before = addOn(L"0")->objectId();
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({before});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES");
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(pipe));
}

TEST_F(HandOver, PrintsTheCountOnALineOfItsOwn)
{
    add(model());
    add(model());
    MadeFilter filter;
    run(filter);
    EXPECT_THAT(printed, ElementsAre(L"\n2 item(s) selected."));
}

TEST_F(HandOver, BringsTheDisplayUpToDateBeforeItSetsTheSelection)
{
    add(model());
    MadeFilter filter;
    run(filter);
    EXPECT_THAT(told, ElementsAre("display", "pickfirst 2"));
}

TEST_F(HandOver, OfNothingClearsTheSelectionAndPrintsZero)
{
    select({addOn(L"0")->objectId()});
    told.clear();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES");
    EXPECT_EQ(run(filter), 0);
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_THAT(printed, ElementsAre(L"\n0 item(s) selected."));
    EXPECT_THAT(told, ElementsAre("display", "pickfirst 0"));
}

TEST_F(HandOver, OfNothingClearsTheSelectionAlsoWithAppend)
{
    select({addOn(L"0")->objectId()});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter), 0);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(HandOver, WithAppendAddsToTheImpliedSelectionAndCountsTheNewMatches)
{
    const KdDbObjectId before = addOn(L"0")->objectId();
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({before});
    told.clear();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(before, pipe));
    EXPECT_THAT(printed, ElementsAre(L"\n1 item(s) selected."));
    EXPECT_THAT(told, ElementsAre("display", "pickfirst 2"));
}

TEST_F(HandOver, WithAppendCountsAMatchThatWasSelectedBefore)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({pipe});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(pipe));
}

TEST_F(HandOver, WithAppendAndNoSelectionBeforeSelectsTheMatches)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(pipe));
}

TEST_F(HandOver, WithAppendAddsToTheGivenSetAndNotToTheImpliedSelection)
{
    const KdDbObjectId selected = addOn(L"0")->objectId();
    const KdDbObjectId offered = addOn(L"0")->objectId();
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({selected});
    GivenSet given({offered});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter, given.name), 1);
    EXPECT_THAT(selection(), ElementsAre(offered, pipe));
}

TEST_F(HandOver, WithAppendAndAnEmptyGivenSetAddsToTheImpliedSelection)
{
    const KdDbObjectId selected = addOn(L"0")->objectId();
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    select({selected});
    GivenSet given;
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    EXPECT_EQ(run(filter, given.name), 1);
    EXPECT_THAT(selection(), ElementsAre(selected, pipe));
}

TEST_F(HandOver, WithAppendAddsTheComplementOfAnExclusion)
{
    const KdDbObjectId pipe = addOn(L"PIPES")->objectId();
    const KdDbObjectId line = addOn(L"0")->objectId();
    select({pipe});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").exclude().append();
    EXPECT_EQ(run(filter), 1);
    EXPECT_THAT(selection(), ElementsAre(pipe, line));
}

TEST_F(HandOver, NeverWritesToTheGivenSet)
{
    const KdDbObjectId offered = addOn(L"0")->objectId();
    addOn(L"PIPES");
    GivenSet given({offered});
    MadeFilter filter;
    filter.layer(L"=", L"PIPES").append();
    run(filter, given.name);
    EXPECT_THAT(given.members(), ElementsAre(offered));
}

TEST_F(HandOver, DoesNotFreeTheFilter)
{
    add(model());
    MadeFilter filter;
    filter.layer(L"=", L"0");
    run(filter);
    ASSERT_NE(filter.parameters.filter, nullptr);
    EXPECT_EQ(filter.parameters.filter->getString(), L"0");
}

TEST_F(HandOver, DoesNotHappenAfterCancelling)
{
    const KdDbObjectId before = add(model())->objectId();
    add(model());
    select({before});
    told.clear();
    MadeFilter filter;
    filter.cancelling();
    int matches = 77;
    EXPECT_EQ(runSelection(nullptr, filter, matches), RunEnd::Cancelled);
    EXPECT_EQ(matches, 77);
    EXPECT_THAT(selection(), ElementsAre(before));
    EXPECT_THAT(printed, IsEmpty());
    EXPECT_THAT(told, IsEmpty());
}

} // namespace
