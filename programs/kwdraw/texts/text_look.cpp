#include <kwdraw/texts/text_look.h>

#include <algorithm>

#include <kwdraw/texts/font_metrics.h>
#include <kwdraw/texts/symbols.h>

namespace {

/// From one letter to the next below it, in heights of the letters.
constexpr double kColumnStep = 4.0 / 3.0;

double widthOfSymbols(const TextLook& look, const QString& letters)
{
    double width = 0.0;
    for (const QChar letter : letters) {
        width += symbolSteps(letter.unicode()).empty()
                     ? advanceOf(look.face.font, QString(letter)) * look.stretch()
                     : kSymbolAdvance * look.widthFactor;
    }
    return width;
}

} // namespace

double widthOf(const TextLook& look, const QString& letters)
{
    const double unit = look.height * look.tracking;
    if (look.isSymbol && !look.isDown)
        return widthOfSymbols(look, letters) * unit;
    if (!look.isDown)
        return advanceOf(look.face.font, letters) * look.stretch() * unit;
    int count = 0;
    for (int at = 0; at < letters.size(); at = letterEnd(letters, at))
        ++count;
    return count * kColumnStep * unit;
}

int letterEnd(const QString& letters, int at)
{
    const bool isPair = letters[at].isHighSurrogate() && at + 1 < letters.size();
    at += isPair ? 2 : 1;
    while (at < letters.size() && letters[at].isMark())
        ++at;
    return at;
}

double depthOf(const TextLook& look, const QString& letters)
{
    static const QString kLowLetters = QStringLiteral("gjpqyQ,;()[]{}|@$\u00B5\u00E7\u00C7");
    const bool reachesDown = std::any_of(letters.begin(), letters.end(),
                                         [](QChar letter) { return kLowLetters.contains(letter); });
    return reachesDown ? descentOf(look.face.font) * look.height : 0.0;
}

bool isIdeograph(char32_t letter)
{
    return (letter >= 0x2E80 && letter < 0xA4D0) || (letter >= 0xAC00 && letter < 0xD7A4) ||
           (letter >= 0xF900 && letter < 0xFB00) || (letter >= 0xFF00 && letter < 0xFF61) ||
           (letter >= 0x20000 && letter < 0x3FFFE);
}
