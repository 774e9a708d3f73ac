#include "mtext_layout.h"

#include <algorithm>

namespace {

/// Sets letters into lines from left to right and top to bottom.
class LineSetter
{
  public:
    explicit LineSetter(const MTextSetting& setting) : m_setting(setting) {}

    void add(const MTextLetter& letter)
    {
        if (letter.letter == L'\n')
            endParagraph(letter);
        else if (letter.letter == L' ' || letter.letter == L'\t')
            addBlank(letter);
        else
            addToWord(letter);
    }

    MTextSize size()
    {
        takeWord();
        endLine();
        return m_size;
    }

  private:
    /// A run of letters that is not broken, or a line so far.
    struct Run
    {
        double advance = 0.0;
        double gap = 0.0; ///< behind the last letter
        double height = 0.0;

        bool isEmpty() const { return height == 0.0; }
        double width() const { return advance - gap; }
    };

    void addToWord(const MTextLetter& letter)
    {
        m_word.advance += letter.advance;
        m_word.gap = letter.gap;
        m_word.height = std::max(m_word.height, letter.height);
    }

    void addBlank(const MTextLetter& letter)
    {
        takeWord();
        m_blanks += letter.advance;
        m_emptyHeight = letter.height;
    }

    /// Puts the word behind what stands in the line, or into the next line where it has no room.
    void takeWord()
    {
        if (m_word.isEmpty())
            return;
        const double needed = m_line.advance + m_blanks + m_word.width();
        if (m_setting.width > 0.0 && needed > m_setting.width && !m_line.isEmpty()) {
            endLine();
            m_blanks = 0.0; // blanks at the break belong to the line above
        }
        m_line.advance += m_blanks + m_word.advance;
        m_line.gap = m_word.gap;
        m_line.height = std::max(m_line.height, m_word.height);
        m_blanks = 0.0;
        m_word = {};
    }

    void endParagraph(const MTextLetter& end)
    {
        takeWord();
        m_emptyHeight = end.height;
        endLine();
        m_blanks = 0.0;
    }

    void endLine()
    {
        const double height = m_line.isEmpty() ? m_emptyHeight : m_line.height;
        const double spaced = m_setting.exactSpacing ? m_setting.textHeight : height;
        constexpr double kUsualDistance = 5.0 / 3.0;
        m_size.height += m_isFirst ? height : spaced * m_setting.lineSpacingFactor * kUsualDistance;
        m_size.width = std::max(m_size.width, m_line.width());
        m_isFirst = false;
        m_line = {};
    }

    const MTextSetting& m_setting;
    MTextSize m_size;
    Run m_line;
    Run m_word;
    double m_blanks = 0.0;
    double m_emptyHeight = m_setting.textHeight; ///< of a line without letters
    bool m_isFirst = true;
};

} // namespace

MTextSize mtextSize(const std::vector<MTextLetter>& letters, const MTextSetting& setting)
{
    if (letters.empty())
        return {};
    LineSetter setter(setting);
    for (const MTextLetter& letter : letters)
        setter.add(letter);
    return setter.size();
}
