/// Fractions and tolerances: two rows of letters, one over the other.
#pragma once

#include <string_view>

#include <kwdraw/texts/text_look.h>
#include <kwdraw/texts/text_pieces.h>

struct TextStack
{
    TextPieces pieces; ///< with the lower left corner of the stack in the origin
    double width = 0.0;
    double height = 0.0;
};

/// @param content    two rows with `/` (a bar between them), `#` (a slanted bar) or `^` (no bar);
///                   a backslash keeps the next sign from parting them
/// @param lookIndex  stands in the pieces for `look`
TextStack stackOf(std::wstring_view content, const TextLook& look, std::uint32_t lookIndex);
