/// A text of several lines as what is set into lines: words, blanks, stacks and ends.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include <kwdraw/texts/text_look.h>
#include <kwdraw/texts/text_stack.h>

/// How the lines of a paragraph stand in their column. Lengths are drawing units.
struct ParagraphFormat
{
    enum class Align : std::uint8_t
    {
        ByAttachment,
        Left,
        Center,
        Right,
        Justified,   ///< but for its last line
        Distributed, ///< the last line as well
    };
    struct TabStop
    {
        enum class Kind : std::uint8_t
        {
            Left,
            Center,
            Right,
        };
        double place = 0.0; ///< from the left edge of the column
        Kind kind = Kind::Left;
    };
    double first = 0.0; ///< where the first line begins, from where the others do
    double left = 0.0;
    double right = 0.0;
    double before = 0.0; ///< free room above the paragraph
    double after = 0.0;
    Align align = Align::ByAttachment;
    std::vector<TabStop> tabs; ///< from left to right
};

struct MTextItem
{
    enum class Kind : std::uint8_t
    {
        Word, ///< `letters`; words with nothing between them are not parted, ideographs apart
        Blank,
        Tab,
        Stack, ///< number `stack`
        ParagraphEnd,
        ColumnEnd,
    };
    Kind kind = Kind::Word;
    bool mayBreakBefore = false; ///< though no blank stands there
    std::uint32_t look = 0;
    std::uint32_t format = 0;
    std::uint32_t stack = 0;
    QString letters;
};

struct MTextItems
{
    std::vector<MTextItem> items;
    std::vector<TextLook> looks;          ///< one at least
    std::vector<ParagraphFormat> formats; ///< one at least
    std::vector<TextStack> stacks;
};

/// @param contents  with format codes
/// @param look      of the text as it begins
MTextItems mtextItems(std::wstring_view contents, const TextLook& look);
