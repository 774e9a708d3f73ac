/// Writes letters and the lines along them into a scene.
#pragma once

#include <QString>

#include <span>
#include <vector>

#include <kwdraw/scene/scene_writer.h>
#include <kwdraw/texts/symbols.h>
#include <kwdraw/texts/text_look.h>
#include <kwdraw/texts/text_pieces.h>

/// Gives each piece its own colour, and puts the look of the writer back in the end.
class TextPen
{
  public:
    /// @param frame  from the frame of the text, base lines along x, to that of the entity
    TextPen(SceneWriter& writer, const KdGeMatrix3d& frame);
    ~TextPen();
    TextPen(const TextPen&) = delete;
    TextPen& operator=(const TextPen&) = delete;

    /// @param x,y  the origin of the run, in the frame of the text
    void run(const TextLook& look, const TextRun& run, double x, double y);
    /// @param x,y  the origin of the pieces
    void pieces(const TextPieces& pieces, const std::vector<TextLook>& looks, double x, double y);
    void line(const TextLook& look, double x1, double y1, double x2, double y2);
    /// The outline of a rectangle, and its inside.
    void box(std::uint32_t color, const SceneBox& box);
    void fill(std::uint32_t color, const SceneBox& box);
    void wipeout(const SceneBox& box);

  private:
    KdGePoint3d placed(double x, double y) const { return m_frame * KdGePoint3d{x, y, 0.0}; }
    void useColor(std::uint32_t color);
    void letters(const TextLook& look, const QString& letters, double x, double y);
    void single(const TextLook& look, const QString& letter, double x, double y);
    void symbol(const TextLook& look, std::span<const SymbolStep> steps, const KdGeMatrix3d& own);
    void linesAlong(const TextLook& look, double x, double y, double width);
    ScenePath pathOf(const SceneBox& box) const;

    SceneWriter& m_writer;
    KdGeMatrix3d m_frame;
    SceneLook m_outer;
    std::uint32_t m_layer;
};
