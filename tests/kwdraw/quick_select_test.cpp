#include "support.h"

#include <QComboBox>
#include <QTimer>

using namespace kwdraw_test;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class QuickSelect : public WindowTest
{
  protected:
    /// Presses the dialog's button for picking, acts while it waits, and comes back.
    void pickIn(QWidget& dialog, const std::function<void()>& act)
    {
        QTimer::singleShot(0, window.get(), [&] {
            EXPECT_FALSE(dialog.isVisible());
            EXPECT_TRUE(bar("promptBar").isVisible());
            act();
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDC_QSELECT_SELECT_OBJECTS_BUTTON"),
                          Qt::LeftButton);
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_FALSE(bar("promptBar").isVisible());
    }
    static QString appliesTo(QWidget& dialog)
    {
        return dialog.findChild<QComboBox*>("IDC_QSELECT_APPLY_TO_COMBO")->currentText();
    }
    static void selectAllOfThem(QWidget& dialog)
    {
        dialog.findChild<QComboBox*>("IDC_QSELECT_OPERATOR_COMBO")->setCurrentText("Select All");
        accept(dialog);
    }
};

TEST_F(QuickSelect, SelectsAndTellsHowMuch)
{
    open(KW_EXAMPLES "/floor_plan.dxf");
    quickSelect([](QWidget& dialog) {
        chooseType(dialog, "Circle");
        accept(dialog);
    });
    EXPECT_EQ(selection().ids().size(), 20u) << "three more lie on a frozen layer";
    EXPECT_EQ(count(), "20 selected");
    EXPECT_THAT(said().toStdString(), HasSubstr("20 item(s) selected."));
}

TEST_F(QuickSelect, HighlightsTheOutcome)
{
    openPlan();
    const QImage before = view().renderedPicture();
    quickSelect([](QWidget& dialog) {
        chooseType(dialog, "Circle");
        accept(dialog);
    });
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3));
    EXPECT_NE(view().renderedPicture(), before);
}

TEST_F(QuickSelect, IsOneStepOfTheHistory)
{
    openPlan();
    click(100, 50); // the line
    quickSelect([](QWidget& dialog) {
        dialog.findChild<QComboBox*>("IDC_QSELECT_APPLY_TO_COMBO")
            ->setCurrentText("Entire drawing");
        chooseType(dialog, "Circle");
        accept(dialog);
    });
    EXPECT_EQ(selection().ids().size(), 3u);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA4));
}

TEST_F(QuickSelect, OffersWhatIsSelectedAsTheCurrentSelection)
{
    openPlan();
    click(10, 0);
    quickSelect([](QWidget& dialog) {
        EXPECT_EQ(appliesTo(dialog), "Current selection");
        auto* types = dialog.findChild<QComboBox*>("IDC_QSELECT_OBJECT_TYPE_COMBO");
        EXPECT_EQ(types->count(), 1);
        EXPECT_EQ(types->currentText(), "Circle");
    });
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1)) << "a cancel leaves the selection";
}

TEST_F(QuickSelect, LetsObjectsBePickedInTheDrawing)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            click(110, 0);
            click(210, 0);
            click(110, 0, Qt::ShiftModifier);
            EXPECT_THAT(bar("promptBar").text().toStdString(), HasSubstr("2 picked"));
            EXPECT_EQ(count(), "2 selected");
            EXPECT_EQ(window->findChild<QLabel*>("prompt")->text(), "Select objects:");
            press(Qt::Key_Return);
        });
        EXPECT_EQ(appliesTo(dialog), "Current selection");
        selectAllOfThem(dialog);
    });
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA3));
    EXPECT_EQ(window->findChild<QLabel*>("prompt")->text(), "Command:");
}

TEST_F(QuickSelect, EndsPickingByTheRightButton)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            QTest::mouseClick(&view(), Qt::RightButton, {}, pixelAt(50, 20));
        });
        EXPECT_EQ(appliesTo(dialog), "Current selection");
    });
}

TEST_F(QuickSelect, EndsPickingBySpace)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            press(Qt::Key_Space);
        });
        EXPECT_EQ(appliesTo(dialog), "Current selection");
    });
}

TEST_F(QuickSelect, EndsPickingByTheButtonOfTheBar)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            clickInBar("promptBar", "done");
        });
        EXPECT_EQ(appliesTo(dialog), "Current selection");
    });
}

TEST_F(QuickSelect, EndsPickingByAnEmptyCommandLine)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            typeCommand({});
        });
        EXPECT_EQ(appliesTo(dialog), "Current selection");
    });
}

TEST_F(QuickSelect, PicksAllByTheKeys)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            press(Qt::Key_A, Qt::ControlModifier);
            EXPECT_EQ(count(), "5 selected");
            press(Qt::Key_Return);
        });
    });
}

TEST_F(QuickSelect, GivesPickingUpByEscape)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            click(10, 0);
            press(Qt::Key_Escape);
        });
        EXPECT_EQ(appliesTo(dialog), "Entire drawing");
    });
    EXPECT_THAT(selectedHandles(), IsEmpty());
    EXPECT_EQ(count(), "0 selected");
}

TEST_F(QuickSelect, KeepsOtherCommandsOffWhileItRuns)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            for (const Command command :
                 {Command::Open, Command::Reload, Command::QuickSelect, Command::OpenBlock})
                EXPECT_FALSE(action(command).isEnabled());
            EXPECT_TRUE(action(Command::ZoomExtents).isEnabled());
            press(Qt::Key_Escape);
        });
    });
    EXPECT_TRUE(action(Command::QuickSelect).isEnabled());
}

TEST_F(QuickSelect, ComesToItsEndBeforeTheWindowCloses)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        pickIn(dialog, [this] {
            window->close();
            EXPECT_TRUE(window->isVisible());
        });
    });
    window->close();
    EXPECT_FALSE(window->isVisible());
}

TEST_F(QuickSelect, HoldsADrawingBackThatArrivesMeanwhile)
{
    openPlan();
    window->openFile(KW_EXAMPLES "/minimal_r12.dxf");
    quickSelect([this](QWidget& dialog) {
        constexpr int kLongEnough = 2000; // milliseconds to load it
        QTest::qWait(kLongEnough);
        EXPECT_EQ(window->document().drawing().path, planPath());
        chooseType(dialog, "Line");
        accept(dialog);
    });
    waitForWork();
    EXPECT_EQ(window->windowTitle(), "minimal_r12.dxf - kwdraw");
    EXPECT_THAT(selectedHandles(), IsEmpty());
}

TEST_F(QuickSelect, RunsFromTheCommandLine)
{
    openPlan();
    bool cameUp = false;
    QTimer::singleShot(0, window.get(), [&] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        cameUp = true;
        chooseType(*dialog, "Line");
        accept(*dialog);
    });
    typeCommand("qselect");
    EXPECT_TRUE(cameUp);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA4));
}

TEST_F(QuickSelect, ShowsItsHelpBesideTheDialog)
{
    openPlan();
    quickSelect([](QWidget& dialog) {
        QTest::keyClick(&dialog, Qt::Key_F1);
        auto* help = dialog.findChild<QWidget*>("helpWindow");
        ASSERT_TRUE(help);
        EXPECT_TRUE(help->isVisible());
        help->close();
    });
}

} // namespace
