#include <database/color_palette.h>

#include <array>

namespace {

using Rgb = std::array<int, 3>;

constexpr std::uint32_t wordOf(const Rgb& rgb)
{
    return static_cast<std::uint32_t>(rgb[0] << 16 | rgb[1] << 8 | rgb[2]);
}

constexpr std::uint32_t kNamed[] = {0x000000, 0xFF0000, 0xFFFF00, 0x00FF00, 0x00FFFF,
                                    0x0000FF, 0xFF00FF, 0xFFFFFF, 0x808080, 0xC0C0C0};
constexpr std::uint32_t kGreys[] = {0x333333, 0x505050, 0x696969, 0x828282, 0xBEBEBE, 0xFFFFFF};

constexpr int kFirstHue = 10;
constexpr int kFirstGrey = 250;
constexpr int kStepsInSector = 4; // the hues lie 15 degrees apart, a sector has 60
constexpr int kFull = 255;

/// How bright the five pairs of each hue are.
constexpr int kBrightness[] = {255, 165, 127, 76, 38};

/// The pure colour of a hue: two of the six sectors share which part rises or falls.
constexpr Rgb pureHue(int step)
{
    const int sector = step / kStepsInSector;
    const int rising = kFull * (step % kStepsInSector) / kStepsInSector;
    switch (sector) {
    case 0:
        return {kFull, rising, 0};
    case 1:
        return {kFull - rising, kFull, 0};
    case 2:
        return {0, kFull, rising};
    case 3:
        return {0, kFull - rising, kFull};
    case 4:
        return {rising, 0, kFull};
    default:
        return {kFull, 0, kFull - rising};
    }
}

/// Within a hue the even indices are pure and the odd ones half way to white.
constexpr std::uint32_t hueColor(int index)
{
    Rgb rgb = pureHue((index - kFirstHue) / 10);
    const int shade = index % 10;
    for (int& part : rgb) {
        if (shade % 2 != 0)
            part += (kFull - part) / 2;
        part = part * kBrightness[shade / 2] / kFull;
    }
    return wordOf(rgb);
}

} // namespace

std::uint32_t kdcmPaletteRgb(int index)
{
    if (index < 1 || index > 255)
        return 0;
    if (index < kFirstHue)
        return kNamed[index];
    return index < kFirstGrey ? hueColor(index) : kGreys[index - kFirstGrey];
}
