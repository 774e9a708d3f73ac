#include "glyphs.h"

#include <QFont>
#include <QFontMetricsF>

#include <algorithm>

namespace {

/// Large enough for outlines to be smooth, which are scaled down from it.
constexpr int kPixelSize = 256;
constexpr std::size_t kTextsKept = 4096;

QFont fontFor(const SceneFont& font)
{
    QFont made(font.family);
    made.setPixelSize(kPixelSize);
    made.setBold(font.bold);
    made.setItalic(font.italic);
    made.setHintingPreference(QFont::PreferNoHinting);
    made.setKerning(false); // places of letters are sums of their widths
    return made;
}

void add(GlyphOutline& outline, PathStep step, std::initializer_list<QPointF> points)
{
    outline.steps.push_back(step);
    outline.points.insert(outline.points.end(), points);
}

GlyphOutline outlineOf(const SceneFont& sceneFont, const QString& text)
{
    const QFont font = fontFor(sceneFont);
    const QFontMetricsF metrics(font);
    const double capHeight = metrics.capHeight() > 0.0 ? metrics.capHeight() : kPixelSize * 0.7;
    QPainterPath path;
    path.addText(0.0, 0.0, font, text);

    GlyphOutline outline;
    outline.advance = metrics.horizontalAdvance(text) / capHeight;
    const auto place = [&](int i) {
        const QPainterPath::Element element = path.elementAt(i);
        return QPointF(element.x, -element.y) / capHeight;
    };
    for (int i = 0; i < path.elementCount(); ++i) {
        if (path.elementAt(i).isMoveTo())
            add(outline, PathStep::Move, {place(i)});
        else if (path.elementAt(i).isLineTo())
            add(outline, PathStep::Line, {place(i)});
        else if (path.elementAt(i).isCurveTo() && i + 2 < path.elementCount()) {
            add(outline, PathStep::Cubic, {place(i), place(i + 1), place(i + 2)});
            i += 2;
        }
    }
    return outline;
}

} // namespace

GlyphStore::Face& GlyphStore::face(const SceneFont& font)
{
    for (const auto& known : m_faces)
        if (known->font == font)
            return *known;
    m_faces.push_back(std::make_unique<Face>());
    m_faces.back()->font = font;
    return *m_faces.back();
}

const GlyphOutline& GlyphStore::glyph(const SceneFont& font, uint letter)
{
    auto& letters = face(font).letters;
    const auto known = letters.find(letter);
    if (known != letters.end())
        return known->second;
    return letters.emplace(letter, outlineOf(font, QString::fromUcs4(&letter, 1))).first->second;
}

const GlyphOutline& GlyphStore::shaped(const SceneFont& font, const QString& text)
{
    auto& texts = face(font).texts;
    const auto known = texts.find(text);
    if (known != texts.end())
        return known->second;
    if (texts.size() >= kTextsKept)
        texts.clear();
    return texts.emplace(text, outlineOf(font, text)).first->second;
}

bool GlyphStore::needsShaping(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) {
        const bool joined = letter.unicode() >= 0x0590 && letter.unicode() <= 0x0FFF;
        return joined || letter.isMark();
    });
}
