// What leaves the program: copies and files.
#include "support.h"

#include <QClipboard>
#include <QDir>
#include <QFile>

#include <kwdraw/panels/saved_filters.h>

using namespace kwdraw_test;
using testing::HasSubstr;

namespace {

class Output : public WindowTest
{
  protected:
    Output() { clipboard().setText("something else"); }

    static QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
    static bool isCopied()
    {
        return QTest::qWaitFor([] { return clipboard().text() != "something else"; });
    }
    bool isWritten(const QString& file)
    {
        return QTest::qWaitFor([&] { return QFile::exists(file); }) && (waitForWork(), true);
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }
    void selectCircles()
    {
        quickSelect([](QWidget& dialog) {
            chooseType(dialog, "Circle");
            accept(dialog);
        });
    }
};

TEST_F(Output, CopiesHandles)
{
    openPlan();
    click(10, 0);
    click(110, 0);
    press(Qt::Key_C, Qt::ControlModifier);
    ASSERT_TRUE(isCopied());
    EXPECT_EQ(clipboard().text().split('\n', Qt::SkipEmptyParts), (QStringList{"A1", "A2"}));
    EXPECT_THAT(said().toStdString(), HasSubstr("2 objects are in the clipboard."));
}

TEST_F(Output, CopiesATable)
{
    openPlan();
    click(10, 0);
    press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
    ASSERT_TRUE(isCopied());
    EXPECT_THAT(clipboard().text().toStdString(), testing::StartsWith("Handle\tType\tLayer"));
    EXPECT_THAT(clipboard().text().toStdString(), HasSubstr("A1\tCircle\tPIPES"));
}

TEST_F(Output, WritesATableWhoseFormatItsNameTells)
{
    openPlan();
    click(10, 0);
    typeCommand("export " + pathOf("circles.csv"));
    ASSERT_TRUE(isWritten(pathOf("circles.csv")));
    EXPECT_THAT(contentOf(pathOf("circles.csv")).toStdString(), HasSubstr("A1,Circle,PIPES"));
}

TEST_F(Output, WritesADrawingThatCanBeOpened)
{
    openPlan();
    click(10, 0);
    click(110, 0);
    typeCommand("export " + pathOf("circles.dxf"));
    ASSERT_TRUE(isWritten(pathOf("circles.dxf")));
    open(pathOf("circles.dxf"));
    EXPECT_EQ(window->document().drawing().report.entities, 2u);
}

TEST_F(Output, WritesOverNoFileUnasked)
{
    openPlan();
    click(10, 0);
    writeFile(pathOf("circles.csv"), "mine");
    typeCommand("export " + pathOf("circles.csv"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return bar("problemBar").isVisible(); }));
    EXPECT_EQ(contentOf(pathOf("circles.csv")), "mine");
}

TEST_F(Output, IsNotPossibleWithoutASelection)
{
    openPlan();
    for (const Command command : {Command::ExportCsv, Command::CopyHandles, Command::CopyCommand})
        EXPECT_FALSE(action(command).isEnabled());
    typeCommand("export " + pathOf("circles.csv"));
    EXPECT_FALSE(QFile::exists(pathOf("circles.csv")));
}

TEST_F(Output, CopiesTheLastQuickSelectAsACommand)
{
    openPlan();
    selectCircles();
    ASSERT_TRUE(action(Command::CopyCommand).isEnabled());
    action(Command::CopyCommand).trigger();
    EXPECT_EQ(clipboard().text().toStdString(),
              "kwselect " + planPath().toStdString() + " --filter 'Circle: Color'");
}

TEST_F(Output, CopiesAFilterOfThePanelAsACommand)
{
    openPlan();
    emit window->findChild<SavedFilters*>()->runRequested("Circle and not Layer = WALLS");
    ASSERT_TRUE(action(Command::CopyCommand).isEnabled());
    action(Command::CopyCommand).trigger();
    EXPECT_EQ(clipboard().text().toStdString(),
              "kwselect " + planPath().toStdString() + " --filter 'Circle and not Layer = WALLS'");
}

TEST_F(Output, CopiesASavedFilterAsACommandThatNeedsNoNames)
{
    QDir().mkpath(settingsFolder() + "/kwqselect");
    writeFile(settingsFolder() + "/kwqselect/filters.txt",
              "pipes = Layer = PIPES\nround = Circle and not @pipes\n");
    startAgain();
    openPlan();
    emit window->findChild<SavedFilters*>()->runRequested("@round");
    EXPECT_THAT(selectedHandles(), testing::ElementsAre(0xA3));
    action(Command::CopyCommand).trigger();
    EXPECT_EQ(clipboard().text().toStdString(), "kwselect " + planPath().toStdString() +
                                                    " --filter 'Circle and not (Layer = PIPES)'");
}

TEST_F(Output, CopiesWhatWasSearchedForBehindAFilterOfThePanel)
{
    openPlan();
    emit window->findChild<SavedFilters*>()->runRequested("Circle or Line");
    quickSelect([](QWidget& dialog) {
        chooseType(dialog, "Circle");
        accept(dialog);
    });
    action(Command::CopyCommand).trigger();
    EXPECT_EQ(clipboard().text().toStdString(),
              "kwselect " + planPath().toStdString() +
                  " --filter 'Circle or Line' --then 'Circle: General: Color'");
}

TEST_F(Output, CopiesNoCommandForAFilterThatFailed)
{
    openPlan();
    selectCircles();
    emit window->findChild<SavedFilters*>()->runRequested("Circle: Radus > 5");
    ASSERT_TRUE(action(Command::CopyCommand).isEnabled()) << "the selection is still the circles'";
    action(Command::CopyCommand).trigger();
    EXPECT_EQ(clipboard().text().toStdString(),
              "kwselect " + planPath().toStdString() + " --filter 'Circle: Color'");
}

TEST_F(Output, CopiesNoCommandForWhatWasPicked)
{
    openPlan();
    selectCircles();
    click(100, 50);
    EXPECT_FALSE(action(Command::CopyCommand).isEnabled());
}

} // namespace
