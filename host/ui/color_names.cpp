#include "color_names.h"

#include "texts.h"

#include <iterator>

namespace {

struct ColorWord
{
    unsigned int id;
    const char* english;
};

constexpr ColorWord kByLayer = {76557, "ByLayer"};
constexpr ColorWord kByBlock = {76558, "ByBlock"};

/// By index, from 1.
constexpr ColorWord kColorWords[] = {
    {34492, "Red"},  {34580, "Yellow"},  {34410, "Green"}, {34369, "Cyan"},
    {34339, "Blue"}, {34449, "Magenta"}, {34571, "White"},
};

QString wordOf(const ColorWord& word)
{
    return resourceText(word.id, word.english);
}

} // namespace

QString colorName(const KdCmColor& color)
{
    switch (color.colorMethod()) {
    case KdCmColor::kByLayer:
        return wordOf(kByLayer);
    case KdCmColor::kByBlock:
        return wordOf(kByBlock);
    case KdCmColor::kByColor:
        return QStringLiteral("%1,%2,%3").arg(color.red()).arg(color.green()).arg(color.blue());
    default:
        break;
    }
    const int index = color.colorIndex();
    if (index >= 1 && index <= static_cast<int>(std::size(kColorWords)))
        return wordOf(kColorWords[index - 1]);
    return QString::number(index);
}
