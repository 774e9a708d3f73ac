#include <kwdraw/texts/letter_outlines.h>

#include <QFontMetricsF>
#include <QPainterPath>

#include <algorithm>

#include <kwdraw/texts/font_metrics.h>

namespace {

/// Large enough for outlines to be smooth, which are scaled down from it.
constexpr int kPixelSize = 256;

void add(LetterOutline& outline, PathStep step, std::initializer_list<QPointF> points)
{
    outline.steps.push_back(step);
    outline.points.insert(outline.points.end(), points);
}

} // namespace

LetterOutline outlineOf(const SceneFont& sceneFont, const QString& text)
{
    const QFont font = letterFont(sceneFont, kPixelSize);
    const QFontMetricsF metrics(font);
    const double capHeight = metrics.capHeight() > 0.0 ? metrics.capHeight() : kPixelSize * 0.7;
    QPainterPath path;
    path.addText(0.0, 0.0, font, text);

    LetterOutline outline;
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

bool needsShaping(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar letter) {
        const bool joined = letter.unicode() >= 0x0590 && letter.unicode() <= 0x0FFF;
        return joined || letter.isMark();
    });
}
