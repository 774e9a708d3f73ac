// Tolerance frames.
#include <cmath>
#include <string_view>
#include <vector>

#include <entities/fcf.h>
#include <kwdraw/texts/frames.h>
#include <kwdraw/texts/mtext_layout.h>
#include <kwdraw/texts/style_look.h>
#include <kwdraw/texts/text_pen.h>
#include <kwdraw/texts/text_shapes.h>

namespace {

/// Takes the piece before the next mark off the front of a text.
std::wstring_view takePiece(std::wstring_view& text, std::wstring_view mark)
{
    const std::size_t end = text.find(mark);
    const std::wstring_view piece = text.substr(0, end);
    text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + mark.size());
    return piece;
}

class FrameWriter
{
  public:
    FrameWriter(const KdDbFcf& tolerance, SceneWriter& writer)
        : m_pen(writer, textFrame(tolerance.location(), tolerance.direction(), tolerance.normal())),
          m_look(lookOfStyle(tolerance.dimtxsty())),
          m_gap(std::fabs(tolerance.dimgap()) * tolerance.dimscale()),
          m_frameColor(tolerance.dimclrd().color())
    {
        m_look.height = tolerance.dimtxt() * tolerance.dimscale();
        m_look.color = tolerance.dimclrt().color();
        m_look.isDown = false;
    }

    void write(std::wstring_view rows)
    {
        const double rowHeight = 2.0 * m_look.height;
        if (!(rowHeight > 0.0))
            return;
        for (double top = m_look.height; !rows.empty(); top -= rowHeight)
            writeRow(takePiece(rows, L"\n"), top - rowHeight, top);
    }

  private:
    struct Cell
    {
        MTextItems items;
        MTextLayout layout;
        double left;
        double right;
    };

    /// Empty cells behind the last full one are not drawn.
    void writeRow(std::wstring_view row, double bottom, double top)
    {
        std::vector<Cell> waiting;
        double reached = 0.0;
        while (!row.empty()) {
            const Cell& cell = waiting.emplace_back(cellOf(takePiece(row, L"%%v"), reached));
            reached = cell.right;
            if (cell.items.items.empty())
                continue;
            for (const Cell& ready : waiting)
                writeCell(ready, bottom, top);
            waiting.clear();
        }
    }

    Cell cellOf(std::wstring_view content, double left) const
    {
        Cell cell;
        cell.items = mtextItems(content, m_look);
        cell.layout = layoutOf(cell.items, {.textHeight = m_look.height});
        cell.left = left;
        cell.right = left + cell.layout.width + 2.0 * m_gap;
        return cell;
    }

    void writeCell(const Cell& cell, double bottom, double top)
    {
        m_pen.box(m_frameColor, {cell.left, bottom, cell.right, top});
        const double middle = (bottom + top) / 2.0;
        m_pen.pieces(cell.layout.pieces, cell.items.looks, cell.left + m_gap,
                     middle + m_look.height / 2.0);
    }

    TextPen m_pen;
    TextLook m_look;
    double m_gap;
    std::uint32_t m_frameColor;
};

} // namespace

void writeFcf(const KdDbFcf& tolerance, SceneWriter& writer)
{
    FrameWriter(tolerance, writer).write(tolerance.text());
}
