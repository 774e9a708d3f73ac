#include "support.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTabBar>
#include <QTimer>

#include <editor/current_space.h>
#include <kwdraw/window/block_chooser.h>

using namespace kwdraw_test;

namespace {

class Blocks : public WindowTest
{
  protected:
    /// Opens the list of blocks and acts on it.
    void chooseBlock(const std::function<void(BlockChooser& chooser)>& act)
    {
        QTimer::singleShot(0, window.get(), [&] {
            auto* chooser = qobject_cast<BlockChooser*>(QApplication::activeModalWidget());
            ASSERT_TRUE(chooser);
            act(*chooser);
            if (chooser->isVisible())
                chooser->reject();
        });
        press(Qt::Key_B, Qt::ControlModifier);
        waitForWork();
        settle();
    }
    void openFrame()
    {
        chooseBlock([](BlockChooser& chooser) {
            QTest::keyClicks(chooser.findChild<QLineEdit*>("blockFilter"), "fra");
            QTest::keyClick(&chooser, Qt::Key_Return);
        });
    }
};

TEST_F(Blocks, AreListedByName)
{
    openPlan();
    chooseBlock([](BlockChooser& chooser) {
        auto* list = chooser.findChild<QListWidget*>("blocks");
        EXPECT_EQ(list->findItems("FRAME", Qt::MatchExactly).size(), 1);
        EXPECT_TRUE(list->findItems("*Model_Space", Qt::MatchExactly).isEmpty());
        QTest::keyClicks(chooser.findChild<QLineEdit*>("blockFilter"), "nothing");
        EXPECT_TRUE(chooser.chosen().isNull());
    });
    EXPECT_FALSE(window->document().hasOpenBlock());
}

TEST_F(Blocks, BecomeTheSpaceThatIsShown)
{
    openPlan();
    openFrame();
    EXPECT_EQ(bar("blockBar").text(), "Block FRAME");
    EXPECT_TRUE(bar("blockBar").isVisible());
    EXPECT_EQ(kdedOpenBlockId(), kdedCurrentSpaceId());
    press(Qt::Key_A, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), testing::UnorderedElementsAre(0xB1, 0xB2));
}

TEST_F(Blocks, AreSearchedByQuickSelect)
{
    openPlan();
    openFrame();
    quickSelect([](QWidget& dialog) {
        chooseType(dialog, "Line");
        accept(dialog);
    });
    EXPECT_THAT(selectedHandles(), testing::UnorderedElementsAre(0xB1, 0xB2));
}

TEST_F(Blocks, AreClosedByTheBar)
{
    openPlan();
    openFrame();
    clickInBar("blockBar", "closeBlock");
    EXPECT_FALSE(bar("blockBar").isVisible());
    EXPECT_TRUE(kdedOpenBlockId().isNull());
    EXPECT_EQ(view().scene(), window->document().drawing().spaces[0].scene);
    EXPECT_FALSE(action(Command::CloseBlock).isEnabled());
}

TEST_F(Blocks, AreLeftForALayout)
{
    openPlan();
    openFrame();
    auto* tabs = window->findChild<QTabBar*>("spaces");
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(0).center());
    EXPECT_FALSE(window->document().hasOpenBlock());
    EXPECT_EQ(kdedCurrentSpaceId(), window->document().drawing().spaces[0].block);
}

TEST_F(Blocks, AreOpenAgainAfterAReload)
{
    openPlan();
    openFrame();
    press(Qt::Key_F5);
    waitForWork();
    EXPECT_EQ(window->document().openBlockName(), "FRAME");
    EXPECT_TRUE(bar("blockBar").isVisible());
}

TEST_F(Blocks, KeepWhatIsSelectedInThemAfterAReload)
{
    openPlan();
    openFrame();
    selection().set({entity(0xB2)});
    press(Qt::Key_F5);
    waitForWork();
    EXPECT_THAT(selectedHandles(), testing::ElementsAre(0xB2));
    EXPECT_EQ(selection().ids().front(), entity(0xB2)) << "of the drawing that is open now";
    EXPECT_EQ(count(), "1 selected");
}

TEST_F(Blocks, KeepWhatIsSelectedInThemOverTwoReloadsInARow)
{
    openPlan();
    openFrame();
    selection().set({entity(0xB1), entity(0xB2)});
    press(Qt::Key_F5);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window->document().isBusy(); }));
    press(Qt::Key_F5);
    waitForWork();
    EXPECT_EQ(window->document().openBlockName(), "FRAME");
    EXPECT_THAT(selectedHandles(), testing::ElementsAre(0xB1, 0xB2));
}

} // namespace
