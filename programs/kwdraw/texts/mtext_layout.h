/// Places all lines of a text.
#pragma once

#include <kwdraw/texts/mtext_items.h>
#include <kwdraw/texts/text_pieces.h>

struct MTextSetting
{
    double textHeight = 0.0;
    double width = 0.0; ///< of a column, at which lines are broken; 0: never
    double lineSpacingFactor = 1.0;
    bool exactSpacing = false; ///< by the text height, whatever the letters' own
    bool hasColumns = false;
    double columnHeight = 0.0;              ///< 0: columns end where the text says so
    std::vector<double> columnHeights = {}; ///< of the first columns, if they differ
    double gutter = 0.0;                    ///< between columns
    int columnCount = 1;                    ///< at least
    int mostColumns = 0; ///< what has no room in them stays in the last; 0: any number
    bool isDown = false; ///< lines run down, and each stands right of the one before
    ParagraphFormat::Align align = ParagraphFormat::Align::Left; ///< of paragraphs without own
};

struct MTextLayout
{
    /// From the top left corner of the text, x along the lines; y upwards, or to the right where
    /// lines run down.
    TextPieces pieces;
    double width = 0.0;  ///< along the lines
    double height = 0.0; ///< across them
};

MTextLayout layoutOf(const MTextItems& text, const MTextSetting& setting);
