#include <kwdraw/texts/mtext_codes.h>

#include <algorithm>
#include <cmath>
#include <cwchar>
#include <numbers>
#include <optional>
#include <string>

#include <kwdraw/texts/symbols.h>

namespace {

/// Takes the piece before the next mark off the front of a text.
std::wstring_view takePiece(std::wstring_view& text, wchar_t mark)
{
    const std::size_t end = text.find(mark);
    const std::wstring_view piece = text.substr(0, end);
    text.remove_prefix(end == std::wstring_view::npos ? text.size() : end + 1);
    return piece;
}

/// The number at the beginning, if there is one that a drawing can mean.
std::optional<double> numberOf(std::wstring_view text)
{
    constexpr std::size_t kLongest = 40;
    constexpr double kMost = 1e12;
    const std::wstring digits(text.substr(0, kLongest));
    wchar_t* end = nullptr;
    const double number = std::wcstod(digits.c_str(), &end);
    if (end == digits.c_str() || !(std::fabs(number) < kMost))
        return std::nullopt;
    return number;
}

/// A factor or a size; a factor that ends with `x` counts from the present value.
void setSize(std::wstring_view argument, double& size)
{
    constexpr double kLeast = 1e-9;
    constexpr double kMost = 1e9;
    const std::optional<double> number = numberOf(argument);
    if (!number)
        return;
    const bool isFactor = argument.ends_with(L'x') || argument.ends_with(L'X');
    const double next = isFactor ? size * *number : *number;
    if (next > kLeast && next < kMost)
        size = next;
}

void setPlace(std::wstring_view argument, TextLook& look)
{
    using Place = TextLook::Place;
    if (argument == L"0")
        look.place = Place::Base;
    else if (argument == L"1")
        look.place = Place::Middle;
    else if (argument == L"2")
        look.place = Place::Top;
}

constexpr std::uint32_t kByLayer = 0xC0000000;
constexpr std::uint32_t kByBlock = 0xC1000000;
constexpr std::uint32_t kByRgb = 0xC2000000;
constexpr std::uint32_t kByIndex = 0xC3000000;

void setIndexColor(std::wstring_view argument, TextLook& look)
{
    const std::optional<double> number = numberOf(argument);
    if (!number || *number < 0.0 || *number > 256.0)
        return;
    const auto index = static_cast<std::uint32_t>(*number);
    look.color = index == 0 ? kByBlock : index == 256 ? kByLayer : kByIndex | index;
}

/// The number has blue in its high byte and red in its low one.
void setTrueColor(std::wstring_view argument, TextLook& look)
{
    const std::optional<double> number = numberOf(argument);
    if (!number || *number < 0.0 || *number > 0xFFFFFF)
        return;
    const auto value = static_cast<std::uint32_t>(*number);
    look.color = kByRgb | (value & 0xFF) << 16 | (value & 0xFF00) | value >> 16;
}

/// `Arial|b1|i0|c0|p34`: the family, then bold, italic, code page and pitch.
void setFamily(std::wstring_view argument, TextLook& look)
{
    const std::wstring_view family = takePiece(argument, L'|');
    bool bold = false;
    bool italic = false;
    while (!argument.empty()) {
        const std::wstring_view piece = takePiece(argument, L'|');
        bold = bold || piece == L"b1" || piece == L"B1";
        italic = italic || piece == L"i1" || piece == L"I1";
    }
    if (family.empty())
        return;
    look.face = faceOfFamily(family, bold, italic);
    look.isSymbol = isSymbolFont(family);
}

/// `simplex.shx,bigfont.shx|c0`
void setFile(std::wstring_view argument, TextLook& look)
{
    std::wstring_view files = takePiece(argument, L'|');
    const std::wstring_view file = takePiece(files, L',');
    if (file.empty())
        return;
    look.face = faceOfFile(file);
    look.isSymbol = isSymbolFont(file);
}

ParagraphFormat::Align alignOf(std::wstring_view argument)
{
    using Align = ParagraphFormat::Align;
    switch (argument.empty() ? L'\0' : argument.front()) {
    case L'l':
        return Align::Left;
    case L'c':
        return Align::Center;
    case L'r':
        return Align::Right;
    case L'j':
        return Align::Justified;
    case L'd':
        return Align::Distributed;
    default:
        return Align::ByAttachment;
    }
}

ParagraphFormat::TabStop tabOf(std::wstring_view argument)
{
    using Kind = ParagraphFormat::TabStop::Kind;
    ParagraphFormat::TabStop stop;
    if (argument.starts_with(L'c') || argument.starts_with(L'r')) {
        stop.kind = argument.front() == L'c' ? Kind::Center : Kind::Right;
        argument.remove_prefix(1);
    }
    stop.place = numberOf(argument).value_or(0.0);
    return stop;
}

/// Takes stop after stop up to the end.
void setTabs(std::wstring_view first, std::wstring_view others, ParagraphFormat& format)
{
    constexpr std::size_t kMostTabs = 256;
    format.tabs.clear();
    for (std::wstring_view piece = first; format.tabs.size() < kMostTabs;
         piece = takePiece(others, L',')) {
        if (const ParagraphFormat::TabStop stop = tabOf(piece); stop.place > 0.0)
            format.tabs.push_back(stop);
        if (others.empty())
            break;
    }
    std::ranges::stable_sort(format.tabs, {}, &ParagraphFormat::TabStop::place);
}

} // namespace

void applyLookCode(wchar_t code, std::wstring_view argument, TextLook& look)
{
    switch (code) {
    case L'A':
        setPlace(argument, look);
        break;
    case L'H':
        setSize(argument, look.height);
        break;
    case L'W':
        setSize(argument, look.widthFactor);
        break;
    case L'T':
        setSize(argument, look.tracking);
        break;
    case L'Q':
        if (const auto degrees = numberOf(argument))
            look.oblique = std::clamp(*degrees, -85.0, 85.0) * std::numbers::pi / 180.0;
        break;
    case L'C':
        setIndexColor(argument, look);
        break;
    case L'c':
        setTrueColor(argument, look);
        break;
    case L'f':
        setFamily(argument, look);
        break;
    case L'F':
        setFile(argument, look);
        break;
    default:
        break;
    }
}

void applyParagraphCode(std::wstring_view argument, ParagraphFormat& format)
{
    while (!argument.empty()) {
        std::wstring_view piece = takePiece(argument, L',');
        if (piece.starts_with(L'x')) // only says that something follows
            piece.remove_prefix(1);
        if (piece.empty())
            continue;
        const std::wstring_view value = piece.substr(1);
        const double number = numberOf(value).value_or(0.0); // an asterisk stands for none
        switch (piece.front()) {
        case L'i':
            format.first = number;
            break;
        case L'l':
            format.left = number;
            break;
        case L'r':
            format.right = number;
            break;
        case L'b':
            format.before = number;
            break;
        case L'a':
            format.after = number;
            break;
        case L'q':
            format.align = alignOf(value);
            break;
        case L't':
            setTabs(value, argument, format);
            return;
        default:
            break;
        }
    }
}
