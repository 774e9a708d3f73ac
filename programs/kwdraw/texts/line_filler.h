/// One line while it is being filled.
#pragma once

#include <vector>

#include <kwdraw/texts/text_lines.h>

/// A word, a run of blanks, or a stack.
struct LineElement
{
    QString letters;
    std::uint32_t look = 0;
    double x = 0.0;
    double width = 0.0;
    bool isBlank = false;
    bool isSpread = false;            ///< wider than its letters
    const TextStack* stack = nullptr; ///< null: letters
};

class LineFiller
{
  public:
    LineFiller(const MTextItems& text, double width);

    /// Begins a line of a paragraph with that format.
    void start(std::uint32_t format, bool isFirst);
    std::uint32_t format() const { return m_format; }

    LineElement elementOf(const MTextItem& item) const;

    bool isEmpty() const { return m_elements.empty() && !m_hasTabs; }
    bool hasRoomFor(double width) const;
    void add(LineElement element);
    /// Goes on at the next tab stop.
    void addTab(double letterHeight);
    /// The look that gives a line without letters its height.
    void setEmptyLook(std::uint32_t look) { m_emptyLook = look; }
    /// The line as it stands, its elements spread where the format wants that.
    TextLine take(bool endsParagraph);

  private:
    void settleTab();
    void spread(bool endsParagraph);
    double lineHeight() const;
    double placeOf(const LineElement& element, double lineHeight) const;
    void addPiece(const LineElement& element, const LineElement* before, TextLine& line) const;
    const TextLook& lookOf(const LineElement& element) const { return m_text.looks[element.look]; }

    /// A stop that what follows is centred at or ends at.
    struct PendingTab
    {
        std::size_t firstElement = 0;
        double from = 0.0;
        ParagraphFormat::TabStop stop;
    };

    const MTextItems& m_text;
    double m_width;
    std::uint32_t m_format = 0;
    std::uint32_t m_emptyLook = 0;
    double m_start = 0.0;
    double m_limit = 0.0;
    double m_x = 0.0;
    bool m_hasTabs = false;
    PendingTab m_tab; ///< its stop is a left one while there is none
    std::vector<LineElement> m_elements;
};
