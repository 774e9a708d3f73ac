#include "support.h"

#include <cmath>

#include <QMenu>
#include <QTimer>

using namespace kwdraw_test;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

class Selecting : public WindowTest
{
};

TEST_F(Selecting, TakesWhatIsClicked)
{
    openPlan();
    click(10, 0);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1));
    EXPECT_EQ(count(), "1 selected");
    click(110, 0);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1, 0xA2));
    EXPECT_EQ(count(), "2 selected");
}

TEST_F(Selecting, TakesAwayWithShift)
{
    openPlan();
    click(10, 0);
    click(110, 0);
    click(10, 0, Qt::ShiftModifier);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA2));
}

TEST_F(Selecting, TakesWhatLiesInABoxDrawnToTheRight)
{
    openPlan();
    drag({-20, -20}, {120, 20});
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2));
}

TEST_F(Selecting, TakesWhatABoxDrawnToTheLeftTouches)
{
    openPlan();
    drag({120, 20}, {95, -5});
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA2));
}

TEST_F(Selecting, TakesAllThatCanBeSeen)
{
    openPlan();
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3, 0xA4, 0xA5))
        << "without what lies on a frozen layer";
}

TEST_F(Selecting, CanBeInverted)
{
    openPlan();
    selection().set({entity(0xA4), entity(0xA5)});
    press(Qt::Key_I, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3));
}

TEST_F(Selecting, EndsByEscape)
{
    openPlan();
    click(10, 0);
    press(Qt::Key_Escape);
    EXPECT_THAT(selectedHandles(), IsEmpty());
}

TEST_F(Selecting, EndsABoxBeforeItDeselects)
{
    openPlan();
    click(10, 0);
    click(50, 20); // an empty place
    ASSERT_TRUE(view().isDrawingBox());
    press(Qt::Key_Escape);
    EXPECT_FALSE(view().isDrawingBox());
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1));
    press(Qt::Key_Escape);
    EXPECT_THAT(selectedHandles(), IsEmpty());
}

TEST_F(Selecting, DeletesNothing)
{
    openPlan();
    click(10, 0);
    press(Qt::Key_Delete);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1));
    EXPECT_FALSE(entity(0xA1).isErased());
}

TEST_F(Selecting, CanBeUndoneAndRedone)
{
    openPlan();
    EXPECT_FALSE(action(Command::Undo).isEnabled());
    click(10, 0);
    click(110, 0);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1));
    EXPECT_EQ(count(), "1 selected");
    EXPECT_TRUE(action(Command::Redo).isEnabled());
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA1, 0xA2));
    EXPECT_FALSE(action(Command::Redo).isEnabled());
}

TEST_F(Selecting, FindsWhatIsSimilar)
{
    openPlan();
    click(10, 0);
    press(Qt::Key_F, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2)) << "circles on the same layer";
}

TEST_F(Selecting, LeadsFromOneToTheNext)
{
    openPlan();
    selection().set({entity(0xA1), entity(0xA3)});
    press(Qt::Key_F3);
    EXPECT_NEAR(view().place().center.x(), 0.0, 1e-6);
    press(Qt::Key_F3);
    EXPECT_NEAR(view().place().center.x(), 200.0, 1e-6);
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("2 of 2: handle A3"));
    press(Qt::Key_F3);
    EXPECT_NEAR(view().place().center.x(), 0.0, 1e-6) << "and round again";
    press(Qt::Key_F3, Qt::ShiftModifier);
    EXPECT_NEAR(view().place().center.x(), 200.0, 1e-6);
}

TEST_F(Selecting, OffersWhatCanBeDoneByTheRightButton)
{
    openPlan();
    bool cameUp = false;
    QTimer::singleShot(100, window.get(), [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        cameUp = menu->actions().contains(&action(Command::QuickSelect));
        menu->close();
    });
    QTest::mouseClick(&view(), Qt::RightButton, {}, pixelAt(50, 20));
    EXPECT_TRUE(QTest::qWaitFor([&] { return cameUp; }));
}

TEST_F(Selecting, TellsTheCursorsPlaceInTheDrawingsUnits)
{
    openPlan();
    QTest::mouseMove(&view(), pixelAt(0, 0) + QPoint(20, 20));
    QTest::mouseMove(&view(), pixelAt(100, 50));
    auto* place = window->findChild<QLabel*>("place");
    const auto isNear = [&](int part, double wanted) {
        return std::abs(place->text().section(", ", part, part).toDouble() - wanted) <= 1.0;
    };
    EXPECT_TRUE(QTest::qWaitFor([&] { return isNear(0, 100.0) && isNear(1, 50.0); }))
        << place->text().toStdString();
}

TEST_F(Selecting, IsNotPossibleWithoutADrawing)
{
    for (const Command command : {Command::SelectAll, Command::Invert, Command::QuickSelect,
                                  Command::ZoomExtents, Command::Reload, Command::OpenBlock})
        EXPECT_FALSE(action(command).isEnabled());
    EXPECT_TRUE(action(Command::Open).isEnabled());
}

} // namespace
