/// What the numbered colours of drawings look like.
#pragma once

#include <cstdint>

#include <runtime/export.h>

/// The colour of an index from 1 to 255 as 0xRRGGBB; black for other numbers. Index 7, the colour
/// of the foreground, is white here: who draws on a bright ground takes black for it.
KW_EXPORT std::uint32_t kdcmPaletteRgb(int index);
