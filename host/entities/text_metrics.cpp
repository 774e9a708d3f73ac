#include "text_metrics.h"

#include <algorithm>

namespace {

// Widths are told in sixths of the height, as such fonts are drawn on a grid: most letters take
// four and a gap of two.
constexpr double kGrid = 6.0;
constexpr double kUsualAdvance = 6.0;
constexpr double kFullWidthAdvance = 8.0;
constexpr double kDescent = 1.0 / 3.0;

struct AdvanceRow
{
    std::wstring_view letters;
    double sixths;
};

constexpr AdvanceRow kAdvances[] = {
    {L"!'.,:;|il", 3.0},
    {L"I()[]{}j`", 4.0},
    {L"1frt\"", 5.0},
    {L"mwMW@%", 8.0},
};

// Writing systems whose letters are as wide as they are tall.
struct LetterRange
{
    wchar_t first;
    wchar_t last;
};

constexpr LetterRange kFullWidth[] = {
    {0x1100, 0x115F}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7A3},
    {0xF900, 0xFAFF}, {0xFF00, 0xFF60}, {0x20000, 0x3FFFD},
};

bool isFullWidth(wchar_t letter)
{
    return std::ranges::any_of(kFullWidth, [letter](const LetterRange& range) {
        return letter >= range.first && letter <= range.last;
    });
}

bool isDigit(wchar_t c)
{
    return c >= L'0' && c <= L'9';
}

/// The letter of a code of one sign, 0 for a switch that shows nothing, -1 for no code.
int letterOfCode(wchar_t sign)
{
    switch (sign) {
    case L'c':
    case L'C':
        return 0x2300; // diameter
    case L'd':
    case L'D':
        return 0xB0;
    case L'p':
    case L'P':
        return 0xB1;
    case L'%':
        return L'%';
    case L'u':
    case L'U':
    case L'o':
    case L'O':
    case L'k':
    case L'K':
        return 0;
    default:
        return -1;
    }
}

} // namespace

double letterAdvance(wchar_t letter)
{
    for (const AdvanceRow& row : kAdvances) {
        if (row.letters.find(letter) != std::wstring_view::npos)
            return row.sixths / kGrid;
    }
    return (isFullWidth(letter) ? kFullWidthAdvance : kUsualAdvance) / kGrid;
}

double lettersWidth(std::wstring_view letters)
{
    double width = 0.0;
    for (const wchar_t letter : letters)
        width += letterAdvance(letter);
    return letters.empty() ? 0.0 : width - kLetterGap;
}

double lettersDescent(std::wstring_view letters)
{
    return letters.find_first_of(L"gjpqyQ,;") == std::wstring_view::npos ? 0.0 : kDescent;
}

bool takePercentCode(std::wstring_view text, std::size_t& at, std::wstring& letters)
{
    constexpr std::size_t kDigits = 3;
    const std::wstring_view rest = text.substr(at);
    if (!rest.starts_with(L"%%") || rest.size() < 3)
        return false;
    const std::wstring_view digits = rest.substr(2, kDigits);
    if (digits.size() == kDigits && std::ranges::all_of(digits, isDigit)) {
        const int number = (digits[0] - L'0') * 100 + (digits[1] - L'0') * 10 + (digits[2] - L'0');
        letters.push_back(static_cast<wchar_t>(number));
        at += 2 + kDigits;
        return true;
    }
    const int letter = letterOfCode(rest[2]);
    if (letter < 0)
        return false;
    if (letter > 0)
        letters.push_back(static_cast<wchar_t>(letter));
    at += 3;
    return true;
}

std::wstring shownLetters(std::wstring_view text)
{
    std::wstring letters;
    letters.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        if (!takePercentCode(text, at, letters))
            letters.push_back(text[at++]);
    }
    return letters;
}
