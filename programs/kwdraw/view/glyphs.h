/// Outlines of letters.
#pragma once

#include <memory>
#include <unordered_map>
#include <vector>

#include <kwdraw/scene/scene.h>
#include <kwdraw/texts/letter_outlines.h>

#include "path_walk.h"

inline PathView viewOf(const LetterOutline& outline)
{
    return {outline.steps, outline.points};
}

/// Keeps the outlines of the letters that were drawn. For one thread.
class GlyphStore
{
  public:
    /// Stays where it is as long as the store lives.
    const LetterOutline& glyph(const SceneFont& font, uint letter);
    /// A text whose letters depend on each other, in one outline; lives until the next call.
    const LetterOutline& shaped(const SceneFont& font, const QString& text);

  private:
    struct Face
    {
        SceneFont font;
        std::unordered_map<uint, LetterOutline> letters;
        std::unordered_map<QString, LetterOutline> texts;
    };
    Face& face(const SceneFont& font);

    std::vector<std::unique_ptr<Face>> m_faces;
};
