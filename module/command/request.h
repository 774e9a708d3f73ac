/// A run for a given filter, without a dialog.
#pragma once

#include <plugin/quick_select.h>

/// Gathers, matches and hands over as the command does. Refuses an operator that the kind does not
/// offer and a value that is none of the kind, with nothing changed.
quick_select::Result runRequest(const quick_select::Request& request, const long* ss);
