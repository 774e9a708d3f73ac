#include "text_decoder.h"

#include "utf8.h"

namespace dxf {
namespace {

/// The value of the `count` hexadecimal digits at `at`; false if there are fewer.
bool readHex(std::wstring_view text, std::size_t at, std::size_t count, unsigned& value)
{
    value = 0;
    if (text.size() < at + count)
        return false;
    for (const wchar_t c : text.substr(at, count)) {
        unsigned digit = 0;
        if (c >= L'0' && c <= L'9')
            digit = static_cast<unsigned>(c - L'0');
        else if (c >= L'A' && c <= L'F')
            digit = static_cast<unsigned>(c - L'A') + 10;
        else if (c >= L'a' && c <= L'f')
            digit = static_cast<unsigned>(c - L'a') + 10;
        else
            return false;
        value = value * 16 + digit;
    }
    return true;
}

bool isLeadSurrogate(unsigned unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}
bool isTrailSurrogate(unsigned unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

constexpr std::size_t kUnicodeEscapeLength = 7; ///< \U+XXXX
constexpr std::size_t kPageEscapeLength = 8;    ///< \M+nXXXX

bool readUnicodeEscape(std::wstring_view text, std::size_t at, unsigned& unit)
{
    const std::wstring_view head = text.substr(std::min(at, text.size()), 3);
    return (head == L"\\U+" || head == L"\\u+") && readHex(text, at + 3, 4, unit);
}

/// `^J` and its like stand for control characters, a caret and a blank for the caret.
bool takeCaret(std::wstring_view text, std::size_t& at, std::wstring& result)
{
    const wchar_t next = at + 1 < text.size() ? text[at + 1] : L'\0';
    const bool isControl = next > L'@' && next <= L'_'; // a character 0 would end the text
    if (!isControl && next != L' ')
        return false;
    result.push_back(isControl ? static_cast<wchar_t>(next - L'@') : L'^');
    at += 2;
    return true;
}

bool isPlain(std::string_view bytes)
{
    for (const char c : bytes) {
        if (static_cast<unsigned char>(c) >= 0x80 || c == '\\' || c == '^')
            return false;
    }
    return true;
}

} // namespace

TextDecoder::TextDecoder() : m_page(CodePage::find(m_pageName)) {}

TextDecoder TextDecoder::another() const
{
    TextDecoder decoder;
    decoder.useCodePage(m_pageName);
    decoder.m_utf8 = m_utf8;
    return decoder;
}

void TextDecoder::decide() const
{
    if (const auto areUtf8 = std::exchange(m_areUtf8, nullptr))
        m_utf8 = areUtf8();
}

bool TextDecoder::useCodePage(std::string_view drawingName)
{
    std::unique_ptr<CodePage> page = CodePage::find(drawingName);
    if (!page)
        return false;
    m_page = std::move(page);
    m_pageName = drawingName;
    return true;
}

KdString TextDecoder::decode(std::string_view bytes) const
{
    bytes = bytes.substr(0, kLongestText);
    return isPlain(bytes) ? KdString::fromAscii(bytes) : KdString(decodeWide(bytes));
}

std::wstring TextDecoder::decodeWide(std::string_view bytes) const
{
    bytes = bytes.substr(0, kLongestText);
    if (isPlain(bytes))
        return std::wstring(bytes.begin(), bytes.end());
    if (asciiEnd(bytes, 0) < bytes.size())
        decide();
    std::wstring text;
    text.reserve(bytes.size());
    if (m_utf8)
        decodeUtf8(bytes, text);
    else
        m_page->decode(bytes, text);
    // Escapes are looked for in characters: in some code pages the second byte of a pair may be a
    // backslash or a caret.
    return text.find_first_of(L"\\^") == std::wstring::npos ? text : withoutEscapes(text);
}

wchar_t TextDecoder::pairOfEscape(int page, unsigned pair) const
{
    std::unique_ptr<CodePage>& slot = m_escapePages[static_cast<std::size_t>(page)];
    if (!slot)
        slot = CodePage::ofEscape(page);
    return slot->pair(static_cast<unsigned char>(pair >> 8), static_cast<unsigned char>(pair));
}

bool TextDecoder::takeUnicodeEscape(std::wstring_view text, std::size_t& at,
                                    std::wstring& result) const
{
    unsigned unit = 0;
    if (!readUnicodeEscape(text, at, unit) || unit == 0)
        return false;
    at += kUnicodeEscapeLength;
    unsigned trail = 0;
    if (isLeadSurrogate(unit) && readUnicodeEscape(text, at, trail) && isTrailSurrogate(trail)) {
        at += kUnicodeEscapeLength;
        unit = 0x10000 + ((unit - 0xD800) << 10) + (trail - 0xDC00);
    } else if (isLeadSurrogate(unit) || isTrailSurrogate(unit)) {
        unit = kReplacement;
    }
    result.push_back(static_cast<wchar_t>(unit));
    return true;
}

bool TextDecoder::takePageEscape(std::wstring_view text, std::size_t& at,
                                 std::wstring& result) const
{
    const std::wstring_view head = text.substr(at, 3);
    unsigned page = 0;
    unsigned pair = 0;
    if ((head != L"\\M+" && head != L"\\m+") || !readHex(text, at + 3, 1, page) || page < 1 ||
        page >= m_escapePages.size() || !readHex(text, at + 4, 4, pair))
        return false;
    at += kPageEscapeLength;
    result.push_back(pairOfEscape(static_cast<int>(page), pair));
    return true;
}

std::wstring TextDecoder::withoutEscapes(std::wstring_view text) const
{
    std::wstring result;
    result.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const wchar_t c = text[at];
        const bool taken = (c == L'^' && takeCaret(text, at, result)) ||
                           (c == L'\\' && (takeUnicodeEscape(text, at, result) ||
                                           takePageEscape(text, at, result)));
        if (!taken) {
            result.push_back(c);
            ++at;
        }
    }
    return result;
}

} // namespace dxf
