#include "support.h"

#include <QFile>

using namespace kwdraw_test;
using testing::ElementsAre;

namespace {

constexpr int kLongEnough = 10'000; // milliseconds

class Reload : public WindowTest
{
  protected:
    /// Replaces the file in the way of programs that store safely, and waits until it is noticed.
    void replacePlan(const Plan& plan)
    {
        writeFile(pathOf("plan.new"), plan.text());
        QFile::remove(planPath());
        ASSERT_TRUE(QFile::rename(pathOf("plan.new"), planPath()));
        ASSERT_TRUE(noticed());
    }
    bool noticed()
    {
        return QTest::qWaitFor([this] { return bar("changedBar").isVisible(); }, kLongEnough);
    }
    void reload()
    {
        clickInBar("changedBar", "reload");
        waitForWork();
    }
    std::size_t entities() { return window->document().drawing().report.entities; }
};

TEST_F(Reload, IsOfferedWhenTheFileWasReplaced)
{
    openPlan();
    EXPECT_FALSE(bar("changedBar").isVisible());
    replacePlan({.circles = 2});
    reload();
    EXPECT_EQ(entities(), 7u);
    EXPECT_FALSE(bar("changedBar").isVisible());
}

TEST_F(Reload, IsOfferedWhenTheFileWasWrittenOver)
{
    openPlan();
    writeFile(planPath(), Plan{.circles = 1}.text());
    ASSERT_TRUE(noticed());
    reload();
    EXPECT_EQ(entities(), 6u);
}

TEST_F(Reload, IsOfferedEachTime)
{
    openPlan();
    replacePlan({.circles = 2});
    reload();
    replacePlan({.circles = 1});
    reload();
    EXPECT_EQ(entities(), 6u);
}

TEST_F(Reload, KeepsWhatIsSelectedAsFarAsItIsThere)
{
    openPlan();
    selection().set({entity(0xA4), entity(0xA3), entity(0xA1)});
    replacePlan({.circles = 2});
    reload();
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA4, 0xA1));
    EXPECT_EQ(count(), "2 selected");
}

TEST_F(Reload, KeepsThePlaceOfTheView)
{
    openPlan();
    view().setPlace({{42.0, 17.0}, 0.25});
    replacePlan({.circles = 2});
    reload();
    EXPECT_EQ(view().place().center, QPointF(42.0, 17.0));
    EXPECT_DOUBLE_EQ(view().place().unitsPerPixel, 0.25);
}

TEST_F(Reload, KeepsTheSwitchesOfLayers)
{
    openPlan();
    layers().setAllOn(false);
    replacePlan({.circles = 2});
    reload();
    ASSERT_FALSE(layers().states().empty());
    for (const LayerState& state : layers().states())
        EXPECT_FALSE(state.on);
}

TEST_F(Reload, KeepsTheLayout)
{
    openPlan();
    const int sheet = 1;
    window->document().showSpace(sheet);
    replacePlan({.circles = 2});
    reload();
    EXPECT_EQ(window->document().space(), sheet);
}

TEST_F(Reload, LeavesTheDrawingAsItIsWhileTheFileLacksItsEnd)
{
    openPlan();
    replacePlan({.circles = 1, .complete = false});
    reload();
    EXPECT_EQ(entities(), 8u);
    EXPECT_TRUE(bar("changedBar").isVisible());
    EXPECT_THAT(bar("changedBar").text().toStdString(), testing::HasSubstr("end is missing"));
    replacePlan({.circles = 1});
    reload();
    EXPECT_EQ(entities(), 6u);
}

TEST_F(Reload, LeavesTheDrawingAsItIsWhenTheFileIsNoDrawingAnyMore)
{
    openPlan();
    writeFile(planPath(), "nothing");
    ASSERT_TRUE(noticed());
    reload();
    EXPECT_TRUE(bar("problemBar").isVisible());
    EXPECT_EQ(entities(), 8u);
}

TEST_F(Reload, CanBeAskedForWithoutAChange)
{
    openPlan();
    selection().set({entity(0xA2)});
    press(Qt::Key_F5);
    waitForWork();
    EXPECT_THAT(selectedHandles(), ElementsAre(0xA2));
}

TEST_F(Reload, IsNotOfferedForOtherFilesOfTheFolder)
{
    openPlan();
    writeFile(pathOf("other.dxf"), "nothing");
    QTest::qWait(1000);
    EXPECT_FALSE(bar("changedBar").isVisible());
}

} // namespace
