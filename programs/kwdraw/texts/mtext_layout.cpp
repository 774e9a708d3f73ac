#include <kwdraw/texts/mtext_layout.h>

#include <algorithm>
#include <vector>

#include <kwdraw/texts/text_lines.h>

namespace {

class LinePlacer
{
  public:
    LinePlacer(const MTextItems& text, const MTextSetting& setting) : m_text(text), m_set(setting)
    {
    }

    MTextLayout place(const std::vector<TextLine>& lines)
    {
        m_width = m_set.width > 0.0 ? m_set.width : naturalWidth(lines);
        for (const TextLine& line : lines)
            add(line);
        const int count = m_set.hasColumns ? std::max(m_set.columnCount, m_column + 1) : 1;
        m_layout.width = count * (m_width + m_set.gutter) - m_set.gutter;
        return std::move(m_layout);
    }

  private:
    const ParagraphFormat& formatOf(const TextLine& line) const
    {
        return m_text.formats[line.format];
    }

    double naturalWidth(const std::vector<TextLine>& lines) const
    {
        double width = 0.0;
        for (const TextLine& line : lines)
            width = std::max(width, line.end + formatOf(line).right);
        return width;
    }

    void add(const TextLine& line)
    {
        if (m_above && (m_above->endsColumn || !hasRoomFor(line)))
            startColumn();
        m_base = baseOf(line);
        const double left = m_column * (m_width + m_set.gutter);
        const double y = m_set.isDown ? m_base - line.height : -m_base;
        m_layout.pieces.add(line.pieces, left + shiftOf(line), y);
        m_layout.height = std::max(m_layout.height, m_base + std::max(line.depth, line.below));
        m_above = &line;
    }

    void startColumn()
    {
        const bool isThereAnother =
            m_set.hasColumns && (m_set.mostColumns == 0 || m_column + 1 < m_set.mostColumns);
        if (!isThereAnother)
            return;
        ++m_column;
        m_above = nullptr;
    }

    bool hasRoomFor(const TextLine& line) const
    {
        constexpr double kNear = 1e-6;
        const double height = columnHeight();
        return !m_set.hasColumns || !(height > 0.0) || baseOf(line) <= height * (1.0 + kNear);
    }

    double columnHeight() const
    {
        const auto column = static_cast<std::size_t>(m_column);
        return column < m_set.columnHeights.size() ? m_set.columnHeights[column]
                                                   : m_set.columnHeight;
    }

    /// How far below the top of its column a line has its base line.
    double baseOf(const TextLine& line) const
    {
        const double usualDistance = m_set.isDown ? 4.0 / 3.0 : 5.0 / 3.0;
        if (!m_above)
            return line.above + line.height;
        const double height = m_set.exactSpacing ? m_set.textHeight : line.height;
        double distance = height * usualDistance * m_set.lineSpacingFactor;
        if (!m_set.exactSpacing)
            distance += line.above + m_above->below;
        if (line.startsParagraph)
            distance += formatOf(line).before + formatOf(*m_above).after;
        return m_base + distance;
    }

    double shiftOf(const TextLine& line) const
    {
        using Align = ParagraphFormat::Align;
        const ParagraphFormat& format = formatOf(line);
        const double room = m_width - format.right - line.end;
        switch (format.align == Align::ByAttachment ? m_set.align : format.align) {
        case Align::Center:
            return room / 2.0;
        case Align::Right:
            return room;
        default:
            return 0.0;
        }
    }

    const MTextItems& m_text;
    const MTextSetting& m_set;
    MTextLayout m_layout;
    double m_width = 0.0; ///< of a column
    double m_base = 0.0;
    int m_column = 0;
    const TextLine* m_above = nullptr; ///< the line above in the column
};

} // namespace

MTextLayout layoutOf(const MTextItems& text, const MTextSetting& setting)
{
    return LinePlacer(text, setting).place(linesOf(text, setting.width));
}
