/// Building a dialog from a layout of a resource library.
#pragma once

#include <string_view>

class QDialog;

/// Gives `dialog` the controls and properties of a layout.
/// @param resourcePath  "library/group"
/// @return              false, with the dialog unchanged, if there is no such layout or it can't be
///                      read
bool loadLayout(std::wstring_view resourcePath, std::wstring_view name, QDialog& dialog);
