#include "support.h"

#include <kwdraw/document/settings.h>
#include <kwdraw/window/icons.h>

using namespace kwdraw_test;

namespace {

class Theme : public WindowTest
{
  protected:
    static int lightness() { return QApplication::palette().color(QPalette::Window).lightness(); }
};

TEST_F(Theme, IsSwitchedInTheMenu)
{
    EXPECT_LT(lightness(), 128);
    action(Command::LightColors).trigger();
    EXPECT_GT(lightness(), 128);
    EXPECT_EQ(switchValue(L"COLORTHEME"), 1);
    action(Command::LightColors).trigger();
    EXPECT_LT(lightness(), 128);
}

TEST_F(Theme, ReachesTheDrawing)
{
    openPlan();
    const QImage dark = view().renderedPicture();
    action(Command::LightColors).trigger();
    const QImage light = view().renderedPicture();
    EXPECT_LT(qGray(dark.pixel(2, 2)), 128);
    EXPECT_GT(qGray(light.pixel(2, 2)), 128);
}

TEST_F(Theme, ReachesTheIcons)
{
    const QIcon icon = iconOf(Icon::Open);
    const QImage dark = icon.pixmap(20).toImage();
    action(Command::LightColors).trigger();
    EXPECT_NE(icon.pixmap(20).toImage(), dark);
}

TEST_F(Theme, DrawsEachIconDifferently)
{
    QList<QImage> pictures;
    for (int icon = static_cast<int>(Icon::Open); icon <= static_cast<int>(Icon::Block); ++icon) {
        const QImage picture = iconOf(static_cast<Icon>(icon)).pixmap(20).toImage();
        EXPECT_FALSE(picture.isNull()) << icon;
        EXPECT_FALSE(pictures.contains(picture)) << icon;
        pictures << picture;
    }
}

TEST_F(Theme, LastsToTheNextStart)
{
    action(Command::LightColors).trigger();
    action(Command::ListValues).trigger();
    window->close();
    setSwitch(L"COLORTHEME", 0);
    setSwitch(L"QSELECTLISTVALUES", 0);
    restoreVariables();
    EXPECT_EQ(switchValue(L"COLORTHEME"), 1);
    EXPECT_EQ(switchValue(L"QSELECTLISTVALUES"), 1);
}

} // namespace
