#include "support.h"

#include <QTabBar>

#include <editor/current_space.h>

using namespace kwdraw_test;

namespace {

class Spaces : public WindowTest
{
  protected:
    QTabBar& tabs() { return *window->findChild<QTabBar*>("spaces"); }
    void clickTab(int tab)
    {
        QTest::mouseClick(&tabs(), Qt::LeftButton, {}, tabs().tabRect(tab).center());
    }
};

TEST_F(Spaces, AreTabsBelowTheDrawing)
{
    EXPECT_FALSE(tabs().isVisible());
    openPlan();
    EXPECT_TRUE(tabs().isVisible());
    ASSERT_EQ(tabs().count(), static_cast<int>(window->document().drawing().spaces.size()));
    EXPECT_EQ(tabs().tabText(0), "Model");
    EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(Spaces, BecomeTheSpaceThatCommandsWorkIn)
{
    openPlan();
    const auto& spaces = window->document().drawing().spaces;
    clickTab(1);
    EXPECT_EQ(kdedCurrentSpaceId(), spaces[1].block);
    EXPECT_EQ(view().scene(), spaces[1].scene);
    clickTab(0);
    EXPECT_EQ(kdedCurrentSpaceId(), spaces[0].block);
    EXPECT_EQ(view().scene(), spaces[0].scene);
}

TEST_F(Spaces, CanBeChangedByTheKeys)
{
    openPlan();
    tabs().setFocus();
    QTest::keyClick(&tabs(), Qt::Key_Right);
    EXPECT_EQ(window->document().space(), 1);
    EXPECT_EQ(view().scene(), window->document().drawing().spaces[1].scene);
}

TEST_F(Spaces, ForgetWhatWasSelectedElsewhere)
{
    openPlan();
    press(Qt::Key_A, Qt::ControlModifier);
    clickTab(1);
    EXPECT_TRUE(selection().ids().empty());
    EXPECT_FALSE(selection().canUndo());
}

TEST_F(Spaces, ShowTheirOwnPlace)
{
    openPlan();
    view().setPlace({{42.0, 17.0}, 0.25});
    clickTab(1);
    EXPECT_NE(view().place().center, QPointF(42.0, 17.0));
    clickTab(0);
    EXPECT_EQ(view().place().center, QPointF(42.0, 17.0));
}

TEST_F(Spaces, CanBeNamedWhenADrawingIsOpened)
{
    openPlan();
    const QString sheet = window->document().drawing().spaces[1].name;
    open(planPath(), sheet.toUpper());
    EXPECT_EQ(window->document().space(), 1);
    open(planPath(), "Nowhere");
    EXPECT_TRUE(bar("problemBar").isVisible());
    EXPECT_THAT(bar("problemBar").text().toStdString(), testing::HasSubstr("\"Nowhere\""));
}

TEST_F(Spaces, CanBeTypedInTheCommandLine)
{
    openPlan();
    typeCommand("layout " + window->document().drawing().spaces[1].name);
    EXPECT_EQ(window->document().space(), 1);
    typeCommand("layout nowhere");
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("no layout \"nowhere\""));
}

} // namespace
