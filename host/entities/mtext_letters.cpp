// The letters of texts of several lines.
#include "mtext_layout.h"

#include <algorithm>
#include <cwchar>

#include <entities/text_codes.h>

#include "text_metrics.h"

namespace {

/// How letters look from some place on, as far as it changes the room that they take.
struct Look
{
    double height;
    double widthFactor = 1.0;
    double tracking = 1.0; ///< stretches the distance of letters
};

class LetterReader
{
  public:
    LetterReader(std::wstring_view text, double textHeight) : m_tokens(text), m_look{textHeight}
    {
        m_letters.reserve(text.size());
    }

    std::vector<MTextLetter> read()
    {
        for (MTextToken token; m_tokens.next(token);)
            take(token);
        return std::move(m_letters);
    }

  private:
    void take(const MTextToken& token);
    void takeCode(wchar_t code, std::wstring_view argument);
    void setHeight(std::wstring_view argument);
    void takeStack(std::wstring_view fraction);
    void add(wchar_t letter);
    void addScaled(std::wstring_view letters, double scale);
    void endParagraph() { m_letters.push_back({L'\n', 0.0, 0.0, m_look.height}); }

    MTextTokens m_tokens;
    Look m_look;
    std::vector<Look> m_outer; ///< looks to come back to at closing braces
    std::vector<MTextLetter> m_letters;
};

/// The number at the beginning of an argument; 0 if there is none.
double numberOf(std::wstring_view argument)
{
    return std::wcstod(std::wstring(argument).c_str(), nullptr);
}

void LetterReader::add(wchar_t letter)
{
    const double advance = letterAdvance(letter) * m_look.height * m_look.widthFactor;
    const double gap = kLetterGap * m_look.height * m_look.widthFactor;
    m_letters.push_back({letter, advance * m_look.tracking,
                         std::max(0.0, advance * m_look.tracking - (advance - gap)),
                         m_look.height});
}

void LetterReader::take(const MTextToken& token)
{
    using Kind = MTextToken::Kind;
    switch (token.kind) {
    case Kind::Letter:
        add(token.letter);
        break;
    case Kind::Paragraph:
    case Kind::Column:
    case Kind::Break:
        endParagraph();
        break;
    case Kind::Open:
        m_outer.push_back(m_look);
        break;
    case Kind::Close:
        if (!m_outer.empty()) {
            m_look = m_outer.back();
            m_outer.pop_back();
        }
        break;
    case Kind::Code:
        takeCode(token.letter, token.argument);
        break;
    case Kind::Stack:
        takeStack(token.argument);
        break;
    case Kind::LineSwitch: // lines along letters take no room
    case Kind::LineToggle:
        break;
    }
}

void LetterReader::takeCode(wchar_t code, std::wstring_view argument)
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
    default: // fonts, colours, slants, alignments and the like take no room
        break;
    }
}

void LetterReader::setHeight(std::wstring_view argument)
{
    const double number = numberOf(argument);
    if (number <= 0.0)
        return;
    const bool isFactor = argument.ends_with(L'x');
    m_look.height = isFactor ? m_look.height * number : number;
}

/// Adds letters that take `scale` of their usual room, but for their gap.
void LetterReader::addScaled(std::wstring_view letters, double scale)
{
    for (const wchar_t letter : letters) {
        add(letter);
        m_letters.back().advance *= scale;
        m_letters.back().gap *= scale;
    }
}

/// A fraction or a tolerance: two rows, one over the other, the wider of which takes the room.
void LetterReader::takeStack(std::wstring_view fraction)
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
    return LetterReader(contents, textHeight).read();
}
