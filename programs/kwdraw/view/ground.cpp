#include "ground.h"

#include <algorithm>
#include <cmath>

namespace {

double linear(int channel)
{
    const double value = channel / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& color)
{
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) +
           0.0722 * linear(color.blue());
}

/// 1 for none, 21 between black and white.
double contrast(const QColor& first, const QColor& second)
{
    const double one = luminance(first);
    const double other = luminance(second);
    return (std::max(one, other) + 0.05) / (std::min(one, other) + 0.05);
}

QColor mixed(const QColor& first, const QColor& second, double part)
{
    const auto mix = [part](int a, int b) {
        return static_cast<int>(std::lround(a + (b - a) * part));
    };
    return QColor(mix(first.red(), second.red()), mix(first.green(), second.green()),
                  mix(first.blue(), second.blue()), first.alpha());
}

} // namespace

Ground Ground::of(bool isDark, bool isSheet)
{
    Ground ground;
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
    constexpr double kLegible = 2.4;
    constexpr int kSteps = 10;
    QColor shown = own;
    for (int step = 1; step <= kSteps && contrast(shown, color) < kLegible; ++step)
        shown = mixed(own, foreground, static_cast<double>(step) / kSteps);
    return shown;
}
