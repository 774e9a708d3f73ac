// What the dialog that is open would select.
#include "support.h"

#include <command/entry.h>
#include <entities/circle.h>
#include <entities/line.h>
#include <plugin/quick_select.h>
#include <values/globals.h>

using namespace dialog_test;
using quick_select::Preview;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

struct Seen
{
    Preview::State state = Preview::State::NoDialog;
    std::wstring reason;
    int matches = 0;
    Ids ids;
};

Seen seen()
{
    Seen seen;
    QSelectPreview(
        1000,
        [](void* context, const Preview& preview) {
            *static_cast<Seen*>(context) = {preview.state, preview.reason, preview.matches,
                                            Ids(preview.ids, preview.ids + preview.idCount)};
        },
        &seen);
    return seen;
}

class DialogPreviewTest : public DialogTest
{
  protected:
    DialogPreviewTest()
    {
        QSelectWatchDialog([](void* calls) { ++*static_cast<int*>(calls); }, &changes);
    }
    ~DialogPreviewTest() override { QSelectWatchDialog(nullptr, nullptr); }

    /// True if the watcher was called since the last time.
    bool isTold() { return std::exchange(changes, 0) > 0; }

    int changes = 0;
};

TEST_F(DialogPreviewTest, IsNoneWithoutADialog)
{
    EXPECT_EQ(seen().state, Preview::State::NoDialog);
    addToy({{L"A:P", integer(1)}});
    command([](Person&) {});
    EXPECT_EQ(seen().state, Preview::State::NoDialog);
}

TEST_F(DialogPreviewTest, ChangesNothingAndShowsNothing)
{
    const KdDbObjectId toy = addToy({{L"A:P", integer(1)}})->objectId();
    addToy({{L"A:P", integer(2)}});
    select({toy});
    gComboValues.push_back(KdCmColor());
    const auto colors = gComboValues.size();
    const Ids selected = command([&](Person& person) {
        person.chooseType("TOY");
        person.chooseProperty("P");
        person.type("2x");
        EXPECT_EQ(seen().state, Preview::State::Incomplete);
        EXPECT_EQ(seen().reason, L"Not a numeric value");
        person.type("2");
        EXPECT_EQ(seen().matches, 0) << "of the selection, which is searched";
        EXPECT_EQ(gComboValues.size(), colors);
        EXPECT_THAT(selection(), ElementsAre(toy));
    });
    EXPECT_THAT(selected, ElementsAre(toy));
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(DialogPreviewTest, IsIncompleteWhileNothingIsTyped)
{
    addToy({{L"A:P", text(L"Pump")}});
    command([&](Person& person) {
        person.chooseType("TOY");
        person.chooseProperty("P");
        person.type("");
        EXPECT_EQ(seen().state, Preview::State::Incomplete);
        EXPECT_EQ(seen().reason, L"");
        person.type("Pump");
        EXPECT_EQ(seen().state, Preview::State::Done);
        EXPECT_EQ(seen().matches, 1);
    });
}

TEST_F(DialogPreviewTest, OfTextThatCannotBeReadIsOfWhatCountsInItsPlace)
{
    const KdDbObjectId one = addToy({{L"A:P", real(1.0)}})->objectId();
    addToy({{L"A:P", real(2.0)}});
    command([&](Person& person) {
        person.chooseType("TOY");
        person.chooseProperty("P");
        person.type("many");
        EXPECT_THAT(seen().ids, ElementsAre(one));
    });
}

TEST_F(DialogPreviewTest, IsToldOfEachControl)
{
    addToy({{L"A:P", real(1.0)}, {L"A:Q", text(L"b"), {text(L"a"), text(L"b")}}});
    select({addOtherToy({{L"A:P", real(2.0)}})->objectId()});
    command([&](Person& person) {
        EXPECT_TRUE(isTold()) << "the dialog has come up";
        EXPECT_FALSE(isTold());
        person.choose("IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        EXPECT_TRUE(isTold());
        person.chooseType("TOY");
        EXPECT_TRUE(isTold());
        person.chooseProperty("Q");
        EXPECT_TRUE(isTold());
        person.chooseValue("b");
        EXPECT_TRUE(isTold());
        person.chooseProperty("P");
        EXPECT_TRUE(isTold());
        person.type("2");
        EXPECT_TRUE(isTold());
        person.chooseOperator("> Greater Than");
        EXPECT_TRUE(isTold());
        person.click("IDC_QSELECT_EXCLUDE_BUTTON");
        EXPECT_TRUE(isTold());
        person.click("IDC_QSELECT_INCLUDE_BUTTON");
        EXPECT_TRUE(isTold());
        person.click("IDC_QSELECT_APPEND_CHECK_BUTTON");
        EXPECT_TRUE(isTold());
    });
    EXPECT_TRUE(isTold()) << "the dialog has gone";
}

TEST_F(DialogPreviewTest, IsToldOfColorsAndOfNamesWithSamples)
{
    const KdDbObjectId toy =
        addToy({{L"A:Color", color(4)}, {L"A:Line", text(L"Continuous", 6)}})->objectId();
    addToy({{L"A:Color", color(1)}, {L"A:Line", text(L"x", 6)}});
    command([&](Person& person) {
        person.chooseType("TOY");
        person.chooseProperty("Color");
        isTold();
        person.chooseValue("Cyan");
        EXPECT_TRUE(isTold());
        EXPECT_THAT(seen().ids, ElementsAre(toy));
        person.chooseProperty("Line");
        isTold();
        person.chooseValue("Continuous");
        EXPECT_TRUE(isTold());
        EXPECT_THAT(seen().ids, ElementsAre(toy));
    });
}

TEST_F(DialogPreviewTest, TellsOfTheHostsNoMoreWhenNobodyWatches)
{
    addToy({{L"A:P", real(1.0)}});
    QSelectWatchDialog(nullptr, nullptr);
    command([&](Person& person) { person.chooseType("TOY"); });
    EXPECT_FALSE(isTold());
}

TEST_F(DialogPreviewTest, BeginsAnewAfterEachChange)
{
    const KdDbObjectId line = add<KdDbLine>()->objectId();
    const KdDbObjectId circle = add<KdDbCircle>()->objectId();
    command([&](Person& person) {
        person.chooseType("Line");
        person.chooseOperator("Select All");
        EXPECT_THAT(seen().ids, ElementsAre(line));
        person.chooseType("Circle");
        person.chooseOperator("Select All");
        EXPECT_THAT(seen().ids, ElementsAre(circle));
        person.click("IDC_QSELECT_EXCLUDE_BUTTON");
        EXPECT_THAT(seen().ids, ElementsAre(line));
        EXPECT_EQ(seen().matches, 1);
    });
}

TEST_F(DialogPreviewTest, IsWhatIsSelectedThen)
{
    for (int i = 0; i < 5; ++i)
        addToy({{L"A:P", integer(i)}});
    addOtherToy({{L"A:P", integer(4)}});
    for (const char* button : {"IDC_QSELECT_INCLUDE_BUTTON", "IDC_QSELECT_EXCLUDE_BUTTON"}) {
        select({});
        Seen before;
        const Ids selected = command([&](Person& person) {
            person.chooseType("TOY");
            person.chooseProperty("P");
            person.chooseOperator("> Greater Than");
            person.type("2");
            person.click(button);
            before = seen();
            person.click("IDOK");
        });
        EXPECT_EQ(before.ids, selected) << button;
        EXPECT_EQ(before.matches, static_cast<int>(selected.size())) << button;
        EXPECT_FALSE(selected.empty()) << button;
    }
}

} // namespace
