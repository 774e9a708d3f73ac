#include "settings_text.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace {

struct Escape
{
    wchar_t letter;
    wchar_t character;
};

constexpr Escape kEscapes[] = {
    {L'"', L'"'}, {L'\\', L'\\'}, {L'n', L'\n'}, {L'r', L'\r'}, {L't', L'\t'}};

void skipBlanks(std::wstring_view& rest)
{
    while (!rest.empty() && (rest.front() == L' ' || rest.front() == L'\t'))
        rest.remove_prefix(1);
}

bool skip(std::wstring_view& rest, wchar_t character)
{
    if (rest.empty() || rest.front() != character)
        return false;
    rest.remove_prefix(1);
    return true;
}

/// The digits of a number, as far as they are ASCII.
std::string asciiOf(std::wstring_view text)
{
    std::string ascii;
    for (const wchar_t character : text)
        ascii.push_back(character < 128 ? static_cast<char>(character) : '?');
    return ascii;
}

template <class Number>
bool parseWhole(std::wstring_view text, Number& number, int base)
{
    const std::string digits = asciiOf(text);
    const char* const end = digits.data() + digits.size();
    const auto [stop, error] = std::from_chars(digits.data(), end, number, base);
    return error == std::errc() && stop == end;
}

/// Behind a backslash and a `u`: a number in braces.
bool takeCodePoint(std::wstring_view& rest, std::wstring& text)
{
    constexpr std::uint32_t kLastCharacter = 0x10FFFF;
    const std::size_t end = rest.find(L'}');
    std::uint32_t number = 0;
    if (!skip(rest, L'{') || end == std::wstring_view::npos ||
        !parseWhole(rest.substr(0, end - 1), number, 16) || number > kLastCharacter)
        return false;
    text.push_back(static_cast<wchar_t>(number));
    rest.remove_prefix(end);
    return true;
}

bool takeEscape(std::wstring_view& rest, std::wstring& text)
{
    if (skip(rest, L'u'))
        return takeCodePoint(rest, text);
    const auto* const found = std::ranges::find_if(
        kEscapes, [&](const Escape& escape) { return skip(rest, escape.letter); });
    if (found == std::end(kEscapes))
        return false;
    text.push_back(found->character);
    return true;
}

std::optional<std::wstring> takeQuoted(std::wstring_view& rest)
{
    if (!skip(rest, L'"'))
        return std::nullopt;
    std::wstring text;
    while (!rest.empty()) {
        const wchar_t character = rest.front();
        rest.remove_prefix(1);
        if (character == L'"')
            return text;
        if (character != L'\\')
            text.push_back(character);
        else if (!takeEscape(rest, text))
            return std::nullopt;
    }
    return std::nullopt;
}

bool takeValue(std::wstring_view& rest, SettingsFile::Value& value)
{
    if (!rest.empty() && rest.front() == L'"') {
        std::optional<std::wstring> text = takeQuoted(rest);
        if (text)
            value = std::move(*text);
        return text.has_value();
    }
    const std::size_t length = std::min(rest.find_first_of(L" \t#"), rest.size());
    std::int32_t number = 0;
    if (!parseWhole(rest.substr(0, length), number, 10))
        return false;
    value = number;
    rest.remove_prefix(length);
    return true;
}

bool isEndOrRemark(std::wstring_view rest)
{
    skipBlanks(rest);
    return rest.empty() || rest.front() == L'#';
}

/// Control characters, and halves of pairs, which UTF-8 can't hold.
bool isUnprintable(wchar_t character)
{
    return character < L' ' || character == 0x7F || (character >= 0xD800 && character <= 0xDFFF);
}

void appendQuoted(std::wstring& out, std::wstring_view text)
{
    out.push_back(L'"');
    for (const wchar_t character : text) {
        const auto* const escape = std::ranges::find(kEscapes, character, &Escape::character);
        if (escape != std::end(kEscapes)) {
            out += {L'\\', escape->letter};
        } else if (isUnprintable(character)) {
            char digits[8] = {};
            std::to_chars(digits, std::end(digits), static_cast<std::uint32_t>(character), 16);
            out += L"\\u{" + std::wstring(digits, digits + std::char_traits<char>::length(digits)) +
                   L"}";
        } else {
            out.push_back(character);
        }
    }
    out.push_back(L'"');
}

constexpr std::wstring_view kFormIs = L"# Settings, form ";
constexpr std::wstring_view kForm = L"1";

} // namespace

std::wstring settingsHead()
{
    return std::wstring(kFormIs) + std::wstring(kForm) +
           L": one value a line. Remarks are not kept.\n";
}

bool isFormKnown(std::wstring_view text)
{
    if (!text.starts_with(kFormIs))
        return true;
    text.remove_prefix(kFormIs.size());
    return text.substr(0, text.find_first_not_of(L"0123456789")) == kForm;
}

SettingsLineKind parseSettingsLine(std::wstring_view line, SettingsLine& value)
{
    if (!line.empty() && line.back() == L'\r') // edited elsewhere
        line.remove_suffix(1);
    if (isEndOrRemark(line))
        return SettingsLineKind::Nothing;
    skipBlanks(line);
    std::optional<std::wstring> name = takeQuoted(line);
    skipBlanks(line);
    if (!name || !skip(line, L'='))
        return SettingsLineKind::Fault;
    skipBlanks(line);
    SettingsFile::Value read;
    if (!takeValue(line, read) || !isEndOrRemark(line))
        return SettingsLineKind::Fault;
    value = {std::move(*name), std::move(read)};
    return SettingsLineKind::Value;
}

void appendSettingsLine(std::wstring& text, std::wstring_view name,
                        const SettingsFile::Value& value)
{
    appendQuoted(text, name);
    text += L" = ";
    if (const auto* number = std::get_if<std::int32_t>(&value))
        text += std::to_wstring(*number);
    else
        appendQuoted(text, std::get<std::wstring>(value));
    text += L'\n';
}
