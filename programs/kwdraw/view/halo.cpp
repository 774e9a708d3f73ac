#include "halo.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace {

/// The halo's own opacity, of 255.
constexpr int kOpacity = 125;

/// Opacities of a picture, and room for another of them.
struct Mask
{
    int width;
    int height;
    std::vector<std::uint8_t> values;
    std::vector<std::uint8_t> next;
};

Mask opacitiesOf(const QImage& picture)
{
    Mask mask{picture.width(), picture.height(), {}, {}};
    mask.values.reserve(static_cast<std::size_t>(mask.width) *
                        static_cast<std::size_t>(mask.height));
    for (int y = 0; y < mask.height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < mask.width; ++x)
            mask.values.push_back(static_cast<std::uint8_t>(qAlpha(line[x])));
    }
    mask.next.resize(mask.values.size());
    return mask;
}

/// Means over `2 * radius + 1` values of each row, written as columns, so that two calls treat both
/// directions. Each mean is multiplied by `gain`.
void meansOfRows(Mask& mask, int radius, int gain)
{
    const int span = 2 * radius + 1;
    for (int y = 0; y < mask.height; ++y) {
        const std::uint8_t* row = mask.values.data() + static_cast<std::ptrdiff_t>(y) * mask.width;
        int sum = 0;
        for (int x = 0; x < std::min(radius, mask.width); ++x)
            sum += row[x];
        std::uint8_t* column = mask.next.data() + y;
        for (int x = 0; x < mask.width; ++x, column += mask.height) {
            sum += x + radius < mask.width ? row[x + radius] : 0;
            sum -= x - radius - 1 >= 0 ? row[x - radius - 1] : 0;
            *column = static_cast<std::uint8_t>(std::min(255, sum * gain / span));
        }
    }
    mask.values.swap(mask.next);
    std::swap(mask.width, mask.height);
}

/// The halo's colour for each of its opacities, premultiplied.
std::vector<QRgb> colorsOf(const QColor& color)
{
    std::vector<QRgb> colors;
    for (int opacity = 0; opacity < 256; ++opacity)
        colors.push_back(qPremultiply(
            qRgba(color.red(), color.green(), color.blue(), opacity * kOpacity / 255)));
    return colors;
}

/// `lower` under `upper`, both premultiplied.
QRgb under(QRgb upper, QRgb lower)
{
    const int left = 255 - qAlpha(upper);
    const auto mix = [left](int above, int below) { return above + below * left / 255; };
    return qRgba(mix(qRed(upper), qRed(lower)), mix(qGreen(upper), qGreen(lower)),
                 mix(qBlue(upper), qBlue(lower)), mix(qAlpha(upper), qAlpha(lower)));
}

} // namespace

void addHalo(QImage& picture, const QColor& color, double pixelRatio)
{
    Mask mask = opacitiesOf(picture);
    const int radius = std::max(1, static_cast<int>(2.0 * pixelRatio));
    meansOfRows(mask, radius, 1);
    meansOfRows(mask, radius, 3);
    meansOfRows(mask, 1, 1);
    meansOfRows(mask, 1, 2);
    const std::vector<QRgb> colors = colorsOf(color);
    const std::uint8_t* value = mask.values.data();
    for (int y = 0; y < picture.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x, ++value)
            if (*value != 0)
                line[x] = under(line[x], colors[*value]);
    }
}
