/// What the arguments of format codes say.
#pragma once

#include <string_view>

#include <kwdraw/texts/mtext_items.h>

/// Takes over what a code says of the letters behind it; what makes no sense changes nothing.
/// @param code  one of `AHWTQCcFf`
void applyLookCode(wchar_t code, std::wstring_view argument, TextLook& look);
/// The same for a paragraph (`\p`).
void applyParagraphCode(std::wstring_view argument, ParagraphFormat& format);
