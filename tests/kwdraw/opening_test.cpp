#include "support.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTabBar>
#include <QThreadPool>
#include <QToolButton>
#include <QTreeWidget>

#include <thread>

#include <database/database.h>
#include <editor/selection_sets.h>

using namespace kwdraw_test;

namespace {

class Opening : public WindowTest
{
};

/// Drops files on the window as a file manager does.
bool drop(QWidget& window, const QList<QUrl>& urls)
{
    QMimeData data;
    data.setUrls(urls);
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    enter.ignore();
    QApplication::sendEvent(&window, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window, &event);
    return event.isAccepted();
}

TEST_F(Opening, ShowsTheDrawingAndSaysWhatItHolds)
{
    EXPECT_FALSE(view().isVisible());
    openPlan();
    EXPECT_TRUE(view().isVisible());
    EXPECT_EQ(view().scene(), window->document().scene());
    EXPECT_EQ(window->windowTitle(), "plan.dxf - kwdraw");
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("plan.dxf: 8 objects"));
    EXPECT_FALSE(bar("problemBar").isVisible());
    EXPECT_FALSE(bar("findingsBar").isVisible());
}

TEST_F(Opening, LeavesTheWindowAliveMeanwhile)
{
    window->openFile(KW_EXAMPLES "/floor_plan.dxf");
    EXPECT_FALSE(window->document().isOpen()) << "it is read in another thread";
    EXPECT_TRUE(window->findChild<QToolButton*>("cancelWork")->isVisible());
    EXPECT_TRUE(action(Command::Help).isEnabled());
    waitForWork();
    EXPECT_TRUE(window->document().isOpen());
}

TEST_F(Opening, TellsHowFarItIs)
{
    int highest = 0;
    auto* bar = window->findChild<QProgressBar*>();
    QObject::connect(bar, &QProgressBar::valueChanged, bar,
                     [&](int value) { highest = std::max(highest, value); });
    open(KW_EXAMPLES "/floor_plan.dxf");
    EXPECT_GT(highest, bar->maximum() / 2);
    EXPECT_FALSE(bar->isVisible());
}

TEST_F(Opening, CanBeCancelled)
{
    openPlan();
    window->openFile(KW_EXAMPLES "/floor_plan.dxf");
    QTest::mouseClick(window->findChild<QToolButton*>("cancelWork"), Qt::LeftButton);
    waitForWork();
    EXPECT_EQ(window->windowTitle(), "plan.dxf - kwdraw");
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("floor_plan.dxf was cancelled"));
}

TEST_F(Opening, TakesTheDrawingThatWasAskedForLast)
{
    window->openFile(KW_EXAMPLES "/floor_plan.dxf");
    openPlan();
    EXPECT_EQ(window->windowTitle(), "plan.dxf - kwdraw");
    EXPECT_THAT(said().toStdString(), testing::Not(testing::HasSubstr("floor_plan")));
}

TEST_F(Opening, NamesTheFileThatCannotBeRead)
{
    open("/nowhere/house.dxf");
    EXPECT_FALSE(window->document().isOpen());
    EXPECT_TRUE(bar("problemBar").isVisible());
    EXPECT_THAT(bar("problemBar").text().toStdString(),
                testing::StartsWith("house.dxf can't be opened: "));
}

TEST_F(Opening, KeepsTheOpenDrawingWhenAnotherCannotBeRead)
{
    openPlan();
    writeFile(pathOf("note.dxf"), "This is a note.\n");
    open(pathOf("note.dxf"));
    EXPECT_TRUE(bar("problemBar").isVisible());
    EXPECT_EQ(window->document().drawing().path, planPath());
    EXPECT_EQ(window->windowTitle(), "plan.dxf - kwdraw");
    clickInBar("problemBar", "close");
    EXPECT_FALSE(bar("problemBar").isVisible());
}

TEST_F(Opening, TellsQuietlyWhatIsWrongInTheFile)
{
    openPlan({.complete = false});
    EXPECT_THAT(bar("findingsBar").text().toStdString(), testing::StartsWith("One fault"));
    clickInBar("findingsBar", "details");
    auto* list = window->findChild<QTreeWidget*>("findings");
    ASSERT_TRUE(list);
    EXPECT_EQ(list->topLevelItemCount(), 1);
    list->window()->close();
}

TEST_F(Opening, TakesDroppedFiles)
{
    writeFile(planPath(), Plan().text());
    EXPECT_TRUE(drop(*window, {QUrl::fromLocalFile(planPath())}));
    waitForWork();
    EXPECT_EQ(window->document().drawing().path, planPath());
}

TEST_F(Opening, TakesTheFirstOfSeveralDroppedFiles)
{
    writeFile(planPath(), Plan().text());
    EXPECT_TRUE(drop(*window, {QUrl::fromLocalFile(planPath()),
                               QUrl::fromLocalFile(KW_EXAMPLES "/floor_plan.dxf")}));
    waitForWork();
    EXPECT_EQ(window->document().drawing().path, planPath());
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("Only one drawing"));
}

TEST_F(Opening, RefusesToDropWhatIsNoFile)
{
    EXPECT_FALSE(drop(*window, {QUrl("https://example.org/plan.dxf")}));
}

TEST_F(Opening, ReplacesOneDrawingByAnother)
{
    openPlan();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_FALSE(selection().ids().empty());
    open(KW_EXAMPLES "/minimal_r12.dxf");
    EXPECT_TRUE(selection().ids().empty());
    EXPECT_FALSE(selection().canUndo());
    EXPECT_EQ(window->windowTitle(), "minimal_r12.dxf - kwdraw");
}

/// Notes in which thread it goes, and so the drawing that it belongs to.
class Witness : public KdDbMemberSource
{
  public:
    explicit Witness(std::thread::id& thread) : m_thread(thread) {}
    ~Witness() override { m_thread = std::this_thread::get_id(); }
    void readMembers(const KdDbObject&, ObjectMembers&) override {}

  private:
    std::thread::id& m_thread;
};

TEST_F(Opening, TakesADrawingApartThatGoesInAnotherThread)
{
    std::thread::id end;
    auto drawing = makeOpenDrawing();
    drawing->database = std::make_unique<KdDbDatabase>();
    drawing->spaces = spacesOf(*drawing->database);
    for (DrawingSpace& space : drawing->spaces)
        space.scene = std::make_shared<const Scene>();
    KdDbDatabaseBuilder(*drawing->database).setSource(std::make_unique<Witness>(end));
    window->document().open(std::move(drawing));
    openPlan();
    ASSERT_TRUE(QThreadPool::globalInstance()->waitForDone());
    EXPECT_NE(end, std::thread::id()) << "it is gone";
    EXPECT_NE(end, std::this_thread::get_id());
}

TEST_F(Opening, LeavesNothingSelectedOfADrawingThatGoes)
{
    openPlan();
    press(Qt::Key_A, Qt::ControlModifier);
    const long sets = kdedSelectionSetsInUse();
    open(KW_EXAMPLES "/minimal_r12.dxf");
    EXPECT_LE(kdedSelectionSetsInUse(), sets);
    kds_name set{};
    EXPECT_NE(kdedSSGet(L"P", nullptr, nullptr, nullptr, set), RTNORM);
}

TEST_F(Opening, EndsWithTheWindow)
{
    window->openFile(KW_EXAMPLES "/floor_plan.dxf");
    window->close();
    EXPECT_FALSE(window->isVisible());
    window.reset();
}

} // namespace
