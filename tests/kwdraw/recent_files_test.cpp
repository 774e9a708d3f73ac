#include "support.h"

#include <QFile>
#include <QMenu>

#include <kwdraw/document/recent_files.h>

using namespace kwdraw_test;

namespace {

class Recent : public WindowTest
{
  protected:
    QList<QAction*> listed()
    {
        auto* menu = window->findChild<QMenu*>("recentMenu");
        emit menu->aboutToShow();
        return menu->actions();
    }
};

TEST_F(Recent, StandsInTheMenuWithTheLastInFront)
{
    openPlan();
    open(KW_EXAMPLES "/minimal_r12.dxf");
    const QList<QAction*> files = listed();
    EXPECT_EQ(files[0]->text(), "&1 minimal_r12.dxf");
    EXPECT_EQ(files[1]->text(), "&2 plan.dxf");
}

TEST_F(Recent, OpensAgain)
{
    openPlan();
    open(KW_EXAMPLES "/minimal_r12.dxf");
    listed()[1]->trigger();
    waitForWork();
    EXPECT_EQ(window->document().drawing().path, planPath());
    EXPECT_EQ(listed()[0]->text(), "&1 plan.dxf") << "and comes to the front";
}

TEST_F(Recent, IsDisabledWhereTheFileIsGone)
{
    openPlan();
    QFile::remove(planPath());
    EXPECT_FALSE(listed()[0]->isEnabled());
}

TEST_F(Recent, ForgetsAFileThatCouldNotBeOpenedBecauseItIsGone)
{
    openPlan();
    QFile::remove(planPath());
    open(planPath());
    EXPECT_EQ(listed().size(), 1) << "only the row that clears the list";
}

TEST_F(Recent, LastsToTheNextStart)
{
    openPlan();
    EXPECT_EQ(RecentFiles().files(), QStringList{planPath()});
}

TEST_F(Recent, EndsAtTenFiles)
{
    RecentFiles files;
    for (int i = 0; i < 12; ++i)
        files.add(QString("/drawings/%1.dxf").arg(i));
    EXPECT_EQ(files.files().size(), RecentFiles::kMost);
    EXPECT_EQ(RecentFiles().files().first(), "/drawings/11.dxf");
    EXPECT_EQ(RecentFiles().files().last(), "/drawings/2.dxf");
}

TEST_F(Recent, CanBeCleared)
{
    openPlan();
    listed().last()->trigger();
    EXPECT_TRUE(RecentFiles().files().isEmpty());
}

} // namespace
