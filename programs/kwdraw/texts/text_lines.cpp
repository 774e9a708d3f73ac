#include <kwdraw/texts/text_lines.h>

#include <algorithm>
#include <cmath>

#include <kwdraw/texts/line_filler.h>

namespace {

class LineSetter
{
  public:
    LineSetter(const MTextItems& text, double width) : m_text(text), m_filler(text, width) {}

    std::vector<TextLine> set()
    {
        m_filler.start(0, true);
        for (const MTextItem& item : m_text.items)
            take(item);
        takeWord();
        endLine(true);
        return std::move(m_lines);
    }

  private:
    using Kind = MTextItem::Kind;

    void take(const MTextItem& item)
    {
        if (m_isFresh && item.format != m_filler.format())
            m_filler.start(item.format, m_startsParagraph);
        m_isFresh = false;
        switch (item.kind) {
        case Kind::Word:
        case Kind::Stack:
            if (item.mayBreakBefore)
                takeWord();
            m_word.push_back(m_filler.elementOf(item));
            break;
        case Kind::Blank:
            takeWord();
            m_blanks.push_back(m_filler.elementOf(item));
            break;
        case Kind::Tab:
            takeWord();
            takeBlanks();
            m_filler.addTab(m_text.looks[item.look].height);
            break;
        case Kind::ParagraphEnd:
            takeWord();
            m_blanks.clear();
            m_filler.setEmptyLook(item.look);
            endLine(true);
            break;
        case Kind::ColumnEnd:
            takeWord();
            m_filler.setEmptyLook(item.look);
            endColumn();
            break;
        }
    }

    void takeBlanks()
    {
        for (const LineElement& blank : m_blanks)
            m_filler.add(blank);
        m_blanks.clear();
    }

    /// Puts the word behind what stands in the line, or into the next line where it has no room.
    void takeWord()
    {
        if (m_word.empty())
            return;
        const bool isFirst = m_filler.isEmpty() && m_blanks.empty();
        if (!isFirst && !m_filler.hasRoomFor(widthOf(m_blanks) + widthOf(m_word)))
            endLine(false); // blanks at the break belong to the line above
        takeBlanks();
        for (const LineElement& element : m_word)
            m_filler.add(element);
        m_word.clear();
    }

    void endColumn()
    {
        const bool isBehindParagraph =
            m_startsParagraph && !m_lines.empty() && !m_lines.back().endsColumn;
        if (isBehindParagraph && m_filler.isEmpty() && m_blanks.empty()) {
            m_lines.back().endsColumn = true; // nothing stands in a line of its own
            m_isFresh = true;
            return;
        }
        endLine(true);
        m_lines.back().endsColumn = true;
    }

    void endLine(bool endsParagraph)
    {
        if (!m_blanks.empty())
            m_filler.setEmptyLook(m_blanks.back().look);
        TextLine& line = m_lines.emplace_back(m_filler.take(endsParagraph));
        line.startsParagraph = m_startsParagraph;
        line.endsParagraph = endsParagraph;
        m_startsParagraph = endsParagraph;
        m_isFresh = endsParagraph;
        m_blanks.clear();
        m_filler.start(m_filler.format(), endsParagraph);
    }

    static double widthOf(const std::vector<LineElement>& elements)
    {
        double width = 0.0;
        for (const LineElement& element : elements)
            width += element.width;
        return width;
    }

    const MTextItems& m_text;
    LineFiller m_filler;
    std::vector<LineElement> m_word;
    std::vector<LineElement> m_blanks; ///< behind what stands in the line
    std::vector<TextLine> m_lines;
    bool m_startsParagraph = true;
    bool m_isFresh = true; ///< nothing of the paragraph has been seen
};

} // namespace

std::vector<TextLine> linesOf(const MTextItems& text, double width)
{
    return LineSetter(text, width).set();
}
