/// Dialog layouts in resource libraries.
#pragma once

#include <string_view>

#include <platform/resources.h>

/// The layout of a dialog, as XML of Qt Designer with its texts in the library's language.
/// @param module  the library; null holds no layout
/// @param path    "group/name"
/// @return        empty if the library has no such layout; valid until the process ends
KW_EXPORT std::string_view kdFindLayout(HINSTANCE module, std::wstring_view path);
