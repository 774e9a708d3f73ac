#include "window_test.h"

#include "samples.h"

#include <QImage>
#include <QPainter>
#include <QPalette>

#include <set>

namespace {

class Samples : public WindowTest
{
  protected:
    /// How a sample looks on the ground of a list.
    static QImage drawn(const QIcon& icon, const QSize& size, int scale = 1,
                        QIcon::Mode mode = QIcon::Normal)
    {
        QImage image(size * scale, QImage::Format_ARGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        icon.paint(&painter, image.rect(), Qt::AlignCenter, mode);
        return image;
    }
    /// How many pixels of the middle column are darker than half.
    static int inkInMiddle(const QImage& image)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y)
            count += qGray(image.pixel(image.width() / 2, y)) < 128 ? 1 : 0;
        return count;
    }
    static KdCmColor indexed(int index)
    {
        KdCmColor color;
        color.setColorIndex(index);
        return color;
    }
};

TEST_F(Samples, OfColorsShowTheColor)
{
    const QImage red = drawn(colorSample(indexed(1)), kColorSampleSize);
    EXPECT_EQ(QColor(red.pixel(11, 6)), QColor(255, 0, 0));
    KdCmColor mixed;
    mixed.setRGB(1, 200, 3);
    EXPECT_EQ(QColor(drawn(colorSample(mixed), kColorSampleSize).pixel(11, 6)), QColor(1, 200, 3));
}

TEST_F(Samples, OfTheForegroundShowBothBlackAndWhite)
{
    const QImage both = drawn(colorSample(indexed(7)), kColorSampleSize);
    EXPECT_GT(qGray(both.pixel(4, 3)), 200);
    EXPECT_LT(qGray(both.pixel(18, 9)), 50);
}

TEST_F(Samples, OfLineweightsAreAsThickAsTheLine)
{
    // 2.11 mm are 7.97 pixels of 1/96 inch, 1.06 mm are 4.
    EXPECT_EQ(inkInMiddle(drawn(lineweightSample(211), kLineweightSampleSize)), 8);
    EXPECT_EQ(inkInMiddle(drawn(lineweightSample(106), kLineweightSampleSize)), 4);
    EXPECT_EQ(inkInMiddle(drawn(lineweightSample(106), kLineweightSampleSize, 2)), 8);
}

TEST_F(Samples, OfLinetypesShowDashesAndGaps)
{
    const auto changes = [](const QImage& image) {
        int count = 0;
        for (int x = 1; x < image.width(); ++x) {
            const bool before = qGray(image.pixel(x - 1, 6)) < 128;
            count += before != (qGray(image.pixel(x, 6)) < 128) ? 1 : 0;
        }
        return count;
    };
    EXPECT_LE(changes(drawn(linetypeSample({}), kLinetypeSampleSize)), 2);
    EXPECT_GE(changes(drawn(linetypeSample({0.5, -0.25}), kLinetypeSampleSize)), 6);
    EXPECT_GE(changes(drawn(linetypeSample({12.0, -3.0, 0.0, -3.0}), kLinetypeSampleSize)), 4);
}

TEST_F(Samples, OfArrowheadsAllDiffer)
{
    std::set<QByteArray> pictures;
    for (int row = 0; row < static_cast<int>(arrowheadRows().size()); ++row) {
        const QImage image = drawn(arrowheadSample(row), kArrowheadSampleSize, 2);
        pictures.insert(QByteArray(reinterpret_cast<const char*>(image.constBits()),
                                   static_cast<int>(image.sizeInBytes())));
    }
    EXPECT_EQ(arrowheadRows().size(), 20u);
    EXPECT_EQ(pictures.size(), 20u);
}

TEST_F(Samples, FollowThePalette)
{
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::black);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    QApplication::setPalette(palette);
    EXPECT_GT(inkInMiddle(drawn(lineweightSample(100), kLineweightSampleSize)), 0);
    EXPECT_EQ(inkInMiddle(drawn(lineweightSample(100), kLineweightSampleSize, 1, QIcon::Selected)),
              0);
}

} // namespace
