// Reads the format codes of texts of several lines, and sets their letters into lines.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// One letter and the room that it takes. A line feed ends a paragraph.
struct MTextLetter
{
    wchar_t letter;
    double advance; ///< drawing units, the gap behind it included
    double gap;     ///< the gap alone
    double height;
};

/// The letters of a text, its format codes resolved.
std::vector<MTextLetter> mtextLetters(std::wstring_view contents, double textHeight);

/// How lines are set.
struct MTextSetting
{
    double textHeight = 0.0;
    double width = 0.0; ///< at which lines are broken; 0: at the ends of paragraphs alone
    double lineSpacingFactor = 1.0;
    bool exactSpacing = false; ///< by the text height whatever the letters' own
};

struct MTextSize
{
    double width = 0.0;
    double height = 0.0; ///< from the top of the first line to the base of the last
};

/// The size of all lines together.
MTextSize mtextSize(const std::vector<MTextLetter>& letters, const MTextSetting& setting);
