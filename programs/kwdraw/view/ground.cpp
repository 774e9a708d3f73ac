#include "ground.h"

#include "contrast.h"

namespace {

Ground highContrast()
{
    Ground ground;
    ground.isDark = true;
    ground.color = Qt::black;
    ground.surround = QColor(0x38, 0x38, 0x38);
    ground.foreground = Qt::white;
    ground.highlighted = Qt::yellow;
    ground.previewed = Qt::cyan;
    ground.hovered = Qt::white;
    ground.legible = 7.0;
    return ground;
}

} // namespace

ViewColors viewColorsOf(const QPalette& palette)
{
    if (isHighContrast(palette))
        return ViewColors::HighContrast;
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    return isDark ? ViewColors::Dark : ViewColors::Light;
}

Ground Ground::of(ViewColors colors, bool isSheet)
{
    if (colors == ViewColors::HighContrast)
        return highContrast();
    Ground ground;
    const bool isDark = colors == ViewColors::Dark;
    const bool darkColors = isDark && !isSheet;
    ground.isDark = darkColors;
    ground.color = darkColors ? QColor(0x1f, 0x23, 0x28) : QColor(0xff, 0xff, 0xff);
    if (isDark && isSheet)
        ground.color = QColor(0xf4, 0xf4, 0xf1);
    ground.surround = isDark ? QColor(0x3a, 0x3f, 0x46) : QColor(0xd5, 0xd8, 0xdc);
    ground.foreground = darkColors ? QColor(Qt::white) : QColor(Qt::black);
    ground.highlighted = darkColors ? QColor(0x4d, 0xa6, 0xff) : QColor(0x00, 0x68, 0xd8);
    ground.previewed = darkColors ? QColor(0xff, 0xb0, 0x30) : QColor(0xc8, 0x5a, 0x00);
    ground.hovered = darkColors ? QColor(0xe6, 0xee, 0xf6) : QColor(0x50, 0x58, 0x62);
    return ground;
}

QColor Ground::painted(const SceneLook& look) const
{
    QColor own = QColor::fromRgba(look.color);
    if (look.isForeground) {
        QColor front = foreground;
        front.setAlpha(own.alpha());
        return front;
    }
    constexpr int kSteps = 10;
    QColor shown = own;
    for (int step = 1; step <= kSteps && contrastOf(shown, color) < legible; ++step)
        shown = mixed(own, foreground, static_cast<double>(step) / kSteps);
    return shown;
}
