#include <entities/text_codes.h>

#include <algorithm>

namespace {

using Kind = MTextToken::Kind;

constexpr std::wstring_view kArgumentCodes = L"AHWTQCcFfp";
constexpr std::wstring_view kLineCodes = L"LlOoKk";

struct SignRow
{
    wchar_t sign; ///< the small letter
    TextCode code;
};

constexpr SignRow kSigns[] = {
    {L'c', {0x2300, 0}}, // diameter
    {L'd', {0xB0, 0}},   {L'p', {0xB1, 0}}, {L'%', {L'%', 0}},
    {L'u', {0, L'u'}},   {L'o', {0, L'o'}}, {L'k', {0, L'k'}},
};

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

wchar_t lowered(wchar_t c)
{
    return c >= L'A' && c <= L'Z' ? static_cast<wchar_t>(c - L'A' + L'a') : c;
}

/// The place of the semicolon that ends a stack, in which a backslash keeps the next sign as it is.
std::size_t endOfStack(std::wstring_view text, std::size_t at)
{
    for (; at < text.size() && text[at] != L';'; ++at) {
        if (text[at] == L'\\')
            ++at;
    }
    return std::min(at, text.size());
}

} // namespace

bool kddbTakeTextCode(std::wstring_view text, std::size_t& at, TextCode& code)
{
    constexpr std::size_t kDigits = 3;
    const std::wstring_view rest = text.substr(at);
    if (!rest.starts_with(L"%%") || rest.size() < 3)
        return false;
    const std::wstring_view digits = rest.substr(2, kDigits);
    if (digits.size() == kDigits && std::ranges::all_of(digits, isDigit)) {
        const int number = (digits[0] - L'0') * 100 + (digits[1] - L'0') * 10 + (digits[2] - L'0');
        code = {static_cast<wchar_t>(number), 0};
        at += 2 + kDigits;
        return true;
    }
    const auto* row = std::ranges::find(kSigns, lowered(rest[2]), &SignRow::sign);
    if (row == std::end(kSigns))
        return false;
    code = row->code;
    at += 3;
    return true;
}

MTextTokens::MTextTokens(std::wstring_view text) : m_text(text), m_lastSemicolon(text.rfind(L';'))
{
}

bool MTextTokens::next(MTextToken& token)
{
    while (m_at < m_text.size()) {
        if (takeSign(token))
            return true;
    }
    return false;
}

/// False for a sign that stands for nothing.
bool MTextTokens::takeSign(MTextToken& token)
{
    const wchar_t c = m_text[m_at];
    TextCode code;
    if (c == L'\\') {
        takeCode(token);
        return true;
    }
    if (c == L'%' && kddbTakeTextCode(m_text, m_at, code)) {
        token = code.lineSwitch ? MTextToken{Kind::LineToggle, code.lineSwitch, {}}
                                : MTextToken{Kind::Letter, code.letter, {}};
        return true;
    }
    ++m_at;
    switch (c) {
    case L'{':
        token = {Kind::Open, c, {}};
        return true;
    case L'}':
        token = {Kind::Close, c, {}};
        return true;
    case L'\n':
        token = {Kind::Paragraph, c, {}};
        return true;
    case L'\r':
        return false;
    default:
        token = {Kind::Letter, c, {}};
        return true;
    }
}

void MTextTokens::takeCode(MTextToken& token)
{
    const wchar_t code = m_at + 1 < m_text.size() ? m_text[m_at + 1] : L'\0';
    m_at += code ? 2 : 1;
    switch (code) {
    case L'P':
        token = {Kind::Paragraph, code, {}};
        break;
    case L'N':
        token = {Kind::Column, code, {}};
        break;
    case L'X':
        token = {Kind::Break, code, {}};
        break;
    case L'~':
        token = {Kind::Letter, 0xA0, {}};
        break;
    case L'\0':
        token = {Kind::Letter, L'\\', {}};
        break;
    default:
        takeArgumentCode(code, token);
    }
}

void MTextTokens::takeArgumentCode(wchar_t code, MTextToken& token)
{
    const bool isStack = code == L'S';
    const bool hasArgument = isStack || kArgumentCodes.find(code) != std::wstring_view::npos;
    token = {Kind::Letter, code, {}}; // braces and the backslash itself, and what is no code
    if (kLineCodes.find(code) != std::wstring_view::npos)
        token.kind = Kind::LineSwitch;
    else if (hasArgument && takeArgument(isStack, token.argument))
        token.kind = isStack ? Kind::Stack : Kind::Code;
}

/// What stands before the next semicolon; false, with nothing taken, if there is none.
bool MTextTokens::takeArgument(bool isStack, std::wstring_view& argument)
{
    if (m_lastSemicolon == std::wstring_view::npos || m_at > m_lastSemicolon ||
        (isStack && !m_stacksEnd))
        return false;
    const std::size_t end = isStack ? endOfStack(m_text, m_at) : m_text.find(L';', m_at);
    if (end == m_text.size()) {
        m_stacksEnd = false;
        return false;
    }
    argument = m_text.substr(m_at, end - m_at);
    m_at = end + 1;
    return true;
}
