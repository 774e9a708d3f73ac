// The mouse and the keys in the view.
#include <QApplication>

#include <cmath>

#include "view_fixture.h"

namespace {

bool isNear(QPointF first, QPointF second, double tolerance = 1e-6)
{
    return (first - second).manhattanLength() < tolerance;
}

/// Two lines: item 0 from (100,100) to (200,100), item 1 from (100,200) to (200,200).
std::shared_ptr<const Scene> twoLines()
{
    SceneMaker maker;
    maker.item();
    maker.line({100, 100}, {200, 100});
    maker.item();
    maker.line({100, 200}, {200, 200});
    return maker.finish();
}

} // namespace

class Interaction : public ViewTest
{
};

TEST_F(Interaction, ZoomsToTheExtentsOfANewScene)
{
    view->setScene(twoLines());
    EXPECT_TRUE(isNear(view->place().center, {150, 150}));
    EXPECT_LT(100.0 / view->place().unitsPerPixel, 300.0);
    EXPECT_GT(100.0 / view->place().unitsPerPixel, 250.0);
}

TEST_F(Interaction, KeepsTheExtentsInViewWhileItsSizeChanges)
{
    view->setScene(twoLines());
    view->resize(200, 600);
    EXPECT_TRUE(isNear(view->place().center, {150, 150}));
    EXPECT_GT(view->place().unitsPerPixel, 100.0 / 200.0);
}

TEST_F(Interaction, KeepsThePlaceOfTheUserWhenItsSizeChanges)
{
    show(twoLines());
    view->setPlace({{1, 2}, 0.5});
    view->resize(200, 600);
    EXPECT_EQ(view->place(), (ViewPlace{{1, 2}, 0.5}));
}

TEST_F(Interaction, ZoomsAtTheCursorWithTheWheel)
{
    show(twoLines());
    wheel(at(120, 70), 2);
    EXPECT_NEAR(view->place().unitsPerPixel, 1.0 / (1.25 * 1.25), 1e-12);
    moveTo(at(120, 70));
    EXPECT_TRUE(isNear(cursors.back(), {120, 70}));
    wheel(at(120, 70), -2);
    EXPECT_TRUE(isNear(view->place().center, {200, 150}));
    EXPECT_NEAR(view->place().unitsPerPixel, 1.0, 1e-12);
}

TEST_F(Interaction, PansWithTheMiddleButton)
{
    show(twoLines());
    const int before = placeChanges;
    drag(at(100, 100), at(130, 80), Qt::MiddleButton);
    EXPECT_TRUE(isNear(view->place().center, {170, 170}));
    EXPECT_DOUBLE_EQ(view->place().unitsPerPixel, 1.0);
    EXPECT_GT(placeChanges, before);
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor);
    EXPECT_TRUE(picks.empty());
}

TEST_F(Interaction, ShowsTheExtentsAtADoubleClickOfTheMiddleButton)
{
    show(twoLines());
    const ViewPlace before = view->place();
    QTest::mouseDClick(view.get(), Qt::MiddleButton, {}, at(10, 10));
    EXPECT_TRUE(isNear(view->place().center, {150, 150}));
    EXPECT_NE(view->place(), before);
}

TEST_F(Interaction, TellsWhereTheCursorIs)
{
    show(twoLines());
    moveTo(at(37, 51));
    ASSERT_FALSE(cursors.empty());
    EXPECT_TRUE(isNear(cursors.back(), {37, 51}));
}

TEST_F(Interaction, PicksTheEntityThatIsClicked)
{
    show(twoLines());
    QTest::mouseClick(view.get(), Qt::LeftButton, {}, at(150, 203));
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(1)});
    EXPECT_FALSE(picks[0].takeAway);
    EXPECT_FALSE(view->isDrawingBox());
}

TEST_F(Interaction, TakesAwayWithShift)
{
    show(twoLines());
    click(at(150, 100), Qt::LeftButton, Qt::ShiftModifier);
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_TRUE(picks[0].takeAway);
    drag(at(90, 90), at(210, 110), Qt::LeftButton, Qt::ShiftModifier);
    ASSERT_EQ(picks.size(), 2u);
    EXPECT_TRUE(picks[1].takeAway);
}

TEST_F(Interaction, DrawsAWindowByDraggingToTheRight)
{
    show(twoLines());
    press(at(90, 90));
    moveTo(at(150, 150), Qt::LeftButton);
    EXPECT_TRUE(view->isDrawingBox());
    moveTo(at(210, 210), Qt::LeftButton);
    release(at(210, 210));
    EXPECT_FALSE(view->isDrawingBox());
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, (std::vector{madeId(0), madeId(1)}));
}

TEST_F(Interaction, LeavesOutOfAWindowWhatSticksOut)
{
    show(twoLines());
    drag(at(90, 90), at(180, 210));
    EXPECT_TRUE(picks.empty());
}

TEST_F(Interaction, DrawsACrossingByDraggingToTheLeft)
{
    show(twoLines());
    drag(at(180, 150), at(90, 90));
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Interaction, DrawsABoxByTwoClicks)
{
    show(twoLines());
    click(at(90, 90));
    EXPECT_TRUE(view->isDrawingBox());
    moveTo(at(210, 110));
    click(at(210, 110));
    EXPECT_FALSE(view->isDrawingBox());
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Interaction, EndsABoxOnAnEntityToo)
{
    show(twoLines());
    click(at(250, 150));
    click(at(150, 100)); // to the left: a crossing, whose corner touches the line
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Interaction, KeepsTheFirstCornerInPlaceWhileTheWheelZooms)
{
    show(twoLines());
    click(at(90, 90));
    wheel(at(90, 90), 3);
    wheel(at(90, 90), -3);
    look({50, 50}); // the corner is at (90,90) still, which is the pixel (40,40) now
    click(at(160, 60));
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Interaction, TakesADoubleClickForTwoClicks)
{
    show(twoLines());
    click(at(150, 100));
    QTest::mouseDClick(view.get(), Qt::LeftButton, {}, at(150, 100)); // with no release
    release(at(150, 100));
    ASSERT_EQ(picks.size(), 2u);
    EXPECT_EQ(picks[1].ids, std::vector{madeId(0)});
    EXPECT_FALSE(view->isDrawingBox());
}

TEST_F(Interaction, GivesUpABoxWithEscape)
{
    show(twoLines());
    EXPECT_FALSE(view->cancelBox());
    click(at(90, 90));
    QTest::keyClick(view.get(), Qt::Key_Escape);
    EXPECT_FALSE(view->isDrawingBox());
    click(at(150, 100));
    ASSERT_EQ(picks.size(), 1u);
    EXPECT_EQ(picks[0].ids, std::vector{madeId(0)});
}

TEST_F(Interaction, TellsOfARightClick)
{
    show(twoLines());
    click(at(150, 150), Qt::RightButton);
    EXPECT_EQ(rightClicks, 1);
}

TEST_F(Interaction, GivesUpABoxWithARightClick)
{
    show(twoLines());
    click(at(90, 90));
    click(at(95, 95), Qt::RightButton);
    EXPECT_EQ(rightClicks, 0);
    EXPECT_FALSE(view->isDrawingBox());
}

TEST_F(Interaction, ZoomsToTheBoxThatWasAskedFor)
{
    show(twoLines());
    view->beginZoomWindow();
    drag(at(100, 100), at(200, 175)); // begins on a line and picks nothing
    EXPECT_TRUE(picks.empty());
    EXPECT_TRUE(isNear(view->place().center, {150, 137.5}));
    EXPECT_NEAR(view->place().unitsPerPixel, 0.25, 1e-9);
    click(at(390, 290)); // the next box selects again
    EXPECT_TRUE(view->isDrawingBox());
}

TEST_F(Interaction, ZoomsToABoxOfTwoClicks)
{
    show(twoLines());
    view->beginZoomWindow();
    click(at(200, 175));
    EXPECT_TRUE(view->isDrawingBox());
    click(at(100, 100));
    EXPECT_NEAR(view->place().unitsPerPixel, 0.25, 1e-9);
}

TEST_F(Interaction, GivesUpAZoomWindow)
{
    show(twoLines());
    view->beginZoomWindow();
    EXPECT_TRUE(view->cancelBox());
    EXPECT_FALSE(view->cancelBox());
    click(at(150, 100));
    EXPECT_EQ(picks.size(), 1u);
}

TEST_F(Interaction, GoesBackToThePlacesBeforeZooms)
{
    show(twoLines());
    const ViewPlace first = view->place();
    view->zoomBy(2.0);
    const ViewPlace second = view->place();
    view->zoomTo({madeId(0)});
    EXPECT_NE(view->place(), second);
    view->zoomToPrevious();
    EXPECT_EQ(view->place(), second);
    view->zoomToPrevious();
    EXPECT_EQ(view->place(), first);
    view->zoomToPrevious();
    EXPECT_EQ(view->place(), first);
}

TEST_F(Interaction, TakesTurnsOfTheWheelInARowForOneZoom)
{
    show(twoLines());
    const ViewPlace first = view->place();
    for (int i = 0; i < 5; ++i)
        wheel(at(10, 10), 1);
    view->zoomToPrevious();
    EXPECT_EQ(view->place(), first);
}

TEST_F(Interaction, ShowsTheNamedEntitiesWithSomeRoom)
{
    show(twoLines());
    view->zoomTo({madeId(1)});
    EXPECT_TRUE(isNear(view->place().center, {150, 200}));
    EXPECT_LT(100.0 / view->place().unitsPerPixel, 400.0);
    EXPECT_GT(100.0 / view->place().unitsPerPixel, 250.0);
}

TEST_F(Interaction, StaysWhereItIsForEntitiesThatAreNotThere)
{
    show(twoLines());
    const ViewPlace before = view->place();
    view->zoomTo({madeId(77)});
    view->zoomTo({});
    view->center(madeId(77));
    EXPECT_EQ(view->place(), before);
}

TEST_F(Interaction, CentersAnEntityWithoutZoomingIn)
{
    show(twoLines());
    view->center(madeId(1));
    EXPECT_TRUE(isNear(view->place().center, {150, 200}));
    EXPECT_DOUBLE_EQ(view->place().unitsPerPixel, 1.0);
}

TEST_F(Interaction, CentersAnEntityThatIsTooLargeByZoomingOut)
{
    show(twoLines());
    view->setPlace({{0, 0}, 0.01});
    view->center(madeId(1));
    EXPECT_TRUE(isNear(view->place().center, {150, 200}));
    EXPECT_LT(100.0 / view->place().unitsPerPixel, 400.0);
}

TEST_F(Interaction, ZoomsAndPansWithKeys)
{
    show(twoLines());
    QTest::keyClick(view.get(), Qt::Key_Plus);
    EXPECT_NEAR(view->place().unitsPerPixel, 0.8, 1e-12);
    QTest::keyClick(view.get(), Qt::Key_Minus);
    EXPECT_NEAR(view->place().unitsPerPixel, 1.0, 1e-12);
    const QPointF middle = view->place().center;
    QTest::keyClick(view.get(), Qt::Key_Right);
    EXPECT_TRUE(isNear(view->place().center, middle + QPointF(40, 0)));
    QTest::keyClick(view.get(), Qt::Key_Up);
    EXPECT_TRUE(isNear(view->place().center, middle + QPointF(40, 30)));
    QTest::keyClick(view.get(), Qt::Key_Left);
    QTest::keyClick(view.get(), Qt::Key_Down);
    EXPECT_TRUE(isNear(view->place().center, middle));
}

TEST_F(Interaction, StopsZoomingWhereNumbersEnd)
{
    show(twoLines());
    for (int i = 0; i < 100; ++i)
        wheel(at(300, 50), 50);
    const ViewPlace nearest = view->place();
    EXPECT_GT(nearest.unitsPerPixel, 0.0);
    EXPECT_TRUE(isNear(nearest.center, {300, 50}, 1e-3));
    wheel(at(100, 100), 5);
    EXPECT_TRUE(isNear(view->place().center, nearest.center, 1e-9)); // no sliding at the limit
    for (int i = 0; i < 100; ++i)
        wheel(at(300, 50), -50);
    EXPECT_TRUE(std::isfinite(view->place().unitsPerPixel));
    EXPECT_TRUE(std::isfinite(view->place().center.x()));
    view->setPlace({{std::nan(""), 1e300}, 0.0});
    EXPECT_TRUE(std::isfinite(view->place().center.x()));
    EXPECT_LT(view->place().center.y(), 1e300);
    EXPECT_GT(view->place().unitsPerPixel, 0.0);
    EXPECT_FALSE(view->renderedPicture().isNull());
}

TEST_F(Interaction, AnswersAClickThatComesBeforeTheIndex)
{
    SceneMaker maker;
    for (int i = 0; i < 20'000; ++i) {
        maker.item();
        maker.line({i % 400 + 0.5, 100}, {i % 400 + 0.5, 110});
    }
    view->setScene(maker.finish());
    look();
    click(at(150, 105)); // no event was handled, so the view can't know of an index
    EXPECT_TRUE(picks.empty());
    EXPECT_TRUE(waitUntil([this] { return picks.size() == 1; }));
}

TEST_F(Interaction, ForgetsAClickThatWasMeantForAnotherScene)
{
    view->setScene(twoLines());
    look();
    click(at(150, 100));
    view->setScene(twoLines());
    waitForIndex();
    QTest::qWait(50);
    EXPECT_TRUE(picks.empty());
}

TEST_F(Interaction, IsReadyForKeysAndReaders)
{
    EXPECT_EQ(view->cursor().shape(), Qt::CrossCursor);
    EXPECT_EQ(view->focusPolicy(), Qt::StrongFocus);
    EXPECT_EQ(view->accessibleName(), "Drawing");
}

TEST_F(Interaction, HasNothingToPickWithoutAScene)
{
    show(nullptr);
    click(at(100, 100));
    drag(at(100, 100), at(200, 200));
    drag(at(200, 200), at(100, 100), Qt::MiddleButton);
    wheel(at(50, 50), 1);
    view->zoomToExtents();
    view->zoomTo({madeId(0)});
    view->center(madeId(0));
    EXPECT_TRUE(picks.empty());
}
