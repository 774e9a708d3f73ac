/// Sets the items of a text into lines.
#pragma once

#include <vector>

#include <kwdraw/texts/mtext_items.h>
#include <kwdraw/texts/text_pieces.h>

struct TextLine
{
    TextPieces pieces;   ///< x from the left edge of the column, y from the base line
    double end = 0.0;    ///< where the last letter ends, blanks behind it apart
    double height = 0.0; ///< of the tallest letters
    double above = 0.0;  ///< how far stacks rise over that
    double below = 0.0;  ///< how far stacks reach below the base line
    double depth = 0.0;  ///< how far letters do
    std::uint32_t format = 0;
    bool startsParagraph = false;
    bool endsParagraph = false;
    bool endsColumn = false;
};

/// @param width  at which lines are broken; 0: at the ends of paragraphs alone. Words are never
///               broken, so one that is wider by itself reaches out of its column
std::vector<TextLine> linesOf(const MTextItems& text, double width);
