#include "glyphs.h"

namespace {

constexpr std::size_t kTextsKept = 4096;

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

const LetterOutline& GlyphStore::glyph(const SceneFont& font, uint letter)
{
    auto& letters = face(font).letters;
    const auto known = letters.find(letter);
    if (known != letters.end())
        return known->second;
    return letters.emplace(letter, outlineOf(font, QString::fromUcs4(&letter, 1))).first->second;
}

const LetterOutline& GlyphStore::shaped(const SceneFont& font, const QString& text)
{
    auto& texts = face(font).texts;
    const auto known = texts.find(text);
    if (known != texts.end())
        return known->second;
    if (texts.size() >= kTextsKept)
        texts.clear();
    return texts.emplace(text, outlineOf(font, text)).first->second;
}
