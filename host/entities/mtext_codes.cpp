// The format codes of texts of several lines.
#include "mtext_layout.h"

#include <algorithm>
#include <cwchar>

#include "text_metrics.h"

namespace {

/// How letters look from some place on, as far as it changes the room that they take.
struct Look
{
    double height;
    double widthFactor = 1.0;
    double tracking = 1.0; ///< stretches the distance of letters
};

class CodeReader
{
  public:
    CodeReader(std::wstring_view text, double textHeight)
        : m_text(text), m_lastSemicolon(text.rfind(L';')), m_look{textHeight}
    {
        m_letters.reserve(text.size());
    }

    std::vector<MTextLetter> read()
    {
        while (m_at < m_text.size())
            takeNext();
        return std::move(m_letters);
    }

  private:
    void takeNext();
    void takeCode();
    void takeArgumentCode(wchar_t code, std::wstring_view argument);
    void setHeight(std::wstring_view argument);
    void takeStack(std::wstring_view fraction);
    bool takePercent();
    void add(wchar_t letter);
    void addScaled(std::wstring_view letters, double scale);
    void endParagraph() { m_letters.push_back({L'\n', 0.0, 0.0, m_look.height}); }
    /// What stands before the next semicolon; false, with nothing taken, if there is none.
    bool takeArgument(std::wstring_view& argument);

    std::wstring_view m_text;
    std::size_t m_lastSemicolon; ///< so that damaged texts are not searched again and again
    std::size_t m_at = 0;
    Look m_look;
    std::vector<Look> m_outer; ///< looks to come back to at closing braces
    std::vector<MTextLetter> m_letters;
};

/// The number at the beginning of an argument; 0 if there is none.
double numberOf(std::wstring_view argument)
{
    return std::wcstod(std::wstring(argument).c_str(), nullptr);
}

void CodeReader::add(wchar_t letter)
{
    const double advance = letterAdvance(letter) * m_look.height * m_look.widthFactor;
    const double gap = kLetterGap * m_look.height * m_look.widthFactor;
    m_letters.push_back({letter, advance * m_look.tracking,
                         std::max(0.0, advance * m_look.tracking - (advance - gap)),
                         m_look.height});
}

void CodeReader::takeNext()
{
    switch (const wchar_t c = m_text[m_at]) {
    case L'\\':
        takeCode();
        return;
    case L'{':
        m_outer.push_back(m_look);
        break;
    case L'}':
        if (!m_outer.empty()) {
            m_look = m_outer.back();
            m_outer.pop_back();
        }
        break;
    case L'\n':
        endParagraph();
        break;
    case L'\r':
        break;
    case L'%':
        if (takePercent())
            return;
        add(c);
        break;
    default:
        add(c);
    }
    ++m_at;
}

bool CodeReader::takePercent()
{
    std::wstring shown;
    if (!takePercentCode(m_text, m_at, shown))
        return false;
    for (const wchar_t letter : shown)
        add(letter);
    return true;
}

void CodeReader::takeCode()
{
    const wchar_t code = m_at + 1 < m_text.size() ? m_text[m_at + 1] : L'\0';
    m_at += code ? 2 : 1;
    switch (code) {
    case L'P': // a paragraph, a column, a break between dimension line and text
    case L'N':
    case L'X':
        endParagraph();
        return;
    case L'~':
        add(0xA0);
        return;
    case L'L': // lines below, above and through letters, on and off
    case L'l':
    case L'O':
    case L'o':
    case L'K':
    case L'k':
        return;
    case L'\0':
        add(L'\\');
        return;
    default:
        break;
    }
    std::wstring_view argument;
    if (std::wstring_view(L"AHWTQCcFfpS").find(code) == std::wstring_view::npos ||
        !takeArgument(argument))
        add(code); // braces and the backslash itself, and what is no code
    else
        takeArgumentCode(code, argument);
}

bool CodeReader::takeArgument(std::wstring_view& argument)
{
    if (m_lastSemicolon == std::wstring_view::npos || m_at > m_lastSemicolon)
        return false;
    const std::size_t end = m_text.find(L';', m_at);
    argument = m_text.substr(m_at, end - m_at);
    m_at = end + 1;
    return true;
}

void CodeReader::takeArgumentCode(wchar_t code, std::wstring_view argument)
{
    switch (code) {
    case L'H':
        setHeight(argument);
        break;
    case L'W':
        if (const double factor = numberOf(argument); factor > 0.0)
            m_look.widthFactor = factor;
        break;
    case L'T':
        if (const double factor = numberOf(argument); factor > 0.0)
            m_look.tracking = factor;
        break;
    case L'S':
        takeStack(argument);
        break;
    default: // fonts, colours, slants, alignments and the like take no room
        break;
    }
}

void CodeReader::setHeight(std::wstring_view argument)
{
    const double number = numberOf(argument);
    if (number <= 0.0)
        return;
    const bool isFactor = argument.ends_with(L'x');
    m_look.height = isFactor ? m_look.height * number : number;
}

/// Adds letters that take `scale` of their usual room, but for their gap.
void CodeReader::addScaled(std::wstring_view letters, double scale)
{
    for (const wchar_t letter : letters) {
        add(letter);
        m_letters.back().advance *= scale;
        m_letters.back().gap *= scale;
    }
}

/// A fraction or a tolerance: two rows, one over the other, the wider of which takes the room.
void CodeReader::takeStack(std::wstring_view fraction)
{
    constexpr double kScale = 0.7;
    const std::size_t bar = fraction.find_first_of(L"/#^");
    if (bar == std::wstring_view::npos) {
        addScaled(fraction, kScale);
        return;
    }
    const std::wstring_view over = fraction.substr(0, bar);
    const std::wstring_view under = fraction.substr(bar + 1);
    const bool overIsWider = lettersWidth(over) >= lettersWidth(under);
    addScaled(over, overIsWider ? kScale : 0.0);
    addScaled(fraction[bar] == L'^' ? L" " : L"/", 0.0);
    addScaled(under, overIsWider ? 0.0 : kScale);
}

} // namespace

std::vector<MTextLetter> mtextLetters(std::wstring_view contents, double textHeight)
{
    return CodeReader(contents, textHeight).read();
}
