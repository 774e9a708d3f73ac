#include "support.h"

#include <editor/selection_sets.h>

#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QTimer>

using namespace kwdraw_test;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int kLongEnough = 5'000; // milliseconds

class MatchPreviewTest : public WindowTest
{
  protected:
    QLabel& line() { return *window->findChild<QLabel*>("preview"); }
    /// Waits until the line says this.
    ::testing::AssertionResult says(const char* text)
    {
        const bool done =
            QTest::qWaitFor([&] { return line().text() == QString::fromUtf8(text); }, kLongEnough);
        return done ? ::testing::AssertionSuccess()
                    : ::testing::AssertionFailure() << line().text().toStdString();
    }
    /// The orange pixels: the drawing itself is red, green and white.
    int previewedPixels()
    {
        const auto isOrange = [](QRgb pixel) {
            return qRed(pixel) > 180 && qGreen(pixel) > 100 && qGreen(pixel) < 220 &&
                   qBlue(pixel) < 120;
        };
        const QImage picture = view().renderedPicture();
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += isOrange(picture.pixel(x, y));
        return count;
    }
    static void choose(QWidget& dialog, const char* combo, const char* text)
    {
        dialog.findChild<QComboBox*>(combo)->setCurrentText(text);
    }
    static void chooseProperty(QWidget& dialog, const char* name)
    {
        auto* list = dialog.findChild<QListWidget*>("IDC_QSELECT_PROPERTIES_LIST");
        const QList<QListWidgetItem*> items = list->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1) << name;
        list->setCurrentItem(items.first());
    }
    static QLineEdit& edit(QWidget& dialog)
    {
        return *dialog.findChild<QLineEdit*>("IDC_QSELECT_VALUE_EDIT");
    }
    static void pressRadio(QWidget& dialog, const char* radio)
    {
        auto* button = dialog.findChild<QRadioButton*>(radio);
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(9, button->height() / 2));
    }
    static void selectAll(QWidget& dialog)
    {
        choose(dialog, "IDC_QSELECT_OPERATOR_COMBO", "Select All");
    }
};

TEST_F(MatchPreviewTest, TellsHowMuchWouldBeSelectedWhileTheFilterIsSetUp)
{
    openPlan();
    EXPECT_FALSE(line().isVisible());
    quickSelect([this](QWidget& dialog) {
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 5"));
        EXPECT_TRUE(line().isVisible());
        chooseType(dialog, "Circle");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 3"));
        chooseType(dialog, "Line");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 1"));
    });
    EXPECT_FALSE(line().isVisible());
}

TEST_F(MatchPreviewTest, FollowsPropertyOperatorValueAndExclusion)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        chooseType(dialog, "Circle");
        chooseProperty(dialog, "Layer");
        choose(dialog, "IDC_QSELECT_OPERATOR_COMBO", "= Equals");
        choose(dialog, "IDC_QSELECT_VALUE_COMBO", "PIPES");
        EXPECT_TRUE(says("Would select 2"));
        choose(dialog, "IDC_QSELECT_VALUE_COMBO", "WALLS");
        EXPECT_TRUE(says("Would select 1"));
        choose(dialog, "IDC_QSELECT_OPERATOR_COMBO", "<> Not Equal");
        EXPECT_TRUE(says("Would select 2"));
        pressRadio(dialog, "IDC_QSELECT_EXCLUDE_BUTTON");
        EXPECT_TRUE(says("Would select 3")) << "all but the two";
    });
}

TEST_F(MatchPreviewTest, FollowsWhatIsTyped)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        chooseType(dialog, "Circle");
        chooseProperty(dialog, "Center X");
        choose(dialog, "IDC_QSELECT_OPERATOR_COMBO", "> Greater Than");
        edit(dialog).clear();
        EXPECT_TRUE(says("Would select \u2014")) << "nothing is typed yet";
        QTest::keyClicks(&edit(dialog), "5");
        EXPECT_TRUE(says("Would select 2"));
        QTest::keyClicks(&edit(dialog), "00");
        EXPECT_TRUE(says("Would select 0"));
    });
}

TEST_F(MatchPreviewTest, FollowsTheScope)
{
    openPlan();
    click(10, 0);
    click(100, 50); // the line
    quickSelect([this](QWidget& dialog) {
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 2"));
        choose(dialog, "IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 5"));
    });
}

TEST_F(MatchPreviewTest, SaysWhyAValueIsNone)
{
    open(KW_EXAMPLES "/all_basic_kinds_r2010.dxf");
    quickSelect([this](QWidget& dialog) {
        chooseType(dialog, "Spline");
        chooseProperty(dialog, "Degree");
        choose(dialog, "IDC_QSELECT_OPERATOR_COMBO", "= Equals");
        edit(dialog).clear();
        QTest::keyClicks(&edit(dialog), "3");
        EXPECT_TRUE(says("Would select 1"));
        QTest::keyClicks(&edit(dialog), "x");
        EXPECT_TRUE(says("Would select \u2014 (Not a numeric value)"));
    });
}

TEST_F(MatchPreviewTest, ShowsTheMatchesInAColourOfTheirOwnUntilTheDialogEnds)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        chooseType(dialog, "Circle");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 3"));
        const int ofCircles = previewedPixels();
        EXPECT_GT(ofCircles, 100);
        chooseType(dialog, "Line");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 1"));
        EXPECT_GT(previewedPixels(), 0);
        EXPECT_NE(previewedPixels(), ofCircles);
    });
    EXPECT_EQ(previewedPixels(), 0);
}

TEST_F(MatchPreviewTest, GoesWhenTheDialogIsAccepted)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        chooseType(dialog, "Circle");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 3"));
        accept(dialog);
    });
    EXPECT_EQ(previewedPixels(), 0);
    EXPECT_FALSE(line().isVisible());
    EXPECT_THAT(selectedHandles(), testing::UnorderedElementsAre(0xA1, 0xA2, 0xA3));
}

TEST_F(MatchPreviewTest, ChangesNoSelectionAndPrintsNothing)
{
    openPlan();
    click(100, 50);
    const QString before = said();
    quickSelect([&](QWidget& dialog) {
        choose(dialog, "IDC_QSELECT_APPLY_TO_COMBO", "Entire drawing");
        chooseType(dialog, "Multiple");
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 5"));
        EXPECT_THAT(selectedHandles(), ElementsAre(0xA4));
        EXPECT_EQ(said(), before);
        EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    });
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA4));
    EXPECT_EQ(said(), before);
    EXPECT_FALSE(action(Command::CopyCommand).isEnabled()) << "nothing was run";
}

TEST_F(MatchPreviewTest, IsAwayWhileObjectsArePickedAndIsOfThemAfterwards)
{
    openPlan();
    quickSelect([this](QWidget& dialog) {
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 5"));
        QTimer::singleShot(0, window.get(), [&] {
            EXPECT_FALSE(line().isVisible());
            EXPECT_EQ(previewedPixels(), 0);
            click(10, 0);
            click(110, 0);
            press(Qt::Key_Return);
        });
        QTest::mouseClick(dialog.findChild<QPushButton*>("IDC_QSELECT_SELECT_OBJECTS_BUTTON"),
                          Qt::LeftButton);
        selectAll(dialog);
        EXPECT_TRUE(says("Would select 2"));
    });
}

TEST_F(MatchPreviewTest, CanBeSwitchedOffAndStaysSo)
{
    openPlan();
    EXPECT_TRUE(action(Command::PreviewMatches).isChecked());
    typeCommand("preview");
    EXPECT_FALSE(action(Command::PreviewMatches).isChecked());
    quickSelect([this](QWidget& dialog) {
        selectAll(dialog);
        QTest::qWait(300); // longer than a preview takes to come up
        EXPECT_FALSE(line().isVisible());
        EXPECT_EQ(previewedPixels(), 0);
    });
    window->close();
    startAgain();
    EXPECT_FALSE(action(Command::PreviewMatches).isChecked());
}

} // namespace
