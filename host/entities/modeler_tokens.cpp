#include "modeler_tokens.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace {

constexpr std::string_view kBinaryMark = "ASM BinaryFile4";
constexpr std::string_view kBlanks = " \t\r\n";

// The bytes that announce values in the binary form.
enum Tag : std::uint8_t
{
    kInteger = 0x04,
    kReal = 0x06,
    kShortText = 0x07,
    kTrue = 0x0A,
    kFalse = 0x0B,
    kReference = 0x0C,
    kLastNamePart = 0x0D,
    kNamePart = 0x0E,
    kOpen = 0x0F,
    kClose = 0x10,
    kRecordEnd = 0x11,
    kLongText = 0x12,
    kPosition = 0x13,
    kVector = 0x14,
    kChoice = 0x15,
};

bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

template <class T>
bool parse(std::string_view text, T& value)
{
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    return result.ec == std::errc() && result.ptr == end;
}

} // namespace

ModelerTokens::ModelerTokens(std::string_view data)
    : m_data(data), m_binary(data.starts_with(kBinaryMark))
{
    if (!(m_binary ? skipBinaryHeader() : skipTextHeader()))
        m_at = m_data.size();
}

ModelerTokens::ModelerTokens(std::string_view data, std::size_t offset)
    : m_data(data), m_at(offset), m_binary(data.starts_with(kBinaryMark))
{
}

bool ModelerTokens::next(ModelerToken& token)
{
    return m_binary ? nextInBinary(token) : nextInText(token);
}

// One line or three, by version; all begin with a number. So may a record, with its own, but behind
// a sign and before its name.
bool ModelerTokens::skipTextHeader()
{
    while ((m_at = m_data.find_first_not_of(kBlanks, m_at)) != std::string_view::npos) {
        const std::string_view line = m_data.substr(m_at, m_data.find('\n', m_at) - m_at);
        const std::size_t second = line.find_first_not_of(kBlanks, line.find_first_of(kBlanks));
        const bool isNumbered =
            line.front() == '-' && second != std::string_view::npos && isLetter(line[second]);
        if (isNumbered || isLetter(line.front()))
            return true;
        m_at += line.size();
    }
    return false;
}

// Four integers, three texts, then three reals: the length of a unit and two tolerances.
bool ModelerTokens::skipBinaryHeader()
{
    constexpr std::size_t kIntegers = 4 * sizeof(std::int32_t);
    constexpr int kTextsAndReals = 6;
    m_at = std::min(kBinaryMark.size() + kIntegers, m_data.size());
    ModelerToken token;
    for (int i = 0; i < kTextsAndReals; ++i) {
        if (!nextInBinary(token))
            return false;
    }
    return true;
}

bool ModelerTokens::nextInText(ModelerToken& token)
{
    m_at = m_data.find_first_not_of(kBlanks, m_at);
    if (m_at == std::string_view::npos) {
        m_at = m_data.size();
        return false;
    }
    if (m_data[m_at] == '@')
        return takeCounted(token);
    const std::size_t end = m_data.find_first_of(kBlanks, m_at);
    const std::string_view word = m_data.substr(m_at, end - m_at);
    m_at += word.size();
    classify(word, token);
    return true;
}

/// `@7 unknown`: a text behind its length, which may hold blanks.
bool ModelerTokens::takeCounted(ModelerToken& token)
{
    const std::size_t end = m_data.find_first_of(kBlanks, m_at);
    std::size_t length = 0;
    if (end == std::string_view::npos || !parse(m_data.substr(m_at + 1, end - m_at - 1), length) ||
        length > m_data.size() - end - 1)
        return false;
    token = {ModelerToken::Kind::Word, 0.0, m_data.substr(end + 1, length)};
    m_at = end + 1 + length;
    return true;
}

void ModelerTokens::classify(std::string_view word, ModelerToken& token)
{
    using Kind = ModelerToken::Kind;
    token = {Kind::Word, 0.0, word};
    int record = 0;
    if (word == "#")
        token.kind = Kind::RecordEnd;
    else if (word == "{")
        token.kind = Kind::Open;
    else if (word == "}")
        token.kind = Kind::Close;
    else if (word.front() == '$' && parse(word.substr(1), record))
        token = {Kind::Reference, static_cast<double>(record), word};
    else if (parse(word, token.number) && std::isfinite(token.number))
        token.kind = Kind::Number;
}

template <class T>
bool ModelerTokens::take(T& value)
{
    if (m_data.size() - m_at < sizeof value)
        return false;
    std::memcpy(&value, m_data.data() + m_at, sizeof value);
    m_at += sizeof value;
    return true;
}

template <class Length>
bool ModelerTokens::takeText(ModelerToken& token)
{
    Length length{};
    if (!take(length) || length > m_data.size() - m_at)
        return false;
    token.kind = ModelerToken::Kind::Word;
    token.text = m_data.substr(m_at, length);
    m_at += length;
    return true;
}

template <class T>
bool ModelerTokens::takeNumber(ModelerToken& token)
{
    T value{};
    if (!take(value))
        return false;
    token.number = static_cast<double>(value);
    return std::isfinite(token.number);
}

bool ModelerTokens::nextInBinary(ModelerToken& token)
{
    using Kind = ModelerToken::Kind;
    token = {Kind::Number, 0.0, {}};
    if (m_coordinatesLeft > 0) {
        --m_coordinatesLeft;
        return takeNumber<double>(token);
    }
    std::uint8_t tag = 0;
    if (!take(tag))
        return false;
    switch (tag) {
    case kInteger:
        return takeNumber<std::int32_t>(token);
    case kReal:
        return takeNumber<double>(token);
    case kPosition:
    case kVector:
        m_coordinatesLeft = 2;
        return takeNumber<double>(token);
    case kShortText:
    case kLastNamePart:
    case kNamePart:
        return takeText<std::uint8_t>(token);
    case kLongText:
        return takeText<std::uint32_t>(token);
    case kReference:
        token.kind = Kind::Reference;
        return takeNumber<std::int32_t>(token);
    case kChoice:
        token.kind = Kind::Choice;
        return takeNumber<std::int32_t>(token);
    case kTrue:
    case kFalse:
        token = {Kind::Flag, tag == kTrue ? 1.0 : 0.0, {}};
        return true;
    case kOpen:
        token.kind = Kind::Open;
        return true;
    case kClose:
        token.kind = Kind::Close;
        return true;
    case kRecordEnd:
        token.kind = Kind::RecordEnd;
        return true;
    default:
        return false;
    }
}
