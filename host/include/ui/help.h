/// Help by topic.
#pragma once

#include <functional>

#include <runtime/export.h>

namespace KWCMDHELP {

/// Opens the program's help at a topic. Where the program has none the user is told so.
KW_EXPORT void KdadHelp(const wchar_t* topic);

} // namespace KWCMDHELP

/// Shows the help on a topic.
using KdUiHelpViewer = std::function<void(const wchar_t* topic)>;
/// Installs the viewer, or takes it away with an empty one; returns the one so far.
KW_EXPORT KdUiHelpViewer kduiSetHelpViewer(KdUiHelpViewer viewer);
