/// What the editor asks of the program's display. For the main thread.
#pragma once

#include <functional>

#include <runtime/export.h>

/// Brings the display up to date with the drawing, by the hook that the program installed. Without
/// one, as in a program that has no window, there is nothing to do.
KW_EXPORT void kdedUpdateDisplay();

/// Installs what `kdedUpdateDisplay` calls; an empty one takes it away. Returns the hook so far.
KW_EXPORT std::function<void()> kdedSetUpdateDisplayHook(std::function<void()> hook);
