#include "support.h"

#include <QCompleter>
#include <QLineEdit>
#include <QTextBrowser>

#include <editor/command_line.h>
#include <kwdraw/panels/command_line.h>

using namespace kwdraw_test;
using testing::EndsWith;
using testing::HasSubstr;

namespace {

class CommandLineInWindow : public WindowTest
{
  protected:
    QLineEdit& input() { return *window->findChild<QLineEdit*>("commandInput"); }
};

TEST_F(CommandLineInWindow, ShowsWhatCommandsPrint)
{
    kdutPrintf(L"\n%d objects", 3);
    kdutPrintf(L" found");
    kdutPrintf(L"\nNext");
    EXPECT_THAT(said().toStdString(), EndsWith("3 objects found\nNext"));
}

TEST_F(CommandLineInWindow, CarriesOutCommandsWithoutRegardToCase)
{
    openPlan();
    typeCommand("  selectall ");
    EXPECT_EQ(count(), "5 selected");
    typeCommand("none");
    EXPECT_EQ(count(), "0 selected");
    typeCommand("U");
    EXPECT_EQ(count(), "5 selected");
}

TEST_F(CommandLineInWindow, SaysSoWhenACommandIsUnknown)
{
    typeCommand("SELECTAL");
    EXPECT_THAT(said().toStdString(), HasSubstr("Unknown command \"SELECTAL\"."));
    EXPECT_THAT(said().toStdString(), HasSubstr("Did you mean SELECTALL?"));
}

TEST_F(CommandLineInWindow, SaysSoWhenACommandIsNotPossible)
{
    typeCommand("QSELECT");
    EXPECT_THAT(said().toStdString(), HasSubstr("That can't be done now."));
}

TEST_F(CommandLineInWindow, OpensAFile)
{
    writeFile(planPath(), Plan().text());
    typeCommand("open " + planPath());
    waitForWork();
    EXPECT_TRUE(window->document().isOpen());
}

TEST_F(CommandLineInWindow, BringsEarlierLinesBack)
{
    typeCommand("ZE");
    typeCommand("ZP");
    QTest::keyClick(&input(), Qt::Key_Up);
    EXPECT_EQ(input().text(), "ZP");
    QTest::keyClick(&input(), Qt::Key_Up);
    EXPECT_EQ(input().text(), "ZE");
    QTest::keyClick(&input(), Qt::Key_Up);
    EXPECT_EQ(input().text(), "ZE");
    QTest::keyClick(&input(), Qt::Key_Down);
    QTest::keyClick(&input(), Qt::Key_Down);
    EXPECT_EQ(input().text(), "");
}

TEST_F(CommandLineInWindow, OffersTheCommandsThatFit)
{
    input().completer()->setCompletionPrefix("qs");
    EXPECT_EQ(input().completer()->currentCompletion(), "QSELECT");
}

TEST_F(CommandLineInWindow, TakesWhatIsTypedOverTheDrawing)
{
    openPlan();
    press(Qt::Key_Z);
    EXPECT_TRUE(input().hasFocus());
    EXPECT_EQ(input().text(), "z");
}

TEST_F(CommandLineInWindow, GoesBackToTheDrawingByEscape)
{
    openPlan();
    click(10, 0);
    input().setFocus();
    QTest::keyClicks(&input(), "zo");
    QTest::keyClick(&input(), Qt::Key_Escape);
    EXPECT_EQ(input().text(), "");
    EXPECT_EQ(count(), "1 selected") << "the first one clears the line alone";
    QTest::keyClick(&input(), Qt::Key_Escape);
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(CommandLineInWindow, ZoomsByCommands)
{
    openPlan();
    const ViewPlace all = view().place();
    view().setPlace({{42.0, 17.0}, 0.25});
    typeCommand("zoom e");
    EXPECT_NEAR(view().place().unitsPerPixel, all.unitsPerPixel, 1e-9);
    typeCommand("zoom p");
    EXPECT_EQ(view().place().center, QPointF(42.0, 17.0));
    click(10, 0); // the plan is seen closely here: nothing may lie there
    selection().set({entity(0xA3)});
    typeCommand("zoom o");
    EXPECT_NEAR(view().place().center.x(), 200.0, 1e-6);
    EXPECT_LT(view().place().unitsPerPixel, all.unitsPerPixel);
}

TEST_F(CommandLineInWindow, ZoomsToABoxThatIsDrawn)
{
    openPlan();
    typeCommand("zoom w");
    view().setFocus();
    drag({-20, -20}, {20, 20});
    EXPECT_NEAR(view().place().center.x(), 0.0, 2.0);
    EXPECT_TRUE(selection().ids().empty());
}

TEST_F(CommandLineInWindow, KnowsEveryNameOnce)
{
    QStringList names = window->commands().typedNames();
    const int all = names.size();
    EXPECT_EQ(names.removeDuplicates(), 0);
    for (const QString& name : names)
        EXPECT_TRUE(window->commands().byTypedName(name.toLower())) << name.toStdString();
    EXPECT_GT(all, 30);
}

TEST_F(CommandLineInWindow, HasNoKeyTwice)
{
    QStringList keys;
    for (const CommandRow& row : Commands::rows())
        for (const QKeySequence& each : window->commands().action(row.command)->shortcuts())
            keys << each.toString();
    EXPECT_EQ(keys.removeDuplicates(), 0);
}

TEST_F(CommandLineInWindow, ListsAllKeysAndCommands)
{
    const QString table = keyTable();
    EXPECT_THAT(table.toStdString(), HasSubstr("| Quick Select | Ctrl+F | QSELECT, QUICKSELECT |"));
    typeCommand("keys");
    auto* page = window->findChild<QTextBrowser*>();
    ASSERT_TRUE(page);
    EXPECT_THAT(page->toPlainText().toStdString(), HasSubstr("QSELECT, QUICKSELECT"));
}

} // namespace
