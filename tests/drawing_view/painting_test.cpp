// What pictures look like, pixel by pixel.
#include <QApplication>
#include <QPainter>

#include <cmath>

#include "view_fixture.h"

namespace {

QPolygonF square(double left, double bottom, double side)
{
    return QPolygonF({{left, bottom},
                      {left + side, bottom},
                      {left + side, bottom + side},
                      {left, bottom + side}});
}

constexpr QRgb kBlue = 0xFF0000C0;

bool isGround(QRgb color)
{
    return difference(color, kDarkGround) == 0;
}

} // namespace

class Painting : public ViewTest
{
  protected:
    /// Along y, how many pixels differ from the ground between two places on a line upwards.
    int paintedAlong(double x, double fromY, double toY)
    {
        const QImage picture = view->renderedPicture();
        int count = 0;
        for (double y = fromY; y < toY; ++y)
            count += isGround(picture.pixel(at(x, y))) ? 0 : 1;
        return count;
    }
};

TEST_F(Painting, ShowsTheGroundOfTheTheme)
{
    show(nullptr);
    EXPECT_EQ(colorAt(10, 10), kDarkGround);
    useTheme(false);
    EXPECT_EQ(colorAt(10, 10), kLightGround);
    SceneMaker maker;
    show(maker.finish());
    EXPECT_EQ(colorAt(10, 10), kLightGround);
}

TEST_F(Painting, DrawsLinesOfOnePixel)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.line({50, 100.5}, {150, 100.5});
    show(maker.finish());
    EXPECT_LT(difference(colorAt(100, 101), kRed), 12);
    EXPECT_EQ(paintedAlong(100, 90, 110), 1);
    EXPECT_EQ(paintedAlong(160, 90, 110), 0);
}

TEST_F(Painting, KeepsLinesThinAtEveryZoom)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.line({0, 0}, {1e-6, 0});
    show(maker.finish());
    view->zoomToExtents();
    const QImage picture = view->renderedPicture();
    int painted = 0;
    for (int y = 0; y < picture.height(); ++y)
        painted += isGround(picture.pixel(200, y)) ? 0 : 1;
    EXPECT_GE(painted, 1);
    EXPECT_LE(painted, 2);
}

TEST_F(Painting, DrawsInTheOrderOfTheItems)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.item();
    maker.fill(square(50, 50, 100));
    maker.color(kGreen);
    maker.item();
    maker.fill(square(100, 100, 100));
    show(maker.finish());
    EXPECT_EQ(colorAt(75, 75), kRed);
    EXPECT_EQ(colorAt(125, 125), kGreen);
}

TEST_F(Painting, LeavesHolesInAreas)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.fill({square(50, 50, 100), square(80, 80, 40)});
    show(maker.finish());
    EXPECT_EQ(colorAt(60, 60), kRed);
    EXPECT_TRUE(isGround(colorAt(100, 100)));
    view->setPlace({{65, 100}, 1e-4}); // deep inside of the area
    EXPECT_EQ(view->renderedPicture().pixel(200, 150), kRed);
    view->setPlace({{100, 100}, 1e-4}); // deep inside of the hole
    EXPECT_TRUE(isGround(view->renderedPicture().pixel(200, 150)));
}

TEST_F(Painting, ShowsTheCurveOfACircleOfAMillionPixels)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.circle({0, 0}, 1.0);
    show(maker.finish());
    view->setPlace({{std::sqrt(0.5), std::sqrt(0.5)}, 1e-6});
    const QImage picture = view->renderedPicture();
    // The circle runs from upper left to lower right through the middle, here as good as straight.
    for (int i = -100; i <= 100; i += 20) {
        int nearest = 1000;
        for (int y = 0; y < picture.height(); ++y)
            if (!isGround(picture.pixel(200 + i, y)))
                nearest = std::min(nearest, std::abs(y - (150 + i)));
        EXPECT_LE(nearest, 2) << i;
    }
}

TEST_F(Painting, DrawsTheDashesOfALinetype)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.dashes({20, -20});
    maker.line({0, 100.5}, {200, 100.5});
    show(maker.finish());
    EXPECT_FALSE(isGround(colorAt(10, 101)));
    EXPECT_TRUE(isGround(colorAt(30, 101)));
    EXPECT_FALSE(isGround(colorAt(50, 101)));
    view->setPlace({{200, 150}, 100.0}); // too small for dashes
    EXPECT_GT(view->renderedPicture().pixel(199, 150) & 0xFF0000u, 0x3F0000u);
}

TEST_F(Painting, DrawsLineweightsWhenTheyAreShown)
{
    SceneLook look;
    look.color = kRed;
    look.lineweight = 200; // 2 mm, which are 7.6 pixels
    SceneMaker maker;
    maker.look(look);
    maker.line({50, 100}, {150, 100});
    show(maker.finish());
    EXPECT_LE(paintedAlong(100, 90, 110), 2);
    view->setLineweightsShown(true);
    EXPECT_NEAR(paintedAlong(100, 80, 120), 8, 1);
}

TEST_F(Painting, ShowsTinyThingsAsDots)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.circle({100.5, 100.5}, 0.01);
    show(maker.finish());
    EXPECT_EQ(colorAt(100, 101), kRed);
    EXPECT_EQ(paintedAlong(100, 90, 110), 1);
}

TEST_F(Painting, HidesWhatIsBehindAWipeout)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.fill(square(50, 50, 100));
    maker.wipeout(square(80, 80, 40));
    show(maker.finish());
    EXPECT_FALSE(isGround(colorAt(60, 60)));
    EXPECT_TRUE(isGround(colorAt(100, 100)));
}

TEST_F(Painting, RunsGradientsAlongTheirFrame)
{
    SceneGradient gradient;
    gradient.stops = {{0.0, 0xFF000000}, {1.0, 0xFFFFFFFF}};
    gradient.placement = QTransform(100, 0, 0, 100, 50, 50);
    SceneMaker maker;
    maker.gradient(square(50, 50, 100), gradient);
    show(maker.finish());
    EXPECT_LT(qRed(colorAt(52, 100)), 20);
    EXPECT_NEAR(qRed(colorAt(100, 100)), 128, 12);
    EXPECT_GT(qRed(colorAt(148, 100)), 235);
    EXPECT_EQ(colorAt(100, 60), colorAt(100, 140));
}

TEST_F(Painting, RunsRoundGradientsOutwardsFromTheirFirstStop)
{
    SceneGradient radial;
    radial.form = SceneGradient::Form::Radial;
    radial.stops = {{0.5, 0xFF000000}, {1.0, 0xFFFFFFFF}};
    radial.placement = QTransform(50, 0, 0, 25, 250, 100); // an ellipse
    SceneMaker maker;
    maker.gradient(square(200, 50, 100), radial);
    show(maker.finish());
    EXPECT_LT(qRed(colorAt(250, 100)), 10);
    EXPECT_LT(qRed(colorAt(272, 100)), 10);
    EXPECT_GT(qRed(colorAt(250, 123)), 200); // across it is half as wide
    EXPECT_GT(qRed(colorAt(298, 100)), 230);
    EXPECT_GT(qRed(colorAt(202, 148)), 250);
}

TEST_F(Painting, DrawsImagesUpright)
{
    QImage picture(2, 2, QImage::Format_RGB32);
    picture.setPixel(0, 0, kRed); // upper left
    picture.setPixel(1, 0, kGreen);
    picture.setPixel(0, 1, 0xFF0000FF);
    picture.setPixel(1, 1, 0xFFFFFFFF);
    SceneMaker maker;
    maker.image(picture, {100, 100}, 100, 100);
    show(maker.finish());
    EXPECT_LT(difference(colorAt(110, 190), kRed), 40);
    EXPECT_LT(difference(colorAt(190, 190), kGreen), 40);
    EXPECT_LT(difference(colorAt(110, 110), 0xFF0000FF), 40);
    EXPECT_TRUE(isGround(colorAt(90, 150)));
    view->setPlace({{125, 175}, 1e-6});
    EXPECT_LT(difference(view->renderedPicture().pixel(200, 150), kRed), 60);
}

TEST_F(Painting, DrawsTheFrameOfAnImageThatIsNotThere)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.image({}, {100, 100}, 100, 100);
    show(maker.finish());
    EXPECT_TRUE(isGround(colorAt(150, 150)));
    EXPECT_FALSE(isGround(strongestNear(150, 200, 2, kDarkGround)));
}

TEST_F(Painting, DrawsTextsInPlaceAndTurned)
{
    SceneMaker maker;
    maker.text("HHHHH", {100, 100}, 20); // 85 long
    maker.text("HHHHH", {300, 100}, 20, 90.0);
    show(maker.finish());
    const QImage picture = view->renderedPicture();
    const auto inked = [&picture](QRect area) {
        int count = 0;
        for (int x = area.left(); x <= area.right(); ++x)
            for (int y = area.top(); y <= area.bottom(); ++y)
                count += isGround(picture.pixel(x, y)) ? 0 : 1;
        return count;
    };
    const QRect flat(at(100, 120), QSize(85, 20));
    const QRect upright(at(280, 185), QSize(20, 85));
    EXPECT_GT(inked(flat), 300);
    EXPECT_NEAR(inked(flat), inked(upright), inked(flat) / 10.0);
    EXPECT_EQ(inked(flat.adjusted(-3, -3, 3, 3)), inked(flat.adjusted(-2, -2, 2, 2)));
    EXPECT_EQ(inked(upright.adjusted(-3, -3, 3, 3)), inked(upright.adjusted(-2, -2, 2, 2)));
    // Letters end where the text says: the last one reaches the last tenth.
    EXPECT_GT(inked(QRect(at(100 + 68, 120), QSize(17, 20))), 40);
}

TEST_F(Painting, DrawsATextThatIsTooSmallToReadAsABar)
{
    SceneMaker maker;
    maker.text("HHHHHHHHHHHHHHHHHHHH", {100, 100}, 2.0); // 34 long
    show(maker.finish());
    EXPECT_FALSE(isGround(strongestNear(117, 101, 1, kDarkGround)));
    EXPECT_LE(paintedAlong(117, 90, 110), 2);
}

TEST_F(Painting, DrawsMarkersInTheirForms)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.marker({50.5, 50.5}, 0, 20.0);       // dot
    maker.marker({150.5, 50.5}, 2 + 32, 20.0); // plus in a circle
    maker.marker({250.5, 50.5}, 1 + 64, 20.0); // square
    maker.marker({350.5, 50.5}, 1, 20.0);      // nothing
    show(maker.finish());
    EXPECT_FALSE(isGround(colorAt(50, 51)));
    EXPECT_EQ(paintedAlong(50, 30, 70), 1);
    EXPECT_FALSE(
        isGround(strongestNear(165, 51, 1, kDarkGround))); // the arm, outside of the circle
    EXPECT_FALSE(isGround(strongestNear(157, 58, 1, kDarkGround))); // the circle
    EXPECT_FALSE(isGround(strongestNear(260, 60, 1, kDarkGround))); // the square's corner
    EXPECT_TRUE(isGround(colorAt(250, 50)));
    EXPECT_EQ(paintedAlong(350, 30, 70), 0);
}

TEST_F(Painting, SizesMarkersByTheViewWhereTheDrawingSaysSo)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.marker({150, 150}, 64, -20.0); // 20 percent of 300 pixels
    show(maker.finish());
    EXPECT_FALSE(isGround(strongestNear(180, 150, 1, kDarkGround)));
    view->setPlace({{150, 150}, 1000.0});
    const QImage far = view->renderedPicture();
    EXPECT_FALSE(isGround(far.pixel(230, 150)) && isGround(far.pixel(229, 150)));
}

TEST_F(Painting, DrawsRaysToTheEdgeOfTheView)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.ray({200, 100.5}, {1, 0});
    maker.ray({200.5, 200}, {0, 1}, true);
    show(maker.finish());
    EXPECT_FALSE(isGround(colorAt(398, 101)));
    EXPECT_TRUE(isGround(colorAt(150, 101)));
    EXPECT_FALSE(isGround(colorAt(200, 295)));
    EXPECT_FALSE(isGround(colorAt(200, 5)));
    view->setPlace({{1e7, 100.5}, 1.0});
    EXPECT_FALSE(isGround(view->renderedPicture().pixel(200, 150)));
}

TEST_F(Painting, HidesLayers)
{
    SceneMaker maker;
    const auto layer = maker.addLayer();
    maker.color(kRed);
    maker.onLayer(layer);
    maker.fill(square(50, 50, 100));
    show(maker.finish());
    EXPECT_EQ(colorAt(100, 100), kRed);
    view->setLayerStates({{true, false}, {false, false}});
    EXPECT_TRUE(isGround(colorAt(100, 100)));
    view->setLayerStates({{true, false}, {true, false}});
    EXPECT_EQ(colorAt(100, 100), kRed);
}

TEST_F(Painting, HidesAllOfAnItemOnAFrozenLayer)
{
    SceneMaker maker;
    const auto layer = maker.addLayer();
    maker.color(kRed);
    maker.item(layer);
    maker.fill(square(50, 50, 100)); // on layer 0
    show(maker.finish());
    view->setLayerStates({{true, false}, {false, false}});
    EXPECT_EQ(colorAt(100, 100), kRed);
    view->setLayerStates({{true, false}, {true, true}});
    EXPECT_TRUE(isGround(colorAt(100, 100)));
}

TEST_F(Painting, ShowsTheModelThroughTheWindowsOfASheet)
{
    SceneMaker model;
    const auto layer = model.addLayer();
    model.color(kRed);
    model.fill(square(0, 0, 1000));
    model.color(kBlue);
    model.onLayer(layer);
    model.fill(square(400, 400, 200));
    const auto shown = model.finish();
    SceneMaker sheet;
    sheet.addLayer();
    sheet.scene().isSheet = true;
    sheet.scene().paper = {10, 10, 390, 290};
    const QTransform tenth = QTransform::fromScale(0.1, 0.1);
    sheet.window(square(50, 50, 60), tenth * QTransform::fromTranslate(30, 30), shown);
    sheet.window(square(150, 50, 100), tenth * QTransform::fromTranslate(150, 50), shown, {layer});
    show(sheet.finish());
    EXPECT_EQ(colorAt(60, 60), kRed);
    EXPECT_EQ(colorAt(80, 80), kBlue);
    EXPECT_EQ(colorAt(40, 80), 0xFFF4F4F1u); // outside of the window: paper
    EXPECT_EQ(colorAt(200, 100), kRed);      // the blue square is frozen in this window
    EXPECT_FALSE(isGround(colorAt(5, 5)));   // beside the paper
    EXPECT_NE(colorAt(5, 5), colorAt(15, 15));
    click(at(80, 80)); // a place in the model is no pick, the frame of the window is
    EXPECT_TRUE(picks.empty());
    view->cancelBox();
    click(at(50, 80));
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Painting, MakesDashesInWindowsAsLongAsTheSheetSays)
{
    SceneMaker model;
    model.dashes({20, -20});
    model.line({0, 1005}, {4000, 1005}); // a tenth of it: from 0 to 400
    const auto shown = model.finish();
    for (const bool ofSheet : {true, false}) {
        SceneMaker sheet;
        sheet.scene().isSheet = true;
        sheet.window(square(0, 0, 300), QTransform::fromScale(0.1, 0.1), shown);
        sheet.scene().windows[0].linetypesOfSheet = ofSheet;
        show(sheet.finish());
        const QRgb paper = colorAt(150, 250);
        EXPECT_GT(difference(strongestNear(50, 101, 3, paper), paper), 100);
        // Dashes of 20 pixels leave a gap here; those of 2 pixels leave none so wide.
        EXPECT_EQ(difference(strongestNear(70, 101, 3, paper), paper) == 0, ofSheet);
    }
}

TEST_F(Painting, HighlightsInBothThemes)
{
    SceneMaker maker;
    maker.item();
    maker.line({50, 100.5}, {150, 100.5});
    maker.item();
    maker.line({50, 200.5}, {150, 200.5});
    for (const bool dark : {true, false}) {
        useTheme(dark);
        const QRgb ground = dark ? kDarkGround : kLightGround;
        show(maker.finish());
        view->setHighlighted({madeId(0)});
        const QRgb line = colorAt(100, 101);
        EXPECT_GT(qBlue(line), qRed(line) + 60) << dark;              // in blue
        EXPECT_GT(difference(colorAt(100, 103), ground), 30) << dark; // with a halo
        EXPECT_EQ(difference(colorAt(100, 115), ground), 0) << dark;
        EXPECT_EQ(qRed(colorAt(100, 201)), qBlue(colorAt(100, 201))) << dark; // the other is not
        view->setHighlighted({});
        EXPECT_EQ(difference(colorAt(100, 103), ground), 0) << dark;
    }
}

TEST_F(Painting, ShowsPreviewedOnesInAnotherColour)
{
    SceneMaker maker;
    maker.item();
    maker.line({50, 100.5}, {150, 100.5});
    for (const bool dark : {true, false}) {
        useTheme(dark);
        show(maker.finish());
        view->setPreviewed({madeId(0)});
        const QRgb line = colorAt(100, 101);
        EXPECT_GT(qRed(line), qBlue(line) + 60) << dark;
    }
}

TEST_F(Painting, HighlightsAreasAndTextsAndMarkersAndRays)
{
    SceneMaker maker;
    maker.item();
    maker.fill(square(50, 50, 50));
    maker.item();
    maker.text("HHH", {150, 50}, 30);
    maker.item();
    maker.marker({300, 50}, 3, 30.0);
    maker.item();
    maker.ray({50, 200}, {1, 0.2});
    show(maker.finish());
    const QImage before = view->renderedPicture();
    view->setHighlighted({madeId(0), madeId(1), madeId(2), madeId(3)});
    const QImage after = view->renderedPicture();
    for (const QPoint pixel : {at(75, 75), at(160, 65), at(305, 55), at(100, 210)})
        EXPECT_NE(before.pixel(pixel), after.pixel(pixel)) << pixel.x();
}

TEST_F(Painting, DoesNotHighlightWhatIsHidden)
{
    SceneMaker maker;
    const auto layer = maker.addLayer();
    maker.onLayer(layer);
    maker.fill(square(50, 50, 50));
    show(maker.finish());
    view->setLayerStates({{true, false}, {true, true}});
    view->setHighlighted({madeId(0)});
    EXPECT_TRUE(isGround(colorAt(75, 75)));
}

TEST_F(Painting, MarksWhatIsUnderTheCursor)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.item();
    maker.line({50, 100.5}, {150, 100.5});
    show(maker.finish());
    moveTo(at(100, 102));
    const auto seen = [this] { return view->grab().toImage().pixel(at(120, 103)); };
    EXPECT_TRUE(waitUntil([&seen] { return !isGround(seen()); }));
    moveTo(at(100, 160));
    EXPECT_TRUE(waitUntil([&seen] { return isGround(seen()); }));
}

TEST_F(Painting, ShowsTheLastPictureMovedUntilTheNextIsReady)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.fill(square(100, 100, 50));
    show(maker.finish());
    drag(at(20, 20), at(60, 40), Qt::MiddleButton); // no event of the painter is handled yet
    const QImage seen = view->grab().toImage();
    EXPECT_EQ(seen.pixel(at(165, 145)), kRed);
    EXPECT_TRUE(isGround(seen.pixel(at(110, 110))));
    wheel(at(165, 145), 3);
    const QImage scaled = view->grab().toImage();
    EXPECT_EQ(scaled.pixel(at(165 + 45, 145)), kRed);
}

TEST_F(Painting, DrawsTheBoxThatIsBeingDrawn)
{
    SceneMaker maker;
    maker.line({-50, -50}, {-40, -40});
    show(maker.finish());
    press(at(100, 100));
    moveTo(at(200, 200), Qt::LeftButton);
    QRgb inside = view->grab().toImage().pixel(at(150, 150));
    EXPECT_GT(qBlue(inside), qGreen(inside)); // a window is blue
    moveTo(at(40, 40), Qt::LeftButton);
    inside = view->grab().toImage().pixel(at(70, 70));
    EXPECT_GT(qGreen(inside), qBlue(inside)); // a crossing is green
    const QImage dashed = view->grab().toImage();
    int gaps = 0;
    for (int y = 45; y < 95; ++y)
        gaps += qGreen(dashed.pixel(at(40, y))) < 120 ? 1 : 0;
    EXPECT_GT(gaps, 3);
    EXPECT_LT(gaps, 45);
    view->cancelBox();
    EXPECT_TRUE(isGround(view->grab().toImage().pixel(at(70, 70))));
}

TEST_F(Painting, StaysExactAtHugeCoordinates)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.fill(square(1e12 + 100, 1e12 + 100, 50));
    show(maker.finish());
    look({1e12, 1e12});
    EXPECT_EQ(colorAt(125, 125), kRed);
    EXPECT_EQ(colorAt(102, 102), kRed);
    EXPECT_TRUE(isGround(colorAt(97, 97)));
    EXPECT_TRUE(isGround(colorAt(153, 153)));
}

TEST_F(Painting, ShowsTinyDrawings)
{
    SceneMaker maker;
    maker.color(kRed);
    maker.fill(square(1e-9, 1e-9, 1e-9));
    view->setScene(maker.finish());
    EXPECT_EQ(view->renderedPicture().pixel(200, 150), kRed);
}

TEST_F(Painting, SurvivesCoordinatesThatAreNoNumbers)
{
    SceneMaker maker;
    const double none = std::nan("");
    maker.color(kRed);
    maker.line({none, 0}, {100, none});
    maker.fill({QPolygonF({{none, 0}, {100, 0}, {0, 100}})});
    maker.line({-1e308, -1e308}, {1e308, 1e308});
    maker.marker({none, none}, 2, 10.0);
    maker.ray({0, none}, {1, 0});
    maker.circle({0, 0}, 1e300);
    maker.fill(square(50, 50, 50));
    show(maker.finish());
    EXPECT_EQ(colorAt(75, 75), kRed);
    view->zoomToExtents();
    EXPECT_TRUE(std::isfinite(view->place().unitsPerPixel));
    view->renderedPicture();
}

TEST_F(Painting, CanBeDestroyedWhilePainting)
{
    SceneMaker maker;
    for (int i = 0; i < 5000; ++i)
        maker.fill(QPolygonF({{0, 0}, {400, 3}, {399, 300}, {2, 299}, {200, 150}}));
    view->setScene(maker.finish());
    QTest::qWait(30);
    view.reset();
    QTest::qWait(30); // what was sent to it comes to nothing
    SUCCEED();
}
