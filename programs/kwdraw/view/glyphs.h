/// Outlines of letters.
#pragma once

#include <QPainterPath>

#include <memory>
#include <unordered_map>
#include <vector>

#include <kwdraw/scene/scene.h>

#include "path_walk.h"

/// A path as a scene has it.
struct GlyphOutline
{
    std::vector<PathStep> steps;
    std::vector<QPointF> points; ///< capital letters 1 high, y upwards
    double advance = 0.0;

    PathView view() const { return {steps, points}; }
};

/// Keeps the outlines of the letters that were drawn. For one thread.
class GlyphStore
{
  public:
    /// Stays where it is as long as the store lives.
    const GlyphOutline& glyph(const SceneFont& font, uint letter);
    /// A text whose letters depend on each other, in one outline; lives until the next call.
    const GlyphOutline& shaped(const SceneFont& font, const QString& text);
    /// True for texts that can't be put together letter by letter.
    static bool needsShaping(const QString& text);

  private:
    struct Face
    {
        SceneFont font;
        std::unordered_map<uint, GlyphOutline> letters;
        std::unordered_map<QString, GlyphOutline> texts;
    };
    Face& face(const SceneFont& font);

    std::vector<std::unique_ptr<Face>> m_faces;
};
