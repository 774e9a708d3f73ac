/// Light and dark.
#pragma once

#include <runtime/export.h>

/// Gives the application the colours that "COLORTHEME" asks for: 0 dark, 1 light. Needs a
/// QApplication.
KW_EXPORT void kduiApplyColorTheme();
