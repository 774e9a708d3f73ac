// The filters that were run last, in the menu, in the panel and by the keys.
#include "support.h"

#include <QDir>
#include <QFile>
#include <QMenu>

#include <kwdraw/panels/saved_filters.h>

using namespace kwdraw_test;
using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace {

class RecentFiltersTest : public WindowTest
{
  protected:
    void run(const char* filter) { emit window->findChild<SavedFilters*>()->runRequested(filter); }
    void selectLines()
    {
        quickSelect([](QWidget& dialog) {
            chooseType(dialog, "Line");
            accept(dialog);
        });
    }
    QMenu& menu()
    {
        auto* menu = window->findChild<QMenu*>("filterMenu");
        emit menu->aboutToShow();
        return *menu;
    }
    std::vector<std::string> offered()
    {
        std::vector<std::string> texts;
        for (const QAction* action : menu().actions())
            if (!action->toolTip().isEmpty() && action->text().contains(QRegExp("^&[0-9] ")))
                texts.push_back(action->toolTip().toStdString());
        return texts;
    }
    static QString file() { return settingsFolder() + "/kwqselect/recent_filters.txt"; }
};

TEST_F(RecentFiltersTest, HoldThoseOfTheDialogAndOfThePanelTheLatestFirst)
{
    openPlan();
    run("Circle");
    press(Qt::Key_Escape); // the dialog is to offer lines
    selectLines();
    EXPECT_THAT(offered(), ElementsAre("Line: General: Color", "Circle"));
    QFile stored(file());
    ASSERT_TRUE(stored.open(QIODevice::ReadOnly));
    EXPECT_EQ(stored.readAll(), "Line: General: Color\nCircle\n");
}

TEST_F(RecentFiltersTest, AreRunFromTheMenu)
{
    openPlan();
    run("Circle");
    run("Line");
    menu().actions()[1]->trigger();
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3));
    EXPECT_THAT(offered(), ElementsAre("Circle", "Line"));
}

TEST_F(RecentFiltersTest, RunTheLatestAgainByAKey)
{
    openPlan();
    EXPECT_FALSE(action(Command::RunLast).isEnabled());
    run("Circle");
    press(Qt::Key_Escape);
    ASSERT_TRUE(selection().ids().empty());
    press(Qt::Key_R, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3));
}

TEST_F(RecentFiltersTest, AreThereAgainAfterAStart)
{
    openPlan();
    run("Circle");
    startAgain();
    EXPECT_THAT(offered(), ElementsAre("Circle"));
    EXPECT_FALSE(action(Command::RunLast).isEnabled()) << "no drawing is open";
    EXPECT_FALSE(menu().actions()[0]->isEnabled());
}

TEST_F(RecentFiltersTest, KeepWhatAnotherProgramHasRunMeanwhile)
{
    openPlan();
    run("Circle");
    writeFile(file(), "Arc\nCircle\n");
    run("Line");
    EXPECT_THAT(offered(), ElementsAre("Line", "Arc", "Circle"));
}

TEST_F(RecentFiltersTest, ShowWhatAnotherProgramHasRun)
{
    openPlan();
    QDir().mkpath(settingsFolder() + "/kwqselect");
    writeFile(file(), "Arc\n");
    ASSERT_TRUE(QTest::qWaitFor([this] { return action(Command::RunLast).isEnabled(); }));
    EXPECT_THAT(offered(), ElementsAre("Arc"));
}

TEST_F(RecentFiltersTest, AreForgottenOnDemand)
{
    openPlan();
    run("Circle");
    menu().actions().last()->trigger();
    EXPECT_THAT(offered(), testing::IsEmpty());
    EXPECT_FALSE(action(Command::RunLast).isEnabled());
    EXPECT_EQ(QFile(file()).size(), 0);
}

} // namespace
