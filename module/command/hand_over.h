/// The end of a run: from the matches to the host's selection.
#pragma once

#include <command/matching.h>

/// Replaces the matches by everything else: of the current space, of the picked entities, or of the
/// host's implied selection, depending on what the run went over.
void excludeMatches(const DialogParameters& parameters, Matches& matches);

/// Makes the outcome the host's selection, prints the count line and returns the count. An outcome
/// without members clears the selection, also when it was to be appended.
/// @param given  the caller's own starting selection, or null
int handOver(const long* given, const DialogParameters& parameters, Matches& matches);
