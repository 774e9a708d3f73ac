// What is marked is told without any colour where windows are black and white.
#include "view_fixture.h"

#include <QApplication>

#include <gmock/gmock.h>

#include <kwdraw/view/grips.h>
#include <kwdraw/view/ground.h>

using testing::ElementsAre;

namespace {

constexpr QRgb kBlack = 0xFF000000;
constexpr QRgb kYellow = 0xFFFFFF00;
constexpr QRgb kCyan = 0xFF00FFFF;

class HighContrast : public ViewTest
{
  protected:
    HighContrast()
    {
        QPalette palette = m_before;
        palette.setColor(QPalette::Window, Qt::black);
        palette.setColor(QPalette::WindowText, Qt::white);
        QApplication::setPalette(palette);
    }
    ~HighContrast() override { QApplication::setPalette(m_before); }

    /// How often a colour stands in one row of the picture, between two places.
    int countInRow(QRgb color, int y, int from, int to)
    {
        const QImage picture = view->renderedPicture();
        int count = 0;
        for (int x = from; x < to; ++x)
            count += picture.pixel(at(x, y)) == color ? 1 : 0;
        return count;
    }

  private:
    QPalette m_before = QApplication::palette();
};

TEST_F(HighContrast, IsWhiteOnBlack)
{
    SceneMaker maker;
    maker.item();
    maker.foreground();
    maker.line({50, 100.5}, {150, 100.5});
    show(maker.finish());
    EXPECT_EQ(colorAt(100, 101), 0xFFFFFFFF);
    EXPECT_EQ(colorAt(100, 130), kBlack);
}

TEST_F(HighContrast, BreaksLinesThatAreSelectedAndPutsGripsAtTheirEnds)
{
    SceneMaker maker;
    maker.item();
    maker.foreground();
    maker.line({50, 100.5}, {150, 100.5});
    show(maker.finish());
    view->setHighlighted({madeId(0)});
    EXPECT_GT(countInRow(kYellow, 101, 60, 140), 30);
    EXPECT_GT(countInRow(kBlack, 101, 60, 140), 15); // nothing of the line itself is seen
    EXPECT_EQ(countInRow(0xFFFFFFFF, 101, 60, 140), 0);
    for (const double end : {50.0, 150.0}) {
        EXPECT_EQ(colorAt(end, 101), kYellow);
        EXPECT_EQ(colorAt(end, 103), kYellow);
        EXPECT_EQ(colorAt(end, 107), kBlack);
    }
}

TEST_F(HighContrast, BreaksLinesThatArePreviewedWithoutGrips)
{
    SceneMaker maker;
    maker.item();
    maker.line({50, 100.5}, {150, 100.5});
    show(maker.finish());
    view->setPreviewed({madeId(0)});
    EXPECT_GT(countInRow(kCyan, 101, 60, 140), 30);
    EXPECT_GT(countInRow(kBlack, 101, 60, 140), 15);
    EXPECT_EQ(colorAt(50, 104), kBlack);
}

TEST_F(HighContrast, HatchesAreasThatAreSelected)
{
    SceneMaker maker;
    maker.item();
    maker.color(kRed);
    maker.fill(QPolygonF(QRectF(50, 50, 100, 100)));
    show(maker.finish());
    view->setHighlighted({madeId(0)});
    const int hatched = countInRow(kYellow, 100, 60, 140);
    EXPECT_GT(hatched, 5);
    EXPECT_LT(hatched, 60);
}

TEST_F(HighContrast, IsOnSheetsToo)
{
    EXPECT_EQ(Ground::of(ViewColors::HighContrast, true).color, QColor(Qt::black));
    SceneLook look;
    look.color = 0xFF0000FF; // blue can hardly be seen on black
    const QColor shown = Ground::of(ViewColors::HighContrast, false).painted(look);
    EXPECT_GT(shown.green(), 100);
    EXPECT_EQ(shown.blue(), 255);
}

TEST_F(HighContrast, LeavesMarksOfVeryManyToTheirColor)
{
    SceneMaker maker;
    maker.item();
    maker.line({50, 100.5}, {150, 100.5});
    std::vector<KdDbObjectId> ids{madeId(0)};
    for (std::size_t i = 1; i <= 5000; ++i) {
        ids.push_back(maker.item());
        maker.line({50, 200.5}, {150, 200.5});
    }
    show(maker.finish());
    view->setHighlighted(ids);
    EXPECT_EQ(countInRow(kYellow, 101, 60, 140), 80);
}

TEST(Grips, AreTheEndsOfShortPaths)
{
    SceneMaker maker;
    maker.item();
    maker.line({1, 2}, {3, 4});
    maker.item();
    maker.circle({10, 10}, 5);
    const auto scene = maker.finish();
    EXPECT_THAT(gripsOf(*scene, scene->items[0]), ElementsAre(Grip{{1, 2}, {}}, Grip{{3, 4}, {}}));
    EXPECT_EQ(gripsOf(*scene, scene->items[1]).size(), 5u); // the last on the first
}

TEST(Grips, AreAroundTheCornersOfAllElse)
{
    SceneMaker maker;
    maker.item();
    maker.line({0, 0}, {4, 0});
    maker.line({0, 0}, {0, 2});
    const auto scene = maker.finish();
    EXPECT_THAT(gripsOf(*scene, scene->items[0]),
                ElementsAre(Grip{{0, 0}, {-1, 1}}, Grip{{4, 0}, {1, 1}}, Grip{{4, 2}, {1, -1}},
                            Grip{{0, 2}, {-1, -1}}));
}

TEST(Grips, AreNoneOfWhatHasNoSize)
{
    EXPECT_TRUE(gripsOf(Scene(), SceneItem()).empty());
}

} // namespace
