#include <kwdraw/texts/text_pen.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include <database/color.h>
#include <database/color_palette.h>
#include <kwdraw/texts/font_metrics.h>

namespace {

/// Where lines along letters run, in heights of the letters.
constexpr double kLineBelow = -0.2;
constexpr double kLineAbove = 1.2;
constexpr double kLineThrough = 0.5;
/// Of the circle around a letter that is a sign.
constexpr double kCircleMiddle = 0.65;

double slantOf(const TextLook& look)
{
    constexpr double kMost = 85.0 * std::numbers::pi / 180.0;
    return std::tan(std::clamp(look.oblique, -kMost, kMost));
}

/// From a text's own frame, capital letters 1 high, to a place in the frame of the text.
KdGeMatrix3d ownFrame(const TextLook& look, double x, double y)
{
    return KdGeMatrix3d::fromFrame({x, y, 0.0}, {look.height * look.stretch(), 0.0, 0.0},
                                   {look.height * slantOf(look), look.height, 0.0},
                                   KdGeVector3d::kZAxis);
}

/// The same for a letter of a column, which runs along x: each letter stands across it, with its
/// middle on the middle of the line. The letter's own x axis runs along y.
KdGeMatrix3d standing(const TextLook& look, double advance, double x, double y)
{
    const double width = advance * look.height * look.stretch();
    const KdGeMatrix3d across =
        KdGeMatrix3d::fromFrame({x + look.height, y + (look.height - width) / 2.0, 0.0},
                                KdGeVector3d::kYAxis, -KdGeVector3d::kXAxis, KdGeVector3d::kZAxis);
    return across * ownFrame(look, 0.0, 0.0);
}

bool isBlank(const QString& letters)
{
    return std::all_of(letters.begin(), letters.end(), [](QChar c) { return c.isSpace(); });
}

} // namespace

TextPen::TextPen(SceneWriter& writer, const KdGeMatrix3d& frame)
    : m_writer(writer), m_frame(frame), m_outer(writer.look()), m_layer(writer.layer())
{
}

TextPen::~TextPen()
{
    m_writer.setLook(m_outer, m_layer);
}

void TextPen::useColor(std::uint32_t word)
{
    const KdCmColor color(word);
    const bool isIndex = color.colorMethod() == KdCmColor::kByACI;
    SceneLook look = m_outer;
    look.linetype = -1; // letters have no gaps
    if (isIndex || color.colorMethod() == KdCmColor::kByColor) {
        const std::uint32_t rgb =
            isIndex ? kdcmPaletteRgb(color.colorIndex()) : color.color() & 0xFFFFFF;
        look.color = (look.color & 0xFF000000) | rgb;
        look.isForeground = isIndex && color.colorIndex() == 7;
    }
    m_writer.setLook(look, m_layer);
}

void TextPen::run(const TextLook& look, const TextRun& run, double x, double y)
{
    useColor(look.color);
    letters(look, run.letters, x + run.x, y + run.y);
    linesAlong(look, x + run.x, y + run.y, run.width);
}

void TextPen::pieces(const TextPieces& pieces, const std::vector<TextLook>& looks, double x,
                     double y)
{
    for (const TextRun& one : pieces.runs)
        run(looks[one.look], one, x, y);
    for (const TextBar& bar : pieces.bars)
        line(looks[bar.look], x + bar.x1, y + bar.y1, x + bar.x2, y + bar.y2);
}

void TextPen::letters(const TextLook& look, const QString& letters, double x, double y)
{
    if (!look.isDown && !look.isSymbol && look.tracking == 1.0) {
        if (!isBlank(letters))
            m_writer.text(letters, look.face.font, m_frame * ownFrame(look, x, y));
        return;
    }
    for (int at = 0; at < letters.size();) {
        const int end = letterEnd(letters, at);
        const QString letter = letters.mid(at, end - at);
        single(look, letter, x, y);
        x += widthOf(look, letter);
        at = end;
    }
}

/// A letter that is not written together with its neighbours.
void TextPen::single(const TextLook& look, const QString& letter, double x, double y)
{
    if (isBlank(letter))
        return;
    const auto place = [x, y](const TextLook& own, double advance) {
        return own.isDown ? standing(own, advance, x, y) : ownFrame(own, x, y);
    };
    const auto steps =
        look.isSymbol ? symbolSteps(letter[0].unicode()) : std::span<const SymbolStep>();
    if (steps.empty()) {
        const double advance = look.isDown ? advanceOf(look.face.font, letter) : 0.0;
        m_writer.text(letter, look.face.font, m_frame * place(look, advance));
        return;
    }
    TextLook own = look;
    own.face.stretch = 1.0; // which is the letters' of the face
    KdGeMatrix3d behindGap;
    behindGap.entry[0][3] = kSymbolGap;
    symbol(own, steps, m_frame * place(own, kSymbolAdvance) * behindGap);
}

void TextPen::symbol(const TextLook& look, std::span<const SymbolStep> steps,
                     const KdGeMatrix3d& own)
{
    constexpr double kRadians = std::numbers::pi / 180.0;
    constexpr double kSmall = 0.7;
    ScenePath path;
    for (const SymbolStep& step : steps) {
        const auto& [a, b, c, d, e] = step.numbers;
        switch (step.kind) {
        case SymbolStep::Kind::Line:
            path.moveTo(own * KdGePoint3d{a, b, 0.0});
            path.lineTo(own * KdGePoint3d{c, d, 0.0});
            break;
        case SymbolStep::Kind::Arc:
            path.moveTo(own * KdGePoint3d{a + c * std::cos(d * kRadians),
                                          b + c * std::sin(d * kRadians), 0.0});
            path.ellipseTo(own * KdGePoint3d{a, b, 0.0}, own * KdGeVector3d{c, 0.0, 0.0},
                           own * KdGeVector3d{0.0, c, 0.0}, d * kRadians, e * kRadians);
            break;
        case SymbolStep::Kind::Letter: {
            const QString letter = QChar(static_cast<ushort>(a));
            const double width = advanceOf(look.face.font, letter) * kSmall;
            const KdGeMatrix3d inside = KdGeMatrix3d::fromFrame(
                {kCircleMiddle - width / 2.0, (1.0 - kSmall) / 2.0, 0.0}, {kSmall, 0.0, 0.0},
                {0.0, kSmall, 0.0}, KdGeVector3d::kZAxis);
            m_writer.text(letter, look.face.font, own * inside);
            break;
        }
        }
    }
    m_writer.stroke(path);
}

void TextPen::linesAlong(const TextLook& look, double x, double y, double width)
{
    const double slant = slantOf(look);
    const auto along = [&](double height) {
        const double rise = height * look.height;
        line(look, x + slant * rise, y + rise, x + width + slant * rise, y + rise);
    };
    if (look.lineBelow)
        along(kLineBelow);
    if (look.lineAbove)
        along(kLineAbove);
    if (look.lineThrough)
        along(kLineThrough);
}

void TextPen::line(const TextLook& look, double x1, double y1, double x2, double y2)
{
    useColor(look.color);
    ScenePath path;
    path.moveTo(placed(x1, y1));
    path.lineTo(placed(x2, y2));
    m_writer.stroke(path);
}

ScenePath TextPen::pathOf(const SceneBox& box) const
{
    ScenePath path;
    path.moveTo(placed(box.left, box.bottom));
    path.lineTo(placed(box.right, box.bottom));
    path.lineTo(placed(box.right, box.top));
    path.lineTo(placed(box.left, box.top));
    path.close();
    return path;
}

void TextPen::box(std::uint32_t color, const SceneBox& box)
{
    useColor(color);
    m_writer.stroke(pathOf(box));
}

void TextPen::fill(std::uint32_t color, const SceneBox& box)
{
    useColor(color);
    m_writer.fill(pathOf(box));
}

void TextPen::wipeout(const SceneBox& box)
{
    m_writer.wipeout(pathOf(box));
}
