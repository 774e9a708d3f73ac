#include <kwdraw/texts/mtext_items.h>

#include <string_view>

#include <entities/text_codes.h>
#include <kwdraw/texts/mtext_codes.h>

namespace {

constexpr char32_t kBlankThatHolds = 0xA0;

/// Signs that do not begin a line.
bool endsClause(char32_t letter)
{
    constexpr std::u32string_view kSigns =
        U"\u3001\u3002\u300D\u300F\u3011\uFF01\uFF09\uFF0C\uFF0E\uFF1A\uFF1B\uFF1F";
    return kSigns.find(letter) != std::u32string_view::npos;
}

class ItemReader
{
  public:
    ItemReader(std::wstring_view contents, const TextLook& look) : m_tokens(contents), m_look(look)
    {
        m_items.looks.push_back(look);
        m_items.formats.emplace_back();
    }

    MTextItems read()
    {
        for (MTextToken token; m_tokens.next(token);)
            take(token);
        return std::move(m_items);
    }

  private:
    using Kind = MTextItem::Kind;

    void take(const MTextToken& token);
    void takeLetter(char32_t letter);
    void takeCode(const MTextToken& token);
    void switchLine(wchar_t letter);
    void toggleLine(wchar_t letter);
    MTextItem& add(Kind kind);
    std::uint32_t lookIndex();

    MTextTokens m_tokens;
    MTextItems m_items;
    TextLook m_look;
    std::vector<TextLook> m_outer; ///< looks to come back to at closing braces
    ParagraphFormat m_format;
    bool m_formatChanged = false;
};

/// The look in force, which gets a place in the list as soon as letters have it.
std::uint32_t ItemReader::lookIndex()
{
    if (m_items.looks.back() != m_look)
        m_items.looks.push_back(m_look);
    return static_cast<std::uint32_t>(m_items.looks.size() - 1);
}

MTextItem& ItemReader::add(Kind kind)
{
    if (m_formatChanged)
        m_items.formats.push_back(m_format);
    m_formatChanged = false;
    MTextItem& item = m_items.items.emplace_back();
    item.kind = kind;
    item.look = lookIndex();
    item.format = static_cast<std::uint32_t>(m_items.formats.size() - 1);
    return item;
}

void ItemReader::take(const MTextToken& token)
{
    using Token = MTextToken::Kind;
    switch (token.kind) {
    case Token::Letter:
        takeLetter(static_cast<char32_t>(token.letter));
        break;
    case Token::Paragraph:
    case Token::Break:
        add(Kind::ParagraphEnd);
        break;
    case Token::Column:
        add(Kind::ColumnEnd);
        break;
    case Token::Open:
        m_outer.push_back(m_look);
        break;
    case Token::Close:
        if (!m_outer.empty()) {
            m_look = m_outer.back();
            m_outer.pop_back();
        }
        break;
    case Token::LineSwitch:
        switchLine(token.letter);
        break;
    case Token::LineToggle:
        toggleLine(token.letter);
        break;
    case Token::Code:
        takeCode(token);
        break;
    case Token::Stack: {
        MTextItem& item = add(Kind::Stack);
        item.stack = static_cast<std::uint32_t>(m_items.stacks.size());
        m_items.stacks.push_back(stackOf(token.argument, m_look, item.look));
        break;
    }
    }
}

void ItemReader::takeLetter(char32_t letter)
{
    if (letter == U'\t') {
        add(Kind::Tab);
        return;
    }
    if (letter < 0x20)
        return;
    const bool isIdeographic = isIdeograph(letter);
    const Kind kind = letter == U' ' ? Kind::Blank : Kind::Word;
    const char32_t shown = letter == kBlankThatHolds ? U' ' : letter;
    const std::vector<MTextItem>& items = m_items.items;
    const bool goesOn = !items.empty() && items.back().kind == kind && !m_formatChanged &&
                        !isIdeographic && !items.back().mayBreakBefore &&
                        items.back().look == lookIndex();
    MTextItem& item = goesOn ? m_items.items.back() : add(kind);
    item.mayBreakBefore = isIdeographic && !endsClause(letter);
    item.letters += QString::fromUcs4(&shown, 1);
}

void ItemReader::takeCode(const MTextToken& token)
{
    if (token.letter != L'p') {
        applyLookCode(token.letter, token.argument, m_look);
        return;
    }
    applyParagraphCode(token.argument, m_format);
    m_formatChanged = true;
}

void ItemReader::switchLine(wchar_t letter)
{
    switch (letter) {
    case L'L':
    case L'l':
        m_look.lineBelow = letter == L'L';
        break;
    case L'O':
    case L'o':
        m_look.lineAbove = letter == L'O';
        break;
    default:
        m_look.lineThrough = letter == L'K';
    }
}

void ItemReader::toggleLine(wchar_t letter)
{
    bool& line = letter == L'u'   ? m_look.lineBelow
                 : letter == L'o' ? m_look.lineAbove
                                  : m_look.lineThrough;
    line = !line;
}

} // namespace

MTextItems mtextItems(std::wstring_view contents, const TextLook& look)
{
    return ItemReader(contents, look).read();
}
