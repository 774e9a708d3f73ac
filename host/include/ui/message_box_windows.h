/// Messages as windows.
#pragma once

#include <runtime/export.h>

/// From now on messages come up as windows that wait for the user (see `setMessageBoxHandler`).
/// While no QApplication runs they go where they went before this call.
KW_EXPORT void installMessageBoxWindows();
