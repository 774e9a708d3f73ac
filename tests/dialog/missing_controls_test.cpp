// Resource libraries whose layout is missing, or lacks controls.
#include "support.h"

#include <command/entry.h>
#include <dialog/multi_text.h>
#include <entities/circle.h>
#include <entities/line.h>
#include <platform/resources.h>

using namespace dialog_test;
using testing::IsEmpty;

namespace {

constexpr int kCancel = 2;

/// The libraries of one of the folders that are made for these tests come first.
class LayoutsOf
{
  public:
    explicit LayoutsOf(const char* folder)
    {
        setResourceFolder(KW_TEST_LAYOUTS);
        setResourceLanguage(folder);
    }
    ~LayoutsOf()
    {
        setResourceFolder({});
        setResourceLanguage("en");
    }
    LayoutsOf(const LayoutsOf&) = delete;
    LayoutsOf& operator=(const LayoutsOf&) = delete;
};

using MissingLayout = DialogTest;

TEST_F(MissingLayout, LeavesADialogWithoutDataThatCannotBeShown)
{
    const LayoutsOf missing("no_layout");
    CQSelectDialog& made = makeDialog({add<KdDbLine>()}, {add<KdDbCircle>()});
    EXPECT_EQ(g_pstrMulti, nullptr);
    EXPECT_THAT(made.TypeProperties, IsEmpty());
    EXPECT_EQ(made.DoModal(true), kCancel);
    EXPECT_EQ(outcome().filter, nullptr);
}

TEST_F(MissingLayout, EndsARunAsIfItWereCancelled)
{
    const LayoutsOf missing("no_layout");
    const Ids before{add<KdDbLine>()->objectId()};
    add<KdDbCircle>();
    select(before);
    selectCmd();
    EXPECT_EQ(selection(), before);
    EXPECT_THAT(messages.shown, IsEmpty());
}

class MissingControls : public DialogTest
{
  protected:
    MissingControls() { makeDialog({add<KdDbLine>(), add<KdDbCircle>()}, {add<KdDbLine>()}); }

    LayoutsOf m_layouts{"bare_layout"};
};

TEST_F(MissingControls, LeaveHandlersNothingToDo)
{
    const int end = use([&](Person&) {
        dialog->OnApplyToChange();
        dialog->OnObjectTypeChange();
        dialog->OnPropertiesChange();
        dialog->OnOperatorChange();
        dialog->OnTextEditChange();
        dialog->OnShowListValuesCheckChanged();
        dialog->OnHowToApplyRadioChanged();
        dialog->OnDefaultComboChange();
        dialog->OnComboBoxCurrentChanged(0);
        EXPECT_TRUE(dialog->isVisible());
    });
    EXPECT_EQ(end, kCancel);
    EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(MissingControls, KeepADialogOpenThatIsAccepted)
{
    const int end = use([&](Person&) {
        dialog->OnOK();
        EXPECT_TRUE(dialog->isVisible());
    });
    EXPECT_EQ(end, kCancel);
    EXPECT_EQ(outcome().filter, nullptr);
    EXPECT_THAT(messages.shown, IsEmpty());
}

} // namespace
