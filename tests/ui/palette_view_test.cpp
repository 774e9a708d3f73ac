// The field of numbered colours.
#include "window_test.h"

#include <database/color_palette.h>

#include <QImage>
#include <QPixmap>

#include "palette_view.h"

namespace {

class PaletteView : public WindowTest
{
  protected:
    PaletteView() { view.resize(view.sizeHint()); }

    QImage picture() { return view.grab().toImage(); }

    KdUiPaletteView view;
};

TEST_F(PaletteView, ShowsEachColorInTheMiddleOfItsCell)
{
    const QImage shown = picture();
    for (int index = 1; index <= 255; ++index) {
        const QRgb color = shown.pixel(view.cellOf(index).center());
        EXPECT_EQ(color & 0xFFFFFFu, kdcmPaletteRgb(index) & 0xFFFFFFu) << index;
    }
}

TEST_F(PaletteView, FramesTheChosenColorAlone)
{
    view.setIndex(1);
    const QImage first = picture();
    view.setIndex(40);
    const QImage other = picture();
    const auto sideOf = [&](int index) {
        const QRect cell = view.cellOf(index);
        return QPoint(cell.left(), cell.center().y());
    };
    EXPECT_NE(first.pixel(sideOf(1)), other.pixel(sideOf(1)));
    EXPECT_NE(first.pixel(sideOf(40)), other.pixel(sideOf(40)));
    EXPECT_EQ(first.pixel(sideOf(120)), other.pixel(sideOf(120)));
}

TEST_F(PaletteView, TellsTheNumberAndTheSharesOfTheChosenColor)
{
    view.setIndex(1);
    const QImage first = picture();
    view.setIndex(2);
    const QImage second = picture();
    const QRect line(0, view.height() - view.fontMetrics().height(), view.width(),
                     view.fontMetrics().height());
    EXPECT_NE(first.copy(line), second.copy(line));
    EXPECT_EQ(view.accessibleDescription(), "2");
}

} // namespace
