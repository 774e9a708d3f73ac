// The parts that pictures are made of: cutting, flattening, dashes, frames, zooming, the index.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include <kwdraw/view/clipping.h>
#include <kwdraw/view/ground.h>
#include <kwdraw/view/layer_filter.h>
#include <kwdraw/view/path_walk.h>
#include <kwdraw/view/scene_index.h>
#include <kwdraw/view/stroke_runs.h>
#include <kwdraw/view/view_zoom.h>

#include "scene_maker.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr ClipBox kBox{0.0, 0.0, 100.0, 100.0};

double area(const std::vector<QPointF>& polygon)
{
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const QPointF a = polygon[i];
        const QPointF b = polygon[(i + 1) % polygon.size()];
        twice += a.x() * b.y() - a.y() * b.x();
    }
    return std::abs(twice) / 2.0;
}

/// Start and end of each run along a horizontal line.
std::vector<std::pair<double, double>> spans(const StrokeRuns& runs)
{
    std::vector<std::pair<double, double>> spans;
    for (std::size_t i = 0; i < runs.count(); ++i)
        spans.emplace_back(std::round(runs.run(i).front().x() * 1e6) / 1e6,
                           std::round(runs.run(i).back().x() * 1e6) / 1e6);
    return spans;
}

SceneLinetype dashes(std::vector<double> lengths)
{
    SceneLinetype linetype;
    for (const double length : lengths)
        linetype.length += std::abs(length);
    linetype.dashes = std::move(lengths);
    return linetype;
}

} // namespace

TEST(Clipping, CutsALineAtTheBounds)
{
    QPointF from(-50, 50);
    QPointF to(150, 50);
    EXPECT_TRUE(clipLine(from, to, kBox));
    EXPECT_EQ(from, QPointF(0, 50));
    EXPECT_EQ(to, QPointF(100, 50));
}

TEST(Clipping, CutsLinesOfAnyLengthToTheSamePixels)
{
    QPointF from(-1e15, 25);
    QPointF to(1e15, 75);
    ASSERT_TRUE(clipLine(from, to, kBox));
    EXPECT_NEAR(from.y(), 50.0, 0.2);
    EXPECT_TRUE(kBox.contains({std::clamp(from.x(), -0.5, 0.5), from.y()}));
}

TEST(Clipping, RefusesWhatIsOutsideAndWhatIsNoNumber)
{
    QPointF from(-50, 10);
    QPointF to(10, -60);
    EXPECT_FALSE(clipLine(from, to, kBox));
    EXPECT_EQ(from, QPointF(-50, 10));
    to.setX(std::nan(""));
    EXPECT_FALSE(clipLine(from, to, kBox));
    to = {std::numeric_limits<double>::infinity(), 50};
    EXPECT_FALSE(clipLine(from, to, kBox));
}

TEST(Clipping, KeepsTheAreaOfAPolygonInTheBox)
{
    std::vector<QPointF> around{{-1e9, -1e9}, {1e9, -1e9}, {1e9, 1e9}, {-1e9, 1e9}};
    clipPolygon(around, kBox);
    EXPECT_NEAR(area(around), 1e4, 1e-3);
    std::vector<QPointF> triangle{{50, 50}, {250, 50}, {50, 250}};
    clipPolygon(triangle, kBox);
    EXPECT_NEAR(area(triangle), 2500.0, 1e-9);
    std::vector<QPointF> outside{{200, 0}, {300, 0}, {300, 100}};
    clipPolygon(outside, kBox);
    EXPECT_THAT(outside, IsEmpty());
}

TEST(Cubic, FollowsACircleAsNearAsAsked)
{
    SceneMaker maker;
    maker.circle({500, 500}, 400);
    const auto scene = maker.finish();
    StrokeRuns runs;
    const ClipBox box{0, 0, 1000, 1000};
    SolidLine line(runs, box);
    walkPath(pathOf(*scene, scene->shapes[0]), PixelFrame::pixels(), box, line);
    ASSERT_EQ(runs.count(), 1u);
    const auto points = runs.run(0);
    EXPECT_LT(points.size(), 400u);
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const QPointF middle = (points[i] + points[i + 1]) / 2.0 - QPointF(500, 500);
        EXPECT_NEAR(std::hypot(middle.x(), middle.y()), 400.0, 0.25);
    }
}

TEST(Cubic, FlattensOnlyWhatIsSeenOfAHugeCircle)
{
    SceneMaker maker;
    maker.circle({0, 0}, 1.0);
    const auto scene = maker.finish();
    StrokeRuns runs;
    const double scale = 1e9;
    const PixelFrame frame({std::sqrt(0.5), std::sqrt(0.5)}, scale, {50, 50});
    SolidLine line(runs, kBox);
    walkPath(pathOf(*scene, scene->shapes[0]), frame, kBox, line);
    ASSERT_EQ(runs.count(), 1u);
    EXPECT_LT(runs.pointCount(), 200u);
    EXPECT_NEAR(runs.run(0).front().x() - runs.run(0).back().x(), 100.0, 2.0);
}

TEST(Cubic, KnowsItsLength)
{
    const double k = 0.5522847498307936;
    const Cubic quarter{{1, 0}, {1, k}, {k, 1}, {0, 1}};
    EXPECT_NEAR(quarter.length(), std::acos(0.0), 5e-4); // the curve is no exact circle
    const auto [first, second] = quarter.halves();
    EXPECT_NEAR(first.length() + second.length(), quarter.length(), 1e-5);
    const Cubic straight{{0, 0}, {1, 0}, {2, 0}, {3, 0}};
    EXPECT_NEAR(straight.length(), 3.0, 1e-12);
}

TEST(Path, StopsWhereItsPointsEnd)
{
    const PathStep steps[] = {PathStep::Move, PathStep::Line, PathStep::Cubic};
    const QPointF points[] = {{0, 0}, {10, 0}, {20, 0}};
    StrokeRuns runs;
    SolidLine line(runs, kBox);
    walkPath({steps, points}, PixelFrame::pixels(), kBox, line);
    EXPECT_THAT(spans(runs), ElementsAre(std::pair(0.0, 10.0)));
}

TEST(Dashes, FollowThePattern)
{
    const SceneLinetype linetype = dashes({10, -5, 0, -5});
    StrokeRuns runs;
    DashedLine line(runs, kBox, linetype, 1.0);
    line.moveTo({0, 50});
    line.lineTo({45, 50});
    EXPECT_THAT(spans(runs),
                ElementsAre(std::pair(0.0, 10.0), std::pair(15.0, 16.0), std::pair(20.0, 30.0),
                            std::pair(35.0, 36.0), std::pair(40.0, 45.0)));
}

TEST(Dashes, GoOnOverCorners)
{
    const SceneLinetype linetype = dashes({10, -10});
    StrokeRuns runs;
    DashedLine line(runs, kBox, linetype, 1.0);
    line.moveTo({0, 0});
    line.lineTo({25, 0});
    line.lineTo({25, 25});
    ASSERT_EQ(runs.count(), 3u);
    EXPECT_EQ(runs.run(1).size(), 3u); // around the corner, 5 to each side
    EXPECT_NEAR(runs.run(1).front().x(), 20.0, 1e-9);
    EXPECT_NEAR(runs.run(1).back().y(), 5.0, 1e-9);
    EXPECT_NEAR(runs.run(2).front().y(), 15.0, 1e-9);
}

TEST(Dashes, BeginAnewWithEachPart)
{
    const SceneLinetype linetype = dashes({10, -10});
    StrokeRuns runs;
    DashedLine line(runs, kBox, linetype, 1.0);
    line.moveTo({0, 0});
    line.lineTo({15, 0});
    line.moveTo({50, 0});
    line.lineTo({65, 0});
    EXPECT_THAT(spans(runs), ElementsAre(std::pair(0.0, 10.0), std::pair(50.0, 60.0)));
}

TEST(Dashes, KeepTheirPlaceOnALineThatBeginsFarOutside)
{
    const SceneLinetype linetype = dashes({10, -10});
    StrokeRuns runs;
    DashedLine line(runs, kBox, linetype, 1.0);
    line.moveTo({-2'000'000'005.0, 50});
    line.lineTo({3e9, 50});
    ASSERT_EQ(runs.count(), 6u); // the first and the last are cut
    EXPECT_NEAR(runs.run(0).back().x(), 5.0, 1e-3);
    EXPECT_NEAR(runs.run(1).front().x(), 15.0, 1e-3);
    EXPECT_NEAR(runs.run(1).back().x(), 25.0, 1e-3);
}

TEST(Dashes, EndWithALineOfAnyLength)
{
    const SceneLinetype linetype = dashes({10, -10});
    StrokeRuns runs;
    DashedLine line(runs, kBox, linetype, 1.0);
    line.moveTo({-1e18, 50});
    line.lineTo({1e18, 50});
    line.lineTo({std::nan(""), 50});
    EXPECT_LE(runs.count(), 12u);
}

TEST(Dashes, AreSeenFromOneAndAHalfPixelsOn)
{
    EXPECT_TRUE(DashedLine::isVisible(dashes({2, -2}), 1.0));
    EXPECT_FALSE(DashedLine::isVisible(dashes({2, -2}), 0.5));
    EXPECT_FALSE(DashedLine::isVisible(dashes({}), 1.0));
    EXPECT_FALSE(DashedLine::isVisible(dashes({0, 0}), 1.0));
}

TEST(PixelFrame, KeepsDigitsFarFromTheOrigin)
{
    const PixelFrame frame({1e12, -1e12}, 100.0, {50, 60});
    const QPointF pixel = frame.map({1e12 + 0.25, -1e12 + 0.5});
    EXPECT_DOUBLE_EQ(pixel.x(), 75.0);
    EXPECT_DOUBLE_EQ(pixel.y(), 10.0);
}

TEST(PixelFrame, ComposesWithTheFrameOfAWindow)
{
    const PixelFrame sheet({100, 100}, 2.0, {300, 200});
    QTransform map;
    map.translate(40, 70).rotate(30).scale(0.5, 0.5);
    const PixelFrame model = sheet.within(map);
    for (const QPointF point : {QPointF(0, 0), QPointF(13, -7), QPointF(1e6, 1e6)}) {
        const QPointF expected = sheet.map(map.map(point));
        EXPECT_NEAR(model.map(point).x(), expected.x(), 1e-6);
        EXPECT_NEAR(model.map(point).y(), expected.y(), 1e-6);
    }
    EXPECT_NEAR(model.scale(), 1.0, 1e-12);
}

TEST(PixelFrame, FindsTheUnitsAroundPixels)
{
    const PixelFrame frame({10, 20}, 2.0, {50, 50});
    const SceneBox box = frame.unmapped(kBox);
    EXPECT_DOUBLE_EQ(box.left, -15.0);
    EXPECT_DOUBLE_EQ(box.right, 35.0);
    EXPECT_DOUBLE_EQ(box.bottom, -5.0);
    EXPECT_DOUBLE_EQ(box.top, 45.0);
    const ClipBox back = frame.mapped(box);
    EXPECT_DOUBLE_EQ(back.top, 0.0);
    EXPECT_DOUBLE_EQ(back.right, 100.0);
}

TEST(PixelFrame, TakesAFrameWithoutAreaForOneThatShowsEverythingAtOnePlace)
{
    const PixelFrame flat = PixelFrame({0, 0}, 2.0, {50, 50}).within(QTransform(0, 0, 0, 0, 5, 5));
    EXPECT_EQ(flat.map({7, 8}), QPointF(60, 40));
    EXPECT_GT(flat.unmapped(kBox).width(), 1e300);
}

TEST(Zoom, LeavesThePointUnderTheCursor)
{
    const ViewPlace place{{10, 20}, 0.5};
    const QSizeF size(400, 300);
    const QPointF pixel(37, 251);
    const QPointF units = unitsAt(place, size, pixel);
    const ViewPlace zoomed = zoomedAt(place, size, pixel, 3.0);
    EXPECT_NEAR(unitsAt(zoomed, size, pixel).x(), units.x(), 1e-12);
    EXPECT_NEAR(pixelAt(zoomed, size, units).y(), pixel.y(), 1e-9);
}

TEST(Zoom, ShowsAPointAndNothing)
{
    SceneBox point;
    point.add(QPointF(5, 6));
    const ViewPlace place = placeAround(point, {400, 300}, 10);
    EXPECT_EQ(place.center, QPointF(5, 6));
    EXPECT_GT(place.unitsPerPixel, 0.0);
    EXPECT_EQ(placeAround({}, {400, 300}, 10), ViewPlace());
    EXPECT_GT(placeAround({0, 0, 1, 1}, {0, 0}, 10).unitsPerPixel, 0.0);
}

TEST(Zoom, ComesToSensiblePlacesForDrawingsOfAnySize)
{
    for (const double size : {1e-12, 1.0, 1e12}) {
        const SceneBox box{0, 0, size, size};
        const ViewPlace fit = placeAround(box, {400, 300}, 10);
        EXPECT_EQ(limited(fit, box), fit) << size;
        const ViewPlace near = limited({fit.center, fit.unitsPerPixel * 1e-30}, box);
        EXPECT_LT(near.unitsPerPixel, fit.unitsPerPixel * 1e-4) << size;
        // Two neighbouring pixels are different numbers.
        EXPECT_NE(near.center.x() + near.unitsPerPixel, near.center.x()) << size;
    }
}

TEST(Zoom, IsNotHeldBackByALostPoint)
{
    const ViewPlace place{{5, 5}, 0.01};
    EXPECT_EQ(limited(place, {0, 0, 1e20, 1e20}), place);
    EXPECT_EQ(limited(place, {0, 0, 1e308, 1e308}), place);
    EXPECT_TRUE(std::isfinite(placeAround({-1e308, 0, 1e308, 1}, {400, 300}, 10).unitsPerPixel));
}

TEST(SceneIndex, AnswersInTheOrderInWhichItemsArePainted)
{
    SceneMaker maker;
    for (int i = 0; i < 100; ++i) {
        maker.item();
        maker.line({100.0 - i, 0}, {100.0 - i, 1});
    }
    const SceneIndex index(maker.finish());
    std::vector<SceneIndex::Rank> ranks;
    index.find({40.5, 0, 44.5, 1}, 0.0, ranks);
    EXPECT_THAT(ranks, ElementsAre(56, 57, 58, 59));
    EXPECT_EQ(index.entry(56).item, 56u);
    EXPECT_EQ(index.item(56).id, madeId(56));
}

TEST(SceneIndex, FindsItemsByTheirIds)
{
    SceneMaker maker;
    for (int i = 0; i < 5; ++i) {
        maker.item();
        maker.line({0, 0}, {1, 1});
        maker.line({0, 0}, {1, 1});
    }
    const SceneIndex index(maker.finish());
    EXPECT_THAT(index.itemsOf({madeId(3), madeId(9), madeId(1), madeId(3)}), ElementsAre(1, 3));
    EXPECT_EQ(index.firstRank(3), 6u);
}

TEST(Ground, TurnsColourSevenAgainstTheGround)
{
    SceneLook look;
    look.isForeground = true;
    EXPECT_EQ(Ground::of(ViewColors::Dark, false).painted(look), QColor(Qt::white));
    EXPECT_EQ(Ground::of(ViewColors::Light, false).painted(look), QColor(Qt::black));
    EXPECT_EQ(Ground::of(ViewColors::Dark, true).painted(look), QColor(Qt::black));
}

TEST(Ground, KeepsColoursThatStandOutAndChangesTheOthers)
{
    SceneLook look;
    look.color = 0xFFFFFF00; // yellow
    EXPECT_EQ(Ground::of(ViewColors::Dark, false).painted(look), QColor(Qt::yellow));
    const QColor onWhite = Ground::of(ViewColors::Light, false).painted(look);
    EXPECT_LT(onWhite.lightness(), QColor(Qt::yellow).lightness());
    EXPECT_GT(onWhite.red(), onWhite.blue()); // still a kind of yellow
    look.color = 0x80202428;
    const QColor onDark = Ground::of(ViewColors::Dark, false).painted(look);
    EXPECT_GT(onDark.lightness(), 60);
    EXPECT_EQ(onDark.alpha(), 0x80);
}

TEST(LayerFilter, BoxesWhatIsSeen)
{
    SceneMaker maker;
    const auto layer = maker.addLayer();
    maker.item();
    maker.line({0, 0}, {1, 1});
    maker.onLayer(layer);
    maker.item();
    maker.line({5, 5}, {9, 9});
    const auto scene = maker.finish();
    const std::vector<LayerState> off{{true, false}, {false, false}};
    EXPECT_EQ(visibleBox(*scene, LayerFilter(*scene, {})), (SceneBox{0, 0, 9, 9}));
    EXPECT_EQ(visibleBox(*scene, LayerFilter(*scene, off)), (SceneBox{0, 0, 1, 1}));
}
