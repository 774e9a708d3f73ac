/// Gradients, images and texts on their way to the painter.
#pragma once

#include <QBrush>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>

#include <optional>

#include <kwdraw/scene/scene.h>

#include "glyphs.h"
#include "pixel_frame.h"

QBrush gradientBrush(const SceneGradient& gradient, const PixelFrame& frame);

/// Draws what `shown` (in pixels) lets see of an image.
void drawPicture(QPainter& painter, const SceneImage& image, const PixelFrame& frame,
                 const ClipBox& clip, const QPainterPath& shown);

/// From the base of a ray, in pixels, to where it leaves the box; nothing if it does not meet it.
std::optional<QLineF> rayToEdge(QPointF base, QPointF direction, const ClipBox& box);

/// Walks the outlines of the letters of a text. See path_walk.h.
/// @param frame  of the text, see `SceneText::placement`
template <class Sink>
void walkText(const SceneText& text, const SceneFont& font, GlyphStore& glyphs,
              const PixelFrame& frame, const ClipBox& clip, Sink& sink)
{
    if (needsShaping(text.text)) {
        const LetterOutline& outline = glyphs.shaped(font, text.text);
        const double stretch =
            text.advance > 0.0 && outline.advance > 0.0 ? text.advance / outline.advance : 1.0;
        return walkPath(viewOf(outline), frame.within(QTransform::fromScale(stretch, 1.0)), clip,
                        sink);
    }
    const QVector<uint> letters = text.text.toUcs4();
    double advance = 0.0;
    for (const uint letter : letters)
        advance += glyphs.glyph(font, letter).advance;
    const double stretch = text.advance > 0.0 && advance > 0.0 ? text.advance / advance : 1.0;
    double at = 0.0;
    for (const uint letter : letters) {
        const LetterOutline& outline = glyphs.glyph(font, letter);
        walkPath(viewOf(outline), frame.within(QTransform(stretch, 0.0, 0.0, 1.0, at, 0.0)), clip,
                 sink);
        at += outline.advance * stretch;
    }
}
