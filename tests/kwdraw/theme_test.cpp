#include "support.h"

#include <QMenu>
#include <QStyle>
#include <QToolBar>

#include <kwdraw/document/settings.h>
#include <kwdraw/view/contrast.h>
#include <kwdraw/window/contrast_style.h>
#include <kwdraw/window/icons.h>
#include <kwdraw/window/theme.h>

using namespace kwdraw_test;

namespace {

class Themes : public WindowTest
{
  protected:
    static int lightness() { return QApplication::palette().color(QPalette::Window).lightness(); }
    /// The pixels of a colour in a picture.
    static int countOf(const QImage& picture, QRgb color)
    {
        int count = 0;
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                count += picture.pixel(x, y) == color ? 1 : 0;
        return count;
    }
    static constexpr QRgb kYellow = 0xFFFFFF00;
};

TEST_F(Themes, AreChosenInTheMenu)
{
    EXPECT_LT(lightness(), 128);
    EXPECT_TRUE(action(Command::DarkTheme).isChecked());
    action(Command::LightTheme).trigger();
    EXPECT_GT(lightness(), 128);
    EXPECT_EQ(switchValue(L"COLORTHEME"), 1);
    EXPECT_FALSE(action(Command::DarkTheme).isChecked());
    action(Command::DarkTheme).trigger();
    EXPECT_LT(lightness(), 128);
    EXPECT_EQ(switchValue(L"COLORTHEME"), 0);
}

TEST_F(Themes, AreTyped)
{
    typeCommand("theme light");
    EXPECT_GT(lightness(), 128);
    typeCommand("contrast");
    EXPECT_EQ(lightness(), 0);
    EXPECT_TRUE(action(Command::ContrastTheme).isChecked());
}

TEST_F(Themes, AreChosenInTheToolBar)
{
    QMenu* menu = nullptr;
    for (const QAction* each : window->findChild<QToolBar*>("toolBar")->actions())
        if (each->menu() && each->menu()->actions().contains(&action(Command::LightTheme)))
            menu = each->menu();
    ASSERT_TRUE(menu);
    menu->popup({});
    QTest::mouseClick(menu, Qt::LeftButton, {},
                      menu->actionGeometry(&action(Command::LightTheme)).center());
    EXPECT_GT(lightness(), 128);
}

TEST_F(Themes, FollowTheSystem)
{
    action(Command::DarkTheme).trigger();
    action(Command::SystemTheme).trigger();
    EXPECT_GT(lightness(), 128); // that of the tests is light
    QPalette dark;
    dark.setColor(QPalette::Window, Qt::darkGray);
    QApplication::setPalette(dark);
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(window.get(), &change);
    EXPECT_GT(lightness(), 128);
}

TEST_F(Themes, LeaveTheSystemAloneWhereAnotherIsChosen)
{
    QEvent change(QEvent::ThemeChange);
    QApplication::sendEvent(window.get(), &change);
    EXPECT_LT(lightness(), 128);
}

TEST_F(Themes, ReachTheDrawing)
{
    openPlan();
    const QImage dark = view().renderedPicture();
    action(Command::LightTheme).trigger();
    const QImage light = view().renderedPicture();
    EXPECT_LT(qGray(dark.pixel(2, 2)), 128);
    EXPECT_GT(qGray(light.pixel(2, 2)), 128);
    action(Command::ContrastTheme).trigger();
    EXPECT_EQ(view().renderedPicture().pixel(2, 2), 0xFF000000);
}

TEST_F(Themes, ReachTheIcons)
{
    const QIcon icon = iconOf(Icon::Open);
    const QImage dark = icon.pixmap(20).toImage();
    action(Command::LightTheme).trigger();
    EXPECT_NE(icon.pixmap(20).toImage(), dark);
}

TEST_F(Themes, DrawEachIconDifferently)
{
    QList<QImage> pictures;
    for (int icon = static_cast<int>(Icon::Open); icon <= static_cast<int>(Icon::Block); ++icon) {
        const QImage picture = iconOf(static_cast<Icon>(icon)).pixmap(20).toImage();
        EXPECT_FALSE(picture.isNull()) << icon;
        EXPECT_FALSE(pictures.contains(picture)) << icon;
        pictures << picture;
    }
}

TEST_F(Themes, LastToTheNextStart)
{
    EXPECT_EQ(storedTheme(), Theme::Dark);
    action(Command::LightTheme).trigger();
    action(Command::ListValues).trigger();
    window->close();
    setSwitch(L"COLORTHEME", 0);
    setSwitch(L"QSELECTLISTVALUES", 0);
    restoreVariables();
    EXPECT_EQ(switchValue(L"COLORTHEME"), 1);
    EXPECT_EQ(switchValue(L"QSELECTLISTVALUES"), 1);
    EXPECT_EQ(storedTheme(), Theme::Light);
}

TEST_F(Themes, LastInHighContrastToo)
{
    action(Command::ContrastTheme).trigger();
    EXPECT_EQ(switchValue(L"COLORTHEME"), 0); // which knows light and dark alone
    EXPECT_EQ(storedTheme(), Theme::HighContrast);
}

TEST_F(Themes, AreThatOfTheVariableBeforeTheUserChooses)
{
    setSwitch(L"COLORTHEME", 1);
    EXPECT_EQ(storedTheme(), Theme::Light);
}

TEST_F(Themes, HaveNamesForTheCommandLine)
{
    for (const Theme theme : {Theme::System, Theme::Light, Theme::Dark, Theme::HighContrast})
        EXPECT_EQ(themeNamed(nameOf(theme)), theme);
    EXPECT_EQ(themeNamed("green"), std::nullopt);
}

TEST_F(Themes, GoBackFromHighContrast)
{
    const QPalette before = QApplication::palette();
    action(Command::ContrastTheme).trigger();
    EXPECT_TRUE(isHighContrast(QApplication::palette()));
    action(Command::DarkTheme).trigger();
    EXPECT_EQ(QApplication::palette(), before);
    EXPECT_FALSE(isHighContrast(QApplication::palette()));
}

TEST_F(Themes, FrameWhatHasTheKeysInHighContrast)
{
    action(Command::ContrastTheme).trigger();
    auto* layers = window->findChild<QWidget*>("layerFilter");
    ASSERT_TRUE(layers);
    const int before = countOf(layers->grab().toImage(), kYellow);
    layers->setFocus();
    const int frame = countOf(layers->grab().toImage(), kYellow);
    EXPECT_GE(frame - before, 2 * 3 * (layers->width() - 3));
}

TEST_F(Themes, TellWhatIsSelectedWithoutColorInHighContrast)
{
    openPlan();
    action(Command::ContrastTheme).trigger();
    EXPECT_EQ(countOf(view().renderedPicture(), kYellow), 0);
    click(100, 50); // a line
    const QImage picture = view().renderedPicture();
    const QPoint end = pixelAt(0, 50);
    EXPECT_EQ(picture.pixel(end), kYellow);
    EXPECT_EQ(picture.pixel(end + QPoint(0, 2)), kYellow) << "a grip is wider than the line";
    bool isBroken = false;
    const QPoint other = pixelAt(200, 50);
    for (int x = end.x() + 10; x < other.x() - 10; ++x)
        isBroken = isBroken || picture.pixel(x, end.y()) == 0xFF000000;
    EXPECT_TRUE(isBroken);
}

TEST(Contrast, IsFromNoneToAll)
{
    EXPECT_DOUBLE_EQ(contrastOf(Qt::red, Qt::red), 1.0);
    EXPECT_NEAR(contrastOf(Qt::black, Qt::white), 21.0, 1e-9);
    EXPECT_NEAR(contrastOf(Qt::white, QColor(0x76, 0x76, 0x76)), 4.54, 0.01);
}

TEST(Contrast, IsHighWhereWindowsAreBlackAndWhite)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    EXPECT_TRUE(isHighContrast(palette));
    palette.setColor(QPalette::Window, QColor(0xEF, 0xEF, 0xEF));
    palette.setColor(QPalette::WindowText, Qt::black);
    EXPECT_FALSE(isHighContrast(palette));
    EXPECT_TRUE(isHighContrast(ContrastStyle::palette()));
}

} // namespace
