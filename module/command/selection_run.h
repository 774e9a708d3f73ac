/// One run of quick select, from the drawing to the new selection.
#pragma once

#include <command/filter_source.h>

/// How a run ended.
enum class RunEnd
{
    Done,
    NoDrawing, ///< no drawing, or its current space can't be read; nothing was said
    NoObjects, ///< the current space holds nothing to select; the user was told
    Cancelled, ///< the filter source cancelled
    Abandoned, ///< an entity has no provider
};

/// @param ss       the starting selection, or null for the host's implied selection
/// @param matches  receives the number that the count line tells; untouched unless `Done`
RunEnd runSelection(const long* ss, FilterSource& source, int& matches);
