// Texts along an arc.
#include <algorithm>
#include <cmath>
#include <numbers>
#include <vector>

#include <entities/special_text.h>
#include <kwdraw/texts/frames.h>
#include <kwdraw/texts/style_look.h>
#include <kwdraw/texts/text_pen.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

struct ArcLetter
{
    QString letter;
    double width = 0.0;
};

TextLook lookOf(const ArcTextData& text)
{
    TextLook look = lookOfStyle(text.style);
    look.isDown = false;
    look.height = text.height;
    look.lineBelow = text.underlined;
    if (text.widthFactor > 0.0)
        look.widthFactor = text.widthFactor;
    if (!text.fontName.isEmpty())
        look.face = text.fontName.view().find(L'.') == std::wstring_view::npos
                        ? faceOfFamily(text.fontName, text.bold, text.italic)
                        : faceOfFile(text.fontName);
    return look;
}

std::vector<ArcLetter> lettersOf(const ArcTextData& text, const TextLook& look)
{
    const std::wstring_view view = text.text;
    const QString letters = QString::fromWCharArray(view.data(), static_cast<int>(view.size()));
    std::vector<ArcLetter> all;
    for (int at = 0; at < letters.size();) {
        const int end = letterEnd(letters, at);
        const QString letter = letters.mid(at, end - at);
        all.push_back({letter, widthOf(look, letter)});
        at = end;
    }
    if (text.reversed)
        std::ranges::reverse(all);
    return all;
}

/// The radius on which letters stand so that their feet or tops keep the distance from the arc.
double baseRadius(const ArcTextData& text)
{
    const double radius = text.concave ? text.radius - text.offset : text.radius + text.offset;
    if (text.inward == text.concave)
        return radius;
    return text.concave ? radius - text.height : radius + text.height;
}

/// From which length along the arc letters stand, and how far apart.
struct Spread
{
    double start = 0.0;
    double gap = 0.0;
};

Spread spreadOf(const ArcTextData& text, const std::vector<ArcLetter>& letters, double length)
{
    const auto gaps = static_cast<double>(letters.size() - 1);
    double width = 0.0;
    for (const ArcLetter& letter : letters)
        width += letter.width;
    const double room = length - text.leftOffset - text.rightOffset - width;
    const double rest = room - gaps * text.letterSpacing;
    switch (text.alignment) {
    case KdDb::kArcLeft:
        return {text.leftOffset, text.letterSpacing};
    case KdDb::kArcRight:
        return {text.leftOffset + rest, text.letterSpacing};
    case KdDb::kArcCenter:
        return {text.leftOffset + rest / 2.0, text.letterSpacing};
    default:
        if (gaps == 0.0)
            return {text.leftOffset + room / 2.0, 0.0};
        return {text.leftOffset, room / gaps};
    }
}

double sweepOf(const ArcTextData& text)
{
    constexpr double kTurn = 2.0 * std::numbers::pi;
    const double sweep = std::fmod(text.endAngle - text.startAngle, kTurn);
    return sweep > 0.0 ? sweep : sweep + kTurn;
}

} // namespace

void writeArcText(const KdDbArcAlignedText& entity, SceneWriter& writer)
{
    const ArcTextData& text = entity.textData();
    const double radius = baseRadius(text);
    if (!(text.height > 0.0) || !(radius > 0.0) || text.text.isEmpty())
        return;
    const TextLook look = lookOf(text);
    const std::vector<ArcLetter> letters = lettersOf(text, look);
    const Spread spread = spreadOf(text, letters, sweepOf(text) * radius);

    // With their tops outwards letters run clockwise from the end of the arc, else the other way.
    const double side = text.inward ? -1.0 : 1.0;
    const double from = text.inward ? text.startAngle : text.startAngle + sweepOf(text);
    const KdGeMatrix3d frame = KdGeMatrix3d::planeToWorld(text.normal);
    const KdGePoint3d center = KdGeMatrix3d::worldToPlane(text.normal) * text.center;
    double along = spread.start;
    for (const ArcLetter& letter : letters) {
        const double angle = from - side * (along + letter.width / 2.0) / radius;
        const KdGeVector3d outward{std::cos(angle), std::sin(angle), 0.0};
        TextPen pen(writer, frame * turnedFrame(center + outward * radius,
                                                angle - side * std::numbers::pi / 2.0));
        pen.run(look, {letter.letter, 0, -letter.width / 2.0, 0.0, letter.width}, 0.0, 0.0);
        along += letter.width + spread.gap;
    }
}
