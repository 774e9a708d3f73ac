#include "text_metrics.h"

#include <algorithm>

#include <entities/text_codes.h>

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

std::wstring shownLetters(std::wstring_view text)
{
    std::wstring letters;
    letters.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        TextCode code;
        if (!kddbTakeTextCode(text, at, code))
            letters.push_back(text[at++]);
        else if (!code.lineSwitch)
            letters.push_back(code.letter);
    }
    return letters;
}
