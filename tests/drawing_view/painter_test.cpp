// The thread that paints.
#include <kwdraw/view/view_painter.h>

#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <atomic>

#include "view_fixture.h"

namespace {

ViewRequest requestFor(std::shared_ptr<const Scene> scene)
{
    ViewRequest request;
    request.scene = std::move(scene);
    request.size = {200, 100};
    request.place = {{100, 50}, 1.0};
    request.colors = ViewColors::Dark;
    return request;
}

std::shared_ptr<const Scene> oneLine()
{
    SceneMaker maker;
    maker.line({0, 50}, {200, 50});
    return maker.finish();
}

/// Takes seconds to be painted: large areas on each other.
std::shared_ptr<const Scene> slowScene()
{
    SceneMaker maker;
    for (int i = 0; i < 20'000; ++i) {
        maker.item();
        maker.circle({100, 50}, 40.0 + i % 20);
        maker.fill(QPolygonF({{0, 0}, {200, 3}, {199, 100}, {2, 99}, {100, 50}}));
    }
    return maker.finish();
}

bool isEmpty(const QImage& image)
{
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (image.pixel(x, y) != kDarkGround)
                return false;
    return true;
}

constexpr auto kDrawing = static_cast<std::size_t>(ViewLayer::Drawing);
constexpr auto kMarks = static_cast<std::size_t>(ViewLayer::Marks);

} // namespace

TEST(ViewPainter, PaintsWhatIsAskedFor)
{
    std::atomic<int> ready = 0;
    ViewPainter painter([&ready] { ++ready; });
    painter.submit(requestFor(oneLine()));
    const PaintedView painted = painter.finished();
    ASSERT_EQ(painted.pictures[kDrawing].image.size(), QSize(200, 100));
    EXPECT_FALSE(isEmpty(painted.pictures[kDrawing].image));
    EXPECT_TRUE(painted.pictures[kMarks].image.isNull());
    ASSERT_TRUE(painted.index);
    EXPECT_EQ(painted.index->size(), 1u);
    EXPECT_GE(ready, 2); // the index, the picture
}

struct FineScreen
{
    const char* name;
    double ratio;
    int pixels; ///< of the picture, that a thin line takes
};

class ThinLines : public testing::TestWithParam<FineScreen>
{
};

TEST_P(ThinLines, AreAsWideAsAPixelOfTheWidget)
{
    ViewPainter painter([] {});
    ViewRequest request = requestFor(oneLine());
    request.pixelRatio = GetParam().ratio;
    painter.submit(request);
    const QImage image = painter.finished().pictures[kDrawing].image;
    // A line between two rows of pixels shows in both of them, each time by half.
    int light = 0;
    for (int y = 0; y < image.height(); ++y)
        light += qGray(image.pixel(image.width() / 2, y)) - qGray(kDarkGround);
    const double ofOnePixel = qGray(qRgb(255, 255, 255)) - qGray(kDarkGround);
    EXPECT_NEAR(light / ofOnePixel, GetParam().pixels, 0.05);
}

TEST_P(ThinLines, AreDotsOfThatSizeWhereAShapeIsVerySmall)
{
    SceneMaker maker;
    maker.line({100, 50}, {100.1, 50.1});
    ViewPainter painter([] {});
    ViewRequest request = requestFor(maker.finish());
    request.pixelRatio = GetParam().ratio;
    painter.submit(request);
    const QImage image = painter.finished().pictures[kDrawing].image;
    int painted = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            painted += image.pixel(x, y) != kDarkGround;
    EXPECT_EQ(painted, GetParam().pixels * GetParam().pixels);
}

INSTANTIATE_TEST_SUITE_P(Screens, ThinLines,
                         testing::Values(FineScreen{"usual", 1.0, 1},
                                         FineScreen{"aLittleFiner", 1.25, 1},
                                         FineScreen{"finer", 1.5, 2}, FineScreen{"twice", 2.0, 2},
                                         FineScreen{"threeTimes", 3.0, 3}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ViewPainter, PaintsTheNewestOfManyRequests)
{
    ViewPainter painter([] {});
    ViewRequest request = requestFor(oneLine());
    for (int i = 0; i <= 200; ++i) {
        request.place.center.setX(100.0 + i);
        painter.submit(request);
    }
    EXPECT_EQ(painter.finished().pictures[kDrawing].source.place, request.place);
}

TEST(ViewPainter, GivesUpAPictureThatNobodyWants)
{
    ViewPainter painter([] {});
    painter.submit(requestFor(slowScene()));
    QThread::msleep(100);
    QElapsedTimer timer;
    timer.start();
    const auto line = oneLine();
    painter.submit(requestFor(line));
    EXPECT_EQ(painter.finished().pictures[kDrawing].source.scene, line);
    EXPECT_LT(timer.elapsed(), 500);
}

TEST(ViewPainter, FinishesAPictureNowAndThenWhileThePlaceKeepsChanging)
{
    std::atomic<int> ready = 0;
    ViewPainter painter([&ready] { ++ready; });
    SceneMaker maker;
    for (int i = 0; i < 1500; ++i)
        maker.fill(QPolygonF({{0, 0}, {200, 3}, {199, 100}, {2, 99}, {100, 50}}));
    ViewRequest request = requestFor(maker.finish());
    QElapsedTimer timer;
    timer.start();
    while (ready < 2 && timer.elapsed() < 20'000) { // 1 is the index
        request.place.center.rx() += 0.01;
        painter.submit(request);
        QThread::msleep(2);
    }
    EXPECT_GE(ready, 2);
}

TEST(ViewPainter, EndsWhileItPaints)
{
    QElapsedTimer timer;
    {
        ViewPainter painter([] {});
        painter.submit(requestFor(slowScene()));
        QThread::msleep(100);
        timer.start();
    }
    EXPECT_LT(timer.elapsed(), 500);
}

TEST(ViewPainter, EndsWithoutHavingPainted)
{
    ViewPainter painter([] {});
    EXPECT_TRUE(painter.finished().pictures[kDrawing].image.isNull());
}

TEST(ViewPainter, RepaintsMarksAloneWhenTheSelectionChanges)
{
    ViewPainter painter([] {});
    ViewRequest request = requestFor(oneLine());
    painter.submit(request);
    const auto before = painter.finished().pictures[kDrawing].image.cacheKey();
    request.highlighted = std::make_shared<const std::vector<KdDbObjectId>>(std::vector{madeId(0)});
    painter.submit(request);
    const PaintedView after = painter.finished();
    EXPECT_EQ(after.pictures[kDrawing].image.cacheKey(), before);
    ASSERT_FALSE(after.pictures[kMarks].image.isNull());
    EXPECT_LT(after.pictures[kMarks].image.height(), 40); // no larger than what it marks
    request.highlighted = nullptr;
    painter.submit(request);
    EXPECT_TRUE(painter.finished().pictures[kMarks].image.isNull());
}

TEST(ViewPainter, ForgetsTheIndexOfAnotherScene)
{
    ViewPainter painter([] {});
    painter.submit(requestFor(oneLine()));
    painter.finished();
    painter.submit(requestFor(nullptr));
    const PaintedView painted = painter.finished();
    EXPECT_FALSE(painted.index);
    EXPECT_TRUE(painted.pictures[kDrawing].image.isNull());
}

TEST(ViewPainter, LetsASceneGoThatIsNoLongerShown)
{
    ViewPainter painter([] {});
    std::weak_ptr<const Scene> scene;
    {
        const auto shown = oneLine();
        scene = shown;
        painter.submit(requestFor(shown));
        painter.finished();
    }
    EXPECT_FALSE(scene.expired());
    painter.submit(requestFor(nullptr));
    painter.finished();
    EXPECT_TRUE(scene.expired());
}

TEST(ViewPainter, SharesTheIndexOfTheModelWithSheets)
{
    ViewPainter painter([] {});
    const auto model = oneLine();
    SceneMaker sheet;
    sheet.window(QPolygonF({{0, 0}, {10, 0}, {10, 10}, {0, 10}}), {}, model);
    painter.submit(requestFor(model));
    const auto ofModel = painter.finished().index;
    painter.submit(requestFor(sheet.finish()));
    const auto ofSheet = painter.finished().index;
    ASSERT_EQ(ofSheet->models().size(), 1u);
    EXPECT_EQ(ofSheet->models()[0], ofModel);
}
