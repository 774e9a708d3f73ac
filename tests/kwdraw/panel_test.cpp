// The panels of properties and filters in the window.
#include "support.h"

#include <kwdraw/panels/property_panel.h>
#include <kwdraw/panels/saved_filters.h>

using namespace kwdraw_test;
using testing::UnorderedElementsAre;

namespace {

class Panels : public WindowTest
{
  protected:
    PropertyPanel& properties() { return *window->findChild<PropertyPanel*>(); }
    SavedFilters& filters() { return *window->findChild<SavedFilters*>(); }
};

TEST_F(Panels, ShowThePropertiesOfTheSelection)
{
    openPlan();
    EXPECT_TRUE(properties().entities().empty());
    click(10, 0);
    EXPECT_EQ(properties().entities(), selection().ids());
    EXPECT_TRUE(QTest::qWaitFor([this] { return !properties().properties().empty(); }));
    press(Qt::Key_Escape);
    EXPECT_TRUE(properties().entities().empty());
}

TEST_F(Panels, LetGoOfADrawingThatGoes)
{
    openPlan();
    click(10, 0);
    open(KW_EXAMPLES "/minimal_r12.dxf");
    EXPECT_TRUE(properties().entities().empty());
}

TEST_F(Panels, SelectWhatIsSimilar)
{
    openPlan();
    emit properties().similarRequested({entity(0xA1)});
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2));
}

TEST_F(Panels, RunFilters)
{
    openPlan();
    click(100, 50); // the line
    emit filters().runRequested("Circle: Radius > 5");
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1, 0xA2, 0xA3));
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA4)) << "as one step";
}

TEST_F(Panels, TellWhyAFilterCannotBeRun)
{
    openPlan();
    click(10, 0);
    emit filters().runRequested("Circle: Radus > 5");
    EXPECT_TRUE(bar("problemBar").isVisible());
    EXPECT_THAT(bar("problemBar").text().toStdString(), testing::HasSubstr("Radus"));
    EXPECT_THAT(selectedHandles(), UnorderedElementsAre(0xA1)) << "the selection stays";
}

TEST_F(Panels, RunNothingWithoutADrawing)
{
    emit filters().runRequested("Circle");
    EXPECT_THAT(said().toStdString(), testing::HasSubstr("can't be done now"));
}

} // namespace
