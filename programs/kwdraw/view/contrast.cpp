#include "contrast.h"

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

} // namespace

double contrastOf(const QColor& first, const QColor& second)
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

bool isHighContrast(const QPalette& palette)
{
    constexpr double kLeast = 20.0;
    return contrastOf(palette.color(QPalette::Window), palette.color(QPalette::WindowText)) >
           kLeast;
}
